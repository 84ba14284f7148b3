// SPDX-License-Identifier: MIT
#include "settings/Config.h"
#include "support/OrdinaryUser.h"
#include "support/ScratchFolder.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTemporaryFile>
#include <QtTest>

namespace {
const QStringList commentsInKeyOrder = {
    QStringLiteral("c nmin"),  QStringLiteral("c nmax"),      QStringLiteral("c blocks"),   QStringLiteral("c rows"),
    QStringLiteral("c drawn"), QStringLiteral("c cols"),      QStringLiteral("c jolly"),    QStringLiteral("c text"),
    QStringLiteral("c image"), QStringLiteral("c directory"), QStringLiteral("c language"),
};

bool comment(Config &config, const QStringList &c)
{
    return config.writeComments(c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8], c[9], c[10]);
}

QByteArray here()
{
    return QDir::currentPath().toUtf8();
}

QByteArray systemLanguage()
{
    return QLocale::system().name().toUtf8();
}

QByteArray plainDefaults()
{
    return "[General]\nCLASSIC_NBLOCKS=6\nCLASSIC_NCOLS=9\nCLASSIC_NDRAWNxROW=5\nCLASSIC_NJOLLYxROW=0\n"
           "CLASSIC_NROWxBLOCK=3\nDEFAULT_CELL_IMAGE=" +
           here() + "/default.png\nDEFAULT_CELL_TEXT=TXT\nDEFAULT_SAVE_DIR=" + here() +
           "\nLANGUAGE=" + systemLanguage() + "\nNMAX=90\nNMIN=1\n";
}

QByteArray commentedDefaults()
{
    return "[General]\n;c blocks\nCLASSIC_NBLOCKS=6\n;c cols\nCLASSIC_NCOLS=9\n;c drawn\nCLASSIC_NDRAWNxROW=5\n"
           ";c jolly\nCLASSIC_NJOLLYxROW=0\n;c rows\nCLASSIC_NROWxBLOCK=3\n;c image\nDEFAULT_CELL_IMAGE=" +
           here() + "/default.png\n;c text\nDEFAULT_CELL_TEXT=TXT\n;c directory\nDEFAULT_SAVE_DIR=" + here() +
           "\n;c language\nLANGUAGE=" + systemLanguage() + "\n;c nmax\nNMAX=90\n;c nmin\nNMIN=1";
}

// A complete file with other values than the defaults; `text` is written as it stands.
QByteArray fileWithText(const QByteArray &text)
{
    return "[General]\nCLASSIC_NBLOCKS=2\nCLASSIC_NCOLS=4\nCLASSIC_NDRAWNxROW=7\nCLASSIC_NJOLLYxROW=8\n"
           "CLASSIC_NROWxBLOCK=11\nDEFAULT_CELL_IMAGE=/pictures/a.png\nDEFAULT_CELL_TEXT=" +
           text + "\nDEFAULT_SAVE_DIR=/cards\nLANGUAGE=fr_FR\nNMAX=75\nNMIN=10\n";
}
} // namespace

class tst_Config final : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyFolderIsAFirstStartWithDefaults();
    void theSecondStartIsNoFirstStart();
    void theFieldsHoldTheDefaultsAfterAFirstStart();
    void everyKeyIsRead();
    void aMissingKeyReadsAsItsDefault_data();
    void aMissingKeyReadsAsItsDefault();
    void anUnreadableIntegerReadsAsZero_data();
    void anUnreadableIntegerReadsAsZero();
    void loadingWithoutAFileChangesNothing();
    void aFirstStartKeepsTheChosenLanguage();
    void aLaterStartReadsTheLanguage();
    void theFileFollowsTheCurrentFolder();
    void changesByOthersAreSeenAtOnce();
    void aChangeBetweenResetAndLoadIsSeen();
    void nothingIsWrittenBackAfterAReset();
    void theFileIsReadWithoutATemporaryFolder();

    void commentsMakeExactlyTwentyThreeLines();
    void commentsReplaceOlderOnes();
    void commentsAreLatin1();
    void keysKeepTheirBytesUnderComments_data();
    void keysKeepTheirBytesUnderComments();
    void aFileOfAnotherShapeIsReset_data();
    void aFileOfAnotherShapeIsReset();
    void linesEndedByWindowsEditorsAreUnderstood();
    void aMissingFileIsResetByComments();
    void aBlankBeforeTheSemicolonMakesNoComment();
    void aFileThatCannotBeWrittenIsLeftAlone();

    void textsSurviveWritingAndLoading_data();
    void textsSurviveWritingAndLoading();
    void textsTypedByHandSurviveLoading_data();
    void textsTypedByHandSurviveLoading();
    void aBackslashAtTheEndLeavesTheNextKeyAlone();

    void resettingReplacesEveryValue();
    void anUnreadableFileReadsAsDefaults();

    void theFolderOfAFileIsRemembered_data();
    void theFolderOfAFileIsRemembered();
    void aFolderThatIsMissingIsNotRemembered();

    void onlyUpperCasePdfIsAFormat();
    void everyFormatNameIsUnknown();
};

