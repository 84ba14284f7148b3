// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "msgarea/MsgArea.h"
#include "msgarea/WaitCursor.h"
#include "ui_MainWindow.h"

#include <QMessageBox>
#include <QScopedValueRollback>

namespace {
// More lines of equal blocks than these nobody reads.
constexpr qint64 mostLines = 100000;
} // namespace

void MainWindow::on_actionConfronta_blocchi_triggered()
{
    if (!m_generated) {
        QMessageBox::warning(this, boxTitle(),
                             tr("Verifica blocchi uguali:\nPagine cartella non ancora generate.\nImpossibile procedere "
                                "alla verifica!"));
        return;
    }
    ui->actionConfronta_blocchi->setEnabled(false);
    letClosedDialogsDisappear();
    QString summary;
    qint64 pairs = 0;
    {
        const WaitCursor waiting(this);
        const QScopedValueRollback<bool> progress(m_manyMessages, true);
        pairs = m_cartella->checkForEqualBlocks(nullptr, &summary);
    }
    if (pairs == 0) {
        QMessageBox::information(this, boxTitle(), tr("Non vi sono blocchi uguali!\n\n%1").arg(summary));
    } else if (QMessageBox::warning(
                   this, boxTitle(),
                   tr("Vi sono %1 blocchi uguali!\n\n%2\n\nVuoi visualizzarli?").arg(QString::number(pairs), summary),
                   QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes) {
        showEqualBlocks(pairs);
    }
    ui->actionConfronta_blocchi->setEnabled(true);
}

void MainWindow::showEqualBlocks(qint64 pairs)
{
    letClosedDialogsDisappear();
    const WaitCursor waiting(this);
    QStringList lines = m_cartella->equalBlockLines(mostLines).toList();
    if (pairs > lines.size()) {
        lines.append(tr("... e altre coppie di blocchi uguali: %1.").arg(pairs - lines.size()));
    }
    MsgArea *report = MsgArea::makeFor(this, false);
    report->setLines(lines);
    report->show();
}
