// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

// What a source of translations (.ts) must hold so that the program reads as well in its language as in Italian.
namespace TranslationChecks {
struct Entry
{
    QString context;
    QString source;
    QString comment; // tells apart equal texts of one context
    QString translation;
    QString language; // locale of the translation, such as de_DE
    bool unfinished = false;

    QString key() const { return context + QLatin1Char('/') + source + QLatin1Char('/') + comment; }
};

struct Source
{
    QString language;
    QVector<Entry> entries; // those that the code still uses; one for each form of a plural
    QString error;          // empty when the file is well formed
};

Source read(const QByteArray &content);
// The texts of the C++ files and forms of a folder, with empty translations.
Source readCode(const QString &folder);

bool isIncomplete(const Entry &entry);
bool changesPlaceholders(const Entry &entry);
// The status bar takes its colour from the last character of a message.
bool changesColour(const Entry &entry);
bool changesLineBreaks(const Entry &entry);
// Texts are saved in Latin-1.
bool leavesLatin1(const Entry &entry);
// A number before the word that it counts, as in "%1 pages", is wrong when it is 1: "Pages: %1" never is. Italian
// repeats the source texts, whatever they are.
bool countsAWord(const Entry &entry);
// German, French and Spanish part a percent sign from its number by a no-break space, English and Italian do not.
bool misplacesPercentSigns(const Entry &entry);
// French has a no-break space before ":", ";", "!" and "?", and inside its quotes.
bool misplacesFrenchSigns(const Entry &entry);
// Spanish opens what ends in "!" or "?".
bool lacksSpanishSigns(const Entry &entry);
// A block is a card, and a cell has the word that players of the language use.
bool usesForeignWords(const Entry &entry);

// One line for everything wrong with the entries.
QStringList problems(const QVector<Entry> &entries);
// One line for every text of the code that has no entry.
QStringList missing(const QVector<Entry> &entries, const QVector<Entry> &code);
} // namespace TranslationChecks
