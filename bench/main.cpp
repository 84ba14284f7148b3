// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include "generation/GUtils.h"
#include "settings/Config.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);

    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder; // config.ini and the printed files
    QDir::setCurrent(folder.path());
    GUtils utils(qApp);
    CurrentConfig config(qApp);
    globalUtils = &utils;

    const int result = runBenchmarksAndPrintRatios();
    QDir::setCurrent(QDir::rootPath());
    return result;
}
