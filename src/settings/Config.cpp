// SPDX-License-Identifier: MIT
#include "settings/Config.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QStringList>

Config *globalConfig = nullptr;

namespace {
const QString keyNMin = QStringLiteral("NMIN");
const QString keyNMax = QStringLiteral("NMAX");
const QString keyNBlocks = QStringLiteral("CLASSIC_NBLOCKS");
const QString keyNRowxBlock = QStringLiteral("CLASSIC_NROWxBLOCK");
const QString keyNDrawnxRow = QStringLiteral("CLASSIC_NDRAWNxROW");
const QString keyNCols = QStringLiteral("CLASSIC_NCOLS");
const QString keyNJollyxRow = QStringLiteral("CLASSIC_NJOLLYxROW");
const QString keyCellText = QStringLiteral("DEFAULT_CELL_TEXT");
const QString keyCellImage = QStringLiteral("DEFAULT_CELL_IMAGE");
const QString keySaveDir = QStringLiteral("DEFAULT_SAVE_DIR");
const QString keyLanguage = QStringLiteral("LANGUAGE");

constexpr int defaultNMin = 1;
constexpr int defaultNMax = 90;
constexpr int defaultNBlocks = 6;
constexpr int defaultNRowxBlock = 3;
constexpr int defaultNDrawnxRow = 5;
constexpr int defaultNCols = 9;
constexpr int defaultNJollyxRow = 0;

QString fallbackCellText()
{
    return QStringLiteral("TXT");
}

QString fallbackCellImage()
{
    return QDir::currentPath() + QStringLiteral("/default.png");
}

// A text with commas that was typed by hand, without quotes, is read as a list: its pieces make the text again.
QString readText(const QSettings &file, const QString &key, const QString &fallback)
{
    const QVariant value = file.value(key, fallback);
    return value.type() == QVariant::StringList ? value.toStringList().join(QStringLiteral(", ")) : value.toString();
}

// The section line and the key lines, without the comments; empty when the file cannot be read.
QList<QByteArray> linesWithoutComments(const QString &path)
{
    QList<QByteArray> kept;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return kept;
    }
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        if (line.endsWith('\n')) {
            line.chop(1);
        }
        if (!line.startsWith(';')) {
            kept.append(line);
        }
    }
    return kept;
}
} // namespace

Config::Config(QCoreApplication *app)
    : outputFormatName(QStringLiteral("PDF"))
    , application(app)
{
    firstStart = !load();
    if (firstStart) {
        resetDefaults();
    }
}

QString Config::filePath()
{
    return QDir::currentPath() + QStringLiteral("/config.ini");
}

bool Config::load()
{
    if (!QFile::exists(filePath())) {
        return false;
    }
    const QSettings file(filePath(), QSettings::IniFormat);
    nMin = file.value(keyNMin, defaultNMin).toInt();
    nMax = file.value(keyNMax, defaultNMax).toInt();
    classicNBlocks = file.value(keyNBlocks, defaultNBlocks).toInt();
    classicNRowxBlock = file.value(keyNRowxBlock, defaultNRowxBlock).toInt();
    classicNDrawnxRow = file.value(keyNDrawnxRow, defaultNDrawnxRow).toInt();
    classicNCols = file.value(keyNCols, defaultNCols).toInt();
    classicNJollyxRow = file.value(keyNJollyxRow, defaultNJollyxRow).toInt();
    defaultCellText = readText(file, keyCellText, fallbackCellText());
    defaultCellImage = readText(file, keyCellImage, fallbackCellImage());
    defaultSaveDir = readText(file, keySaveDir, QDir::currentPath());
    // The language just chosen in the first-start dialog outlives the reload on "OK".
    if (!firstStart) {
        language = readText(file, keyLanguage, QLocale::system().name());
    }
    return true;
}

void Config::resetDefaults()
{
    QFile::remove(filePath());
    QSettings file(filePath(), QSettings::IniFormat);
    file.clear(); // forget what an earlier reading of the removed file has cached
    file.setValue(keyNMin, nMin = defaultNMin);
    file.setValue(keyNMax, nMax = defaultNMax);
    file.setValue(keyNBlocks, classicNBlocks = defaultNBlocks);
    file.setValue(keyNRowxBlock, classicNRowxBlock = defaultNRowxBlock);
    file.setValue(keyNDrawnxRow, classicNDrawnxRow = defaultNDrawnxRow);
    file.setValue(keyNCols, classicNCols = defaultNCols);
    file.setValue(keyNJollyxRow, classicNJollyxRow = defaultNJollyxRow);
    file.setValue(keyCellText, defaultCellText = fallbackCellText());
    file.setValue(keyCellImage, defaultCellImage = fallbackCellImage());
    file.setValue(keySaveDir, defaultSaveDir = QDir::currentPath());
    file.setValue(keyLanguage, language = QLocale::system().name());
}

bool Config::writeComments(const QString &cNmin, const QString &cNmax, const QString &cNBlocks,
                           const QString &cNRowxBlock, const QString &cNDrawnxRow, const QString &cNCols,
                           const QString &cNJollyxRow, const QString &cCellText, const QString &cCellImage,
                           const QString &cSaveDir, const QString &cLanguage)
{
    // In the order of the keys in the file.
    const QStringList comments = {cNBlocks,  cNCols,   cNDrawnxRow, cNJollyxRow, cNRowxBlock, cCellImage,
                                  cCellText, cSaveDir, cLanguage,   cNmax,       cNmin};
    const QList<QByteArray> kept = linesWithoutComments(filePath());
    if (kept.size() != comments.size() + 1) {
        resetDefaults();
        return false;
    }
    QFile file(filePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return true; // write failures are ignored
    }
    for (int i = 0; i < comments.size(); ++i) {
        file.write(kept.at(i) + "\n;" + comments.at(i).toLatin1() + '\n');
    }
    file.write(kept.last());
    return true;
}

bool Config::isFirstStart() const
{
    return firstStart;
}

int Config::formatId(const QString &suffix) const
{
    return suffix == outputFormatName ? outputFormatId : -1;
}

QString Config::formatName(int id) const
{
    Q_UNUSED(id)
    return QStringLiteral("UNKNOWN");
}
