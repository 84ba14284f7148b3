// SPDX-License-Identifier: MIT
#include "personale/GeneraCartellaPersonale.h"

#include "generation/ColumnLayout.h"
#include "generation/DefaultCell.h"
#include "generation/GUtils.h"
#include "model/Positions.h"

#include <cmath>
#include <optional>

namespace {
using Range = QPair<int, int>; // inclusive

struct ImpossibleColumn
{
    int column; // 0-based
    int rangeSize;
};

QVector<int> tickedNumbersPerColumn(const PaginaPersonale &schema)
{
    QVector<int> wanted(schema.nColonne, 0);
    for (int row = 0; row < schema.nRighe; ++row) {
        for (int column = 0; column < schema.nColonne; ++column) {
            wanted[column] += schema.cell(row, column).isTickedNumber() ? 1 : 0;
        }
    }
    return wanted;
}

// The numbers are used from the end; 0 when there are fewer than hoped for.
unsigned numberAt(const QVector<unsigned> &numbers, int index)
{
    return numbers.value(index, 0);
}

// Gives a ticked cell its type and what a new cell of that type shows; a number cell, the number at the next lower
// index.
void fillCell(Cella &cell, PersonaleChkBox &box, const QVector<unsigned> &numbers, int &remaining)
{
    cell.tipo = box.tipo;
    if (box.tipo == CELL_NUMERO) {
        cell.numero = numberAt(numbers, --remaining);
        box.setText(QString::number(cell.numero));
    } else if (box.tipo == CELL_TESTO) {
        cell.testo = DefaultCell::text();
    } else if (box.tipo == CELL_IMMAGINE) {
        cell.immagine = DefaultCell::image();
    }
}

std::optional<ImpossibleColumn> setClassicRanges(const QVector<int> &wanted, QVector<Range> &ranges)
{
    int column = 0;
    for (const ColumnRange &range : rangesByTens(ranges.size())) {
        ranges[column] = Range(range.first, range.last);
        if (wanted[column] > range.capacity()) {
            return ImpossibleColumn{column, static_cast<int>(range.capacity())};
        }
        ++column;
    }
    return std::nullopt;
}

// Equal ranges of the rounded width; the last one then ends at nmax, and is checked at both its sizes.
std::optional<ImpossibleColumn> setEqualRanges(const QVector<int> &wanted, int nmin, int nmax, QVector<Range> &ranges)
{
    const auto available = static_cast<quint32>(static_cast<qint64>(nmax) + 1 - nmin);
    const auto step = static_cast<qint64>(std::floor(static_cast<double>(available) / ranges.size() + 0.5));
    for (int column = 0; column < ranges.size(); ++column) {
        const qint64 first = nmin + column * step;
        ranges[column] = Range(static_cast<int>(first), static_cast<int>(first + step - 1));
        if (wanted[column] > step) {
            return ImpossibleColumn{column, static_cast<int>(step)};
        }
    }
    const int last = ranges.size() - 1;
    ranges[last].second = nmax;
    const qint64 size = static_cast<qint64>(nmax) - ranges[last].first + 1;
    if (wanted[last] > size) {
        return ImpossibleColumn{last, static_cast<int>(size)};
    }
    return std::nullopt;
}

std::optional<ImpossibleColumn> setRanges(const QVector<int> &wanted, int nmin, int nmax, QVector<Range> &ranges)
{
    return isClassic(ranges.size(), nmin, nmax) ? setClassicRanges(wanted, ranges)
                                                : setEqualRanges(wanted, nmin, nmax, ranges);
}

// Past the last page of the run that starts at `first`: pages of the same size.
size_t endOfRun(const std::vector<PaginaPersonale> &pages, size_t first, size_t pageCount)
{
    size_t end = first + 1;
    while (end < pageCount && pages[end].nColonne == pages[first].nColonne &&
           pages[end].nRighe == pages[first].nRighe) {
        ++end;
    }
    return end;
}
} // namespace

