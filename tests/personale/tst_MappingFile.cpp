// SPDX-License-Identifier: MIT
#include "personale/MappingFile.h"

#include <QIODevice>
#include <QTest>
#include <QTextStream>

#include <algorithm>

using namespace MappingFile;

namespace {
SchemaPagina blank(U8 rows, U8 columns)
{
    return {rows, columns, std::vector<CellaSchema>(static_cast<size_t>(rows * columns))};
}

// Gives its lines, then fails at every read and never tells that this is the end.
class BrokenDevice final : public QIODevice
{
public:
    explicit BrokenDevice(QByteArray lines)
        : m_lines(std::move(lines))
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool atEnd() const override { return false; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        if (m_lines.isEmpty()) {
            return -1;
        }
        const qint64 count = std::min(size, qint64{m_lines.size()});
        std::copy_n(m_lines.cbegin(), count, data);
        m_lines.remove(0, static_cast<int>(count));
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_lines;
};

Lettura readText(QString text)
{
    QTextStream stream(&text, QIODevice::ReadOnly);
    return MappingFile::read(stream, [](int) {});
}

QString written(const SchemaPagina &page)
{
    QString text;
    QTextStream stream(&text, QIODevice::WriteOnly);
    MappingFile::writePage(stream, page);
    stream.flush();
    return text;
}

// The letters of a page read.
QString letters(const SchemaPagina &page)
{
    QString text;
    for (const CellaSchema &cella : page.celle) {
        text.append(letterOf(cella));
    }
    return text;
}

const QString &sampleLine()
{
    static const QString line = QStringLiteral("#NnNnNnNnNoooooooooSsIiNnNnN");
    return line;
}
} // namespace

class tst_MappingFile final : public QObject
{
    Q_OBJECT

private slots:
    void everyTypeHasItsLetter_data();
    void everyTypeHasItsLetter();
    void anUnknownTypeIsAQuestionMark();
    void strangeLettersAreUntickedEmptyCells_data();
    void strangeLettersAreUntickedEmptyCells();
    void aPageIsOneLine();
    void aPageIsReadBack();
    void theRowCountIsACharacter_data();
    void theRowCountIsACharacter();
    void columnsFollowFromTheLengthModulo256_data();
    void columnsFollowFromTheLengthModulo256();
    void lettersBeyondTheCellsAreIgnored();
    void aRowCountAboveLatin1CountsAsZero();
    void everyLineIsAPage();
    void lineEndsOfWindowsAreRead();
    void theLinesReadAreCounted();
    void oddLinesAreSkipped_data();
    void oddLinesAreSkipped();
    void neighbouringLinesSkippedForOneReasonAreOneEntry();
    void noMoreThan65535PagesAreRead();
    void theSkippedLinesAreDescribed();
    void aLongListOfSkippedLinesIsCut();
    void aDeviceThatFailsEndsTheReading_data();
    void aDeviceThatFailsEndsTheReading();
    void onlyPagesOfAtMost255CellsComeBackWhole();
};

void tst_MappingFile::everyTypeHasItsLetter_data()
{
    QTest::addColumn<int>("tipo");
    QTest::addColumn<QChar>("letter");
    QTest::newRow("number") << 0 << QChar(u'n');
    QTest::newRow("text") << 1 << QChar(u's');
    QTest::newRow("image") << 2 << QChar(u'i');
    QTest::newRow("empty") << 3 << QChar(u'o');
}

void tst_MappingFile::everyTypeHasItsLetter()
{
    QFETCH(int, tipo);
    QFETCH(QChar, letter);
    const auto value = static_cast<CELL_VALUE>(tipo);
    QCOMPARE(letterOf({value, false}), letter);
    QCOMPARE(letterOf({value, true}), letter.toUpper());
    QCOMPARE(cellOf(letter).tipo, value);
    QCOMPARE(cellOf(letter).spuntata, false);
    QCOMPARE(cellOf(letter.toUpper()).tipo, value);
    QCOMPARE(cellOf(letter.toUpper()).spuntata, true);
}

void tst_MappingFile::anUnknownTypeIsAQuestionMark()
{
    for (const bool ticked : {true, false}) {
        QCOMPARE(letterOf({static_cast<CELL_VALUE>(4), ticked}), QChar(u'?'));
        QCOMPARE(letterOf({static_cast<CELL_VALUE>(-1), ticked}), QChar(u'?'));
    }
}

void tst_MappingFile::strangeLettersAreUntickedEmptyCells_data()
{
    QTest::addColumn<QChar>("letter");
    QTest::newRow("question mark") << QChar(u'?');
    QTest::newRow("other letter") << QChar(u'X');
    QTest::newRow("blank") << QChar(u' ');
    QTest::newRow("null") << QChar();
    QTest::newRow("accented") << QChar(0xf1);
    QTest::newRow("above Latin-1, low byte of N") << QChar(0x014e);
    QTest::newRow("half of a pair") << QChar(0xd83d);
}

void tst_MappingFile::strangeLettersAreUntickedEmptyCells()
{
    QFETCH(QChar, letter);
    QCOMPARE(cellOf(letter).tipo, CELL_VUOTA);
    QCOMPARE(cellOf(letter).spuntata, false);
}

void tst_MappingFile::aPageIsOneLine()
{
    SchemaPagina page = blank(3, 9);
    for (size_t i = 0; i < 9; ++i) {
        page.celle[i] = {CELL_NUMERO, i % 2 == 0};
    }
    page.celle[18] = {CELL_TESTO, true};
    page.celle[19] = {CELL_TESTO, false};
    page.celle[20] = {CELL_IMMAGINE, true};
    page.celle[21] = {CELL_IMMAGINE, false};
    for (size_t i = 22; i < 27; ++i) {
        page.celle[i] = {CELL_NUMERO, i % 2 == 0};
    }
    QCOMPARE(written(page), sampleLine() + QLatin1Char('\n'));

    page.celle[9] = {CELL_VUOTA, true};
    QCOMPARE(written(page).at(10), QChar(u'O'));
}

void tst_MappingFile::aPageIsReadBack()
{
    const Lettura reading = readText(sampleLine() + QLatin1Char('\n'));
    QVERIFY(reading.saltate.empty());
    QCOMPARE(reading.pagine.size(), size_t(1));
    QCOMPARE(reading.pagine[0].nRighe, U8(3));
    QCOMPARE(reading.pagine[0].nColonne, U8(9));
    QCOMPARE(letters(reading.pagine[0]), sampleLine().mid(1));

    const Lettura ticked = readText(QStringLiteral("!Oo"));
    QCOMPARE(ticked.pagine[0].celle[0].spuntata, true);
    QCOMPARE(ticked.pagine[0].celle[0].tipo, CELL_VUOTA);
    QCOMPARE(ticked.pagine[0].celle[1].spuntata, false);
    QCOMPARE(ticked.pagine[0].celle[1].tipo, CELL_VUOTA);
}

void tst_MappingFile::theRowCountIsACharacter_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QChar>("first");
    QTest::newRow("1") << 1 << QChar(u'!');
    QTest::newRow("3") << 3 << QChar(u'#');
    QTest::newRow("9") << 9 << QChar(u')');
    QTest::newRow("95, the last of ASCII") << 95 << QChar(127);
    QTest::newRow("223, the last of Latin-1") << 223 << QChar(255);
}