void tst_Config::anEmptyFolderIsAFirstStartWithDefaults()
{
    const ScratchFolder folder;
    const Config config(nullptr);
    QVERIFY(config.isFirstStart());
    QCOMPARE(folder.read(QStringLiteral("config.ini")), plainDefaults());
}

void tst_Config::theSecondStartIsNoFirstStart()
{
    const ScratchFolder folder;
    const Config first(nullptr);
    const Config second(nullptr);
    QVERIFY(first.isFirstStart());
    QVERIFY(!second.isFirstStart());
    QCOMPARE(folder.read(QStringLiteral("config.ini")), plainDefaults());
}

void tst_Config::theFieldsHoldTheDefaultsAfterAFirstStart()
{
    const ScratchFolder folder;
    const Config config(QCoreApplication::instance());
    QCOMPARE(config.nMin, 1);
    QCOMPARE(config.nMax, 90);
    QCOMPARE(config.classicNBlocks, 6);
    QCOMPARE(config.classicNRowxBlock, 3);
    QCOMPARE(config.classicNDrawnxRow, 5);
    QCOMPARE(config.classicNCols, 9);
    QCOMPARE(config.classicNJollyxRow, 0);
    QCOMPARE(config.defaultCellText, QStringLiteral("TXT"));
    QCOMPARE(config.defaultCellImage, QDir::currentPath() + QStringLiteral("/default.png"));
    QCOMPARE(config.defaultSaveDir, QDir::currentPath());
    QCOMPARE(config.language, QLocale::system().name());
    QCOMPARE(config.outputFormatId, 0);
    QCOMPARE(config.outputFormatName, QStringLiteral("PDF"));
    QCOMPARE(config.application, QCoreApplication::instance());
}

void tst_Config::everyKeyIsRead()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText("JOLLY"));
    const Config config(nullptr);
    QCOMPARE(config.classicNBlocks, 2);
    QCOMPARE(config.classicNCols, 4);
    QCOMPARE(config.classicNDrawnxRow, 7);
    QCOMPARE(config.classicNJollyxRow, 8);
    QCOMPARE(config.classicNRowxBlock, 11);
    QCOMPARE(config.defaultCellImage, QStringLiteral("/pictures/a.png"));
    QCOMPARE(config.defaultCellText, QStringLiteral("JOLLY"));
    QCOMPARE(config.defaultSaveDir, QStringLiteral("/cards"));
    QCOMPARE(config.language, QStringLiteral("fr_FR"));
    QCOMPARE(config.nMax, 75);
    QCOMPARE(config.nMin, 10);
}

void tst_Config::aMissingKeyReadsAsItsDefault_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("only the section") << QByteArray("[General]\n");
    QTest::newRow("keys of another section") << QByteArray("[Other]\nNMIN=7\nDEFAULT_CELL_TEXT=x\n");
    QTest::newRow("other keys") << QByteArray("[General]\nFOO=1\n");
    QTest::newRow("no text at all") << QByteArray("\x01\x02\xff=====\n\n[[[");
}

void tst_Config::aMissingKeyReadsAsItsDefault()
{
    QFETCH(QByteArray, content);
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), content);
    const Config config(nullptr);
    QVERIFY(!config.isFirstStart());
    QCOMPARE(config.nMin, 1);
    QCOMPARE(config.nMax, 90);
    QCOMPARE(config.classicNBlocks, 6);
    QCOMPARE(config.classicNRowxBlock, 3);
    QCOMPARE(config.classicNDrawnxRow, 5);
    QCOMPARE(config.classicNCols, 9);
    QCOMPARE(config.classicNJollyxRow, 0);
    QCOMPARE(config.defaultCellText, QStringLiteral("TXT"));
    QCOMPARE(config.defaultCellImage, QDir::currentPath() + QStringLiteral("/default.png"));
    QCOMPARE(config.defaultSaveDir, QDir::currentPath());
    QCOMPARE(config.language, QLocale::system().name());
    QCOMPARE(folder.read(QStringLiteral("config.ini")), content);
}

