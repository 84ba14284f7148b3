// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"
#include "msgarea/MsgArea.h"
#include "settings/Config.h"
#include "settings/FormatSelection.h"
#include "settings/MadeTranslations.h"
#include "support/BoxScript.h"
#include "support/OrdinaryUser.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

namespace {
const QString warningTitle = QStringLiteral("Configurazione");
const QString warningText = QStringLiteral("Impossibile commentare il file, formato errato!");
const QString ownTitle = QStringLiteral("Quintra v0.704");

const QStringList sources = {
    QStringLiteral("Dialog"),
    QStringLiteral("Seleziona la lingua:"),
    QStringLiteral("Impostazioni di default: "),
    QStringLiteral("Impostazioni di default"),
    QStringLiteral("OK"),
    QStringLiteral("Configurazione"),
    QStringLiteral("Impossibile commentare il file, formato errato!"),
    QStringLiteral("Numeri - Minimo"),
    QStringLiteral("Numeri - Massimo"),
    QStringLiteral("Classica - Numero blocchi"),
    QStringLiteral("Classica - Numero righe per blocco"),
    QStringLiteral("Classica - Numero estrazioni per riga"),
    QStringLiteral("Classica - Numero colonne"),
    QStringLiteral("Classica - Numero jolly per riga"),
    QStringLiteral("Testo di base nelle celle"),
    QStringLiteral("Immagine di base nelle celle"),
    QStringLiteral("Directory di base dove salvare"),
    QStringLiteral("Lingua di default"),
    QStringLiteral("Quintra"),
};

// Every text of the dialog, with the language put before it.
QByteArray fileOf(const QString &language)
{
    QVector<MadeText> texts;
    for (const QString &text : sources) {
        texts.append({QStringLiteral("FormatSelection"), text, language + QLatin1Char(' ') + text});
    }
    return madeTranslation(texts);
}

QByteArray commentedIn(const QByteArray &language)
{
    const QByteArray here = QDir::currentPath().toUtf8();
    const QByteArray start = ";" + language;
    return "[General]\n" + start + "Classica - Numero blocchi\nCLASSIC_NBLOCKS=6\n" + start +
           "Classica - Numero colonne\nCLASSIC_NCOLS=9\n" + start +
           "Classica - Numero estrazioni per riga\nCLASSIC_NDRAWNxROW=5\n" + start +
           "Classica - Numero jolly per riga\nCLASSIC_NJOLLYxROW=0\n" + start +
           "Classica - Numero righe per blocco\nCLASSIC_NROWxBLOCK=3\n" + start +
           "Immagine di base nelle celle\nDEFAULT_CELL_IMAGE=" + here + "/default.png\n" + start +
           "Testo di base nelle celle\nDEFAULT_CELL_TEXT=TXT\n" + start +
           "Directory di base dove salvare\nDEFAULT_SAVE_DIR=" + here + "\n" + start +
           "Lingua di default\nLANGUAGE=" + QLocale::system().name().toUtf8() + "\n" + start +
           "Numeri - Massimo\nNMAX=90\n" + start + "Numeri - Minimo\nNMIN=1";
}
} // namespace

class tst_FormatSelection final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void theFormHasItsTexts();
    void everyInputHasALabelAndAToolTip();

    void languagesAreListedByNameIgnoringCase();
    void otherFilesAreNotListed();
    void otherNamesAreCutToFiveCharacters_data();
    void otherNamesAreCutToFiveCharacters();
    void withoutLanguagesNothingChanges_data();
    void withoutLanguagesNothingChanges();
    void anUnreadableFolderListsNothing();

    void theConfiguredLanguageIsChosen();
    void theFirstLanguageNeedsNoChoice();
    void aLanguageWithoutAFileLeavesTheFirst();
    void theChoiceMindsCase();
    void theLastOfEqualNamesIsChosen();
    void theSlotRunsForTheFirstLanguageFirst();

    void choosingALanguageChangesTheDialog();
    void choosingALanguageRewritesTheComments();
    void choosingALanguageLeavesTheKeysAlone();
    void theDialogGrowsWithItsTexts();
    void aBrokenTranslationShowsTheSourceTexts();
    void aMalformedConfigurationIsReportedAndReset();

    void theDefaultsOpenInAnEditor();
    void valuesSavedInTheEditorCountOnOk();
    void okKeepsTheChosenLanguage();
    void okIsPressedByEnter();
    void closingEndsWithoutReadingTheFile_data();
    void closingEndsWithoutReadingTheFile();
    void theLoopThatWaitsEnds_data();
    void theLoopThatWaitsEnds();

