// SPDX-License-Identifier: MIT
#include "msgarea/MsgArea.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QtTest>

namespace {
const QString unsavedTitle = QStringLiteral("Testo modificato");
const QString unsavedText = QStringLiteral("Vuoi uscire senza salvare?");
const QString saveTitle = QStringLiteral("Salva");
const QString savedText = QStringLiteral("File salvato con successo.");
const QString failedText = QStringLiteral("Errore nel salvataggio del file!");
const QString saveDialog = QStringLiteral("Salva su file");

// A window as the others create it: it goes when it is closed.
class Shown final
{
public:
    explicit Shown(bool fileMode)
        : window(new MsgArea(nullptr, fileMode))
    {
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
        QApplication::setActiveWindow(window);
    }
    ~Shown() { delete window; }
    Q_DISABLE_COPY_MOVE(Shown)

    QTextEdit *edit() const { return window->findChild<QTextEdit *>(QStringLiteral("textEdit")); }
    QAction *action(const char *name) const { return window->findChild<QAction *>(QString::fromLatin1(name)); }
    void type(const QString &text) const { QTest::keyClicks(edit(), text); }
    void save() const { action("actionSalva")->trigger(); }
    bool isClosed() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window.isNull();
    }

    QPointer<MsgArea> window;
};
} // namespace

class tst_MsgArea final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFormHasItsTexts();
    void theMenuBarIsHiddenForMessages();
    void aClosedWindowIsDeleted();
    void escisClosesTheWindow();
    void escapeClosesAMessage();
    void escapeLeavesAFileOpen();
    void editingCanBeSwitchedOff();
    void onlyAFileIsMadeForEditing_data();
    void onlyAFileIsMadeForEditing();

    void aReportIsShownOverItsOwner();
    void aMessageIsShownPlainOrAsHtml();
    void aFileIsShownPlainOrAsHtml();
    void aFileIsReadAsLatin1();
    void aFileThatCannotBeReadShowsNothing_data();
    void aFileThatCannotBeReadShowsNothing();
    void everyLineIsAParagraph_data();
    void everyLineIsAParagraph();
    void linesReplaceTheText();
    void aHundredThousandLinesAreShown();
    void aReportIsAsLargeAsItsText();

    void aMessageNeverAsksOnClose();
    void theFirstCloseAfterLoadingAsks();
    void aRefusedCloseKeepsTheWindow_data();
    void aRefusedCloseKeepsTheWindow();
    void itStaysOpenWhileItAsks();
    void theCloseAfterSavingDoesNotAsk();
    void editingAfterSavingAsksAgain();

    void savingAFileWritesLatin1();
    void charactersOutsideLatin1AreSavedAsQuestionMarks();
    void savingAShorterTextTruncatesTheFile();
    void savingAnUnchangedFileDoesNothing();
    void everySaveOfAMessageAsksForAName();
    void theSaveDialogStartsInTheSaveFolder();
    void aCancelledNameSavesNothing();
    void shortcutsWork_data();
    void shortcutsWork();
    void aFileThatCannotBeWrittenIsReported();
    void aMessageThatCannotBeWrittenIsReported();
    void anEmptyTextThatCannotBeWrittenIsReported();
    void aFullDeviceIsReported();
    void aWindowWithoutAFileReportsTheSave();
    void leavingSaysWhetherTheTextWasTouched();

private:
    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
};

void tst_MsgArea::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<CurrentConfig>(nullptr);
}

void tst_MsgArea::cleanup()
{
    m_config.reset();
    m_folder.reset();
}