void tst_Config::anUnreadableIntegerReadsAsZero_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("read");
    QTest::newRow("a word") << QByteArray("dieci") << 0;
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("a fraction") << QByteArray("1.5") << 0;
    QTest::newRow("a list") << QByteArray("1,2") << 0;
    QTest::newRow("too large") << QByteArray("99999999999") << 0;
    QTest::newRow("negative is an integer") << QByteArray("-3") << -3;
    QTest::newRow("blanks around are dropped") << QByteArray("  12  ") << 12;
}

void tst_Config::anUnreadableIntegerReadsAsZero()
{
    QFETCH(QByteArray, typed);
    QFETCH(int, read);
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), "[General]\nNMIN=" + typed + "\n");
    const Config config(nullptr);
    QCOMPARE(config.nMin, read);
    QCOMPARE(config.nMax, 90);
}

void tst_Config::loadingWithoutAFileChangesNothing()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText("JOLLY"));
    Config config(nullptr);
    QVERIFY(QFile::remove(folder.path(QStringLiteral("config.ini"))));
    QVERIFY(!config.load());
    QCOMPARE(config.nMin, 10);
    QCOMPARE(config.defaultCellText, QStringLiteral("JOLLY"));
    QVERIFY(!QFile::exists(folder.path(QStringLiteral("config.ini"))));
}

void tst_Config::aFirstStartKeepsTheChosenLanguage()
{
    const ScratchFolder folder;
    Config config(nullptr);
    config.language = QStringLiteral("de_DE");
    folder.write(QStringLiteral("config.ini"), fileWithText("JOLLY"));
    QVERIFY(config.load());
    QCOMPARE(config.language, QStringLiteral("de_DE"));
    QCOMPARE(config.defaultCellText, QStringLiteral("JOLLY"));
    QVERIFY(config.isFirstStart());
}

void tst_Config::aLaterStartReadsTheLanguage()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText("JOLLY"));
    Config config(nullptr);
    config.language = QStringLiteral("de_DE");
    QVERIFY(config.load());
    QCOMPARE(config.language, QStringLiteral("fr_FR"));
}

void tst_Config::theFileFollowsTheCurrentFolder()
{
    const ScratchFolder folder;
    Config config(nullptr);
    folder.write(QStringLiteral("other/config.ini"), fileWithText("JOLLY"));
    QVERIFY(QDir::setCurrent(folder.path(QStringLiteral("other"))));
    QVERIFY(config.load());
    QCOMPARE(config.defaultCellText, QStringLiteral("JOLLY"));
    config.resetDefaults();
    QCOMPARE(folder.read(QStringLiteral("other/config.ini")), plainDefaults());
}

// Files of one size, written within one tick of the file system's clock.
void tst_Config::changesByOthersAreSeenAtOnce()
{
    const ScratchFolder folder;
    Config config(nullptr);
    for (int i = 100; i < 200; ++i) {
        folder.write(QStringLiteral("config.ini"), fileWithText(QByteArray::number(i)));
        QVERIFY(config.load());
        QCOMPARE(config.defaultCellText, QString::number(i));
    }
}

void tst_Config::aChangeBetweenResetAndLoadIsSeen()
{
    const ScratchFolder folder;
    Config config(nullptr);
    for (int i = 0; i < 20; ++i) {
        config.resetDefaults();
        QCOMPARE(folder.read(QStringLiteral("config.ini")), plainDefaults());
        folder.write(QStringLiteral("config.ini"), plainDefaults().replace("=TXT", "=ABC"));
        QVERIFY(config.load());
        QCOMPARE(config.defaultCellText, QStringLiteral("ABC"));
    }
}

void tst_Config::nothingIsWrittenBackAfterAReset()
{
    const ScratchFolder folder;
    Config config(nullptr);
    config.resetDefaults();
    folder.write(QStringLiteral("config.ini"), fileWithText("JOLLY"));
    QVERIFY(config.load());
    QTest::qWait(20);
    QCOMPARE(folder.read(QStringLiteral("config.ini")), fileWithText("JOLLY"));
}

void tst_Config::theFileIsReadWithoutATemporaryFolder()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText("JOLLY"));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // nobody makes files there
    QVERIFY(!QTemporaryFile().open());
    const Config config(nullptr);
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QCOMPARE(config.defaultCellText, QStringLiteral("JOLLY"));
    QCOMPARE(config.nMax, 75);
}

