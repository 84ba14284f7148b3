// SPDX-License-Identifier: MIT
#include "EditorMemory.h"
#include "EditorUnderTest.h"
#include "msgarea/MsgArea.h"
#include "settings/WholeFile.h"
#include "support/FileFaults.h"
#include "support/LogCapture.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>

#include <sys/stat.h>

namespace {
// A mapping of 300 pages whose boxes do not fit that room.
void expectOpenOfTooMany(EditorUnderTest &t)
{
    const QString name = QStringLiteral("large.QcF");
    t.folder.write(name, QByteArray("/" + QByteArray(255, 'N') + '\n').repeated(300));
    t.expectOpen(t.folder.path(name));
}

// The text of the window that reports, empty without one.
QString reportText(const EditorUnderTest &t)
{
    const auto windows = t.editor->findChildren<MsgArea *>();
    if (windows.isEmpty()) {
        return QString();
    }
    if (const auto *edit = windows.last()->findChild<QTextEdit *>()) {
        return edit->toPlainText();
    }
    const auto *edit = windows.last()->findChild<QPlainTextEdit *>();
    return edit != nullptr ? edit->toPlainText() : QString();
}

void reportMatches(const EditorUnderTest &t, const QString &name, int pages, const QByteArray &content)
{
    QCOMPARE(reportText(t), QStringLiteral("File creato con successo!\n\nNome: %1\nEstensione: QcF\nPercorso: %2\n\n"
                                           "Pagine: %3\nDimensione: %4 Bytes (0.00 MB)\n")
                                .arg(name, QFileInfo(t.folder.path(name)).absolutePath())
                                .arg(pages)
                                .arg(content.size()));
}

// Collects the messages of the status bar, which must come under the wait cursor.
class BusyMessages final
{
public:
    explicit BusyMessages(const EditorUnderTest &t)
    {
        EditPersonale *editor = t.editor;
        m_connection = QObject::connect(editor->statusBar(), &QStatusBar::messageChanged, editor,
                                        [this, editor](const QString &message) {
                                            QCOMPARE(editor->cursor().shape(), Qt::WaitCursor);
                                            m_messages << message;
                                        });
    }
    ~BusyMessages() { QObject::disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(BusyMessages)
    const QStringList &messages() const { return m_messages; }

private:
    QMetaObject::Connection m_connection;
    QStringList m_messages;
};
} // namespace

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_EditPersonaleFile final : public QObject
{
    Q_OBJECT

private slots:
    void savingWritesEveryPage();
    void savingReportsWithoutWaiting();
    void theSizeIsToldInMegabytesToo();
    void aNameWithPlaceholdersIsReportedAsItIs();
    void everyPageSavedIsTold();
    void theSuffixIsAddedUnlessExact_data();
    void theSuffixIsAddedUnlessExact();
    void theDialogsStartInTheSaveFolderWithTheFilter();
    void theFolderIsRemembered();
    void aFolderThatIsGoneIsNotRemembered();
    void cancellingTheSaveIsTold();
    void aFileThatCannotBeWrittenIsReportedAllTheSame();

    void aFileThatCannotBeOpenedIsOnlyLogged();
    void aLostMappingIsToldBesideTheReport();
    void afterAnyFaultTheOldMappingOrTheNewOneIsWhole_data();
    void afterAnyFaultTheOldMappingOrTheNewOneIsWhole();
    void killedAtAnyCallTheOldMappingOrTheNewOneIsWhole();
    void aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted_data();
    void aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted();

    void openingReplacesThePages();
    void everyLineReadAndPageLoadedIsTold();
    void openingAsksFirst();
    void cancellingTheOpenIsTold();
    void aFileThatCannotBeReadLeavesNoPages();
    void aMappingThatDoesNotFitTheMemoryIsAskedAbout();
    void aMappingThatFindsNoMemoryKeepsWhatWasThere();
    void linesThatFindNoMemoryKeepWhatWasThere();
    void aDiskThatCannotBeReadIsTold_data();
    void aDiskThatCannotBeReadIsTold();
    void aDiskThatCannotBeReadIsToldWithoutThePagesToo();
    void aDeviceIsRefusedBeforeAnythingGoes_data();
    void aDeviceIsRefusedBeforeAnythingGoes();
    void anEditorWithoutPagesSaysWhy_data();
    void anEditorWithoutPagesSaysWhy();
    void pagesAreReadBackAsSaved();
    void theColumnFlagIsLostAndItsCheckBoxKeepsItsState();
    void rightClicksDoNothingOnLoadedPages();
    void ticksOfLoadedPagesAreCounted();
    void theCountIsThatOfPageOne();
    void laterAndLargerPagesAreLoadedSafely();
    void thirtyRowsOfNineComeBackWithoutColumns();
    void skippedLinesAreListed();
    void withoutSkippedLinesThereIsNoList();
    void aFileWithoutLinesLeavesAnEmptyEditor();
    void afterAFileWithoutLinesAnotherOpens();
    void theCopyRangeFollowsThePageCount();
    void loadedPagesAreCreated();
    void pagesThatComeBackCutAreNamed();
};

void tst_EditPersonaleFile::savingWritesEveryPage()
{
    EditorUnderTest t(2, 2, 2);
    t.tick(0, 0, CELL_NUMERO);
    t.tick(0, 1, CELL_VUOTA);
    t.box(1, 0)->setTipo(CELL_TESTO);
    t.box(1, 1)->setTipo(CELL_IMMAGINE);
    t.showPage(2);
    t.tick(1, 1, CELL_IMMAGINE);
    t.expectSave(t.folder.path(QStringLiteral("out.QcF")));
    t.trigger("actionSave");
    QCOMPARE(t.folder.read(QStringLiteral("out.QcF")), QByteArray("\"NOsi\n\"oooI\n"));
    QCOMPARE(t.status(), QStringLiteral("Pagina 2 di 2 salvata"));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(t.drawn(), QStringLiteral("oo oI"));
}

void tst_EditPersonaleFile::savingReportsWithoutWaiting()
{
    EditorUnderTest t(2, 2, 3);
    t.expectSave(t.folder.path(QStringLiteral("my.page.QcF")));
    t.trigger("actionSave");
    const auto *report = t.editor->findChild<MsgArea *>();
    QVERIFY(report != nullptr);
    QVERIFY(report->isVisible());
    QCOMPARE(report->windowModality(), Qt::WindowModal);
    reportMatches(t, QStringLiteral("my.page"), 3, "\"oooo\n\"oooo\n\"oooo\n");
}

void tst_EditPersonaleFile::theSizeIsToldInMegabytesToo()
{
    EditorUnderTest t(15, 17, 60); // 257 bytes a page
    t.expectSave(t.folder.path(QStringLiteral("large.QcF")));
    t.trigger("actionSave");
    QVERIFY(reportText(t).endsWith(QStringLiteral("\n\nPagine: 60\nDimensione: 15420 Bytes (0.01 MB)\n")));
}

void tst_EditPersonaleFile::aNameWithPlaceholdersIsReportedAsItIs()
{
    EditorUnderTest t(1, 1, 1);
    const QString name = QStringLiteral("50%4 of %5 and %6");
    t.expectSave(t.folder.path(name));
    t.trigger("actionSave");
    QVERIFY2(reportText(t).startsWith(QStringLiteral("File creato con successo!\n\nNome: ") + name +
                                      QStringLiteral("\nEstensione: QcF\n")),
             qPrintable(reportText(t)));
    QVERIFY(reportText(t).endsWith(QStringLiteral("\n\nPagine: 1\nDimensione: 3 Bytes (0.00 MB)\n")));
}

void tst_EditPersonaleFile::everyPageSavedIsTold()
{
    EditorUnderTest t(1, 1, 3);
    const BusyMessages log(t);
    t.expectSave(t.folder.path(QStringLiteral("out.QcF")));
    t.trigger("actionSave");
    QCOMPARE(log.messages(),
             (QStringList{QStringLiteral("Pagina 1 di 3 salvata"), QStringLiteral("Pagina 2 di 3 salvata"),
                          QStringLiteral("Pagina 3 di 3 salvata")}));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
}

void tst_EditPersonaleFile::theSuffixIsAddedUnlessExact_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("written");
    QTest::newRow("exact") << QStringLiteral("a.QcF") << QStringLiteral("a.QcF");
    QTest::newRow("lower case") << QStringLiteral("a.qcf") << QStringLiteral("a.qcf.QcF");
    QTest::newRow("other") << QStringLiteral("a.txt") << QStringLiteral("a.txt.QcF");
    QTest::newRow("none") << QStringLiteral("a") << QStringLiteral("a.QcF");
}

