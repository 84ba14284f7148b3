// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

class PictureScene;

// A picture of the manual. The steps are those that its page tells; they end with the taking of the picture.
struct Picture
{
    const char *name; // of its file, without suffix
    void (*take)(PictureScene &scene);
};

const std::vector<Picture> &picturesOfTheManual();

// Prints a page with some colour to a PDF file.
void printPage(PictureScene &scene, const QString &fileName);
