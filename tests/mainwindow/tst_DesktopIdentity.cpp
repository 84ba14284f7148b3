// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"
#include "mainwindow/PagePreview.h"
#include "mainwindow/WholeProgram.h"
#include "manuale/Manuale.h"
#include "msgarea/MsgArea.h"
#include "personale/EditPersonale.h"
#include "serata/NuovaPartita.h"
#include "serata/Serata.h"
#include "settings/Config.h"
#include "settings/FormatSelection.h"
#include "settings/Options.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QCheckBox>
#include <QProcess>
#include <QtTest>

using namespace WholeProgram;

namespace {
// What the X server knows of a window.
QString property(const QWidget *window, const char *name)
{
    QProcess xprop;
    xprop.start(QStringLiteral("xprop"), {QStringLiteral("-notype"), QStringLiteral("-id"),
                                          QString::number(window->winId()), QString::fromLatin1(name)});
    xprop.waitForFinished();
    return QString::fromUtf8(xprop.readAllStandardOutput()).section(QStringLiteral(" = "), 1).trimmed();
}

// Title and class of a window as the window manager sees them, and whether it has the program's icon.
QString seen(QWidget *window)
{
    if (window == nullptr || !QTest::qWaitForWindowExposed(window)) {
        return QStringLiteral("nothing");
    }
    // The program's begins with its smallest size. A desktop gives windows without one an icon of its own.
    const bool icon = property(window, "_NET_WM_ICON").startsWith(QStringLiteral("Icon (16 x 16)"));
    return property(window, "_NET_WM_NAME") + QLatin1Char(' ') + property(window, "WM_CLASS") +
           (icon ? QStringLiteral(" icon") : QString());
}

QString expected(const char *title)
{
    return QStringLiteral("\"%1\" \"quintra\", \"Quintra\" icon").arg(QString::fromUtf8(title));
}

void trigger(QWidget *window, const char *actionName)
{
    window->findChild<QAction *>(QString::fromLatin1(actionName))->trigger();
}

template<class Window>
QString seenAfter(MainWindow *window, const char *actionName)
{
    trigger(window, actionName);
    return seen(shown<Window>());
}

// The same of a window that is closed again.
template<class Window>
QString seenFor(MainWindow *window, const char *actionName)
{
    const QString found = seenAfter<Window>(window, actionName);
    shown<Window>()->close();
    return found;
}
} // namespace

// The desktop shows the described titles and nothing more, and knows whose windows these are.
class tst_DesktopIdentity final : public QObject
{
    Q_OBJECT

private slots:
    void theApplicationHasItsNames();
    void windowsOfTheFirstStart();
    void windowsOfLaterStarts();
    void windowsOfTheEvening();
    void boxes();
};

void tst_DesktopIdentity::theApplicationHasItsNames()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    QStringList names;
    run([&]() {
        names = QStringList{QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                            QGuiApplication::desktopFileName()};
        leave(shown<MainWindow>());
    });
    QCOMPARE(names, QStringList({QStringLiteral("Quintra"), QStringLiteral("0.704"), QStringLiteral("quintra")}));
}

void tst_DesktopIdentity::windowsOfTheFirstStart()
{
    const ScratchFolder folder;
    QStringList titles;
    run([&]() {
        titles.append(seen(shown<FormatSelection>()));
        pressOk(shown<FormatSelection>());
        whenShown<MainWindow>([&](MainWindow *window) {
            titles.append(seen(window));
            leave(window);
        });
    });
    QCOMPARE(titles, QStringList({expected("Quintra v0.704"), expected("Quintra v0.704")}));
}

void tst_DesktopIdentity::windowsOfLaterStarts()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("manual/manual_en.html"), "<h1>Quintra</h1>");
    Config(nullptr).resetDefaults();
    QStringList titles;
    run([&]() {
        auto *window = shown<MainWindow>();
        titles.append(seenFor<MsgArea>(window, "actionInformazioni"));
        titles.append(seenFor<Options>(window, "actionOpzioni"));
        titles.append(seenFor<Manuale>(window, "actionManuale"));
        titles.append(seenFor<PagePreview>(window, "actionAnteprima"));
        window->findChild<QCheckBox *>(QStringLiteral("MappaManuale"))->setChecked(true);
        titles.append(seenAfter<EditPersonale>(window, "actionCrea"));
        leave(window);
    });
    QCOMPARE(titles, QStringList({expected("Quintra - Informazioni"), expected("Quintra - Opzioni"),
                                  expected("Quintra - Manuale"), expected("Quintra - Anteprima di stampa"),
                                  expected("Quintra v0.704 - MAPPATURA MANUALE")}));
}

void tst_DesktopIdentity::windowsOfTheEvening()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    QStringList titles;
    run([&]() {
        auto *window = shown<MainWindow>();
        titles.append(seenAfter<Serata>(window, "actionSerata"));
        whenShown<NuovaPartita>([&](NuovaPartita *dialog) {
            titles.append(seen(dialog));
            dialog->reject();
        });
        trigger(shown<Serata>(), "actionNuovaPartita");
        shown<Serata>()->close();
        leave(window);
    });
    QCOMPARE(titles, QStringList({expected("Quintra - Serata"), expected("Quintra - Nuova partita")}));
}

void tst_DesktopIdentity::boxes()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    QStringList titles;
    const auto look = [&](QMessageBox *box) { titles.append(seen(box)); };
    run([&]() {
        WholeProgram::boxes->expectBox(QStringLiteral("Quintra"), QStringLiteral("Sei sicuro di voler uscire?"),
                                       QMessageBox::Yes, look);
        shown<MainWindow>()->close();
    });
    QCOMPARE(titles, QStringList(expected("Quintra")));
    // A box without a parent or a title.
    run([&]() {
        WholeProgram::boxes->expectBox(QString(), QStringLiteral("text"), QMessageBox::Ok, look);
        QMessageBox(QMessageBox::Information, QString(), QStringLiteral("text"), QMessageBox::Ok).exec();
        leave(shown<MainWindow>());
    });
    QCOMPARE(titles, QStringList({expected("Quintra"), expected("Quintra")}));
}

QTEST_APPLESS_MAIN(tst_DesktopIdentity)
#include "tst_DesktopIdentity.moc"
