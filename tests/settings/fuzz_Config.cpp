// SPDX-License-Identifier: MIT
#include "settings/Config.h"

#include "support/Fuzzing.h"
#include "support/ScratchFolder.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QMap>

#include <algorithm>
#include <optional>

namespace {
constexpr int linesOfAWholeFile = 12;
constexpr int refusalsPerReset = 32; // the defaults are always the same, and take long to write
const QString comment = QStringLiteral("Caff\u00e8; \"a, b\" [x] \\");

void writeFile(const QByteArray &text)
{
    QFile file(Config::filePath());
    require(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

QByteArray readFile()
{
    QFile file(Config::filePath());
    require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

// What a file says of the keys.
using Values = QMap<QByteArray, QByteArray>;

// As the program reads lines to comment them: without their ends, those of Windows too. Of the first line, the toolkit
// drops every carriage return.
QList<QByteArray> linesOf(const QByteArray &text)
{
    QList<QByteArray> lines = text.split('\n');
    lines.first().replace('\r', QByteArray());
    for (int i = 0; i + 1 < lines.size(); ++i) {
        if (lines[i].endsWith('\r')) {
            lines[i].chop(1);
        }
    }
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

// The file with its comments; nothing when it has not the lines of a whole one.
std::optional<QByteArray> commented(const QByteArray &text)
{
    QList<QByteArray> kept = linesOf(text);
    kept.erase(std::remove_if(kept.begin(), kept.end(), [](const QByteArray &line) { return line.startsWith(';'); }),
               kept.end());
    if (kept.size() != linesOfAWholeFile) {
        return std::nullopt;
    }
    return kept.join("\n;" + comment.toLatin1() + '\n');
}

Values defaults()
{
    const QByteArray here = QDir::currentPath().toLatin1();
    return {{"NMIN", "1"},
            {"NMAX", "90"},
            {"CLASSIC_NBLOCKS", "6"},
            {"CLASSIC_NROWxBLOCK", "3"},
            {"CLASSIC_NDRAWNxROW", "5"},
            {"CLASSIC_NCOLS", "9"},
            {"CLASSIC_NJOLLYxROW", "0"},
            {"DEFAULT_CELL_TEXT", "TXT"},
            {"DEFAULT_CELL_IMAGE", here + "/default.png"},
            {"DEFAULT_SAVE_DIR", here},
            {"LANGUAGE", QLocale::system().name().toLatin1()}};
}

QByteArray defaultFile()
{
    QByteArray file = "[General]\n";
    const Values values = defaults();
    for (auto value = values.begin(); value != values.end(); ++value) {
        file += value.key() + '=' + value.value() + '\n';
    }
    return file;
}

// Whether no line of a text has a meaning beyond that of a key, a section or a comment: nothing is quoted, escaped or
// continued.
bool isPlain(const QByteArray &text)
{
    static const QByteArray special = QByteArrayLiteral("\"\\%@");
    const bool sections = text.count('[') == text.count("\n[General]\n") + (text.startsWith("[General]\n") ? 1 : 0);
    return sections && std::all_of(text.begin(), text.end(),
                                   [](char c) { return c == '\n' || (c >= ' ' && c <= '~' && !special.contains(c)); });
}

bool isTextKey(const QByteArray &key)
{
    return key == "DEFAULT_CELL_TEXT" || key == "DEFAULT_CELL_IMAGE" || key == "DEFAULT_SAVE_DIR";
}

// What a plain text says. Texts stand as they are, everything else may be followed by a comment.
Values said(const QByteArray &text)
{
    Values values = defaults();
    for (const QByteArray &line : text.split('\n')) {
        const int equals = line.indexOf('=');
        const QByteArray key = line.left(equals).trimmed();
        QByteArray value = line.mid(equals + 1);
        if (!isTextKey(key) && value.contains(';')) {
            value.truncate(value.indexOf(';'));
        }
        if (equals >= 0 && values.contains(key)) {
            values[key] = value.trimmed();
        }
    }
    return values;
}

Values valuesOf(const Config &config)
{
    return {{"NMIN", QByteArray::number(config.nMin)},
            {"NMAX", QByteArray::number(config.nMax)},
            {"CLASSIC_NBLOCKS", QByteArray::number(config.classicNBlocks)},
            {"CLASSIC_NROWxBLOCK", QByteArray::number(config.classicNRowxBlock)},
            {"CLASSIC_NDRAWNxROW", QByteArray::number(config.classicNDrawnxRow)},
            {"CLASSIC_NCOLS", QByteArray::number(config.classicNCols)},
            {"CLASSIC_NJOLLYxROW", QByteArray::number(config.classicNJollyxRow)},
            {"DEFAULT_CELL_TEXT", config.defaultCellText.toUtf8()},
            {"DEFAULT_CELL_IMAGE", config.defaultCellImage.toUtf8()},
            {"DEFAULT_SAVE_DIR", config.defaultSaveDir.toUtf8()},
            {"LANGUAGE", config.language.toUtf8()}};
}

void requireSaid(const Values &values, const Values &expected)
{
    for (auto value = expected.begin(); value != expected.end(); ++value) {
        const bool isText = isTextKey(value.key()) || value.key() == "LANGUAGE";
        // A list is no integer and no language either.
        const QByteArray one = isText ? value.value() : QByteArray::number(value.value().toInt());
        const bool isList = value.key() == "LANGUAGE" && value.value().contains(',');
        require(isList || values[value.key()] == one);
    }
}

// Whether a comment below a line may come to stand inside a value. A carriage return ends a line for those who read
// values only, and so may be lost.
bool mayRunOver(const QByteArray &text)
{
    const QList<QByteArray> lines = linesOf(text);
    return text.contains('\\') || text.count('\r') != text.count("\r\n") ||
           std::any_of(lines.begin(), lines.end(), [](const QByteArray &line) { return line.count('"') % 2 != 0; });
}

bool takesComments(Config &config)
{
    return config.writeComments(comment, comment, comment, comment, comment, comment, comment, comment, comment,
                                comment, comment);
}
} // namespace

// Whatever stands in the file is read, and what is plain as it stands. Comments change nothing but the lines that they
// are; a file that cannot take them is one of defaults afterwards.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const ScratchFolder folder;
    const QByteArray text = bytesOf(data, size);
    writeFile(text);
    Config config(nullptr);
    require(!config.isFirstStart() && readFile() == text);
    const Values before = valuesOf(config);
    if (isPlain(text)) {
        requireSaid(before, said(text));
    }
    const std::optional<QByteArray> expected = commented(text);
    if (!expected && qHash(text) % refusalsPerReset != 0) {
        return 0;
    }
    require(takesComments(config) == expected.has_value());
    require(readFile() == expected.value_or(defaultFile()));
    require(valuesOf(config) == (expected ? before : defaults()));
    require(config.load());
    require(valuesOf(config) == (expected ? before : defaults()) || (expected && mayRunOver(text)));
    return 0;
}
