// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "msgarea/WaitCursor.h"
#include "ui_MainWindow.h"

#include <QColorDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTableWidget>

namespace {
// The font as it is really drawn, by the names that the font dialog lists: in place of a family or style that it does
// not list, it chooses just any, such as bold.
QFont listedFont(QFont font)
{
    if (!QFontDatabase().families().contains(font.family())) {
        font.setFamily(QFontInfo(font).family());
    }
    font.setStyleName(QFontInfo(font).styleName());
    return font;
}
} // namespace

QVector<Pagina *> MainWindow::pagesInRange() const
{
    return reachedPages(m_cartella->pagine, ui->pagina_corrente_spinBox->value() - 1,
                        ui->applica_tutte_pagine_checkBox->isChecked());
}

// Whether a command has what it needs; the user is told when it has not.
bool MainWindow::require(bool condition, const QString &refusal)
{
    if (!condition) {
        updateStatusBar(refusal);
    }
    return condition;
}

bool MainWindow::requirePages()
{
    return require(m_cartella->getNumPages() > 0, tr("La cartella è vuota!"));
}

bool MainWindow::requireSelection()
{
    return requirePages() && require(selection().kind != Selezione::Nothing, tr("Nessun elemento selezionato!"));
}

bool MainWindow::requireBlock()
{
    const bool allBlocks = ui->applica_tutti_blocchi_checkBox->isChecked();
    return requirePages() && require(allBlocks || selection().block >= 0, tr("Nessun elemento selezionato!"));
}

// The next choice of colour reaches this slot and no other, whichever command opened the picker before. The title of
// the picker says what the button colours.
void MainWindow::openColourPicker(const QWidget *button, void (MainWindow::*colouringSlot)(QColor))
{
    disconnectColourPicker();
    connect(m_colorDialog, &QColorDialog::colorSelected, this, colouringSlot);
    m_colorDialog->setWindowTitle(button->toolTip());
    m_colorDialog->show();
}

// No command waits for a colour any more.
void MainWindow::disconnectColourPicker()
{
    disconnect(m_colorDialog, &QColorDialog::colorSelected, this, nullptr);
}

// Changes records and shows the page anew, as one step that is no editing of cells.
void MainWindow::recolour(const std::function<void()> &change)
{
    const QScopedValueRollback<bool> guard(m_editGuard, true);
    m_colorDialog->hide(); // it tells of the colour before it closes
    letClosedDialogsDisappear();
    const WaitCursor waiting(this);
    change();
    cardSetChanged();
    if (shownPage() != nullptr) {
        reloadPage();
    }
}

void MainWindow::on_colorapaginasfondo_clicked()
{
    if (requirePages()) {
        openColourPicker(ui->colorapaginasfondo, &MainWindow::coloraPaginaSfondo);
    }
}

void MainWindow::coloraPaginaSfondo(QColor color)
{
    disconnectColourPicker();
    if (!requirePages()) {
        return;
    }
    recolour([this, color]() {
        for (Pagina *page : pagesInRange()) {
            page->sfondo = color;
        }
    });
}

void MainWindow::on_colorabloccosfondo_clicked()
{
    if (requireBlock()) {
        openColourPicker(ui->colorabloccosfondo, &MainWindow::coloraBloccoSfondo);
    }
}

void MainWindow::coloraBloccoSfondo(QColor color)
{
    disconnectColourPicker();
    if (!requireBlock()) {
        return;
    }
    recolour([this, color]() {
        colourBlocks(pagesInRange(), selection().block, ui->applica_tutti_blocchi_checkBox->isChecked(), color);
    });
    updateStatusBar(tr("Modifica colore sfondo blocchi applicata."));
}

QString MainWindow::lineColoursHaveNoEffect()
{
    return tr("Il colore delle linee non ha ancora effetto!");
}

