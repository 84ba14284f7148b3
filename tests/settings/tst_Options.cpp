// SPDX-License-Identifier: MIT
#include "MadeTranslations.h"
#include "msgarea/MsgArea.h"
#include "settings/Config.h"
#include "settings/Options.h"
#include "support/BoxScript.h"
#include "support/ScratchFolder.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QFile>
#include <QFrame>
#include <QGroupBox>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>
#include <QTranslator>
#include <QtTest>

namespace {
const QString title = QStringLiteral("Quintra - Opzioni");
const QString exitQuestion =
    QStringLiteral("Proseguire con la cancellazionede del file di configurazione e l'uscita dal programma?");
const QString resetQuestion = QStringLiteral("Proseguire con la cancellazionede del file di configurazione?");
const QString removedText = QStringLiteral("File di configurazione eliminato correttamente.");

// Stands for the main window: counts how often it is asked to close, and refuses when told so.
class Window final : public QWidget
{
public:
    int closings = 0;
    bool refuses = false;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ++closings;
        event->setAccepted(!refuses);
    }
};
} // namespace

class tst_Options final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFormHasItsTexts();
    void theDialogShowsItself();
    void theDialogHasNoParent();
    void itsTitleIsTranslatedWhole();
    void itsButtonsCloseAndDeleteIt_data();
    void itsButtonsCloseAndDeleteIt();
    void itOutlivesItsWindow();
    void itStaysOpenWhileItAsks();

    void resettingAndLeavingClosesTheWindow();
    void theWindowMayRefuseToClose();
    void resettingAndLeavingWithoutItsWindow();
    void resettingAndStayingLeavesTheWindow();
    void resettingTwiceReportsTheMissingFile();
    void aFailedResetDoesNotLeave();
    void answeringNoDoesNothing_data();
    void answeringNoDoesNothing();
    void theValuesInMemoryStay();
    void theNextStartIsAFirstStart();
    void theFileOfTheCurrentFolderIsRemoved();

    void theConfigurationOpensInAnEditor();
    void theEditorAsksBeforeItCloses();
    void bothResetsHaveNoAsDefaultAndSayWhatIsLost();

private:
    void click(const char *button) const;
    bool hasConfig() const;

    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
    std::unique_ptr<Window> m_window;
    QPointer<Options> m_options;
};

void tst_Options::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<CurrentConfig>(qApp);
    m_window = std::make_unique<Window>();
    m_window->show();
    m_options = new Options(m_window.get());
    m_options->setAttribute(Qt::WA_DeleteOnClose);
}

void tst_Options::cleanup()
{
    delete m_options;
    m_window.reset();
    m_config.reset();
    m_folder.reset();
}

void tst_Options::click(const char *button) const
{
    QTest::mouseClick(m_options->findChild<QPushButton *>(QString::fromLatin1(button)), Qt::LeftButton);
}

bool tst_Options::hasConfig() const
{
    return QFile::exists(m_folder->path(QStringLiteral("config.ini")));
}

void tst_Options::theFormHasItsTexts()
{
    QCOMPARE(m_options->windowTitle(), title);
    QVERIFY(!m_options->windowIcon().isNull());
    const auto groups = m_options->findChildren<QGroupBox *>();
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first()->title(), QStringLiteral("Impostazioni iniziali (per il prossimo avvio)"));
    QCOMPARE(groups.first()->toolTip(),
             QStringLiteral("Consente di ri-selezionare le opzioni al primo avvio del programma"));
    const auto *leave = m_options->findChild<QPushButton *>(QStringLiteral("butt_azzeraesci"));
    const auto *stay = m_options->findChild<QPushButton *>(QStringLiteral("butt_azzeracontinua"));
    const auto *edit = m_options->findChild<QPushButton *>(QStringLiteral("butt_formatselection"));
    QCOMPARE(leave->text(), QStringLiteral("Azzera ed esci"));
    QCOMPARE(stay->text(), QStringLiteral("Azzera e continua"));
    QCOMPARE(edit->text(), QStringLiteral("Modifica diretta"));
    QCOMPARE(edit->toolTip(), QStringLiteral("Modifica le impostazioni direttamente"));
    int separators = 0;
    for (const QFrame *frame : m_options->findChildren<QFrame *>()) {
        separators += frame->frameShape() == QFrame::HLine ? 1 : 0;
    }
    QCOMPARE(separators, 2);
    const auto *box = m_options->findChild<QDialogButtonBox *>();
    QCOMPARE(box->standardButtons(), QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void tst_Options::theDialogShowsItself()
{
    QVERIFY(m_options->isVisible());
    QCOMPARE(m_options->windowModality(), Qt::WindowModal);
}

void tst_Options::theDialogHasNoParent()
{
    QVERIFY(m_options->parent() == nullptr);
    QVERIFY(m_options->isWindow());
}

void tst_Options::itsTitleIsTranslatedWhole()
{
    const QString translated = QStringLiteral("Tutte le opzioni");
    const QByteArray made = madeTranslation({{QStringLiteral("Options"), title, translated}});
    QTranslator translator;
    QVERIFY(translator.load(reinterpret_cast<const uchar *>(made.constData()), made.size()));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    delete m_options;
    m_options = new Options(m_window.get());
    QCOMPARE(m_options->windowTitle(), translated);

    BoxScript boxes;
    boxes.expectBox(translated, resetQuestion, QMessageBox::Yes);
    boxes.expectBox(translated, removedText, QMessageBox::Ok);
    boxes.expectBox(translated, resetQuestion, QMessageBox::No);
    click("butt_azzeracontinua");
    click("butt_azzeracontinua");
}

void tst_Options::itsButtonsCloseAndDeleteIt_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("Ok") << static_cast<int>(QDialogButtonBox::Ok);
    QTest::newRow("Cancel") << static_cast<int>(QDialogButtonBox::Cancel);
}

