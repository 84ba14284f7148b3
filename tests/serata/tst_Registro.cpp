// SPDX-License-Identifier: MIT
#include "serata/Registro.h"

#include "serata/MadeCards.h"
#include "support/FileFaults.h"
#include "support/ResourceLimit.h"
#include "support/ScratchFolder.h"

#include <QBuffer>
#include <QTest>

#include <cerrno>

using Registro::Motivo;

namespace {
QByteArray written(const Cartella &set)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return Registro::write(buffer, set) ? bytes : QByteArray("not written");
}

Registro::Lettura readBytes(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return Registro::read(buffer);
}

// The set of one card whose only cell has this text.
std::unique_ptr<Cartella> setOfText(const QString &text)
{
    auto set = std::make_unique<Cartella>(U8(1), U8(1), U8(1));
    set->pagine[0]->blocchi[0] = blockOf({{1, 1}, {{{CELL_TESTO, 0, text}}}});
    return set;
}

// Takes so many bytes, then no more.
class FullDevice final : public QBuffer
{
public:
    explicit FullDevice(qint64 room)
        : m_room(room)
    {
    }

protected:
    qint64 writeData(const char *data, qint64 length) override
    {
        if (length > m_room) {
            return -1;
        }
        m_room -= length;
        return QBuffer::writeData(data, length);
    }

private:
    qint64 m_room;
};

const QByteArray good("1;1;|;5\n");
} // namespace

class tst_Registro final : public QObject
{
    Q_OBJECT

private slots:
    void everyCardIsALine();
    void emptyCardsAndRowsHaveTheirLines();
    void anEmptySetIsAnEmptyText();
    void textsAreLatin1InQuotes_data();
    void textsAreLatin1InQuotes();
    void everyTextIsReadBack_data();
    void everyTextIsReadBack();
    void aSetIsReadBack();
    void aDeviceThatIsFullIsToldOf();
    void aFileIsWrittenWhole();
    void afterAnyFaultTheOldRegisterIsThere();
    void aFullDiskIsToldOfByItsReason();
    void aDiskWithoutRoomForANewFileKeepsTheOldOne();
    void aRegisterIsThatOfOneSetOnly();
    void aFileThatFailsIsReadUntilThen_data();
    void aFileThatFailsIsReadUntilThen();
    void linesInAnyOrderAreReadInTheOrderOfThePositions();
    void lineEndsOfWindowsAreRead();
    void oddLinesAreSkipped_data();
    void oddLinesAreSkipped();
    void aTextThatWasCutLosesOnlyItsLastLine();
    void linesOfAnyLengthAreRead();
    void aLineLongerThanAnyCardIsSkipped_data();
    void aLineLongerThanAnyCardIsSkipped();
    void longTextsAreReadBack_data();
    void longTextsAreReadBack();
    void textsTooLongToBeReadBackAreRefused();
    void asManyRowsAndCellsAsACardHasAreRead();
    void otherFilesGiveNoCards_data();
    void otherFilesGiveNoCards();
    void neighbouringLinesSkippedForOneReasonAreOneEntry();
    void theSkippedLinesAreDescribed();
    void aLongListOfSkippedLinesIsCut();
};

void tst_Registro::everyCardIsALine()
{
    Cartella set(2, 2, 3, 3);
    set.pagine[0]->blocchi[0] =
        blockOf(made({1, 1}, {QStringLiteral("5 - 34"), QStringLiteral("- 17 *"), QStringLiteral("jolly 88 -")}));
    set.pagine[1]->blocchi[1] = blockOf(made({2, 2}, {QStringLiteral("0 999999 10")}));
    QCOMPARE(written(set), QByteArray("1;1;|;5;;34;|;;17;immagine;|;\"jolly\";88;\n"
                                      "1;2;|;;;;|;;;;|;;;\n"
                                      "2;1;|;;;;|;;;;|;;;\n"
                                      "2;2;|;0;999999;10\n"));
}

void tst_Registro::emptyCardsAndRowsHaveTheirLines()
{
    Cartella set;
    set.generateBlock(1, 0, 9);
    set.generateBlock(1, 2, 0);
    set.generateBlock(1, 1, 1);
    QCOMPARE(written(set), QByteArray("1;1\n2;1;|;|\n3;1;|;\n"));
    QVERIFY(readBytes(written(set)).schede == schedeOf(set));
}

