// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "msgarea/WaitCursor.h"
#include "serata/Registro.h"
#include "serata/Serata.h"
#include "ui_MainWindow.h"

#include <algorithm>

void MainWindow::saveRegister()
{
    if (!requirePages()) {
        return;
    }
    const QString fileName = askFileName(tr("Salva il registro su file"), QStringLiteral("CSV"));
    if (fileName.isEmpty()) {
        updateStatusBar(tr("Creazione file annullata!"));
        return;
    }
    letClosedDialogsDisappear();
    const WaitCursor wait(this);
    QString reason;
    if (!Registro::save(fileName, *m_cartella, reason)) {
        warn(tr("Errore nella creazione del file:\n%1").arg(fileName), reason);
        return;
    }
    updateStatusBar(tr("Registro salvato."));
}

void MainWindow::openEvening()
{
    letClosedDialogsDisappear();
    const WaitCursor wait(this);
    const CardParameters now = parameters();
    const bool empty = m_cartella->getNumPages() == 0;
    const NumberRange numbers = empty ? NumberRange{now.minimum, now.maximum} : m_numbers;
    Serata::open(this, *m_cartella, static_cast<quint32>(numbers.lowest), static_cast<quint32>(numbers.highest));
}

// Pages were made with these numbers; those before, if any, with theirs.
void MainWindow::rememberNumbers(NumberRange numbers, int pagesBefore)
{
    m_numbers = pagesBefore == 0 ? numbers
                                 : NumberRange{std::min(m_numbers.lowest, numbers.lowest),
                                               std::max(m_numbers.highest, numbers.highest)};
}