void tst_EditPersonaleFile::theSuffixIsAddedUnlessExact()
{
    QFETCH(QString, chosen);
    QFETCH(QString, written);
    EditorUnderTest t(1, 1, 1);
    t.expectSave(t.folder.path(chosen));
    t.trigger("actionSave");
    QCOMPARE(QDir(t.folder.path(QString())).entryList({QStringLiteral("a*")}, QDir::Files), QStringList(written));
    QCOMPARE(t.folder.read(written), QByteArray("!o\n"));
}

void tst_EditPersonaleFile::theDialogsStartInTheSaveFolderWithTheFilter()
{
    EditorUnderTest t(1, 1, 1);
    t.folder.write(QStringLiteral("here/x.QcF"), "!o\n");
    t.config.defaultSaveDir = t.folder.path(QStringLiteral("here"));
    const auto look = [&t](QWidget *dialog) {
        const auto *chooser = qobject_cast<QFileDialog *>(dialog);
        QCOMPARE(chooser->directory(), QDir(t.folder.path(QStringLiteral("here"))));
        QCOMPARE(chooser->nameFilters().value(0), QStringLiteral("QcF (*.QcF)"));
    };
    t.boxes.expectFileDialog(QStringLiteral("Salva le cartelle su file"), QString(), look);
    t.trigger("actionSave");
    t.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
        QMessageBox::Yes);
    t.boxes.expectFileDialog(QStringLiteral("Apre un file di cartelle"), QString(), look);
    t.trigger("actionOpen");
}