void tst_MappingFile::theRowCountIsACharacter()
{
    QFETCH(int, rows);
    QFETCH(QChar, first);
    const QString line = written(blank(static_cast<U8>(rows), 1));
    QCOMPARE(line.at(0), first);
    QCOMPARE(line.size(), rows + 2);
    const Lettura reading = readText(line);
    QCOMPARE(reading.pagine.size(), size_t(1));
    QCOMPARE(int(reading.pagine[0].nRighe), rows);
    QCOMPARE(int(reading.pagine[0].nColonne), 1);
}

void tst_MappingFile::columnsFollowFromTheLengthModulo256_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("columnsReadBack");
    QTest::newRow("255 cells") << 15 << 17 << 17;
    QTest::newRow("256 cells") << 16 << 16 << 0;
    QTest::newRow("270 cells on 30 rows") << 30 << 9 << 0;
    QTest::newRow("270 cells on 9 rows") << 9 << 30 << 1;
    QTest::newRow("261 cells on 1 row would be") << 3 << 87 << 1;
}

void tst_MappingFile::columnsFollowFromTheLengthModulo256()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    QFETCH(int, columnsReadBack);
    const Lettura reading = readText(written(blank(static_cast<U8>(rows), static_cast<U8>(columns))));
    QCOMPARE(reading.pagine.size(), size_t(1));
    QCOMPARE(int(reading.pagine[0].nRighe), rows);
    QCOMPARE(int(reading.pagine[0].nColonne), columnsReadBack);
    QCOMPARE(int(reading.pagine[0].celle.size()), rows * columnsReadBack);
}

