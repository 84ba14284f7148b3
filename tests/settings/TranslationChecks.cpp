// SPDX-License-Identifier: MIT
#include "settings/TranslationChecks.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>

namespace TranslationChecks {
namespace {
const QStringList configComments = {
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
};

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
    return entry.context == QLatin1String("FormatSelection") && configComments.contains(entry.source) &&
           std::any_of(entry.translation.begin(), entry.translation.end(),
                       [](QChar character) { return character.unicode() > lastOfLatin1; });
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
                                   {leavesLatin1, QStringLiteral("not Latin-1")}};
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
