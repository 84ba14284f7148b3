// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include "generation/GeneraCartellaClassica.h"
#include "model/Cartella.h"
#include "output/CreateOutputFile.h"

#include <benchmark/benchmark.h>
#include <hpdf.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <map>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
const Ratio againstPlainWriter("printing 1000 pages to PDF / a plain PDF writer", "printing/1000", "plainWriter/1000",
                               Ratio::Bound::AtMost, 1.5);
const Ratio tenTimesThePages("printing 10000 pages / 1000 pages", "printing/10000", "printing/1000",
                             Ratio::Bound::AtMost, 10.5);
const Ratio memoryPerPage("peak memory per page printed / 1 KB", "printing peak bytes per page", "one kilobyte",
                          Ratio::Bound::AtMost, 2.0);

constexpr U8 blocks = 6;
constexpr U8 rows = 3;
constexpr U8 columns = 9;
constexpr U8 drawn = 5;

// Kept for the next benchmark of the same size.
Cartella &classicSet(int pages)
{
    static std::map<int, std::unique_ptr<Cartella>> sets;
    std::unique_ptr<Cartella> &set = sets[pages];
    if (!set) {
        set = std::make_unique<Cartella>(static_cast<U16>(pages), blocks, rows, columns);
        GeneraCartellaClassica generator;
        for (Pagina *page : qAsConst(set->pagine)) {
            if (!generator.generate(page, columns, drawn, 0, 0, 1, 90)) {
                std::abort();
            }
        }
    }
    return *set;
}

void print(Cartella &set)
{
    CreateOutputFile output;
    output.fileName = QStringLiteral("cartelle.pdf");
    output.cartella = &set;
    QString report;
    if (output.printPdf(report) <= 0) {
        std::abort();
    }
}

// The same page written call by call with a library that only writes PDF. Points, from the lower left corner.
class PlainWriter final
{
public:
    PlainWriter()
        : m_document(HPDF_New(nullptr, nullptr))
    {
        HPDF_SetCompressionMode(m_document, HPDF_COMP_ALL);
        m_font = HPDF_GetFont(m_document, "Helvetica", nullptr);
    }
    ~PlainWriter() { HPDF_Free(m_document); }
    Q_DISABLE_COPY_MOVE(PlainWriter)

    void addPage(const Pagina &page)
    {
        m_page = HPDF_AddPage(m_document);
        HPDF_Page_SetSize(m_page, HPDF_PAGE_SIZE_A4, HPDF_PAGE_PORTRAIT);
        const float sheetWidth = HPDF_Page_GetWidth(m_page);
        const float sheetHeight = HPDF_Page_GetHeight(m_page);
        HPDF_Page_SetRGBFill(m_page, 1, 1, 1);
        HPDF_Page_Rectangle(m_page, 0, 0, sheetWidth, sheetHeight);
        HPDF_Page_Fill(m_page);
        HPDF_Page_SetRGBFill(m_page, 0, 0, 0);
        const float width = sheetWidth - left - right;
        const float height = (sheetHeight - top - bottom) / page.nBlocchi - spacing;
        for (U8 b = 0; b < page.nBlocchi; ++b) {
            addBlock(page.blocchi[b], sheetHeight - top - static_cast<float>(b) * (height + spacing), width, height);
        }
    }

    void save(const char *fileName) { HPDF_SaveToFile(m_document, fileName); }

private:
    static constexpr float pointsPerMm = 72.0F / 25.4F;
    static constexpr float left = 4 * pointsPerMm;
    static constexpr float right = 2 * pointsPerMm;
    static constexpr float top = 6 * pointsPerMm;
    static constexpr float bottom = 3 * pointsPerMm;
    static constexpr float spacing = 1.2F * pointsPerMm;
    static constexpr float fontSize = 30;
    static constexpr float baseLine = 10; // below the middle of the cell

