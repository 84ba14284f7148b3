// SPDX-License-Identifier: MIT
#include "output/ReferencePainter.h"

#include "model/Cartella.h"

#include <QPainter>
#include <QPrinter>

QT_WARNING_PUSH
// The former names of the printer's settings: the ones in use now must mean the same.
QT_WARNING_DISABLE_DEPRECATED

namespace {
struct Place
{
    float x;
    float y;
    float w;
    float h;
};

QRectF rectOf(const Place &place)
{
    return {static_cast<qreal>(place.x), static_cast<qreal>(place.y), static_cast<qreal>(place.w),
            static_cast<qreal>(place.h)};
}

void paintCell(QPainter &painter, QPen &pen, const Cella &cell, const Place &place, const QColor &pageColor)
{
    pen.setColor(cell.coloreTesto);
    painter.setPen(pen);
    painter.setFont(cell.font);
    if (cell.tipo != CELL_IMMAGINE && cell.coloreSfondo != pageColor) {
        painter.fillRect(rectOf(place), cell.coloreSfondo);
    }
    if (cell.tipo == CELL_TESTO) {
        painter.drawText(rectOf(place), Qt::AlignCenter, cell.testo);
    } else if (cell.tipo == CELL_NUMERO) {
        painter.drawText(rectOf(place), Qt::AlignCenter, QString::asprintf("%i", static_cast<int>(cell.numero)));
    } else if (cell.tipo == CELL_IMMAGINE) {
        painter.drawImage(rectOf(place), cell.immagine, QRectF(0, 0, cell.immagine.width(), cell.immagine.height()));
    }
}

void drawSeparator(QPainter &painter, QPen &pen, const Blocco &block, const QPointF &from, const QPointF &to)
{
    pen.setColor(block.coloreLineaInterna);
    pen.setWidth(block.spessoreLineaInterna);
    painter.setPen(pen);
    painter.drawLine(from, to);
}

void paintBlock(QPainter &painter, QPen &pen, const Blocco &block, const Place &place, const QColor &pageColor)
{
    for (int r = 0; r < block.nRighe; ++r) {
        const Riga &row = block.righe[static_cast<size_t>(r)];
        const float rows = block.nRighe;
        const float y = place.y + static_cast<float>(r) * place.h / rows;
        const float h = place.h / rows;
        for (int c = 0; c < row.nCelle; ++c) {
            const float w = place.w / static_cast<float>(row.nCelle);
            const float x = place.x + static_cast<float>(c) * w;
            paintCell(painter, pen, row.celle[static_cast<size_t>(c)], {x, y, w, h}, pageColor);
            if (c > 0) {
                drawSeparator(painter, pen, block, rectOf({x, y, w, h}).topLeft(), rectOf({x, y, w, h}).bottomLeft());
            }
        }
        if (r > 0) {
            drawSeparator(painter, pen, block, QPointF(static_cast<qreal>(place.x), static_cast<qreal>(y)),
                          QPointF(static_cast<qreal>(place.x + place.w), static_cast<qreal>(y)));
        }
    }
    pen.setColor(block.coloreLineaEsterna);
    pen.setWidth(block.spessoreLineaEsterna);
    painter.setPen(pen);
    painter.drawRect(rectOf(place));
}

void setUp(QPrinter &printer, const Cartella &set, const QString &fileName)
{
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(fileName);
    printer.setPaperSize(static_cast<QPagedPaintDevice::PageSize>(set.formato));
    printer.setPageMargins(set.margineSinistro, set.margineSuperiore, set.margineDestro, set.margineInferiore,
                           QPrinter::Millimeter);
}
} // namespace

bool printReference(const Cartella &set, const QString &fileName)
{
    QPrinter printer(QPrinter::ScreenResolution);
    setUp(printer, set, fileName);
    const QRect paper = printer.paperRect();
    const float paperW = static_cast<float>(paper.right() - paper.left() + 1);
    const float paperH = static_cast<float>(paper.bottom() - paper.top() + 1);
    const float fx = static_cast<float>(static_cast<double>(paperW) / printer.pageSizeMM().width());
    const float fy = static_cast<float>(static_cast<double>(paperH) / printer.pageSizeMM().height());
    const float left = static_cast<float>(set.margineSinistro) * fx;
    const float right = static_cast<float>(set.margineDestro) * fx;
    const float top = static_cast<float>(set.margineSuperiore) * fy;
    const float bottom = static_cast<float>(set.margineInferiore) * fy;

    QPen pen;
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    for (int p = 0; p < set.getNumPages(); ++p) {
        if (p > 0 && !printer.newPage()) {
            return false;
        }
        const Pagina &page = *set.pagine.at(p);
        painter.fillRect(QRectF(paper), page.sfondo);
        const float spacing = page.spazioBlocchi * fy;
        const float height = (paperH - 2.0F * top - bottom) / static_cast<float>(page.nBlocchi) - spacing;
        const float width = paperW - 2.0F * left - right;
        for (int b = 0; b < page.nBlocchi; ++b) {
            paintBlock(painter, pen, page.blocchi[static_cast<size_t>(b)],
                       {left, top + static_cast<float>(b) * (spacing + height), width, height}, page.sfondo);
        }
    }
    return painter.end();
}

QT_WARNING_POP