void tst_MappingFile::lettersBeyondTheCellsAreIgnored()
{
    const Lettura reading = readText(QStringLiteral("#NNNss"));
    QCOMPARE(int(reading.pagine[0].nColonne), 1);
    QCOMPARE(letters(reading.pagine[0]), QStringLiteral("NNN"));
}

void tst_MappingFile::aRowCountAboveLatin1CountsAsZero()
{
    const Lettura reading = readText(QChar(0x20ac) + QString(230, QLatin1Char('N')));
    QCOMPARE(reading.pagine.size(), size_t(1));
    QCOMPARE(int(reading.pagine[0].nRighe), 224); // (0 - 32) modulo 256
    QCOMPARE(int(reading.pagine[0].nColonne), 1);
}

void tst_MappingFile::everyLineIsAPage()
{
    const Lettura reading = readText(QStringLiteral("!N\n\"NsIo\n!n"));
    QVERIFY(reading.saltate.empty());
    QCOMPARE(reading.pagine.size(), size_t(3));
    QCOMPARE(int(reading.pagine[1].nRighe), 2);
    QCOMPARE(int(reading.pagine[1].nColonne), 2);
    QCOMPARE(letters(reading.pagine[1]), QStringLiteral("NsIo"));
    QCOMPARE(letters(reading.pagine[2]), QStringLiteral("n"));
    QVERIFY(readText(QString()).pagine.empty());
    QVERIFY(readText(QString()).saltate.empty());
}

void tst_MappingFile::lineEndsOfWindowsAreRead()
{
    const Lettura reading = readText(QStringLiteral("!NN\r\n!S\r\n"));
    QCOMPARE(reading.pagine.size(), size_t(2));
    QCOMPARE(letters(reading.pagine[0]), QStringLiteral("NN"));
    QCOMPARE(letters(reading.pagine[1]), QStringLiteral("S"));
}

void tst_MappingFile::theLinesReadAreCounted()
{
    QString text = QStringLiteral("!N\n\n!S\n");
    QTextStream stream(&text, QIODevice::ReadOnly);
    QVector<int> counts;
    MappingFile::read(stream, [&counts](int lines) { counts.append(lines); });
    QCOMPARE(counts, (QVector<int>{1, 2, 3}));
}

void tst_MappingFile::oddLinesAreSkipped_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("reason");
    QTest::newRow("empty") << QString() << int(Motivo::Vuota);
    QTest::newRow("blank, no rows") << QStringLiteral(" NNN") << int(Motivo::SenzaRighe);
    QTest::newRow("tabulator") << QStringLiteral("\tNNN") << int(Motivo::SenzaRighe);
    QTest::newRow("null") << QString(QChar()) << int(Motivo::SenzaRighe);
    QTest::newRow("no letters") << QStringLiteral("#") << int(Motivo::TroppoCorta);
    QTest::newRow("fewer letters than rows") << QStringLiteral("#NN") << int(Motivo::TroppoCorta);
    QTest::newRow("above Latin-1, too short")
        << QString(QChar(0x20ac)) + QStringLiteral("NN") << int(Motivo::TroppoCorta);
}

void tst_MappingFile::oddLinesAreSkipped()
{
    QFETCH(QString, line);
    QFETCH(int, reason);
    const Lettura reading = readText(QStringLiteral("!N\n") + line + QStringLiteral("\n!S\n"));
    QCOMPARE(reading.pagine.size(), size_t(2));
    QCOMPARE(letters(reading.pagine[0]), QStringLiteral("N"));
    QCOMPARE(letters(reading.pagine[1]), QStringLiteral("S"));
    QCOMPARE(reading.saltate.size(), size_t(1));
    QCOMPARE(reading.saltate[0].prima, 2);
    QCOMPARE(reading.saltate[0].ultima, 2);
    QCOMPARE(int(reading.saltate[0].motivo), reason);
}

