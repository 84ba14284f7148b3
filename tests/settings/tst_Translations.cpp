// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"
#include "settings/MadeTranslations.h"
#include "support/BoxScript.h"
#include "support/ScratchFolder.h"

#include <QAbstractButton>
#include <QLocale>
#include <QMessageBox>
#include <QtTest>

namespace {
const QString source = QStringLiteral("Seleziona la lingua:");

QString shown()
{
    return QCoreApplication::translate("FormatSelection", "Seleziona la lingua:");
}

QByteArray fileSaying(const QString &translation)
{
    return madeTranslation({{QStringLiteral("FormatSelection"), source, translation}});
}
} // namespace

class tst_Translations final : public QObject
{
    Q_OBJECT

private slots:
    void theConstructorLoadsTheSystemLocale();
    void theFirstReadableFileIsTaken_data();
    void theFirstReadableFileIsTaken();
    void withoutAFileTheSourceTextsAreShown();
    void theFormerLanguageIsGone();
    void aBrokenFileShowsTheSourceTexts_data();
    void aBrokenFileShowsTheSourceTexts();
    void filesOfOtherFoldersAreNotTaken();
    void oddLocaleNamesDoNoHarm_data();
    void oddLocaleNamesDoNoHarm();
    void theObjectTakesItsTranslationsAway();
    void boxesAnswerInTheChosenLanguage_data();
    void boxesAnswerInTheChosenLanguage();
    void theToolkitsLanguageChangesWithoutAProgramFile();
};

void tst_Translations::theConstructorLoadsTheSystemLocale()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("language/Quintra_%1.qm").arg(QLocale::system().name()),
                 fileSaying(QStringLiteral("of the system")));
    const GUtils utils(qApp);
    QCOMPARE(shown(), QStringLiteral("of the system"));
}

void tst_Translations::theFirstReadableFileIsTaken_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("taken");
    const QStringList order = {QStringLiteral("Quintra_it_IT.qm"), QStringLiteral("Quintra_it_IT"),
                               QStringLiteral("Quintra_it.qm"),    QStringLiteral("Quintra_it"),
                               QStringLiteral("Quintra.qm"),       QStringLiteral("Quintra")};
    for (int i = 0; i < order.size(); ++i) {
        QTest::newRow(qPrintable(order.at(i))) << QStringList(order.mid(i)) << order.at(i);
        QTest::addRow("%s alone", qPrintable(order.at(i))) << QStringList(order.at(i)) << order.at(i);
    }
}

void tst_Translations::theFirstReadableFileIsTaken()
{
    QFETCH(QStringList, present);
    QFETCH(QString, taken);
    const ScratchFolder folder;
    for (const QString &name : present) {
        folder.write(QStringLiteral("language/") + name, fileSaying(name));
    }
    GUtils utils(qApp);
    QVERIFY(utils.loadTranslations(QStringLiteral("it_IT")));
    QCOMPARE(shown(), taken);
}

void tst_Translations::withoutAFileTheSourceTextsAreShown()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("language/Quintra_it_CH.qm"), fileSaying(QStringLiteral("other")));
    GUtils utils(qApp);
    QVERIFY(!utils.loadTranslations(QStringLiteral("it_IT")));
    QCOMPARE(shown(), source);
}

void tst_Translations::theFormerLanguageIsGone()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("language/Quintra_en_GB.qm"), fileSaying(QStringLiteral("Choose")));
    folder.write(QStringLiteral("language/Quintra_de_DE.qm"), fileSaying(QStringLiteral("Wählen")));
    GUtils utils(qApp);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(utils.loadTranslations(QStringLiteral("en_GB")));
        QCOMPARE(shown(), QStringLiteral("Choose"));
        QVERIFY(utils.loadTranslations(QStringLiteral("de_DE")));
        QCOMPARE(shown(), QStringLiteral("Wählen"));
        QVERIFY(!utils.loadTranslations(QStringLiteral("xx_XX")));
        QCOMPARE(shown(), source);
    }
}

