// SPDX-License-Identifier: MIT
#include "model/ReadableOn.h"

#include <QtTest>

class tst_ReadableOn final : public QObject
{
    Q_OBJECT

private slots:
    void itIsBlackOrWhiteWhicheverStandsOut();
};

void tst_ReadableOn::itIsBlackOrWhiteWhicheverStandsOut()
{
    QCOMPARE(readableOn(Qt::white), QColor(Qt::black));
    QCOMPARE(readableOn(Qt::yellow), QColor(Qt::black));
    QCOMPARE(readableOn(Qt::lightGray), QColor(Qt::black));
    QCOMPARE(readableOn(Qt::black), QColor(Qt::white));
    QCOMPARE(readableOn(Qt::blue), QColor(Qt::white));
    QCOMPARE(readableOn(Qt::red), QColor(Qt::black));
    QCOMPARE(readableOn(Qt::green), QColor(Qt::black));
    QCOMPARE(readableOn(QColor(0x75, 0x75, 0x75)), QColor(Qt::white));
    QCOMPARE(readableOn(QColor(0x77, 0x77, 0x77)), QColor(Qt::black));
}

QTEST_GUILESS_MAIN(tst_ReadableOn)
#include "tst_ReadableOn.moc"
