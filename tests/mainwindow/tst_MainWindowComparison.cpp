// SPDX-License-Identifier: MIT
#include "PageWindow.h"

#include "msgarea/MsgArea.h"

#include <QAction>
#include <QTextEdit>

namespace {
const QString windowTitle = QStringLiteral("Quintra - Cartella classica");

void makeNumber(Cella &cell, quint32 number)
{
    cell.tipo = CELL_NUMERO;
    cell.numero = number;
}
} // namespace

class tst_MainWindowComparison final : public QObject
{
    Q_OBJECT

private slots:
    void equalBlocksNeedAGeneratedSet();
    void noEqualBlocks();
    void aSetOfOnePageHasNoEqualBlocks();
    void equalBlocksAreCounted();
    void equalBlocksAreListed();
    void aLongListEndsWithTheRest();
    void theCommandIsDisabledDuringTheCheck();
};

void tst_MainWindowComparison::equalBlocksNeedAGeneratedSet()
{
    PageWindow w;
    w.boxes.expectBox(windowTitle,
                      QStringLiteral("Verifica blocchi uguali:\nPagine cartella non ancora generate.\nImpossibile "
                                     "procedere alla verifica!"),
                      QMessageBox::Ok, QMessageBox::Warning);
    w.find<QAction>("actionConfronta_blocchi")->trigger();
}

void tst_MainWindowComparison::noEqualBlocks()
{
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    makeNumber(w.cell(0, 0, 0), 1);
    makeNumber(w.cell(1, 0, 0), 2);
    w.boxes.expectBox(windowTitle,
                      QStringLiteral("Non vi sono blocchi uguali!\n\nBlocchi verificati: 2\nConfronti tra blocchi: "
                                     "1\nCelle verificate: 4\nBlocchi uguali: 0 (0.00%)"),
                      QMessageBox::Ok, QMessageBox::Information);
    const StatusLog log(w);
    w.find<QAction>("actionConfronta_blocchi")->trigger();
    QCOMPARE(log.messages(),
             QStringList({QStringLiteral("Confronto pagina 1 di 2"), QStringLiteral("Confronto pagina 2 di 2")}));
    QVERIFY(w.find<QAction>("actionConfronta_blocchi")->isEnabled());
}

void tst_MainWindowComparison::aSetOfOnePageHasNoEqualBlocks()
{
    PageWindow w;
    w.showPages({{6, 3, 9}});
    w.boxes.expectBox(windowTitle,
                      QStringLiteral("Non vi sono blocchi uguali!\n\nLa cartella e' vuota od ha solo una pagina.\nI "
                                     "blocchi di una pagina sono sempre diversi."),
                      QMessageBox::Ok, QMessageBox::Information);
    w.find<QAction>("actionConfronta_blocchi")->trigger();
}

void tst_MainWindowComparison::equalBlocksAreCounted()
{
    PageWindow w;
    w.showPages(3, {1, 1, 2});
    w.boxes.expectBox(windowTitle,
                      QStringLiteral("Vi sono 3 blocchi uguali!\n\nBlocchi verificati: 3\nConfronti tra blocchi: "
                                     "3\nCelle verificate: 6\nBlocchi uguali: 3 (100.00%)\n\nVuoi visualizzarli?"),
                      QMessageBox::No, [](QMessageBox *box) {
                          QCOMPARE(box->icon(), QMessageBox::Warning);
                          QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
                      });
    w.find<QAction>("actionConfronta_blocchi")->trigger();
    QVERIFY(w.window->findChild<MsgArea *>() == nullptr);
    QVERIFY(w.find<QAction>("actionConfronta_blocchi")->isEnabled());
}

void tst_MainWindowComparison::equalBlocksAreListed()
{
    PageWindow w;
    w.showPages(2, {2, 1, 1});
    makeNumber(w.cell(0, 0, 0), 1);
    makeNumber(w.cell(1, 0, 0), 1);
    makeNumber(w.cell(0, 1, 0), 2);
    makeNumber(w.cell(1, 1, 0), 2);
    w.boxes.expectBox(windowTitle,
                      QStringLiteral("Vi sono 2 blocchi uguali!\n\nBlocchi verificati: 4\nConfronti tra blocchi: "
                                     "4\nCelle verificate: 4\nBlocchi uguali: 2 (50.00%)\n\nVuoi visualizzarli?"),
                      QMessageBox::Yes, QMessageBox::Warning);
    const StatusLog log(w);
    w.find<QAction>("actionConfronta_blocchi")->trigger();
    QCOMPARE(log.messages().size(), 2); // progress is told once

    auto *report = w.window->findChild<MsgArea *>();
    QVERIFY(report != nullptr);
    QVERIFY(report->isVisible());
    QCOMPARE(report->windowModality(), Qt::WindowModal);
    QCOMPARE(report->findChild<QTextEdit *>()->toPlainText(),
             QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 1\nPag 2 blocco 2 = Pag 1 blocco 2"));
    QVERIFY(w.find<QAction>("actionConfronta_blocchi")->isEnabled());
    report->close();
}

void tst_MainWindowComparison::aLongListEndsWithTheRest()
{
    PageWindow w;
    w.showPages(200, {3, 1, 1}); // 9 * 200 * 199 / 2 = 179100 pairs
    w.boxes.expectBox(windowTitle,
                      QStringLiteral("Vi sono 179100 blocchi uguali!\n\nBlocchi verificati: 600\nConfronti tra "
                                     "blocchi: 179100\nCelle verificate: 600\nBlocchi uguali: 179100 "
                                     "(29850.00%)\n\nVuoi visualizzarli?"),
                      QMessageBox::Yes, QMessageBox::Warning);
    w.find<QAction>("actionConfronta_blocchi")->trigger();
    const QStringList lines =
        w.window->findChild<MsgArea *>()->findChild<QTextEdit *>()->toPlainText().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 100001);
    QCOMPARE(lines.first(), QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 1"));
    QCOMPARE(lines.last(), QStringLiteral("... e altre coppie di blocchi uguali: 79100."));
}

void tst_MainWindowComparison::theCommandIsDisabledDuringTheCheck()
{
    PageWindow w;
    w.showPages(2, {1, 1, 1});
    auto *command = w.find<QAction>("actionConfronta_blocchi");
    int enabled = 0;
    connect(w.set(), &Cartella::checkForEqualBlocksStatus, this, [&]() { enabled += command->isEnabled() ? 1 : 0; });
    w.boxes.expectBox(windowTitle,
                      QStringLiteral("Vi sono 1 blocchi uguali!\n\nBlocchi verificati: 2\nConfronti tra blocchi: "
                                     "1\nCelle verificate: 2\nBlocchi uguali: 1 (50.00%)\n\nVuoi visualizzarli?"),
                      QMessageBox::No, [&](QMessageBox *) { enabled += command->isEnabled() ? 1 : 0; });
    command->trigger();
    QCOMPARE(enabled, 0);
    QVERIFY(command->isEnabled());
}

QTEST_MAIN(tst_MainWindowComparison)
#include "tst_MainWindowComparison.moc"
