// SPDX-License-Identifier: MIT
#include "output/NumeriBlocchi.h"

#include "generation/GUtils.h"
#include "output/CreateOutputFile.h"
#include "output/PageImage.h"
#include "output/PagePainter.h"
#include "output/PaperSheet.h"
#include "output/PdfTools.h"
#include "output/SampleSets.h"
#include "settings/Config.h"
#include "settings/Product.h"
#include "support/ScratchFolder.h"

#include <QApplication>
#include <QPainter>
#include <QPrinter>
#include <QtTest>

namespace {
constexpr int resolution = 96; // dots an inch
constexpr double pointsPerMm = 72.0 / 25.4;
const QString fileName = QStringLiteral("numeri.pdf");

// What the line of a text has above and below its digits, as parts of its height.
constexpr double aboveDigits = 0.17;
constexpr double belowDigits = 0.19;

struct Printed
{
    int bytes = 0;
    int leftOut = 0;
    QString report;
};

Printed printNumbered(Cartella &set)
{
    Printed printed;
    const auto numbered =
        CreateOutputFile().create(fileName, &set, printed.report, CreateOutputFile::Numbers::BesideBlocks);
    printed.bytes = numbered.bytes;
    printed.leftOut = numbered.numbersLeftOut;
    return printed;
}

// Prints the pages and nothing else.
void printPlain(const QString &file, const Cartella &set)
{
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setDocName(Product::nameAndRelease());
    printer.setCreator(Product::nameAndRelease());
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins(
        QMarginsF(set.margineSinistro, set.margineSuperiore, set.margineDestro, set.margineInferiore),
        QPageLayout::Millimeter);
    QPainter painter(&printer);
    const PagePainter pages(&painter, documentLayout(sheetOf(printer.pageLayout(), printer.resolution(), set)));
    for (const Pagina *page : set.pagine) {
        if (page != set.pagine.first()) {
            QVERIFY(printer.newPage());
        }
        pages.paintPage(*page);
    }
}

QByteArray withoutDates(QByteArray pdf)
{
    for (int date = pdf.indexOf("Date (D:"); date >= 0; date = pdf.indexOf("Date (D:", date + 1)) {
        pdf.replace(date, pdf.indexOf(')', date) - date, QByteArray());
    }
    return pdf;
}

// Where a block stands on its sheet, in points: the left margin counts twice, the upper one too.
QRectF blockOnSheet(const Cartella &set, const QSizeF &sheet, int page, int block)
{
    const Pagina &pagina = *set.pagine.at(page);
    const double left = set.margineSinistro * pointsPerMm;
    const double top = set.margineSuperiore * pointsPerMm;
    const double right = set.margineDestro * pointsPerMm;
    const double bottom = set.margineInferiore * pointsPerMm;
    const double spacing = double(pagina.spazioBlocchi) * pointsPerMm;
    const double height = (sheet.height() - 2 * top - bottom) / pagina.nBlocchi - spacing;
    return {2 * left, 2 * top + block * (spacing + height), sheet.width() - 2 * left - right, height};
}

// The words of a page that are numbers of blocks of it.
QVector<PdfTools::PlacedWord> numbersOn(int page)
{
    QVector<PdfTools::PlacedWord> found;
    for (const PdfTools::PlacedWord &word : PdfTools::placedWords(fileName, page)) {
        if (word.text.startsWith(QStringLiteral("%1.").arg(page))) {
            found.append(word);
        }
    }
    return found;
}

QRect darkBounds(const QImage &image)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

// What is dark, drawn as large as 80 x 40.
QImage shapeOf(const QImage &image)
{
    return image.copy(darkBounds(image)).scaled(80, 40, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// The part of two such shapes in which they agree.
double agreement(const QImage &a, const QImage &b)
{
    int same = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            same += (qGray(a.pixel(x, y)) < 128) == (qGray(b.pixel(x, y)) < 128) ? 1 : 0;
        }
    }
    return double(same) / (a.width() * a.height());
}

QImage upright(const QString &text)
{
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(100);
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
}
} // namespace

class tst_NumeriBlocchi final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyBlockOfEveryPageHasItsNumber();
    void numbersStandInTheMarginOfEveryPaperFormat_data();
    void numbersStandInTheMarginOfEveryPaperFormat();
    void numbersAreReadWhenTheSheetIsTurnedClockwise();
    void theBlocksThemselvesAreUntouched_data();
    void theBlocksThemselvesAreUntouched();
    void numbersAreReadableOnAnyPage_data();
    void numbersAreReadableOnAnyPage();
    void withoutRoomANumberIsLeftOut_data();
    void withoutRoomANumberIsLeftOut();
    void theReportStaysAsItIs();
    void withoutTheChoiceThereAreNoNumbers();
    void theMarginBesideABlockEndsAtItsOutline();

private:
    std::unique_ptr<ScratchFolder> m_folder;
    std::unique_ptr<CurrentConfig> m_config;
};

