// SPDX-License-Identifier: MIT
#include "settings/TranslationChecks.h"

#include <QFile>
#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>

namespace TranslationChecks {
namespace {
// What may follow a number in the texts: words that it does not count, and units.
const QHash<QString, QStringList> notCounted = {
    {QStringLiteral("en"), QStringLiteral("and is of saved to bytes MB").split(QLatin1Char(' '))},
    {QStringLiteral("de"),
     QStringLiteral("bis eingeben gespeichert ist nicht und von weiter wird Bytes MB").split(QLatin1Char(' '))},
    {QStringLiteral("fr"), QStringLiteral("à enregistrée et n non sur octets Mo").split(QLatin1Char(' '))},
    {QStringLiteral("es"), QStringLiteral("a de guardada no y bytes MB").split(QLatin1Char(' '))},
};

// What other programs call blocks and cells: players have words of their own for them.
const QHash<QString, QString> foreignWords = {
    {QStringLiteral("en"), QStringLiteral("blocks?|tickets?")},
    {QStringLiteral("de"), QStringLiteral("Bl[oö]cke?n?|Zellen?")},
    {QStringLiteral("fr"), QStringLiteral("blocs?|cellules?")},
    {QStringLiteral("es"), QStringLiteral("bloques?|celdas?")},
};

QString speechOf(const Entry &entry)
{
    return entry.language.section(QLatin1Char('_'), 0, 0);
}

// The translation element: its text, or the texts of its plural forms.
QStringList readForms(QXmlStreamReader &xml)
{
    QStringList forms;
    QString text;
    while (!xml.atEnd() &&
           !(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == QLatin1String("translation"))) {
        if (xml.isStartElement() && xml.name() == QLatin1String("numerusform")) {
            forms.append(xml.readElementText());
        } else if (xml.isCharacters()) {
            text += xml.text();
        }
    }
    return forms.isEmpty() ? QStringList(text) : forms;
}

void readMessage(QXmlStreamReader &xml, const QString &context, QVector<Entry> &entries)
{
    Entry entry;
    entry.context = context;
    entry.unfinished = true; // until a translation says otherwise
    QStringList forms;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            entry.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            entry.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const auto type = xml.attributes().value(QLatin1String("type"));
            if (type == QLatin1String("vanished") || type == QLatin1String("obsolete")) {
                xml.skipCurrentElement();
                xml.skipCurrentElement(); // the rest of the message
                return;
            }
            entry.unfinished = type == QLatin1String("unfinished");
            forms = readForms(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    for (const QString &form : forms.isEmpty() ? QStringList(QString()) : forms) {
        entry.translation = form;
        entries.append(entry);
    }
}

QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%(?:L?\\d{1,2}|[A-Za-z])"));
    QStringList found;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();) {
        found.append(matches.next().captured());
    }
    found.sort();
    return found;
}

QChar colourCharacter(const QString &text)
{
    const QChar last = text.isEmpty() ? QChar() : text.back();
    const bool coloured = last == QLatin1Char('!') || last == QLatin1Char('.') || last == QLatin1Char('?');
    return coloured ? last : QChar();
}
} // namespace

Source read(const QByteArray &content)
{
    Source source;
    QXmlStreamReader xml(content);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("TS")) {
            source.language = xml.attributes().value(QLatin1String("language")).toString();
        } else if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            readMessage(xml, context, source.entries);
        }
    }
    for (Entry &entry : source.entries) {
        entry.language = source.language;
    }
    if (xml.hasError()) {
        source.error = xml.errorString();
    }
    return source;
}

