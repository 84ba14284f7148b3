// SPDX-License-Identifier: MIT
#include "mainwindow/PageTable.h"

#include "generation/GUtils.h"
#include "mainwindow/TabellaPagina.h"
#include "model/Positions.h"
#include "model/ReadableOn.h"
#include "model/SpokenContent.h"
#include "model/Types.h"

#include <QBrush>
#include <QCoreApplication>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTableWidgetItem>

#include <algorithm>

namespace {
class PageTableText
{
    Q_DECLARE_TR_FUNCTIONS(PageTable)
};

// Asks its table what a screen reader says of it.
class PageItem final : public QTableWidgetItem
{
public:
    using QTableWidgetItem::QTableWidgetItem;
    explicit PageItem(const QTableWidgetItem &other)
        : QTableWidgetItem(other)
    {
    }

    QVariant data(int role) const override
    {
        const auto *table = role == Qt::AccessibleTextRole ? dynamic_cast<TabellaPagina *>(tableWidget()) : nullptr;
        if (table == nullptr) {
            return QTableWidgetItem::data(role);
        }
        return table->cellName(row(), column());
    }
};

QTableWidgetItem fillerItem()
{
    QTableWidgetItem filler(QStringLiteral("X"));
    filler.setTextAlignment(Qt::AlignCenter);
    filler.setBackground(QColor(Qt::lightGray));
    filler.setForeground(readableOn(Qt::lightGray));
    filler.setFlags(filler.flags() & ~Qt::ItemIsEditable);
    return filler;
}

// Makes the items of cells. Neighbours mostly look alike: copies of one item share its data.
class CellItems final
{
public:
    explicit CellItems(const QString &emptyText)
        : m_emptyText(emptyText)
    {
        m_alike.setTextAlignment(Qt::AlignCenter);
        wear(Cella());
    }

    // The caller owns the item.
    QTableWidgetItem *make(const Cella &cell)
    {
        if (cell.coloreSfondo != m_background || cell.coloreTesto != m_foreground) {
            wear(cell);
        }
        auto *item = new PageItem(m_alike);
        const QString text = cellText(cell, m_emptyText);
        if (!text.isEmpty()) {
            item->setText(text);
        }
        const QString tip = cellTip(cell);
        if (!tip.isEmpty()) {
            item->setToolTip(tip);
        }
        return item;
    }

private:
    void wear(const Cella &cell)
    {
        m_background = cell.coloreSfondo;
        m_foreground = cell.coloreTesto;
        m_alike.setBackground(m_background);
        m_alike.setForeground(m_foreground);
    }

    QString m_emptyText;
    QTableWidgetItem m_alike;
    QColor m_background;
    QColor m_foreground;
};
} // namespace

QString cellText(const Cella &cell, const QString &emptyText)
{
    switch (cell.tipo) {
    case CELL_NUMERO:
        return QString::number(cell.numero);
    case CELL_TESTO:
        return cell.testo.isEmpty() ? emptyText : cell.testo;
    case CELL_IMMAGINE:
        return QStringLiteral("IMG");
    case CELL_VUOTA:
        return QString();
    }
    qFatal("MainWindow::loadPagina() - CELL_VALUE type unknown ERROR!");
}

QString cellTip(const Cella &cell)
{
    const bool withoutPicture = cell.tipo == CELL_IMMAGINE && cell.immagine.isNull();
    return withoutPicture ? PageTableText::tr("L'immagine di base non può essere letta.") : QString();
}

QString spokenCell(const Pagina &page, int row, int column, const QString &emptyText)
{
    const std::optional<RowPosition> position = rowPosition(page, row);
    const Cella *cell = cellAt(page, row, column);
    if (!position) {
        return QString();
    }
    return PageTableText::tr("blocco %1, riga %2, colonna %3, %4")
        .arg(QString::number(position->block + 1), QString::number(position->row + 1), QString::number(column + 1),
             cell != nullptr ? spokenContent(cell->tipo, cellText(*cell, emptyText))
                             : PageTableText::tr("cella mancante"));
}

std::optional<quint32> typedNumber(const QString &text)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    if (text.isEmpty() || text.size() > GUtils::numCifre(highestNumber) ||
        !std::all_of(text.cbegin(), text.cend(), isDigit)) {
        return std::nullopt;
    }
    return text.toUInt();
}

void fillTable(QTableWidget *table, const Pagina &page, int columns, const QString &emptyText)
{
    table->setColumnCount(columns);
    table->setRowCount(tableRowCount(page));

    // Nobody looks yet: telling the view of each item would only cost time.
    const QSignalBlocker silent(table->model());
    CellItems items(emptyText);
    const QTableWidgetItem filler = fillerItem();
    int tableRow = 0;
    for (const Blocco &block : page) {
        for (const Riga &row : block) {
            int column = 0;
            for (const Cella &cell : row) {
                table->setItem(tableRow, column++, items.make(cell));
            }
            while (column < columns) {
                table->setItem(tableRow, column++, new PageItem(filler));
            }
            ++tableRow;
        }
    }
}
