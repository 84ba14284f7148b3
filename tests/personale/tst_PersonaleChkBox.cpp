// SPDX-License-Identifier: MIT
#include "personale/PersonaleChkBox.h"
#include "support/FatalMessage.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <memory>

namespace {
// Turns every text of the class into "<class>:<text>".
class EchoTranslator final : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QString::fromUtf8(context) + QLatin1Char(':') + QString::fromUtf8(sourceText);
    }
    bool isEmpty() const override { return false; }
};

// A window of 3 x 4 boxes.
struct Grid
{
    Grid()
        : layout(new QGridLayout(&window))
        , boxes(std::make_unique<PersonaleChkBox[]>(12))
    {
        for (size_t i = 0; i < 12; ++i) {
            boxes[i].setPosition(static_cast<U8>(i / 4), static_cast<U8>(i % 4));
            layout->addWidget(&boxes[i], boxes[i].riga, boxes[i].colonna);
        }
        window.show();
        QApplication::setActiveWindow(&window);
    }
    ~Grid()
    {
        for (size_t i = 0; i < 12; ++i) {
            boxes[i].setParent(nullptr);
        }
    }
    Q_DISABLE_COPY_MOVE(Grid)
    PersonaleChkBox &at(size_t row, size_t column) { return boxes[row * 4 + column]; }
    QPoint centre(size_t row, size_t column) { return at(row, column).geometry().center(); }
    void press(const QPoint &where, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mousePress(window.windowHandle(), button, Qt::NoModifier, where);
    }
    void moveTo(const QPoint &where) const { QTest::mouseMove(window.windowHandle(), where); }
    void release(const QPoint &where, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseRelease(window.windowHandle(), button, Qt::NoModifier, where);
    }
    // An x for a tick, rows separated by a blank.
    QString ticks() const
    {
        QString text;
        for (size_t i = 0; i < 12; ++i) {
            text += QLatin1String(i > 0 && i % 4 == 0 ? " " : "");
            text += QLatin1Char(boxes[i].isChecked() ? 'x' : '-');
        }
        return text;
    }

    QWidget window;
    QGridLayout *layout;
    std::unique_ptr<PersonaleChkBox[]> boxes;
};

QImage picture(CELL_VALUE tipo, bool ticked, const QPalette &palette)
{
    PersonaleChkBox box;
    box.setPalette(palette);
    box.setTipo(tipo);
    box.setChecked(ticked);
    box.resize(box.sizeHint());
    QImage image(box.size(), QImage::Format_RGB32);
    image.fill(palette.window().color());
    box.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QPalette darkPalette()
{
    return QPalette(QColor(53, 53, 53), QColor(35, 35, 35));
}
} // namespace

class tst_PersonaleChkBox final : public QObject
{
    Q_OBJECT

private slots:
    void aNewBoxIsAnUntickedEmptyCell();
    void thePositionIsToldFromOne();
    void theStatusTipNamesTheType_data();
    void theStatusTipNamesTheType();
    void settingTheSameTypeLeavesTheStatusTip();
    void theNamesAreTranslatedInTheContextOfTheClass();
    void anUnknownTypeStopsTheProgram();
    void everyChangeOfTheTickIsReported();
    void aRightClickIsReportedAndLeavesTheTick();
    void aLeftClickTicks();
    void arrowsMoveToTheNeighbours();
    void arrowsStayAtTheEdges();
    void spaceTicks();
    void theKeyTIsARightClick();
    void otherKeysAreNoRightClick();
    void aDragTicksTheCellsOnItsWay();
    void aDragIsReportedByEveryCellItTicks();
    void aDragUnticksNothing();
    void aMouseThatStaysOnItsCellClicks();
    void aDragThatComesBackClicksNothing();
    void onlyTheLeftButtonDrags();
    void cellsOutOfSightAreNotDraggedOver();
    void theNextClickAfterADragIsAClick();
    void typeAndTickAreSeen_data();
    void typeAndTickAreSeen();
    void aNumberIsPaintedAsItsText();
};

void tst_PersonaleChkBox::aNewBoxIsAnUntickedEmptyCell()
{
    const PersonaleChkBox box;
    QCOMPARE(box.tipo, CELL_VUOTA);
    QCOMPARE(box.riga, U8(0));
    QCOMPARE(box.colonna, U8(0));
    QVERIFY(!box.isChecked());
    QCOMPARE(box.text(), QString());
    QCOMPARE(box.toolTip(), QStringLiteral("1,1"));
    QCOMPARE(box.statusTip(), QStringLiteral("Vuota"));
    QVERIFY(box.parentWidget() == nullptr);
}