void tst_MappingFile::neighbouringLinesSkippedForOneReasonAreOneEntry()
{
    const Lettura reading = readText(QStringLiteral("\n\n\n!N\n\n#\n"));
    QCOMPARE(reading.saltate.size(), size_t(3));
    QCOMPARE(reading.saltate[0].prima, 1);
    QCOMPARE(reading.saltate[0].ultima, 3);
    QCOMPARE(reading.saltate[1].prima, 5);
    QCOMPARE(reading.saltate[1].ultima, 5);
    QCOMPARE(reading.saltate[2].prima, 6);
}

void tst_MappingFile::noMoreThan65535PagesAreRead()
{
    const Lettura reading = readText(QStringLiteral("!N\n").repeated(65535) + QStringLiteral("!S\n!S\n"));
    QCOMPARE(reading.pagine.size(), size_t(65535));
    QCOMPARE(letters(reading.pagine.back()), QStringLiteral("N"));
    QCOMPARE(reading.saltate.size(), size_t(1));
    QCOMPARE(reading.saltate[0].prima, 65536);
    QCOMPARE(reading.saltate[0].ultima, 65537);
    QCOMPARE(int(reading.saltate[0].motivo), int(Motivo::TroppePagine));
}

void tst_MappingFile::theSkippedLinesAreDescribed()
{
    QCOMPARE(describe({{1, 3, Motivo::Vuota},
                       {5, 5, Motivo::SenzaRighe},
                       {7, 7, Motivo::TroppoCorta},
                       {65536, 70000, Motivo::TroppePagine}}),
             QStringLiteral("Queste righe del file non descrivono una pagina e sono state saltate:\n"
                            "Righe da 1 a 3: nessun contenuto.\n"
                            "Riga 5: il primo carattere non indica il numero di righe della pagina.\n"
                            "Riga 7: caratteri insufficienti per le celle della pagina.\n"
                            "Righe da 65536 a 70000: oltre il numero massimo di pagine (65535)."));
}

void tst_MappingFile::aLongListOfSkippedLinesIsCut()
{
    std::vector<RigheSaltate> many;
    for (int line = 1; line <= 600; ++line) {
        many.push_back({2 * line, 2 * line, Motivo::Vuota});
    }
    const QStringList lines = describe(many).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 502);
    QCOMPARE(lines.at(500), QStringLiteral("Riga 1000: nessun contenuto."));
    QCOMPARE(lines.last(), QStringLiteral("L'elenco continua fino alla riga 1200."));
}

void tst_MappingFile::aDeviceThatFailsEndsTheReading_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<int>("pages");
    QTest::newRow("at once") << QByteArray() << 0;
    QTest::newRow("after two lines") << QByteArray("!N\n!o\n") << 2;
    QTest::newRow("in a line") << QByteArray("!N\n!oo") << 2;
}

void tst_MappingFile::aDeviceThatFailsEndsTheReading()
{
    QFETCH(QByteArray, lines);
    QFETCH(int, pages);
    BrokenDevice device(lines);
    QTextStream stream(&device);
    int told = 0;
    const Lettura reading = MappingFile::read(stream, [&told](int number) { told = number; });
    QCOMPARE(static_cast<int>(reading.pagine.size()), pages);
    QCOMPARE(told, pages);
    QVERIFY(reading.saltate.empty());
}

void tst_MappingFile::onlyPagesOfAtMost255CellsComeBackWhole()
{
    const auto whole = [](U8 rows, U8 columns) { return MappingFile::comesBackWhole({rows, columns, {}}); };
    QVERIFY(whole(3, 9));
    QVERIFY(whole(1, 255));
    QVERIFY(whole(223, 1));
    QVERIFY(!whole(224, 1)); // its row count is no character of Latin-1
    QVERIFY(!whole(16, 16));
    QVERIFY(!whole(30, 9));
    QVERIFY(!whole(30, 0)); // as such a page is read back
}

QTEST_GUILESS_MAIN(tst_MappingFile)
#include "tst_MappingFile.moc"
