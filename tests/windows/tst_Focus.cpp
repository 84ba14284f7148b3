// SPDX-License-Identifier: MIT
#include "widgets/ReadableStyle.h"
#include "windows/EveryWindow.h"
#include "windows/Palettes.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <QtTest>

// The way of the focus through every window: nothing holds it, it goes as the eye does, and one sees where it is.

using namespace EveryWindow;

namespace {
constexpr int longest = 100; // ways around a window, in steps

QString describe(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName();
}

QRect placeIn(const QWidget *other, const QWidget *widget)
{
    return QRect(widget->mapTo(other, QPoint()), widget->size());
}

// A widget with the focus: its place in the window and in what a pane scrolls, and how the window looked then.
struct Step
{
    QWidget *widget;
    QRect place;
    const QWidget *pane; // null for none
    QRect placeInPane;
    QImage window;
};

bool operator==(const Step &one, const Step &other)
{
    return one.widget == other.widget;
}

Step stepOf(const QWidget *window, QWidget *widget)
{
    const QScrollArea *area = nullptr;
    for (QWidget *parent = widget->parentWidget(); parent != nullptr && area == nullptr;
         parent = parent->parentWidget()) {
        area = qobject_cast<const QScrollArea *>(parent);
    }
    const QWidget *pane = area != nullptr ? area->widget() : nullptr;
    return {widget, placeIn(window, widget), pane, pane != nullptr ? placeIn(pane, widget) : QRect(),
            const_cast<QWidget *>(window)->grab().toImage()};
}

// Where the focus comes by pressing a key until it is back where it was. Empty when it does not come back.
QVector<Step> wayAround(QWidget *window, Qt::Key key)
{
    QVector<Step> way;
    for (int i = 0; i < longest; ++i) {
        QWidget *now = QApplication::focusWidget();
        QCoreApplication::processEvents(); // the pane follows
        const Step step = stepOf(window, now);
        if (!way.isEmpty() && now == way.first().widget) {
            way.first() = step; // as the keyboard brought it there
            return way;
        }
        way << step;
        QTest::keyClick(now, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
    return {};
}

bool overlap(int from, int to, int otherFrom, int otherTo)
{
    return from < otherTo && otherFrom < to;
}

// Whether the eye, which reads along lines and down columns, has to go back from one place to the other.
bool goesBack(const QRect &from, const QRect &to, Qt::LayoutDirection direction)
{
    const bool sameColumn = overlap(from.left(), from.right(), to.left(), to.right());
    const bool sameLine = overlap(from.top(), from.bottom(), to.top(), to.bottom());
    const bool before = direction == Qt::LeftToRight ? to.right() <= from.left() : to.left() >= from.right();
    return (sameColumn && to.bottom() <= from.top()) || (sameLine && !sameColumn && before);
}

bool goesBack(const Step &from, const Step &to, Qt::LayoutDirection direction)
{
    const bool samePane = from.pane != nullptr && from.pane == to.pane;
    return goesBack(samePane ? from.placeInPane : from.place, samePane ? to.placeInPane : to.place, direction);
}

// The steps of a way around that go back, but for the one that begins anew.
QStringList stepsBack(const QVector<Step> &way, Qt::LayoutDirection direction)
{
    QStringList back;
    for (int i = 1; i < way.size(); ++i) {
        if (goesBack(way[i - 1], way[i], direction)) {
            back << describe(way[i - 1].widget) + QStringLiteral(" > ") + describe(way[i].widget);
        }
    }
    return back;
}

// The first that Tab comes to in a window.
void focusFirst(QWidget *window)
{
    QWidget *widget = window;
    do {
        widget = widget->nextInFocusChain();
    } while (widget != window && ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isVisible() ||
                                  !widget->isEnabled() || widget->focusProxy() != nullptr));
    widget->setFocus(Qt::TabFocusReason);
}

// Pixels in and around a widget that clearly change when the focus goes on from it.
int pixelsThatTell(const Step &with, const Step &without)
{
    constexpr int around = 3;
    constexpr double clearly = 1.5;
    const QRect place = with.place.adjusted(-around, -around, around, around).intersected(with.window.rect());
    int pixels = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const double change = Palettes::contrast(with.window.pixelColor(x, y), without.window.pixelColor(x, y));
            pixels += change > clearly ? 1 : 0;
        }
    }
    return pixels;
}
} // namespace

