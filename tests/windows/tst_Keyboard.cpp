// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"
#include "mainwindow/WholeProgram.h"
#include "msgarea/MsgArea.h"
#include "output/PdfTools.h"
#include "personale/EditPersonale.h"
#include "personale/PersonaleChkBox.h"
#include "settings/Config.h"
#include "settings/FormatSelection.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QtTest>

// The whole program worked by keys alone, as the focus takes them.

using namespace WholeProgram;

namespace {
// When a window has gone, a window manager lets another one take the keys. The platform of the tests has none.
bool isActive(QWidget *window)
{
    if (window != nullptr && QApplication::activeWindow() == nullptr) {
        window->activateWindow();
    }
    return window != nullptr && window->isAncestorOf(QApplication::focusWidget());
}

// Continues once a window of this class takes the keys.
template<class Window>
void whenActive(const std::function<void(Window *)> &action)
{
    whenShown<Window>([action](Window *window) {
        if (!QTest::qWaitFor([window]() { return isActive(window); })) {
            qFatal("%s does not take the keys", window->metaObject()->className());
        }
        action(window);
    });
}

// The widget that takes the keys.
QWidget *focused()
{
    const auto someTakesThem = []() {
        QWidget *window = QApplication::activeModalWidget();
        return QApplication::focusWidget() != nullptr || isActive(window != nullptr ? window : shown<MainWindow>());
    };
    if (!QTest::qWaitFor(someTakesThem)) {
        qFatal("nothing takes the keys");
    }
    return QApplication::focusWidget();
}

void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(focused(), Qt::Key(key), modifiers);
}

// Each character goes to the focus: the first one opens the editor of a cell.
void type(const QString &text)
{
    for (const QChar character : text) {
        QTest::keyClick(focused(), character.toLatin1());
    }
}

// To the widget of this name, as often as it takes to come around once.
void tabTo(const char *name)
{
    constexpr int longest = 100;
    const QString wanted = QString::fromLatin1(name);
    for (int i = 0; i < longest; ++i) {
        if (focused()->objectName() == wanted) {
            return;
        }
        press(Qt::Key_Tab);
    }
    qFatal("Tab does not come to %s", name);
}

// Answers the question with Yes, which is never the answer of Return.
void sayYes(QMessageBox *box)
{
    while (focused() != box->button(QMessageBox::Yes)) {
        press(Qt::Key_Tab);
    }
    press(Qt::Key_Space);
}

void chooseFile(const QString &name)
{
    whenActive<QFileDialog>([name](QFileDialog *) {
        type(name);
        press(Qt::Key_Return);
    });
}

PersonaleChkBox *focusedCell()
{
    auto *cell = qobject_cast<PersonaleChkBox *>(focused());
    if (cell == nullptr) {
        qFatal("the focus is on no cell");
    }
    return cell;
}

void leaveProgram()
{
    whenActive<QMessageBox>(sayYes);
    press(Qt::Key_Q, Qt::ControlModifier);
}

void readReport(const std::function<void()> &next)
{
    whenActive<MsgArea>([next](MsgArea *report) {
        press(Qt::Key_Escape);
        QVERIFY(!report->isVisible());
        next();
    });
}

// Ticks two cells of the last row of the grid and makes one a text.
void draw()
{
    tabTo("creapagineButton");
    press(Qt::Key_Tab);
    QCOMPARE(focusedCell()->toolTip(), QStringLiteral("1,1"));
    press(Qt::Key_T);
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    QCOMPARE(focusedCell()->toolTip(), QStringLiteral("2,2"));
    press(Qt::Key_T);
    press(Qt::Key_T);
    press(Qt::Key_Space);
    press(Qt::Key_Tab); // past the other cells, and around
    QVERIFY(qobject_cast<PersonaleChkBox *>(focused()) == nullptr);
}

void createPages(EditPersonale *)
{
    draw();
    whenActive<QMessageBox>([](QMessageBox *told) {
        QCOMPARE(told->text(), QStringLiteral("Pagine create e aggiunte alla cartella principale!"));
        press(Qt::Key_Return);
    });
    tabTo("creapagineButton");
    press(Qt::Key_Space);
    whenActive<QMessageBox>(sayYes);
    press(Qt::Key_Q, Qt::ControlModifier);
}

void print(const QString &file)
{
    readReport([]() { whenActive<MainWindow>([](MainWindow *) { leaveProgram(); }); });
    chooseFile(file);
    tabTo("butt_stampa");
    press(Qt::Key_Space);
}
} // namespace

class tst_Keyboard final : public QObject
{
    Q_OBJECT

private slots:
    void fromTheFirstStartToThePrintedFile();
    void aPageIsDrawnByHandAndPrinted();
};

void tst_Keyboard::fromTheFirstStartToThePrintedFile()
{
    const ScratchFolder folder;
    const QString file = folder.path(QStringLiteral("cards.pdf"));
    QString typed;
    run([&]() {
        boxes.reset(); // nobody answers but the keys
        whenActive<FormatSelection>([](FormatSelection *) {
            tabTo("procedi");
            press(Qt::Key_Space);
        });
        whenActive<MainWindow>([&](MainWindow *window) {
            type(QStringLiteral("3")); // the number of pages has the focus
            tabTo("butt_aggiungi_pagine");
            press(Qt::Key_Space);
            tabTo("tableWidget");
            press(Qt::Key_Right);
            type(QStringLiteral("77"));
            press(Qt::Key_Return); // committed from the event loop
            QVERIFY(QTest::qWaitFor([]() { return focused()->objectName() == QLatin1String("tableWidget"); }));
            typed = window->cardSet()->pagine[0]->blocchi[0].righe[0].celle[1].numero == 77 ? QStringLiteral("77")
                                                                                            : QString();
            print(file);
        });
    });
    QCOMPARE(typed, QStringLiteral("77"));
    QCOMPARE(PdfTools::pageCount(file), 3);
}

void tst_Keyboard::aPageIsDrawnByHandAndPrinted()
{
    const ScratchFolder folder;
    const QString file = folder.path(QStringLiteral("cards.pdf"));
    Config(nullptr).resetDefaults();
    QString drawn;
    run([&]() {
        boxes.reset();
        whenActive<MainWindow>([](MainWindow *) {
            tabTo("MappaManuale");
            press(Qt::Key_Space);
            tabTo("butt_aggiungi_pagine");
            press(Qt::Key_Space);
        });
        whenActive<EditPersonale>([&, file](EditPersonale *editor) {
            auto *window = shown<MainWindow>();
            QObject::connect(editor, &QObject::destroyed, window, [&, window, file]() {
                for (const Cella &cell : window->cardSet()->pagine[0]->blocchi[0].righe[1]) {
                    drawn += QString::number(cell.tipo);
                }
                whenActive<MainWindow>([file](MainWindow *) { print(file); });
            });
            createPages(editor);
        });
    });
    QCOMPARE(drawn, QStringLiteral("313333333"));
    QCOMPARE(PdfTools::pageCount(file), 1);
}

QTEST_APPLESS_MAIN(tst_Keyboard)
#include "tst_Keyboard.moc"
