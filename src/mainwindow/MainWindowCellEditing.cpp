// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "generation/CellImage.h"
#include "generation/DefaultCell.h"
#include "mainwindow/PageTable.h"
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
} // namespace

void MainWindow::tableItemChanged(QTableWidgetItem *item)
{
    if (m_editGuard) {
        return;
    }
    const QString title = Product::titleFor(tr("Modifica valori"));
    Pagina *page = shownPage();
    if (page == nullptr) {
        QMessageBox::critical(this, title, tr("Errore durante la modifica del valore nella tabella."));
        return;
    }
    if (item == nullptr || item->tableWidget() == nullptr || item->row() < 0) {
        QMessageBox::warning(this, title, tr("Problema durante la modifica del valore nella tabella."));
        return;
    }
    Cella *cell = cellAt(*page, item->row(), item->column());
    if (cell == nullptr) { // a filler
        return;
    }

    QTableWidget *const table = m_table;
    const CELL_VALUE before = cell->tipo;
    {
        const LostMouseRelease release;
        const QScopedValueRollback<QTableWidget *> asking(m_tableAsking, table);
        setTypedText(cell, item->text());
    }
    updatePreview();
    if (m_table != table) { // the page was loaded anew meanwhile: the item's table is not shown any more
        table->deleteLater();
        return;
    }
    if (cell->tipo != before || item->text().isEmpty()) {
        const QScopedValueRollback<bool> guard(m_editGuard, true);
        item->setText(cellText(*cell, DefaultCell::text()));
    }
    if (item->isSelected()) {
        tableItemSelectionChanged();
    }
}

// A number is taken at once; of anything else the user says what it is to be.
void MainWindow::setTypedText(Cella *cell, const QString &text)
{
    if (const std::optional<quint32> number = typedNumber(text)) {
        cell->tipo = CELL_NUMERO;
        cell->numero = *number;
        return;
    }
    const QString title = Product::titleFor(tr("Modifica valori"));
    if (QMessageBox::question(this, title, tr("Vuoi impostare il valore come STRINGA?")) == QMessageBox::Yes) {
        cell->tipo = CELL_TESTO;
        cell->testo = text;
        return;
    }
    if (QMessageBox::question(this, title, tr("Vuoi impostare il valore come CELLA VUOTA?")) == QMessageBox::Yes) {
        cell->tipo = CELL_VUOTA;
        return;
    }
    QMessageBox::information(this, title,
                             tr("Cella impostata come IMMAGINE.\nIl percorso dell'immagine deve essere scelto tramite "
                                "il pannello a lato."));
    cell->tipo = CELL_IMMAGINE;
    cell->immagine = DefaultCell::image();
}

void MainWindow::on_buttSelezionaImmagine_clicked()
{
    Cella *cell = selectedImageCell();
    if (cell == nullptr) {
        return;
    }
    if (!cell->immagine.isNull() &&
        !confirmImage(tr("L'immagine per la cella selezionata è quella visibile. La si vuole Cambiare?"),
                      cell->immagine)) {
        return;
    }
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Apre un'immagine da inserire nella cella"), QFileInfo(DefaultCell::imagePath()).absolutePath(),
        tr("JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)"));
    if (path.isEmpty()) {
        qWarning("MainWindow::on_buttSelezionaImmagine_clicked(): Image file null or empty");
        return;
    }
    const QImage image = loadCellImage(path);
    if (confirmImage(tr("L'immagine per la cella selezionata è quella visisbile. Proseguire?"), image)) {
        cell->immagine = image;
        updatePreview();
        updateStatusBar(tr("Immagine impostata correttamente."));
    }
}

// The one selected cell, an image cell; null, and a warning logged, when the selection is anything else.
Cella *MainWindow::selectedImageCell() const
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