void tst_Config::commentsMakeExactlyTwentyThreeLines()
{
    const ScratchFolder folder;
    Config config(nullptr);
    QVERIFY(comment(config, commentsInKeyOrder));
    const QByteArray content = folder.read(QStringLiteral("config.ini"));
    QCOMPARE(content, commentedDefaults());
    QCOMPARE(content.split('\n').size(), 23);
    QVERIFY(!content.contains('\r'));
}

void tst_Config::commentsReplaceOlderOnes()
{
    const ScratchFolder folder;
    Config config(nullptr);
    QStringList first;
    for (const QString &text : commentsInKeyOrder) {
        first.append(text + QStringLiteral(" of the first time"));
    }
    QVERIFY(comment(config, first));
    QVERIFY(folder.read(QStringLiteral("config.ini")).contains("first time"));
    QVERIFY(comment(config, commentsInKeyOrder));
    QCOMPARE(folder.read(QStringLiteral("config.ini")), commentedDefaults());
    QVERIFY(comment(config, commentsInKeyOrder));
    QCOMPARE(folder.read(QStringLiteral("config.ini")), commentedDefaults());
}

void tst_Config::commentsAreLatin1()
{
    const ScratchFolder folder;
    Config config(nullptr);
    QStringList accented = commentsInKeyOrder;
    accented[2] = QStringLiteral("Blöcke è");
    QVERIFY(comment(config, accented));
    QVERIFY(folder.read(QStringLiteral("config.ini"))
                .contains("\n;Bl\xf6"
                          "cke \xe8\nCLASSIC_NBLOCKS=6\n"));
}

void tst_Config::keysKeepTheirBytesUnderComments_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::newRow("commas") << QByteArray("a, b,c");
    QTest::newRow("semicolon") << QByteArray("a;b");
    QTest::newRow("quoted") << QByteArray("\"a;b, c=d\"");
    QTest::newRow("backslashes") << QByteArray("C:\\\\x\\y\\");
    QTest::newRow("Latin-1") << QByteArray("caff\xe8");
    QTest::newRow("escaped") << QByteArray("caff\\xe8");
    QTest::newRow("UTF-8") << QByteArray("caff\xc3\xa8");
    QTest::newRow("equals signs") << QByteArray("a=b=c");
    QTest::newRow("blanks at the end") << QByteArray("a  ");
}

void tst_Config::keysKeepTheirBytesUnderComments()
{
    QFETCH(QByteArray, typed);
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText(typed));
    Config config(nullptr);
    QVERIFY(comment(config, commentsInKeyOrder));
    const QList<QByteArray> lines = folder.read(QStringLiteral("config.ini")).split('\n');
    QCOMPARE(lines.size(), 23);
    QCOMPARE(lines[13], QByteArray(";c text"));
    QCOMPARE(lines[14], "DEFAULT_CELL_TEXT=" + typed);
    QCOMPARE(lines[15], QByteArray(";c directory"));
}

void tst_Config::aFileOfAnotherShapeIsReset_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("blank line at the end") << fileWithText("x") + "\n";
    QTest::newRow("blank line in the middle") << fileWithText("x\n");
    QTest::newRow("one key more") << fileWithText("x") + "OTHER=1\n";
    QTest::newRow("one key less") << fileWithText("x").replace("NMIN=10\n", "");
    QTest::newRow("empty") << QByteArray();
}

void tst_Config::aFileOfAnotherShapeIsReset()
{
    QFETCH(QByteArray, content);
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), content);
    Config config(nullptr);
    QVERIFY(!comment(config, commentsInKeyOrder));
    QCOMPARE(folder.read(QStringLiteral("config.ini")), plainDefaults());
    QCOMPARE(config.nMin, 1);
    QCOMPARE(config.defaultCellText, QStringLiteral("TXT"));
    QCOMPARE(config.language, QLocale::system().name());
    QVERIFY(comment(config, commentsInKeyOrder));
    QCOMPARE(folder.read(QStringLiteral("config.ini")), commentedDefaults());
}

void tst_Config::linesEndedByWindowsEditorsAreUnderstood()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), plainDefaults().replace("\n", "\r\n"));
    Config config(nullptr);
    QCOMPARE(config.defaultCellText, QStringLiteral("TXT"));
    QVERIFY(comment(config, commentsInKeyOrder));
    QCOMPARE(folder.read(QStringLiteral("config.ini")), commentedDefaults());
}