void tst_Registro::anEmptySetIsAnEmptyText()
{
    QCOMPARE(written(Cartella()), QByteArray(""));
    QVERIFY(readBytes(QByteArray()).schede.empty());
    QVERIFY(readBytes(QByteArray()).saltate.empty());
}

void tst_Registro::textsAreLatin1InQuotes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QString() << QByteArray("\"\"");
    QTest::newRow("plain") << QStringLiteral("a b") << QByteArray("\"a b\"");
    QTest::newRow("separator and row mark") << QStringLiteral("a;|;b") << QByteArray("\"a;|;b\"");
    QTest::newRow("quotes") << QStringLiteral("a\"b") << QByteArray("\"a\"\"b\"");
    QTest::newRow("backslash") << QStringLiteral("a\\b") << QByteArray("\"a\\\\b\"");
    QTest::newRow("Latin-1") << QString(QChar(0xe0)) + QChar(0xff) << QByteArray("\"\xe0\xff\"");
    QTest::newRow("above Latin-1") << QString(QChar(0x20ac)) << QByteArray("\"\\u20ac\"");
    QTest::newRow("first above Latin-1") << QString(QChar(0x100)) << QByteArray("\"\\u0100\"");
    QTest::newRow("beyond 16 bits") << QString::fromUcs4(U"\U0001f600", 1) << QByteArray("\"\\ud83d\\ude00\"");
    QTest::newRow("line ends") << QStringLiteral("a\r\nb") << QByteArray("\"a\\u000d\\u000ab\"");
    QTest::newRow("the next-line character of Latin-1") << QString(QChar(0x85)) << QByteArray("\"\\u0085\"");
}

void tst_Registro::textsAreLatin1InQuotes()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(written(*setOfText(text)), "1;1;|;" + bytes + '\n');
}

void tst_Registro::everyTextIsReadBack_data()
{
    textsAreLatin1InQuotes_data();
    QTest::newRow("the escape itself") << QStringLiteral("\\u20ac") << QByteArray();
    QTest::newRow("half of a pair") << QString(QChar(0xd83d)) << QByteArray();
    QTest::newRow("null character") << QString(QChar(0)) << QByteArray();
    QTest::newRow("a number") << QStringLiteral("12") << QByteArray();
    QTest::newRow("the word of a picture") << QStringLiteral("immagine") << QByteArray();
    QTest::newRow("nothing but quotes") << QStringLiteral("\"\"\"") << QByteArray();
    QString all;
    for (int code = 0; code <= 0xffff; ++code) {
        all += QChar(code);
    }
    QTest::newRow("every character") << all << QByteArray();
}

void tst_Registro::everyTextIsReadBack()
{
    QFETCH(QString, text);
    const Registro::Lettura reading = readBytes(written(*setOfText(text)));
    QVERIFY(reading.saltate.empty());
    QCOMPARE(reading.schede.size(), size_t(1));
    QCOMPARE(int(reading.schede[0].righe[0][0].tipo), int(CELL_TESTO));
    QVERIFY(reading.schede[0].righe[0][0].testo == text); // QCOMPARE stops at a null character
}

void tst_Registro::aSetIsReadBack()
{
    Cartella set;
    set.generateBlock(2, 2, 4);
    set.generateBlock(1, 1, 3);
    set.pagine[0]->blocchi[1] = blockOf(made({1, 2}, {QStringLiteral("1 - * 999999"), QStringLiteral("jolly 0 - 34")}));
    set.pagine[1]->blocchi[0] = blockOf(made({2, 1}, {QStringLiteral("7 8 9")}));
    const Registro::Lettura reading = readBytes(written(set));
    QVERIFY(reading.saltate.empty());
    QVERIFY(reading.schede == schedeOf(set));
    QVERIFY(!reading.schede[1].righe.empty());
    const Pagina &last = *set.pagine[1];
    QVERIFY(written(set).endsWith(Registro::lineOf(last.blocchi[0], {2, 1})));
}

void tst_Registro::aDeviceThatIsFullIsToldOf()
{
    const Cartella set(3, 1, 1, 1);
    const qint64 needed = written(set).size();
    FullDevice roomy(needed);
    roomy.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    QVERIFY(Registro::write(roomy, set));
    FullDevice full(needed - 1);
    full.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    QVERIFY(!Registro::write(full, set));
}