private:
    void offer(const QStringList &languages) const;
    QStringList listed(const FormatSelection &dialog) const;

    QByteArray m_english;
    QByteArray m_italian;
    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<GUtils> m_utils;
    std::unique_ptr<CurrentConfig> m_config;
};

void tst_FormatSelection::initTestCase()
{
    m_english = fileOf(QStringLiteral("EN"));
    m_italian = fileOf(QStringLiteral("IT"));
}

void tst_FormatSelection::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_utils = std::make_unique<GUtils>(qApp);
    m_config = std::make_unique<CurrentConfig>(qApp);
    globalUtils = m_utils.get();
}

void tst_FormatSelection::cleanup()
{
    globalUtils = nullptr;
    m_config.reset();
    m_utils.reset();
    m_folder.reset();
}

// Files with the English texts, except those that end in it_IT.
void tst_FormatSelection::offer(const QStringList &languages) const
{
    for (const QString &language : languages) {
        m_folder->write(QStringLiteral("language/Quintra_%1.qm").arg(language),
                        language == QLatin1String("it_IT") ? m_italian : m_english);
    }
}

QStringList tst_FormatSelection::listed(const FormatSelection &dialog) const
{
    const auto *box = dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"));
    QStringList names;
    for (int i = 0; i < box->count(); ++i) {
        names.append(box->itemText(i));
    }
    return names;
}

void tst_FormatSelection::theFormHasItsTexts()
{
    const FormatSelection dialog;
    QCOMPARE(dialog.windowTitle(), ownTitle);
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QVERIFY(!dialog.windowIcon().isNull());
    QMap<QString, int> pointSizes;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        pointSizes.insert(label->text(), label->font().pointSize());
    }
    const QMap<QString, int> expected = {{QStringLiteral("Quintra"), 26},
                                         {QStringLiteral("Seleziona la lingua:"), 20},
                                         {QStringLiteral("Impostazioni di default: "), 20}};
    QCOMPARE(pointSizes, expected);
    const auto *settings = dialog.findChild<QPushButton *>(QStringLiteral("default_settings"));
    QCOMPARE(settings->text(), QStringLiteral("..."));
    QCOMPARE(settings->toolTip(), QStringLiteral("Impostazioni di default"));
    const auto *ok = dialog.findChild<QPushButton *>(QStringLiteral("procedi"));
    QCOMPARE(ok->text(), QStringLiteral("OK"));
    QCOMPARE(ok->minimumSize(), QSize(150, 40));
    QCOMPARE(ok->font().pointSize(), 10);
    QVERIFY(ok->isDefault());
}

void tst_FormatSelection::everyInputHasALabelAndAToolTip()
{
    const FormatSelection dialog;
    QStringList buddies;
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        QVERIFY(label->toolTip().contains(ownTitle));
        if (label->buddy() != nullptr) {
            buddies.append(label->buddy()->objectName());
            QVERIFY(!label->buddy()->toolTip().isEmpty());
        }
    }
    buddies.sort();
    QCOMPARE(buddies, QStringList({QStringLiteral("default_settings"), QStringLiteral("lang_selection")}));
}

void tst_FormatSelection::languagesAreListedByNameIgnoringCase()
{
    offer({QStringLiteral("it_IT"), QStringLiteral("EN_us"), QStringLiteral("fr_FR"), QStringLiteral("en_GB"),
           QStringLiteral("DE_de")});
    const FormatSelection dialog;
    QCOMPARE(listed(dialog), QStringList({QStringLiteral("DE_de"), QStringLiteral("en_GB"), QStringLiteral("EN_us"),
                                          QStringLiteral("fr_FR"), QStringLiteral("it_IT")}));
    const auto *box = dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"));
    for (int i = 0; i < box->count(); ++i) {
        QVERIFY(box->itemIcon(i).isNull());
        QVERIFY(!box->itemData(i).isValid());
    }
}