    void addBlock(const Blocco &block, float upper, float width, float height)
    {
        const float rowHeight = height / block.nRighe;
        for (U8 r = 0; r < block.nRighe; ++r) {
            const Riga &row = block.righe[r];
            const float y = upper - r * rowHeight;
            const float cellWidth = width / row.nCelle;
            for (U8 c = 0; c < row.nCelle; ++c) {
                const float x = left + c * cellWidth;
                if (row.celle[c].tipo == CELL_NUMERO) {
                    addNumber(row.celle[c].numero, x + cellWidth / 2, y - rowHeight / 2 - baseLine);
                }
                if (c > 0) {
                    addLine(x, y, x, y - rowHeight);
                }
            }
            if (r > 0) {
                addLine(left, y, left + width, y);
            }
        }
        HPDF_Page_SetLineWidth(m_page, 1);
        HPDF_Page_Rectangle(m_page, left, upper - height, width, height);
        HPDF_Page_Stroke(m_page);
    }

    void addNumber(quint32 number, float middle, float y)
    {
        std::array<char, 12> text{};
        std::snprintf(text.data(), text.size(), "%u", number);
        HPDF_Page_BeginText(m_page);
        HPDF_Page_SetFontAndSize(m_page, m_font, fontSize);
        HPDF_Page_TextOut(m_page, middle - HPDF_Page_TextWidth(m_page, text.data()) / 2, y, text.data());
        HPDF_Page_EndText(m_page);
    }

    void addLine(float x1, float y1, float x2, float y2)
    {
        HPDF_Page_SetLineWidth(m_page, 0);
        HPDF_Page_MoveTo(m_page, x1, y1);
        HPDF_Page_LineTo(m_page, x2, y2);
        HPDF_Page_Stroke(m_page);
    }

    HPDF_Doc m_document;
    HPDF_Font m_font;
    HPDF_Page m_page = nullptr;
};

// A line of /proc/self/status, in KB.
long processStatus(const std::string &name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(name, 0) == 0) {
            return std::strtol(line.c_str() + name.size(), nullptr, 10);
        }
    }
    return 0;
}

// What the process takes at most while it prints, above what it takes before, in KB. Measured in a process of its own:
// memory freed earlier is given back first, so that it cannot be used unseen.
long peakOfPrinting(Cartella &set)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        std::abort();
    }
    if (fork() == 0) {
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts anew
        const long before = processStatus("VmRSS:");
        print(set);
        const long growth = processStatus("VmHWM:") - before;
        _exit(write(ends[1], &growth, sizeof(growth)) == sizeof(growth) ? 0 : 1);
    }
    close(ends[1]);
    long growth = 0;
    if (read(ends[0], &growth, sizeof(growth)) != sizeof(growth)) {
        std::abort();
    }
    close(ends[0]);
    wait(nullptr);
    return growth;
}

void printing(benchmark::State &state)
{
    Cartella &set = classicSet(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        print(set);
    }
}
BENCHMARK(printing)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Repetitions(3);

void plainWriter(benchmark::State &state)
{
    const Cartella &set = classicSet(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        PlainWriter writer;
        for (const Pagina *page : set.pagine) {
            writer.addPage(*page);
        }
        writer.save("confronto.pdf");
    }
}
BENCHMARK(plainWriter)->Arg(1000)->Unit(benchmark::kMillisecond)->Repetitions(3);

void printingMemory(benchmark::State &state)
{
    constexpr int few = 1000;
    constexpr int many = 10000;
    constexpr double kilobyte = 1024.0;
    Cartella &fewPages = classicSet(few);
    Cartella &manyPages = classicSet(many);
    for (auto _ : state) {
        const long growth = peakOfPrinting(manyPages) - peakOfPrinting(fewPages);
        recordQuantity("printing peak bytes per page", static_cast<double>(growth) * kilobyte / (many - few));
    }
    recordQuantity("one kilobyte", kilobyte);
}
BENCHMARK(printingMemory)->Iterations(1)->Unit(benchmark::kMillisecond);
} // namespace