void tst_Options::itsButtonsCloseAndDeleteIt()
{
    QFETCH(int, button);
    const auto *box = m_options->findChild<QDialogButtonBox *>();
    QTest::mouseClick(box->button(static_cast<QDialogButtonBox::StandardButton>(button)), Qt::LeftButton);
    QVERIFY(m_options.isNull() || !m_options->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_options.isNull());
    QVERIFY(hasConfig());
    QCOMPARE(m_window->closings, 0);
}

void tst_Options::itOutlivesItsWindow()
{
    m_window.reset();
    QVERIFY(!m_options.isNull());
    click("butt_formatselection");
    QVERIFY(m_options->findChild<MsgArea *>() != nullptr);
}

void tst_Options::itStaysOpenWhileItAsks()
{
    BoxScript boxes;
    boxes.expectBox(title, resetQuestion, QMessageBox::No, [this](QMessageBox *) {
        m_options->close();
        m_options->reject();
        QVERIFY(m_options->isVisible());
    });
    click("butt_azzeracontinua");
    m_options->close();
    QVERIFY(!m_options->isVisible());
}

void tst_Options::resettingAndLeavingClosesTheWindow()
{
    BoxScript boxes;
    boxes.expectBox(title, exitQuestion, QMessageBox::Yes, [](QMessageBox *box) {
        QCOMPARE(box->icon(), QMessageBox::Question);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    });
    boxes.expectBox(title, removedText, QMessageBox::Ok, [this](QMessageBox *box) {
        QCOMPARE(box->icon(), QMessageBox::Information);
        QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(m_window->closings, 0);
    });
    click("butt_azzeraesci");
    QVERIFY(!hasConfig());
    QCOMPARE(m_window->closings, 1);
    QVERIFY(!m_window->isVisible());
}

void tst_Options::theWindowMayRefuseToClose()
{
    m_window->refuses = true;
    BoxScript boxes;
    boxes.expectBox(title, exitQuestion, QMessageBox::Yes);
    boxes.expectBox(title, removedText, QMessageBox::Ok);
    click("butt_azzeraesci");
    QCOMPARE(m_window->closings, 1);
    QVERIFY(m_window->isVisible());
    QVERIFY(m_options->isVisible());
}

void tst_Options::resettingAndLeavingWithoutItsWindow()
{
    m_window.reset();
    BoxScript boxes;
    boxes.expectBox(title, exitQuestion, QMessageBox::Yes);
    boxes.expectBox(title, removedText, QMessageBox::Ok);
    click("butt_azzeraesci");
    QVERIFY(!hasConfig());
}

void tst_Options::resettingAndStayingLeavesTheWindow()
{
    BoxScript boxes;
    boxes.expectBox(title, resetQuestion, QMessageBox::Yes, QMessageBox::Question);
    boxes.expectBox(title, removedText, QMessageBox::Ok, QMessageBox::Information);
    click("butt_azzeracontinua");
    QVERIFY(!hasConfig());
    QCOMPARE(m_window->closings, 0);
    QVERIFY(m_window->isVisible());
}

void tst_Options::resettingTwiceReportsTheMissingFile()
{
    QFile missing(m_folder->path(QStringLiteral("missing")));
    QVERIFY(!missing.remove());
    const QString reason = missing.errorString();
    QVERIFY(!reason.isEmpty());
    BoxScript boxes;
    boxes.expectBox(title, resetQuestion, QMessageBox::Yes);
    boxes.expectBox(title, removedText, QMessageBox::Ok);
    boxes.expectBox(title, resetQuestion, QMessageBox::Yes);
    boxes.expectBox(title, QStringLiteral("Problema durante la cancellazione del file:\n ") + reason, QMessageBox::Ok,
                    QMessageBox::Warning);
    click("butt_azzeracontinua");
    click("butt_azzeracontinua");
}

