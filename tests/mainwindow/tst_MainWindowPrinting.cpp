// SPDX-License-Identifier: MIT
#include "mainwindow/PageWindow.h"
#include "msgarea/MsgArea.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QTextEdit>

namespace {
const QString boxTitle = QStringLiteral("Quintra - Cartella classica");
const QString saveCaption = QStringLiteral("Salva le cartelle su file");

QString shownText(const MsgArea &window)
{
    return window.findChild<QTextEdit *>()->toPlainText();
}
} // namespace

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_MainWindowPrinting final : public QObject
{
    Q_OBJECT

private slots:
    void thePaperFormatIsWrittenIntoTheCardSet();
    void aNewCardSetKeepsTheChosenPaperFormat();
    void printingNeedsPages();
    void printingNeedsPagesAlsoWhenAllWereDeleted();
    void printingAsksForAFileInTheSaveFolder();
    void printingIntoAMissingFolderIsCancelled();
    void aPrintedSetIsReported();
    void theSuffixIsAppendedToANameWithoutOne_data();
    void theSuffixIsAppendedToANameWithoutOne();
    void aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted_data();
    void aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted();
    void aTypedSuffixIsNotAskedForAgain();
    void anUnknownSuffixIsAnError();
    void aFileThatCannotBeWrittenIsAnError();
    void printingShowsTheWaitCursor();
    void aFailedPrintIsTheLastThingTheStatusBarSays();
    void blocksSpacedOffTheSheetAreWarnedOfAndPrinted();
    void leavingSaysHowManyPagesWereNotPrinted();
    void aNewSetAsksWithTheSameLineAndNoAsDefault();
    void aPrintedSetIsUnprintedAfterEveryChange();
};

void tst_MainWindowPrinting::thePaperFormatIsWrittenIntoTheCardSet()
{
    const PageWindow page;
    page.find<QComboBox>("pagina_formato")->setCurrentIndex(8);
    QCOMPARE(page.set()->formato, 8);
    page.find<QComboBox>("pagina_formato")->setCurrentIndex(0);
    QCOMPARE(page.set()->formato, 0);
}

void tst_MainWindowPrinting::aNewCardSetKeepsTheChosenPaperFormat()
{
    const PageWindow page;
    page.find<QComboBox>("pagina_formato")->setCurrentIndex(8);
    page.press("butt_aggiungi_pagine");
    QCOMPARE(page.set()->getNumPages(), 1);
    QCOMPARE(page.set()->formato, 8);
}

void tst_MainWindowPrinting::printingNeedsPages()
{
    PageWindow page;
    page.boxes.expectBox(boxTitle, QStringLiteral("La cartella non contiene pagine!"), QMessageBox::Ok,
                         QMessageBox::Warning);
    page.press("butt_stampa");
    QCOMPARE(page.status(), QStringLiteral("Aggiungere pagine alla cartella prima di proseguire."));
}

void tst_MainWindowPrinting::printingNeedsPagesAlsoWhenAllWereDeleted()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    page.press("pagina_elimina");
    QCOMPARE(page.set()->getNumPages(), 0);
    page.boxes.expectBox(boxTitle, QStringLiteral("La cartella non contiene pagine!"), QMessageBox::Ok,
                         QMessageBox::Warning);
    page.press("butt_stampa");
    QCOMPARE(page.status(), QStringLiteral("Aggiungere pagine alla cartella prima di proseguire."));
}

void tst_MainWindowPrinting::printingAsksForAFileInTheSaveFolder()
{
    PageWindow page;
    QVERIFY(QDir().mkdir(QStringLiteral("stampe")));
    const QString folder = QDir::current().filePath(QStringLiteral("stampe"));
    globalConfig->defaultSaveDir = folder;
    page.press("butt_aggiungi_pagine");
    page.boxes.expectFileDialog(saveCaption, QString(), [&](QWidget *dialog) {
        const auto *chooser = qobject_cast<QFileDialog *>(dialog);
        QCOMPARE(chooser->acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(chooser->directory().absolutePath(), folder);
        QCOMPARE(chooser->nameFilters().value(0), QStringLiteral("PDF (*.pdf)"));
    });
    page.press("butt_stampa");
    QCOMPARE(page.status(), QStringLiteral("Creazione file annullata!"));
    QCOMPARE(globalConfig->defaultSaveDir, folder);
}

void tst_MainWindowPrinting::printingIntoAMissingFolderIsCancelled()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const QString before = globalConfig->defaultSaveDir;
    const QString missing = QDir::current().filePath(QStringLiteral("manca"));
    QVERIFY(QDir().mkdir(missing));
    page.boxes.expectFileDialog(saveCaption, missing + QStringLiteral("/cartelle.pdf"), [&](QWidget *dialog) {
        // The folder goes while the dialog is open.
        qobject_cast<QFileDialog *>(dialog)->setDirectory(missing);
        QVERIFY(QDir().rmdir(missing));
    });
    page.press("butt_stampa");
    QCOMPARE(page.status(), QStringLiteral("Creazione file annullata!"));
    QCOMPARE(globalConfig->defaultSaveDir, before);
    QVERIFY(page.window->findChild<MsgArea *>() == nullptr);
}

