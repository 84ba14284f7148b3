// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/Startup.h"
#include "mainwindow/WholeProgram.h"
#include "msgarea/MsgArea.h"
#include "settings/Config.h"
#include "settings/FormatSelection.h"
#include "settings/Options.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

using namespace WholeProgram;

namespace {
QAction *action(const QWidget *window, const char *name)
{
    return window->findChild<QAction *>(QString::fromLatin1(name));
}

int numberMaximum(const MainWindow *window)
{
    return window->findChild<QSpinBox *>(QStringLiteral("box_classica_numeromassimo"))->value();
}

// The way of a new user, who has the translations in the folder of the program. Each start that comes to its end is
// appended to the steps.

void copyTranslations()
{
    const QDir translations(QStringLiteral(QUINTRA_LANGUAGE_FOLDER));
    QVERIFY(QDir().mkdir(QStringLiteral("language")));
    for (const QString &file : translations.entryList({QStringLiteral("*.qm")})) {
        QVERIFY(QFile::copy(translations.filePath(file), QStringLiteral("language/") + file));
    }
}

// Chooses a language; the tool tip of the button of the defaults in it.
QString okTipIn(const QString &language, const FormatSelection *dialog)
{
    dialog->findChild<QComboBox *>(QStringLiteral("lang_selection"))->setCurrentText(language);
    return dialog->findChild<QPushButton *>(QStringLiteral("default_settings"))->toolTip();
}

void lowerTheHighestNumber(const FormatSelection *dialog)
{
    QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("default_settings")), Qt::LeftButton);
    auto *editor = dialog->findChild<MsgArea *>();
    auto *text = editor->findChild<QTextEdit *>();
    text->setPlainText(text->toPlainText().replace(QStringLiteral("NMAX=90"), QStringLiteral("NMAX=75")));
    boxes->expectBox(translated("MsgArea", "Salva"), translated("MsgArea", "File salvato con successo."),
                     QMessageBox::Ok);
    action(editor, "actionSalva")->trigger();
    editor->close();
}

// What a user reads who has chosen English.
struct FirstStart
{
    QString okTip;
    QByteArray comments; // with all that is in config.ini
    QString printText;
};

FirstStart startInEnglish(const ScratchFolder &folder, QStringList &steps)
{
    FirstStart seen;
    run([&]() {
        auto *dialog = shown<FormatSelection>();
        const QString italian = okTipIn(QStringLiteral("it_IT"), dialog);
        seen.okTip = okTipIn(QStringLiteral("en_GB"), dialog);
        QCOMPARE(italian, QStringLiteral("Impostazioni di default"));
        seen.comments = folder.read(QStringLiteral("config.ini"));
        lowerTheHighestNumber(dialog);
        pressOk(dialog);
        whenShown<MainWindow>([&](MainWindow *window) {
            seen.printText = window->findChild<QPushButton *>(QStringLiteral("butt_stampa"))->text();
            QCOMPARE(numberMaximum(window), 75);
            steps.append(QStringLiteral("first"));
            leave(window);
        });
    });
    return seen;
}

void resetAndLeave(QStringList &steps)
{
    run([&]() {
        MainWindow *window = shown<MainWindow>();
        QVERIFY(window != nullptr);
        QCOMPARE(numberMaximum(window), 75);
        action(window, "actionOpzioni")->trigger();
        const QString title = QStringLiteral("Quintra - Opzioni");
        boxes->expectBox(title,
                         QStringLiteral("Proseguire con la cancellazionede del file di configurazione e l'uscita dal "
                                        "programma?"),
                         QMessageBox::Yes);
        boxes->expectBox(title, QStringLiteral("File di configurazione eliminato correttamente."), QMessageBox::Ok);
        boxes->expectBox(QStringLiteral("Quintra"), QStringLiteral("Sei sicuro di voler uscire?"), QMessageBox::Yes);
        steps.append(QStringLiteral("second"));
        shown<Options>()->findChild<QPushButton *>(QStringLiteral("butt_azzeraesci"))->click();
    });
}

void startAnew(QStringList &steps)
{
    run([&]() {
        QVERIFY(shown<FormatSelection>() != nullptr);
        steps.append(QStringLiteral("third"));
        shown<FormatSelection>()->close();
        whenShown<MainWindow>([&](MainWindow *window) {
            QCOMPARE(numberMaximum(window), 90);
            leave(window);
        });
    });
}
} // namespace

class tst_Startup final : public QObject
{
    Q_OBJECT

private slots:
    void aFirstStartAsksForTheLanguageFirst();
    void laterStartsShowTheMainWindowAtOnce();
    void theFirstDialogMayBeClosed_data();
    void theFirstDialogMayBeClosed();
    void theMainWindowStaysWhenLeavingIsRefused();
    void closingASecondWindowEndsNothing();
    void theSharedObjectsLiveAsLongAsTheWindows();
    void leavingWithOtherWindowsOpenEndsCleanly();
    void aNewUserFindsTheWayInEnglish();
};

void tst_Startup::aFirstStartAsksForTheLanguageFirst()
{
    const ScratchFolder folder;
    bool mainWindowBefore = true;
    bool dialogAfter = true;
    const int result = run([&]() {
        mainWindowBefore = shown<MainWindow>() != nullptr;
        pressOk(shown<FormatSelection>());
        whenShown<MainWindow>([&](MainWindow *window) {
            dialogAfter = false;
            for (const QWidget *open : QApplication::topLevelWidgets()) {
                dialogAfter = dialogAfter || qobject_cast<const FormatSelection *>(open) != nullptr;
            }
            leave(window);
        });
    });
    QCOMPARE(result, 0);
    QVERIFY(!mainWindowBefore);
    QVERIFY(!dialogAfter);
    QVERIFY(QFileInfo::exists(QStringLiteral("config.ini")));
}

