// SPDX-License-Identifier: MIT
#include "manuale/Manuale.h"

#include "generation/GUtils.h"
#include "manuale/FittedPictures.h"
#include "manuale/ManualFile.h"
#include "resources/Resources.h"
#include "ui_Manuale.h"
#include "widgets/WindowPlace.h"

#include <QDir>
#include <QMainWindow>
#include <QPointer>
#include <QScrollBar>
#include <QStatusBar>

namespace {
QPointer<Manuale> openManual; // goes with the window it belongs to

constexpr int pageMargin = 16;     // pixels
constexpr int darkLightness = 128; // of a background, below it

// The toolkit's blue is not readable on dark palettes, which mostly leave it as it is.
QString linkColour(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < darkLightness ? QStringLiteral("#8ab4f8")
                                                                     : QStringLiteral("#0b57d0");
}
} // namespace

Manuale::Manuale(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::Manuale>())
{
    initQuintraResources();
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    placeOver(this, parent);
    ui->testo_browser->document()->setDocumentMargin(pageMargin);
    new FittedPictures(ui->testo_browser->document());
    connectCommands();
}

Manuale::~Manuale() = default;

void Manuale::connectCommands()
{
    ui->indietro_button->setShortcut(QKeySequence(QStringLiteral("Alt+Left")));
    ui->indice_button->setShortcut(QKeySequence(QStringLiteral("Alt+Up")));
    addAction(ui->actionCerca);
    connect(ui->indietro_button, &QPushButton::clicked, ui->testo_browser, &QTextBrowser::backward);
    connect(ui->testo_browser, &QTextBrowser::backwardAvailable, ui->indietro_button, &QPushButton::setEnabled);
    connect(ui->indice_button, &QPushButton::clicked, ui->testo_browser, &QTextBrowser::home);
    connect(ui->actionCerca, &QAction::triggered, ui->cerca_edit, qOverload<>(&QWidget::setFocus));
    connect(ui->actionCerca, &QAction::triggered, ui->cerca_edit, &QLineEdit::selectAll);
    connect(ui->cerca_edit, &QLineEdit::returnPressed, this, &Manuale::findNext);
    connect(ui->cerca_edit, &QLineEdit::textChanged, ui->esito_label, &QLabel::clear);
}

void Manuale::openFor(QMainWindow *asker)
{
    const ManualFile manual = manualFor(shownLanguage());
    if (manual.page.isEmpty()) {
        asker->statusBar()->showMessage(tr("Il manuale non è in %1!").arg(QDir::toNativeSeparators(manualFolder())));
        return;
    }
    if (openManual.isNull()) {
        openManual = new Manuale(asker);
    } else if (openManual->parentWidget() != asker) {
        openManual->setParent(asker, openManual->windowFlags());
    }
    openManual->showManual(manual);
}

void Manuale::showManual(const ManualFile &manual)
{
    if (!ui->testo_browser->shows(manual.name)) {
        colourLinks();
        ui->testo_browser->setManual(manual);
        ui->testo_browser->setFocus();
    }
    show();
    raise();
    activateWindow();
}

// From the place shown on, and after the end from the beginning.
void Manuale::findNext()
{
    const QString text = ui->cerca_edit->text();
    if (text.isEmpty() || ui->testo_browser->find(text)) {
        return;
    }
    const QTextCursor before = ui->testo_browser->textCursor();
    ui->testo_browser->moveCursor(QTextCursor::Start);
    if (!ui->testo_browser->find(text)) {
        ui->testo_browser->setTextCursor(before);
        ui->esito_label->setText(tr("Testo non trovato!"));
    }
}

// For what is loaded from now on.
void Manuale::colourLinks()
{
    ui->testo_browser->document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 }").arg(linkColour(palette())));
}

void Manuale::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) {
        return;
    }
    const int place = ui->testo_browser->verticalScrollBar()->value();
    colourLinks();
    ui->testo_browser->reload();
    ui->testo_browser->verticalScrollBar()->setValue(place);
}
