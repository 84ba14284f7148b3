// SPDX-License-Identifier: MIT
// The commands that draw: the selection, its ticks and types, the copy of a scheme to other pages.
#include "personale/EditPersonale.h"

#include "msgarea/MemoryQuestion.h"
#include "msgarea/WaitCursor.h"
#include "settings/Product.h"
#include "ui_EditPersonale.h"

#include <QButtonGroup>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {
bool isOfSameSize(const PaginaPersonale &a, const PaginaPersonale &b)
{
    return a.nRighe == b.nRighe && a.nColonne == b.nColonne;
}

void copyScheme(const PaginaPersonale &from, PaginaPersonale &to)
{
    to.ordinaPerColonne = from.ordinaPerColonne;
    PersonaleChkBox *copy = to.begin();
    for (const PersonaleChkBox &box : from) {
        copy->setChecked(box.isChecked());
        copy->setTipo(box.tipo);
        ++copy;
    }
}
} // namespace

// The bounds of the selection stay on the page, and each pushes the other one along.

void EditPersonale::on_row_from_spinBox_valueChanged(int v)
{
    ui->row_from_spinBox->setValue(qMin<int>(v, displayedPage().nRighe));
    ui->row_to_spinBox->setValue(qMax(v, ui->row_to_spinBox->value()));
}

void EditPersonale::on_row_to_spinBox_valueChanged(int v)
{
    ui->row_to_spinBox->setValue(qMin<int>(v, displayedPage().nRighe));
    ui->row_from_spinBox->setValue(qMin(v, ui->row_from_spinBox->value()));
}

void EditPersonale::on_col_from_spinBox_valueChanged(int v)
{
    ui->col_from_spinBox->setValue(qMin<int>(v, displayedPage().nColonne));
    ui->col_to_spinBox->setValue(qMax(v, ui->col_to_spinBox->value()));
}

void EditPersonale::on_col_to_spinBox_valueChanged(int v)
{
    ui->col_to_spinBox->setValue(qMin<int>(v, displayedPage().nColonne));
    ui->col_from_spinBox->setValue(qMin(v, ui->col_from_spinBox->value()));
}

// The whole page, or the rectangle of the spin boxes as far as the page reaches.
void EditPersonale::forEachCellInScope(const std::function<void(PersonaleChkBox &)> &action)
{
    const PaginaPersonale &page = displayedPage();
    const bool all = ui->selezione_tutte_ckbox->isChecked();
    const int firstRow = all ? 0 : ui->row_from_spinBox->value() - 1;
    const int endRow = all ? page.nRighe : qMin<int>(ui->row_to_spinBox->value(), page.nRighe);
    const int firstColumn = all ? 0 : ui->col_from_spinBox->value() - 1;
    const int endColumn = all ? page.nColonne : qMin<int>(ui->col_to_spinBox->value(), page.nColonne);
    // A box that is unticked asks its group; without one it would look at all boxes of the page.
    QButtonGroup group;
    group.setExclusive(false);
    int id = 0;
    for (int row = firstRow; row < endRow; ++row) {
        for (int column = firstColumn; column < endColumn; ++column) {
            PersonaleChkBox &box = page.cell(row, column);
            group.addButton(&box, id++); // with an id of its own: else all ids are looked at
            action(box);
        }
    }
}

void EditPersonale::on_riempiButton_clicked()
{
    forEachCellInScope([](PersonaleChkBox &box) { box.setChecked(true); });
}

void EditPersonale::on_svuotaButton_clicked()
{
    forEachCellInScope([](PersonaleChkBox &box) { box.setChecked(false); });
}

void EditPersonale::on_invertiButton_clicked()
{
    forEachCellInScope([](PersonaleChkBox &box) { box.setChecked(!box.isChecked()); });
}

CELL_VALUE EditPersonale::chosenType() const
{
    if (ui->txt_radioButton->isChecked()) {
        return CELL_TESTO;
    }
    if (ui->img_radioButton->isChecked()) {
        return CELL_IMMAGINE;
    }
    return ui->num_radioButton->isChecked() ? CELL_NUMERO : CELL_VUOTA;
}

void EditPersonale::on_setNumTxtImgButton_clicked()
{
    const CELL_VALUE tipo = chosenType();
    forEachCellInScope([tipo](PersonaleChkBox &box) { box.setTipo(tipo); });
    recountNumbers();
    checkSettings();
}

void EditPersonale::on_impostaschemacorrenteButton_clicked()
{
    if (!ask(Product::nameText(),
             tr("Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?"))) {
        return;
    }
    bool copied = false;
    const bool enough = withinMemory(this, Product::titleFor(tr("Mappatura manuale")),
                                     [&]() { copied = copySchemeTo(pagesToCopyTo()); });
    if (!enough || !copied) {
        ui->statusBar->showMessage(tr("Copia schema annullata!"));
        return;
    }
    recountNumbers(); // the ticks of the other pages were counted too
    checkSettings();
    ui->statusBar->showMessage(tr("Copia schema effettuata!"));
}

std::vector<size_t> EditPersonale::pagesToCopyTo() const
{
    std::vector<size_t> pages;
    const int end = qMin<int>(ui->impostaAspinBox->value(), m_pageCount);
    for (int page = ui->impostaDAspinBox->value() - 1; page < end; ++page) {
        if (page != m_currentPage) {
            pages.push_back(static_cast<size_t>(page));
        }
    }
    return pages;
}

// False when the user does not want to take the memory for it.
bool EditPersonale::copySchemeTo(const std::vector<size_t> &pages)
{
    const PaginaPersonale &from = displayedPage();
    std::vector<size_t> resized;
    std::copy_if(pages.begin(), pages.end(), std::back_inserter(resized),
                 [&](size_t page) { return !isOfSameSize(from, m_pages[page]); });
    if (!confirmBoxes(static_cast<double>(resized.size() * from.cellCount()))) {
        return false;
    }
    letClosedDialogsDisappear();
    const WaitCursor wait(this);
    resizePages(resized);
    for (const size_t page : pages) {
        copyScheme(from, m_pages[page]);
    }
    return true;
}

// Gives pages the size of the one on display. All are made anew before the first old one goes: that may fail.
void EditPersonale::resizePages(const std::vector<size_t> &pages)
{
    const PaginaPersonale &size = displayedPage();
    std::vector<PaginaPersonale> made;
    made.reserve(pages.size());
    for (size_t i = 0; i < pages.size(); ++i) {
        made.push_back(makePage(size.nRighe, size.nColonne));
        connectBoxes(made.back(), RightClick::CyclesType);
    }
    for (size_t i = 0; i < pages.size(); ++i) {
        m_pages[pages[i]] = std::move(made[i]);
    }
}

void EditPersonale::on_impostaDAspinBox_valueChanged(int v)
{
    ui->impostaDAspinBox->setValue(qMin(clampedPage(v), ui->impostaAspinBox->value()));
}

void EditPersonale::on_impostaAspinBox_valueChanged(int v)
{
    ui->impostaAspinBox->setValue(qMax(clampedPage(v), ui->impostaDAspinBox->value()));
}

void EditPersonale::on_impostasuttute_checkBox_clicked(bool b)
{
    ui->impostaDAspinBox->setEnabled(!b);
    ui->impostaAspinBox->setEnabled(!b);
    if (b) {
        ui->impostaDAspinBox->setValue(1);
        ui->impostaAspinBox->setValue(m_pageCount);
    }
}
