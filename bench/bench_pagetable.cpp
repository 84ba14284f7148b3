// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include "mainwindow/MainWindow.h"

#include <QCoreApplication>
#include <QSpinBox>
#include <QTableWidget>

#include <memory>
#include <vector>

// Loading the largest page that can be set up: the old table goes, the new one is filled, laid out and painted. The
// baseline makes a table of as many items by hand, in place of the one before, and shows it nowhere; the stricter one
// only makes the items, in place of those before, and puts them into no table.

namespace {
constexpr U8 blocks = 99;
constexpr U8 rows = 9;
constexpr U8 cells = 99;

void fillWithNumbers(Pagina &page)
{
    quint32 number = 0;
    for (size_t b = 0; b < blocks; ++b) {
        for (size_t r = 0; r < rows; ++r) {
            for (size_t c = 0; c < cells; ++c) {
                Cella &cell = page.blocchi[b].righe[r].celle[c];
                cell.tipo = CELL_NUMERO;
                cell.numero = ++number;
            }
        }
    }
}

// Lives as long as the process: the end of a window would leave the memory in pieces for what is measured next.
MainWindow *windowWithLargestPage()
{
    auto *window = new MainWindow;
    window->findChild<QSpinBox *>(QStringLiteral("box_classica_numeropagine"))->setValue(1);
    window->generate(false);
    window->cardSet()->generateBlock(blocks, rows, cells);
    window->cardSet()->deletePage(0);
    fillWithNumbers(*window->cardSet()->pagine[0]);
    return window;
}

double loadingPage()
{
    static MainWindow *const window = windowWithLargestPage();
    return processorTime([]() {
        window->loadPagina(0);
        QCoreApplication::processEvents(); // lays out and paints
    });
}

// The caller owns the item.
QTableWidgetItem *bareItem(int number)
{
    auto *item = new QTableWidgetItem(QString::number(number));
    item->setTextAlignment(Qt::AlignCenter);
    item->setBackground(QColor(Qt::white));
    item->setForeground(QColor(Qt::black));
    return item;
}

std::unique_ptr<QTableWidget> bareTable()
{
    auto table = std::make_unique<QTableWidget>(blocks * rows, cells);
    int number = 0;
    for (int row = 0; row < blocks * rows; ++row) {
        for (int column = 0; column < cells; ++column) {
            table->setItem(row, column, bareItem(++number));
        }
    }
    return table;
}

double fillingBareTable()
{
    auto table = bareTable();
    return processorTime([&table]() {
        table.reset();
        table = bareTable();
    });
}

using BareItems = std::vector<std::unique_ptr<QTableWidgetItem>>;

BareItems bareItems()
{
    constexpr int count = blocks * rows * cells;
    BareItems items;
    items.reserve(count);
    for (int number = 1; number <= count; ++number) {
        items.emplace_back(bareItem(number));
    }
    return items;
}

double makingBareItems()
{
    BareItems items = bareItems();
    return processorTime([&items]() {
        items.clear();
        items = bareItems();
    });
}

const Ratio loading("loading a page of 99 x 9 x 99 cells / a table of bare items", loadingPage, fillingBareTable,
                    Ratio::Bound::AtMost, 1.5);
const Ratio loadingStrict("loading a page of 99 x 9 x 99 cells / its items alone", loadingPage, makingBareItems,
                          Ratio::Bound::AtMost, 1);
} // namespace
