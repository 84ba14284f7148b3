// SPDX-License-Identifier: MIT
#include "serata/Serata.h"

#include "manuale/Manuale.h"
#include "model/SpokenContent.h"
#include "msgarea/OpenDialogs.h"
#include "resources/Resources.h"
#include "serata/CaselleDelegate.h"
#include "serata/ElencoSchede.h"
#include "serata/NuovaPartita.h"
#include "ui_Serata.h"
#include "widgets/WindowPlace.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QResizeEvent>

#include <algorithm>

namespace {
constexpr int callsBeforeTheLast = 5;  // shown beside it
constexpr int lastNumberPart = 5;      // of the window's height is the last number
constexpr int numbersBeforePart = 16;  // are those before it
constexpr int smallestCardColumn = 24; // pixels

void setFontSize(QWidget *widget, int pixels)
{
    QFont font = widget->font();
    font.setPixelSize(std::max(pixels, 1));
    widget->setFont(font);
}

// The numbers called before the last one, latest first.
QString numbersBefore(const std::vector<quint32> &chiamate)
{
    QStringList numeri;
    for (auto call = chiamate.rbegin(); call != chiamate.rend() && numeri.size() <= callsBeforeTheLast; ++call) {
        numeri << QString::number(*call);
    }
    return numeri.mid(1).join(QStringLiteral("  "));
}

QString textOf(const Casella &casella)
{
    switch (casella.tipo) {
    case CELL_NUMERO:
        return QString::number(casella.numero);
    case CELL_TESTO:
        return casella.testo;
    case CELL_IMMAGINE:
        return Serata::tr("immagine");
    case CELL_VUOTA:
        break;
    }
    return QString();
}

QTableWidgetItem *makeItem(const Casella &casella, const Partita &partita)
{
    auto *item = new QTableWidgetItem(textOf(casella));
    if (item->text().isEmpty()) {
        item->setData(Qt::AccessibleTextRole, spokenContent(casella.tipo, QString()));
    }
    if (casella.tipo == CELL_NUMERO) {
        const bool called = partita.turnOf(casella.numero) > 0;
        item->setData(CaselleDelegate::CalledRole, called);
        item->setData(Qt::AccessibleTextRole, CaselleDelegate::spoken(casella.numero, called));
    }
    return item;
}

void fill(QTableWidget *table, const Scheda &scheda, const Partita &partita)
{
    const auto longer = [](const auto &a, const auto &b) { return a.size() < b.size(); };
    const auto longest = std::max_element(scheda.righe.begin(), scheda.righe.end(), longer);
    table->setRowCount(static_cast<int>(scheda.righe.size()));
    table->setColumnCount(longest == scheda.righe.end() ? 0 : static_cast<int>(longest->size()));
    int row = 0;
    for (const auto &riga : scheda.righe) {
        int column = 0;
        for (const Casella &casella : riga) {
            table->setItem(row, column++, makeItem(casella, partita));
        }
        ++row;
    }
}

// The current card stays the current one, unless it is not in the list any more.
void showKeepingCurrent(QListView *view, ElencoSchede *elenco, const Partita &partita)
{
    const auto scheda = elenco->schedaAt(view->currentIndex());
    elenco->show(&partita);
    view->setCurrentIndex(scheda ? elenco->indexOf(*scheda) : QModelIndex());
}

QStringList describe(const Partita &partita, size_t scheda)
{
    QStringList lines;
    for (const Vincita &vincita : partita.vincite(scheda)) {
        const quint32 numero = partita.chiamate()[static_cast<size_t>(vincita.chiamata) - 1];
        lines << Serata::tr("%1: chiamata %2, numero %3")
                     .arg(premioText(vincita.premio))
                     .arg(vincita.chiamata)
                     .arg(numero);
    }
    if (lines.isEmpty()) {
        lines << Serata::tr("Nessuna vincita");
    }
    return lines;
}
} // namespace

