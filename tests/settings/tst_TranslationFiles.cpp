// SPDX-License-Identifier: MIT
#include "settings/TranslationChecks.h"

#include <QFile>
#include <QtTest>

namespace {
const QString projectFolder = QStringLiteral(QUINTRA_PROJECT);

TranslationChecks::Source sourceOf(const QString &locale)
{
    QFile file(QStringLiteral("%1/language/Quintra_%2.ts").arg(projectFolder, locale));
    if (!file.open(QIODevice::ReadOnly)) {
        TranslationChecks::Source failed;
        failed.error = QStringLiteral("cannot be read");
        return failed;
    }
    return TranslationChecks::read(file.readAll());
}
} // namespace

// The translations that the program ships with.
class tst_TranslationFiles final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theFileIsOfItsLanguage_data();
    void theFileIsOfItsLanguage();
    void everyEntryIsSound_data();
    void everyEntryIsSound();
    void everyTextOfTheCodeHasAnEntry_data();
    void everyTextOfTheCodeHasAnEntry();
    void italianRepeatsTheSourceTexts();
    void theReadmeTellsTheEnglishLabels();

private:
    static void addLocales();

    TranslationChecks::Source m_code;
};

void tst_TranslationFiles::addLocales()
{
    QTest::addColumn<QString>("locale");
    for (const QString &locale : QStringLiteral(QUINTRA_PLACES).split(QLatin1Char(','))) {
        QTest::newRow(qPrintable(locale)) << locale;
    }
}

void tst_TranslationFiles::initTestCase()
{
    m_code = TranslationChecks::readCode(projectFolder + QStringLiteral("/src"));
    QCOMPARE(m_code.error, QString());
    QVERIFY(!m_code.entries.isEmpty());
}

void tst_TranslationFiles::theFileIsOfItsLanguage_data()
{
    addLocales();
}

void tst_TranslationFiles::theFileIsOfItsLanguage()
{
    QFETCH(QString, locale);
    const auto source = sourceOf(locale);
    QCOMPARE(source.error, QString());
    QCOMPARE(source.language, locale);
}

void tst_TranslationFiles::everyEntryIsSound_data()
{
    addLocales();
}

void tst_TranslationFiles::everyEntryIsSound()
{
    QFETCH(QString, locale);
    const QStringList problems = TranslationChecks::problems(sourceOf(locale).entries);
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_TranslationFiles::everyTextOfTheCodeHasAnEntry_data()
{
    addLocales();
}

void tst_TranslationFiles::everyTextOfTheCodeHasAnEntry()
{
    QFETCH(QString, locale);
    const QStringList missing = TranslationChecks::missing(sourceOf(locale).entries, m_code.entries);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void tst_TranslationFiles::italianRepeatsTheSourceTexts()
{
    const auto source = sourceOf(QStringLiteral("it_IT"));
    QVERIFY(!source.entries.isEmpty());
    for (const auto &entry : source.entries) {
        QCOMPARE(entry.translation, entry.source);
    }
}

// A reader of English sees the Italian labels on the first start only.
void tst_TranslationFiles::theReadmeTellsTheEnglishLabels()
{
    QFile file(projectFolder + QStringLiteral("/README.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString readme = QString::fromUtf8(file.readAll()).simplified();
    QStringList untold;
    int told = 0;
    for (const auto &entry : sourceOf(QStringLiteral("en_GB")).entries) {
        const QString label = QStringLiteral("\"%1\"").arg(entry.source);
        const QString both = QStringLiteral("%1 (%2)").arg(label, entry.translation);
        if (entry.source != entry.translation && readme.count(label) != readme.count(both)) {
            untold << both;
        }
        told += readme.count(both);
    }
    QCOMPARE(untold, QStringList());
    QVERIFY(told > 0);
}

QTEST_GUILESS_MAIN(tst_TranslationFiles)
#include "tst_TranslationFiles.moc"
