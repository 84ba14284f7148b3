// SPDX-License-Identifier: MIT
#include "ClassicSets.h"
#include "PeakMemory.h"
#include "PlainWriter.h"
#include "Ratios.h"

#include "output/CreateOutputFile.h"

#include <QtGlobal>

#include <array>

namespace {
using namespace ClassicSets;

constexpr int pages = 1000;

// The size of the file.
double print(Cartella &set)
{
    CreateOutputFile output;
    output.fileName = QStringLiteral("cartelle.pdf");
    output.cartella = &set;
    QString report;
    const int bytes = output.printPdf(report);
    if (bytes <= 0) {
        qFatal("not printed");
    }
    return bytes;
}

Quantity printing(int count)
{
    return [count]() {
        const auto set = firstPages(count);
        return processorTime([&set]() { print(*set); });
    };
}

double writingPlainly()
{
    const auto set = firstPages(pages);
    return processorTime([&set]() {
        PlainWriter writer;
        for (const Pagina *page : qAsConst(set->pagine)) {
            writer.addPage(*page);
        }
        writer.save("confronto.pdf");
    });
}

double bytesAPage()
{
    return print(*firstPages(pages)) / pages;
}

// Every block in a colour of its own, thick lines, and in each row one text and one picture.
std::unique_ptr<Cartella> coloredSet(int count)
{
    const std::array<QColor, blocks> colors{Qt::yellow, Qt::cyan, Qt::green, Qt::magenta, Qt::white, Qt::lightGray};
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::darkRed);
    auto set = filled(count);
    for (Pagina *page : qAsConst(set->pagine)) {
        page->sfondo = QColor(240, 240, 200);
        for (size_t b = 0; b < blocks; ++b) {
            Blocco &block = page->blocchi[b];
            block.coloreLineaInterna = Qt::darkGreen;
            block.spessoreLineaInterna = 2;
            block.coloreLineaEsterna = Qt::darkBlue;
            block.spessoreLineaEsterna = 4;
            for (size_t r = 0; r < rowsPerBlock; ++r) {
                Riga &row = block.righe[r];
                for (size_t c = 0; c < columns; ++c) {
                    row.celle[c].coloreSfondo = colors.at(b);
                    row.celle[c].coloreTesto = Qt::darkBlue;
                }
                row.celle[r].tipo = CELL_TESTO;
                row.celle[r].testo = QStringLiteral("TXT");
                row.celle[r + 4].tipo = CELL_IMMAGINE;
                row.celle[r + 4].immagine = picture;
            }
        }
    }
    return set;
}

double printingColored()
{
    static const auto set = coloredSet(pages);
    return processorTime([]() { print(*set); });
}

double peakPerPage()
{
    const auto few = firstPages(tenthOfMostPages / 10);
    const auto many = firstPages(tenthOfMostPages);
    const double growth = peakMemoryOf([&many]() { print(*many); }) - peakMemoryOf([&few]() { print(*few); });
    return growth / (many->getNumPages() - few->getNumPages());
}

const Ratio againstPlainWriter("printing 1000 pages / a plain PDF writer", printing(pages), writingPlainly,
                               Ratio::Bound::AtMost, 0.85);
const Ratio bytes("bytes a page, 1000 pages with the font", bytesAPage, constant(1), Ratio::Bound::AtMost, 2100, 1);
const Ratio colored("printing colored pages / plain ones", printingColored, printing(pages), Ratio::Bound::AtMost, 1.5);
const Ratio growth("printing 65535 pages / 6553 pages", printing(mostPages),
                   meanOf(mostPages / tenthOfMostPages, printing(tenthOfMostPages)), Ratio::Bound::AtMost, 11, 3);
const Ratio memory("peak memory per page printed / 1 KB", peakPerPage, constant(1024), Ratio::Bound::AtMost, 2.0, 1);
} // namespace