void tst_EditPersonaleFile::theFolderIsRemembered()
{
    EditorUnderTest t(1, 1, 1);
    const QByteArray configured = t.folder.read(QStringLiteral("config.ini"));
    t.folder.write(QStringLiteral("one/x.QcF"), "!N\n");
    t.folder.write(QStringLiteral("two/y.QcF"), "!N\n");
    t.expectOpen(t.folder.path(QStringLiteral("one/x.QcF")));
    t.trigger("actionOpen");
    QCOMPARE(QDir(t.config.defaultSaveDir), QDir(t.folder.path(QStringLiteral("one"))));
    t.expectSave(t.folder.path(QStringLiteral("two/z.QcF")));
    t.trigger("actionSave");
    QCOMPARE(QDir(t.config.defaultSaveDir), QDir(t.folder.path(QStringLiteral("two"))));
    QCOMPARE(t.folder.read(QStringLiteral("config.ini")), configured); // only in memory
}

void tst_EditPersonaleFile::aFolderThatIsGoneIsNotRemembered()
{
    EditorUnderTest t(1, 1, 1);
    t.folder.write(QStringLiteral("gone/x.QcF"), "!N\n");
    const QString gone = t.folder.path(QStringLiteral("gone"));
    const auto removeWhenChosen = [gone](QWidget *dialog) {
        connect(qobject_cast<QFileDialog *>(dialog), &QFileDialog::fileSelected,
                [gone]() { QVERIFY(QDir(gone).removeRecursively()); });
    };
    const QString before = t.config.defaultSaveDir;
    LogCapture log; // the file cannot be opened
    t.boxes.expectFileDialog(QStringLiteral("Salva le cartelle su file"), gone + QStringLiteral("/y.QcF"),
                             removeWhenChosen);
    t.trigger("actionSave");
    QVERIFY(!QDir(gone).exists());
    QCOMPARE(t.config.defaultSaveDir, before);
    QVERIFY(reportText(t).startsWith(QStringLiteral("File creato con successo!\n\nNome: y\n")));
}

void tst_EditPersonaleFile::cancellingTheSaveIsTold()
{
    EditorUnderTest t(1, 1, 1);
    const QString before = t.config.defaultSaveDir;
    t.expectSave(QString());
    t.trigger("actionSave");
    QCOMPARE(t.status(), QStringLiteral("Creazione file annullata!"));
    QCOMPARE(t.config.defaultSaveDir, before);
    QVERIFY(t.editor->findChild<MsgArea *>() == nullptr);
}

void tst_EditPersonaleFile::aFileThatCannotBeWrittenIsReportedAllTheSame()
{
    EditorUnderTest t(1, 1, 1);
    QVERIFY(QDir(t.folder.path(QString())).mkdir(QStringLiteral("folder.QcF")));
    const qint64 size = QFileInfo(t.folder.path(QStringLiteral("folder.QcF"))).size();
    t.tick(0, 0, CELL_NUMERO);
    LogCapture log;
    t.boxes.expectFileDialog(QStringLiteral("Salva le cartelle su file"), t.folder.path(QStringLiteral("folder")));
    // The name without suffix is free, the one with it is a folder.
    t.trigger("actionSave");
    QVERIFY(reportText(t).startsWith(QStringLiteral("File creato con successo!\n\nNome: folder\n")));
    QVERIFY(reportText(t).contains(QStringLiteral("Dimensione: %1 Bytes").arg(size)));
    QCOMPARE(t.drawn(), QStringLiteral("N"));
}

void tst_EditPersonaleFile::aFileThatCannotBeOpenedIsOnlyLogged()
{
    EditorUnderTest t(1, 1, 1);
    QVERIFY(QDir(t.folder.path(QString())).mkdir(QStringLiteral("folder.QcF")));
    const LogCapture log;
    t.expectSave(t.folder.path(QStringLiteral("folder")));
    t.trigger("actionSave");
    QVERIFY(log.warnings().join(QLatin1Char('\n')).contains(QStringLiteral("EditPersonale::writeMapping(): ")));
}

void tst_EditPersonaleFile::aLostMappingIsToldBesideTheReport()
{
    EditorUnderTest t(1, 1, 1);
    t.folder.write(QStringLiteral("out.QcF"), "what was there");
    const QString path = t.folder.path(QStringLiteral("out.QcF"));
    t.expectSave(t.folder.path(QStringLiteral("out")));
    t.boxes.expectBox(editorTitle, QStringLiteral("Il file esiste già:\nout.QcF\n\nSostituirlo?"), QMessageBox::Yes);
    t.boxes.expectBox(editorTitle,
                      QStringLiteral("Errore nel salvataggio del file:\n%1\n\nNo space left on device").arg(path),
                      QMessageBox::Ok, [&t](const QMessageBox *box) {
                          QCOMPARE(box->icon(), QMessageBox::Warning);
                          QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
                          QVERIFY(t.editor->findChild<MsgArea *>()->isVisible());
                      });
    {
        const FileFaults fault(path, FileFaults::Calls::Changes, 1, FileFaults::Effect::LastingError);
        t.trigger("actionSave");
    }
    reportMatches(t, QStringLiteral("out"), 1, "what was there");
    QCOMPARE(t.folder.read(QStringLiteral("out.QcF")), QByteArray("what was there"));
}