void tst_PersonaleChkBox::thePositionIsToldFromOne()
{
    PersonaleChkBox box;
    box.setPosition(2, 8);
    QCOMPARE(box.riga, U8(2));
    QCOMPARE(box.colonna, U8(8));
    QCOMPARE(box.toolTip(), QStringLiteral("3,9"));
    box.setPosition(254, 254);
    QCOMPARE(box.toolTip(), QStringLiteral("255,255"));
}

void tst_PersonaleChkBox::theStatusTipNamesTheType_data()
{
    QTest::addColumn<int>("tipo");
    QTest::addColumn<QString>("name");
    QTest::newRow("number") << 0 << QStringLiteral("Numero");
    QTest::newRow("text") << 1 << QStringLiteral("Testo");
    QTest::newRow("image") << 2 << QStringLiteral("Immagine");
    QTest::newRow("empty") << 3 << QStringLiteral("Vuota");
}

void tst_PersonaleChkBox::theStatusTipNamesTheType()
{
    QFETCH(int, tipo);
    QFETCH(QString, name);
    PersonaleChkBox box;
    box.setTipo(tipo == CELL_NUMERO ? CELL_TESTO : CELL_NUMERO);
    box.setTipo(static_cast<CELL_VALUE>(tipo));
    QCOMPARE(static_cast<int>(box.tipo), tipo);
    QCOMPARE(box.statusTip(), name);
}

void tst_PersonaleChkBox::settingTheSameTypeLeavesTheStatusTip()
{
    PersonaleChkBox box;
    box.setTipo(CELL_TESTO);
    box.setStatusTip(QStringLiteral("other"));
    box.setTipo(CELL_TESTO);
    QCOMPARE(box.statusTip(), QStringLiteral("other"));
}

void tst_PersonaleChkBox::theNamesAreTranslatedInTheContextOfTheClass()
{
    EchoTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    PersonaleChkBox box;
    const QString empty = box.statusTip();
    box.setTipo(CELL_NUMERO);
    const QString number = box.statusTip();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(empty, QStringLiteral("PersonaleChkBox:Vuota"));
    QCOMPARE(number, QStringLiteral("PersonaleChkBox:Numero"));
}

void tst_PersonaleChkBox::anUnknownTypeStopsTheProgram()
{
    const QString text = fatalMessageOf([]() {
        PersonaleChkBox box;
        box.setTipo(static_cast<CELL_VALUE>(4));
    });
    QCOMPARE(text, QStringLiteral("CELL_TYPE UNKNOWN"));
}

void tst_PersonaleChkBox::everyChangeOfTheTickIsReported()
{
    PersonaleChkBox box;
    box.setPosition(4, 7);
    QSignalSpy ticks(&box, &PersonaleChkBox::schecked);
    box.setChecked(true);
    box.setChecked(true);
    box.setChecked(false);
    box.click();
    QCOMPARE(ticks.size(), 3);
    const QList<bool> expected{true, false, true};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(ticks[i][0].value<U8>(), U8(4));
        QCOMPARE(ticks[i][1].value<U8>(), U8(7));
        QCOMPARE(ticks[i][2].toBool(), expected[i]);
    }
}

void tst_PersonaleChkBox::aRightClickIsReportedAndLeavesTheTick()
{
    for (const bool ticked : {true, false}) {
        PersonaleChkBox box;
        box.setPosition(1, 2);
        box.setChecked(ticked);
        box.show();
        QSignalSpy clicks(&box, &PersonaleChkBox::rclicked);
        QSignalSpy ticks(&box, &PersonaleChkBox::schecked);
        QTest::mouseClick(&box, Qt::RightButton);
        QCOMPARE(clicks.size(), 1);
        QCOMPARE(clicks[0][0].value<U8>(), U8(1));
        QCOMPARE(clicks[0][1].value<U8>(), U8(2));
        QCOMPARE(ticks.size(), 0);
        QCOMPARE(box.isChecked(), ticked);

        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton, Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&box, &press);
        QVERIFY(press.isAccepted()); // nobody else gets it
    }
}

void tst_PersonaleChkBox::aLeftClickTicks()
{
    PersonaleChkBox box;
    box.show();
    QSignalSpy clicks(&box, &PersonaleChkBox::rclicked);
    QTest::mouseClick(&box, Qt::LeftButton);
    QVERIFY(box.isChecked());
    QTest::mouseClick(&box, Qt::LeftButton);
    QVERIFY(!box.isChecked());
    QCOMPARE(clicks.size(), 0);
}

