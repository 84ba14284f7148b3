// SPDX-License-Identifier: MIT
#include "model/PageNumbers.h"

#include <QtTest>

#include <numeric>

class tst_PageNumbers final : public QObject
{
    Q_OBJECT

private slots:
    void pagesAreCountedFromOne();
    void ofManyOnlyTheFirstAreNamed();
};

void tst_PageNumbers::pagesAreCountedFromOne()
{
    QCOMPARE(pageNumbersText({}), QString());
    QCOMPARE(pageNumbersText({0}), QStringLiteral("1"));
    QCOMPARE(pageNumbersText({0, 1, 65534}), QStringLiteral("1, 2, 65535"));
}

void tst_PageNumbers::ofManyOnlyTheFirstAreNamed()
{
    QVector<int> pages(21);
    std::iota(pages.begin(), pages.end(), 0);
    QVERIFY(pageNumbersText(pages).endsWith(QStringLiteral(", 20, ...")));
    pages.removeLast();
    QVERIFY(pageNumbersText(pages).endsWith(QStringLiteral(", 20")));
}

QTEST_APPLESS_MAIN(tst_PageNumbers)
#include "tst_PageNumbers.moc"