class tst_Focus final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void itComesAroundBothWays_data();
    void itComesAroundBothWays();
    void itGoesAsTheEyeDoes_data();
    void itGoesAsTheEyeDoes();
    void aStepBackIsFound();
    void itIsSeen_data();
    void itIsSeen();
};

void tst_Focus::initTestCase()
{
    QApplication::setCursorFlashTime(0);
    QApplication::setStyle(new ReadableStyle); // as the program does
}

void tst_Focus::cleanup()
{
    QApplication::setPalette(Palettes::all().first().palette);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_Focus::itComesAroundBothWays_data()
{
    addRows();
}

void tst_Focus::itComesAroundBothWays()
{
    QFETCH(QString, name);
    Stage stage;
    const auto window = show(name, stage);
    focusFirst(window.get());
    QVector<Step> forwards = wayAround(window.get(), Qt::Key_Tab);
    QVector<Step> backwards = wayAround(window.get(), Qt::Key_Backtab);
    QVERIFY2(!forwards.isEmpty(), "Tab does not come around");
    QVERIFY2(!backwards.isEmpty(), "Shift+Tab does not come around");
    const bool gridOfCells = name == QLatin1String("EditPersonale"); // is entered at its first or its last cell
    QCOMPARE(backwards.size(), forwards.size());
    if (!gridOfCells) {
        std::reverse(backwards.begin() + 1, backwards.end());
        QVERIFY(backwards == forwards);
    }
}

void tst_Focus::itGoesAsTheEyeDoes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const QString &name : names()) {
        QTest::addRow("%s", qPrintable(name)) << name << Qt::LeftToRight;
        QTest::addRow("%s from the right", qPrintable(name)) << name << Qt::RightToLeft;
    }
}

void tst_Focus::itGoesAsTheEyeDoes()
{
    QFETCH(QString, name);
    QFETCH(Qt::LayoutDirection, direction);
    if (isToolkitDialog(name)) {
        QSKIP("the toolkit's own");
    }
    Stage stage;
    QApplication::setLayoutDirection(direction); // a new language has set it
    const auto window = show(name, stage);
    focusFirst(window.get());
    QCOMPARE(stepsBack(wayAround(window.get(), Qt::Key_Tab), direction).join(QLatin1Char('\n')), QString());
}

void tst_Focus::aStepBackIsFound()
{
    QWidget window;
    const BoxScript boxes;
    auto *column = new QVBoxLayout(&window);
    QVector<QWidget *> buttons;
    for (int i = 0; i < 3; ++i) {
        buttons << new QPushButton;
        column->addWidget(buttons.last());
    }
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    buttons[0]->setFocus();
    QCOMPARE(stepsBack(wayAround(&window, Qt::Key_Tab), Qt::LeftToRight), QStringList());
    QWidget::setTabOrder(buttons[0], buttons[2]);
    QWidget::setTabOrder(buttons[2], buttons[1]);
    buttons[0]->setFocus();
    QCOMPARE(stepsBack(wayAround(&window, Qt::Key_Tab), Qt::LeftToRight).size(), 1);
}

void tst_Focus::itIsSeen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPalette>("palette");
    for (const Palettes::Named &palette : Palettes::all()) {
        for (const QString &name : names()) {
            QTest::addRow("%s %s", qPrintable(name), qPrintable(palette.name)) << name << palette.palette;
        }
    }
}

// Of a window with one place nobody asks where it is.
void tst_Focus::itIsSeen()
{
    constexpr int fewest = 20;
    QFETCH(QString, name);
    QFETCH(QPalette, palette);
    if (isToolkitDialog(name)) {
        QSKIP("the toolkit's own");
    }
    QApplication::setPalette(palette);
    Stage stage;
    const auto window = show(name, stage);
    focusFirst(window.get());
    const QVector<Step> way = wayAround(window.get(), Qt::Key_Tab);
    QStringList unseen;
    for (int i = 0; i < way.size() && way.size() > 1; ++i) {
        const int pixels = pixelsThatTell(way[i], way[(i + 1) % way.size()]);
        if (pixels < fewest) {
            unseen << QStringLiteral("%1 %2").arg(describe(way[i].widget)).arg(pixels);
        }
    }
    QCOMPARE(unseen.join(QLatin1Char('\n')), QString());
}

QTEST_MAIN(tst_Focus)
#include "tst_Focus.moc"
