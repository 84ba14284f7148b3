// SPDX-License-Identifier: MIT
#include "mainwindow/Startup.h"

#include "generation/GUtils.h"
#include "mainwindow/MainWindow.h"
#include "resources/Resources.h"
#include "settings/Config.h"
#include "settings/FormatSelection.h"
#include "settings/Product.h"
#include "widgets/ReadableStyle.h"

#include <QApplication>
#include <QEventLoop>
#include <QIcon>
#include <QScopeGuard>

#include <memory>

QEventLoop *globalEventLoop = nullptr;

namespace {
// The window must be visible already.
template<class Window>
void runUntilDone(const Window &window)
{
    QObject::connect(&window, &Window::done, globalEventLoop, &QEventLoop::quit);
    globalEventLoop->exec();
}

// What a desktop shows in its lists and groups windows by. Without a display name: the toolkit would append it to every
// title.
void tellTheDesktopWhoWeAre()
{
    initQuintraResources();
    QCoreApplication::setApplicationName(Product::nameText());
    QCoreApplication::setApplicationVersion(Product::releaseText());
    QGuiApplication::setDesktopFileName(QStringLiteral("quintra"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/Images/resources/img/Quintra.ico")));
}

void runFirstStartDialog()
{
    FormatSelection dialog;
    dialog.show();
    runUntilDone(dialog);
}
} // namespace

int startQuintra(int &argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    tellTheDesktopWhoWeAre();
    QApplication::setStyle(ReadableStyle::make().release()); // the application owns it

    const auto forgetAll = qScopeGuard([]() {
        globalUtils = nullptr;
        globalEventLoop = nullptr;
    });
    // Not in the order of creation, so that the loop goes first and the configuration last.
    std::unique_ptr<CurrentConfig> config;
    std::unique_ptr<GUtils> utils;
    std::unique_ptr<QEventLoop> loop;

    utils = std::make_unique<GUtils>(qApp);
    globalUtils = utils.get();
    config = std::make_unique<CurrentConfig>(qApp);
    loop = std::make_unique<QEventLoop>();
    globalEventLoop = loop.get();

    if (config->isFirstStart()) {
        runFirstStartDialog();
    }
    {
        const MainWindow window;
        runUntilDone(window);
    }
    return 0;
}