void tst_EditPersonaleFile::killedAtAnyCallTheOldMappingOrTheNewOneIsWhole()
{
    EditorUnderTest t(1, 1, 1);
    const QString path = t.folder.path(QStringLiteral("out.QcF"));
    int call = 1;
    for (bool killed = true; killed; ++call) {
        t.folder.write(QStringLiteral("out.QcF"), "what was there");
        killed = isKilledDuring([&]() {
            t.expectSave(path);
            t.boxes.expectBox(QStringLiteral("Salva le cartelle su file"),
                              QStringLiteral("out.QcF already exists.\nDo you want to replace it?"), QMessageBox::Yes);
            const FileFaults fault(path, FileFaults::Calls::Changes, call, FileFaults::Effect::Death);
            t.trigger("actionSave");
        });
        const QByteArray found = t.folder.read(QStringLiteral("out.QcF"));
        QVERIFY2(found == "!o\n" || (killed && found == "what was there"), qPrintable(QString::number(call)));
        QFile::remove(path + QStringLiteral(".part"));
    }
    QVERIFY(call > 4);
}

void tst_EditPersonaleFile::afterAnyFaultTheOldMappingOrTheNewOneIsWhole_data()
{
    QTest::addColumn<FileFaults::Effect>("effect");
    QTest::newRow("one error") << FileFaults::Effect::Error;
    QTest::newRow("lasting errors") << FileFaults::Effect::LastingError;
}

void tst_EditPersonaleFile::afterAnyFaultTheOldMappingOrTheNewOneIsWhole()
{
    QFETCH(FileFaults::Effect, effect);
    const QByteArray before = "what was there";
    const QByteArray after = "!o\n";
    EditorUnderTest t(1, 1, 1);
    const QString path = t.folder.path(QStringLiteral("out.QcF"));
    const auto faultAt = [&](int call) {
        t.folder.write(QStringLiteral("out.QcF"), before);
        return std::make_unique<FileFaults>(path, FileFaults::Calls::Changes, call, effect);
    };
    const auto save = [&](const QString &loss) {
        t.expectSave(path);
        t.boxes.expectBox(QStringLiteral("Salva le cartelle su file"),
                          QStringLiteral("out.QcF already exists.\nDo you want to replace it?"), QMessageBox::Yes);
        if (!loss.isEmpty()) {
            t.boxes.expectBox(editorTitle, QStringLiteral("Errore nel salvataggio del file:\n%1\n\n%2").arg(path, loss),
                              QMessageBox::Ok);
        }
        t.trigger("actionSave");
    };
    bool reached = true;
    int call = 1;
    for (; reached; ++call) {
        QString loss; // of the same writing, without a window
        {
            const auto fault = faultAt(call);
            writeWhole(path, after, QIODevice::Text, &loss);
            reached = FileFaults::seen() >= call;
        }
        const auto fault = faultAt(call);
        save(loss);
        const QByteArray found = t.folder.read(QStringLiteral("out.QcF"));
        QVERIFY2(found == after || (reached && found == before), qPrintable(QString::number(call)));
    }
    QVERIFY(call > 4);
}

void tst_EditPersonaleFile::aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("yes") << QMessageBox::Yes;
    QTest::newRow("no") << QMessageBox::No;
    QTest::newRow("closed") << QMessageBox::Escape;
}

void tst_EditPersonaleFile::aFileMetByTheAppendedSuffixIsOverwrittenOnlyWhenWanted()
{
    QFETCH(QMessageBox::StandardButton, answer);
    EditorUnderTest t(1, 1, 1);
    t.folder.write(QStringLiteral("maps/prova.qcf.QcF"), "what was there");
    const QString before = t.config.defaultSaveDir;
    t.expectSave(t.folder.path(QStringLiteral("maps/prova.qcf")));
    t.boxes.expectBox(editorTitle, QStringLiteral("Il file esiste già:\nprova.qcf.QcF\n\nSostituirlo?"), answer,
                      [&](const QMessageBox *box) {
                          QCOMPARE(box->icon(), QMessageBox::Question);
                          QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
                          QVERIFY(box->defaultButton() == box->button(QMessageBox::No));
                          QCOMPARE(t.config.defaultSaveDir, before);
                      });
    t.trigger("actionSave");
    const bool wanted = answer == QMessageBox::Yes;
    QCOMPARE(t.folder.read(QStringLiteral("maps/prova.qcf.QcF")), QByteArray(wanted ? "!o\n" : "what was there"));
    QCOMPARE(t.editor->findChild<MsgArea *>() != nullptr, wanted);
    QCOMPARE(QDir(t.config.defaultSaveDir), QDir(wanted ? t.folder.path(QStringLiteral("maps")) : before));
    QCOMPARE(t.status() == QStringLiteral("Creazione file annullata!"), !wanted);
}

void tst_EditPersonaleFile::openingReplacesThePages()
{
    EditorUnderTest t(3, 9, 2);
    t.showPage(2);
    t.open("\"NsIo\n!SSS\n!n\n");
    QCOMPARE(t.status(), QStringLiteral("Apertura completata!"));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(t.spin("pageNumSpinBox")->value(), 1);
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 3);
    QCOMPARE(t.grid()->count(), 4);
    QCOMPARE(t.drawn(), QStringLiteral("Ns Io"));
    QVERIFY(t.box(1, 1)->isVisible());
    QCOMPARE(t.box(1, 0)->toolTip(), QStringLiteral("2,1"));
    QCOMPARE(t.box(1, 0)->statusTip(), QStringLiteral("Immagine"));
    QCOMPARE(t.box(1, 1)->statusTip(), QStringLiteral("Vuota"));
    t.showPage(2);
    QCOMPARE(t.drawn(), QStringLiteral("SSS"));
    t.showPage(9);
    QCOMPARE(t.spin("pageNumSpinBox")->value(), 3);
    QCOMPARE(t.drawn(), QStringLiteral("n"));
}