void tst_Registro::aFileIsWrittenWhole()
{
    const ScratchFolder folder;
    const Cartella set(3, 6, 3, 9);
    QString reason;
    QVERIFY(Registro::save(QStringLiteral("natale.csv"), set, reason));
    QCOMPARE(folder.read(QStringLiteral("natale.csv")), written(set));
    QCOMPARE(reason, QString());
    QVERIFY(!Registro::save(QStringLiteral("missing/natale.csv"), set, reason));
    QVERIFY(!reason.isEmpty());
}

void tst_Registro::afterAnyFaultTheOldRegisterIsThere()
{
    const ScratchFolder folder;
    const QString name = QStringLiteral("natale.csv");
    const Cartella set(200, 6, 3, 9); // more than one write
    bool reached = true;
    int callsAfterTheFile = 0;
    for (int call = 1; reached; ++call) {
        folder.write(name, good);
        QString reason;
        bool saved = false;
        {
            const FileFaults faults(folder.path(QString()), FileFaults::Calls::Changes, call,
                                    FileFaults::Effect::LastingError);
            saved = Registro::save(folder.path(name), set, reason);
            reached = FileFaults::seen() >= call;
        }
        QCOMPARE(folder.read(name), saved ? written(set) : good);
        QCOMPARE(reason.isEmpty(), saved);
        QVERIFY(saved || reached);
        callsAfterTheFile += saved && reached ? 1 : 0;
    }
    QCOMPARE(callsAfterTheFile, 2); // the folder is synced and closed
}

void tst_Registro::aFullDiskIsToldOfByItsReason()
{
    const ScratchFolder folder;
    const QString name = QStringLiteral("natale.csv");
    const Cartella set(200, 6, 3, 9);
    const auto whole = static_cast<rlim_t>(written(set).size());
    for (const rlim_t room : {rlim_t(1), rlim_t(10000), whole / 2, whole - 1}) {
        folder.write(name, good);
        QString reason;
        bool saved = true;
        {
            const ResourceLimit full(RLIMIT_FSIZE, room);
            saved = Registro::save(name, set, reason);
        }
        QVERIFY(!saved);
        QCOMPARE(reason, qt_error_string(EFBIG));
        QCOMPARE(folder.read(name), good);
    }
}

void tst_Registro::aDiskWithoutRoomForANewFileKeepsTheOldOne()
{
    const ScratchFolder folder;
    const QString name = QStringLiteral("natale.csv");
    folder.write(name, good);
    const FileFaults faults(folder.path(QString()), FileFaults::Calls::Creations, 1, FileFaults::Effect::LastingError);
    QString reason;
    QVERIFY(!Registro::save(folder.path(name), Cartella(3, 6, 3, 9), reason));
    QCOMPARE(reason, qt_error_string(ENOSPC));
    QCOMPARE(folder.read(name), good);
}

void tst_Registro::aRegisterIsThatOfOneSetOnly()
{
    const Cartella set(200, 6, 3, 9);
    const auto isHeld = [&set](QByteArray bytes) {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        return Registro::holds(buffer, set);
    };
    const QByteArray bytes = written(set);
    QVERIFY(isHeld(bytes));
    QVERIFY(!isHeld(bytes + '\n'));
    QVERIFY(!isHeld(bytes.left(bytes.size() - 1)));
    QVERIFY(!isHeld(QByteArray()));
    for (const int place : {0, bytes.size() / 2, bytes.size() - 2}) {
        QVERIFY(!isHeld(QByteArray(bytes).replace(place, 1, "x")));
    }
}

void tst_Registro::aFileThatFailsIsReadUntilThen_data()
{
    QTest::addColumn<FileFaults::Effect>("effect");
    QTest::newRow("once") << FileFaults::Effect::Error;
    QTest::newRow("for good") << FileFaults::Effect::LastingError;
}

void tst_Registro::aFileThatFailsIsReadUntilThen()
{
    QFETCH(FileFaults::Effect, effect);
    const ScratchFolder folder;
    const QString path = folder.path(QStringLiteral("natale.csv"));
    const Cartella set(200, 6, 3, 9); // more than one read
    folder.write(path, written(set));
    bool reached = true;
    size_t cardsBefore = 0;
    for (int call = 1; reached; ++call) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const FileFaults faults(path, FileFaults::Calls::Reads, call, effect);
        const size_t cards = Registro::read(file).schede.size();
        reached = FileFaults::struck() != nullptr;
        QVERIFY(cards >= cardsBefore);
        const bool failed = file.error() != QFile::NoError;
        QVERIFY(failed ? reached : cards == 1200);
        QVERIFY(failed || !reached || effect == FileFaults::Effect::Error); // the end is looked for twice
        cardsBefore = cards;
    }
}