void tst_MainWindowPrinting::aPrintedSetIsReported()
{
    PageWindow page;
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(3);
    page.press("butt_aggiungi_pagine");
    QVERIFY(QDir().mkdir(QStringLiteral("stampe")));
    const QString folder = QDir::current().filePath(QStringLiteral("stampe"));
    const QString file = folder + QStringLiteral("/cartelle.pdf");
    page.boxes.expectFileDialog(saveCaption, file);
    const StatusLog log(page);
    page.press("butt_stampa");

    QVERIFY(QFileInfo(file).size() > 0);
    QCOMPARE(globalConfig->defaultSaveDir, folder);
    QCOMPARE(log.messages(), QStringList({QStringLiteral("PDF: Stampa pagina 1 di 3 (0%) in corso..."),
                                          QStringLiteral("PDF: Stampa pagina 2 di 3 (33%) in corso..."),
                                          QStringLiteral("PDF: Stampa pagina 3 di 3 (66%) in corso..."),
                                          QStringLiteral("Stampa PDF completata!")}));
    const auto *report = page.window->findChild<MsgArea *>();
    QVERIFY(report != nullptr);
    QVERIFY(report->isVisible());
    QCOMPARE(report->windowModality(), Qt::WindowModal);
    QVERIFY(report->findChild<QTextEdit *>()->isReadOnly());
    QVERIFY2(shownText(*report).startsWith(QStringLiteral("File creato con successo!\n\nNome: cartelle\nPercorso: ") +
                                           folder + QStringLiteral("\n\nPagine: 3\n")),
             qPrintable(shownText(*report)));
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
}

void tst_MainWindowPrinting::theSuffixIsAppendedToANameWithoutOne_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("written");
    QTest::newRow("bare name") << QStringLiteral("cartelle") << QStringLiteral("cartelle.pdf");
    QTest::newRow("suffix given") << QStringLiteral("cartelle.PDF") << QStringLiteral("cartelle.PDF");
    QTest::newRow("folder with a dot") << QStringLiteral("v1.0/cartelle") << QStringLiteral("v1.0/cartelle.pdf");
}

void tst_MainWindowPrinting::theSuffixIsAppendedToANameWithoutOne()
{
    QFETCH(QString, chosen);
    QFETCH(QString, written);
    PageWindow page;
    QVERIFY(QDir().mkdir(QStringLiteral("v1.0")));
    page.press("butt_aggiungi_pagine");
    page.boxes.expectFileDialog(saveCaption, QDir::current().filePath(chosen));
    page.press("butt_stampa");
    QVERIFY(QFileInfo(written).size() > 0);
}

void tst_MainWindowPrinting::aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("yes") << QMessageBox::Yes;
    QTest::newRow("no") << QMessageBox::No;
    QTest::newRow("closed") << QMessageBox::Escape;
}

