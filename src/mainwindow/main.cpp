// SPDX-License-Identifier: MIT
#include "mainwindow/Startup.h"

int main(int argc, char **argv)
{
    return startQuintra(argc, argv);
}