void tst_PersonaleChkBox::arrowsMoveToTheNeighbours()
{
    Grid grid;
    grid.at(1, 1).setFocus();
    QTest::keyClick(&grid.at(1, 1), Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), &grid.at(2, 1));
    QTest::keyClick(&grid.at(2, 1), Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), &grid.at(2, 2));
    QTest::keyClick(&grid.at(2, 2), Qt::Key_Up);
    QCOMPARE(QApplication::focusWidget(), &grid.at(1, 2));
    QTest::keyClick(&grid.at(1, 2), Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), &grid.at(1, 1));
}

void tst_PersonaleChkBox::arrowsStayAtTheEdges()
{
    Grid grid;
    grid.at(0, 0).setFocus();
    QTest::keyClick(&grid.at(0, 0), Qt::Key_Up);
    QTest::keyClick(&grid.at(0, 0), Qt::Key_Left);
    QCOMPARE(QApplication::focusWidget(), &grid.at(0, 0));
    grid.at(2, 3).setFocus();
    QTest::keyClick(&grid.at(2, 3), Qt::Key_Down);
    QTest::keyClick(&grid.at(2, 3), Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), &grid.at(2, 3));

    PersonaleChkBox alone; // without a grid the arrows do nothing
    QTest::keyClick(&alone, Qt::Key_Down);
    QVERIFY(!alone.isChecked());
}

void tst_PersonaleChkBox::spaceTicks()
{
    Grid grid;
    grid.at(1, 1).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(grid.at(1, 1).isChecked());
}

void tst_PersonaleChkBox::theKeyTIsARightClick()
{
    for (const bool ticked : {true, false}) {
        Grid grid;
        grid.at(1, 2).setChecked(ticked);
        grid.at(1, 2).setFocus();
        const QSignalSpy clicks(&grid.at(1, 2), &PersonaleChkBox::rclicked);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_T);
        QCOMPARE(clicks.size(), 1);
        QCOMPARE(clicks[0][0].value<U8>(), U8(1));
        QCOMPARE(clicks[0][1].value<U8>(), U8(2));
        QCOMPARE(grid.at(1, 2).isChecked(), ticked);
    }
}

void tst_PersonaleChkBox::otherKeysAreNoRightClick()
{
    PersonaleChkBox box;
    const QSignalSpy clicks(&box, &PersonaleChkBox::rclicked);
    QTest::keyClick(&box, Qt::Key_R);
    QTest::keyClick(&box, Qt::Key_Space);
    QTest::keyClick(&box, Qt::Key_T, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_T, Qt::AltModifier);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_T, Qt::NoModifier, QStringLiteral("t"), true);
    QCoreApplication::sendEvent(&box, &held);
    QCOMPARE(clicks.size(), 0);
}

void tst_PersonaleChkBox::aDragTicksTheCellsOnItsWay()
{
    Grid grid;
    grid.press(grid.centre(0, 0));
    QCOMPARE(grid.ticks(), QStringLiteral("---- ---- ----"));
    grid.moveTo(grid.centre(0, 3)); // at once: the mouse is quick
    QCOMPARE(grid.ticks(), QStringLiteral("xxxx ---- ----"));
    grid.moveTo(grid.centre(2, 3));
    grid.release(grid.centre(2, 3));
    QCOMPARE(grid.ticks(), QStringLiteral("xxxx ---x ---x"));
    grid.moveTo(grid.centre(2, 0));
    QCOMPARE(grid.ticks(), QStringLiteral("xxxx ---x ---x"));
}

void tst_PersonaleChkBox::aDragIsReportedByEveryCellItTicks()
{
    Grid grid;
    grid.at(1, 1).setChecked(true);
    const QSignalSpy first(&grid.at(1, 0), &PersonaleChkBox::schecked);
    const QSignalSpy ticked(&grid.at(1, 1), &PersonaleChkBox::schecked);
    const QSignalSpy last(&grid.at(1, 2), &PersonaleChkBox::schecked);
    grid.press(grid.centre(1, 0));
    grid.moveTo(grid.centre(1, 2));
    grid.moveTo(grid.centre(1, 0));
    grid.release(grid.centre(1, 0));
    QCOMPARE(first.size(), 1);
    QCOMPARE(ticked.size(), 0);
    QCOMPARE(last.size(), 1);
    QCOMPARE(last[0][1].value<U8>(), U8(2));
    QVERIFY(last[0][2].toBool());
}

void tst_PersonaleChkBox::aDragUnticksNothing()
{
    Grid grid;
    grid.at(0, 0).setChecked(true);
    grid.at(0, 1).setChecked(true);
    grid.press(grid.centre(0, 0));
    grid.moveTo(grid.centre(0, 2));
    grid.release(grid.centre(0, 2));
    QCOMPARE(grid.ticks(), QStringLiteral("xxx- ---- ----"));
}

