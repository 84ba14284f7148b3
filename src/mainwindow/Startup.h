// SPDX-License-Identifier: MIT
#pragma once

class QEventLoop;

// The one loop that every top-level window runs in. Owned by startQuintra().
extern QEventLoop *globalEventLoop;

// Creates the global objects, runs the first-start dialog when there is no config.ini, then the main window until the
// user leaves. Returns 0.
int startQuintra(int &argc, char **argv);