void tst_FormatSelection::otherFilesAreNotListed()
{
    offer({QStringLiteral("en_GB")});
    for (const char *name :
         {"Quintra_de_DE.ts", "Other_de_DE.qm", "Quintra.qm", "default.png", "Quintra_de_DE.qm.old"}) {
        m_folder->write(QStringLiteral("language/") + QString::fromLatin1(name), m_english);
    }
    m_folder->write(QStringLiteral("Quintra_fr_FR.qm"), m_english);
    QVERIFY(QDir().mkdir(m_folder->path(QStringLiteral("language/Quintra_es_ES.qm"))));
    const FormatSelection dialog;
    QCOMPARE(listed(dialog), QStringList(QStringLiteral("en_GB")));
}

void tst_FormatSelection::otherNamesAreCutToFiveCharacters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("item");
    QTest::newRow("short") << QStringLiteral("en") << QStringLiteral("en.qm");
    QTest::newRow("very short") << QStringLiteral("e") << QStringLiteral("e.qm");
    QTest::newRow("none") << QString() << QStringLiteral(".qm");
    QTest::newRow("long") << QStringLiteral("en_GB_oxford") << QStringLiteral("en_GB");
}

void tst_FormatSelection::otherNamesAreCutToFiveCharacters()
{
    QFETCH(QString, name);
    QFETCH(QString, item);
    offer({name});
    const FormatSelection dialog;
    QCOMPARE(listed(dialog), QStringList(item));
    QCOMPARE(globalConfig->language, item);
}

void tst_FormatSelection::withoutLanguagesNothingChanges_data()
{
    QTest::addColumn<QString>("made");
    QTest::newRow("no folder") << QString();
    QTest::newRow("empty folder") << QStringLiteral("language/readme.txt");
    QTest::newRow("a file in place of the folder") << QStringLiteral("language");
}

void tst_FormatSelection::withoutLanguagesNothingChanges()
{
    QFETCH(QString, made);
    if (!made.isEmpty()) {
        m_folder->write(made, "text");
    }
    globalConfig->language = QStringLiteral("de_DE");
    const QByteArray before = m_folder->read(QStringLiteral("config.ini"));
    const FormatSelection dialog;
    QCOMPARE(listed(dialog), QStringList());
    QCOMPARE(globalConfig->language, QStringLiteral("de_DE"));
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), before);
}

void tst_FormatSelection::anUnreadableFolderListsNothing()
{
    const OrdinaryUser user(*m_folder);
    offer({QStringLiteral("en_GB")});
    const QString path = m_folder->path(QStringLiteral("language"));
    QVERIFY(QFile::setPermissions(path, {}));
    QStringList names;
    {
        const FormatSelection dialog;
        names = listed(dialog);
    }
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(names, QStringList());
}

void tst_FormatSelection::theConfiguredLanguageIsChosen()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    globalConfig->language = QStringLiteral("it_IT");
    const FormatSelection dialog;
    QCOMPARE(listed(dialog), QStringList({QStringLiteral("en_GB"), QStringLiteral("it_IT")}));
    QCOMPARE(dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->currentText(), QStringLiteral("it_IT"));
    QCOMPARE(globalConfig->language, QStringLiteral("it_IT"));
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn("IT "));
}

// The first run of the slot meets a malformed file, complains and resets it; a second run would comment it.
void tst_FormatSelection::theFirstLanguageNeedsNoChoice()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    globalConfig->language = QStringLiteral("en_GB");
    m_folder->write(QStringLiteral("config.ini"), "[General]\n\n");
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("EN ") + warningTitle, QStringLiteral("EN ") + warningText, QMessageBox::Ok,
                    QMessageBox::Warning);
    const FormatSelection dialog;
    QVERIFY(!m_folder->read(QStringLiteral("config.ini")).contains(';'));
    QCOMPARE(dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->currentIndex(), 0);
}

void tst_FormatSelection::aLanguageWithoutAFileLeavesTheFirst()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    globalConfig->language = QStringLiteral("de_DE");
    const FormatSelection dialog;
    QCOMPARE(dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->currentIndex(), 0);
    QCOMPARE(globalConfig->language, QStringLiteral("en_GB"));
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn("EN "));
}

void tst_FormatSelection::theChoiceMindsCase()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    globalConfig->language = QStringLiteral("it_it");
    const FormatSelection dialog;
    QCOMPARE(globalConfig->language, QStringLiteral("en_GB"));
}

void tst_FormatSelection::theLastOfEqualNamesIsChosen()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT"), QStringLiteral("it_IT_roma")});
    globalConfig->language = QStringLiteral("it_IT");
    const FormatSelection dialog;
    QCOMPARE(dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->currentIndex(), 2);
}