void tst_Startup::laterStartsShowTheMainWindowAtOnce()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    bool dialog = true;
    bool mainWindow = false;
    QString status;
    const int result = run([&]() {
        dialog = shown<FormatSelection>() != nullptr;
        mainWindow = shown<MainWindow>() != nullptr;
        status = shown<MainWindow>()->statusBar()->currentMessage();
        leave(shown<MainWindow>());
    });
    QCOMPARE(result, 0);
    QVERIFY(!dialog);
    QVERIFY(mainWindow);
    QCOMPARE(status, QStringLiteral("Welcome to Quintra 0.704!"));
}

void tst_Startup::theFirstDialogMayBeClosed_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("close button") << false;
    QTest::newRow("Escape") << true;
}

void tst_Startup::theFirstDialogMayBeClosed()
{
    QFETCH(bool, escape);
    const ScratchFolder folder;
    bool stayed = false;
    const int result = run([&]() {
        if (escape) {
            QTest::keyClick(shown<FormatSelection>(), Qt::Key_Escape);
        } else {
            shown<FormatSelection>()->close();
        }
        // The last window was closed for a moment: that must not end the main window's run.
        whenShown<MainWindow>([&](MainWindow *window) {
            QTimer::singleShot(100, [&, window]() {
                stayed = shown<MainWindow>() == window;
                leave(window);
            });
        });
    });
    QCOMPARE(result, 0);
    QVERIFY(stayed);
}

void tst_Startup::theMainWindowStaysWhenLeavingIsRefused()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    bool stayed = false;
    run([&]() {
        MainWindow *window = shown<MainWindow>();
        boxes->expectBox(QStringLiteral("Quintra"), translated("MainWindow", "Sei sicuro di voler uscire?"),
                         QMessageBox::No);
        window->close();
        QTimer::singleShot(50, [&, window]() {
            stayed = shown<MainWindow>() == window;
            leave(window);
        });
    });
    QVERIFY(stayed);
}

void tst_Startup::closingASecondWindowEndsNothing()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    bool stayed = false;
    run([&]() {
        MainWindow *window = shown<MainWindow>();
        action(window, "actionInformazioni")->trigger();
        shown<MsgArea>()->close();
        QTimer::singleShot(50, [&, window]() {
            stayed = shown<MainWindow>() == window;
            leave(window);
        });
    });
    QVERIFY(stayed);
}

void tst_Startup::theSharedObjectsLiveAsLongAsTheWindows()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    QStringList gone;
    const auto record = [&](const QObject *object, const QString &name) {
        QObject::connect(object, &QObject::destroyed, [&gone, name]() { gone.append(name); });
    };
    run([&]() {
        QVERIFY(globalUtils != nullptr);
        QVERIFY(globalConfig != nullptr);
        QCOMPARE(globalConfig->application, static_cast<QCoreApplication *>(qApp));
        QVERIFY(globalEventLoop->isRunning());
        record(shown<MainWindow>(), QStringLiteral("window"));
        record(globalEventLoop, QStringLiteral("loop"));
        record(qApp, QStringLiteral("application"));
        leave(shown<MainWindow>());
    });
    QCOMPARE(gone, QStringList({QStringLiteral("window"), QStringLiteral("loop"), QStringLiteral("application")}));
    QVERIFY(globalUtils == nullptr);
    QVERIFY(globalConfig == nullptr);
    QVERIFY(globalEventLoop == nullptr);
}

void tst_Startup::leavingWithOtherWindowsOpenEndsCleanly()
{
    const ScratchFolder folder;
    Config(nullptr).resetDefaults();
    QPointer<Options> options;
    QPointer<MsgArea> about;
    const int result = run([&]() {
        MainWindow *window = shown<MainWindow>();
        action(window, "actionOpzioni")->trigger();
        options = shown<Options>();
        action(window, "actionInformazioni")->trigger();
        about = shown<MsgArea>();
        leave(window);
    });
    QCOMPARE(result, 0);
    QVERIFY(options.isNull());
    QVERIFY(about.isNull());
}

// From an empty folder: choose a language, change a value, look at the main window, reset, and start anew.
void tst_Startup::aNewUserFindsTheWayInEnglish()
{
    const ScratchFolder folder;
    copyTranslations();
    if (QTest::currentTestFailed()) {
        return;
    }
    QStringList steps;

    const FirstStart seen = startInEnglish(folder, steps);
    QVERIFY2(seen.okTip != QStringLiteral("Impostazioni di default"), qPrintable(seen.okTip));
    QVERIFY2(!seen.comments.contains(";Numeri - Massimo\n") && seen.comments.contains("\n;"),
             seen.comments.constData());
    QVERIFY2(seen.printText != QStringLiteral("STAMPA"), qPrintable(seen.printText));

    resetAndLeave(steps);
    QVERIFY(!QFileInfo::exists(QStringLiteral("config.ini")));

    startAnew(steps);
    QCOMPARE(steps, QStringList({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")}));
}

QTEST_APPLESS_MAIN(tst_Startup)
#include "tst_Startup.moc"
