// SPDX-License-Identifier: MIT
#include "output/TextShapes.h"

#include "model/Cartella.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <cmath>

class tst_TextShapes final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void centredWhereThePainterWouldCentreIt();
    void largerThanItsCellStillCentred();
    void textsAreCentredAsThePainterWould_data();
    void textsAreCentredAsThePainterWould();
    void onlySimpleTextsHaveShapes_data();
    void onlySimpleTextsHaveShapes();
    void fontsWithLinesHaveNoShapes_data();
    void fontsWithLinesHaveNoShapes();
    void inkOfSlantedAndThickenedGlyphsIsTakenGenerously();
    void everyFontHasItsOwnShapes();
    void numbersAndTextsAreToldApart();
    void manyNumbersAndFontsAreForgottenAndShapedAgain();

private:
    QImage m_page;
    std::unique_ptr<QPainter> m_painter;
};

void tst_TextShapes::init()
{
    m_page = QImage(200, 100, QImage::Format_RGB32);
    m_painter = std::make_unique<QPainter>(&m_page);
}

void tst_TextShapes::cleanup()
{
    m_painter.reset();
}

void tst_TextShapes::centredWhereThePainterWouldCentreIt()
{
    TextShapes shapes(m_painter.get());
    const TextShape shape = shapes.ofNumber(defaultCellFont(), 87);
    const QRectF cell(13.3, 7.7, 150, 80);
    m_painter->setFont(defaultCellFont());
    const QRectF expected = m_painter->boundingRect(cell, Qt::AlignCenter, QStringLiteral("87"));
    const QPointF corner = shape.centredIn(cell);
    QCOMPARE(shape.size, expected.size());
    // Text is set in steps of 1/64 pixel.
    QVERIFY(corner.x() <= expected.x() && expected.x() - corner.x() < 1.0 / 64);
    QVERIFY(corner.y() <= expected.y() && expected.y() - corner.y() < 1.0 / 64);
    QVERIFY(QRectF(corner, shape.size).contains(shape.ink.translated(corner).center()));
    QCOMPARE(shape.glyphs.size(), 2);
}

void tst_TextShapes::largerThanItsCellStillCentred()
{
    TextShapes shapes(m_painter.get());
    const TextShape &shape = shapes.ofNumber(defaultCellFont(), 999999);
    const QPointF corner = shape.centredIn(QRectF(200, 100, 10, 4));
    const QPointF centre = QRectF(corner, shape.size).center();
    QVERIFY(std::abs(centre.x() - 205) < 1.0 / 64);
    QVERIFY(std::abs(centre.y() - 102) < 1.0 / 64);
}

void tst_TextShapes::textsAreCentredAsThePainterWould_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("word") << "TXT";
    QTest::newRow("words") << "due parole";
    QTest::newRow("accents") << "perch\u00e9 \u00e8 cos\u00ec";
    QTest::newRow("ends beyond its width") << "ffj";
}

void tst_TextShapes::textsAreCentredAsThePainterWould()
{
    QFETCH(QString, text);
    TextShapes shapes(m_painter.get());
    const TextShape shape = shapes.ofText(defaultCellFont(), text);
    QVERIFY(!shape.glyphs.isEmpty());
    QCOMPARE(shape.positions.size(), shape.glyphs.size());
    m_painter->setFont(defaultCellFont());
    const QRectF cell(13.3, 7.7, 150, 80);
    const QPointF expected = m_painter->boundingRect(cell, Qt::AlignCenter, text).center();
    const QPointF centre = QRectF(shape.centredIn(cell), shape.size).center();
    QVERIFY(std::abs(centre.x() - expected.x()) < 1.0);
    QVERIFY(std::abs(centre.y() - expected.y()) < 1.0 / 64);
}