void tst_FormatSelection::theSlotRunsForTheFirstLanguageFirst()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    globalConfig->language = QStringLiteral("it_IT");
    m_folder->write(QStringLiteral("config.ini"), "[General]\n\n");
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("EN ") + warningTitle, QStringLiteral("EN ") + warningText, QMessageBox::Ok);
    const FormatSelection dialog;
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn("IT "));
}

void tst_FormatSelection::choosingALanguageChangesTheDialog()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    FormatSelection dialog;
    dialog.show();
    auto *box = dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"));
    for (const QString &language : {QStringLiteral("IT "), QStringLiteral("EN ")}) {
        QTest::keyClick(box, language == QLatin1String("IT ") ? Qt::Key_Down : Qt::Key_Up);
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("label_lingua"))->text(), language + sources[1]);
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("label_impostazioni"))->text(), language + sources[2]);
        QCOMPARE(dialog.findChild<QPushButton *>(QStringLiteral("default_settings"))->toolTip(), language + sources[3]);
        QCOMPARE(dialog.findChild<QPushButton *>(QStringLiteral("procedi"))->text(), language + sources[4]);
        QCOMPARE(dialog.findChild<QLabel *>(QStringLiteral("titolo"))->text(), language + sources.last());
        QCOMPARE(dialog.windowTitle(), ownTitle);
    }
}

void tst_FormatSelection::choosingALanguageRewritesTheComments()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    FormatSelection dialog;
    auto *box = dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"));
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn("EN "));
    box->setCurrentIndex(1);
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn("IT "));
    QCOMPARE(globalConfig->language, QStringLiteral("it_IT"));
    box->setCurrentIndex(0);
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn("EN "));
    QCOMPARE(globalConfig->language, QStringLiteral("en_GB"));
}

void tst_FormatSelection::choosingALanguageLeavesTheKeysAlone()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    m_folder->write(QStringLiteral("config.ini"),
                    m_folder->read(QStringLiteral("config.ini")).replace("=TXT", "=a; b, \\\\c \xe8"));
    FormatSelection dialog;
    dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->setCurrentIndex(1);
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn("IT ").replace("=TXT", "=a; b, \\\\c \xe8"));
}

void tst_FormatSelection::theDialogGrowsWithItsTexts()
{
    m_folder->write(QStringLiteral("language/Quintra_en_GB.qm"), m_english);
    m_folder->write(QStringLiteral("language/Quintra_xx_XX.qm"), fileOf(QStringLiteral("much longer texts")));
    FormatSelection dialog;
    dialog.show();
    const int before = dialog.width();
    dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->setCurrentIndex(1);
    QTRY_VERIFY(dialog.width() > before);
    for (const QLabel *label : dialog.findChildren<QLabel *>()) {
        QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
    }
}

void tst_FormatSelection::aBrokenTranslationShowsTheSourceTexts()
{
    offer({QStringLiteral("it_IT")});
    m_folder->write(QStringLiteral("language/Quintra_en_GB.qm"), "no translation at all");
    globalConfig->language = QStringLiteral("it_IT");
    FormatSelection dialog;
    auto *label = dialog.findChild<QLabel *>(QStringLiteral("label_lingua"));
    QCOMPARE(label->text(), QStringLiteral("IT ") + sources[1]);
    dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->setCurrentIndex(0);
    QCOMPARE(label->text(), sources[1]);
    QCOMPARE(m_folder->read(QStringLiteral("config.ini")), commentedIn(""));
}

void tst_FormatSelection::aMalformedConfigurationIsReportedAndReset()
{
    offer({QStringLiteral("en_GB")});
    m_folder->write(QStringLiteral("language/Quintra_xx_XX.qm"), "");
    FormatSelection dialog;
    m_folder->write(QStringLiteral("config.ini"), m_folder->read(QStringLiteral("config.ini")) + "\n\nNMAX=3\n");
    BoxScript boxes;
    boxes.expectBox(warningTitle, warningText, QMessageBox::Ok, [](QMessageBox *box) {
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    });
    dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->setCurrentIndex(1);
    const QByteArray content = m_folder->read(QStringLiteral("config.ini"));
    QCOMPARE(content.count('\n'), 12);
    QVERIFY(content.contains("NMAX=90\n"));
}

