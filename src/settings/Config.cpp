// SPDX-License-Identifier: MIT
#include "settings/Config.h"

#include "settings/DiskFile.h"
#include "settings/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QStringList>
#include <QTemporaryFile>

#include <memory>

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

constexpr int lineCount = 12; // the section line and a line for each key

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

bool isTextKey(const QString &key)
{
    return key == keyCellText || key == keyCellImage || key == keySaveDir;
}

bool endsInLoneBackslash(const QByteArray &text)
{
    int count = 0;
    while (count < text.size() && text.at(text.size() - 1 - count) == '\\') {
        ++count;
    }
    return count % 2 == 1;
}

// What an INI reader understands of a text typed by hand without the quotes that commas and semicolons need: it would
// be read as a list, or end at the semicolon. A backslash at its end would swallow the next line.
QByteArray mended(const QByteArray &line)
{
    const int equals = qMax(0, line.indexOf('='));
    if (!isTextKey(QString::fromLatin1(line.left(equals).trimmed()))) {
        return line;
    }
    QByteArray text = line.mid(equals + 1).trimmed();
    if (endsInLoneBackslash(text)) {
        text += '\\';
    }
    if ((text.contains(',') || text.contains(';')) && !text.contains('"')) {
        text = '"' + text + '"';
    }
    return line.left(equals) + '=' + text;
}

// To the end of the file, or as far as it can be read.
template<class Use>
void forEachLine(QFile &file, Use use)
{
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        use(line);
    }
    if (file.error() != QFile::NoError) {
        qWarning("Config: %s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    }
}

// The values of the file. They are read from a copy: QSettings keeps what it has read of a file for as long as size and
// time stamp look the same, and so would miss a change made at once after a reading.
class Values final
{
public:
    // A device gives none.
    explicit Values(const QString &path)
    {
        if (!isDevice(path)) {
            // Where there is no room for a copy, the file itself is better than the defaults.
            const bool copied = copy(path);
            m_settings = std::make_unique<QSettings>(copied ? m_copy.fileName() : path, QSettings::IniFormat);
        }
    }
    // 0 for a text that is no integer of 32 bits, which the conversion of the variant itself would cut.
    int number(const QString &key, int fallback) const { return text(key, QString::number(fallback)).toInt(); }
    QString text(const QString &key, const QString &fallback) const
    {
        if (!m_settings) {
            return fallback;
        }
        return m_settings->value(key, fallback).toString();
    }

private:
    bool copy(const QString &path)
    {
        QFile file(path);
        if (!m_copy.open() || !file.open(QIODevice::ReadOnly)) {
            return false;
        }
        forEachLine(file, [this](const QByteArray &line) { m_copy.write(mended(line.trimmed()) + '\n'); });
        return m_copy.flush();
    }

    QTemporaryFile m_copy;
    std::unique_ptr<QSettings> m_settings;
};

// The section line and the key lines, without the comments; empty when the file cannot be read.
QList<QByteArray> linesWithoutComments(const QString &path)
{
    QList<QByteArray> kept;
    QFile file(path);
    if (isDevice(path) || !file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        return kept;
    }
    forEachLine(file, [&kept](QByteArray line) {
        if (line.endsWith('\n')) {
            line.chop(1);
        }
        if (!line.startsWith(';')) {
            kept.append(line);
        }
    });
    return kept;
}

// QSettings does not tell that its last bytes did not reach the file.
bool holdsEveryKey(const QString &path)
{
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return content.count('\n') == lineCount && content.endsWith('\n');
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
    const Values file(filePath());
    nMin = file.number(keyNMin, defaultNMin);
    nMax = file.number(keyNMax, defaultNMax);
    classicNBlocks = file.number(keyNBlocks, defaultNBlocks);
    classicNRowxBlock = file.number(keyNRowxBlock, defaultNRowxBlock);
    classicNDrawnxRow = file.number(keyNDrawnxRow, defaultNDrawnxRow);
    classicNCols = file.number(keyNCols, defaultNCols);
    classicNJollyxRow = file.number(keyNJollyxRow, defaultNJollyxRow);
    defaultCellText = file.text(keyCellText, fallbackCellText());
    defaultCellImage = file.text(keyCellImage, fallbackCellImage());
    defaultSaveDir = file.text(keySaveDir, QDir::currentPath());
    // The language just chosen in the first-start dialog outlives the reload on "OK".
    if (!firstStart) {
        language = file.text(keyLanguage, QLocale::system().name());
    }
    return true;
}

void Config::resetDefaults()
{
    QFile::remove(filePath());
    WholeFile whole(filePath());
    const bool created = whole.create();
    writeDefaults(whole.writtenName());
    if (!created || !holdsEveryKey(whole.writtenName()) || !whole.commit()) {
        qWarning("Config::resetDefaults(): %s cannot be written", qPrintable(filePath()));
    }
}

void Config::writeDefaults(const QString &path)
{
    QSettings file(path, QSettings::IniFormat);
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
    if (kept.size() != lineCount) {
        resetDefaults();
        return false;
    }
    QByteArray content;
    for (int i = 0; i < comments.size(); ++i) {
        content += kept.at(i) + "\n;" + comments.at(i).toLatin1() + '\n';
    }
    QString reason;
    if (writeWhole(filePath(), content + kept.last(), QIODevice::NotOpen, &reason) != Written::Whole) {
        qWarning("Config::writeComments(): %s: %s", qPrintable(filePath()), qPrintable(reason));
    }
    return true; // a comment is worth no more
}

bool Config::isFirstStart() const
{
    return firstStart;
}

bool Config::rememberFolder(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!file.dir().exists()) {
        return false;
    }
    defaultSaveDir = file.absolutePath();
    return true;
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

CurrentConfig::CurrentConfig(QCoreApplication *program)
    : Config(program)
{
    globalConfig = this;
}

CurrentConfig::~CurrentConfig()
{
    globalConfig = nullptr;
}
