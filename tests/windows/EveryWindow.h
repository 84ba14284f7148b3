// SPDX-License-Identifier: MIT
#pragma once

#include "generation/GUtils.h"
#include "model/Cartella.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/ScratchFolder.h"

#include <QStringList>
#include <QWidget>

#include <memory>

// All windows of the program, each filled with as much as it can show, for tests of what must hold in every one.
namespace EveryWindow {
// What windows need to live: a folder with the translation files and a picture, settings, utilities, cards.
class Stage final
{
public:
    Stage();
    ~Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    // The language of the windows made from now on, as if chosen by the user. False when there is no file for it.
    bool speak(const QString &language);

private:
    void prepareFolder();

public:
    ScratchFolder folder;
    CurrentConfig config;
    GUtils utils;
    std::unique_ptr<BoxScript> boxes; // none once a window is shown that is a box itself
    Cartella cartella;                // two pages of two blocks
};

// Those that the program itself makes, and the dialogs of the toolkit that it opens.
QStringList names();
bool isToolkitDialog(const QString &name);

// The window of this name, shown: as large as the smallest screen, dialogs as large as they ask to be.
std::unique_ptr<QWidget> show(const QString &name, Stage &stage);

// A row for each window, in the column "name".
void addRows();
} // namespace EveryWindow
