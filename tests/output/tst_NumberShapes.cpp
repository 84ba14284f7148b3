// SPDX-License-Identifier: MIT
#include "output/NumberShapes.h"

#include "model/Cartella.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <cmath>

class tst_NumberShapes final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_page = QImage(200, 100, QImage::Format_RGB32);
        m_painter = std::make_unique<QPainter>(&m_page);
    }

    void cleanup() { m_painter.reset(); }

    void centredWhereThePainterWouldCentreIt()
    {
        NumberShapes shapes(m_painter.get());
        const NumberShape shape = shapes.shapeOf(defaultCellFont(), 87);
        const QRectF cell(13.3, 7.7, 150, 80);
        m_painter->setFont(defaultCellFont());
        const QRectF expected = m_painter->boundingRect(cell, Qt::AlignCenter, QStringLiteral("87"));
        const QPointF corner = shape.centredIn(cell);
        QCOMPARE(shape.size, expected.size());
        // Text is set in steps of 1/64 pixel.
        QVERIFY(corner.x() <= expected.x() && expected.x() - corner.x() < 1.0 / 64);
        QVERIFY(corner.y() <= expected.y() && expected.y() - corner.y() < 1.0 / 64);
        QVERIFY(QRectF(corner, shape.size).contains(shape.ink.translated(corner).center()));
        QCOMPARE(shape.glyphs.glyphIndexes().size(), 2);
    }

    void largerThanItsCellStillCentred()
    {
        NumberShapes shapes(m_painter.get());
        const NumberShape &shape = shapes.shapeOf(defaultCellFont(), 999999);
        const QPointF corner = shape.centredIn(QRectF(200, 100, 10, 4));
        const QPointF centre = QRectF(corner, shape.size).center();
        QVERIFY(std::abs(centre.x() - 205) < 1.0 / 64);
        QVERIFY(std::abs(centre.y() - 102) < 1.0 / 64);
    }

    void onlyPlainFontsHaveShapes_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::addColumn<bool>("hasGlyphs");
        const auto changed = [](auto change) {
            QFont font = defaultCellFont();
            change(font);
            return font;
        };
        QTest::newRow("plain") << defaultCellFont() << true;
        QTest::newRow("spaced") << changed([](QFont &f) { f.setLetterSpacing(QFont::AbsoluteSpacing, 4); }) << true;
        QTest::newRow("italic") << changed([](QFont &f) { f.setItalic(true); }) << false;
        QTest::newRow("bold") << changed([](QFont &f) { f.setBold(true); }) << false;
        QTest::newRow("underlined") << changed([](QFont &f) { f.setUnderline(true); }) << false;
        QTest::newRow("overlined") << changed([](QFont &f) { f.setOverline(true); }) << false;
        QTest::newRow("struck out") << changed([](QFont &f) { f.setStrikeOut(true); }) << false;
    }

    void onlyPlainFontsHaveShapes()
    {
        QFETCH(QFont, font);
        QFETCH(bool, hasGlyphs);
        NumberShapes shapes(m_painter.get());
        QCOMPARE(!shapes.shapeOf(font, 12).glyphs.isEmpty(), hasGlyphs);
    }

    void everyFontHasItsOwnShapes()
    {
        NumberShapes shapes(m_painter.get());
        QFont small = defaultCellFont();
        small.setPointSize(6);
        const QSizeF before = shapes.shapeOf(defaultCellFont(), 5).size;
        QVERIFY(shapes.shapeOf(small, 5).size.height() < before.height() / 2);
        QCOMPARE(shapes.shapeOf(defaultCellFont(), 5).size, before);
        QVERIFY(shapes.shapeOf(defaultCellFont(), 55).size.width() > before.width());
    }

    void manyNumbersAndFontsAreForgottenAndShapedAgain()
    {
        NumberShapes shapes(m_painter.get());
        const QSizeF first = shapes.shapeOf(defaultCellFont(), 1).size;
        for (int number = 0; number < 3000; ++number) {
            QVERIFY(!shapes.shapeOf(defaultCellFont(), number).glyphs.isEmpty());
        }
        for (int size = 1; size < 40; ++size) {
            QVERIFY(!shapes.shapeOf(QFont(QStringLiteral("Arial"), size), 1).glyphs.isEmpty());
        }
        QCOMPARE(shapes.shapeOf(defaultCellFont(), 1).size, first);
    }

private:
    QImage m_page;
    std::unique_ptr<QPainter> m_painter;
};

QTEST_MAIN(tst_NumberShapes)
#include "tst_NumberShapes.moc"
