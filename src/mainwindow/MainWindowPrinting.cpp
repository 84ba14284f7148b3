// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "mainwindow/PagePreview.h"
#include "model/PageNumbers.h"
#include "msgarea/MsgArea.h"
#include "msgarea/Overwriting.h"
#include "msgarea/WaitCursor.h"
#include "output/CreateOutputFile.h"
#include "output/PaperSheet.h"
#include "settings/Config.h"
#include "ui_MainWindow.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

void MainWindow::on_pagina_formato_currentIndexChanged(int index)
{
    m_cartella->formato = index;
    cardSetChanged();
}

void MainWindow::on_butt_stampa_clicked()
{
    if (!m_generated || m_cartella->getNumPages() == 0) {
        QMessageBox::warning(this, boxTitle(), tr("La cartella non contiene pagine!"));
        updateStatusBar(tr("Aggiungere pagine alla cartella prima di proseguire."));
        return;
    }
    const QString fileName = askFileName(tr("Salva le cartelle su file"), globalConfig->outputFormatName);
    if (fileName.isEmpty()) {
        updateStatusBar(tr("Creazione file annullata!"));
        return;
    }
    warnOfPagesWithoutRoom();
    letClosedDialogsDisappear();
    QString report;
    const CreateOutputFile::Printed printed = writeOutputFile(fileName, report);
    if (printed.bytes < 0) {
        updateStatusBar(tr("Stampa non riuscita!"));
        warn(tr("Errore nella creazione del file:\n%1").arg(fileName), report);
        return;
    }
    m_unprinted = false;
    MsgArea *window = MsgArea::showReport(this, report);
    if (printed.numbersLeftOut > 0) {
        QMessageBox::warning(
            window, boxTitle(),
            tr("Numeri di blocco non stampati per mancanza di posto: %1.").arg(printed.numbersLeftOut));
    }
}

// The file to write, with the suffix of its format; empty when the user gave none that can be. The folder is
// remembered. The dialog asks before a file is overwritten, but knows only the name without the suffix.
QString MainWindow::askFileName(const QString &caption, const QString &format)
{
    const QString suffix = format.toLower();
    const QString filter = QStringLiteral("%1 (*.%2);;").arg(format, suffix);
    const QString chosen = QFileDialog::getSaveFileName(this, caption, globalConfig->defaultSaveDir, filter);
    if (chosen.isEmpty()) {
        return QString();
    }
    QString fileName = chosen;
    if (!QFileInfo(chosen).fileName().contains(QLatin1Char('.'))) {
        fileName += QLatin1Char('.') + suffix;
    }
    const bool sure = fileName == chosen || confirmOverwriting(this, boxTitle(), fileName);
    return sure && globalConfig->rememberFolder(chosen) ? fileName : QString();
}

CreateOutputFile::Printed MainWindow::writeOutputFile(const QString &fileName, QString &report)
{
    const WaitCursor wait(this);
    CreateOutputFile output(this);
    connect(&output, &CreateOutputFile::status, this, &MainWindow::updateStatusBar);
    const bool numbered = ui->actionNumeraBlocchi->isChecked();
    return output.create(fileName, m_cartella.get(), report,
                         numbered ? CreateOutputFile::Numbers::BesideBlocks : CreateOutputFile::Numbers::None);
}

void MainWindow::openPreview()
{
    if (m_preview.isNull()) {
        m_preview = new PagePreview(this);
        m_preview->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_preview, &PagePreview::pageWanted, this,
                [this](int page) { ui->pagina_corrente_spinBox->setValue(page + 1); });
    }
    updatePreview();
    m_preview->show();
    m_preview->activateWindow();
}

// To be called after every change of what is shown.
void MainWindow::updatePreview()
{
    if (!m_preview.isNull()) {
        m_preview->showPage(m_cartella.get(), ui->pagina_corrente_spinBox->value() - 1,
                            ui->actionNumeraBlocchi->isChecked());
    }
}

// To be called after every change of the card set.
void MainWindow::cardSetChanged()
{
    m_unprinted = true;
    updatePreview();
}

// What would be lost with the card set; empty when it is empty.
QString MainWindow::unprintedPages() const
{
    const int pages = m_cartella->getNumPages();
    if (pages == 0) {
        return QString();
    }
    return m_unprinted ? tr("Pagine non stampate dopo l'ultima modifica: %1.").arg(pages)
                       : tr("Tutte le pagine sono state stampate dopo l'ultima modifica.");
}

void MainWindow::warnOfPagesWithoutRoom()
{
    const QVector<int> pages = pagesWithoutRoom(*m_cartella, printingResolution());
    if (pages.isEmpty()) {
        return;
    }
    QMessageBox::warning(this, boxTitle(),
                         tr("Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla pagina.\n"
                            "Pagine: %1")
                             .arg(pageNumbersText(pages)));
}
