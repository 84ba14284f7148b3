// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "generation/GUtils.h"
#include "generation/GeneraCartellaClassica.h"
#include "manuale/Manuale.h"
#include "msgarea/Confirmation.h"
#include "msgarea/MsgArea.h"
#include "personale/EditPersonale.h"
#include "resources/Resources.h"
#include "settings/Options.h"
#include "settings/Product.h"
#include "ui_MainWindow.h"
#include "widgets/DisplayAccessibile.h"

#include <QCloseEvent>
#include <QColorDialog>
#include <QMessageBox>
#include <QTableWidget>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::MainWindow>())
{
    initQuintraResources();
    DisplayAccessibile::install();
    ui->setupUi(this);
    setupShortcuts();
    connectCommands();
    setWindowTitle(Product::nameAndRelease());
    welcome();
    setupParameters();
    replaceCardSet(std::make_unique<Cartella>());
    m_generatore = std::make_unique<GeneraCartellaClassica>();
    setupPageView();
    setupColorDialog();
    setupPaperFormats();
    setupSidePanes();
    connect(ui->statusBar, &QStatusBar::messageChanged, this, &MainWindow::setStatusBarStyle);
    setStatusBarStyle(); // the welcome was shown before
    showMaximized();
}

// The widgets go later. One that loses the focus then would tell what was just typed into it.
MainWindow::~MainWindow()
{
    for (const QObject *child : findChildren<QObject *>()) {
        disconnect(child, nullptr, this, nullptr);
    }
}

// Not in the form: a button's shortcut goes when its text is set, which the form does last.
void MainWindow::setupShortcuts()
{
    ui->butt_aggiungi_pagine->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+N")));
    ui->butt_stampa->setShortcut(QKeySequence(QStringLiteral("Ctrl+P")));
}

// Commands that are no slots of the window.
void MainWindow::connectCommands()
{
    connect(ui->actionAnteprima, &QAction::triggered, this, &MainWindow::openPreview);
    connect(ui->actionNumeraBlocchi, &QAction::toggled, this, &MainWindow::updatePreview);
    connect(ui->actionSalvaRegistro, &QAction::triggered, this, &MainWindow::saveRegister);
    connect(ui->actionSerata, &QAction::triggered, this, &MainWindow::openEvening);
    connect(ui->actionManuale, &QAction::triggered, this, [this]() { Manuale::openFor(this); });
}

void MainWindow::welcome()
{
    updateStatusBar(tr("Welcome to %1 %2!").arg(Product::nameText(), Product::releaseText()));
}

void MainWindow::setupParameters()
{
    loadDefaultParameters();
    enableParameters(false);
    parameterEdited();
    showChangedDefaults();
    ui->box_classica_numeropagine->setFocus(); // the first thing to say, to be typed over
    ui->box_classica_numeropagine->selectAll();
}

void MainWindow::setupPageView()
{
    ui->pagine_lcdNumber->display(m_cartella->getNumPages());
    ui->pagina_corrente_spinBox->setValue(0);
    m_currentFont = defaultCellFont();

    ui->gridLayout->addWidget(replaceTable(), 0, 0);
    resetSelectionPanels(0);
    ui->gridLayout->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
}

void MainWindow::setupColorDialog()
{
    m_colorDialog = new QColorDialog(this);
    m_colorDialog->hide();
    m_colorDialog->setWindowModality(Qt::ApplicationModal);
}

void MainWindow::setupPaperFormats()
{
    for (int format = 0; format < GUtils::selectablePaperFormats; ++format) {
        ui->pagina_formato->addItem(GUtils::paperFormatName(format), format);
    }
}

// A pane that was closed comes back by the menu.
void MainWindow::setupSidePanes()
{
    // Inputs that have got their texts tell their panes by posted events: at once, before the widths are shared out.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (isRightToLeft()) { // the panes are not mirrored as the other parts are
        addDockWidget(Qt::RightDockWidgetArea, ui->parametriDock);
        addDockWidget(Qt::LeftDockWidgetArea, ui->stileDock);
    }
    ui->menuVisualizza->addActions({ui->parametriDock->toggleViewAction(), ui->stileDock->toggleViewAction()});
}

void MainWindow::replaceCardSet(std::unique_ptr<Cartella> cartella)
{
    m_watchedPages.forgetAll();
    m_cartella = std::move(cartella);
    m_pagesBeforeEditor = m_cartella->getNumPages();
    for (EditPersonale *editor : findChildren<EditPersonale *>()) {
        editor->setCardSet(m_cartella.get());
    }
    connect(m_cartella.get(), &Cartella::checkForEqualBlocksStatus, this, &MainWindow::updateStatusBar);
    updatePreview();
}

void MainWindow::updateStatusBar(const QString &msg)
{
    constexpr qint64 briefly = 20; // milliseconds
    ui->statusBar->showMessage(msg);
    if (m_manyMessages && m_lastRepaint.isValid() && !m_lastRepaint.hasExpired(briefly)) {
        return;
    }
    ui->statusBar->repaint(); // long operations run no event loop
    m_lastRepaint.start();
}

void MainWindow::setStatusBarStyle()
{
    const QString message = ui->statusBar->currentMessage();
    QString style = QStringLiteral("color: black");
    if (message.endsWith(QLatin1Char('!'))) {
        style = QStringLiteral("color: #FF0000");
    } else if (message.endsWith(QLatin1Char('.'))) {
        style = QStringLiteral("color: #00FF00");
    } else if (message.endsWith(QLatin1Char('?'))) {
        style = QStringLiteral("color: #0000FF");
    }
    if (ui->statusBar->styleSheet() != style) {
        ui->statusBar->setStyleSheet(style);
    }
}

bool MainWindow::event(QEvent *event)
{
    // Messages stay until the next one: menus and buttons must not put their own in between.
    if (event->type() == QEvent::StatusTip) {
        return true;
    }
    return QMainWindow::event(event);
}

QString MainWindow::boxTitle()
{
    return Product::titleFor(tr("Cartella classica"));
}

// The reason stands below the text.
void MainWindow::warn(const QString &text, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, boxTitle(), text, QMessageBox::Ok, this);
    box.setInformativeText(reason);
    box.exec();
}

void MainWindow::on_actionEsci_triggered()
{
    close();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (m_leaving) {
        event->accept();
        return;
    }
    if (!confirmLoss(this, Product::nameText(), tr("Sei sicuro di voler uscire?"), unprintedPages())) {
        event->ignore();
        return;
    }
    m_leaving = true;
    emit done();
    event->accept();
}

void MainWindow::on_actionOpzioni_triggered()
{
    m_options = new Options(this);
    m_options->setAttribute(Qt::WA_DeleteOnClose);
    // It has no parent, and more than one may be open: none outlives this window.
    Options *options = m_options;
    connect(this, &QObject::destroyed, options, [options]() { delete options; });
}

// Mapping files are opened and saved by the manual mapping editor.
void MainWindow::on_actionOpen_triggered() {}

void MainWindow::on_actionSave_triggered() {}

void MainWindow::on_actionInformazioni_triggered()
{
    QString description = tr("Generatore di cartelle per la Quintra.\nAdvanced Bingo cards generator.");
    description.replace(QLatin1Char('\n'), QStringLiteral("<br/>"));
    m_about = MsgArea::makeFor(this, false);
    m_about->setWindowTitle(Product::titleFor(tr("Informazioni")));
    m_about->setText(
        QStringLiteral("<h1>%1</h1><p>%2</p><p>%3</p>").arg(Product::nameText(), Product::releaseText(), description),
        false);
    m_about->show();
}
