// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHash>
#include <QLocale>
#include <QTime>
#include <QVarLengthArray>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <numeric>
#include <utility>

namespace {
// Arrays of up to so many entries stand on the stack of the call: room for the ranges of ordinary cards.
constexpr int stackEntries = 1024;
// Wider ranges are not spread out in memory at all. The widest range that the program allows is below this.
constexpr unsigned widestArray = 1U << 20;

// The offsets 0 to width - 1 from which numbers are drawn.
class ArrayPool final
{
public:
    explicit ArrayPool(unsigned width)
        : m_offsets(static_cast<int>(width))
    {
        std::iota(m_offsets.begin(), m_offsets.end(), 0U);
    }
    unsigned at(unsigned index) const { return m_offsets[static_cast<int>(index)]; }
    void set(unsigned index, unsigned offset) { m_offsets[static_cast<int>(index)] = offset; }

private:
    QVarLengthArray<unsigned, stackEntries> m_offsets;
};

// The same for very wide ranges: only the entries that differ from their index are stored.
class SparsePool final
{
public:
    unsigned at(unsigned index) const { return m_moved.value(index, index); }
    void set(unsigned index, unsigned offset) { m_moved.insert(index, offset); }

private:
    QHash<unsigned, unsigned> m_moved;
};

template<typename Pool>
void draw(QVector<unsigned> &drawn, int count, unsigned from, unsigned width, Pool pool)
{
    unsigned live = width;
    for (int i = 0; i < count; ++i) {
        const unsigned index = static_cast<unsigned>(nextRandom()) % live;
        drawn.append(from + pool.at(index));
        --live;
        pool.set(index, pool.at(live));
    }
}
} // namespace

GUtils *globalUtils = nullptr;

// The generator is deprecated in favour of better ones, but the same seed must give the same cards for ever.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void seedRandom(unsigned seed)
{
    qsrand(seed);
}

int nextRandom()
{
    return qrand();
}
QT_WARNING_POP

GUtils::GUtils(QCoreApplication *application)
    : m_application(application)
{
    seedRandom(static_cast<unsigned>(QTime::currentTime().msec()));
    loadTranslations(QLocale::system().name());
}

GUtils::~GUtils() = default; // translators take themselves out of the application

QVector<unsigned> GUtils::generate_X_different_numbers(int count, unsigned from, unsigned to)
{
    QVector<unsigned> drawn;
    if (count == 0) {
        qWarning() << "GUtils::generate_YxX_different_numbers(): "
                   << "Parametes in error!\n"
                   << " Number of elements required (" << from << ") less then 1.";
        return drawn;
    }
    if (to < from) {
        std::swap(from, to);
    }
    const unsigned width = to - from + 1; // 0 for the range of all unsigned numbers, which is so refused
    if (static_cast<unsigned>(count) > width) {
        qWarning() << "GUtils::generate_X_different_numbers(): "
                   << "Parametes in error!\n"
                   << "  Impossible to give " << count << " different number(s)\n"
                   << "  using " << width << " number(s).";
        return drawn;
    }
    drawn.reserve(count);
    if (width <= widestArray) {
        draw(drawn, count, from, width, ArrayPool(width));
    } else {
        draw(drawn, count, from, width, SparsePool());
    }
    return drawn;
}

int GUtils::numCifre(unsigned value)
{
    constexpr unsigned base = 10;
    int digits = 1;
    while (value >= base) {
        value /= base;
        ++digits;
    }
    return digits;
}

int GUtils::HexToNum(char digit)
{
    constexpr int valueOfA = 10;
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    if (digit >= 'A' && digit <= 'F') {
        return digit - 'A' + valueOfA;
    }
    qWarning() << "\nGUtils::HexToNum(): Wrong digit given! Not an HEX value (0-9A-F).\n";
    return -1;
}

double GUtils::fatt(int n)
{
    constexpr int largestArgument = 170; // the factorial of 171 does not fit a double
    constexpr double largest = std::numeric_limits<double>::max();
    if (n > largestArgument) {
        qWarning() << qSetRealNumberPrecision(std::numeric_limits<double>::max_digits10)
                   << "GUtils::fatt(): Value exceed max (" << largest << ")\n";
        return largest;
    }
    double product = 1.0;
    for (int factor = 2; factor <= n; ++factor) {
        product *= factor;
    }
    return product;
}

int GUtils::countingSort(unsigned *values, int count, unsigned max)
{
    if (count <= 0) {
        return -1;
    }
    if (max >= widestArray) { // a table of counters would be far larger than the array
        std::sort(values, values + count);
        return count - 1;
    }
    QVarLengthArray<int, stackEntries> timesSeen(static_cast<int>(max) + 1);
    std::fill(timesSeen.begin(), timesSeen.end(), 0);
    for (int i = 0; i < count; ++i) {
        ++timesSeen[static_cast<int>(values[i])];
    }
    unsigned *next = values;
    for (int value = 0; value < timesSeen.size(); ++value) {
        next = std::fill_n(next, timesSeen[value], static_cast<unsigned>(value));
    }
    return static_cast<int>(next - values) - 1;
}

char *GUtils::subString(const char *text, int from, int to)
{
    if (text == nullptr || *text == '\0' || from < 0 || to < 0) {
        return nullptr;
    }
    const auto low = static_cast<size_t>(std::min(from, to));
    const auto high = static_cast<size_t>(std::max(from, to));
    if (high > std::strlen(text)) {
        return nullptr;
    }
    const size_t length = high - low + 1;
    auto *copy = static_cast<char *>(std::calloc(length + 1, 1));
    if (copy != nullptr) {
        std::memcpy(copy, text + low, length);
    }
    return copy;
}