bool GeneraCartellaPersonale::generaPagine(U16 pageCount, std::vector<PaginaPersonale> &pages, Cartella *cartella,
                                           int nmin, int nmax, QString &errore)
{
    if (pageCount == 0) {
        errore += tr("Nessuna pagina da generare!");
        return false;
    }
    size_t first = 0;
    while (first < pageCount) {
        const size_t end = endOfRun(pages, first, pageCount);
        const int length = static_cast<int>(end - first);
        if (!appendPagine(length, pages[first], cartella, errore)) {
            return false;
        }
        int target = cartella->pagine.size() - length;
        for (; first < end; ++first, ++target) {
            PaginaPersonale &schema = pages[first];
            Pagina *pagina = cartella->pagine[target];
            const bool filled = schema.ordinaPerColonne != 0 ? riempiPerColonne(pagina, schema, nmin, nmax, errore)
                                                             : riempiPagina(pagina, schema, nmin, nmax, errore);
            if (!filled) {
                return false;
            }
        }
    }
    return true;
}

// Appends empty pages of one block, of the size of `schema`.
bool GeneraCartellaPersonale::appendPagine(int pageCount, const PaginaPersonale &schema, Cartella *cartella,
                                           QString &errore) const
{
    Cartella temporary(static_cast<quint16>(pageCount), 1, schema.nRighe, schema.nColonne);
    const std::optional<int> refused = handOverPages(temporary, *cartella);
    if (refused) {
        errore += messaggioPagina(*refused);
    }
    return !refused;
}

bool GeneraCartellaPersonale::riempiPagina(Pagina *pagina, PaginaPersonale &schema, int nmin, int nmax, QString &errore)
{
    int remaining = schema.tickedNumbers();
    if (remaining == 0) {
        errore += tr("Nessun numero generato!");
    }
    const QVector<unsigned> numbers =
        GUtils::generate_X_different_numbers(remaining, static_cast<unsigned>(nmin), static_cast<unsigned>(nmax));
    for (int row = 0; row < schema.nRighe; ++row) {
        for (int column = 0; column < schema.nColonne; ++column) {
            PersonaleChkBox &box = schema.cell(row, column);
            if (box.isChecked()) {
                fillCell(*cellAt(*pagina, row, column), box, numbers, remaining);
            }
        }
    }
    return true;
}

bool GeneraCartellaPersonale::riempiPerColonne(Pagina *pagina, PaginaPersonale &schema, int nmin, int nmax,
                                               QString &errore)
{
    if (schema.nColonne == 0) {
        return true; // no cells
    }
    QVector<int> wanted = tickedNumbersPerColumn(schema);
    QVector<Range> ranges(schema.nColonne);
    if (const auto impossible = setRanges(wanted, nmin, nmax, ranges)) {
        errore += messaggioColonna(impossible->column, wanted, ranges, impossible->rangeSize);
        return false;
    }
    for (int column = 0; column < schema.nColonne; ++column) {
        QVector<unsigned> numbers;
        if (wanted[column] > 0) {
            numbers = GUtils::generate_X_different_numbers(wanted[column], static_cast<unsigned>(ranges[column].first),
                                                           static_cast<unsigned>(ranges[column].second));
        }
        for (int row = 0; row < schema.nRighe; ++row) {
            PersonaleChkBox &box = schema.cell(row, column);
            if (box.isChecked()) {
                fillCell(*cellAt(*pagina, row, column), box, numbers, wanted[column]);
            }
        }
    }
    return true;
}

QString GeneraCartellaPersonale::messaggioColonna(int colonna, const QVector<int> &wanted,
                                                  const QVector<QPair<int, int>> &ranges, int rangeSize) const
{
    if (colonna < 0) {
        return QStringLiteral("?");
    }
    return tr("Genera per colonne:\nImpossibile generare %1 numeri sulla colonna n^ %2\nLa colonna vorrebbe %3 numeri "
              "diversi tra %4 e %5\nma cio' risulta impossibile in quanto il range e' composto da %6 numeri.")
        .arg(wanted[colonna])
        .arg(colonna + 1)
        .arg(wanted[colonna])
        .arg(ranges[colonna].first)
        .arg(ranges[colonna].second)
        .arg(rangeSize);
}

QString GeneraCartellaPersonale::messaggioPagina(int index) const
{
    return tr("Generazione numeri:\nErrore durante l'aggiunta della pagina %i.").arg(index);
}
