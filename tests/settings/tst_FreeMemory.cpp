// SPDX-License-Identifier: MIT
#include "settings/FreeMemory.h"

#include "support/MemoryLimit.h"

#include <QtTest>

class tst_FreeMemory final : public QObject
{
    Q_OBJECT

private slots:
    void aMachineHasSomeAndNotEndlessMemory();
    void whatIsMoreThanThatDoesNotFit();
    void aLimitOfTheProgramCounts();
    void whatCannotBeFoundOutIsNoLimit();
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

void tst_FreeMemory::aLimitOfTheProgramCounts()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    constexpr rlim_t more = 64 << 20;
    {
        const MemoryLimit limit(more);
        QVERIFY(freeMemory() < double(more) * 1.1); // something may be freed meanwhile
        QVERIFY(freeMemory() > double(more) / 2);
        QVERIFY(!fitsMemory(double(more)));
    }
    const ResourceLimit used(RLIMIT_AS, 1 << 20); // less than the program has already
    QCOMPARE(freeMemory(), 0.0);
}

void tst_FreeMemory::whatCannotBeFoundOutIsNoLimit()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    const ResourceLimit noFiles(RLIMIT_NOFILE, 0);
    QVERIFY(fitsMemory(1e15));
    const ResourceLimit used(RLIMIT_AS, 1 << 20);
    QVERIFY(fitsMemory(1e15));
}

QTEST_APPLESS_MAIN(tst_FreeMemory)
#include "tst_FreeMemory.moc"