void tst_EditPersonaleFile::everyLineReadAndPageLoadedIsTold()
{
    EditorUnderTest t(1, 1, 1);
    const BusyMessages log(t);
    t.open("!N\n\n!S\n"); // the second line gives no page
    QCOMPARE(log.messages(),
             (QStringList{QStringLiteral("Sto leggendo la pagina 1"), QStringLiteral("Sto leggendo la pagina 2"),
                          QStringLiteral("Sto leggendo la pagina 3"), QStringLiteral("Sto caricando la pagina 1 di 2"),
                          QStringLiteral("Sto caricando la pagina 2 di 2"), QStringLiteral("Apertura completata!")}));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
}

void tst_EditPersonaleFile::openingAsksFirst()
{
    EditorUnderTest t(1, 2, 1);
    t.tick(0, 0, CELL_NUMERO);
    t.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
        QMessageBox::No, [](QMessageBox *box) {
            QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
            QVERIFY(box->defaultButton() == box->button(QMessageBox::No));
        });
    t.trigger("actionOpen");
    QCOMPARE(t.drawn(), QStringLiteral("No"));
    QCOMPARE(t.status(), QString());
}

void tst_EditPersonaleFile::cancellingTheOpenIsTold()
{
    EditorUnderTest t(1, 2, 1);
    t.tick(0, 0, CELL_NUMERO);
    t.expectOpen(QString());
    t.trigger("actionOpen");
    QCOMPARE(t.status(), QStringLiteral("Apertura file annullata!"));
    QCOMPARE(t.drawn(), QStringLiteral("No"));
}

void tst_EditPersonaleFile::aFileThatCannotBeReadLeavesNoPages()
{
    EditorUnderTest t(1, 2, 2);
    t.folder.write(QStringLiteral("in.QcF"), "!N\n");
    const QString path = t.folder.path(QStringLiteral("in.QcF"));
    t.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
        QMessageBox::Yes);
    t.boxes.expectFileDialog(QStringLiteral("Apre un file di cartelle"), path, [path](QWidget *dialog) {
        // Gone between the choice and the reading.
        connect(qobject_cast<QFileDialog *>(dialog), &QFileDialog::fileSelected, [path]() { QFile::remove(path); });
    });
    LogCapture log;
    t.trigger("actionOpen");
    QVERIFY(!QFile::exists(path));
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 0);
    QCOMPARE(t.grid()->count(), 0);
    QCOMPARE(t.status(), QStringLiteral("Apertura completata!"));
}

void tst_EditPersonaleFile::aMappingThatDoesNotFitTheMemoryIsAskedAbout()
{
    EditorUnderTest t(1, 2, 2);
    t.tick(0, 0, CELL_NUMERO);
    expectOpenOfTooMany(t);
    t.boxes.expectBox(editorTitle, QMessageBox::No, isMemoryQuestion);
    {
        const MemoryLimit limit(room);
        t.trigger("actionOpen");
    }
    QCOMPARE(t.drawn(), QStringLiteral("No"));
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 2);
    QCOMPARE(t.status(), QStringLiteral("Apertura file annullata!"));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
}

void tst_EditPersonaleFile::aMappingThatFindsNoMemoryKeepsWhatWasThere()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    EditorUnderTest t(1, 2, 2);
    t.tick(0, 0, CELL_NUMERO);
    expectOpenOfTooMany(t);
    t.boxes.expectBox(editorTitle, QMessageBox::Yes, isMemoryQuestion);
    t.boxes.expectBox(editorTitle, noMemory, QMessageBox::Ok, QMessageBox::Warning);
    {
        const MemoryLimit limit(room);
        t.trigger("actionOpen");
    }
    QCOMPARE(t.drawn(), QStringLiteral("No"));
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 2);
    QCOMPARE(t.find<QLabel>("numeri_text")->text(), QStringLiteral("Numeri: 1 di 90"));
    QCOMPARE(t.status(), QStringLiteral("Apertura file annullata!"));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
    expectOpenOfTooMany(t);
    t.trigger("actionOpen");
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 300);
}

// One line of 10 MB.
void tst_EditPersonaleFile::linesThatFindNoMemoryKeepWhatWasThere()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    EditorUnderTest t(1, 2, 2);
    t.tick(0, 0, CELL_NUMERO);
    t.folder.write(QStringLiteral("in.QcF"), QByteArray(10 << 20, 'N'));
    t.expectOpen(t.folder.path(QStringLiteral("in.QcF")));
    t.boxes.expectBox(editorTitle, noMemory, QMessageBox::Ok, QMessageBox::Warning);
    {
        const MemoryLimit limit(room);
        t.trigger("actionOpen");
    }
    QCOMPARE(t.drawn(), QStringLiteral("No"));
    QCOMPARE(t.status(), QStringLiteral("Apertura file annullata!"));
}

void tst_EditPersonaleFile::aDiskThatCannotBeReadIsTold_data()
{
    QTest::addColumn<int>("failingRead");
    QTest::addColumn<int>("pages");
    QTest::newRow("from the start") << 1 << 0;
    QTest::newRow("later") << 2 << 4096;
}

