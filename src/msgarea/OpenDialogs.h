// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

// Whether a dialog over a window, or over one that belongs to it, waits for an answer. Who asks goes on with the window
// afterwards: it must not be closed for good until then.
bool isAsking(const QWidget &window);
