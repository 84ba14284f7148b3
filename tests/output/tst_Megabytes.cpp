// SPDX-License-Identifier: MIT
#include "output/Megabytes.h"

#include <QtTest>

class tst_Megabytes final : public QObject
{
    Q_OBJECT

private slots:
    void roundedToTwoDecimals_data();
    void roundedToTwoDecimals();
};

void tst_Megabytes::roundedToTwoDecimals_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("inDouble");
    QTest::addColumn<QString>("inSingle");
    QTest::newRow("none") << qint64{0} << "0.00"
                          << "0.00";
    QTest::newRow("one") << qint64{1048576} << "1.00"
                         << "1.00";
    QTest::newRow("one and a half") << qint64{1572864} << "1.50"
                                    << "1.50";
    QTest::newRow("rounded up") << qint64{5243} << "0.01"
                                << "0.01";
    QTest::newRow("beyond 32 bits") << qint64{5368709120} << "5120.00"
                                    << "5120.00";
    QTest::newRow("apart at a half") << qint64{393216} << "0.37"
                                     << "0.38";
    QTest::newRow("apart") << qint64{2710569} << "2.58"
                           << "2.59";
}

void tst_Megabytes::roundedToTwoDecimals()
{
    QFETCH(qint64, bytes);
    QTEST(megabytesText<double>(bytes), "inDouble");
    QTEST(megabytesText<float>(bytes), "inSingle");
}

QTEST_APPLESS_MAIN(tst_Megabytes)
#include "tst_Megabytes.moc"