void tst_EditPersonaleFile::aDiskThatCannotBeReadIsTold()
{
    QFETCH(int, failingRead);
    QFETCH(int, pages);
    EditorUnderTest t(2, 2, 1);
    const QString path = t.folder.path(QStringLiteral("in.QcF"));
    t.folder.write(QStringLiteral("in.QcF"), QByteArray("!NN\n").repeated(10000)); // a read is 16 KB
    t.expectOpen(path);
    t.boxes.expectBox(editorTitle, QStringLiteral("Errore nella lettura del file:\n%1\n\nInput/output error").arg(path),
                      QMessageBox::Ok, QMessageBox::Warning);
    const FileFaults fault(path, FileFaults::Calls::Reads, failingRead, FileFaults::Effect::LastingError);
    t.trigger("actionOpen");
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), pages);
    QCOMPARE(t.status(), QStringLiteral("Apertura completata!"));
    QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor);
    const auto *reason = t.find<QLabel>("senzaPagineLabel");
    QCOMPARE(reason->isVisible(), pages == 0);
    QVERIFY(pages > 0 || reason->text() == QStringLiteral("Non vi sono pagine.\nInput/output error"));
}

// Those that could be read were too many for the memory.
void tst_EditPersonaleFile::aDiskThatCannotBeReadIsToldWithoutThePagesToo()
{
    EditorUnderTest t(1, 2, 2);
    t.tick(0, 0, CELL_NUMERO);
    const QString path = t.folder.path(QStringLiteral("large.QcF"));
    expectOpenOfTooMany(t);
    t.boxes.expectBox(editorTitle, QMessageBox::No, isMemoryQuestion);
    t.boxes.expectBox(editorTitle, QStringLiteral("Errore nella lettura del file:\n%1\n\nInput/output error").arg(path),
                      QMessageBox::Ok, QMessageBox::Warning);
    {
        const FileFaults fault(path, FileFaults::Calls::Reads, 4, FileFaults::Effect::LastingError);
        const MemoryLimit limit(room);
        t.trigger("actionOpen");
    }
    QCOMPARE(t.drawn(), QStringLiteral("No"));
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 2);
    QCOMPARE(t.status(), QStringLiteral("Apertura file annullata!"));
}

void tst_EditPersonaleFile::aDeviceIsRefusedBeforeAnythingGoes_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("without end") << "/dev/zero";
    QTest::newRow("that nobody writes to") << "fifo.QcF";
}

void tst_EditPersonaleFile::aDeviceIsRefusedBeforeAnythingGoes()
{
    QFETCH(QString, device);
    EditorUnderTest t(1, 2, 2);
    QCOMPARE(mkfifo("fifo.QcF", S_IRUSR | S_IWUSR), 0);
    t.tick(0, 0, CELL_NUMERO);
    const QString before = t.config.defaultSaveDir;
    const QString path = QDir::current().absoluteFilePath(device);
    t.expectOpen(path);
    t.boxes.expectBox(editorTitle, QStringLiteral("Non è un file di cartelle:\n%1").arg(path), QMessageBox::Ok,
                      QMessageBox::Warning);
    t.trigger("actionOpen");
    QCOMPARE(t.drawn(), QStringLiteral("No"));
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 2);
    QCOMPARE(t.status(), QStringLiteral("Apertura file annullata!"));
    QCOMPARE(t.config.defaultSaveDir, before);
}

void tst_EditPersonaleFile::anEditorWithoutPagesSaysWhy_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("why");
    QTest::newRow("gone") << QByteArray() << "Non vi sono pagine.\nNo such file or directory";
    QTest::newRow("empty") << QByteArray("") << "Non vi sono pagine.\nNessuna riga del file descrive una pagina.";
    QTest::newRow("no pages") << QByteArray("\n\n")
                              << "Non vi sono pagine.\nNessuna riga del file descrive una pagina.";
}

void tst_EditPersonaleFile::anEditorWithoutPagesSaysWhy()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, why);
    EditorUnderTest t(1, 2, 2);
    const auto *reason = t.find<QLabel>("senzaPagineLabel");
    const auto *grid = t.find<QScrollArea>("boxesScrollArea");
    QVERIFY(!reason->isVisible());
    const QString path = t.folder.path(QStringLiteral("in.QcF"));
    t.folder.write(QStringLiteral("in.QcF"), content);
    t.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
        QMessageBox::Yes);
    t.boxes.expectFileDialog(QStringLiteral("Apre un file di cartelle"), path, [&](QWidget *dialog) {
        connect(qobject_cast<QFileDialog *>(dialog), &QFileDialog::fileSelected, [path, content]() {
            if (content.isNull()) {
                QFile::remove(path);
            }
        });
    });
    const LogCapture log;
    t.trigger("actionOpen");
    QVERIFY(reason->isVisible() && !grid->isVisible());
    QCOMPARE(reason->text(), why);
    QCOMPARE(log.warnings().join(QLatin1Char('\n')).contains(QStringLiteral("EditPersonale::readMapping(): ")),
             content.isNull());
    t.open("!N\n");
    QVERIFY(!reason->isVisible() && grid->isVisible());
}