void tst_MsgArea::theFormHasItsTexts()
{
    const Shown area(true);
    QCOMPARE(area.window->windowTitle(), QStringLiteral("Area messaggi"));
    QCOMPARE(area.action("actionSalva")->text(), QStringLiteral("Salva"));
    QCOMPARE(area.action("actionSalva")->shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
    QCOMPARE(area.action("actionEsci")->text(), QStringLiteral("Esci"));
    QCOMPARE(area.action("actionEsci")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
    const auto menus = area.window->menuBar()->findChildren<QMenu *>();
    QCOMPARE(menus.size(), 1);
    QCOMPARE(menus.first()->title(), QStringLiteral("File"));
    QVERIFY(menus.first()->actions().contains(area.action("actionSalva")));
    QVERIFY(menus.first()->actions().contains(area.action("actionEsci")));
    QVERIFY(area.window->centralWidget()->isAncestorOf(area.edit()));
    QVERIFY(!area.window->windowIcon().isNull());
}

void tst_MsgArea::theMenuBarIsHiddenForMessages()
{
    const Shown message(false);
    const Shown file(true);
    QVERIFY(!message.window->menuBar()->isVisible());
    QVERIFY(file.window->menuBar()->isVisible());
}

void tst_MsgArea::aClosedWindowIsDeleted()
{
    const Shown area(false);
    area.window->close();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::escisClosesTheWindow()
{
    const Shown area(true);
    area.action("actionEsci")->trigger();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::escapeClosesAMessage()
{
    const Shown message(false);
    message.window->setEditable(false);
    message.window->setText(QStringLiteral("Fatto."), true);
    message.edit()->setFocus();
    QTest::keyClick(message.edit(), Qt::Key_Escape);
    QVERIFY(message.isClosed());
}

void tst_MsgArea::escapeLeavesAFileOpen()
{
    const Shown file(true);
    file.edit()->setFocus();
    QTest::keyClick(file.edit(), Qt::Key_Escape);
    QVERIFY(!file.isClosed());
    QVERIFY(file.window->isVisible());
}

void tst_MsgArea::editingCanBeSwitchedOff()
{
    const Shown area(false);
    area.window->setEditable(false);
    QVERIFY(area.edit()->isReadOnly());
    area.window->setEditable(true);
    QVERIFY(!area.edit()->isReadOnly());
}

void tst_MsgArea::onlyAFileIsMadeForEditing_data()
{
    QTest::addColumn<bool>("fileMode");
    QTest::newRow("report") << false;
    QTest::newRow("file") << true;
}

void tst_MsgArea::onlyAFileIsMadeForEditing()
{
    QFETCH(bool, fileMode);
    QWidget owner;
    const QPointer<MsgArea> window = MsgArea::makeFor(&owner, fileMode);
    QCOMPARE(window->parentWidget(), &owner);
    QCOMPARE(window->windowModality(), Qt::WindowModal);
    QCOMPARE(window->findChild<QTextEdit *>()->isReadOnly(), !fileMode);
    QCOMPARE(!window->findChild<QMenuBar *>()->isHidden(), fileMode);
    QVERIFY(!window->isVisible()); // not yet filled
    window->show();
    QVERIFY(window->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(window.isNull());
}

void tst_MsgArea::aReportIsShownOverItsOwner()
{
    const QString text = QStringLiteral("<b>due</b>\nrighe");
    QWidget owner;
    const QPointer<MsgArea> window = MsgArea::showReport(&owner, text);
    QCOMPARE(window->parentWidget(), &owner);
    QVERIFY(window->isVisible());
    QCOMPARE(window->windowModality(), Qt::WindowModal);
    const auto *edit = window->findChild<QTextEdit *>();
    QCOMPARE(edit->toPlainText(), text);
    QVERIFY(edit->isReadOnly());
    QVERIFY(window->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(window.isNull());
}

void tst_MsgArea::aMessageIsShownPlainOrAsHtml()
{
    const Shown area(false);
    area.window->setText(QStringLiteral("<b>x</b>"), true);
    QCOMPARE(area.edit()->toPlainText(), QStringLiteral("<b>x</b>"));
    area.window->setText(QStringLiteral("<b>x</b>"), false);
    QCOMPARE(area.edit()->toPlainText(), QStringLiteral("x"));
}

void tst_MsgArea::aFileIsShownPlainOrAsHtml()
{
    m_folder->write(QStringLiteral("a.txt"), "<i>uno</i>\ndue\n");
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    QCOMPARE(area.edit()->toPlainText(), QStringLiteral("<i>uno</i>\ndue\n"));
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), false);
    QCOMPARE(area.edit()->toPlainText().trimmed(), QStringLiteral("uno due"));
}

void tst_MsgArea::aFileIsReadAsLatin1()
{
    m_folder->write(QStringLiteral("a.txt"), "caff\xe8 \xc3\xa8");
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    QCOMPARE(area.edit()->toPlainText(), QStringLiteral("caffè Ã¨"));
}

void tst_MsgArea::aFileThatCannotBeReadShowsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.txt");
    QTest::newRow("a folder") << QStringLiteral(".");
}

void tst_MsgArea::aFileThatCannotBeReadShowsNothing()
{
    QFETCH(QString, name);
    const Shown area(true);
    area.edit()->setPlainText(QStringLiteral("before"));
    area.window->setText(m_folder->path(name), true);
    QCOMPARE(area.edit()->toPlainText(), QString());
}

void tst_MsgArea::everyLineIsAParagraph_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("several") << QStringList{QStringLiteral("uno"), QStringLiteral("due"), QStringLiteral("tre")};
    QTest::newRow("one") << QStringList{QStringLiteral("uno")};
    QTest::newRow("with an empty one") << QStringList{QStringLiteral("uno"), QString(), QStringLiteral("tre")};
    QTest::newRow("with signs of HTML") << QStringList{QStringLiteral("1 < 2 &amp; 3"), QStringLiteral("4 > 3")};
}

void tst_MsgArea::everyLineIsAParagraph()
{
    QFETCH(QStringList, lines);
    const Shown area(false);
    area.window->setLines(lines);
    QStringList paragraphs;
    for (QTextBlock block = area.edit()->document()->begin(); block.isValid(); block = block.next()) {
        paragraphs.append(block.text());
    }
    QCOMPARE(paragraphs, lines);
}

void tst_MsgArea::linesReplaceTheText()
{
    const Shown area(false);
    area.window->setText(QStringLiteral("before"), true);
    area.window->setLines({QStringLiteral("uno")});
    QCOMPARE(area.edit()->toPlainText(), QStringLiteral("uno"));
    area.window->setLines({});
    QCOMPARE(area.edit()->toPlainText(), QString());
}

void tst_MsgArea::aHundredThousandLinesAreShown()
{
    QStringList lines;
    for (int i = 0; i < 100000; ++i) {
        lines.append(QStringLiteral("Pag %1 blocco 1 = Pag 1 blocco 1").arg(i));
    }
    const Shown area(false);
    area.window->setLines(lines);
    QCoreApplication::processEvents();
    QCOMPARE(area.edit()->document()->blockCount(), 100000);
}

void tst_MsgArea::aReportIsAsLargeAsItsText()
{
    const MsgArea full(nullptr, false); // the size of the form
    MsgArea brief(nullptr, false);
    brief.setText(QStringLiteral("File creato con successo!"), true);
    brief.show();
    QVERIFY(brief.width() < full.width());
    QVERIFY(brief.height() < full.height());

    MsgArea report(nullptr, false);
    report.setText(QStringLiteral("Una riga piuttosto lunga, come quella di un percorso\n").repeated(14), true);
    report.show();
    QVERIFY(report.height() > brief.height());
    QVERIFY(report.height() < full.height());
    QCoreApplication::processEvents(); // the layout settles
    QVERIFY(!report.findChild<QTextEdit *>()->verticalScrollBar()->isVisible());
    QCOMPARE(report.findChild<QTextEdit *>()->document()->firstBlock().layout()->lineCount(), 1);

    MsgArea list(nullptr, false);
    list.setLines(QStringList(QVector<QString>(1000, QStringLiteral("Pag 2 blocco 1 = Pag 1 blocco 1")).toList()));
    list.show();
    QCOMPARE(list.size(), full.size());
}

void tst_MsgArea::aMessageNeverAsksOnClose()
{
    BoxScript boxes;
    const Shown area(false);
    area.window->setText(QStringLiteral("text"), true);
    area.type(QStringLiteral("more"));
    area.window->close();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::theFirstCloseAfterLoadingAsks()
{
    m_folder->write(QStringLiteral("a.txt"), "text");
    BoxScript boxes;
    boxes.expectBox(unsavedTitle, unsavedText, QMessageBox::Yes, [](QMessageBox *box) {
        QCOMPARE(box->icon(), QMessageBox::Question);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    });
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.window->close();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::aRefusedCloseKeepsTheWindow_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("no") << static_cast<int>(QMessageBox::No);
    QTest::newRow("box closed") << static_cast<int>(QMessageBox::Escape);
}

void tst_MsgArea::aRefusedCloseKeepsTheWindow()
{
    QFETCH(int, answer);
    m_folder->write(QStringLiteral("a.txt"), "text");
    BoxScript boxes;
    boxes.expectBox(unsavedTitle, unsavedText, static_cast<QMessageBox::StandardButton>(answer));
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.window->close();
    QVERIFY(!area.isClosed());
    QVERIFY(area.window->isVisible());
}

// The dialog, which belongs to the window, still runs its loop.
void tst_MsgArea::itStaysOpenWhileItAsks()
{
    BoxScript boxes;
    const Shown area(false);
    const auto closes = [&area](QWidget *) {
        area.window->close();
        QVERIFY(!area.isClosed());
        QVERIFY(area.window->isVisible());
    };
    boxes.expectFileDialog(saveDialog, m_folder->path(QStringLiteral("a.txt")), closes);
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok, closes);
    area.save();
    area.window->close();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::theCloseAfterSavingDoesNotAsk()
{
    m_folder->write(QStringLiteral("a.txt"), "text");
    BoxScript boxes;
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok, QMessageBox::Information);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.save();
    area.window->close();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::editingAfterSavingAsksAgain()
{
    m_folder->write(QStringLiteral("a.txt"), "text");
    BoxScript boxes;
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok);
    boxes.expectBox(unsavedTitle, unsavedText, QMessageBox::Yes);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.save();
    area.type(QStringLiteral("x"));
    area.window->close();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::savingAFileWritesLatin1()
{
    m_folder->write(QStringLiteral("a.txt"), "due\n");
    BoxScript boxes;
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok, QMessageBox::Information);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.edit()->insertPlainText(QStringLiteral("perché "));
    area.save();
    QCOMPARE(m_folder->read(QStringLiteral("a.txt")), QByteArray("perch\xe9 due\n"));
}

void tst_MsgArea::charactersOutsideLatin1AreSavedAsQuestionMarks()
{
    BoxScript boxes;
    boxes.expectFileDialog(saveDialog, m_folder->path(QStringLiteral("b.txt")));
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok, QMessageBox::Information);
    const Shown area(false);
    area.window->setText(QStringLiteral("10 € Ω è"), true);
    area.save();
    QCOMPARE(m_folder->read(QStringLiteral("b.txt")), QByteArray("10 ? ? \xe8"));
}

void tst_MsgArea::savingAShorterTextTruncatesTheFile()
{
    m_folder->write(QStringLiteral("a.txt"), "a long text");
    BoxScript boxes;
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.edit()->setPlainText(QStringLiteral("short"));
    area.save();
    QCOMPARE(m_folder->read(QStringLiteral("a.txt")), QByteArray("short"));
}

void tst_MsgArea::savingAnUnchangedFileDoesNothing()
{
    m_folder->write(QStringLiteral("a.txt"), "text");
    BoxScript boxes;
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.save();
    m_folder->write(QStringLiteral("a.txt"), "by another");
    area.save();
    QCOMPARE(m_folder->read(QStringLiteral("a.txt")), QByteArray("by another"));
}

void tst_MsgArea::everySaveOfAMessageAsksForAName()
{
    BoxScript boxes;
    for (const char *name : {"a.txt", "b.txt"}) {
        boxes.expectFileDialog(saveDialog, m_folder->path(QString::fromLatin1(name)));
        boxes.expectBox(saveTitle, savedText, QMessageBox::Ok);
    }
    const Shown area(false);
    area.window->setText(QStringLiteral("text"), true);
    area.save();
    area.save();
    QCOMPARE(m_folder->read(QStringLiteral("a.txt")), QByteArray("text"));
    QCOMPARE(m_folder->read(QStringLiteral("b.txt")), QByteArray("text"));
}

void tst_MsgArea::theSaveDialogStartsInTheSaveFolder()
{
    QVERIFY(QDir().mkdir(m_folder->path(QStringLiteral("cards"))));
    globalConfig->defaultSaveDir = m_folder->path(QStringLiteral("cards"));
    BoxScript boxes;
    boxes.expectFileDialog(saveDialog, QString(), [this](QWidget *dialog) {
        auto *chooser = qobject_cast<QFileDialog *>(dialog);
        QCOMPARE(chooser->directory().canonicalPath(), QDir(m_folder->path(QStringLiteral("cards"))).canonicalPath());
        QCOMPARE(chooser->nameFilters(), QStringList(QStringLiteral("*")));
        QCOMPARE(chooser->acceptMode(), QFileDialog::AcceptSave);
    });
    const Shown area(false);
    area.save();
    QCOMPARE(globalConfig->defaultSaveDir, m_folder->path(QStringLiteral("cards")));
}

void tst_MsgArea::aCancelledNameSavesNothing()
{
    BoxScript boxes;
    boxes.expectFileDialog(saveDialog, QString());
    const Shown area(false);
    area.window->setText(QStringLiteral("text"), true);
    area.save();
    QCOMPARE(QDir(m_folder->path(QString())).entryList(QDir::Files), QStringList(QStringLiteral("config.ini")));
}

void tst_MsgArea::shortcutsWork_data()
{
    QTest::addColumn<bool>("fileMode");
    QTest::newRow("message") << false;
    QTest::newRow("file") << true;
}

void tst_MsgArea::shortcutsWork()
{
    QFETCH(bool, fileMode);
    const QString path = m_folder->path(QStringLiteral("a.txt"));
    BoxScript boxes;
    if (!fileMode) {
        boxes.expectFileDialog(saveDialog, path);
    }
    boxes.expectBox(saveTitle, savedText, QMessageBox::Ok);
    const Shown area(fileMode);
    area.window->setText(path, true);
    area.edit()->setPlainText(QStringLiteral("after"));
    QVERIFY(QTest::qWaitForWindowActive(area.window));
    QTest::keyClick(area.edit(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_folder->read(QStringLiteral("a.txt")), QByteArray("after"));
    QApplication::setActiveWindow(area.window); // no window manager here gives it back what the box took
    QTest::keyClick(area.edit(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(area.isClosed());
}

void tst_MsgArea::aFileThatCannotBeWrittenIsReported()
{
    BoxScript boxes;
    boxes.expectBox(saveTitle, failedText, QMessageBox::Ok, QMessageBox::Warning);
    boxes.expectBox(unsavedTitle, unsavedText, QMessageBox::Yes);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("missing/a.txt")), true);
    area.type(QStringLiteral("x"));
    area.save();
    area.window->close();
    QVERIFY(area.isClosed());
}

void tst_MsgArea::aMessageThatCannotBeWrittenIsReported()
{
    BoxScript boxes;
    boxes.expectFileDialog(saveDialog, m_folder->path(QStringLiteral("missing/a.txt")));
    boxes.expectBox(saveTitle, failedText, QMessageBox::Ok, QMessageBox::Warning);
    const Shown area(false);
    area.window->setText(QStringLiteral("text"), true);
    area.save();
}

void tst_MsgArea::anEmptyTextThatCannotBeWrittenIsReported()
{
    BoxScript boxes;
    boxes.expectBox(saveTitle, failedText, QMessageBox::Ok, QMessageBox::Warning);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("missing/a.txt")), true);
    area.save();
}

