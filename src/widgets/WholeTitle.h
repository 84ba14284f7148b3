// SPDX-License-Identifier: MIT
#pragma once

class QGroupBox;

// Gives the title of a group the room that it takes. Styles measure its ink alone, and cut the last letter of a long
// one.
void showWholeTitle(QGroupBox *group);