void tst_Registro::linesInAnyOrderAreReadInTheOrderOfThePositions()
{
    const Registro::Lettura reading = readBytes("12;1;|;3\n2;2;|;2\n2;1;|;1\n");
    QVERIFY(reading.saltate.empty());
    QVERIFY(
        (reading.schede == std::vector<Scheda>{made({2, 1}, {QStringLiteral("1")}), made({2, 2}, {QStringLiteral("2")}),
                                               made({12, 1}, {QStringLiteral("3")})}));
}

void tst_Registro::lineEndsOfWindowsAreRead()
{
    const Registro::Lettura reading = readBytes("1;1;|;5;\"a\"\r\n1;2;|;6;\r\n");
    QVERIFY(reading.saltate.empty());
    QVERIFY((reading.schede ==
             std::vector<Scheda>{made({1, 1}, {QStringLiteral("5 a")}), made({1, 2}, {QStringLiteral("6 -")})}));
}

void tst_Registro::oddLinesAreSkipped_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("reason");
    const auto row = [](const char *name, const QByteArray &line, Motivo reason) {
        QTest::newRow(name) << line << int(reason);
    };
    row("empty", "", Motivo::Vuota);
    row("a heading", "pagina;scheda", Motivo::SenzaPosizione);
    row("no card number", "2", Motivo::SenzaPosizione);
    row("empty card number", "2;;|;5", Motivo::SenzaPosizione);
    row("page 0", "0;1;|;5", Motivo::SenzaPosizione);
    row("card 0", "2;0;|;5", Motivo::SenzaPosizione);
    row("page too high", "65536;1;|;5", Motivo::SenzaPosizione);
    row("card too high", "2;256;|;5", Motivo::SenzaPosizione);
    row("page beyond 32 bits", "4294967298;1;|;5", Motivo::SenzaPosizione);
    row("a sign", "-2;1;|;5", Motivo::SenzaPosizione);
    row("more after the card number", "2;1x;|;5", Motivo::SenzaPosizione);
    row("another separator", "2,1,|,5", Motivo::SenzaPosizione);
    row("a cell before the first row", "2;1;5;|;6", Motivo::SenzaRiga);
    row("no row at all", "2;1;5", Motivo::SenzaRiga);
    row("a letter for a digit", "2;1;|;1O", Motivo::Casella);
    row("a text without quotes", "2;1;|;jolly", Motivo::Casella);
    row("more after a text", "2;1;|;\"a\"b", Motivo::Casella);
    row("more after a picture", "2;1;|;immagini", Motivo::Casella);
    row("more after a row mark", "2;1;|5", Motivo::Casella);
    row("a negative number", "2;1;|;-5", Motivo::Casella);
    row("a fraction", "2;1;|;5.5", Motivo::Casella);
    row("a blank", "2;1;|; 5", Motivo::Casella);
    row("number too high", "2;1;|;1000000", Motivo::Numero);
    row("number beyond 32 bits", "2;1;|;99999999999", Motivo::Numero);
    row("text not closed", "2;1;|;\"abc", Motivo::Testo);
    row("text that ends in doubled quotes", "2;1;|;\"abc\"\"", Motivo::Testo);
    row("unknown escape", "2;1;|;\"a\\n\"", Motivo::Testo);
    row("escape cut", "2;1;|;\"\\u20a\"", Motivo::Testo);
    row("letter in an escape", "2;1;|;\"\\u12g4\"", Motivo::Testo);
    row("escape at the end", "2;1;|;\"\\u20", Motivo::Testo);
    row("sign in an escape", "2;1;|;\"\\u-123\"", Motivo::Testo);
    row("backslash at the end", "2;1;|;\"\\", Motivo::Testo);
    row("too many rows", "2;1" + QByteArray(";|").repeated(256), Motivo::TroppeCaselle);
    row("too many cells", "2;1;|" + QByteArray(";").repeated(256), Motivo::TroppeCaselle);
    row("a card read before", "1;1;|;6", Motivo::Doppia);
}

