// SPDX-License-Identifier: MIT
#include "mainwindow/PagePreview.h"

#include "generation/GUtils.h"
#include "model/Cartella.h"
#include "output/CreateOutputFile.h"
#include "output/PageImage.h"
#include "settings/Product.h"
#include "ui_PagePreview.h"
#include "widgets/WindowPlace.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>

// The sheet itself. Its picture is made when it is first looked at, and kept until the page or the size changes.
class Foglio final : public QWidget
{
public:
    using QWidget::QWidget;

    // Null for no page.
    void showPage(const Cartella *set, int page, bool numbered)
    {
        m_set = set;
        m_page = page;
        m_numbered = numbered;
        m_image = QImage();
        update();
    }

    // Of the sheet of the set shown, in dots.
    QSize naturalSize() const { return sheetSize(*m_set, m_resolution); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (m_set.isNull()) {
            return;
        }
        const QSize pixels = size() * devicePixelRatioF();
        if (m_image.size() != pixels) {
            m_image = pageImage(*m_set, m_page, pixels, m_resolution, m_numbered);
        }
        QPainter(this).drawImage(rect(), m_image);
    }

private:
    const int m_resolution = printingResolution();
    QPointer<const Cartella> m_set;
    int m_page = -1;
    bool m_numbered = false;
    QImage m_image;
};

namespace {
// A screen reader takes the sheet for a picture, not for just any part of a window.
QAccessibleInterface *previewInterface(const QString &, QObject *object)
{
    auto *sheet = dynamic_cast<Foglio *>(object);
    if (sheet == nullptr) {
        return nullptr;
    }
    return new QAccessibleWidget(sheet, QAccessible::Graphic); // the toolkit owns it
}
} // namespace

PagePreview::PagePreview(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::PagePreview>())
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(Product::titleFor(tr("Anteprima di stampa")));
    QAccessible::installFactory(previewInterface);
    m_sheet = new Foglio;
    ui->foglio_scrollArea->setWidget(m_sheet);
    const auto turnBack = [this]() { wantPage(m_page - 1); };
    const auto turnOver = [this]() { wantPage(m_page + 1); };
    placeOver(this, parent);
    connect(ui->precedente_button, &QPushButton::clicked, this, turnBack);
    connect(ui->successiva_button, &QPushButton::clicked, this, turnOver);
    // Also from the zoom and from the sheet, which have a use of their own for these keys.
    auto *back = new QShortcut(Qt::Key_PageUp, this);
    auto *over = new QShortcut(Qt::Key_PageDown, this);
    back->setWhatsThis(ui->precedente_button->toolTip());
    over->setWhatsThis(ui->successiva_button->toolTip());
    connect(back, &QShortcut::activated, this, turnBack);
    connect(over, &QShortcut::activated, this, turnOver);
    connect(ui->zoom_comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PagePreview::fitSheet);
}

PagePreview::~PagePreview() = default;

void PagePreview::showPage(const Cartella *set, int page, bool numbered)
{
    const bool exists = set != nullptr && page >= 0 && page < set->getNumPages();
    m_set = exists ? set : nullptr;
    m_page = exists ? page : -1;
    m_sheet->showPage(m_set, m_page, numbered);
    showTexts();
    fitSheet();
}

void PagePreview::showTexts()
{
    const int pages = m_set.isNull() ? 0 : m_set->getNumPages();
    ui->precedente_button->setEnabled(m_page > 0);
    ui->successiva_button->setEnabled(m_page + 1 < pages);
    if (m_set.isNull()) {
        ui->pagina_label->setText(tr("La cartella è vuota!"));
    } else {
        const QString format = GUtils::paperFormatName(m_set->formato);
        ui->pagina_label->setText(tr("Pagina %1 di %2, %3").arg(m_page + 1).arg(pages).arg(format));
    }
    m_sheet->setAccessibleName(ui->pagina_label->text());
}

// A page that the set does not have is not asked for.
void PagePreview::wantPage(int page)
{
    if (!m_set.isNull() && page >= 0 && page < m_set->getNumPages()) {
        emit pageWanted(page);
    }
}

void PagePreview::fitSheet()
{
    m_sheet->setVisible(!m_set.isNull());
    if (!m_set.isNull()) {
        m_sheet->resize(sheetSizeNow());
    }
}

QSize PagePreview::sheetSizeNow() const
{
    const QSize sheet = m_sheet->naturalSize();
    const QScrollArea *area = ui->foglio_scrollArea;
    const QSize room = area->maximumViewportSize();
    switch (ui->zoom_comboBox->currentIndex()) {
    case FitPage:
        return sheet.scaled(room, Qt::KeepAspectRatio);
    case FitWidth: {
        const int width = room.width() - area->verticalScrollBar()->sizeHint().width();
        return sheet.scaled(width, QWIDGETSIZE_MAX, Qt::KeepAspectRatio);
    }
    default:
        return sheet;
    }
}

void PagePreview::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    fitSheet();
}

void PagePreview::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    fitSheet();
}