void tst_Options::aFailedResetDoesNotLeave()
{
    QFile missing(m_folder->path(QStringLiteral("missing")));
    QVERIFY(!missing.remove());
    QVERIFY(QFile::remove(m_folder->path(QStringLiteral("config.ini"))));
    BoxScript boxes;
    boxes.expectBox(title, exitQuestion, QMessageBox::Yes);
    boxes.expectBox(title, QStringLiteral("Problema durante la cancellazione del file:\n ") + missing.errorString(),
                    QMessageBox::Ok, QMessageBox::Warning);
    click("butt_azzeraesci");
    QCOMPARE(m_window->closings, 0);
}

void tst_Options::answeringNoDoesNothing_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("answer");
    for (const auto answer : {QMessageBox::No, QMessageBox::Escape}) {
        const char *how = answer == QMessageBox::No ? "no" : "box closed";
        QTest::addRow("leaving, %s", how)
            << QStringLiteral("butt_azzeraesci") << exitQuestion << static_cast<int>(answer);
        QTest::addRow("staying, %s", how)
            << QStringLiteral("butt_azzeracontinua") << resetQuestion << static_cast<int>(answer);
    }
}

void tst_Options::answeringNoDoesNothing()
{
    QFETCH(QString, button);
    QFETCH(QString, question);
    QFETCH(int, answer);
    BoxScript boxes;
    boxes.expectBox(title, question, static_cast<QMessageBox::StandardButton>(answer));
    click(qPrintable(button));
    QVERIFY(hasConfig());
    QCOMPARE(m_window->closings, 0);
}

void tst_Options::theValuesInMemoryStay()
{
    globalConfig->nMax = 75;
    globalConfig->language = QStringLiteral("de_DE");
    BoxScript boxes;
    boxes.expectBox(title, resetQuestion, QMessageBox::Yes);
    boxes.expectBox(title, removedText, QMessageBox::Ok);
    click("butt_azzeracontinua");
    QCOMPARE(globalConfig->nMax, 75);
    QCOMPARE(globalConfig->language, QStringLiteral("de_DE"));
}

void tst_Options::theNextStartIsAFirstStart()
{
    QVERIFY(!Config(nullptr).isFirstStart());
    BoxScript boxes;
    boxes.expectBox(title, resetQuestion, QMessageBox::Yes);
    boxes.expectBox(title, removedText, QMessageBox::Ok);
    click("butt_azzeracontinua");
    QVERIFY(Config(nullptr).isFirstStart());
}

void tst_Options::theFileOfTheCurrentFolderIsRemoved()
{
    m_folder->write(QStringLiteral("other/config.ini"), "");
    QVERIFY(QDir::setCurrent(m_folder->path(QStringLiteral("other"))));
    BoxScript boxes;
    boxes.expectBox(title, removedText, QMessageBox::Ok);
    m_options->deleteConfig(false);
    QVERIFY(hasConfig());
    QVERIFY(!QFile::exists(m_folder->path(QStringLiteral("other/config.ini"))));
}

void tst_Options::theConfigurationOpensInAnEditor()
{
    click("butt_formatselection");
    const auto editors = m_options->findChildren<MsgArea *>();
    QCOMPARE(editors.size(), 1);
    QVERIFY(editors.first()->isVisible());
    QVERIFY(editors.first()->isWindow());
    QCOMPARE(editors.first()->windowModality(), Qt::WindowModal);
    const auto *edit = editors.first()->findChild<QTextEdit *>();
    QVERIFY(!edit->isReadOnly());
    QCOMPARE(edit->toPlainText().toUtf8(), m_folder->read(QStringLiteral("config.ini")));
}

void tst_Options::theEditorAsksBeforeItCloses()
{
    click("butt_formatselection");
    QPointer<MsgArea> editor = m_options->findChild<MsgArea *>();
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("Testo modificato"), QStringLiteral("Vuoi uscire senza salvare?"), QMessageBox::Yes);
    editor->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(editor.isNull());
}

void tst_Options::bothResetsHaveNoAsDefaultAndSayWhatIsLost()
{
    BoxScript boxes;
    for (const QString &question : {resetQuestion, exitQuestion}) {
        boxes.expectBox(title, question, QMessageBox::No, [](QMessageBox *box) {
            QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
            QCOMPARE(box->informativeText(), QStringLiteral("Le impostazioni di config.ini vanno perse."));
        });
    }
    click("butt_azzeracontinua");
    click("butt_azzeraesci");
}

QTEST_MAIN(tst_Options)
#include "tst_Options.moc"
