// SPDX-License-Identifier: MIT
#include "support/BoxScript.h"

#include <QFileDialog>
#include <QFontDialog>
#include <QTest>

class tst_BoxScript final : public QObject
{
    Q_OBJECT

private slots:
    void boxesAreAnsweredInTheirOrder();
    void aTitleBarClosesABox();
    void filesAndFontsAreChosen();
    void aScriptWithoutProblemsPasses();
    void anUnexpectedBoxFailsTheTest();
    void aBoxThatNeverCameFailsTheTest();
    void aBoxUnlikeItsScriptIsAProblem_data();
    void aBoxUnlikeItsScriptIsAProblem();
    void aBoxThatItsTitleBarDoesNotCloseIsAProblem();
    void dialogsOfAnotherKindAreProblems();
};

namespace {
const QString title = QStringLiteral("Title");
const QString text = QStringLiteral("Text?");

QMessageBox::StandardButton ask(const QString &question = text)
{
    return QMessageBox::question(nullptr, title, question);
}

// The script is not to fail the test that is about its failing.
void expectFailureOfScript()
{
    QEXPECT_FAIL("", "the script fails the test", Continue);
}
} // namespace

void tst_BoxScript::boxesAreAnsweredInTheirOrder()
{
    BoxScript boxes;
    boxes.expectBox(title, text, QMessageBox::Yes, QMessageBox::Question);
    boxes.expectBox(title, QStringLiteral("Second?"), QMessageBox::No,
                    [](QMessageBox *box) { QVERIFY(box->isModal()); });
    QCOMPARE(ask(), QMessageBox::Yes);
    QCOMPARE(boxes.answered(), 1);
    QCOMPARE(ask(QStringLiteral("Second?")), QMessageBox::No);
    QCOMPARE(boxes.answered(), 2);
}

void tst_BoxScript::aTitleBarClosesABox()
{
    BoxScript boxes;
    boxes.expectBox(title, text, QMessageBox::Escape);
    QCOMPARE(QMessageBox::question(nullptr, title, text, QMessageBox::Yes | QMessageBox::Cancel), QMessageBox::Cancel);
}

void tst_BoxScript::filesAndFontsAreChosen()
{
    BoxScript boxes;
    boxes.expectFileDialog(title, QStringLiteral("/tmp/file"));
    boxes.expectFileDialog(title, QString());
    boxes.expectFontDialog(QFont(QStringLiteral("Liberation Serif"), 17));
    boxes.expectFontDialogCancelled();
    QCOMPARE(QFileDialog::getSaveFileName(nullptr, title), QStringLiteral("/tmp/file"));
    QCOMPARE(QFileDialog::getSaveFileName(nullptr, title), QString());
    bool chosen = false;
    QCOMPARE(QFontDialog::getFont(&chosen).pointSize(), 17);
    QVERIFY(chosen);
    QFontDialog::getFont(&chosen);
    QVERIFY(!chosen);
}

void tst_BoxScript::aScriptWithoutProblemsPasses()
{
    const BoxScript boxes;
    QCOMPARE(boxes.problems(), QStringList());
}

void tst_BoxScript::anUnexpectedBoxFailsTheTest()
{
    const BoxScript boxes;
    QCOMPARE(ask(), QMessageBox::NoButton);
    QCOMPARE(boxes.problems(), QStringList(QStringLiteral("unexpected: QMessageBox [Title] Text?")));
    expectFailureOfScript();
}

void tst_BoxScript::aBoxThatNeverCameFailsTheTest()
{
    BoxScript boxes;
    boxes.expectBox(title, text, QMessageBox::Yes);
    QCOMPARE(boxes.problems(), QStringList(QStringLiteral("never came: box [Title] Text?")));
    expectFailureOfScript();
}

void tst_BoxScript::aBoxUnlikeItsScriptIsAProblem_data()
{
    QTest::addColumn<QString>("expectedTitle");
    QTest::addColumn<QString>("expectedText");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("complaint");
    const QString another = QStringLiteral("is not the one expected");
    QTest::newRow("title") << QStringLiteral("title") << text << int(QMessageBox::Yes) << 0 << another;
    QTest::newRow("text") << title << QStringLiteral("Text") << int(QMessageBox::Yes) << 0 << another;
    QTest::newRow("icon") << title << text << int(QMessageBox::Yes) << int(QMessageBox::Critical)
                          << QStringLiteral("has icon 4 instead of 3");
    QTest::newRow("button") << title << text << int(QMessageBox::Ok) << 0 << QStringLiteral("has no button 400");
}

void tst_BoxScript::aBoxUnlikeItsScriptIsAProblem()
{
    QFETCH(QString, expectedTitle);
    QFETCH(QString, expectedText);
    QFETCH(int, answer);
    QFETCH(int, icon);
    QFETCH(QString, complaint);
    BoxScript boxes;
    boxes.expectBox(expectedTitle, expectedText, QMessageBox::StandardButton(answer), QMessageBox::Icon(icon));
    ask();
    const QString wanted = QStringLiteral("QMessageBox [Title] Text? %1: box [%2] %3");
    QCOMPARE(boxes.problems(), QStringList(wanted.arg(complaint, expectedTitle, expectedText)));
    QCOMPARE(boxes.answered(), 0);
    expectFailureOfScript();
}

void tst_BoxScript::aBoxThatItsTitleBarDoesNotCloseIsAProblem()
{
    BoxScript boxes;
    boxes.expectBox(title, text, QMessageBox::Escape);
    QMessageBox::question(nullptr, title, text, QMessageBox::Yes | QMessageBox::YesToAll); // neither leaves it
    QCOMPARE(boxes.problems(), QStringList(QStringLiteral("QMessageBox [Title] Text? cannot be closed by its title "
                                                          "bar: box [Title] Text?")));
    expectFailureOfScript();
}

void tst_BoxScript::dialogsOfAnotherKindAreProblems()
{
    BoxScript boxes;
    boxes.expectFileDialog(QStringLiteral("Open"), QStringLiteral("/tmp/file"));
    boxes.expectFontDialogCancelled();
    QCOMPARE(QFileDialog::getSaveFileName(nullptr, title), QString());
    ask();
    QCOMPARE(boxes.problems(),
             (QStringList{QStringLiteral("QFileDialog [Title]  is not the one expected: file dialog [Open]"),
                          QStringLiteral("QMessageBox [Title] Text? is not the one expected: font dialog")}));
    expectFailureOfScript();
}

QTEST_MAIN(tst_BoxScript)
#include "tst_BoxScript.moc"
