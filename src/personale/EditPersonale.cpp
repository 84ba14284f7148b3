// SPDX-License-Identifier: MIT
#include "personale/EditPersonale.h"

#include "generation/GUtils.h"
#include "manuale/Manuale.h"
#include "msgarea/OpenDialogs.h"
#include "msgarea/WaitCursor.h"
#include "personale/CasellaAccessibile.h"
#include "personale/GeneraCartellaPersonale.h"
#include "resources/Resources.h"
#include "settings/Product.h"
#include "ui_EditPersonale.h"
#include "widgets/DisplayAccessibile.h"
#include "widgets/WindowPlace.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QScrollBar>

namespace {
CELL_VALUE nextType(CELL_VALUE tipo)
{
    switch (tipo) {
    case CELL_NUMERO:
        return CELL_TESTO;
    case CELL_TESTO:
        return CELL_IMMAGINE;
    case CELL_IMMAGINE:
        return CELL_VUOTA;
    case CELL_VUOTA:
        return CELL_NUMERO;
    }
    return CELL_VUOTA;
}
} // namespace

EditPersonale::EditPersonale(QWidget *parent, Cartella *cartella, U8 rows, U8 columns, U16 pageCount, int nmin,
                             int nmax, U8 append)
    : QMainWindow(parent, Qt::Window)
    , ui(std::make_unique<Ui::EditPersonale>())
    , m_mainWindow(parent)
    , m_cartella(cartella)
    , m_append(append)
    , m_mainWasMaximized(parent != nullptr && parent->isMaximized())
    , m_pageCount(pageCount)
    , m_nmin(nmin)
    , m_nmax(nmax)
    , m_available(nmax - nmin + 1)
{
    initQuintraResources();
    CasellaAccessibile::install();
    DisplayAccessibile::install();
    ui->setupUi(this);
    ui->boxesGridLayout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (m_pageCount == 0) {
        QMessageBox::warning(this, Product::titleFor(tr("Mappatura manuale")), tr("Non vi sono pagine da creare!"));
        close();
        return;
    }
    m_generatore = std::make_unique<GeneraCartellaPersonale>();
    m_pages.reserve(m_pageCount);
    for (int page = 0; page < m_pageCount; ++page) {
        m_pages.push_back(makePage(rows, columns));
        connectBoxes(m_pages.back(), RightClick::CyclesType);
    }
    displayPage(0);
    ui->pageNumSpinBox->setValue(1);
    showPageCount();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { showFocusedCell(now); });
    connect(ui->actionManuale, &QAction::triggered, this, [this]() { Manuale::openFor(this); });
    setWindowTitle(Product::nameAndRelease() + QStringLiteral(" - ") + tr("MAPPATURA MANUALE"));
    checkSettings();
    setWindowModality(Qt::ApplicationModal); // without effect once the window is shown
    m_open = true;
    placeOver(this, parent);
    show();
    fitToolsWidth();
}

EditPersonale::~EditPersonale()
{
    m_open = false;
    disconnect(qApp, nullptr, this, nullptr); // the focus moves once more, when the form is gone
    takeDisplayedBoxes();
}

// Only a shown widget knows its width for sure. A scroll bar, in a low window, hides nothing.
void EditPersonale::fitToolsWidth()
{
    ui->toolsScrollArea->setFixedWidth(ui->toolsWidget->sizeHint().width() +
                                       ui->toolsScrollArea->verticalScrollBar()->sizeHint().width());
}

PaginaPersonale EditPersonale::makePage(U8 rows, U8 columns)
{
    PaginaPersonale page;
    page.nRighe = rows;
    page.nColonne = columns;
    page.chk = std::make_unique<PersonaleChkBox[]>(page.cellCount());
    // Boxes are polished when they are shown. Requests left waiting would make deleting many boxes very slow.
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
    PersonaleChkBox *box = page.begin();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column, ++box) {
            box->setPosition(static_cast<U8>(row), static_cast<U8>(column));
        }
    }
    return page;
}

void EditPersonale::connectBoxes(const PaginaPersonale &page, RightClick rightClick)
{
    for (const PersonaleChkBox &box : page) {
        connect(&box, &PersonaleChkBox::schecked, this, &EditPersonale::on_checkboxChecked);
        if (rightClick == RightClick::CyclesType) {
            connect(&box, &PersonaleChkBox::rclicked, this, &EditPersonale::on_checkboxRClicked);
        }
    }
}

// Makes the boxes of the grid parentless: only their page owns them.
void EditPersonale::takeDisplayedBoxes()
{
    ui->boxesWidget->hide(); // all at once, instead of a new layout for each box
    while (QLayoutItem *item = ui->boxesGridLayout->takeAt(0)) {
        item->widget()->hide();
        item->widget()->setParent(nullptr);
        delete item;
    }
}

void EditPersonale::displayPage(U16 page)
{
    ui->boxesWidget->hide();
    for (PersonaleChkBox &box : m_pages[page]) {
        ui->boxesGridLayout->addWidget(&box, box.riga, box.colonna);
        box.show();
    }
    ui->boxesWidget->show();
}

void EditPersonale::switchToPage(U16 page)
{
    takeDisplayedBoxes();
    displayPage(page);
    ui->checkBox_ordinaNumxColonne->setChecked(m_pages[page].ordinaPerColonne != 0);
    repaint();
    m_currentPage = page;
}

void EditPersonale::showPageCount()
{
    ui->pageNumDisplay->setDigitCount(GUtils::numCifre(m_pageCount));
    ui->pageNumDisplay->display(m_pageCount);
}