void tst_PersonaleChkBox::aMouseThatStaysOnItsCellClicks()
{
    Grid grid;
    const QRect cell = grid.at(1, 1).geometry();
    for (const QString &expected : {QStringLiteral("---- -x-- ----"), QStringLiteral("---- ---- ----")}) {
        grid.press(cell.center());
        grid.moveTo(cell.topLeft());
        grid.moveTo(cell.bottomRight());
        grid.release(cell.bottomRight());
        QCOMPARE(grid.ticks(), expected);
    }
}

void tst_PersonaleChkBox::aDragThatComesBackClicksNothing()
{
    Grid grid;
    grid.press(grid.centre(0, 0));
    grid.moveTo(grid.centre(0, 1));
    grid.moveTo(grid.centre(0, 0));
    QVERIFY(!grid.at(0, 0).isDown());
    grid.release(grid.centre(0, 0));
    QCOMPARE(grid.ticks(), QStringLiteral("xx-- ---- ----"));
}

void tst_PersonaleChkBox::onlyTheLeftButtonDrags()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        Grid grid;
        grid.press(grid.centre(0, 0), button);
        grid.moveTo(grid.centre(0, 2));
        grid.release(grid.centre(0, 2), button);
        QCOMPARE(grid.ticks(), QStringLiteral("---- ---- ----"));
    }
}

void tst_PersonaleChkBox::cellsOutOfSightAreNotDraggedOver()
{
    QScrollArea area;
    auto *page = new QWidget;
    const auto boxes = std::make_unique<PersonaleChkBox[]>(2);
    for (size_t i = 0; i < 2; ++i) {
        boxes[i].setParent(page);
        boxes[i].setGeometry(0, static_cast<int>(i) * 300, 60, 30);
    }
    page->resize(60, 330);
    area.setWidget(page);
    area.resize(100, 100);
    area.show();
    const QPoint start = boxes[0].mapTo(&area, QPoint(5, 5));
    QTest::mousePress(area.windowHandle(), Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(area.windowHandle(), start + QPoint(0, 300));
    QTest::mouseRelease(area.windowHandle(), Qt::LeftButton, Qt::NoModifier, start + QPoint(0, 300));
    QVERIFY(boxes[0].isChecked());
    QVERIFY(!boxes[1].isChecked());
    boxes[0].setParent(nullptr);
    boxes[1].setParent(nullptr);
}

void tst_PersonaleChkBox::theNextClickAfterADragIsAClick()
{
    Grid grid;
    grid.press(grid.centre(0, 0));
    grid.moveTo(grid.centre(0, 1));
    grid.release(grid.centre(0, 1));
    QTest::mouseClick(&grid.at(0, 0), Qt::LeftButton);
    grid.moveTo(grid.centre(2, 2));
    QCOMPARE(grid.ticks(), QStringLiteral("-x-- ---- ----"));
}

void tst_PersonaleChkBox::typeAndTickAreSeen_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << QPalette(QColor(239, 239, 239));
    QTest::newRow("dark") << darkPalette();
}

void tst_PersonaleChkBox::typeAndTickAreSeen()
{
    QFETCH(QPalette, palette);
    QList<QImage> seen;
    QList<QRgb> tiles;
    for (const CELL_VALUE tipo : {CELL_NUMERO, CELL_TESTO, CELL_IMMAGINE, CELL_VUOTA}) {
        for (const bool ticked : {true, false}) {
            const QImage image = picture(tipo, ticked, palette);
            const QRgb tile = image.pixel(image.width() / 2, 4); // above the sign, beside the indicator
            QVERIFY(!tiles.contains(tile));
            tiles.append(tile);
            QVERIFY(!seen.contains(image));
            seen.append(image);
        }
    }
}

void tst_PersonaleChkBox::aNumberIsPaintedAsItsText()
{
    PersonaleChkBox box;
    const int emptyWidth = box.sizeHint().width();
    box.resize(box.sizeHint());
    box.setChecked(true);
    const QImage without = box.grab().toImage();
    box.setText(QStringLiteral("90"));
    QCOMPARE(box.sizeHint().width(), emptyWidth); // numbers of two digits do not move the grid
    QVERIFY(box.grab().toImage() != without);
    box.setText(QStringLiteral("1234567"));
    QVERIFY(box.sizeHint().width() > emptyWidth);
}

QTEST_MAIN(tst_PersonaleChkBox)
#include "tst_PersonaleChkBox.moc"
