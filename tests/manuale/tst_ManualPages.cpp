// SPDX-License-Identifier: MIT
#include "ManualPages.h"

#include "support/ScratchFolder.h"

#include <QDir>
#include <QtTest>

namespace {
const QString contents = QStringLiteral("index.md");
const QString other = QStringLiteral("other.md");

BuiltManual built()
{
    return buildManual(QDir::currentPath(), QStringLiteral("it"));
}

QString html()
{
    return QString::fromUtf8(built().html);
}
} // namespace

class tst_ManualPages final : public QObject
{
    Q_OBJECT

private slots:
    void pagesStandInTheOrderOfTheContents();
    void languageAndTitleAreTold();
    void linksLeadWithinTheOnePage_data();
    void linksLeadWithinTheOnePage();
    void picturesAreWithinThePage();
    void tablesAreTables();
    void signsOfHtmlStandForThemselves();
    void everyPageLeadsBackToTheContents();
    void whatIsWrongIsTold_data();
    void whatIsWrongIsTold();
    void theSamePagesGiveTheSameBytes();
    void headingsHaveTheAnchorsOfTheirTexts();
};

void tst_ManualPages::pagesStandInTheOrderOfTheContents()
{
    const ScratchFolder folder;
    folder.write(contents, "# Contents\n[two](two.md), [one](one.md), [two](two.md#again)\n");
    folder.write(QStringLiteral("one.md"), "# First\n");
    folder.write(QStringLiteral("two.md"), "# Second\n## Again\n");
    const QString page = html();
    QVERIFY(page.indexOf(QLatin1String("Contents</h1>")) > 0);
    QVERIFY(page.indexOf(QLatin1String("Contents</h1>")) < page.indexOf(QLatin1String("Second</h1>")));
    QVERIFY(page.indexOf(QLatin1String("Second</h1>")) < page.indexOf(QLatin1String("First</h1>")));
    QCOMPARE(page.count(QLatin1String("<h1>")), 3);
    QCOMPARE(built().problems, QStringList());
}

void tst_ManualPages::languageAndTitleAreTold()
{
    const ScratchFolder folder;
    folder.write(contents, "# Carta & numeri\n");
    QVERIFY(html().startsWith(QLatin1String("<!DOCTYPE html>\n<html lang=\"it\">")));
    QVERIFY(html().contains(QLatin1String("<title>Carta &amp; numeri</title>")));
    QVERIFY(html().contains(QLatin1String("<meta charset=\"utf-8\">")));
}

void tst_ManualPages::linksLeadWithinTheOnePage_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<QString>("target");
    QTest::newRow("page") << QByteArray("other.md") << QStringLiteral("other");
    QTest::newRow("place") << QByteArray("other.md#the-place") << QStringLiteral("other.the-place");
    QTest::newRow("place of the page itself") << QByteArray("#here") << QStringLiteral("index.here");
}

void tst_ManualPages::linksLeadWithinTheOnePage()
{
    QFETCH(QByteArray, link);
    QFETCH(QString, target);
    const ScratchFolder folder;
    folder.write(contents, "# Contents\n## Here\n[to](" + link + ") [page](other.md)\n");
    folder.write(other, "# Other\n## The place\n");
    QVERIFY(html().contains(QStringLiteral("<a href=\"#%1\">to</a>").arg(target)));
    QCOMPARE(html().count(QStringLiteral("<a name=\"%1\"></a>").arg(target)), 1);
    QCOMPARE(built().problems, QStringList());
}

void tst_ManualPages::picturesAreWithinThePage()
{
    const ScratchFolder folder;
    folder.write(contents, "![red & blue](images/red.png)\n");
    folder.write(QStringLiteral("images/red.png"), "a picture");
    QVERIFY(
        html().contains(QLatin1String("<img src=\"data:image/png;base64,YSBwaWN0dXJl\" alt=\"red &amp; blue\" />")));
    QCOMPARE(built().problems, QStringList());
}

void tst_ManualPages::tablesAreTables()
{
    const ScratchFolder folder;
    folder.write(contents, "| Key | Meaning |\n|---|---|\n| F1 | help |\n");
    QVERIFY(html().contains(QLatin1String("<td>F1</td>")));
}

void tst_ManualPages::signsOfHtmlStandForThemselves()
{
    const ScratchFolder folder;
    folder.write(contents, "1 < 2 & `a<b>`\n");
    QVERIFY(html().contains(QLatin1String("1 &lt; 2 &amp; <code>a&lt;b&gt;</code>")));
}

void tst_ManualPages::everyPageLeadsBackToTheContents()
{
    const ScratchFolder folder;
    folder.write(contents, "# Contents\n[other](other.md)\n");
    folder.write(other, "# Other\n");
    QCOMPARE(html().count(QLatin1String("<p><a href=\"#index\">Contents</a></p>")), 1);
}

void tst_ManualPages::whatIsWrongIsTold_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("page that is not there")
        << QByteArray("[x](nowhere.md)") << QStringLiteral("nowhere.md: cannot be read");
    QTest::newRow("place that is not there")
        << QByteArray("[x](other.md#nowhere)") << QStringLiteral("index.md: there is no other.nowhere");
    QTest::newRow("picture that is not there")
        << QByteArray("![x](images/nowhere.png)") << QStringLiteral("index.md: there is no images/nowhere.png");
    QTest::newRow("page that nobody links to")
        << QByteArray("alone") << QStringLiteral("other.md: is not in the contents");
    QTest::newRow("out of the manual") << QByteArray("[x](https://example.org/)")
                                       << QStringLiteral("index.md: https://example.org/ leads out of the manual");
}

void tst_ManualPages::whatIsWrongIsTold()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    const ScratchFolder folder;
    folder.write(contents, text);
    folder.write(other, "# Other\n");
    const QStringList problems = built().problems;
    QVERIFY2(problems.contains(problem), qPrintable(problems.join(QLatin1Char('\n'))));
}

void tst_ManualPages::theSamePagesGiveTheSameBytes()
{
    const ScratchFolder folder;
    folder.write(contents, "# Contents\n[one](one.md#a) [two](two.md#b)\n");
    folder.write(QStringLiteral("one.md"), "# A\n");
    folder.write(QStringLiteral("two.md"), "# B\n");
    QCOMPARE(built().html, built().html);
    QVERIFY(!html().contains(QDir::currentPath()));
}

void tst_ManualPages::headingsHaveTheAnchorsOfTheirTexts()
{
    QCOMPARE(headingAnchor(QStringLiteral("Le impostazioni: config.ini")), QStringLiteral("le-impostazioni-configini"));
    QCOMPARE(headingAnchor(QStringLiteral("Perché 3 x 9?")), QStringLiteral("perché-3-x-9"));
    QCOMPARE(headingAnchor(QStringLiteral("CLASSIC_NBLOCKS")), QStringLiteral("classic_nblocks"));
}

QTEST_GUILESS_MAIN(tst_ManualPages)
#include "tst_ManualPages.moc"
