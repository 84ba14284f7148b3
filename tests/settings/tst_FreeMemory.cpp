// SPDX-License-Identifier: MIT
#include "settings/FreeMemory.h"

#include <QtTest>

class tst_FreeMemory final : public QObject
{
    Q_OBJECT

private slots:
    void aMachineHasSomeAndNotEndlessMemory();
    void whatIsMoreThanThatDoesNotFit();
};

void tst_FreeMemory::aMachineHasSomeAndNotEndlessMemory()
{
    QVERIFY(freeMemory() > 1048576.0);
    QVERIFY(freeMemory() < 1e15);
}

void tst_FreeMemory::whatIsMoreThanThatDoesNotFit()
{
    QVERIFY(fitsMemory(0));
    QVERIFY(fitsMemory(1000));
    QVERIFY(!fitsMemory(1e15));
    QVERIFY(!fitsMemory(freeMemory() * 1.5));
}

QTEST_APPLESS_MAIN(tst_FreeMemory)
#include "tst_FreeMemory.moc"
