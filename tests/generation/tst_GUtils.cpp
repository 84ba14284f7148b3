// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"

#include "support/LogCapture.h"

#include <QTest>
#include <QTime>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>
#include <numeric>
#include <vector>

namespace {
const QStringList noWarnings;

QVector<unsigned> sorted(QVector<unsigned> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

QVector<unsigned> allFrom(unsigned from, unsigned to)
{
    QVector<unsigned> numbers(static_cast<int>(to - from) + 1);
    std::iota(numbers.begin(), numbers.end(), from);
    return numbers;
}

// The drawing as it is meant, with a pool in plain memory.
QVector<unsigned> drawnFromPlainPool(int count, unsigned from, unsigned to)
{
    std::vector<unsigned> pool(static_cast<size_t>(to - from) + 1);
    std::iota(pool.begin(), pool.end(), from);
    QVector<unsigned> drawn;
    for (int i = 0; i < count; ++i) {
        const size_t chosen = static_cast<size_t>(nextRandom()) % pool.size();
        drawn.append(pool[chosen]);
        pool[chosen] = pool.back();
        pool.pop_back();
    }
    return drawn;
}

struct FreeMemory
{
    void operator()(char *text) const { std::free(text); }
};

using OwnedText = std::unique_ptr<char, FreeMemory>;
} // namespace

class tst_GUtils final : public QObject
{
    Q_OBJECT

private slots:
    void startingSeedsWithTheMilliseconds();
    void allNumbersOfTheRangeAreDrawnOnce();
    void boundsMayBeExchanged();
    void oneNumberOfOne();
    void tooFewNumbersAreRefused();
    void tooFewNumbersAreRefusedWithTheBoundsExchanged();
    void noNumberIsRefusedShowingTheFirstBound();
    void noNumberIsRefusedBeforeTheBoundsAreExchanged();
    void aNegativeCountIsRefusedAsTooMany();
    void theRangeOfAllUnsignedNumbersIsRefused();
    void oneSeedGivesOneSequence();
    void numbersWorkedOutByHand();
    void drawingMatchesAPlainPool_data();
    void drawingMatchesAPlainPool();
    void eachNumberCostsOneRandomCall();
    void numbersComeFromVeryWideRanges();
    void digitsAreCounted_data();
    void digitsAreCounted();
    void hexadecimalDigitsAreRead_data();
    void hexadecimalDigitsAreRead();
    void otherDigitsAreRefused_data();
    void otherDigitsAreRefused();
    void factorials_data();
    void factorials();
    void factorialsTooLargeForADouble();
    void countingSortSortsInPlace_data();
    void countingSortSortsInPlace();
    void subStringsAreCopied_data();
    void subStringsAreCopied();
    void subStringEndsWithTwoZerosAtTheEnd();
};

void tst_GUtils::startingSeedsWithTheMilliseconds()
{
    constexpr int perDay = 24 * 60 * 60 * 1000;
    const int before = QTime::currentTime().msecsSinceStartOfDay();
    const GUtils utils(QCoreApplication::instance());
    const QVector<int> drawn{nextRandom(), nextRandom(), nextRandom()};
    const int elapsed = (QTime::currentTime().msecsSinceStartOfDay() - before + perDay) % perDay;

    bool found = false;
    for (int passed = 0; passed <= elapsed && !found; ++passed) {
        seedRandom(static_cast<unsigned>((before + passed) % 1000));
        found = QVector<int>{nextRandom(), nextRandom(), nextRandom()} == drawn;
    }
    QVERIFY(found);
}

void tst_GUtils::allNumbersOfTheRangeAreDrawnOnce()
{
    seedRandom(1);
    const auto drawn = GUtils::generate_X_different_numbers(5, 1, 5);
    QCOMPARE(sorted(drawn), allFrom(1, 5));
}

void tst_GUtils::boundsMayBeExchanged()
{
    seedRandom(7);
    const auto drawn = GUtils::generate_X_different_numbers(20, 1, 90);
    seedRandom(7);
    QCOMPARE(GUtils::generate_X_different_numbers(20, 90, 1), drawn);
    QCOMPARE(drawn.size(), 20);
}

void tst_GUtils::oneNumberOfOne()
{
    QCOMPARE(GUtils::generate_X_different_numbers(1, 7, 7), QVector<unsigned>{7});
}

void tst_GUtils::tooFewNumbersAreRefused()
{
    const LogCapture log;
    QVERIFY(GUtils::generate_X_different_numbers(6, 1, 5).isEmpty());
    QCOMPARE(log.warnings(),
             QStringList(QStringLiteral("GUtils::generate_X_different_numbers():  Parametes in error!\n"
                                        "   Impossible to give  6  different number(s)\n   using  5  number(s).")));
}

void tst_GUtils::tooFewNumbersAreRefusedWithTheBoundsExchanged()
{
    const LogCapture log;
    QVERIFY(GUtils::generate_X_different_numbers(6, 5, 1).isEmpty());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().endsWith(QStringLiteral("using  5  number(s).")));
}

