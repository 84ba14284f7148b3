// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "generation/DefaultCell.h"
#include "mainwindow/PageTable.h"
#include "mainwindow/TabellaPagina.h"
#include "model/Positions.h"
#include "model/ReadableOn.h"
#include "msgarea/WaitCursor.h"
#include "ui_MainWindow.h"
#include "widgets/ElidedTextTips.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QScrollBar>
#include <QShortcut>
#include <QTableWidget>

namespace {
void setUpHeaders(QTableWidget *table)
{
    constexpr int defaultWidth = 70; // pixels
    constexpr int minimumWidth = 30;
    for (QHeaderView *header : {table->horizontalHeader(), table->verticalHeader()}) {
        header->setVisible(true);
        header->setCascadingSectionResizes(true);
        header->setSortIndicatorShown(false);
        header->setStretchLastSection(false);
    }
    table->horizontalHeader()->setDefaultSectionSize(defaultWidth);
    table->horizontalHeader()->setMinimumSectionSize(minimumWidth);
}

// The text colour follows, for the editor of a cell is drawn in both.
void setPageColour(QTableWidget *table, const QColor &background)
{
    QPalette palette = table->palette();
    palette.setColor(QPalette::Base, background);
    palette.setColor(QPalette::Text, readableOn(background));
    table->setPalette(palette);
}

QString cellLabel(const Selezione &selection)
{
    switch (selection.kind) {
    case Selezione::Nothing:
        return MainWindow::tr("Nessuna selezione");
    case Selezione::OneCell:
        return MainWindow::tr("Cella selezionata");
    case Selezione::Filler:
        return MainWindow::tr("Cella mancante");
    case Selezione::Several:
        break;
    }
    return MainWindow::tr("Selezione multipla");
}

QString blockLabel(const Selezione &selection)
{
    if (selection.kind == Selezione::Nothing) {
        return MainWindow::tr("Nessuna selezione");
    }
    return selection.block >= 0 ? MainWindow::tr("Blocco selezionato") : MainWindow::tr("Selezione multipla");
}

// The type of a single cell, the number of several.
QString typeText(const Selezione &selection, const Cartella &cartella)
{
    if (selection.cell != nullptr) {
        return QStringLiteral("(%1)").arg(cartella.cellType2String(selection.cell->tipo));
    }
    if (selection.kind != Selezione::Several) {
        return QString();
    }
    return QStringLiteral("(%1)").arg(selection.places);
}
} // namespace

// A new, empty, unconnected table in place of the old one, not yet in the layout nor shown.
QTableWidget *MainWindow::replaceTable()
{
    if (m_table != nullptr) {
        disconnect(m_table, nullptr, this, nullptr);
        ui->gridLayout->removeWidget(m_table);
        if (m_table == m_tableAsking) {
            // One of its signals is being handled: it only goes when that is done.
            m_table->hide();
            m_table->setObjectName(QString());
        } else {
            delete m_table;
        }
    }
    const auto cellName = [this](int row, int column) {
        const Pagina *page = shownPage();
        if (page == nullptr) {
            return QString();
        }
        return spokenCell(*page, row, column, DefaultCell::text());
    };
    m_table = new TabellaPagina(cellName, ui->centralwidget);
    m_table->setObjectName(QStringLiteral("tableWidget"));
    m_table->setLayoutDirection(Qt::LeftToRight); // as on paper
    m_table->setAccessibleName(tr("Celle della pagina"));
    m_table->setTabKeyNavigation(false); // else the keyboard cannot leave it
    m_table->setItemDelegate(new ElidedTextTips(m_table));
    setTabOrder(ui->pagina_elimina, m_table);
    m_table->setFocusPolicy(Qt::NoFocus); // nothing would show it while there are no cells
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace}) {
        auto *clear = new QShortcut(key, m_table);
        clear->setWhatsThis(tr("Svuota le celle selezionate"));
        clear->setContext(Qt::WidgetShortcut); // the editor of a cell needs these keys itself
        connect(clear, &QShortcut::activated, this, &MainWindow::clearSelectedCells);
    }
    return m_table;
}

// Null when the spin box stands on no page of the set.
Pagina *MainWindow::shownPage() const
{
    const int page = ui->pagina_corrente_spinBox->value() - 1;
    return page >= 0 && page < m_cartella->getNumPages() ? m_cartella->pagine[page] : nullptr;
}

void MainWindow::loadPagina(U16 page)
{
    if (page >= m_cartella->getNumPages()) {
        QMessageBox::warning(this, boxTitle(), tr("La cartella non contiene la pagina da visualizzare (fuori range)!"));
        return;
    }
    Pagina &shown = *m_cartella->pagine[page];
    QTableWidget *table = replaceTable();
    setUpHeaders(table);
    setPageColour(table, shown.sfondo);
    fillTable(table, shown, m_cartella->getMaxPageColSize(page), DefaultCell::text());
    connect(table, &QTableWidget::itemChanged, this, &MainWindow::tableItemChanged);
    connect(table, &QTableWidget::itemSelectionChanged, this, &MainWindow::tableItemSelectionChanged);
    table->setFocusPolicy(Qt::StrongFocus);
    ui->gridLayout->addWidget(table, 0, 0);
    table->show();
    resetSelectionPanels(shown.nBlocchi);
    updatePreview();
}

