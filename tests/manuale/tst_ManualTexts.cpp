// SPDX-License-Identifier: MIT
#include "settings/Config.h"
#include "settings/TranslationChecks.h"
#include "support/ScratchFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <algorithm>

namespace {
const QString projectFolder = QStringLiteral(QUINTRA_PROJECT);

QString textOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QDir pagesOf(const QString &language)
{
    return {QStringLiteral("%1/docs/manual/%2").arg(projectFolder, language), QStringLiteral("*.md")};
}

QString page(const QString &language, const QString &name)
{
    return textOf(pagesOf(language).filePath(name));
}

QStringList all(const QString &pattern, const QString &text)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (auto match = expression.globalMatch(text); match.hasNext();) {
        found << match.next().captured(1).simplified();
    }
    return found;
}

QVector<TranslationChecks::Entry> translations(const QString &language)
{
    const QString locale = language == QLatin1String("it") ? QStringLiteral("it_IT") : QStringLiteral("en_GB");
    return TranslationChecks::read(
               textOf(QStringLiteral("%1/language/Quintra_%2.ts").arg(projectFolder, locale)).toUtf8())
        .entries;
}

// Of the boxes of the toolkit.
QSet<QString> buttonsOf(const QString &language)
{
    return language == QLatin1String("it")
               ? QSet<QString>{QStringLiteral("Sì"), QStringLiteral("No"), QStringLiteral("Annulla")}
               : QSet<QString>{QStringLiteral("Yes"), QStringLiteral("No"), QStringLiteral("Cancel")};
}

// Whether a text of the program reads so, or begins so, with its placeholders filled in.
bool reads(const QString &text, const QString &quote)
{
    QString pattern = QRegularExpression::escape(text.simplified());
    pattern.replace(QRegularExpression(QStringLiteral("\\\\%[0-9]")), QStringLiteral(".+"));
    return text.simplified().startsWith(quote) ||
           QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(quote).hasMatch();
}

// A text as the page of messages writes it: on one line, with a sign for what differs from one time to another.
QString asQuoted(QString text)
{
    text.replace(QRegularExpression(QStringLiteral("%[0-9]")), QStringLiteral("…"));
    text.remove(QRegularExpression(QStringLiteral("-{5,}")));
    return text.simplified();
}

// The first column of the tables of messages.
QSet<QString> explainedMessages(const QString &language)
{
    const bool italian = language == QLatin1String("it");
    const QString head = italian ? QStringLiteral("| Testo |") : QStringLiteral("| Text |");
    QSet<QString> messages;
    bool inTable = false;
    for (const QString &line : page(language, QStringLiteral("messages.md")).split(QLatin1Char('\n'))) {
        const bool row = line.startsWith(QLatin1String("| "));
        inTable = line.startsWith(head) || (inTable && line.startsWith(QLatin1Char('|')));
        if (inTable && row && !line.startsWith(head)) {
            QString message = line.mid(2).section(QStringLiteral(" | "), 0, 0);
            message.replace(QLatin1String("\\|"), QLatin1String("|"))
                .replace(QLatin1String("\\\\"), QLatin1String("\\"));
            messages.insert(message.replace(QLatin1String("&gt;"), QLatin1String(">")));
        }
    }
    return messages;
}

// A text that tells something by itself, not a name ("Carattere...") nor a tool tip of several sentences.
bool isMessage(const TranslationChecks::Entry &entry)
{
    const QString &text = entry.source;
    const bool sentence = text.endsWith(QLatin1Char('!')) || text.endsWith(QLatin1Char('?')) ||
                          (text.endsWith(QLatin1Char('.')) && text.contains(QLatin1Char(' ')));
    const bool name = text.endsWith(QLatin1String("registro...")) || text.endsWith(QLatin1String("partita...")) ||
                      text == QLatin1String("da pag.");
    const bool about = text.startsWith(QLatin1String("Generatore di cartelle per la Quintra."));
    return sentence && !name && !about && !text.startsWith(QLatin1String("<p>"));
}
} // namespace

// The pages of the manual against the texts of the program that they quote.
class tst_ManualTexts final : public QObject
{
    Q_OBJECT

private slots:
    void bothLanguagesTellTheSame_data();
    void bothLanguagesTellTheSame();
    void labelsAreThoseOfTheProgram_data();
    void labelsAreThoseOfTheProgram();
    void quotesAreThoseOfTheProgram_data();
    void quotesAreThoseOfTheProgram();
    void keysStandInTheirTable_data();
    void keysStandInTheirTable();
    void linksLeadToFiles_data();
    void linksLeadToFiles();
    void explainedMessagesAreThoseOfTheProgram_data();
    void explainedMessagesAreThoseOfTheProgram();
    void everyMessageIsExplained_data();
    void everyMessageIsExplained();
    void everyKeyOfTheConfigurationIsExplained_data();
    void everyKeyOfTheConfigurationIsExplained();

private:
    static void addPages(const QStringList &languages);
    static void addLanguages();
};

void tst_ManualTexts::addPages(const QStringList &languages)
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    for (const QString &language : languages) {
        for (const QString &name : pagesOf(language).entryList()) {
            QTest::newRow(qPrintable(language + QLatin1Char('/') + name)) << language << name;
        }
    }
}