void tst_EditPersonaleFile::pagesAreReadBackAsSaved()
{
    EditorUnderTest t(3, 9, 2);
    const QByteArray line = "#NnNnNnNnNoooooooooSsIiNnNnN\n";
    t.open(line + "!O\n");
    QCOMPARE(t.drawn(), QStringLiteral("NnNnNnNnN ooooooooo SsIiNnNnN"));
    t.expectSave(t.folder.path(QStringLiteral("out.QcF")));
    t.trigger("actionSave");
    QCOMPARE(t.folder.read(QStringLiteral("out.QcF")), line + "!O\n");
}

void tst_EditPersonaleFile::theColumnFlagIsLostAndItsCheckBoxKeepsItsState()
{
    EditorUnderTest t(1, 1, 2);
    t.click("checkBox_ordinaNumxColonne");
    t.expectSave(t.folder.path(QStringLiteral("out.QcF")));
    t.trigger("actionSave");
    t.expectOpen(t.folder.path(QStringLiteral("out.QcF")));
    t.trigger("actionOpen");
    QVERIFY(t.button("checkBox_ordinaNumxColonne")->isChecked()); // of the page before
    t.showPage(2);
    t.showPage(1);
    QVERIFY(!t.button("checkBox_ordinaNumxColonne")->isChecked());
}

void tst_EditPersonaleFile::rightClicksDoNothingOnLoadedPages()
{
    EditorUnderTest t(1, 2, 1);
    t.open("!Nn\n");
    QTest::mouseClick(t.box(0, 0), Qt::RightButton);
    QCOMPARE(t.drawn(), QStringLiteral("Nn"));
    QCOMPARE(t.status(), QStringLiteral("Apertura completata!"));
    QTest::mouseClick(t.box(0, 1), Qt::LeftButton);
    QCOMPARE(t.drawn(), QStringLiteral("NN"));
}

void tst_EditPersonaleFile::ticksOfLoadedPagesAreCounted()
{
    EditorUnderTest t(1, 1, 1, 1, 2);
    t.open("!NNnn\n");
    QVERIFY(t.canCreate());
    QTest::mouseClick(t.box(0, 2), Qt::LeftButton);
    QVERIFY(!t.canCreate());
    QCOMPARE(t.verdict(), QStringLiteral("I numeri da generare (3) sono maggiori di quelli disponibili (2)."));
}

void tst_EditPersonaleFile::theCountIsThatOfPageOne()
{
    EditorUnderTest t(1, 3, 1, 1, 2);
    t.selectAll(true);
    t.click("setNumTxtImgButton");
    t.click("riempiButton");
    QVERIFY(!t.canCreate());
    t.open("!Nn\n!NNNNNN\n");
    QVERIFY(t.canCreate());
    t.open("!NNN\n!N\n");
    QVERIFY(!t.canCreate());
    QCOMPARE(t.verdict(), QStringLiteral("I numeri da generare (3) sono maggiori di quelli disponibili (2)."));
}

// While they are loaded, page one counts as the one on display; it does not have their cells.
void tst_EditPersonaleFile::laterAndLargerPagesAreLoadedSafely()
{
    EditorUnderTest t(1, 1, 1, 1, 90);
    t.open("!N\n)" + QByteArray(81, 'N') + "\n#" + QByteArray(60, 'S') + "\n");
    QCOMPARE(t.drawn(), QStringLiteral("N"));
    QVERIFY(t.canCreate());
    t.showPage(2);
    QCOMPARE(t.grid()->count(), 81);
    t.showPage(3);
    QCOMPARE(t.grid()->count(), 60);
}

void tst_EditPersonaleFile::thirtyRowsOfNineComeBackWithoutColumns()
{
    EditorUnderTest t(30, 9, 1);
    t.selectAll(true);
    t.click("riempiButton");
    t.expectSave(t.folder.path(QStringLiteral("out.QcF")));
    t.boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"),
                      QStringLiteral("Le pagine con troppe celle non saranno rilette per intero dal file.\nPagine: 1"),
                      QMessageBox::Ok);
    t.trigger("actionSave");
    t.expectOpen(t.folder.path(QStringLiteral("out.QcF")));
    t.trigger("actionOpen");
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 1);
    QCOMPARE(t.grid()->count(), 0);
    t.click("riempiButton");
    t.spin("col_from_spinBox")->setValue(3);
    t.spin("row_from_spinBox")->setValue(300);
    t.click("setNumTxtImgButton");
    t.expectCreated();
    t.click("creapagineButton");
    QCOMPARE(t.cartella.getNumPages(), 1);
    QCOMPARE(t.cartella.getMaxPageColSize(0), U8(0));
}

void tst_EditPersonaleFile::skippedLinesAreListed()
{
    EditorUnderTest t(1, 1, 1);
    t.open("!N\n\n\n NN\n#NN\n!S\n");
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 2);
    QCOMPARE(t.drawn(), QStringLiteral("N"));
    QCOMPARE(t.status(), QStringLiteral("Apertura completata!"));
    const auto *report = t.editor->findChild<MsgArea *>();
    QVERIFY(report != nullptr);
    QVERIFY(report->isVisible());
    QCOMPARE(reportText(t), QStringLiteral("Queste righe del file non descrivono una pagina e sono state saltate:\n"
                                           "Righe da 2 a 3: nessun contenuto.\n"
                                           "Riga 4: il primo carattere non indica il numero di righe della pagina.\n"
                                           "Riga 5: caratteri insufficienti per le celle della pagina."));
}