void tst_Config::aMissingFileIsResetByComments()
{
    const ScratchFolder folder;
    Config config(nullptr);
    QVERIFY(QFile::remove(folder.path(QStringLiteral("config.ini"))));
    QVERIFY(!comment(config, commentsInKeyOrder));
    QCOMPARE(folder.read(QStringLiteral("config.ini")), plainDefaults());
}

void tst_Config::aBlankBeforeTheSemicolonMakesNoComment()
{
    const ScratchFolder folder;
    Config config(nullptr);
    folder.write(QStringLiteral("config.ini"), plainDefaults().replace("NMIN=1\n", " ;x\n"));
    QVERIFY(comment(config, commentsInKeyOrder));
    QVERIFY(folder.read(QStringLiteral("config.ini")).endsWith("\n;c nmin\n ;x"));
    QVERIFY(config.load());
    QCOMPARE(config.nMin, 1);
}

void tst_Config::aFileThatCannotBeWrittenIsLeftAlone()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Config config(nullptr);
    QVERIFY(QFile::setPermissions(folder.path(QStringLiteral("config.ini")), QFile::ReadOwner));
    QVERIFY(comment(config, commentsInKeyOrder));
    QCOMPARE(folder.read(QStringLiteral("config.ini")), plainDefaults());
}

void tst_Config::textsSurviveWritingAndLoading_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("comma") << QStringLiteral("uno,due, tre");
    QTest::newRow("semicolon") << QStringLiteral(";uno;due;");
    QTest::newRow("backslashes") << QStringLiteral("C:\\immagini\\nuove\\");
    QTest::newRow("accents") << QStringLiteral("è ù caffèa");
    QTest::newRow("outside Latin-1") << QStringLiteral("€ Ω");
    QTest::newRow("quotes") << QStringLiteral("\"a\", \"b\"");
    QTest::newRow("equals sign") << QStringLiteral("a=b");
    QTest::newRow("at sign") << QStringLiteral("@casa");
    QTest::newRow("blanks around") << QStringLiteral("  a  ");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("percent and digits") << QStringLiteral("%20 \x01"
                                                          "f");
}

void tst_Config::textsSurviveWritingAndLoading()
{
    QFETCH(QString, text);
    const ScratchFolder folder;
    Config config(nullptr);
    {
        QSettings file(Config::filePath(), QSettings::IniFormat);
        for (const char *key : {"DEFAULT_CELL_TEXT", "DEFAULT_CELL_IMAGE", "DEFAULT_SAVE_DIR"}) {
            file.setValue(QString::fromLatin1(key), text);
        }
    }
    for (int i = 0; i < 3; ++i) {
        QVERIFY(config.load());
        QCOMPARE(config.defaultCellText, text);
        QCOMPARE(config.defaultCellImage, text);
        QCOMPARE(config.defaultSaveDir, text);
        QCOMPARE(config.nMin, 1);
        QVERIFY(comment(config, commentsInKeyOrder));
    }
}

void tst_Config::textsTypedByHandSurviveLoading_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("comma") << QByteArray("uno,due") << QStringLiteral("uno,due");
    QTest::newRow("comma and blank") << QByteArray("uno,  due") << QStringLiteral("uno,  due");
    QTest::newRow("comma at the ends") << QByteArray(",uno,") << QStringLiteral(",uno,");
    QTest::newRow("semicolon") << QByteArray("uno;due") << QStringLiteral("uno;due");
    QTest::newRow("semicolon first") << QByteArray(";uno") << QStringLiteral(";uno");
    QTest::newRow("both, and a backslash") << QByteArray("a;b,c\\\\d") << QStringLiteral("a;b,c\\d");
    QTest::newRow("backslash at the end") << QByteArray("a,b\\") << QStringLiteral("a,b\\");
    QTest::newRow("Latin-1") << QByteArray("caff\xe8, t\xe8") << QStringLiteral("caffè, tè");
    QTest::newRow("quoted") << QByteArray("\"uno;due\"") << QStringLiteral("uno;due");
    QTest::newRow("slashes") << QByteArray("/a b/c") << QStringLiteral("/a b/c");
    QTest::newRow("equals sign") << QByteArray("a=b,c") << QStringLiteral("a=b,c");
}

