// SPDX-License-Identifier: MIT
// The table of the keys in the manual is that of the program. With QUINTRA_UPDATE_SHORTCUTS in the environment the
// pages are written anew instead, for the target update_shortcuts.
#include "manuale/ShortcutTable.h"

#include "windows/EveryWindow.h"

#include <QAction>
#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QtTest>

namespace {
const QString mainWindow = QStringLiteral("MainWindow");

QString pageOf(const QString &language)
{
    return QStringLiteral(QUINTRA_MANUAL_PAGES "/%1/shortcuts.md").arg(language.left(2));
}

QString contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The main window first.
QStringList windows()
{
    QStringList names = EveryWindow::names();
    names.removeOne(mainWindow);
    names.prepend(mainWindow);
    return names;
}

QStringList tableOf(const QString &language)
{
    QVector<ShortcutRow> rows;
    for (const QString &name : windows()) {
        if (!EveryWindow::isToolkitDialog(name)) {
            EveryWindow::Stage stage;
            stage.speak(language);
            rows << shortcutRows(*EveryWindow::show(name, stage));
        }
    }
    return tableLines(rows);
}
} // namespace

class tst_ShortcutTable final : public QObject
{
    Q_OBJECT

private slots:
    void itIsThatOfTheProgram_data();
    void itIsThatOfTheProgram();
    void commandsButtonsAndKeysOfWindowsAreFound();
    void anOlderTableIsReplaced();
};

void tst_ShortcutTable::itIsThatOfTheProgram_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("Italian") << QStringLiteral("it_IT");
    QTest::newRow("English") << QStringLiteral("en_GB");
}

void tst_ShortcutTable::itIsThatOfTheProgram()
{
    QFETCH(QString, language);
    const QString page = contentOf(pageOf(language));
    const QString current = withTable(page, tableOf(language));
    QVERIFY(current.contains(QLatin1String("`Ctrl+P`")));
    if (qEnvironmentVariableIsSet("QUINTRA_UPDATE_SHORTCUTS")) {
        QFile file(pageOf(language));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(current.toUtf8()) > 0);
        return;
    }
    QVERIFY2(page == current, qPrintable(QStringLiteral("the target update_shortcuts makes it:\n") + current));
}

void tst_ShortcutTable::commandsButtonsAndKeysOfWindowsAreFound()
{
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Quintra - Board"));
    QMenu *menu = window.menuBar()->addMenu(QStringLiteral("&File"));
    menu->addAction(QStringLiteral("&Open..."))->setShortcut(QKeySequence(QStringLiteral("Ctrl+O")));
    menu->addAction(QStringLiteral("Nothing"));
    QAction *grey = menu->addAction(QStringLiteral("Grey"));
    grey->setShortcut(QKeySequence(QStringLiteral("Ctrl+G")));
    grey->setEnabled(false);
    QPushButton button(QStringLiteral("Print"), &window);
    button.setShortcut(QKeySequence(Qt::Key_F9));
    for (const auto key : {Qt::Key_F7, Qt::Key_F8}) {
        (new QShortcut(key, &window))->setWhatsThis(QStringLiteral("Turns the page"));
    }
    QCOMPARE(tableLines(shortcutRows(window)),
             QStringList({QStringLiteral("| Board | **File** > **Open...** | `Ctrl+O` |"),
                          QStringLiteral("| Board | **Print** | `F9` |"),
                          QStringLiteral("| Board | Turns the page | `F7`, `F8` |")}));
}

void tst_ShortcutTable::anOlderTableIsReplaced()
{
    const QStringList lines = {QStringLiteral("| 1 |"), QStringLiteral("| 2 |")};
    QCOMPARE(withTable(QStringLiteral("# A\n\n| h |\n|---|\n| old |\n\ntext\n\n| other |\n|---|\n| x |\n"), lines),
             QStringLiteral("# A\n\n| h |\n|---|\n| 1 |\n| 2 |\n\ntext\n\n| other |\n|---|\n| x |\n"));
    QCOMPARE(withTable(QStringLiteral("# A\n"), lines), QString());
}

QTEST_MAIN(tst_ShortcutTable)
#include "tst_ShortcutTable.moc"
