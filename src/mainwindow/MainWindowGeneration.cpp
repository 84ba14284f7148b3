// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "generation/DefaultCell.h"
#include "generation/GeneraCartellaClassica.h"
#include "model/PageNumbers.h"
#include "msgarea/Confirmation.h"
#include "msgarea/MemoryQuestion.h"
#include "msgarea/WaitCursor.h"
#include "personale/EditPersonale.h"
#include "personale/PersonaleChkBox.h"
#include "ui_MainWindow.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QScopeGuard>

namespace {
std::unique_ptr<Cartella> emptyCardSet(const CardParameters &p)
{
    return std::make_unique<Cartella>(static_cast<quint16>(p.pages), static_cast<U8>(p.blocks), static_cast<U8>(p.rows),
                                      static_cast<U8>(p.columns));
}

// Fills in pages, blocks, rows and columns.
QString withShape(const QString &text, const CardParameters &p)
{
    return text.arg(p.pages).arg(p.blocks).arg(p.rows).arg(p.columns);
}
} // namespace

void MainWindow::on_butt_aggiungi_pagine_clicked()
{
    if (generateUndisturbed(m_generated)) {
        warnOfUnreadableImage();
    }
}

void MainWindow::on_actionCrea_triggered()
{
    if (!confirmNewSet()) {
        return;
    }
    const bool generated = generateUndisturbed(false);
    ui->pagina_corrente_spinBox->setValue(0);
    if (generated) {
        warnOfUnreadableImage();
    }
}

// Whether the present card set may go.
bool MainWindow::confirmNewSet()
{
    if (!m_generated) {
        return true;
    }
    return confirmLoss(this, boxTitle(), tr("Sei sicuro di voler cancellare la cartella e crearne una nuova?"),
                       unprintedPages());
}

// No second generation and no comparison can start from a box that a generation shows.
bool MainWindow::generateUndisturbed(bool append)
{
    const auto setEnabled = [this](bool enabled) {
        ui->actionConfronta_blocchi->setEnabled(enabled);
        ui->butt_aggiungi_pagine->setEnabled(enabled);
    };
    const bool focused = ui->butt_aggiungi_pagine->hasFocus(); // which a disabled button passes on
    setEnabled(false);
    const auto enableAgain = qScopeGuard([&]() {
        setEnabled(true);
        if (focused) {
            ui->butt_aggiungi_pagine->setFocus();
        }
    });
    return generate(append);
}

// Image cells would be printed blank.
void MainWindow::warnOfUnreadableImage()
{
    const CardParameters p = parameters();
    if (!p.manual && p.jolly > 0 && DefaultCell::image().isNull()) {
        QMessageBox::warning(
            this, boxTitle(),
            tr("L'immagine di base non può essere letta:\n%1\n\nLe celle con immagine resteranno vuote "
               "in stampa.")
                .arg(DefaultCell::imagePath()));
    }
}

bool MainWindow::generate(bool append)
{
    ui->box_classica_numeromassimo->interpretText(); // it may still be being typed
    if (ui->MappaManuale->isChecked()) {
        return openEditor(append);
    }
    if (!confirmGeneration(append)) {
        updateStatusBar(tr("Creazione annullata."));
        return false;
    }
    const CardParameters requested = parameters();
    letClosedDialogsDisappear();
    const int pagesBefore = append ? m_cartella->getNumPages() : 0;
    if (append) {
        if (!appendEmptyPages(requested)) {
            return false;
        }
    } else {
        createEmptyPages(requested);
    }
    updateStatusBar(withShape(tr("Cartella di %1 pagine, %2 blocchi %3X%4 generata"), requested));
    m_cellsInMemory += ParameterRules::cellsRequested(requested);
    fillPages(pagesBefore, requested);
    rememberNumbers({requested.minimum, requested.maximum}, pagesBefore);
    m_generated = true;
    ui->pagine_lcdNumber->display(m_cartella->getNumPages());
    cardSetChanged();
    if (!append || m_pageShown == 0) { // all pages may have been deleted before
        showFirstPage();
    }
    return true;
}

bool MainWindow::confirmGeneration(bool append)
{
    QString message;
    if (!confirmVerdict(checkParameters(&message, append), message)) {
        return false;
    }
    return confirmMemory(this, boxTitle(), ParameterRules::bytesRequested(parameters()), unprintedPages());
}

// Tells the user of an error, asks about a warning; whether to go on. A verdict that is none stops the program.
bool MainWindow::confirmVerdict(int verdict, const QString &message)
{
    switch (static_cast<Verdict>(verdict)) {
    case Verdict::Error:
        warn(tr("Problemi di impostazione parametri: non posso proseguire!"), message);
        return false;
    case Verdict::Warning:
        return confirmLoss(this, boxTitle(), tr("%1\n\nVuoi proseguire comunque?").arg(message), unprintedPages());
    case Verdict::Correct:
        return true;
    }
    qFatal("MainWindow::generate: Check STATUS type not defined!");
}