void Serata::open(QWidget *parent, const Cartella &cartella, quint32 da, quint32 a)
{
    auto *window = parent->findChild<Serata *>(QString(), Qt::FindDirectChildrenOnly);
    if (window == nullptr) {
        auto opened = std::make_unique<Serata>(parent);
        if (!opened->openSet(cartella, {std::min(da, a), std::max(da, a)})) {
            return;
        }
        window = opened.release();
        window->setAttribute(Qt::WA_DeleteOnClose);
        placeOver(window, parent);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

Serata::Serata(QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , ui(std::make_unique<Ui::Serata>())
    , m_tombole(new ElencoSchede(&Partita::tombole, noteOfTombola, this))
    , m_quasiTombole(new ElencoSchede(&Partita::quasiTombole, noteOfQuasiTombola, this))
{
    initQuintraResources();
    ui->setupUi(this);
    setupCommands();
    setupBoard();
    setupLists();
    catchDigits();
    ui->numero_edit->setFocus();
}

Serata::~Serata() = default;

void Serata::setupCommands()
{
    connect(ui->actionChiama, &QAction::triggered, ui->numero_edit, qOverload<>(&QWidget::setFocus));
    connect(ui->actionControlla, &QAction::triggered, ui->scheda_edit, qOverload<>(&QWidget::setFocus));
    connect(ui->actionEstrai, &QAction::triggered, this, &Serata::draw);
    connect(ui->actionNuovaPartita, &QAction::triggered, this, &Serata::startGame);
    connect(ui->actionApriRegistro, &QAction::triggered, this, &Serata::chooseRegister);
    connect(ui->actionSchermoIntero, &QAction::triggered, this, &Serata::showWholeScreen);
    connect(ui->actionChiudi, &QAction::triggered, this, &QWidget::close);
    connect(ui->actionManuale, &QAction::triggered, this, [this]() { Manuale::openFor(this); });
    connect(ui->estrai_button, &QPushButton::clicked, this, &Serata::draw);
    connect(ui->numero_edit, &QLineEdit::returnPressed, this, &Serata::takeTypedNumber);
    connect(ui->scheda_edit, &QLineEdit::returnPressed, this, &Serata::takeTypedCard);
    connect(ui->controlla_button, &QPushButton::clicked, this, &Serata::takeTypedCard);
}

void Serata::setupBoard()
{
    connect(ui->tabellone, &Tabellone::numberChosen, this, &Serata::toggle);
    ui->scheda_table->setItemDelegate(new CaselleDelegate(ui->scheda_table));
    for (QHeaderView *header : {ui->scheda_table->horizontalHeader(), ui->scheda_table->verticalHeader()}) {
        header->setMinimumSectionSize(smallestCardColumn);
        header->setSectionResizeMode(QHeaderView::Stretch);
    }
}

void Serata::setupLists()
{
    ui->tombole_view->setModel(m_tombole);
    ui->quasi_view->setModel(m_quasiTombole);
    for (QListView *view : {ui->tombole_view, ui->quasi_view}) {
        connect(view, &QListView::activated, this, [this, view](const QModelIndex &index) {
            m_scheda = static_cast<const ElencoSchede *>(view->model())->schedaAt(index);
            showCard();
        });
    }
}

void Serata::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!isAsking(*this));
}

void Serata::catchDigits()
{
    for (QWidget *view : findChildren<QAbstractItemView *>()) {
        view->installEventFilter(this);
    }
}

// Views would look for a digit among their entries.
bool Serata::eventFilter(QObject *watched, QEvent *event)
{
    return (event->type() == QEvent::KeyPress && beginNumber(*static_cast<QKeyEvent *>(event))) ||
           QMainWindow::eventFilter(watched, event);
}

// Keys that the widget with the focus has no use for.
void Serata::keyPressEvent(QKeyEvent *event)
{
    if (!beginNumber(*event)) {
        QMainWindow::keyPressEvent(event);
    }
}

// A scanner types a card wherever the focus is: its first digit, if it is one, brings that to the field for numbers,
// which takes the others. Whether it was one.
bool Serata::beginNumber(const QKeyEvent &key)
{
    const QString text = key.text();
    const bool isCommand = (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (isCommand || text.size() != 1 || !text.at(0).isDigit()) {
        return false;
    }
    ui->numero_edit->setFocus();
    ui->numero_edit->setText(text);
    return true;
}

// The window leaves the full screen by other ways than its command, too.
void Serata::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        ui->actionSchermoIntero->setChecked(isFullScreen());
    }
}

void Serata::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    setFontSize(ui->ultimo_label, height() / lastNumberPart);
    setFontSize(ui->precedenti_label, height() / numbersBeforePart);
    ui->ultimo_label->setMinimumHeight(ui->ultimo_label->fontMetrics().height()); // also without a number
}