void tst_Registro::oddLinesAreSkipped()
{
    QFETCH(QByteArray, line);
    QFETCH(int, reason);
    const Registro::Lettura reading = readBytes(good + line + "\n3;1;|;7\n");
    QVERIFY((reading.schede ==
             std::vector<Scheda>{made({1, 1}, {QStringLiteral("5")}), made({3, 1}, {QStringLiteral("7")})}));
    QCOMPARE(reading.saltate.size(), size_t(1));
    QCOMPARE(reading.saltate[0].prima, 2);
    QCOMPARE(reading.saltate[0].ultima, 2);
    QCOMPARE(int(reading.saltate[0].motivo), reason);
}

// A number cut in two is another number.
void tst_Registro::aTextThatWasCutLosesOnlyItsLastLine()
{
    const QByteArray whole = good + "1;2;|;34;56\n";
    for (int length = good.size() + 1; length < whole.size(); ++length) {
        const Registro::Lettura reading = readBytes(whole.left(length));
        QCOMPARE(reading.schede.size(), size_t(1));
        QCOMPARE(reading.saltate.size(), size_t(1));
        QCOMPARE(reading.saltate[0].prima, 2);
        QCOMPARE(int(reading.saltate[0].motivo), int(Motivo::Tronca));
    }
    QCOMPARE(readBytes(whole).schede.size(), size_t(2));
}

// However the lines lie to the sizes that a buffer may have.
void tst_Registro::linesOfAnyLengthAreRead()
{
    QByteArray text;
    int cards = 0;
    for (const int size : {1 << 10, 1 << 11, 1 << 12, 1 << 16}) {
        for (int length = size - 16; length < size + 3; ++length) {
            text += QByteArray::number(++cards) + ";1;|;\"" + QByteArray(length, 'x') + "\"\n";
            text += QByteArray::number(++cards) + ";1;|;7\n";
        }
    }
    const Registro::Lettura reading = readBytes(text);
    QVERIFY(reading.saltate.empty());
    QCOMPARE(int(reading.schede.size()), cards);
    QCOMPARE(reading.schede[2].righe[0][0].testo, QString((1 << 10) - 15, QLatin1Char('x')));
    QCOMPARE(reading.schede.back().righe[0][0].numero, 7U);
}

void tst_Registro::aLineLongerThanAnyCardIsSkipped_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("cardsAfter");
    QTest::newRow("with its end") << "1;2;|;\"" + QByteArray(20'000'000, 'x') + "\"\n1;3;|;7\n" << 1;
    QTest::newRow("without its end") << QByteArray(20'000'000, 'x') << 0;
    QTest::newRow("without its end, of a round size") << QByteArray(1 << 24, 'x') << 0;
}

void tst_Registro::aLineLongerThanAnyCardIsSkipped()
{
    QFETCH(QByteArray, line);
    QFETCH(int, cardsAfter);
    const Registro::Lettura reading = readBytes(good + line);
    QCOMPARE(int(reading.schede.size()), 1 + cardsAfter);
    QCOMPARE(reading.saltate.size(), size_t(1));
    QCOMPARE(reading.saltate[0].prima, 2);
    QCOMPARE(reading.saltate[0].ultima, 2);
    QCOMPARE(int(reading.saltate[0].motivo), int(Motivo::TroppoLunga));
}

void tst_Registro::longTextsAreReadBack_data()
{
    QTest::addColumn<int>("length");
    constexpr int around = (1 << 20) - 9; // bytes of the line beside the text
    for (const int length : {around - 1, around, around + 1, around + 2, 5'000'000}) {
        QTest::newRow(qPrintable(QString::number(length))) << length;
    }
}

void tst_Registro::longTextsAreReadBack()
{
    QFETCH(int, length);
    const auto set = setOfText(QString(length, QLatin1Char('x')));
    const Registro::Lettura reading = readBytes(written(*set) + "1;2;|;7\n");
    QVERIFY(reading.saltate.empty());
    QCOMPARE(reading.schede.size(), size_t(2));
    QVERIFY(reading.schede[0] == schedeOf(*set)[0]);
}

void tst_Registro::textsTooLongToBeReadBackAreRefused()
{
    const ScratchFolder folder;
    const auto set = setOfText(QString(3'000'000, QChar(0x20ac)));
    QString reason;
    QVERIFY(!Registro::save(QStringLiteral("natale.csv"), *set, reason));
    QCOMPARE(reason, QStringLiteral("Una scheda ha testi troppo lunghi."));
    QVERIFY(!QFile::exists(QStringLiteral("natale.csv")));
}

