// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

// The first place of a window that is not shown yet: whole on the screen, however small that is, and over the middle of
// the window that it belongs to, which may be null.
void placeOver(QWidget *window, const QWidget *owner);