void tst_MainWindowPrinting::aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted()
{
    QFETCH(QMessageBox::StandardButton, answer);
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const QByteArray handedOut = "cards handed out";
    const QDir folder(QDir::current().filePath(QStringLiteral("prints")));
    QVERIFY(QDir().mkdir(folder.path()));
    QFile file(folder.filePath(QStringLiteral("prova.pdf")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(handedOut) > 0);
    file.close();
    const QString before = page.config.defaultSaveDir;
    page.boxes.expectFileDialog(saveCaption, folder.filePath(QStringLiteral("prova")));
    page.boxes.expectBox(boxTitle, QStringLiteral("Il file esiste già:\nprova.pdf\n\nSostituirlo?"), answer,
                         [&](const QMessageBox *box) {
                             QCOMPARE(box->icon(), QMessageBox::Question);
                             QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
                             QVERIFY(box->defaultButton() == box->button(QMessageBox::No));
                             QCOMPARE(page.config.defaultSaveDir, before);
                         });
    page.press("butt_stampa");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const bool wanted = answer == QMessageBox::Yes;
    QCOMPARE(file.readAll() != handedOut, wanted);
    QCOMPARE(page.window->findChild<MsgArea *>() != nullptr, wanted);
    QCOMPARE(QDir(page.config.defaultSaveDir), wanted ? folder : QDir(before));
    QCOMPARE(page.status() == QStringLiteral("Creazione file annullata!"), !wanted);
}

// The dialog itself has asked for this name.
void tst_MainWindowPrinting::aTypedSuffixIsNotAskedForAgain()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const QString file = QDir::current().filePath(QStringLiteral("prova.pdf"));
    QVERIFY(QFile::copy(QStringLiteral("default.png"), file));
    const qint64 before = QFileInfo(file).size();
    page.boxes.expectFileDialog(saveCaption, file);
    page.boxes.expectBox(saveCaption, QStringLiteral("prova.pdf already exists.\nDo you want to replace it?"),
                         QMessageBox::Yes);
    page.press("butt_stampa");
    QVERIFY(QFileInfo(file).size() > before);
}

void tst_MainWindowPrinting::anUnknownSuffixIsAnError()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const QString file = QDir::current().filePath(QStringLiteral("cartelle.txt"));
    page.boxes.expectFileDialog(saveCaption, file);
    page.boxes.expectBox(boxTitle, QStringLiteral("Errore nella creazione del file:\n") + file, QMessageBox::Ok,
                         [&](const QMessageBox *box) {
                             QCOMPARE(box->icon(), QMessageBox::Warning);
                             QCOMPARE(box->informativeText(), QStringLiteral("Formato file sconosciuto!"));
                             QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
                         });
    page.press("butt_stampa");
    QVERIFY(!QFileInfo::exists(file));
    QVERIFY(page.window->findChild<MsgArea *>() == nullptr);
}

void tst_MainWindowPrinting::aFileThatCannotBeWrittenIsAnError()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    // A dangling link into a missing folder: its own folder exists, and not even root can write it.
    const QString file = QDir::current().filePath(QStringLiteral("cartelle.pdf"));
    QVERIFY(QFile::link(QStringLiteral("/nonexistent/cartelle.pdf"), file));
    page.boxes.expectFileDialog(saveCaption, file);
    page.boxes.expectBox(boxTitle, QStringLiteral("Errore nella creazione del file:\n") + file, QMessageBox::Ok,
                         [&](const QMessageBox *box) {
                             QCOMPARE(box->icon(), QMessageBox::Warning);
                             QCOMPARE(box->informativeText(), QStringLiteral("Impossibile scrivere sul file!"));
                             QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
                         });
    page.press("butt_stampa");
    QVERIFY(page.window->findChild<MsgArea *>() == nullptr);
}

void tst_MainWindowPrinting::printingShowsTheWaitCursor()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    page.boxes.expectFileDialog(saveCaption, QDir::current().filePath(QStringLiteral("cartelle.pdf")));
    QList<Qt::CursorShape> cursors;
    connect(page.window->statusBar(), &QStatusBar::messageChanged,
            [&]() { cursors.append(page.window->cursor().shape()); });
    page.press("butt_stampa");
    QCOMPARE(cursors, QList<Qt::CursorShape>({Qt::WaitCursor, Qt::WaitCursor}));
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
}

void tst_MainWindowPrinting::aFailedPrintIsTheLastThingTheStatusBarSays()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    const QString file = QDir::current().filePath(QStringLiteral("cartelle.pdf"));
    QVERIFY(QDir().mkdir(file));
    page.boxes.expectFileDialog(saveCaption, file + QStringLiteral("/x.txt"));
    page.boxes.expectBox(boxTitle,
                         QStringLiteral("Errore nella creazione del file:\n%1").arg(file + QStringLiteral("/x.txt")),
                         QMessageBox::Ok);
    page.press("butt_stampa");
    QCOMPARE(page.status(), QStringLiteral("Stampa non riuscita!"));
}