void MainWindow::createEmptyPages(const CardParameters &requested)
{
    updateStatusBar(tr("Sto cancellando la precedente cartella..."));
    {
        const WaitCursor wait(this);
        // The old set goes before the new one comes: both may not fit the memory together.
        replaceCardSet(std::make_unique<Cartella>());
    }
    m_cellsInMemory = 0;
    updateStatusBar(withShape(tr("Sto creando una cartella di %1 pagine, %2 blocchi %3X%4..."), requested));
    const WaitCursor wait(this);
    replaceCardSet(emptyCardSet(requested));
    m_cartella->formato = ui->pagina_formato->currentIndex(); // what the user sees chosen
}

bool MainWindow::appendEmptyPages(const CardParameters &requested)
{
    const WaitCursor wait(this);
    const std::optional<int> refused = handOverPages(*emptyCardSet(requested), *m_cartella);
    if (refused) {
        QMessageBox::critical(this, boxTitle(),
                              tr("Generazione numeri:\nErrore durante l'aggiunta della pagina %i.").arg(*refused));
    }
    return !refused;
}

// Fills the pages from `first` (0-based) to the last.
void MainWindow::fillPages(int first, const CardParameters &p)
{
    if (p.drawn + p.jolly + p.scritte == 0) {
        showSettingStatus(Verdict::Warning, tr("Sono state create solo pagine vuote!"));
        return;
    }
    const WaitCursor wait(this);
    bool summarise = false;
    QVector<int> otherFailures;
    for (int page = first; page < m_cartella->getNumPages(); ++page) {
        const U8 columns = m_cartella->getMaxPageColSize(static_cast<quint16>(page));
        const bool filled =
            m_generatore->generate(m_cartella->pagine[page], columns, static_cast<U8>(p.drawn),
                                   static_cast<U8>(p.jolly), static_cast<U8>(p.scritte), p.minimum, p.maximum);
        if (!filled && summarise) {
            otherFailures.append(page);
        } else if (!filled) {
            summarise = tellOfFailedPage(page);
        }
    }
    if (!otherFailures.isEmpty()) {
        QMessageBox::critical(this, boxTitle(),
                              tr("Generazione numeri:\nAltre pagine non generate (contate da 1): %1")
                                  .arg(pageNumbersText(otherFailures)));
    }
}

// Whether the user wants to hear of the other pages (0-based) in one box at the end.
bool MainWindow::tellOfFailedPage(int page)
{
    QMessageBox box(QMessageBox::Critical, boxTitle(),
                    tr("Generazione numeri:\nErrore durante la generazione della pagina %1.").arg(page),
                    QMessageBox::Ok, this);
    box.setCheckBox(new QCheckBox(tr("Riassumi le altre in un solo messaggio")));
    box.exec();
    letClosedDialogsDisappear(); // the generation goes on
    return box.checkBox()->isChecked();
}

void MainWindow::showFirstPage()
{
    m_pageShown = 0;
    ui->pagina_corrente_spinBox->setValue(1);
    if (m_pageShown == 0) {
        on_pagina_corrente_spinBox_valueChanged(1); // the box already stood there and told nothing
    }
}

// False when the user did not want to take the memory for it, or there was not enough.
bool MainWindow::openEditor(bool append)
{
    const double cells = static_cast<double>(ParameterRules::cellsRequested(parameters()));
    if (!confirmMemory(this, boxTitle(), cells * PersonaleChkBox::bytes, unprintedPages())) {
        updateStatusBar(tr("Creazione annullata."));
        return false;
    }
    letClosedDialogsDisappear();
    updateStatusBar(tr("Sto creando l'ambiente per la mappatura manuale, attendere..."));
    m_pagesBeforeEditor = m_cartella->getNumPages();
    if (!withinMemory(this, boxTitle(), [&]() { makeEditor(append); })) {
        updateStatusBar(tr("Creazione annullata."));
        return false;
    }
    updateStatusBar(tr("Ambiente per la mappatura manuale creato."));
    m_editor->setWindowModality(Qt::ApplicationModal); // the editor was so already when it showed itself
    return true;
}

void MainWindow::makeEditor(bool append)
{
    const WaitCursor wait(this);
    const CardParameters p = parameters();
    m_editorNumbers = {p.minimum, p.maximum};
    m_editor = new EditPersonale(this, m_cartella.get(), static_cast<U8>(p.rows), static_cast<U8>(p.columns),
                                 static_cast<U16>(p.pages), p.minimum, p.maximum, append ? 1 : 0);
    connect(m_editor, &EditPersonale::done, this, &MainWindow::generatePersDone);
}

void MainWindow::generatePersDone()
{
    const int pages = m_cartella->getNumPages();
    if (pages == 0 || pages == m_pagesBeforeEditor) {
        return;
    }
    m_generated = true;
    rememberNumbers(m_editorNumbers, m_pagesBeforeEditor);
    ui->pagine_lcdNumber->display(pages);
    cardSetChanged();
    ui->pagina_corrente_spinBox->setValue(m_pageShown + 1);
}