void tst_NumeriBlocchi::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_config = std::make_unique<CurrentConfig>(qApp);
}

void tst_NumeriBlocchi::cleanup()
{
    m_config.reset();
    m_folder.reset();
}

void tst_NumeriBlocchi::everyBlockOfEveryPageHasItsNumber()
{
    const auto set = SampleSets::classic(12);
    set->pagine[1]->nBlocchi = 4; // pages need not be alike
    const Printed printed = printNumbered(*set);
    QVERIFY(printed.bytes > 0);
    QCOMPARE(printed.leftOut, 0);
    for (const int page : {1, 2, 12}) {
        QStringList numbers;
        for (const PdfTools::PlacedWord &word : numbersOn(page)) {
            numbers << word.text;
        }
        numbers.sort();
        QStringList wanted;
        for (int block = 1; block <= set->pagine.at(page - 1)->nBlocchi; ++block) {
            wanted << QStringLiteral("%1.%2").arg(page).arg(block);
        }
        QCOMPARE(numbers, wanted);
    }
}

void tst_NumeriBlocchi::numbersStandInTheMarginOfEveryPaperFormat_data()
{
    QTest::addColumn<int>("format");
    for (int format = 0; format < GUtils::selectablePaperFormats; ++format) {
        QTest::newRow(qPrintable(GUtils::paperFormatName(format))) << format;
    }
}

void tst_NumeriBlocchi::numbersStandInTheMarginOfEveryPaperFormat()
{
    QFETCH(int, format);
    const auto set = SampleSets::classic(1);
    set->formato = format;
    const Printed printed = printNumbered(*set);
    const QSizeF sheet = PdfTools::pageSize(fileName);
    const auto numbers = numbersOn(1);
    QCOMPARE(numbers.size() + printed.leftOut, 6);
    QVERIFY(printed.leftOut == 0 || sheet.height() < 45 * pointsPerMm); // only the smallest sheet has blocks so low
    for (const PdfTools::PlacedWord &number : numbers) {
        const QRectF block = blockOnSheet(*set, sheet, 0, number.text.midRef(2).toInt() - 1);
        const double height = number.box.width(); // of letters, it is turned
        QVERIFY(number.box.left() + aboveDigits * height >= set->margineSinistro * pointsPerMm);
        QVERIFY(number.box.right() - belowDigits * height <= block.left());
        QVERIFY(number.box.top() >= block.top() && number.box.bottom() <= block.bottom());
        QVERIFY(qAbs(number.box.center().y() - block.center().y()) < 1.0);
        QVERIFY(number.box.height() > number.box.width()); // turned
    }
}

void tst_NumeriBlocchi::numbersAreReadWhenTheSheetIsTurnedClockwise()
{
    constexpr int a6 = 10;
    constexpr int scale = 8;
    const auto set = SampleSets::classic(7);
    set->formato = a6;
    const QSize size = sheetSize(*set, resolution) * scale;
    const QImage sheet = pageImage(*set, 6, size, resolution, true);
    const double dotsPerPoint = size.width() / (sheetSize(*set, resolution).width() * 72.0 / resolution);
    const QRectF block = blockOnSheet(*set, QSizeF(size) / dotsPerPoint, 6, 0);
    const QRectF margin(0, block.top(), block.left() - 1, block.height());
    const QImage beside = sheet.copy(QRectF(margin.topLeft() * dotsPerPoint, margin.size() * dotsPerPoint).toRect());

    const QImage number = shapeOf(upright(QStringLiteral("7.1")));
    QVERIFY(agreement(shapeOf(beside.transformed(QTransform().rotate(90))), number) > 0.9);
    QVERIFY(agreement(shapeOf(beside.transformed(QTransform().rotate(-90))), number) < 0.8);
}

void tst_NumeriBlocchi::theBlocksThemselvesAreUntouched_data()
{
    QTest::addColumn<int>("format");
    for (int format = 0; format < GUtils::selectablePaperFormats; ++format) {
        const QSizeF sheet = QPageSize(QPageSize::PageSizeId(format)).size(QPageSize::Millimeter);
        if (sheet.width() * sheet.height() <= 220 * 330) { // larger ones take long
            QTest::newRow(qPrintable(GUtils::paperFormatName(format))) << format;
        }
    }
}

void tst_NumeriBlocchi::theBlocksThemselvesAreUntouched()
{
    QFETCH(int, format);
    const auto set = SampleSets::classic(1);
    set->formato = format;
    const bool hasRoom = printNumbered(*set).leftOut < 6;
    const QSize size = sheetSize(*set, resolution) * 2;
    const QImage numbered = pageImage(*set, 0, size, resolution, true);
    const QImage plain = pageImage(*set, 0, size, resolution);
    QCOMPARE(numbered != plain, hasRoom);
    const double dotsPerPoint = size.width() / (sheetSize(*set, resolution).width() * 72.0 / resolution);
    const int left = int(blockOnSheet(*set, QSizeF(size) / dotsPerPoint, 0, 0).left() * dotsPerPoint) - 1;
    const QRect blocks(left, 0, size.width() - left, size.height());
    QCOMPARE(numbered.copy(blocks), plain.copy(blocks));
}