void Serata::startGame()
{
    const Partita &partita = m_serata->partita();
    NuovaPartita dialog(partita.numeri(), static_cast<int>(partita.chiamate().size()), this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    if (!m_serata->startGame(dialog.numeri())) {
        refuse(tr("La partita non si può cominciare."), m_serata->errorString());
        return;
    }
    ui->tabellone->setPartita(&partita);
    refresh();
    say(tr("Nuova partita, numeri da %1 a %2.").arg(partita.numeri().da).arg(partita.numeri().a));
}

void Serata::toggle(quint32 numero)
{
    const Partita &partita = m_serata->partita();
    if (!contains(partita.numeri(), numero)) {
        say(tr("Il numero %1 non è in gioco: i numeri vanno da %2 a %3!")
                .arg(numero)
                .arg(partita.numeri().da)
                .arg(partita.numeri().a));
        return;
    }
    if (!m_serata->toggle(numero)) {
        refuse(tr("La chiamata non si può salvare, nulla è cambiato."), m_serata->errorString());
        return;
    }
    refresh();
    const QString done = partita.turnOf(numero) > 0 ? tr("Chiamato il %1.") : tr("Tolto il %1.");
    say(done.arg(numero));
}

void Serata::draw()
{
    const std::vector<quint32> left = m_serata->partita().notCalled();
    if (left.empty()) {
        say(tr("Tutti i numeri sono stati chiamati!"));
        return;
    }
    toggle(drawOneOf(left));
}

// A scanner types a card into whatever field has the focus.
void Serata::takeTypedNumber()
{
    const QString text = ui->numero_edit->text().trimmed();
    ui->numero_edit->clear();
    bool isNumber = false;
    const uint numero = text.toUInt(&isNumber);
    if (isNumber) {
        toggle(numero);
    } else if (parsePosition(text)) {
        check(text);
    } else {
        say(tr("Scrivere un numero da %1 a %2!")
                .arg(m_serata->partita().numeri().da)
                .arg(m_serata->partita().numeri().a));
    }
}

void Serata::takeTypedCard()
{
    check(ui->scheda_edit->text());
    ui->scheda_edit->selectAll();
}

void Serata::check(const QString &text)
{
    const auto posizione = parsePosition(text);
    if (!posizione) {
        say(tr("Scrivere la pagina e la scheda, per esempio 12.3!"));
        return;
    }
    const auto found = m_serata->partita().find(*posizione);
    if (!found) {
        say(tr("La scheda %1 non esiste!").arg(positionText(*posizione)));
        return;
    }
    m_scheda = found;
    showCard();
    say(tr("Scheda %1.").arg(positionText(*posizione)));
}

void Serata::showWholeScreen(bool whole)
{
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, whole));
}

void Serata::refresh()
{
    ui->tabellone->refresh();
    showCalls();
    showLists();
    showCard();
}

void Serata::showCalls()
{
    const Partita &partita = m_serata->partita();
    const std::vector<quint32> &chiamate = partita.chiamate();
    ui->ultimo_label->setText(chiamate.empty() ? QString() : QString::number(chiamate.back()));
    ui->precedenti_label->setText(numbersBefore(chiamate));
    ui->chiamate_label->setText(
        tr("Numeri chiamati: %1 di %2").arg(chiamate.size()).arg(partita.numeri().a - partita.numeri().da + 1));
}

void Serata::showLists()
{
    const Partita &partita = m_serata->partita();
    showKeepingCurrent(ui->tombole_view, m_tombole, partita);
    showKeepingCurrent(ui->quasi_view, m_quasiTombole, partita);
    ui->tombole_label->setText(tr("Tombola: %1").arg(partita.tombole().size()));
    ui->quasi_label->setText(tr("In attesa di un numero: %1").arg(partita.quasiTombole().size()));
    ui->tombole_view->setAccessibleName(ui->tombole_label->text());
    ui->quasi_view->setAccessibleName(ui->quasi_label->text());
}

void Serata::showCard()
{
    ui->scheda_table->clear();
    ui->vincite_list->clear();
    if (!m_scheda) {
        ui->scheda_table->setRowCount(0);
        ui->esito_label->setText(tr("Nessuna scheda"));
        return;
    }
    const Partita &partita = m_serata->partita();
    const Scheda &scheda = partita.schede()[*m_scheda];
    ui->esito_label->setText(tr("Scheda %1").arg(positionText(scheda.posizione)));
    fill(ui->scheda_table, scheda, partita);
    ui->vincite_list->addItems(describe(partita, *m_scheda));
}

void Serata::say(const QString &text)
{
    ui->statusBar->showMessage(text);
}
