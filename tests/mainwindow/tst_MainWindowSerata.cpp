// SPDX-License-Identifier: MIT
#include "mainwindow/PagePreview.h"
#include "mainwindow/PageWindow.h"
#include "msgarea/MsgArea.h"
#include "output/CreateOutputFile.h"
#include "output/PageImage.h"
#include "output/PdfTools.h"
#include "personale/EditPersonale.h"
#include "serata/Registro.h"
#include "serata/Serata.h"
#include "support/FileFaults.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QScrollArea>

#include <functional>

class tst_MainWindowSerata final : public QObject
{
    Q_OBJECT

private slots:
    void theCommandsStandTogetherInTheirMenu();
    void blocksAreNumberedOnlyWhenAsked();
    void numbersWithoutRoomAreToldOfAfterTheReport();
    void thePreviewShowsTheNumbers();
    void aSetIsSavedAsARegister();
    void aNameWithoutSuffixGetsOne();
    void withoutPagesNoRegisterIsSaved();
    void aRegisterThatIsCancelledIsNotSaved();
    void aRegisterThatCannotBeWrittenIsToldOf();
    void theEveningOpensOnTheSet();
    void whatHappensToTheSetChangesNothingInTheEvening();
    void theNumbersAreThoseOfAllPages();
    void handDrawnPagesHaveTheirNumbers();
    void theEveningOpensOnceAndAgain();
    void theEveningGoesWithTheWindow();

private:
    // A window with cards of numbers, whose save folder is its own.
    static void generate(PageWindow &page);
    // Prints to cartelle.pdf; `expectMore` tells what comes after the report.
    static void print(
        PageWindow &page, const std::function<void()> &expectMore = []() {});
};

void tst_MainWindowSerata::generate(PageWindow &page)
{
    page.config.defaultSaveDir = QDir::currentPath();
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(3);
    QVERIFY(page.window->generate(false));
}

void tst_MainWindowSerata::print(PageWindow &page, const std::function<void()> &expectMore)
{
    const QString path = QDir::current().filePath(QStringLiteral("cartelle.pdf"));
    QFile::remove(path);
    page.boxes.expectFileDialog(QStringLiteral("Salva le cartelle su file"), path);
    expectMore();
    page.press("butt_stampa");
    QCOMPARE(page.boxes.problems(), QStringList());
    QPointer<MsgArea> report = page.window->findChild<MsgArea *>();
    QVERIFY(!report.isNull());
    report->close();
    QTRY_VERIFY(report.isNull());
}

void tst_MainWindowSerata::theCommandsStandTogetherInTheirMenu()
{
    const PageWindow page;
    const QList<QAction *> actions = page.find<QMenu>("menuStrumenti")->actions();
    const int preview = actions.indexOf(page.find<QAction>("actionAnteprima"));
    QVERIFY(preview > 0);
    QVERIFY(actions.at(preview + 1)->isSeparator());
    QCOMPARE(actions.at(preview + 2)->text(), QStringLiteral("Numera i blocchi in stampa"));
    QCOMPARE(actions.at(preview + 3)->text(), QStringLiteral("Salva registro..."));
    QCOMPARE(actions.at(preview + 4)->text(), QStringLiteral("Serata..."));
}

void tst_MainWindowSerata::blocksAreNumberedOnlyWhenAsked()
{
    PageWindow page;
    generate(page);
    auto *numbering = page.find<QAction>("actionNumeraBlocchi");
    QVERIFY(numbering->isCheckable());
    QVERIFY(!numbering->isChecked());
    for (const bool numbered : {false, true, false}) {
        numbering->setChecked(numbered);
        print(page);
        const QStringList words = PdfTools::words(QStringLiteral("cartelle.pdf"));
        for (const char *number : {"1.1", "2.6", "3.3"}) {
            QCOMPARE(words.contains(QString::fromLatin1(number)), numbered);
        }
    }
}

void tst_MainWindowSerata::numbersWithoutRoomAreToldOfAfterTheReport()
{
    PageWindow page;
    generate(page);
    page.set()->margineSinistro = 0.0;
    print(page); // no number was asked for
    page.find<QAction>("actionNumeraBlocchi")->setChecked(true);
    print(page, [&page]() {
        page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                             QStringLiteral("Numeri di blocco non stampati per mancanza di posto: 18."),
                             QMessageBox::Ok, [&page](QMessageBox *) {
                                 const auto *report = page.window->findChild<MsgArea *>();
                                 QVERIFY(report != nullptr && report->isVisible());
                             });
    });
}

