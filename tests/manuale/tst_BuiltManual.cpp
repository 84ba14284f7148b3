// SPDX-License-Identifier: MIT
// The manual that the program opens, as the text browser of its window reads it.
#include "ManualPages.h"
#include "manuale/ManualFile.h"
#include "manuale/Manuale.h"

#include <QDir>
#include <QPixmap>
#include <QSet>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFragment>
#include <QtTest>

namespace {
QString fileOf(const QString &language)
{
    return QStringLiteral(QUINTRA_MANUALS "/manual_%1.html").arg(language);
}

QDir pagesOf(const QString &language)
{
    return QDir(QStringLiteral(QUINTRA_MANUAL_PAGES "/%1").arg(language));
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The text of a page's first heading.
QString titleOf(const QString &page)
{
    return QString::fromUtf8(contentOf(page)).section(QLatin1Char('\n'), 0, 0).mid(2);
}

QVector<QTextCharFormat> formatsOf(const QTextDocument &document)
{
    QVector<QTextCharFormat> formats;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            formats << part.fragment().charFormat();
        }
    }
    return formats;
}

// A manual in its window.
class OpenManual final
{
public:
    explicit OpenManual(const QString &language) { window.showManual(readManual(fileOf(language))); }

    QTextBrowser *text() const { return window.findChild<QTextBrowser *>(); }

    Manuale window;
};
} // namespace

class tst_BuiltManual final : public QObject
{
    Q_OBJECT

private slots:
    void itIsThatOfThePages_data();
    void itIsThatOfThePages();
    void itHoldsAllPages_data();
    void itHoldsAllPages();
    void everyLinkLeadsSomewhere_data();
    void everyLinkLeadsSomewhere();
    void everyPictureIsShown_data();
    void everyPictureIsShown();
    void itNeedsNothingElse_data();
    void itNeedsNothingElse();
    void bothLanguagesHaveTheSamePages();

private:
    static void addLanguages();
};

void tst_BuiltManual::addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("Italian") << QStringLiteral("it");
    QTest::newRow("English") << QStringLiteral("en");
}

void tst_BuiltManual::itIsThatOfThePages_data()
{
    addLanguages();
}

void tst_BuiltManual::itIsThatOfThePages()
{
    QFETCH(QString, language);
    const BuiltManual manual = buildManual(pagesOf(language).path(), language);
    QCOMPARE(manual.problems, QStringList());
    QVERIFY(contentOf(fileOf(language)) == manual.html);
}

void tst_BuiltManual::itHoldsAllPages_data()
{
    addLanguages();
}

void tst_BuiltManual::itHoldsAllPages()
{
    QFETCH(QString, language);
    const OpenManual manual(language);
    const QStringList lines = manual.text()->toPlainText().split(QLatin1Char('\n'));
    const QDir pages = pagesOf(language);
    const QStringList names = pages.entryList({QStringLiteral("*.md")});
    QVERIFY(names.size() >= 12);
    for (const QString &page : names) {
        QVERIFY2(lines.contains(titleOf(pages.filePath(page))), qPrintable(page));
    }
}

void tst_BuiltManual::everyLinkLeadsSomewhere_data()
{
    addLanguages();
}

void tst_BuiltManual::everyLinkLeadsSomewhere()
{
    QFETCH(QString, language);
    const OpenManual manual(language);
    QSet<QString> places;
    QSet<QString> links;
    for (const QTextCharFormat &format : formatsOf(*manual.text()->document())) {
        for (const QString &name : format.anchorNames()) {
            places << QLatin1Char('#') + name;
        }
        if (!format.anchorHref().isEmpty()) {
            links << format.anchorHref();
        }
    }
    QVERIFY(links.size() >= 11);
    QVERIFY2(places.contains(links), qPrintable((links - places).values().join(QLatin1Char(' '))));
}

void tst_BuiltManual::everyPictureIsShown_data()
{
    addLanguages();
}

void tst_BuiltManual::everyPictureIsShown()
{
    QFETCH(QString, language);
    const OpenManual manual(language);
    int pictures = 0;
    for (const QTextCharFormat &format : formatsOf(*manual.text()->document())) {
        if (format.isImageFormat()) {
            const QUrl name = QUrl::fromEncoded(format.toImageFormat().name().toUtf8());
            const QVariant picture = manual.text()->document()->resource(QTextDocument::ImageResource, name);
            QVERIFY(!picture.value<QPixmap>().isNull());
            ++pictures;
        }
    }
    QCOMPARE(pictures, contentOf(fileOf(language)).count("<img "));
    QVERIFY(pictures >= 12);
}

void tst_BuiltManual::itNeedsNothingElse_data()
{
    addLanguages();
}

void tst_BuiltManual::itNeedsNothingElse()
{
    QFETCH(QString, language);
    const QByteArray html = contentOf(fileOf(language));
    QCOMPARE(html.count(" src=\""), html.count(" src=\"data:image/png;base64,"));
    QCOMPARE(html.count(" href=\""), html.count(" href=\"#"));
    for (const char *part : {"<link", "<script", "url(", "@import", "http:", "https:"}) {
        QVERIFY2(!html.contains(part), part);
    }
}

void tst_BuiltManual::bothLanguagesHaveTheSamePages()
{
    const QStringList files = {QStringLiteral("*.md"), QStringLiteral("*.png"), QStringLiteral("*.txt")};
    for (const char *folder : {".", "images"}) {
        const QString path = QString::fromLatin1(folder);
        const QStringList italian = QDir(pagesOf(QStringLiteral("it")).filePath(path)).entryList(files, QDir::Files);
        const QStringList english = QDir(pagesOf(QStringLiteral("en")).filePath(path)).entryList(files, QDir::Files);
        QVERIFY(italian.size() >= 12);
        QCOMPARE(english, italian);
    }
}

QTEST_MAIN(tst_BuiltManual)
#include "tst_BuiltManual.moc"
