// SPDX-License-Identifier: MIT
#include "output/PageImage.h"

#include "output/CreateOutputFile.h"
#include "output/PdfTools.h"
#include "output/SampleSets.h"
#include "settings/Config.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QtTest>

namespace {
constexpr int a4 = 0;
constexpr int a6 = 10;
constexpr int ledger = 28;

// The part of the pictures that differs clearly, looked at from so far that a dot more or less does not count.
double differing(const QImage &left, const QImage &right)
{
    constexpr int distance = 4;
    constexpr int clearly = 100;
    const QSize size = left.size() / distance;
    const QImage a = left.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage b = right.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int count = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            count += qAbs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > clearly ? 1 : 0;
        }
    }
    return double(count) / (size.width() * size.height());
}

// Dots darker than a middle grey.
int dark(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        }
    }
    return count;
}
} // namespace

class tst_PageImage final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sheetHasTheShapeOfThePaper_data();
    void sheetHasTheShapeOfThePaper();
    void pageLooksAsPrinted_data();
    void pageLooksAsPrinted();
    void sizeOfThePictureDoesNotChangeWhatIsSeen();
    void pageThatIsNotThereHasNoPicture();

private:
    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
};

void tst_PageImage::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<CurrentConfig>(qApp);
}

void tst_PageImage::cleanup()
{
    m_config.reset();
    m_folder.reset();
}

void tst_PageImage::sheetHasTheShapeOfThePaper_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QSizeF>("millimetres");
    QTest::newRow("A4") << a4 << QSizeF(210, 297);
    QTest::newRow("A6") << a6 << QSizeF(105, 148);
    QTest::newRow("Ledger") << ledger << QSizeF(431.8, 279.4);
}

void tst_PageImage::sheetHasTheShapeOfThePaper()
{
    QFETCH(const int, format);
    QFETCH(const QSizeF, millimetres);
    Cartella set;
    set.formato = format;
    const QSize expected = (millimetres / 25.4 * printingResolution()).toSize();
    QVERIFY(qAbs(sheetSize(set, printingResolution()).width() - expected.width()) <= 1);
    QVERIFY(qAbs(sheetSize(set, printingResolution()).height() - expected.height()) <= 1);
}

void tst_PageImage::pageLooksAsPrinted_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<bool>("coloured");
    QTest::newRow("A4") << a4 << false;
    QTest::newRow("A6, numbers larger than their cells") << a6 << false;
    QTest::newRow("coloured") << a4 << true;
}

void tst_PageImage::pageLooksAsPrinted()
{
    QFETCH(const int, format);
    QFETCH(const bool, coloured);
    const auto set = SampleSets::classic(2);
    set->formato = format;
    if (coloured) {
        set->pagine[1]->sfondo = Qt::cyan;
        SampleSets::forEachCell(*set, [](Cella &cell) { cell.coloreSfondo = Qt::yellow; });
    }
    const QString file = m_folder->path(QStringLiteral("page.pdf"));
    QString report;
    QVERIFY(CreateOutputFile().create(file, set.get(), report) > 0);

    const QImage printed = PdfTools::picture(file, 2, printingResolution());
    const QImage shown = pageImage(*set, 1, printed.size(), printingResolution());
    QCOMPARE(shown.size(), printed.size());
    QVERIFY2(differing(shown, printed) < 0.002, qPrintable(QString::number(differing(shown, printed))));
    QVERIFY(dark(shown) > 1000);
    // The other page has its numbers elsewhere.
    QVERIFY(differing(pageImage(*set, 0, printed.size(), printingResolution()), printed) >
            differing(shown, printed) * 3);
}

void tst_PageImage::sizeOfThePictureDoesNotChangeWhatIsSeen()
{
    const auto set = SampleSets::classic(1);
    const QSize natural = sheetSize(*set, printingResolution());
    const QImage small = pageImage(*set, 0, natural, printingResolution());
    const QImage large = pageImage(*set, 0, natural * 3, printingResolution());
    QCOMPARE(large.size(), natural * 3);
    const QImage reduced = large.scaled(natural, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QVERIFY(differing(small, reduced) < 0.002);
}

void tst_PageImage::pageThatIsNotThereHasNoPicture()
{
    const auto set = SampleSets::classic(1);
    const int resolution = printingResolution();
    QVERIFY(pageImage(*set, 1, QSize(10, 10), resolution).isNull());
    QVERIFY(pageImage(*set, -1, QSize(10, 10), resolution).isNull());
    QVERIFY(pageImage(Cartella(), 0, QSize(10, 10), resolution).isNull());
    QVERIFY(pageImage(*set, 0, QSize(), resolution).isNull());
}

QTEST_MAIN(tst_PageImage)
#include "tst_PageImage.moc"