// The same page once more: what is seen of it, and the place of the keyboard, stay. Nothing is selected.
void MainWindow::reloadPage()
{
    const TablePosition current{m_table->currentRow(), m_table->currentColumn()};
    const QPoint scrolled(m_table->horizontalScrollBar()->value(), m_table->verticalScrollBar()->value());
    const bool focused = m_table->hasFocus();
    loadPagina(static_cast<U16>(ui->pagina_corrente_spinBox->value() - 1));
    m_table->setCurrentCell(current.row, current.column, QItemSelectionModel::NoUpdate);
    ui->gridLayout->activate(); // the scroll bars need the table's size
    m_table->horizontalScrollBar()->setValue(scrolled.x());
    m_table->verticalScrollBar()->setValue(scrolled.y());
    if (focused) {
        m_table->setFocus();
    }
}

void MainWindow::on_pagina_corrente_spinBox_valueChanged(int value)
{
    const int pages = m_cartella->getNumPages();
    if (!m_generated || pages == 0) {
        ui->pagina_corrente_spinBox->setValue(0);
        updateStatusBar(tr("Cartella vuota!"));
        ui->seleziona_font_button->setEnabled(false);
        return;
    }
    const int wanted = qBound(1, value, pages);
    ui->pagina_corrente_spinBox->setValue(wanted); // another value comes back here and shows the page
    if (wanted != m_pageShown) {
        const WaitCursor waiting(this);
        loadPagina(static_cast<U16>(wanted - 1));
        m_pageShown = wanted;
    }
}

void MainWindow::on_pagina_elimina_clicked()
{
    if (!requirePages()) {
        return;
    }
    const int value = ui->pagina_corrente_spinBox->value();
    m_watchedPages.forget(shownPage());
    if (value < 1 || !m_cartella->deletePage(static_cast<U16>(value - 1))) {
        QMessageBox::warning(this, boxTitle(), tr("Problema nell'eliminazione della pagina!\nPagina non eliminata."));
        return;
    }
    const int pages = m_cartella->getNumPages();
    if (pages < 2) {
        ui->gridLayout->addWidget(replaceTable(), 0, 0, Qt::AlignCenter);
        m_table->show();
    }
    m_pageShown = value + 1; // no page has it: the next one is loaded in any case
    ui->pagina_corrente_spinBox->setValue(value - 1);
    if (pages == 0) {
        m_pageShown = 0;
        resetSelectionPanels(0);
    }
    ui->pagine_lcdNumber->display(pages);
    cardSetChanged();
    updateStatusBar(tr("Pagina eliminata correttamente."));
}

QVector<TablePosition> MainWindow::selectedPositions() const
{
    const QList<QTableWidgetItem *> items = m_table->selectedItems();
    QVector<TablePosition> positions;
    positions.reserve(items.size());
    for (const QTableWidgetItem *item : items) {
        positions.append({item->row(), item->column()});
    }
    return positions;
}

Selezione MainWindow::selection() const
{
    Pagina *page = shownPage();
    if (page == nullptr) {
        return Selezione();
    }
    return selectionOf(*page, selectedPositions());
}

void MainWindow::tableItemSelectionChanged()
{
    showSelection(selection());
}

// For a table just loaded, of a page with this many blocks.
void MainWindow::resetSelectionPanels(int blocks)
{
    ui->blocco_totn->display(blocks);
    showSelection(Selezione());
    ui->seleziona_font_button->setEnabled(false);
    showFontText(QString());
    disableLineWidths();
}

// Without a selection, the switches that reach all cells or blocks keep what they enabled.
void MainWindow::showSelection(const Selezione &selection)
{
    const bool nothing = selection.kind == Selezione::Nothing;
    ui->cella_riga->display(selection.row + 1);
    ui->cella_colonna->display(selection.column + 1);
    ui->cella_label->setText(cellLabel(selection));
    ui->cella_type->setText(typeText(selection, *m_cartella));
    ui->buttSelezionaImmagine->setEnabled(selection.cell != nullptr && selection.cell->tipo == CELL_IMMAGINE);
    ui->blocco_n->display(selection.block + 1);
    ui->blocco_label->setText(blockLabel(selection));
    for (QWidget *button : {ui->colorabloccolineaesterna, ui->colorabloccolineainterna, ui->colorabloccosfondo}) {
        button->setEnabled(nothing || selection.block >= 0);
    }
    if (!nothing || !ui->applica_tutte_celle->isChecked()) {
        ui->seleziona_font_button->setEnabled(!nothing);
        showFontOf(selection);
    }
    if (!nothing || !ui->applica_tutti_blocchi_checkBox->isChecked()) {
        disableLineWidths();
    }
}

void MainWindow::disableLineWidths()
{
    ui->dimlineaext_spin->setEnabled(false);
    ui->dimlineaint_spin->setEnabled(false);
}

void MainWindow::showFontOf(const Selezione &selection)
{
    if (selection.cell != nullptr) {
        showFont(selection.cell->font);
    } else {
        showFontText(selection.kind == Selezione::Several ? tr("Selezione multipla") : QString());
    }
}

// Names a font, drawn in itself. The label's height is limited: its tool tip tells what a very large font hides.
void MainWindow::showFont(const QFont &font)
{
    const QString text = QStringLiteral("%1 %2").arg(font.family(), QString::number(font.pointSize()));
    ui->font_info->setText(text);
    ui->font_info->setFont(font);
    ui->font_info->setToolTip(text);
}

void MainWindow::showFontText(const QString &text)
{
    ui->font_info->setText(text);
    ui->font_info->setFont(QFont());
    ui->font_info->setToolTip(tr("Carattere della cella"));
}