void EditPersonale::showFocusedCell(QWidget *focused)
{
    if (focused != nullptr && focused->parentWidget() == ui->boxesWidget) {
        ui->boxesScrollArea->ensureWidgetVisible(focused);
    }
}

PaginaPersonale &EditPersonale::displayedPage()
{
    return m_currentPage < m_pages.size() ? m_pages[m_currentPage] : m_noPage;
}

int EditPersonale::clampedPage(int page) const
{
    return qBound(1, page, qMax<int>(1, m_pageCount));
}

void EditPersonale::on_pageNumSpinBox_valueChanged(int v)
{
    const int number = clampedPage(v);
    const auto page = static_cast<U16>(number - 1);
    if (page != m_currentPage) {
        const WaitCursor wait(this);
        switchToPage(page);
    }
    checkSettings();
    ui->pageNumSpinBox->setValue(number);
}

void EditPersonale::on_checkBox_ordinaNumxColonne_clicked()
{
    displayedPage().ordinaPerColonne = ui->checkBox_ordinaNumxColonne->isChecked() ? 1 : 0;
}

// Also told of boxes of other pages, whose positions the page on display may not have.
void EditPersonale::on_checkboxChecked(U8 r, U8 c, bool b)
{
    const PaginaPersonale &page = displayedPage();
    if (page.hasCell(r, c) && page.cell(r, c).tipo == CELL_NUMERO) {
        m_tickedNumbers += b ? 1 : -1;
    }
    checkSettings();
}

void EditPersonale::on_checkboxRClicked(U8 r, U8 c)
{
    const PaginaPersonale &page = displayedPage();
    if (!page.hasCell(r, c)) {
        return;
    }
    PersonaleChkBox &box = page.cell(r, c);
    box.setTipo(nextType(box.tipo));
    recountNumbers();
    checkSettings();
    ui->statusBar->showMessage(tr("Tipo cambiato in: %1").arg(m_cartella->cellType2String(box.tipo)));
}

void EditPersonale::recountNumbers()
{
    m_tickedNumbers = displayedPage().tickedNumbers();
}

// Runs for every single tick: the icon is only loaded when the verdict changes.
void EditPersonale::checkSettings()
{
    ui->numeri_text->setText(tr("Numeri: %1 di %2").arg(m_tickedNumbers).arg(m_available));
    const Verdict verdict = m_tickedNumbers <= m_available ? Verdict::Correct : Verdict::Warning;
    if (verdict == Verdict::Warning) {
        showReason(tr("I numeri da generare (%1) sono maggiori di quelli disponibili (%2).")
                       .arg(m_tickedNumbers)
                       .arg(m_available));
    }
    if (verdict == m_shownVerdict) {
        return;
    }
    m_shownVerdict = verdict;
    const bool correct = verdict == Verdict::Correct;
    if (correct) {
        showReason(tr("Impostazioni corrette"));
    }
    ui->status_label->setPixmap(QPixmap(verdictIcon(verdict)));
    ui->actionCreaPagine->setEnabled(correct);
    ui->creapagineButton->setEnabled(correct);
}

void EditPersonale::showReason(const QString &reason)
{
    ui->status_label->setToolTip(reason);
    ui->status_label->setAccessibleName(reason);
    ui->status_text->setText(reason);
}

void EditPersonale::on_creapagineButton_clicked()
{
    createPages();
}

void EditPersonale::on_actionCreaPagine_triggered()
{
    createPages();
}

void EditPersonale::createPages()
{
    QString errore;
    bool created = false;
    if (const int total = m_cartella->getNumPages() + m_pageCount; total > maxPages) {
        errore = tr("Le pagine totali richieste (%1)\neccedono il massimo consentito (%2).").arg(total).arg(maxPages);
    } else {
        letClosedDialogsDisappear();
        const WaitCursor wait(this);
        created = m_generatore->generaPagine(m_pageCount, m_pages, m_cartella, m_nmin, m_nmax, errore);
    }
    const QString title = Product::titleFor(tr("Mappatura manuale"));
    if (created) {
        QMessageBox::information(this, title, tr("Pagine create e aggiunte alla cartella principale!"));
    } else {
        QMessageBox::warning(this, title, tr("Errore durante la creazione delle pagine!\n\n%1").arg(errore));
    }
}

void EditPersonale::on_actionEsci_triggered()
{
    close();
}

bool EditPersonale::ask(const QString &title, const QString &question)
{
    return QMessageBox::question(this, title, question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

bool EditPersonale::confirmClosing()
{
    return ask(Product::titleFor(tr("Mappatura manuale")), tr("Sei sicuro di voler chiudere?"));
}

void EditPersonale::closeEvent(QCloseEvent *event)
{
    if (m_open) {
        if (isAsking(*this) || !confirmClosing()) {
            event->ignore();
            return;
        }
        m_open = false; // the main window stays as it is from here on
        restoreMainWindow();
        emit done();
    }
    event->accept();
    deleteLater();
}

// The main window steps aside together with the editor and comes back with it.
void EditPersonale::changeEvent(QEvent *event)
{
    const bool activation = event->type() == QEvent::ActivationChange;
    const bool state = event->type() == QEvent::WindowStateChange;
    if (m_open && m_mainWindow != nullptr && (activation || state)) {
        const bool stepAside = activation ? !isActiveWindow() : isMinimized();
        if (stepAside) {
            m_mainWindow->showMinimized();
        } else {
            restoreMainWindow();
        }
    }
    event->accept();
}

void EditPersonale::restoreMainWindow()
{
    if (m_mainWindow == nullptr) {
        return;
    }
    if (m_mainWasMaximized) {
        m_mainWindow->showMaximized();
    } else {
        m_mainWindow->showNormal();
    }
}
