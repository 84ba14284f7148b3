// SPDX-License-Identifier: MIT
#include "output/PageLayers.h"

#include "model/Cartella.h"
#include "output/TextShapes.h"

#include <QPainter>
#include <QtTest>

// Layers are added in the opposite order of that in which they must be painted.
class tst_PageLayers final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void outlinesLieOverSeparators();
    void laterLinesCoverEarlierOnes();
    void separatorsLieOverTexts();
    void textsLieOverPictures();
    void picturesLieOverBackgrounds();
    void everyStyleIsPainted();
    void paintedOnce();
    void brushIsLeftAsItWas();

private:
    void paint(PageLayers &layers);
    // Whether the colour is anywhere on the page.
    bool shows(const QColor &color) const;

    const QRectF m_area{10, 10, 80, 40};
    QImage m_page;
};

void tst_PageLayers::init()
{
    m_page = QImage(100, 60, QImage::Format_RGB32);
    m_page.fill(Qt::white);
}

void tst_PageLayers::paint(PageLayers &layers)
{
    QPainter painter(&m_page);
    layers.paint(painter);
}

bool tst_PageLayers::shows(const QColor &color) const
{
    for (int y = 0; y < m_page.height(); ++y) {
        for (int x = 0; x < m_page.width(); ++x) {
            if (m_page.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

void tst_PageLayers::outlinesLieOverSeparators()
{
    PageLayers layers;
    layers.addOutline(m_area, QPen(Qt::blue, 4));
    layers.addSeparator({0, 10, 100, 10}, QPen(Qt::green, 4));
    paint(layers);
    QCOMPARE(m_page.pixelColor(50, 10), QColor(Qt::blue));
    QCOMPARE(m_page.pixelColor(4, 10), QColor(Qt::green));
}

void tst_PageLayers::laterLinesCoverEarlierOnes()
{
    PageLayers layers;
    layers.addOutline(m_area, QPen(Qt::blue, 4));
    layers.coverLines();
    layers.addSeparator({0, 10, 50, 10}, QPen(Qt::green, 4));
    paint(layers);
    QCOMPARE(m_page.pixelColor(30, 10), QColor(Qt::green));
    QCOMPARE(m_page.pixelColor(70, 10), QColor(Qt::blue));
}

void tst_PageLayers::separatorsLieOverTexts()
{
    PageLayers layers;
    {
        QPainter painter(&m_page);
        TextShapes shapes(&painter);
        layers.addSeparator({50, 0, 50, 60}, QPen(Qt::green, 60));
        const TextShape &shape = shapes.ofNumber(defaultCellFont(), 8);
        layers.addText(shape, shape.centredIn(m_area), Qt::red);
    }
    paint(layers);
    QVERIFY(!shows(Qt::red));
    QCOMPARE(m_page.pixelColor(50, 30), QColor(Qt::green));
}

void tst_PageLayers::textsLieOverPictures()
{
    QImage picture(1, 1, QImage::Format_RGB32);
    picture.fill(Qt::yellow);
    PageLayers layers;
    {
        QPainter painter(&m_page);
        TextShapes shapes(&painter);
        const TextShape &shape = shapes.ofNumber(defaultCellFont(), 8);
        layers.addText(shape, shape.centredIn(m_area), Qt::red);
        layers.addPicture(m_area, picture);
    }
    paint(layers);
    QVERIFY(shows(Qt::red));
    QCOMPARE(m_page.pixelColor(12, 12), QColor(Qt::yellow));
}

void tst_PageLayers::picturesLieOverBackgrounds()
{
    QImage picture(1, 1, QImage::Format_RGB32);
    picture.fill(Qt::yellow);
    PageLayers layers;
    layers.addPicture(m_area, picture);
    layers.addBackground(m_area.translated(5, 0), Qt::cyan);
    paint(layers);
    QCOMPARE(m_page.pixelColor(50, 30), QColor(Qt::yellow));
    QCOMPARE(m_page.pixelColor(92, 30), QColor(Qt::cyan));
}

void tst_PageLayers::everyStyleIsPainted()
{
    PageLayers layers;
    const QColor colors[] = {Qt::red, Qt::green, Qt::red, Qt::red, Qt::blue};
    const int tops[] = {0, 0, 0, 20, 20};
    const int lefts[] = {0, 20, 40, 60, 80};
    for (int i = 0; i < 5; ++i) {
        layers.addBackground(QRectF(lefts[i], tops[i], 20, 20), colors[i]);
    }
    layers.addSeparator({0, 50, 40, 50}, QPen(Qt::darkRed, 2));
    layers.addSeparator({50, 50, 90, 50}, QPen(Qt::darkBlue, 2));
    paint(layers);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(m_page.pixelColor(lefts[i] + 10, tops[i] + 10), colors[i]);
        QCOMPARE(m_page.pixelColor(lefts[i] + 10, 30 - tops[i]), QColor(Qt::white));
    }
    QCOMPARE(m_page.pixelColor(20, 50), QColor(Qt::darkRed));
    QCOMPARE(m_page.pixelColor(70, 50), QColor(Qt::darkBlue));
}

void tst_PageLayers::paintedOnce()
{
    PageLayers layers;
    layers.addBackground(m_area, Qt::cyan);
    paint(layers);
    m_page.fill(Qt::white);
    paint(layers);
    QVERIFY(!shows(Qt::cyan));
}

void tst_PageLayers::brushIsLeftAsItWas()
{
    PageLayers layers;
    layers.addBackground(m_area, Qt::cyan);
    layers.addOutline(m_area, QPen(Qt::blue));
    QPainter painter(&m_page);
    layers.paint(painter);
    QCOMPARE(painter.brush(), QBrush(Qt::NoBrush));
    QCOMPARE(m_page.pixelColor(50, 30), QColor(Qt::cyan)); // the outline is not filled
}

QTEST_MAIN(tst_PageLayers)
#include "tst_PageLayers.moc"
