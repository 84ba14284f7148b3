// SPDX-License-Identifier: MIT
#include "serata/NumeriInteri.h"

#include <QImage>
#include <QtTest>

class tst_NumeriInteri final : public QObject
{
    Q_OBJECT

private slots:
    void onlyWholeNumbersAreShown_data();
    void onlyWholeNumbersAreShown();
};

namespace {
// A label of this text, as wide as another text is and some pixels more.
QImage shown(const QString &text, const QString &roomFor, int more)
{
    NumeriInteri label;
    label.setText(text);
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label.resize(label.fontMetrics().horizontalAdvance(roomFor) + more, label.fontMetrics().height());
    return label.grab().toImage();
}
} // namespace

void tst_NumeriInteri::onlyWholeNumbersAreShown_data()
{
    QTest::addColumn<QString>("roomFor");
    QTest::addColumn<int>("more");
    QTest::addColumn<QString>("expected");

    QTest::newRow("all have room") << QStringLiteral("60  5  40") << 0 << QStringLiteral("60  5  40");
    QTest::newRow("a pixel is missing") << QStringLiteral("60  5  40") << -1 << QStringLiteral("60  5");
    QTest::newRow("room for one") << QStringLiteral("60") << 1 << QStringLiteral("60");
    QTest::newRow("room for none") << QStringLiteral("60") << -1 << QString();
}

void tst_NumeriInteri::onlyWholeNumbersAreShown()
{
    QFETCH(QString, roomFor);
    QFETCH(int, more);
    QFETCH(QString, expected);
    const QImage numbers = shown(QStringLiteral("60  5  40"), roomFor, more);
    QCOMPARE(numbers, shown(expected, roomFor, more));
    QCOMPARE(numbers == shown(QString(), roomFor, more), expected.isEmpty());
}

QTEST_MAIN(tst_NumeriInteri)
#include "tst_NumeriInteri.moc"
