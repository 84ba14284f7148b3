// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "msgarea/WaitCursor.h"
#include "serata/Registro.h"
#include "serata/Serata.h"
#include "ui_MainWindow.h"

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
    Serata::open(this, *m_cartella, static_cast<quint32>(now.minimum), static_cast<quint32>(now.maximum));
}
