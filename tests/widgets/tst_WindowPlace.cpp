// SPDX-License-Identifier: MIT
#include "widgets/WindowPlace.h"

#include <QScreen>
#include <QWidget>
#include <QtTest>

namespace {
QRect screenOf(const QWidget &window)
{
    return window.screen()->availableGeometry();
}

int distance(const QPoint &a, const QPoint &b)
{
    return (a - b).manhattanLength();
}
} // namespace

class tst_WindowPlace final : public QObject
{
    Q_OBJECT

private slots:
    void aWindowStandsOverItsOwner();
    void aWindowWithoutOwnerStandsInTheMiddle();
    void aWindowLargerThanTheScreenIsMadeToFit();
    void aWindowStaysOnTheScreen_data();
    void aWindowStaysOnTheScreen();
};

void tst_WindowPlace::aWindowStandsOverItsOwner()
{
    QWidget owner;
    owner.setGeometry(200, 250, 400, 300);
    QWidget window;
    window.resize(200, 100);
    placeOver(&window, &owner);
    QCOMPARE(window.size(), QSize(200, 100));
    QVERIFY(distance(window.geometry().center(), owner.geometry().center()) < 40); // the title bar counts
}

void tst_WindowPlace::aWindowWithoutOwnerStandsInTheMiddle()
{
    QWidget window;
    window.resize(200, 100);
    placeOver(&window, nullptr);
    QVERIFY(distance(window.geometry().center(), screenOf(window).center()) < 40);
}

void tst_WindowPlace::aWindowLargerThanTheScreenIsMadeToFit()
{
    QWidget window;
    window.resize(screenOf(window).size() * 2);
    placeOver(&window, nullptr);
    QVERIFY(screenOf(window).contains(window.geometry()));
    QVERIFY(window.height() > screenOf(window).height() - 60);
    QCOMPARE(window.width(), screenOf(window).width());
}

void tst_WindowPlace::aWindowStaysOnTheScreen_data()
{
    QTest::addColumn<QPoint>("owner");
    QTest::newRow("upper left") << QPoint(-90, -90);
    QTest::newRow("lower right") << QPoint(100000, 100000);
}

void tst_WindowPlace::aWindowStaysOnTheScreen()
{
    QFETCH(QPoint, owner);
    QWidget under;
    under.setGeometry(QRect(owner, QSize(100, 100)));
    QWidget window;
    window.resize(300, 200);
    placeOver(&window, &under);
    QVERIFY(screenOf(window).contains(window.geometry()));
}

QTEST_MAIN(tst_WindowPlace)
#include "tst_WindowPlace.moc"
