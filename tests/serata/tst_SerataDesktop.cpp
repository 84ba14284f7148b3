// SPDX-License-Identifier: MIT
// What the evening needs of a real screen: its keys are free there, and it fills all of it.
#include "serata/Serata.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>
#include <QtTest>

namespace {
// A window of an evening without cards.
class EmptyEvening final
{
public:
    EmptyEvening()
        : config((folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red), qApp))
    {
        config.defaultSaveDir = folder.path(QString());
    }

    bool open()
    {
        const bool opened = window.openSet(Cartella(), {1, 90});
        window.show();
        return opened && QTest::qWaitForWindowActive(&window);
    }

    ScratchFolder folder;
    CurrentConfig config;
    Serata window;
};
} // namespace

class tst_SerataDesktop final : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyReachesItsCommandFromAField_data();
    void everyKeyReachesItsCommandFromAField();
    void theWholeScreenIsFilled();
    void aBoxIsSeenBeforeTheWindowIs();
};

void tst_SerataDesktop::everyKeyReachesItsCommandFromAField_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"actionChiama", "actionEstrai", "actionControlla", "actionNuovaPartita",
                             "actionApriRegistro", "actionSchermoIntero", "actionChiudi"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_SerataDesktop::everyKeyReachesItsCommandFromAField()
{
    QFETCH(QString, name);
    EmptyEvening evening;
    QVERIFY(evening.open());
    const auto *action = evening.window.findChild<QAction *>(name);
    QVERIFY(action != nullptr && !action->shortcut().isEmpty());
    auto *edit = evening.window.findChild<QLineEdit *>(QStringLiteral("numero_edit"));
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("12"));
    const QSignalSpy triggered(action, &QAction::triggered);
    QTimer::singleShot(0, []() {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            dialog->reject();
        }
    });
    const int key = action->shortcut()[0];
    constexpr int modifiers = int(Qt::KeyboardModifierMask);
    QTest::keyClick(edit, Qt::Key(key & ~modifiers), Qt::KeyboardModifiers(key & modifiers));
    QCOMPARE(triggered.count(), 1);
}

void tst_SerataDesktop::theWholeScreenIsFilled()
{
    EmptyEvening evening;
    QVERIFY(evening.open());
    const QRect before = evening.window.geometry();
    QTest::keyClick(&evening.window, Qt::Key_F11);
    QTRY_COMPARE(evening.window.frameGeometry(), evening.window.screen()->geometry());
    QTest::keyClick(&evening.window, Qt::Key_F11);
    QTRY_COMPARE(evening.window.geometry().size(), before.size());
}

// Behind the main window it could not be answered, and the program would seem to have stopped.
void tst_SerataDesktop::aBoxIsSeenBeforeTheWindowIs()
{
    EmptyEvening evening;
    evening.config.defaultSaveDir = evening.folder.path(QStringLiteral("missing"));
    QWidget before;
    before.resize(900, 600);
    before.show();
    QVERIFY(QTest::qWaitForWindowActive(&before));
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("Quintra - Serata"), QMessageBox::Ok, [&before](QMessageBox *box) {
        QVERIFY(QTest::qWaitForWindowActive(box));
        QCOMPARE(box->windowHandle()->transientParent(), before.windowHandle());
        before.raise();
        QTRY_COMPARE(QApplication::topLevelAt(box->frameGeometry().center()), box);
    });
    boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString());
    Serata::open(&before, Cartella(), 1, 90);
    QCOMPARE(boxes.problems(), QStringList());
}

QTEST_MAIN(tst_SerataDesktop)
#include "tst_SerataDesktop.moc"