void tst_MainWindowPrinting::blocksSpacedOffTheSheetAreWarnedOfAndPrinted()
{
    PageWindow page;
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(3);
    page.press("butt_aggiungi_pagine");
    page.pageNumber()->setValue(2);
    page.find<QSpinBox>("spazio_blocchi_spin")->setValue(60);
    page.press("pagina_applica");
    QCOMPARE(page.status(), QStringLiteral("Modifica applicata."));
    const QString file = QDir::current().filePath(QStringLiteral("cartelle.pdf"));
    page.boxes.expectFileDialog(saveCaption, file);
    page.boxes.expectBox(
        boxTitle,
        QStringLiteral("Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla "
                       "pagina.\nPagine: 2"),
        QMessageBox::Ok, [&file](QMessageBox *box) {
            QCOMPARE(box->standardButtons(), QMessageBox::Ok);
            QVERIFY(!QFile::exists(file));
        });
    page.press("butt_stampa");
    QVERIFY(QFileInfo(file).size() > 0);
    QVERIFY(page.window->findChild<MsgArea *>() != nullptr);
}

void tst_MainWindowPrinting::leavingSaysHowManyPagesWereNotPrinted()
{
    PageWindow page;
    const auto expectQuestion = [&page](const QString &loss) {
        page.boxes.expectBox(QStringLiteral("Quintra"), QStringLiteral("Sei sicuro di voler uscire?"), QMessageBox::No,
                             [loss](QMessageBox *box) {
                                 QCOMPARE(box->informativeText(), loss);
                                 QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
                             });
        page.window->close();
    };
    const QString unprinted = QStringLiteral("Pagine non stampate dopo l'ultima modifica: 2.");
    const QString printed = QStringLiteral("Tutte le pagine sono state stampate dopo l'ultima modifica.");
    expectQuestion(QString());
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(2);
    page.press("butt_aggiungi_pagine");
    expectQuestion(unprinted);
    page.boxes.expectFileDialog(saveCaption, QDir::current().filePath(QStringLiteral("cartelle.pdf")));
    page.press("butt_stampa");
    delete page.window->findChild<MsgArea *>();
    page.pageNumber()->setValue(2);
    expectQuestion(printed);
    page.type(0, 0, QStringLiteral("7"));
    expectQuestion(unprinted);
}

void tst_MainWindowPrinting::aNewSetAsksWithTheSameLineAndNoAsDefault()
{
    PageWindow page;
    page.press("butt_aggiungi_pagine");
    page.boxes.expectBox(boxTitle, QStringLiteral("Sei sicuro di voler cancellare la cartella e crearne una nuova?"),
                         QMessageBox::No, [](QMessageBox *box) {
                             QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
                             QCOMPARE(box->informativeText(),
                                      QStringLiteral("Pagine non stampate dopo l'ultima modifica: 1."));
                         });
    page.window->findChild<QAction *>(QStringLiteral("actionCrea"))->trigger();
}

void tst_MainWindowPrinting::aPrintedSetIsUnprintedAfterEveryChange()
{
    PageWindow page;
    page.showPages(1, {2, 1, 2});
    const auto print = [&page]() {
        QFile::remove(QStringLiteral("cartelle.pdf"));
        page.boxes.expectFileDialog(saveCaption, QDir::current().filePath(QStringLiteral("cartelle.pdf")));
        page.press("butt_stampa");
        delete page.window->findChild<MsgArea *>();
    };
    const auto isUnprinted = [&page]() {
        bool unprinted = false;
        page.boxes.expectBox(QStringLiteral("Quintra"), QStringLiteral("Sei sicuro di voler uscire?"), QMessageBox::No,
                             [&unprinted](QMessageBox *box) {
                                 unprinted = box->informativeText().startsWith(QStringLiteral("Pagine non stampate"));
                             });
        page.window->close();
        return unprinted;
    };
    print();
    QVERIFY(!isUnprinted());
    page.press("colorapaginasfondo");
    page.choose(Qt::yellow);
    QVERIFY(isUnprinted());
    print();
    page.find<QComboBox>("pagina_formato")->setCurrentIndex(3);
    QVERIFY(isUnprinted());
    print();
    page.press("pagina_applica");
    QVERIFY(isUnprinted());
    print();
    page.select(0, 0);
    page.boxes.expectFontDialog(QFont(QStringLiteral("Liberation Sans"), 12));
    page.press("seleziona_font_button");
    QVERIFY(isUnprinted());
}

QTEST_MAIN(tst_MainWindowPrinting)
#include "tst_MainWindowPrinting.moc"