void tst_ManualTexts::addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("it") << QStringLiteral("it");
    QTest::newRow("en") << QStringLiteral("en");
}

void tst_ManualTexts::bothLanguagesTellTheSame_data()
{
    QCOMPARE(pagesOf(QStringLiteral("it")).entryList(), pagesOf(QStringLiteral("en")).entryList());
    addPages({QStringLiteral("en")});
}

// As far as a machine can see: headings, numbered steps, rows of tables, pictures and links, in the same order.
void tst_ManualTexts::bothLanguagesTellTheSame()
{
    QFETCH(QString, name);
    const auto structure = [&](const QString &language) {
        return all(QStringLiteral("(^#+ |^\\s*[0-9]+\\. |^\\s*- |^\\s*\\||(?<=\\]\\()[^)]+)"), page(language, name));
    };
    const QStringList italian = structure(QStringLiteral("it"));
    QVERIFY(!italian.isEmpty());
    QCOMPARE(italian, structure(QStringLiteral("en")));
}

void tst_ManualTexts::labelsAreThoseOfTheProgram_data()
{
    addPages({QStringLiteral("it"), QStringLiteral("en")});
}

void tst_ManualTexts::labelsAreThoseOfTheProgram()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    QSet<QString> labels = buttonsOf(language);
    for (const auto &entry : translations(language)) {
        labels.insert(QString(entry.translation).remove(QLatin1Char('&')));
    }
    for (const QString &label : all(QStringLiteral("\\*\\*([^*]+)\\*\\*"), page(language, name))) {
        QVERIFY2(labels.contains(label), qPrintable(label));
    }
}

void tst_ManualTexts::quotesAreThoseOfTheProgram_data()
{
    addPages({QStringLiteral("it"), QStringLiteral("en")});
}

// What stands in quotes, save in examples of files.
void tst_ManualTexts::quotesAreThoseOfTheProgram()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    QString text = page(language, name);
    text.remove(QRegularExpression(QStringLiteral("^    .*$|`[^`]*`"), QRegularExpression::MultilineOption));
    const auto entries = translations(language);
    for (const QString &quote : all(QStringLiteral("\"([^\"]+)\""), text)) {
        const bool found = std::any_of(entries.begin(), entries.end(),
                                       [&quote](const auto &entry) { return reads(entry.translation, quote); });
        QVERIFY2(found, qPrintable(quote));
    }
}

void tst_ManualTexts::keysStandInTheirTable_data()
{
    addPages({QStringLiteral("it"), QStringLiteral("en")});
}

void tst_ManualTexts::keysStandInTheirTable()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    const QString pattern = QStringLiteral("`((?:Ctrl|Alt|Shift)\\+[^`]+|F[0-9]+)`");
    const QStringList table = all(pattern, page(language, QStringLiteral("shortcuts.md")));
    QVERIFY(table.contains(QStringLiteral("F11")));
    for (const QString &key : all(pattern, page(language, name))) {
        QVERIFY2(table.contains(key), qPrintable(key));
    }
}

void tst_ManualTexts::linksLeadToFiles_data()
{
    addPages({QStringLiteral("it"), QStringLiteral("en")});
}

void tst_ManualTexts::linksLeadToFiles()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    for (const QString &link : all(QStringLiteral("\\]\\(([^)#]+)[^)]*\\)"), page(language, name))) {
        QVERIFY2(QFileInfo(pagesOf(language).filePath(link)).isFile(), qPrintable(link));
    }
}

void tst_ManualTexts::explainedMessagesAreThoseOfTheProgram_data()
{
    addLanguages();
}

void tst_ManualTexts::explainedMessagesAreThoseOfTheProgram()
{
    QFETCH(QString, language);
    QSet<QString> texts;
    for (const auto &entry : translations(language)) {
        texts.insert(asQuoted(entry.translation));
    }
    const QSet<QString> explained = explainedMessages(language);
    QVERIFY(explained.size() > 100);
    for (const QString &message : explained) {
        QVERIFY2(texts.contains(message), qPrintable(message));
    }
}

void tst_ManualTexts::everyMessageIsExplained_data()
{
    addLanguages();
}

void tst_ManualTexts::everyMessageIsExplained()
{
    QFETCH(QString, language);
    const QSet<QString> explained = explainedMessages(language);
    for (const auto &entry : translations(language)) {
        QVERIFY2(!isMessage(entry) || explained.contains(asQuoted(entry.translation)), qPrintable(entry.translation));
    }
}

void tst_ManualTexts::everyKeyOfTheConfigurationIsExplained_data()
{
    addLanguages();
}

void tst_ManualTexts::everyKeyOfTheConfigurationIsExplained()
{
    QFETCH(QString, language);
    const ScratchFolder folder;
    const Config config(QCoreApplication::instance());
    const QStringList keys =
        all(QStringLiteral("^([A-Zx_]+)="), QString::fromUtf8(folder.read(QStringLiteral("config.ini"))));
    QCOMPARE(keys.size(), 11);
    QCOMPARE(all(QStringLiteral("^\\| `([A-Zx_]+)` \\|"), page(language, QStringLiteral("configuration.md"))), keys);
}

QTEST_GUILESS_MAIN(tst_ManualTexts)
#include "tst_ManualTexts.moc"