void tst_MainWindowSerata::thePreviewShowsTheNumbers()
{
    PageWindow page;
    generate(page);
    page.find<QAction>("actionAnteprima")->trigger();
    const auto *preview = page.window->findChild<PagePreview *>();
    auto *sheet = preview->findChild<QScrollArea *>(QStringLiteral("foglio_scrollArea"))->widget();
    const auto seen = [sheet]() { return sheet->grab().toImage().convertToFormat(QImage::Format_RGB32); };
    const auto printed = [&page, &seen](bool numbered) {
        return pageImage(*page.set(), 0, seen().size(), printingResolution(), numbered);
    };
    QVERIFY(printed(true) != printed(false));
    QCOMPARE(seen(), printed(false));
    page.find<QAction>("actionNumeraBlocchi")->setChecked(true);
    QCOMPARE(seen(), printed(true));
    page.find<QAction>("actionNumeraBlocchi")->setChecked(false);
    QCOMPARE(seen(), printed(false));
}

void tst_MainWindowSerata::aSetIsSavedAsARegister()
{
    PageWindow page;
    generate(page);
    const QString path = QDir::current().filePath(QStringLiteral("natale.csv"));
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"), path);
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QCOMPARE(page.status(), QStringLiteral("Registro salvato."));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Registro::Lettura reading = Registro::read(file);
    QVERIFY(reading.saltate.empty());
    QVERIFY(reading.schede == schedeOf(*page.set()));
    QCOMPARE(reading.schede.size(), size_t(18));
}

void tst_MainWindowSerata::aNameWithoutSuffixGetsOne()
{
    PageWindow page;
    generate(page);
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"),
                                QDir::current().filePath(QStringLiteral("natale")));
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QVERIFY(QFile::exists(QStringLiteral("natale.csv")));
}

void tst_MainWindowSerata::withoutPagesNoRegisterIsSaved()
{
    const PageWindow page;
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QCOMPARE(page.status(), QStringLiteral("La cartella è vuota!"));
}

void tst_MainWindowSerata::aRegisterThatIsCancelledIsNotSaved()
{
    PageWindow page;
    generate(page);
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"), QString());
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QCOMPARE(page.status(), QStringLiteral("Creazione file annullata!"));
}

void tst_MainWindowSerata::aRegisterThatCannotBeWrittenIsToldOf()
{
    PageWindow page;
    generate(page);
    const QString path = QDir::current().filePath(QStringLiteral("natale.csv"));
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"), path);
    page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                         QStringLiteral("Errore nella creazione del file:\n%1").arg(path), QMessageBox::Ok,
                         [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    {
        const FileFaults faults(QDir::currentPath(), FileFaults::Calls::Changes, 1, FileFaults::Effect::LastingError);
        page.find<QAction>("actionSalvaRegistro")->trigger();
    }
    QVERIFY(!QFile::exists(path));
    QCOMPARE(page.boxes.problems(), QStringList());
    QVERIFY(page.status() != QStringLiteral("Registro salvato."));
}

void tst_MainWindowSerata::theEveningOpensOnTheSet()
{
    PageWindow page;
    page.find<QSpinBox>("box_classica_numeromassimo")->setValue(95);
    generate(page);
    page.find<QSpinBox>("box_classica_numeromassimo")->setValue(99); // for the next set
    page.find<QAction>("actionSerata")->trigger();
    const auto *evening = page.window->findChild<Serata *>();
    QVERIFY(evening != nullptr && evening->isVisible());
    QVERIFY(!evening->isModal());
    QCOMPARE(evening->statusBar()->currentMessage(), QStringLiteral("Schede: 18. Numeri da 1 a 95. Chiamati: 0."));
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
}

void tst_MainWindowSerata::whatHappensToTheSetChangesNothingInTheEvening()
{
    PageWindow page;
    generate(page);
    const Cella *cell = std::find_if(begin(page.page(0)->blocchi[0].righe[0]), end(page.page(0)->blocchi[0].righe[0]),
                                     [](const Cella &c) { return c.tipo == CELL_NUMERO; });
    const QString number = QString::number(cell->numero);
    page.find<QAction>("actionSerata")->trigger();
    const auto *evening = page.window->findChild<Serata *>();

    page.press("pagina_elimina");
    page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                         QStringLiteral("Sei sicuro di voler cancellare la cartella e crearne una nuova?"),
                         QMessageBox::Yes);
    page.find<QAction>("actionCrea")->trigger();
    page.press("pagina_elimina");
    QCOMPARE(page.boxes.problems(), QStringList());

    auto *card = evening->findChild<QLineEdit *>(QStringLiteral("scheda_edit"));
    for (const char *position : {"1.1", "3.6"}) {
        card->setText(QString::fromLatin1(position));
        QTest::keyClick(card, Qt::Key_Return);
        QCOMPARE(evening->findChild<QLabel *>(QStringLiteral("esito_label"))->text(),
                 QStringLiteral("Scheda %1").arg(QString::fromLatin1(position)));
    }
    card->setText(QStringLiteral("1.1"));
    QTest::keyClick(card, Qt::Key_Return);
    const auto *table = evening->findChild<QTableWidget *>(QStringLiteral("scheda_table"));
    QVERIFY(!table->findItems(number, Qt::MatchExactly).isEmpty());
}