void MainWindow::on_colorabloccolineaesterna_clicked()
{
    if (requirePages()) {
        openColourPicker(ui->colorabloccolineaesterna, &MainWindow::coloraBloccoLineaEsterna);
        updateStatusBar(lineColoursHaveNoEffect());
    }
}

// The colours of the block lines are not stored yet.
void MainWindow::coloraBloccoLineaEsterna(QColor)
{
    disconnectColourPicker();
}

void MainWindow::on_colorabloccolineainterna_clicked()
{
    if (requirePages()) {
        openColourPicker(ui->colorabloccolineainterna, &MainWindow::coloraBloccoLineaInterna);
        updateStatusBar(lineColoursHaveNoEffect());
    }
}

void MainWindow::coloraBloccoLineaInterna(QColor)
{
    disconnectColourPicker();
}

void MainWindow::on_coloracellatesto_clicked()
{
    if (requireSelection()) {
        openColourPicker(ui->coloracellatesto, &MainWindow::coloraCellaTesto);
    }
}

void MainWindow::coloraCellaTesto(QColor color)
{
    disconnectColourPicker();
    recolourCells(&Cella::coloreTesto, color, tr("Modifica colore testo cella applicata."));
}

void MainWindow::on_coloracellasfondo_clicked()
{
    if (requireSelection()) {
        openColourPicker(ui->coloracellasfondo, &MainWindow::coloraCellaSfondo);
    }
}

void MainWindow::coloraCellaSfondo(QColor color)
{
    disconnectColourPicker();
    recolourCells(&Cella::coloreSfondo, color, tr("Modifica colore sfondo cella applicata."));
}

void MainWindow::recolourCells(QColor Cella::*part, const QColor &colour, const QString &done)
{
    if (!requireSelection()) {
        return;
    }
    bool complete = true;
    recolour([&]() { complete = changeSelectedCells([&](Cella &cell) { cell.*part = colour; }); });
    warnOfSkippedCells(complete);
    updateStatusBar(done);
}

// False when another page lacked one of the cells.
bool MainWindow::changeSelectedCells(const std::function<void(Cella &)> &change)
{
    const WaitCursor waiting(this);
    return changeCells(m_cartella->pagine, ui->pagina_corrente_spinBox->value() - 1, selectedPositions(),
                       ui->applica_tutte_celle->isChecked(), change);
}

void MainWindow::warnOfSkippedCells(bool complete)
{
    if (!complete) {
        QMessageBox::warning(this, tr("Attenzione"),
                             tr("Errore: Le pagine hanno dimensioni diverse.\nAlcune celle sono state omesse!"));
    }
}

void MainWindow::on_pagina_applica_clicked()
{
    if (!requirePages()) {
        return;
    }
    for (Pagina *page : pagesInRange()) {
        page->spazioBlocchi = static_cast<float>(ui->spazio_blocchi_spin->value());
    }
    cardSetChanged();
    updateStatusBar(tr("Modifica applicata."));
}

void MainWindow::on_blocco_applica_clicked()
{
    requirePages();
}

void MainWindow::on_cella_applica_clicked()
{
    requirePages();
}

void MainWindow::on_applica_tutte_celle_clicked(bool checked)
{
    if (checked) {
        ui->seleziona_font_button->setEnabled(true);
        showFont(m_currentFont);
    } else {
        tableItemSelectionChanged();
    }
}

void MainWindow::on_applica_tutti_blocchi_checkBox_clicked(bool checked)
{
    if (checked || selection().block < 0) {
        disableLineWidths();
    }
}

void MainWindow::on_seleziona_font_button_clicked()
{
    bool chosen = false;
    const QFont font = QFontDialog::getFont(&chosen, listedFont(m_currentFont), this);
    if (!chosen) {
        return;
    }
    letClosedDialogsDisappear();
    m_currentFont = font;
    const bool complete = changeSelectedCells([&font](Cella &cell) { cell.font = font; });
    showFont(font);
    cardSetChanged();
    warnOfSkippedCells(complete);
    updateStatusBar(tr("Font impostato correttamente."));
}