void tst_EditPersonaleFile::withoutSkippedLinesThereIsNoList()
{
    EditorUnderTest t(1, 1, 1);
    t.open("!N\n!S\n");
    QVERIFY(t.editor->findChild<MsgArea *>() == nullptr);
}

void tst_EditPersonaleFile::aFileWithoutLinesLeavesAnEmptyEditor()
{
    EditorUnderTest t(2, 2, 3);
    t.showPage(3);
    t.open("");
    QCOMPARE(t.status(), QStringLiteral("Apertura completata!"));
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 0);
    QCOMPARE(t.grid()->count(), 0);
    for (const char *name : {"riempiButton", "svuotaButton", "invertiButton", "setNumTxtImgButton",
                             "impostaschemacorrenteButton", "checkBox_ordinaNumxColonne", "pageNumSpinBox"}) {
        QVERIFY2(!t.find<QWidget>(name)->isEnabled(), name);
    }
    // Harmless even when they are called.
    for (const int value : {1, 7, 65535}) {
        t.editor->on_pageNumSpinBox_valueChanged(value);
        t.editor->on_row_from_spinBox_valueChanged(value);
        t.editor->on_row_to_spinBox_valueChanged(value);
        t.editor->on_col_from_spinBox_valueChanged(value);
        t.editor->on_col_to_spinBox_valueChanged(value);
        t.editor->on_impostaDAspinBox_valueChanged(value);
        t.editor->on_impostaAspinBox_valueChanged(value);
    }
    t.editor->on_checkBox_ordinaNumxColonne_clicked();
    t.editor->on_riempiButton_clicked();
    t.editor->on_svuotaButton_clicked();
    t.editor->on_invertiButton_clicked();
    t.editor->on_setNumTxtImgButton_clicked();
    t.editor->on_checkboxChecked(0, 0, true);
    t.editor->on_checkboxRClicked(0, 0);
    t.editor->on_impostasuttute_checkBox_clicked(true);
    t.expectCopyQuestion(QMessageBox::Yes);
    t.editor->on_impostaschemacorrenteButton_clicked();
    t.boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"),
                      QStringLiteral("Errore durante la creazione delle pagine!\n\nNessuna pagina da generare!"),
                      QMessageBox::Ok, QMessageBox::Warning);
    t.editor->on_creapagineButton_clicked();
    t.expectSave(t.folder.path(QStringLiteral("none.QcF")));
    t.trigger("actionSave");
    QCOMPARE(t.folder.read(QStringLiteral("none.QcF")).size(), 0);
    QVERIFY(QFileInfo::exists(t.folder.path(QStringLiteral("none.QcF"))));
}

void tst_EditPersonaleFile::afterAFileWithoutLinesAnotherOpens()
{
    EditorUnderTest t(2, 2, 3);
    t.open("");
    t.open("!NN\n!S\n");
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), 2);
    QCOMPARE(t.drawn(), QStringLiteral("NN"));
    QVERIFY(t.button("riempiButton")->isEnabled());
    t.showPage(2);
    QCOMPARE(t.drawn(), QStringLiteral("S"));
    t.expectCloseQuestion(QMessageBox::Yes);
    t.editor->close();
}

void tst_EditPersonaleFile::theCopyRangeFollowsThePageCount()
{
    EditorUnderTest t(1, 1, 9);
    t.spin("impostaAspinBox")->setValue(8);
    t.spin("impostaDAspinBox")->setValue(6);
    t.open("!N\n!s\n!s\n");
    QCOMPARE(t.spin("impostaDAspinBox")->value(), 3);
    QCOMPARE(t.spin("impostaAspinBox")->value(), 3);
    t.button("impostasuttute_checkBox")->click();
    t.open("!N\n!s\n!s\n!s\n!s\n");
    QCOMPARE(t.spin("impostaDAspinBox")->value(), 1);
    QCOMPARE(t.spin("impostaAspinBox")->value(), 5);
}

void tst_EditPersonaleFile::loadedPagesAreCreated()
{
    EditorUnderTest t(1, 1, 1);
    t.open("!NsO\n\"SIno\n");
    t.expectCreated();
    LogCapture log; // the second page draws no numbers
    t.trigger("actionCreaPagine");
    QCOMPARE(t.cartella.getNumPages(), 2);
    QCOMPARE(t.cartella.getMaxPageColSize(0), U8(3));
    QCOMPARE(t.cartella.getMaxPageColSize(1), U8(2));
    QCOMPARE(t.cartella.pagine[1]->blocchi[0].righe[0].celle[1].tipo, CELL_IMMAGINE);
    QCOMPARE(t.box(0, 0)->text(), QString::number(t.cartella.pagine[0]->blocchi[0].righe[0].celle[0].numero));
}

void tst_EditPersonaleFile::pagesThatComeBackCutAreNamed()
{
    EditorUnderTest t(29, 9, 2);
    t.expectSave(t.folder.path(QStringLiteral("out.QcF")));
    t.boxes.expectBox(
        QStringLiteral("Quintra - Mappatura manuale"),
        QStringLiteral("Le pagine con troppe celle non saranno rilette per intero dal file.\nPagine: 1, 2"),
        QMessageBox::Ok, [&t](QMessageBox *) { QCOMPARE(t.editor->cursor().shape(), Qt::ArrowCursor); });
    t.trigger("actionSave");
}

QTEST_MAIN(tst_EditPersonaleFile)
#include "tst_EditPersonaleFile.moc"
