// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include "generation/GeneraCartellaClassica.h"
#include "personale/EditPersonale.h"
#include "personale/GeneraCartellaPersonale.h"

#include <QApplication>
#include <QCheckBox>
#include <QSpinBox>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

// The manual mapping editor with many pages, each a grid of 18 x 9 cells, against the same number of bare check boxes
// and against the classic generator.

namespace {
constexpr U8 rows = 18;
constexpr U8 columns = 9;
constexpr U16 manyPages = 1000;
constexpr size_t cellsPerPage = size_t{rows} * columns;

using BareBoxes = std::vector<std::unique_ptr<QCheckBox[]>>;

BareBoxes createBareBoxes()
{
    BareBoxes boxes(manyPages);
    for (auto &page : boxes) {
        page = std::make_unique<QCheckBox[]>(cellsPerPage);
    }
    return boxes;
}

// Boxes deleted while their events wait would take a time that grows with the square of their number.
void deliverEvents()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

template<typename Action>
void timed(benchmark::State &state, Action action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(seconds.count());
}

void createBare(benchmark::State &state)
{
    for (auto _ : state) {
        BareBoxes boxes;
        timed(state, [&boxes]() { boxes = createBareBoxes(); });
        deliverEvents();
    }
}
BENCHMARK(createBare)->UseManualTime()->Iterations(1)->Repetitions(7)->Unit(benchmark::kMillisecond);

void deleteBare(benchmark::State &state)
{
    for (auto _ : state) {
        BareBoxes boxes = createBareBoxes();
        deliverEvents();
        timed(state, [&boxes]() { boxes.clear(); });
    }
}
BENCHMARK(deleteBare)->UseManualTime()->Iterations(1)->Repetitions(7)->Unit(benchmark::kMillisecond);

// Until the window is on the screen.
void openEditor(benchmark::State &state)
{
    Cartella cartella;
    for (auto _ : state) {
        std::unique_ptr<EditPersonale> editor;
        timed(state, [&editor, &cartella]() {
            editor = std::make_unique<EditPersonale>(nullptr, &cartella, rows, columns, manyPages, 1, 90, U8(0));
            deliverEvents();
        });
    }
}
BENCHMARK(openEditor)->UseManualTime()->Iterations(1)->Repetitions(7)->Unit(benchmark::kMillisecond);

void closeEditor(benchmark::State &state)
{
    Cartella cartella;
    for (auto _ : state) {
        auto editor = std::make_unique<EditPersonale>(nullptr, &cartella, rows, columns, manyPages, 1, 90, U8(0));
        deliverEvents();
        timed(state, [&editor]() { editor.reset(); });
    }
}
BENCHMARK(closeEditor)->UseManualTime()->Iterations(1)->Repetitions(7)->Unit(benchmark::kMillisecond);

// To and fro between the first and the last of the given number of pages, painted each time.
void switchPage(benchmark::State &state)
{
    Cartella cartella;
    const auto pages = static_cast<U16>(state.range(0));
    const EditPersonale editor(nullptr, &cartella, rows, columns, pages, 1, 90, 0);
    deliverEvents();
    auto *page = editor.findChild<QSpinBox *>(QStringLiteral("pageNumSpinBox"));
    for (auto _ : state) {
        page->setValue(pages);
        deliverEvents();
        page->setValue(1);
        deliverEvents();
    }
}
BENCHMARK(switchPage)->Arg(2)->Arg(manyPages)->Unit(benchmark::kMillisecond);

// As many numbers as the classic generator gives: every column uses up its range of 1 to 90.
std::vector<PaginaPersonale> drawnPages()
{
    std::vector<PaginaPersonale> pages(manyPages);
    for (PaginaPersonale &page : pages) {
        page.nRighe = rows;
        page.nColonne = columns;
        page.ordinaPerColonne = 1;
        page.chk = std::make_unique<PersonaleChkBox[]>(cellsPerPage);
        for (size_t column = 0; column < columns; ++column) {
            const size_t numbers = column == 0 ? 9 : column == columns - 1 ? 11 : 10;
            for (size_t row = 0; row < numbers; ++row) {
                PersonaleChkBox &box = page.chk[row * columns + column];
                box.setTipo(CELL_NUMERO);
                box.setChecked(true);
            }
        }
    }
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
    return pages;
}

void createPerColumn(benchmark::State &state)
{
    std::vector<PaginaPersonale> pages = drawnPages();
    GeneraCartellaPersonale generatore;
    for (auto _ : state) {
        std::optional<Cartella> cartella(std::in_place);
        QString errore;
        bool created = false;
        timed(state, [&]() { created = generatore.generaPagine(manyPages, pages, &*cartella, 1, 90, errore); });
        if (!created) {
            state.SkipWithError("pages not created");
        }
        cartella.reset();
    }
}
BENCHMARK(createPerColumn)->UseManualTime()->Iterations(1)->Repetitions(7)->Unit(benchmark::kMillisecond);

// As many pages of the classic generator, each of its numbers told to a bare check box that is ticked.
void createClassic(benchmark::State &state)
{
    constexpr int drawn = 5; // per row
    BareBoxes boxes = createBareBoxes();
    for (const auto &page : boxes) {
        std::for_each_n(page.get(), cellsPerPage, [](QCheckBox &box) { box.setChecked(true); });
    }
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
    GeneraCartellaClassica generatore;
    for (auto _ : state) {
        std::optional<Cartella> cartella;
        bool created = true;
        timed(state, [&]() {
            cartella.emplace(manyPages, U8(1), rows, columns);
            for (int page = 0; page < manyPages; ++page) {
                created = generatore.generate(cartella->pagine[page], columns, drawn, 0, 0, 1, 90) && created;
                QCheckBox *box = boxes[static_cast<size_t>(page)].get();
                for (const Riga &row : *begin(*cartella->pagine[page])) {
                    for (const Cella &cell : row) {
                        if (cell.tipo == CELL_NUMERO) {
                            box++->setText(QString::number(cell.numero));
                        }
                    }
                }
            }
        });
        if (!created) {
            state.SkipWithError("pages not created");
        }
    }
}
BENCHMARK(createClassic)->UseManualTime()->Iterations(1)->Repetitions(7)->Unit(benchmark::kMillisecond);

const Ratio opening("opening the editor, 1000 pages of 18 x 9 / bare check boxes", "openEditor", "createBare",
                    Ratio::Bound::AtMost, 3);
const Ratio closing("closing it / deleting bare check boxes", "closeEditor", "deleteBare", Ratio::Bound::AtMost, 3);
const Ratio switching("switching pages, 1000 / 2 pages", "switchPage/1000", "switchPage/2", Ratio::Bound::AtMost, 1.5);
const Ratio creating("creating 1000 pages per column / classic, told to bare boxes", "createPerColumn", "createClassic",
                     Ratio::Bound::AtMost, 2);
} // namespace