void tst_Config::textsTypedByHandSurviveLoading()
{
    QFETCH(QByteArray, typed);
    QFETCH(QString, text);
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText(typed));
    Config config(nullptr);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(config.defaultCellText, text);
        QCOMPARE(config.defaultSaveDir, QStringLiteral("/cards"));
        QCOMPARE(config.nMin, 10);
        QVERIFY(comment(config, commentsInKeyOrder));
        QVERIFY(config.load());
    }
}

void tst_Config::aBackslashAtTheEndLeavesTheNextKeyAlone()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText("C:\\\\carte\\"));
    const Config config(nullptr);
    QCOMPARE(config.defaultCellText, QStringLiteral("C:\\carte\\"));
    QCOMPARE(config.defaultSaveDir, QStringLiteral("/cards"));
}

void tst_Config::resettingReplacesEveryValue()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), fileWithText("JOLLY") + "OTHER=1\n[Section]\nx=y\n");
    Config config(nullptr);
    config.resetDefaults();
    QCOMPARE(folder.read(QStringLiteral("config.ini")), plainDefaults());
    QCOMPARE(config.nMax, 90);
    QCOMPARE(config.classicNRowxBlock, 3);
    QCOMPARE(config.defaultSaveDir, QDir::currentPath());
    QCOMPARE(config.language, QLocale::system().name());
    QVERIFY(!config.isFirstStart());
}

void tst_Config::anUnreadableFileReadsAsDefaults()
{
    const ScratchFolder folder;
    QVERIFY(QDir().mkdir(folder.path(QStringLiteral("config.ini"))));
    Config config(nullptr);
    QVERIFY(!config.isFirstStart());
    QCOMPARE(config.nMax, 90);
    QCOMPARE(config.defaultCellText, QStringLiteral("TXT"));
    QVERIFY(!comment(config, commentsInKeyOrder));
}

void tst_Config::theFolderOfAFileIsRemembered_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folder");
    QTest::newRow("in another folder") << QStringLiteral("%1/cards/set.pdf") << QStringLiteral("%1/cards");
    QTest::newRow("of a file not yet there") << QStringLiteral("%1/cards/new.pdf") << QStringLiteral("%1/cards");
    QTest::newRow("with a dot") << QStringLiteral("%1/v1.0/set") << QStringLiteral("%1/v1.0");
    QTest::newRow("below the current one") << QStringLiteral("cards/set.pdf") << QStringLiteral("%1/cards");
    QTest::newRow("the current one") << QStringLiteral("set.pdf") << QStringLiteral("%1");
}

void tst_Config::theFolderOfAFileIsRemembered()
{
    QFETCH(QString, file);
    QFETCH(QString, folder);
    const ScratchFolder scratch;
    scratch.write(QStringLiteral("cards/set.pdf"), "");
    scratch.write(QStringLiteral("v1.0/set"), "");
    Config config(nullptr);
    config.defaultSaveDir = QStringLiteral("/before");
    const QByteArray written = scratch.read(QStringLiteral("config.ini"));

    QVERIFY(config.rememberFolder(file.contains(QLatin1Char('%')) ? file.arg(QDir::currentPath()) : file));
    QCOMPARE(config.defaultSaveDir, folder.arg(QDir::currentPath()));
    QCOMPARE(scratch.read(QStringLiteral("config.ini")), written); // only in memory
}

void tst_Config::aFolderThatIsMissingIsNotRemembered()
{
    const ScratchFolder scratch;
    Config config(nullptr);
    config.defaultSaveDir = QStringLiteral("/before");
    QVERIFY(!config.rememberFolder(scratch.path(QStringLiteral("missing/set.pdf"))));
    QCOMPARE(config.defaultSaveDir, QStringLiteral("/before"));
}

void tst_Config::onlyUpperCasePdfIsAFormat()
{
    const ScratchFolder folder;
    const Config config(nullptr);
    QCOMPARE(config.formatId(QStringLiteral("PDF")), 0);
    QCOMPARE(config.formatId(QStringLiteral("pdf")), -1);
    QCOMPARE(config.formatId(QString()), -1);
}

void tst_Config::everyFormatNameIsUnknown()
{
    const ScratchFolder folder;
    const Config config(nullptr);
    QCOMPARE(config.formatName(5), QStringLiteral("UNKNOWN"));
    QCOMPARE(config.formatName(0), QStringLiteral("UNKNOWN"));
    QCOMPARE(config.formatName(-1), QStringLiteral("UNKNOWN"));
}

QTEST_GUILESS_MAIN(tst_Config)
#include "tst_Config.moc"