Source readCode(const QString &folder)
{
    const QTemporaryDir scratch;
    const QString path = scratch.filePath(QStringLiteral("code.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(QUINTRA_LUPDATE), {QStringLiteral("-silent"), folder, QStringLiteral("-ts"), path});
    const bool succeeded = lupdate.waitForFinished() && lupdate.exitCode() == 0;
    QFile file(path);
    if (!succeeded || !file.open(QIODevice::ReadOnly)) {
        Source failed;
        failed.error = QString::fromLocal8Bit(lupdate.readAllStandardError()) + lupdate.errorString();
        return failed;
    }
    return read(file.readAll());
}

bool isIncomplete(const Entry &entry)
{
    return entry.unfinished || entry.translation.isEmpty();
}

bool changesPlaceholders(const Entry &entry)
{
    return placeholders(entry.translation) != placeholders(entry.source);
}

bool changesColour(const Entry &entry)
{
    return colourCharacter(entry.translation) != colourCharacter(entry.source);
}

bool changesLineBreaks(const Entry &entry)
{
    return entry.translation.count(QLatin1Char('\n')) != entry.source.count(QLatin1Char('\n'));
}

bool leavesLatin1(const Entry &entry)
{
    constexpr ushort lastOfLatin1 = 0xff;
    return std::any_of(entry.translation.begin(), entry.translation.end(),
                       [](QChar character) { return character.unicode() > lastOfLatin1; });
}

bool countsAWord(const Entry &entry)
{
    static const QRegularExpression pattern(QStringLiteral("%L?\\d{1,2}[ \u00a0](\\w+)"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    const auto words = notCounted.constFind(speechOf(entry));
    if (words == notCounted.constEnd()) {
        return false;
    }
    for (auto matches = pattern.globalMatch(entry.translation); matches.hasNext();) {
        if (!words->contains(matches.next().captured(1))) {
            return true;
        }
    }
    return false;
}

bool misplacesPercentSigns(const Entry &entry)
{
    static const QRegularExpression unparted(QStringLiteral("(?<!\u00a0)%(?![\\dA-Za-z])"));
    static const QRegularExpression parted(QStringLiteral("[ \u00a0]%(?![\\dA-Za-z])"));
    static const QStringList parting = {QStringLiteral("de"), QStringLiteral("fr"), QStringLiteral("es")};
    return entry.translation.contains(parting.contains(speechOf(entry)) ? unparted : parted);
}

bool misplacesFrenchSigns(const Entry &entry)
{
    // Two semicolons are not written to be read: they part the filters of a file dialog.
    static const QRegularExpression unparted(QStringLiteral("(?<![\u00a0;])[:;!?](?!;)|«(?!\u00a0)|(?<!\u00a0)»"));
    return speechOf(entry) == QLatin1String("fr") && entry.translation.contains(unparted);
}

bool lacksSpanishSigns(const Entry &entry)
{
    const QString &text = entry.translation;
    const bool opened = text.count(QChar(0xbf)) == text.count(QLatin1Char('?')) &&
                        text.count(QChar(0xa1)) == text.count(QLatin1Char('!'));
    return speechOf(entry) == QLatin1String("es") && !opened;
}

bool usesForeignWords(const Entry &entry)
{
    const auto words = foreignWords.constFind(speechOf(entry));
    return words != foreignWords.constEnd() &&
           entry.translation.contains(QRegularExpression(QStringLiteral("\\b(%1)\\b").arg(*words),
                                                         QRegularExpression::CaseInsensitiveOption |
                                                             QRegularExpression::UseUnicodePropertiesOption));
}

QStringList problems(const QVector<Entry> &entries)
{
    struct Check
    {
        bool (*fails)(const Entry &);
        QString what;
    };
    const QVector<Check> checks = {{isIncomplete, QStringLiteral("unfinished or empty")},
                                   {changesPlaceholders, QStringLiteral("other placeholders")},
                                   {changesColour, QStringLiteral("other colour of the status bar")},
                                   {changesLineBreaks, QStringLiteral("other line breaks")},
                                   {leavesLatin1, QStringLiteral("not Latin-1")},
                                   {countsAWord, QStringLiteral("a number before what it counts")},
                                   {misplacesPercentSigns, QStringLiteral("spacing of a percent sign")},
                                   {misplacesFrenchSigns, QStringLiteral("spacing of a French sign")},
                                   {lacksSpanishSigns, QStringLiteral("a Spanish sign not opened")},
                                   {usesForeignWords, QStringLiteral("a word that players do not use")}};
    QStringList found;
    for (const Entry &entry : entries) {
        for (const Check &check : checks) {
            if (check.fails(entry)) {
                found.append(QStringLiteral("%1: %2 -> %3").arg(check.what, entry.key(), entry.translation));
            }
        }
    }
    return found;
}

QStringList missing(const QVector<Entry> &entries, const QVector<Entry> &code)
{
    QSet<QString> known;
    for (const Entry &entry : entries) {
        known.insert(entry.key());
    }
    QStringList found;
    for (const Entry &entry : code) {
        if (!known.contains(entry.key())) {
            found.append(entry.key());
        }
    }
    return found;
}
} // namespace TranslationChecks