void tst_MainWindowSerata::theNumbersAreThoseOfAllPages()
{
    PageWindow page;
    const auto range = [&page](int lowest, int highest) {
        page.find<QSpinBox>("box_classica_numeromassimo")->setValue(highest);
        page.find<QSpinBox>("box_classica_numerominimo")->setValue(lowest);
    };
    const auto opened = [&page]() {
        page.find<QAction>("actionSerata")->trigger();
        QPointer<Serata> evening = page.window->findChild<Serata *>();
        const QString status = evening->statusBar()->currentMessage();
        evening->close();
        return QTest::qWaitFor([&evening]() { return evening.isNull(); }) ? status : QStringLiteral("still there");
    };
    range(1, 75);
    QCOMPARE(opened(), QStringLiteral("Schede: 0. Numeri da 1 a 75. Chiamati: 0.")); // no set yet
    range(5, 95);
    generate(page);
    range(2, 92);
    QVERIFY(page.window->generate(true));
    range(1, 99);
    QCOMPARE(opened(), QStringLiteral("Schede: 36. Numeri da 2 a 95. Chiamati: 0."));
    QVERIFY(page.window->generate(false)); // the others are gone
    QCOMPARE(opened(), QStringLiteral("Schede: 18. Numeri da 1 a 99. Chiamati: 0."));
}

void tst_MainWindowSerata::handDrawnPagesHaveTheirNumbers()
{
    PageWindow page;
    page.config.defaultSaveDir = QDir::currentPath();
    page.find<QSpinBox>("box_classica_numeromassimo")->setValue(95);
    page.check("MappaManuale");
    QVERIFY(page.window->generate(true));
    QPointer<EditPersonale> editor = page.window->findChild<EditPersonale *>();
    const QString title = QStringLiteral("Quintra - Mappatura manuale");
    page.boxes.expectBox(title, QStringLiteral("Pagine create e aggiunte alla cartella principale!"), QMessageBox::Ok);
    editor->on_creapagineButton_clicked();
    page.boxes.expectBox(title, QStringLiteral("Sei sicuro di voler chiudere?"), QMessageBox::Yes);
    editor->close();
    QTRY_VERIFY(editor.isNull());
    page.find<QSpinBox>("box_classica_numeromassimo")->setValue(99);
    page.find<QAction>("actionSerata")->trigger();
    QCOMPARE(page.window->findChild<Serata *>()->statusBar()->currentMessage(),
             QStringLiteral("Schede: 1. Numeri da 1 a 95. Chiamati: 0."));
}

void tst_MainWindowSerata::theEveningOpensOnceAndAgain()
{
    PageWindow page;
    generate(page);
    page.find<QAction>("actionSerata")->trigger();
    page.find<QAction>("actionSerata")->trigger();
    QCOMPARE(page.window->findChildren<Serata *>().size(), 1);
    QPointer<Serata> evening = page.window->findChild<Serata *>();
    auto *number = evening->findChild<QLineEdit *>(QStringLiteral("numero_edit"));
    QTest::keyClicks(number, QStringLiteral("34"));
    QTest::keyClick(number, Qt::Key_Return);
    evening->close();
    QTRY_VERIFY(evening.isNull());
    page.find<QAction>("actionSerata")->trigger();
    evening = page.window->findChild<Serata *>();
    QCOMPARE(evening->findChild<QLabel *>(QStringLiteral("ultimo_label"))->text(), QStringLiteral("34"));
}

void tst_MainWindowSerata::theEveningGoesWithTheWindow()
{
    QPointer<Serata> evening;
    {
        PageWindow page;
        generate(page);
        page.find<QAction>("actionSerata")->trigger();
        evening = page.window->findChild<Serata *>();
        QVERIFY(!evening.isNull());
    }
    QVERIFY(evening.isNull());
}

QTEST_MAIN(tst_MainWindowSerata)
#include "tst_MainWindowSerata.moc"
