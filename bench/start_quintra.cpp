// SPDX-License-Identifier: MIT
// The start of the program.
#include "FirstWindow.h"

#include "mainwindow/Startup.h"

int main(int argc, char **argv)
{
    endAtFirstWindow();
    return startQuintra(argc, argv);
}