void tst_FormatSelection::theDefaultsOpenInAnEditor()
{
    offer({QStringLiteral("en_GB")});
    FormatSelection dialog;
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("default_settings")), Qt::LeftButton);
    const auto editors = dialog.findChildren<MsgArea *>();
    QCOMPARE(editors.size(), 1);
    QVERIFY(editors.first()->isVisible());
    QVERIFY(editors.first()->isWindow());
    QCOMPARE(editors.first()->windowModality(), Qt::WindowModal);
    const auto *edit = editors.first()->findChild<QTextEdit *>();
    QVERIFY(!edit->isReadOnly());
    QCOMPARE(edit->toPlainText().toUtf8(), commentedIn("EN "));
}

void tst_FormatSelection::valuesSavedInTheEditorCountOnOk()
{
    offer({QStringLiteral("en_GB")});
    FormatSelection dialog;
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("default_settings")), Qt::LeftButton);
    auto *editor = dialog.findChild<MsgArea *>();
    auto *edit = editor->findChild<QTextEdit *>();
    edit->setPlainText(edit->toPlainText().replace(QLatin1String("NMAX=90"), QLatin1String("NMAX=75")));
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("Salva"), QStringLiteral("File salvato con successo."), QMessageBox::Ok);
    editor->findChild<QAction *>(QStringLiteral("actionSalva"))->trigger();
    editor->close();
    QCOMPARE(globalConfig->nMax, 90);
    QSignalSpy done(&dialog, &FormatSelection::done);
    QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("procedi")), Qt::LeftButton);
    QCOMPARE(done.count(), 1);
    QCOMPARE(globalConfig->nMax, 75);
}

void tst_FormatSelection::okKeepsTheChosenLanguage()
{
    offer({QStringLiteral("en_GB"), QStringLiteral("it_IT")});
    FormatSelection dialog;
    dialog.show();
    dialog.findChild<QComboBox *>(QStringLiteral("lang_selection"))->setCurrentIndex(1);
    QTest::mouseClick(dialog.findChild<QPushButton *>(QStringLiteral("procedi")), Qt::LeftButton);
    QCOMPARE(globalConfig->language, QStringLiteral("it_IT"));
    QVERIFY(m_folder->read(QStringLiteral("config.ini"))
                .contains("\nLANGUAGE=" + QLocale::system().name().toUtf8() + "\n"));
}

void tst_FormatSelection::okIsPressedByEnter()
{
    FormatSelection dialog;
    dialog.show();
    QSignalSpy done(&dialog, &FormatSelection::done);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(done.count(), 1);
}

void tst_FormatSelection::closingEndsWithoutReadingTheFile_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("close button") << false;
    QTest::newRow("Escape") << true;
}

void tst_FormatSelection::closingEndsWithoutReadingTheFile()
{
    QFETCH(bool, byEscape);
    offer({QStringLiteral("en_GB")});
    FormatSelection dialog;
    dialog.show();
    m_folder->write(QStringLiteral("config.ini"),
                    m_folder->read(QStringLiteral("config.ini")).replace("NMAX=90", "NMAX=75"));
    QSignalSpy done(&dialog, &FormatSelection::done);
    if (byEscape) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        QVERIFY(dialog.close());
    }
    QCOMPARE(done.count(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(globalConfig->nMax, 90);
    QCOMPARE(globalConfig->language, QStringLiteral("en_GB"));
}

void tst_FormatSelection::theLoopThatWaitsEnds_data()
{
    QTest::addColumn<QString>("by");
    QTest::newRow("OK") << QStringLiteral("ok");
    QTest::newRow("close button") << QStringLiteral("close");
    QTest::newRow("Escape") << QStringLiteral("escape");
}

void tst_FormatSelection::theLoopThatWaitsEnds()
{
    QFETCH(QString, by);
    auto *dialog = new FormatSelection;
    dialog->show();
    QEventLoop loop;
    connect(dialog, &FormatSelection::done, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, dialog, [&]() {
        if (by == QLatin1String("ok")) {
            dialog->findChild<QPushButton *>(QStringLiteral("procedi"))->click();
        } else if (by == QLatin1String("close")) {
            dialog->close();
        } else {
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    });
    bool late = false;
    QTimer::singleShot(5000, &loop, [&]() {
        late = true;
        loop.quit();
    });
    loop.exec();
    delete dialog;
    QVERIFY(!late);
}

QTEST_MAIN(tst_FormatSelection)
#include "tst_FormatSelection.moc"