void tst_GUtils::noNumberIsRefusedShowingTheFirstBound()
{
    const LogCapture log;
    QVERIFY(GUtils::generate_X_different_numbers(0, 3, 9).isEmpty());
    QCOMPARE(log.warnings(),
             QStringList(QStringLiteral("GUtils::generate_YxX_different_numbers():  Parametes in error!\n"
                                        "  Number of elements required ( 3 ) less then 1.")));
}

void tst_GUtils::noNumberIsRefusedBeforeTheBoundsAreExchanged()
{
    const LogCapture log;
    QVERIFY(GUtils::generate_X_different_numbers(0, 9, 3).isEmpty());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().contains(QStringLiteral("( 9 )")));
}

void tst_GUtils::aNegativeCountIsRefusedAsTooMany()
{
    const LogCapture log;
    QVERIFY(GUtils::generate_X_different_numbers(-1, 1, 5).isEmpty());
    QCOMPARE(log.warnings(),
             QStringList(QStringLiteral("GUtils::generate_X_different_numbers():  Parametes in error!\n"
                                        "   Impossible to give  -1  different number(s)\n   using  5  number(s).")));
}

void tst_GUtils::theRangeOfAllUnsignedNumbersIsRefused()
{
    const LogCapture log;
    QVERIFY(GUtils::generate_X_different_numbers(1, 0, std::numeric_limits<unsigned>::max()).isEmpty());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().first().endsWith(QStringLiteral("using  0  number(s).")));
}

void tst_GUtils::oneSeedGivesOneSequence()
{
    seedRandom(42);
    const auto first = GUtils::generate_X_different_numbers(15, 1, 90);
    const auto second = GUtils::generate_X_different_numbers(15, 1, 90);
    QVERIFY(first != second);
    seedRandom(42);
    QCOMPARE(GUtils::generate_X_different_numbers(15, 1, 90), first);
    QCOMPARE(GUtils::generate_X_different_numbers(15, 1, 90), second);
}

void tst_GUtils::numbersWorkedOutByHand()
{
    seedRandom(5);
    const std::vector<int> raw{nextRandom(), nextRandom(), nextRandom()};
    QCOMPARE(raw, (std::vector<int>{241355, 913028970, 14523489}));

    // 241355 mod 5 = 0: of 11 12 13 14 15 the first, 11; the last one takes its place, 15 12 13 14 stay.
    // 913028970 mod 4 = 2: 13; 15 12 14 stay.
    // 14523489 mod 3 = 0: 15.
    seedRandom(5);
    QCOMPARE(GUtils::generate_X_different_numbers(3, 11, 15), QVector<unsigned>({11, 13, 15}));
}

void tst_GUtils::drawingMatchesAPlainPool_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<unsigned>("from");
    QTest::addColumn<unsigned>("to");
    QTest::newRow("a card column") << 10 << 10U << 19U;
    QTest::newRow("a card") << 15 << 1U << 90U;
    QTest::newRow("as wide as the stack pool") << 1024 << 0U << 1023U;
    QTest::newRow("one wider than the stack pool") << 1025 << 0U << 1024U;
    QTest::newRow("all of the widest range of the program") << 1000000 << 0U << 999999U;
    QTest::newRow("as wide as any array") << 1000 << 1U << 1048576U;
    QTest::newRow("wider than any array") << 1000 << 0U << 1048576U;
    QTest::newRow("all of a range wider than any array") << 1100000 << 5U << 1100004U;
}