void tst_NumeriBlocchi::numbersAreReadableOnAnyPage_data()
{
    QTest::addColumn<QColor>("page");
    QTest::addColumn<QColor>("ink");
    QTest::newRow("white") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("yellow") << QColor(Qt::yellow) << QColor(Qt::black);
    QTest::newRow("dark blue") << QColor(Qt::darkBlue) << QColor(Qt::white);
    QTest::newRow("black") << QColor(Qt::black) << QColor(Qt::white);
}

void tst_NumeriBlocchi::numbersAreReadableOnAnyPage()
{
    QFETCH(QColor, page);
    QFETCH(QColor, ink);
    const auto set = SampleSets::classic(1);
    set->pagine[0]->sfondo = page;
    const QSize size = sheetSize(*set, resolution) * 4;
    const QImage image = pageImage(*set, 0, size, resolution, true);
    const double dotsPerMm = size.width() / 210.0;
    int inked = 0;
    for (int y = qRound(6 * dotsPerMm); y < qRound(290 * dotsPerMm); ++y) { // the paper's edge is white
        for (int x = qRound(2.2 * dotsPerMm); x < qRound(3.7 * dotsPerMm); ++x) {
            inked += image.pixelColor(x, y) == ink ? 1 : 0;
        }
    }
    QVERIFY2(inked > 300, qPrintable(QString::number(inked)));
}

void tst_NumeriBlocchi::withoutRoomANumberIsLeftOut_data()
{
    QTest::addColumn<double>("margin");
    QTest::addColumn<int>("outline");
    QTest::addColumn<float>("spacing");
    QTest::addColumn<int>("leftOut");
    QTest::newRow("usual") << 2.0 << 1 << 1.2F << 0;
    QTest::newRow("no margin") << 0.0 << 1 << 1.2F << 6;
    QTest::newRow("narrow margin") << 1.0 << 1 << 1.2F << 6;
    QTest::newRow("wide margin") << 20.0 << 1 << 1.2F << 0;
    QTest::newRow("thick outline") << 2.0 << 10 << 1.2F << 6;
    QTest::newRow("thick outline, wide margin") << 5.0 << 10 << 1.2F << 0;
    QTest::newRow("low blocks") << 2.0 << 1 << 46.0F << 6;
}

void tst_NumeriBlocchi::withoutRoomANumberIsLeftOut()
{
    QFETCH(double, margin);
    QFETCH(int, outline);
    QFETCH(float, spacing);
    QFETCH(int, leftOut);
    const auto set = SampleSets::classic(2);
    set->margineSinistro = margin;
    set->pagine[0]->spazioBlocchi = spacing;
    for (Blocco &block : *set->pagine[0]) {
        block.spessoreLineaEsterna = outline;
    }
    set->deletePage(1);
    const Printed printed = printNumbered(*set);
    QCOMPARE(printed.leftOut, leftOut);
    QCOMPARE(numbersOn(1).size(), 6 - leftOut);
}

void tst_NumeriBlocchi::theReportStaysAsItIs()
{
    const auto set = SampleSets::classic(1);
    set->margineSinistro = 0.0;
    const Printed printed = printNumbered(*set);
    QCOMPARE(printed.leftOut, 6);
    QVERIFY(printed.report.startsWith(QStringLiteral("File creato con successo!\n\nNome: numeri\n")));
    QVERIFY(printed.report.endsWith(QStringLiteral("Dimensioni pagina: A4 (210x297mm)")));
}

void tst_NumeriBlocchi::withoutTheChoiceThereAreNoNumbers()
{
    const auto set = SampleSets::classic(2);
    QString report;
    QVERIFY(CreateOutputFile().create(fileName, set.get(), report) > 0);
    printPlain(QStringLiteral("plain.pdf"), *set);
    const QByteArray bytes = withoutDates(m_folder->read(fileName));
    QVERIFY(bytes.size() > 1000);
    QVERIFY(bytes == withoutDates(m_folder->read(QStringLiteral("plain.pdf"))));
    printNumbered(*set);
    QVERIFY(bytes != withoutDates(m_folder->read(fileName)));
}

void tst_NumeriBlocchi::theMarginBesideABlockEndsAtItsOutline()
{
    BlockLayout block;
    block.left = 8;
    block.top = 30;
    block.width = 200;
    block.height = 50;
    QCOMPARE(marginBeside(block, 0), QRectF(0, 30, 8, 50));
    QCOMPARE(marginBeside(block, 4), QRectF(0, 30, 6, 50));
}

QTEST_MAIN(tst_NumeriBlocchi)
#include "tst_NumeriBlocchi.moc"