void tst_Registro::asManyRowsAndCellsAsACardHasAreRead()
{
    const QByteArray row = ";|" + QByteArray(";34").repeated(255);
    const Registro::Lettura reading = readBytes("1;1" + row.repeated(255) + '\n');
    QVERIFY(reading.saltate.empty());
    QCOMPARE(reading.schede[0].righe.size(), size_t(255));
    QCOMPARE(reading.schede[0].righe[254].size(), size_t(255));
    QCOMPARE(reading.schede[0].righe[254][254].numero, 34U);
}

void tst_Registro::otherFilesGiveNoCards_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a PDF") << QByteArray("%PDF-1.4\n1 0 obj\n<</Title (x)>>\nendobj\n");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                          "1\0;\0"
                                          "1\0;\0|\0\n\0",
                                          14);
    QTest::newRow("null bytes") << QByteArray(5000, '\0');
    QTest::newRow("line ends") << QByteArray(5000, '\n');
    QTest::newRow("separators") << QByteArray(5000, ';') + '\n';
    QTest::newRow("quotes") << QByteArray(5000, '"') + '\n';
}

void tst_Registro::otherFilesGiveNoCards()
{
    QFETCH(QByteArray, bytes);
    const Registro::Lettura reading = readBytes(bytes);
    QVERIFY(reading.schede.empty());
    QVERIFY(!reading.saltate.empty());
    QCOMPARE(reading.saltate.front().prima, 1);
}

void tst_Registro::neighbouringLinesSkippedForOneReasonAreOneEntry()
{
    const Registro::Lettura reading = readBytes("\n\n\n" + good + "\nx\n");
    QCOMPARE(reading.saltate.size(), size_t(3));
    QCOMPARE(reading.saltate[0].prima, 1);
    QCOMPARE(reading.saltate[0].ultima, 3);
    QCOMPARE(reading.saltate[1].prima, 5);
    QCOMPARE(reading.saltate[1].ultima, 5);
    QCOMPARE(reading.saltate[2].prima, 6);
}

void tst_Registro::theSkippedLinesAreDescribed()
{
    QCOMPARE(Registro::describe({{1, 3, Motivo::Vuota},
                                 {5, 5, Motivo::SenzaPosizione},
                                 {6, 6, Motivo::SenzaRiga},
                                 {7, 8, Motivo::Casella},
                                 {10, 10, Motivo::Numero},
                                 {11, 11, Motivo::Testo},
                                 {12, 12, Motivo::TroppeCaselle},
                                 {13, 13, Motivo::Doppia},
                                 {14, 14, Motivo::TroppoLunga},
                                 {15, 15, Motivo::Tronca}}),
             QStringLiteral("Queste righe del registro non sono schede e sono state saltate:\n"
                            "Righe da 1 a 3: nessun contenuto.\n"
                            "Riga 5: all'inizio non vi sono numeri validi di pagina e di scheda.\n"
                            "Riga 6: manca il segno | prima delle celle.\n"
                            "Righe da 7 a 8: una cella non è né un numero, né un testo tra virgolette, né la "
                            "parola immagine.\n"
                            "Riga 10: un numero è maggiore di 999999.\n"
                            "Riga 11: le virgolette di un testo non sono chiuse, o \\ è usato male.\n"
                            "Riga 12: righe o celle oltre il massimo di 255.\n"
                            "Riga 13: numeri di pagina e di scheda già usati.\n"
                            "Riga 14: troppi caratteri per una scheda.\n"
                            "Riga 15: testo troncato (file incompleto)."));
}

void tst_Registro::aLongListOfSkippedLinesIsCut()
{
    std::vector<Registro::RigheSaltate> many;
    for (int line = 1; line <= 600; ++line) {
        many.push_back({2 * line, 2 * line, Motivo::Vuota});
    }
    const QStringList lines = Registro::describe(many).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 502);
    QCOMPARE(lines.at(500), QStringLiteral("Riga 1000: nessun contenuto."));
    QCOMPARE(lines.last(), QStringLiteral("L'elenco continua fino alla riga 1200."));
}

QTEST_GUILESS_MAIN(tst_Registro)
#include "tst_Registro.moc"
