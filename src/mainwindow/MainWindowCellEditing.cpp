// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "generation/CellImage.h"
#include "generation/DefaultCell.h"
#include "mainwindow/PageTable.h"
#include "msgarea/MemoryQuestion.h"
#include "msgarea/WaitCursor.h"
#include "settings/Product.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCursor>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTableWidget>

namespace {
// A picture as the icon of a message box, at most this large in both directions (pixels).
QPixmap iconOf(const QImage &image)
{
    constexpr int largest = 256;
    if (image.width() <= largest && image.height() <= largest) {
        return QPixmap::fromImage(image);
    }
    return QPixmap::fromImage(image.scaled(largest, largest, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

// A large one takes its time.
QImage readPicture(QWidget *window, const QString &path)
{
    letClosedDialogsDisappear();
    const WaitCursor wait(window);
    return loadCellImage(path);
}

// A mouse press elsewhere ends the editing of a cell before it reaches the widget it is meant for. Its release goes to
// the questions that are asked meanwhile: a spin box would then count on for ever, a button stay pressed. This sends
// the release after the press.
class LostMouseRelease final
{
public:
    LostMouseRelease()
        : m_pressed(QGuiApplication::mouseButtons() == Qt::LeftButton ? QApplication::focusWidget() : nullptr)
        , m_position(QCursor::pos())
    {
    }
    ~LostMouseRelease()
    {
        if (!m_pressed.isNull() && QGuiApplication::mouseButtons() == Qt::NoButton) {
            // NOLINTNEXTLINE(bugprone-unhandled-exception-at-new): without memory for an event the program ends anyway
            QCoreApplication::postEvent(m_pressed, new QMouseEvent(QEvent::MouseButtonRelease,
                                                                   m_pressed->mapFromGlobal(m_position), m_position,
                                                                   Qt::LeftButton, Qt::NoButton, Qt::NoModifier));
        }
    }
    Q_DISABLE_COPY_MOVE(LostMouseRelease)

private:
    QPointer<QWidget> m_pressed; // took the focus by the press
    QPoint m_position;           // on the screen
};

// What a cell shows; its look stays.
void setContent(Cella &cell, const Cella &content)
{
    cell.tipo = content.tipo;
    switch (content.tipo) {
    case CELL_NUMERO:
        cell.numero = content.numero;
        break;
    case CELL_TESTO:
        cell.testo = content.testo;
        break;
    case CELL_IMMAGINE:
        cell.immagine = content.immagine;
        break;
    case CELL_VUOTA:
        break;
    }
}
} // namespace

void MainWindow::tableItemChanged(QTableWidgetItem *item)
{
    if (m_editGuard) {
        return;
    }
    if (const std::optional<TablePosition> place = typedPlace(item)) {
        takeTypedText(*place, item->text());
    }
}

// The cell of the page shown that was typed into. Nothing for a filler, nor when something is missing, which is told.
std::optional<TablePosition> MainWindow::typedPlace(const QTableWidgetItem *item)
{
    const QString title = Product::titleFor(tr("Modifica valori"));
    const Pagina *page = shownPage();
    if (page == nullptr) {
        QMessageBox::critical(this, title, tr("Errore durante la modifica del valore nella tabella."));
        return std::nullopt;
    }
    if (item == nullptr || item->tableWidget() == nullptr || item->row() < 0) {
        QMessageBox::warning(this, title, tr("Problema durante la modifica del valore nella tabella."));
        return std::nullopt;
    }
    const TablePosition place{item->row(), item->column()};
    return cellAt(*page, place.row, place.column) != nullptr ? std::make_optional(place) : std::nullopt;
}

// The questions run loops of their own: afterwards the page may be gone, or be shown by another table.
void MainWindow::takeTypedText(const TablePosition &place, const QString &text)
{
    Pagina *const page = shownPage();
    const CELL_VALUE before = cellAt(*page, place.row, place.column)->tipo;
    const WatchedPages::Hold asked(m_watchedPages, page);
    QTableWidget *const table = m_table;
    const bool askedAlready = m_tableAsking == table; // this is in the middle of another question
    const bool keyboardInTable = table->isAncestorOf(QApplication::focusWidget());
    Cella typed;
    {
        const LostMouseRelease release;
        const QScopedValueRollback<QTableWidget *> asking(m_tableAsking, table);
        typed = askWhatIsTyped(text);
    }
    if (m_table != table && !askedAlready) {
        table->deleteLater();
    }
    Cella *cell = asked.page() != nullptr ? cellAt(*asked.page(), place.row, place.column) : nullptr;
    if (cell == nullptr) {
        return;
    }
    setContent(*cell, typed);
    if (asked.page() == shownPage()) {
        showContent(place, m_table == table && cell->tipo == before && !text.isEmpty());
        tableItemSelectionChanged();
        if (keyboardInTable) { // which a question took away
            m_table->setCurrentCell(place.row, place.column, QItemSelectionModel::NoUpdate);
            m_table->setFocus();
        }
    }
    cardSetChanged();
}

// Of the page shown. An item that is right as it was typed keeps that.
void MainWindow::showContent(const TablePosition &place, bool asTyped)
{
    QTableWidgetItem *item = m_table->item(place.row, place.column);
    const Cella &cell = *cellAt(*shownPage(), place.row, place.column);
    const QScopedValueRollback<bool> guard(m_editGuard, true);
    item->setToolTip(cellTip(cell));
    if (!asTyped) {
        item->setText(cellText(cell, DefaultCell::text()));
    }
}

// Delete and Backspace: the selected cells become what nothing typed into them makes them, asked once for all.
void MainWindow::clearSelectedCells()
{
    Pagina *page = shownPage();
    if (page == nullptr) {
        return;
    }
    const QVector<TablePosition> places = withCell(*page, selectedPositions());
    if (places.isEmpty()) {
        return;
    }
    const WatchedPages::Hold asked(m_watchedPages, page);
    const Cella typed = askWhatIsTyped(QString());
    letClosedDialogsDisappear();
    if (asked.page() == nullptr) {
        return;
    }
    const WaitCursor wait(this);
    const bool shown = asked.page() == shownPage();
    for (const TablePosition &place : places) {
        if (Cella *cell = cellAt(*asked.page(), place.row, place.column)) {
            setContent(*cell, typed);
            if (shown) {
                showContent(place, false);
            }
        }
    }
    tableItemSelectionChanged(); // once: it looks at all selected cells
    cardSetChanged();
}

// A number is taken at once; of anything else the user says what it is to be. Only the content of the result counts.
Cella MainWindow::askWhatIsTyped(const QString &text)
{
    Cella typed;
    if (const std::optional<quint32> number = typedNumber(text)) {
        typed.tipo = CELL_NUMERO;
        typed.numero = *number;
        return typed;
    }
    const QString title = Product::titleFor(tr("Modifica valori"));
    if (QMessageBox::question(this, title, tr("Vuoi impostare il valore come STRINGA?")) == QMessageBox::Yes) {
        typed.tipo = CELL_TESTO;
        typed.testo = text;
        return typed;
    }
    if (QMessageBox::question(this, title, tr("Vuoi impostare il valore come CELLA VUOTA?")) == QMessageBox::Yes) {
        return typed;
    }
    QMessageBox::information(this, title,
                             tr("Cella impostata come IMMAGINE.\nIl percorso dell'immagine deve essere scelto tramite "
                                "il pannello a lato."));
    typed.tipo = CELL_IMMAGINE;
    typed.immagine = DefaultCell::image();
    return typed;
}

void MainWindow::on_buttSelezionaImmagine_clicked()
{
    const Cella *selected = selectedImageCell();
    if (selected == nullptr) {
        return;
    }
    const WatchedPages::Hold asked(m_watchedPages, shownPage());
    const TablePosition place = selectedPositions().first();
    const QImage present = selected->immagine;
    if (!present.isNull() &&
        !confirmImage(tr("L'immagine per la cella selezionata è quella visibile. La si vuole Cambiare?"), present)) {
        return;
    }
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Apre un'immagine da inserire nella cella"), QFileInfo(DefaultCell::imagePath()).absolutePath(),
        tr("JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)"), &m_imageFilter);
    if (path.isEmpty()) {
        qWarning("MainWindow::on_buttSelezionaImmagine_clicked(): Image file null or empty");
        return;
    }
    QImage image;
    if (!withinMemory(this, Product::titleFor(tr("Modifica valori")), [&]() { image = readPicture(this, path); })) {
        return;
    }
    if (!confirmImage(tr("L'immagine per la cella selezionata è quella visisbile. Proseguire?"), image)) {
        return;
    }
    // The boxes ran loops of their own: the page may be gone, the cell hold something else.
    Cella *cell = asked.page() != nullptr ? cellAt(*asked.page(), place.row, place.column) : nullptr;
    if (cell != nullptr && cell->tipo == CELL_IMMAGINE) {
        cell->immagine = image;
        if (asked.page() == shownPage()) {
            showContent(place, true);
            tableItemSelectionChanged();
        }
        cardSetChanged();
        updateStatusBar(tr("Immagine impostata correttamente."));
    }
}

// The one selected cell, an image cell; null, and a warning logged, when the selection is anything else.
const Cella *MainWindow::selectedImageCell() const
{
    const Selezione selected = selection();
    if (selected.places != 1) {
        qWarning("MainWindow::on_buttSelezionaImmagine_clicked() REQUIRE ONLY ONE ITEM SELECTED!!!");
        return nullptr;
    }
    if (selected.cell == nullptr || selected.cell->tipo != CELL_IMMAGINE) {
        qWarning("MainWindow::on_buttSelezionaImmagine_clicked() REQUIRE A CELL-IMAGE TYPE!!!");
        return nullptr;
    }
    return selected.cell;
}

// An unreadable picture is asked about without one.
bool MainWindow::confirmImage(const QString &question, const QImage &image)
{
    QMessageBox box(this);
    box.setWindowTitle(Product::titleFor(tr("Modifica valori")));
    box.setText(tr("Selezione immagine cella"));
    box.setInformativeText(question);
    box.setIconPixmap(iconOf(image));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}