void tst_Translations::aBrokenFileShowsTheSourceTexts_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray sound = fileSaying(QStringLiteral("Choose"));
    QByteArray scrambled = sound;
    for (int i = 16; i < scrambled.size(); ++i) {
        scrambled[i] = static_cast<char>(scrambled.at(i) ^ 0x5a);
    }
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("this is no translation");
    QTest::newRow("cut after the start") << sound.left(16);
    QTest::newRow("cut in the middle") << sound.left(sound.size() / 2);
    QTest::newRow("scrambled") << scrambled;
}

void tst_Translations::aBrokenFileShowsTheSourceTexts()
{
    QFETCH(QByteArray, content);
    const ScratchFolder folder;
    folder.write(QStringLiteral("language/Quintra_en_GB.qm"), content);
    GUtils utils(qApp);
    utils.loadTranslations(QStringLiteral("en_GB"));
    QCOMPARE(shown(), source);
}

void tst_Translations::filesOfOtherFoldersAreNotTaken()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("Quintra_en_GB.qm"), fileSaying(QStringLiteral("Choose")));
    GUtils utils(qApp);
    QVERIFY(!utils.loadTranslations(QStringLiteral("en_GB")));
    QCOMPARE(shown(), source);
}

void tst_Translations::oddLocaleNamesDoNoHarm_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("empty") << QString();
    QTest::newRow("with its suffix") << QStringLiteral("en.qm");
    QTest::newRow("delimiters only") << QStringLiteral("___");
    QTest::newRow("outside the folder") << QStringLiteral("../x");
}

void tst_Translations::oddLocaleNamesDoNoHarm()
{
    QFETCH(QString, locale);
    const ScratchFolder folder;
    folder.write(QStringLiteral("language/Quintra.qm"), fileSaying(QStringLiteral("last resort")));
    GUtils utils(qApp);
    QVERIFY(utils.loadTranslations(locale));
    QCOMPARE(shown(), QStringLiteral("last resort"));
}

void tst_Translations::theObjectTakesItsTranslationsAway()
{
    const ScratchFolder folder;
    folder.write(QStringLiteral("language/Quintra_en_GB.qm"), fileSaying(QStringLiteral("Choose")));
    {
        GUtils utils(qApp);
        utils.loadTranslations(QStringLiteral("en_GB"));
        QCOMPARE(shown(), QStringLiteral("Choose"));
    }
    QCOMPARE(shown(), source);
}

void tst_Translations::boxesAnswerInTheChosenLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("yes");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("Italian") << QStringLiteral("it_IT") << QStringLiteral("Sì") << QStringLiteral("Annulla");
    QTest::newRow("English") << QStringLiteral("en_GB") << QStringLiteral("Yes") << QStringLiteral("Cancel");
    QTest::newRow("German") << QStringLiteral("de_DE") << QStringLiteral("Ja") << QStringLiteral("Abbrechen");
    QTest::newRow("French") << QStringLiteral("fr_FR") << QStringLiteral("Oui") << QStringLiteral("Annuler");
    QTest::newRow("Spanish") << QStringLiteral("es_ES") << QStringLiteral("Sí") << QStringLiteral("Cancelar");
}

void tst_Translations::boxesAnswerInTheChosenLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, yes);
    QFETCH(QString, cancel);
    const ScratchFolder folder;
    GUtils utils(qApp);
    utils.loadTranslations(locale);
    QString yesShown;
    QString cancelShown;
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("title"), QStringLiteral("text"), QMessageBox::Yes, [&](QMessageBox *box) {
        yesShown = box->button(QMessageBox::Yes)->text().remove(QLatin1Char('&'));
        cancelShown = box->button(QMessageBox::Cancel)->text().remove(QLatin1Char('&'));
    });
    QMessageBox::question(nullptr, QStringLiteral("title"), QStringLiteral("text"),
                          QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(yesShown, yes);
    QCOMPARE(cancelShown, cancel);
}

void tst_Translations::theToolkitsLanguageChangesWithoutAProgramFile()
{
    const ScratchFolder folder;
    GUtils utils(qApp);
    QVERIFY(!utils.loadTranslations(QStringLiteral("de_AT")));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
    QVERIFY(!utils.loadTranslations(QStringLiteral("xx_XX")));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
