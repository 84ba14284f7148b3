// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QCoreApplication;

// The defaults of the program, read from config.ini in the current folder (looked up anew at every access).
class Config
{
public:
    // Reads the file; without one, writes the defaults and remembers that this is a first start.
    explicit Config(QCoreApplication *application);
    Q_DISABLE_COPY_MOVE(Config)

    // Reads the file into the fields. False, and nothing changed, when there is none. On a first start `language` stays
    // as the user chose it.
    bool load();
    // Replaces the file, and the fields, by the defaults. Where it cannot be written there is none: the next start is a
    // first start then.
    void resetDefaults();
    // Puts one comment line above each key, replacing older ones. False when the file does not have exactly its twelve
    // lines; it is then reset to the defaults.
    bool writeComments(const QString &cNmin, const QString &cNmax, const QString &cNBlocks, const QString &cNRowxBlock,
                       const QString &cNDrawnxRow, const QString &cNCols, const QString &cNJollyxRow,
                       const QString &cCellText, const QString &cCellImage, const QString &cSaveDir,
                       const QString &cLanguage);
    bool isFirstStart() const;
    // The folder of a file that the user chose becomes the save folder, in memory only. False when there is none.
    bool rememberFolder(const QString &fileName);

    // Identifier of the output format with this suffix (upper case), -1 when it is not supported.
    int formatId(const QString &suffix) const;
    // Name of a format that is not supported: "UNKNOWN".
    QString formatName(int id) const;

    // Where config.ini is now.
    static QString filePath();

    QString defaultCellText;
    QString defaultCellImage; // path
    QString defaultSaveDir;   // start folder of file dialogs
    QString language;         // locale name, such as it_IT
    qint32 outputFormatId = 0;
    QString outputFormatName;
    QCoreApplication *application; // not owned
    bool firstStart = false;
    qint32 nMin = 0;
    qint32 nMax = 0;
    qint32 classicNBlocks = 0;
    qint32 classicNRowxBlock = 0;
    qint32 classicNDrawnxRow = 0;
    qint32 classicNCols = 0;
    qint32 classicNJollyxRow = 0;

private:
    void writeDefaults(const QString &path);
};

// Null when there is none.
extern Config *globalConfig;

// The one that everybody reads, for as long as it lives.
class CurrentConfig final : public Config
{
public:
    explicit CurrentConfig(QCoreApplication *program);
    ~CurrentConfig();
    Q_DISABLE_COPY_MOVE(CurrentConfig)
};