void tst_MsgArea::aFullDeviceIsReported()
{
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        QSKIP("no device that is always full");
    }
    BoxScript boxes;
    boxes.expectBox(saveTitle, failedText, QMessageBox::Ok, QMessageBox::Warning);
    const Shown area(true);
    // Linked only after loading: the device gives zeros without end.
    area.window->setText(m_folder->path(QStringLiteral("full.txt")), true);
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), m_folder->path(QStringLiteral("full.txt"))));
    area.edit()->setPlainText(QStringLiteral("text"));
    area.save();
}

void tst_MsgArea::aWindowWithoutAFileReportsTheSave()
{
    BoxScript boxes;
    boxes.expectBox(saveTitle, failedText, QMessageBox::Ok, QMessageBox::Warning);
    const Shown area(true);
    area.type(QStringLiteral("x"));
    area.save();
}

void tst_MsgArea::leavingSaysWhetherTheTextWasTouched()
{
    m_folder->write(QStringLiteral("a.txt"), "text");
    const auto expectLine = [](BoxScript &boxes, const QString &line) {
        boxes.expectBox(unsavedTitle, unsavedText, QMessageBox::No, [line](QMessageBox *box) {
            QCOMPARE(box->informativeText(), line);
            QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
        });
    };
    BoxScript boxes;
    expectLine(boxes, QStringLiteral("Il testo non è stato toccato."));
    expectLine(boxes, QStringLiteral("Le modifiche al testo vanno perse."));
    boxes.expectBox(unsavedTitle, unsavedText, QMessageBox::Yes);
    const Shown area(true);
    area.window->setText(m_folder->path(QStringLiteral("a.txt")), true);
    area.window->close();
    area.type(QStringLiteral("x"));
    area.window->close();
    area.window->close();
    QVERIFY(area.isClosed());
}

QTEST_MAIN(tst_MsgArea)
#include "tst_MsgArea.moc"