void tst_TextShapes::onlySimpleTextsHaveShapes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasGlyphs");
    QTest::newRow("word") << "TXT" << true;
    QTest::newRow("digits") << "12" << true;
    QTest::newRow("sign") << "a & b" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("two lines") << "a\nb" << false;
    QTest::newRow("tabulator") << "a\tb" << false;
    QTest::newRow("blank before") << " a" << false;
    QTest::newRow("blank after") << "a " << false;
    QTest::newRow("unbreakable blank") << "a\u00a0b" << false;
    QTest::newRow("from right to left") << "\u05e9\u05dc" << false;
    QTest::newRow("combining accent") << "e\u0301" << false;
}

void tst_TextShapes::onlySimpleTextsHaveShapes()
{
    QFETCH(QString, text);
    QFETCH(bool, hasGlyphs);
    TextShapes shapes(m_painter.get());
    QCOMPARE(!shapes.ofText(defaultCellFont(), text).glyphs.isEmpty(), hasGlyphs);
}

void tst_TextShapes::fontsWithLinesHaveNoShapes_data()
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
    QTest::newRow("italic") << changed([](QFont &f) { f.setItalic(true); }) << true;
    QTest::newRow("bold") << changed([](QFont &f) { f.setBold(true); }) << true;
    QTest::newRow("underlined") << changed([](QFont &f) { f.setUnderline(true); }) << false;
    QTest::newRow("overlined") << changed([](QFont &f) { f.setOverline(true); }) << false;
    QTest::newRow("struck out") << changed([](QFont &f) { f.setStrikeOut(true); }) << false;
}

void tst_TextShapes::fontsWithLinesHaveNoShapes()
{
    QFETCH(QFont, font);
    QFETCH(bool, hasGlyphs);
    TextShapes shapes(m_painter.get());
    QCOMPARE(!shapes.ofNumber(font, 12).glyphs.isEmpty(), hasGlyphs);
}

void tst_TextShapes::inkOfSlantedAndThickenedGlyphsIsTakenGenerously()
{
    TextShapes shapes(m_painter.get());
    const QRectF upright = shapes.ofNumber(defaultCellFont(), 12).ink;
    for (const auto weight : {QFont::Normal, QFont::Bold}) {
        QFont font = defaultCellFont();
        font.setWeight(weight);
        font.setItalic(weight == QFont::Normal);
        const QRectF ink = shapes.ofNumber(font, 12).ink;
        constexpr double generous = 5;
        QVERIFY(ink.left() < upright.left() - generous && ink.right() > upright.right() + generous);
    }
}

void tst_TextShapes::everyFontHasItsOwnShapes()
{
    TextShapes shapes(m_painter.get());
    QFont small = defaultCellFont();
    small.setPointSize(6);
    const QSizeF before = shapes.ofNumber(defaultCellFont(), 5).size;
    QVERIFY(shapes.ofNumber(small, 5).size.height() < before.height() / 2);
    QCOMPARE(shapes.ofNumber(defaultCellFont(), 5).size, before);
    QVERIFY(shapes.ofNumber(defaultCellFont(), 55).size.width() > before.width());
}

void tst_TextShapes::numbersAndTextsAreToldApart()
{
    TextShapes shapes(m_painter.get());
    const QSizeF number = shapes.ofNumber(defaultCellFont(), 12).size;
    QCOMPARE(shapes.ofText(defaultCellFont(), QStringLiteral("12")).size, number);
    QVERIFY(shapes.ofText(defaultCellFont(), QStringLiteral("WW")).size.width() > number.width());
}

void tst_TextShapes::manyNumbersAndFontsAreForgottenAndShapedAgain()
{
    TextShapes shapes(m_painter.get());
    const QSizeF first = shapes.ofNumber(defaultCellFont(), 1).size;
    for (int number = 0; number < 3000; ++number) {
        QVERIFY(!shapes.ofNumber(defaultCellFont(), number).glyphs.isEmpty());
    }
    for (int size = 1; size < 40; ++size) {
        QVERIFY(!shapes.ofNumber(QFont(QStringLiteral("Arial"), size), 1).glyphs.isEmpty());
    }
    QCOMPARE(shapes.ofNumber(defaultCellFont(), 1).size, first);
}

QTEST_MAIN(tst_TextShapes)
#include "tst_TextShapes.moc"
