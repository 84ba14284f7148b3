// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTranslator>
#include <QVector>

#include <memory>

class QCoreApplication;

// Seeds the random generator once, holds the installed translators, and gives the small functions that everything
// shares. Create it right after the application object and destroy it before that.
class GUtils final
{
public:
    // Seeds the generator with the milliseconds of the current time and loads the translations of the system locale.
    explicit GUtils(QCoreApplication *application);
    ~GUtils();
    Q_DISABLE_COPY_MOVE(GUtils)

    // Replaces the toolkit's and the program's translators by those of `locale` (such as it_IT), read from the
    // toolkit's translations folder and from language/ in the current folder. Whether the program's was installed;
    // without a file the Italian source texts are shown.
    bool loadTranslations(const QString &locale);
    // Locale of the program's texts (such as it_IT), as the file of the translation names it; empty when that does not.
    QString shownLanguage() const;

    // `count` different numbers of the inclusive range between the bounds (given in either order), in the order drawn.
    // Empty when the range has fewer numbers, or when count is 0.
    static QVector<unsigned> generate_X_different_numbers(int count, unsigned from, unsigned to);

    // Decimal digits, at least 1.
    static int numCifre(unsigned value);
    // 0 to 15; -1 for anything but 0-9 and upper-case A-F.
    static int HexToNum(char digit);
    // n! as a double; 1 below 1, the largest double above 170.
    static double fatt(int n);
    // Sorts in place; every element is at most `max`. Index of the last element written, -1 when there is none.
    static int countingSort(unsigned *values, int count, unsigned max);
    // Copy of the bytes between two 0-based positions, both included, in either order. Null for a null or empty string
    // and for a position beyond its length. The caller releases it with free().
    static char *subString(const char *text, int from, int to);

    // Fixed name of a paper format, by QPagedPaintDevice::PageSize; "Unknown!" outside 0 to 30.
    static QString paperFormatName(int format);
    // Formats with dimensions of their own, offered to the user: indices 0 to 28 of paperFormatName().
    static constexpr int selectablePaperFormats = 29;

private:
    [[maybe_unused]] QCoreApplication *m_application; // not owned
    std::unique_ptr<QTranslator> m_toolkitTranslator;
    std::unique_ptr<QTranslator> m_programTranslator;
};

// The next number of the seeded generator, 0 to RAND_MAX: the one place that calls qrand().
int nextRandom();
// Starts the generator of the calling thread anew: one seed gives one sequence.
void seedRandom(unsigned seed);

// Set by the start-up routine, which owns the object.
extern GUtils *globalUtils;

// That of globalUtils; Italian without it.
QString shownLanguage();
