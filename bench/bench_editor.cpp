// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include "generation/GeneraCartellaClassica.h"
#include "personale/EditPersonale.h"
#include "personale/GeneraCartellaPersonale.h"

#include <QApplication>
#include <QCheckBox>
#include <QSpinBox>

#include <algorithm>
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

double creatingBare()
{
    BareBoxes boxes;
    const double seconds = processorTime([&boxes]() { boxes = createBareBoxes(); });
    deliverEvents();
    return seconds;
}

double deletingBare()
{
    BareBoxes boxes = createBareBoxes();
    deliverEvents();
    return processorTime([&boxes]() { boxes.clear(); });
}

// Until the window is on the screen.
double openingEditor()
{
    Cartella cartella;
    std::unique_ptr<EditPersonale> editor;
    return processorTime([&editor, &cartella]() {
        editor = std::make_unique<EditPersonale>(nullptr, &cartella, rows, columns, manyPages, 1, 90, U8(0));
        deliverEvents();
    });
}

double closingEditor()
{
    Cartella cartella;
    auto editor = std::make_unique<EditPersonale>(nullptr, &cartella, rows, columns, manyPages, 1, 90, U8(0));
    deliverEvents();
    return processorTime([&editor]() { editor.reset(); });
}

// To and fro between the first and the last of the given number of pages, painted each time.
Quantity switchingPages(U16 pages)
{
    return [pages]() {
        constexpr int times = 20;
        Cartella cartella;
        const EditPersonale editor(nullptr, &cartella, rows, columns, pages, 1, 90, 0);
        deliverEvents();
        auto *page = editor.findChild<QSpinBox *>(QStringLiteral("pageNumSpinBox"));
        return processorTime([page, pages]() {
            for (int i = 0; i < times; ++i) {
                page->setValue(pages);
                deliverEvents();
                page->setValue(1);
                deliverEvents();
            }
        });
    };
}

// All cells of one page, side x side, ticked and unticked.
Quantity togglingAll(U8 side)
{
    return [side]() {
        Cartella cartella;
        const EditPersonale editor(nullptr, &cartella, side, side, 1, 1, 90, 0);
        editor.findChild<QAbstractButton *>(QStringLiteral("selezione_tutte_ckbox"))->setChecked(true);
        deliverEvents();
        return processorTime([&editor]() {
            for (const char *button : {"riempiButton", "svuotaButton"}) {
                editor.findChild<QAbstractButton *>(QLatin1String(button))->click();
            }
        });
    };
}

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

double creatingPerColumn()
{
    std::vector<PaginaPersonale> pages = drawnPages();
    Cartella cartella;
    return processorTime([&pages, &cartella]() {
        QString errore;
        if (!GeneraCartellaPersonale().generaPagine(manyPages, pages, &cartella, 1, 90, errore)) {
            qFatal("pages not created");
        }
    });
}

void tellNumbers(const Pagina &page, QCheckBox *boxes)
{
    for (const Riga &row : *begin(page)) {
        for (const Cella &cell : row) {
            if (cell.tipo == CELL_NUMERO) {
                boxes++->setText(QString::number(cell.numero));
            }
        }
    }
}

// As many pages of the classic generator, each of its numbers told to a bare check box that is ticked.
double creatingClassic()
{
    constexpr int drawn = 5; // per row
    BareBoxes boxes = createBareBoxes();
    for (const auto &page : boxes) {
        std::for_each_n(page.get(), cellsPerPage, [](QCheckBox &box) { box.setChecked(true); });
    }
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
    std::optional<Cartella> cartella;
    return processorTime([&]() {
        cartella.emplace(manyPages, U8(1), rows, columns);
        for (int page = 0; page < manyPages; ++page) {
            if (!GeneraCartellaClassica().generate(cartella->pagine[page], columns, drawn, 0, 0, 1, 90)) {
                qFatal("a page was not filled");
            }
            tellNumbers(*cartella->pagine[page], boxes[static_cast<size_t>(page)].get());
        }
    });
}

const Ratio opening("opening the editor, 1000 pages of 18 x 9 / bare check boxes", openingEditor, creatingBare,
                    Ratio::Bound::AtMost, 3, 5);
const Ratio closing("closing it / deleting bare check boxes", closingEditor, deletingBare, Ratio::Bound::AtMost, 3, 5);
const Ratio switching("switching pages, 1000 / 2 pages", switchingPages(manyPages), switchingPages(2),
                      Ratio::Bound::AtMost, 1.5, 5);
const Ratio toggling("ticking and unticking all cells, 60 x 60 / 30 x 30", togglingAll(60), togglingAll(30),
                     Ratio::Bound::AtMost, 8, 5);
const Ratio creating("creating 1000 pages per column / classic, told to bare boxes", creatingPerColumn, creatingClassic,
                     Ratio::Bound::AtMost, 2, 5);
} // namespace