void tst_GUtils::drawingMatchesAPlainPool()
{
    QFETCH(int, count);
    QFETCH(unsigned, from);
    QFETCH(unsigned, to);
    seedRandom(99);
    const auto expected = drawnFromPlainPool(count, from, to);
    seedRandom(99);
    QCOMPARE(GUtils::generate_X_different_numbers(count, from, to), expected);
}

void tst_GUtils::eachNumberCostsOneRandomCall()
{
    seedRandom(3);
    GUtils::generate_X_different_numbers(4, 1, 90);
    const int next = nextRandom();
    seedRandom(3);
    for (int i = 0; i < 4; ++i) {
        nextRandom();
    }
    QCOMPARE(nextRandom(), next);
}

void tst_GUtils::numbersComeFromVeryWideRanges()
{
    constexpr unsigned largest = std::numeric_limits<unsigned>::max();
    seedRandom(1);
    auto drawn = sorted(GUtils::generate_X_different_numbers(1000, 1, largest));
    QCOMPARE(drawn.size(), 1000);
    QVERIFY(std::adjacent_find(drawn.begin(), drawn.end()) == drawn.end());
    QVERIFY(drawn.first() >= 1);
}

void tst_GUtils::digitsAreCounted_data()
{
    QTest::addColumn<unsigned>("value");
    QTest::addColumn<int>("digits");
    QTest::newRow("0") << 0U << 1;
    QTest::newRow("9") << 9U << 1;
    QTest::newRow("10") << 10U << 2;
    QTest::newRow("99") << 99U << 2;
    QTest::newRow("100") << 100U << 3;
    QTest::newRow("999999") << 999999U << 6;
    QTest::newRow("largest") << 4294967295U << 10;
}

void tst_GUtils::digitsAreCounted()
{
    QFETCH(unsigned, value);
    QTEST(GUtils::numCifre(value), "digits");
}

void tst_GUtils::hexadecimalDigitsAreRead_data()
{
    QTest::addColumn<char>("digit");
    QTest::addColumn<int>("value");
    const QByteArray digits = QByteArrayLiteral("0123456789ABCDEF");
    for (int i = 0; i < digits.size(); ++i) {
        QTest::newRow(digits.mid(i, 1).constData()) << digits[i] << i;
    }
}

void tst_GUtils::hexadecimalDigitsAreRead()
{
    QFETCH(char, digit);
    const LogCapture log;
    QTEST(GUtils::HexToNum(digit), "value");
    QCOMPARE(log.warnings(), noWarnings);
}

void tst_GUtils::otherDigitsAreRefused_data()
{
    QTest::addColumn<char>("digit");
    QTest::newRow("lower case a") << 'a';
    QTest::newRow("lower case f") << 'f';
    QTest::newRow("G") << 'G';
    QTest::newRow("before 0") << '/';
    QTest::newRow("after 9") << ':';
    QTest::newRow("before A") << '@';
    QTest::newRow("zero") << '\0';
    QTest::newRow("outside ASCII") << '\xe0';
}

void tst_GUtils::otherDigitsAreRefused()
{
    QFETCH(char, digit);
    const LogCapture log;
    QCOMPARE(GUtils::HexToNum(digit), -1);
    QCOMPARE(log.warnings(),
             QStringList(QStringLiteral("\nGUtils::HexToNum(): Wrong digit given! Not an HEX value (0-9A-F).\n")));
}

void tst_GUtils::factorials_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<double>("factorial");
    QTest::newRow("-5") << -5 << 1.0;
    QTest::newRow("0") << 0 << 1.0;
    QTest::newRow("1") << 1 << 1.0;
    QTest::newRow("2") << 2 << 2.0;
    QTest::newRow("5") << 5 << 120.0;
    QTest::newRow("20") << 20 << 2432902008176640000.0;
    QTest::newRow("170") << 170 << 7.257415615307994e306;
}

