// SPDX-License-Identifier: MIT
#include "generation/GeneraCartellaClassica.h"

#include "generation/ColumnLayout.h"
#include "generation/DefaultCell.h"
#include "generation/GUtils.h"

#include <QDebug>

#include <algorithm>
#include <optional>
#include <vector>

namespace {
constexpr qint32 defaultMaxTentativi = 1000;

// What the cells of a page will show, row by row: numbers up to nMax and, above it, marks.
class CellValues final
{
public:
    CellValues(int rows, int columns, int nMax)
        : m_columns(columns)
        , m_largest(static_cast<quint32>(nMax))
        , m_values(static_cast<size_t>(rows) * static_cast<size_t>(columns), empty())
    {
    }

    quint32 &at(int row, int column)
    {
        return m_values[static_cast<size_t>(row) * static_cast<size_t>(m_columns) + static_cast<size_t>(column)];
    }
    bool isNumber(int row, int column) { return at(row, column) <= m_largest; }

    quint32 empty() const { return m_largest + 1; }
    quint32 image() const { return m_largest + 2; }
    quint32 text() const { return m_largest + 3; }

private:
    int m_columns;
    quint32 m_largest;
    std::vector<quint32> m_values;
};

// Rows of a page whose blocks are all alike and whose rows have nColonne cells; nothing for any other page.
std::optional<int> rowsOfRegularPage(const Pagina *page, int nColonne)
{
    if (page == nullptr || page->nBlocchi == 0) {
        return std::nullopt;
    }
    const int rows = begin(*page)->nRighe;
    const bool isRegular = std::all_of(begin(*page), end(*page), [=](const Blocco &block) {
        return block.nRighe == rows &&
               std::all_of(begin(block), end(block), [=](const Riga &row) { return row.nCelle == nColonne; });
    });
    return isRegular ? std::make_optional(rows * page->nBlocchi) : std::nullopt;
}

std::vector<qint64> capacitiesOf(const std::vector<ColumnRange> &ranges)
{
    std::vector<qint64> capacities;
    capacities.reserve(ranges.size());
    for (const ColumnRange &range : ranges) {
        capacities.push_back(range.capacity());
    }
    return capacities;
}

// Gives the filled cells of each column the numbers of its range, in random order from top to bottom.
bool placeNumbers(CellValues &values, const CellLayout &layout, const std::vector<ColumnRange> &ranges, int rows)
{
    for (size_t c = 0; c < ranges.size(); ++c) {
        const int column = static_cast<int>(c);
        const auto order = GUtils::generate_X_different_numbers(static_cast<int>(ranges[c].capacity()),
                                                                static_cast<unsigned>(ranges[c].first),
                                                                static_cast<unsigned>(ranges[c].last));
        int next = 0;
        for (int row = 0; row < rows; ++row) {
            if (!layout.isFilled(row, column)) {
                continue;
            }
            if (next >= order.size()) {
                qWarning() << "GeneraCartellaClassica::generate() Index (" << next << ") out of range ("
                           << ranges[c].capacity() << ")";
                return false;
            }
            values.at(row, column) = order[next++];
        }
    }
    return true;
}

// Turns `perRow` numbers of each row into `mark`. Every row must have as many numbers left.
void placeJolly(CellValues &values, int rows, int columns, int perRow, quint32 mark)
{
    for (int row = 0; row < rows; ++row) {
        for (int i = 0; i < perRow; ++i) {
            int column = 0;
            do {
                column = nextRandom() % columns;
            } while (!values.isNumber(row, column));
            values.at(row, column) = mark;
        }
    }
}

// Writes a value into a cell; what the cell showed before stays in the fields that its new type does not use.
class CellWriter final
{
public:
    explicit CellWriter(bool withImages)
        : m_text(DefaultCell::text())
        , m_image(withImages ? DefaultCell::image() : QImage())
    {
    }

    void write(Cella &cell, quint32 value, const CellValues &marks) const
    {
        cell.font = m_newCell.font;
        cell.coloreTesto = m_newCell.coloreTesto;
        cell.coloreSfondo = m_newCell.coloreSfondo;
        if (value < marks.empty()) {
            cell.tipo = CELL_NUMERO;
            cell.numero = value;
        } else if (value == marks.image()) {
            cell.tipo = CELL_IMMAGINE;
            cell.immagine = m_image;
        } else if (value == marks.text()) {
            cell.tipo = CELL_TESTO;
            cell.testo = m_text;
        } else {
            cell.tipo = CELL_VUOTA;
        }
    }

private:
    const Cella m_newCell; // gives every cell the look of a new one
    QString m_text;
    QImage m_image;
};

void writePage(Pagina &page, CellValues &values, const CellWriter &writer)
{
    int pageRow = 0;
    for (Blocco &block : page) {
        for (Riga &row : block) {
            int column = 0;
            for (Cella &cell : row) {
                writer.write(cell, values.at(pageRow, column++), values);
            }
            ++pageRow;
        }
    }
}

bool refuse(const char *reason)
{
    qWarning() << "GeneraCartellaClassica::generate():" << reason;
    return false;
}
} // namespace

GeneraCartellaClassica::GeneraCartellaClassica()
    : maxTentativi(defaultMaxTentativi)
{
}

bool GeneraCartellaClassica::generate(Pagina *page, U8 nColonne, U8 nEstrazioni, U8 nImmagini, U8 nScritte, int nMin,
                                      int nMax)
{
    const std::optional<int> rows = rowsOfRegularPage(page, nColonne);
    if (!rows || nColonne == 0) {
        return refuse("the page is not one of equal blocks with the given columns!");
    }
    if (qint64(nEstrazioni) * *rows > qint64(nMax) - nMin + 1) {
        qWarning() << "";
        return false;
    }
    if (nMin < 0 || nImmagini + nScritte > nEstrazioni) {
        return refuse("negative numbers, or more jolly cells than filled cells!");
    }

    const std::vector<ColumnRange> ranges = columnRanges(nColonne, nMin, nMax);
    const std::optional<CellLayout> layout = findLayout({*rows, nEstrazioni, capacitiesOf(ranges)}, maxTentativi);
    if (!layout) {
        return refuse("no layout of the filled cells fits the columns!");
    }
    CellValues values(*rows, nColonne, nMax);
    if (!placeNumbers(values, *layout, ranges, *rows)) {
        return false;
    }
    placeJolly(values, *rows, nColonne, nImmagini, values.image());
    placeJolly(values, *rows, nColonne, nScritte, values.text());
    writePage(*page, values, CellWriter(nImmagini > 0));
    return true;
}