void tst_GUtils::factorials()
{
    QFETCH(int, n);
    QFETCH(double, factorial);
    const LogCapture log;
    QVERIFY(GUtils::fatt(n) == factorial); // to the last bit
    QCOMPARE(log.warnings(), noWarnings);
}

void tst_GUtils::factorialsTooLargeForADouble()
{
    const LogCapture log;
    QVERIFY(GUtils::fatt(171) == 1.7976931348623157e308);
    QVERIFY(GUtils::fatt(std::numeric_limits<int>::max()) == 1.7976931348623157e308);
    const QString warning = QStringLiteral("GUtils::fatt(): Value exceed max ( 1.7976931348623157e+308 )\n");
    QCOMPARE(log.warnings(), QStringList({warning, warning}));
}

void tst_GUtils::countingSortSortsInPlace_data()
{
    QTest::addColumn<QVector<unsigned>>("values");
    QTest::addColumn<unsigned>("max");
    constexpr unsigned largest = std::numeric_limits<unsigned>::max();
    QTest::newRow("four values") << QVector<unsigned>{3, 1, 3, 0} << 3U;
    QTest::newRow("none") << QVector<unsigned>{} << 3U;
    QTest::newRow("one") << QVector<unsigned>{2} << 3U;
    QTest::newRow("only zeros") << QVector<unsigned>{0, 0} << 0U;
    QTest::newRow("beyond the stack table") << QVector<unsigned>{5000, 0, 4999, 5000} << 5000U;
    QTest::newRow("the widest table") << QVector<unsigned>{1048575, 0, 7} << 1048575U;
    QTest::newRow("wider than any table") << QVector<unsigned>{1048576, 0, 7} << 1048576U;
    QTest::newRow("all unsigned values") << QVector<unsigned>{largest, 0, largest, 7} << largest;
}

void tst_GUtils::countingSortSortsInPlace()
{
    QFETCH(QVector<unsigned>, values);
    QFETCH(unsigned, max);
    const QVector<unsigned> expected = sorted(values);
    QCOMPARE(GUtils::countingSort(values.data(), values.size(), max), values.size() - 1);
    QCOMPARE(values, expected);
}

void tst_GUtils::subStringsAreCopied_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("copied");
    QTest::addColumn<QByteArray>("copy");
    const QByteArray text = QByteArrayLiteral("abcdef");
    QTest::newRow("inside") << text << 1 << 4 << true << QByteArrayLiteral("bcde");
    QTest::newRow("exchanged") << text << 4 << 1 << true << QByteArrayLiteral("bcde");
    QTest::newRow("one byte") << text << 2 << 2 << true << QByteArrayLiteral("c");
    QTest::newRow("all") << text << 0 << 5 << true << text;
    QTest::newRow("the length") << text << 6 << 0 << true << text;
    QTest::newRow("only the end") << text << 6 << 6 << true << QByteArray();
    QTest::newRow("beyond the length") << text << 0 << 7 << false << QByteArray();
    QTest::newRow("beyond the length, exchanged") << text << 7 << 0 << false << QByteArray();
    QTest::newRow("negative") << text << -1 << 2 << false << QByteArray();
    QTest::newRow("empty text") << QByteArray("") << 0 << 0 << false << QByteArray();
    QTest::newRow("no text") << QByteArray() << 0 << 0 << false << QByteArray();
}

void tst_GUtils::subStringsAreCopied()
{
    QFETCH(QByteArray, text);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, copied);
    QFETCH(QByteArray, copy);
    const OwnedText result(GUtils::subString(text.isNull() ? nullptr : text.constData(), from, to));
    QCOMPARE(result != nullptr, copied);
    QCOMPARE(QByteArray(result.get()), copy);
}

void tst_GUtils::subStringEndsWithTwoZerosAtTheEnd()
{
    const OwnedText result(GUtils::subString("abcdef", 4, 6));
    QVERIFY(result != nullptr);
    QCOMPARE(QByteArray(result.get(), 4), QByteArray("ef\0\0", 4));
}

QTEST_GUILESS_MAIN(tst_GUtils)
#include "tst_GUtils.moc"
