// SPDX-License-Identifier: MIT
#include "output/SampleSets.h"

#include <QPainter>

std::unique_ptr<Cartella> SampleSets::classic(quint16 pages)
{
    auto set = std::make_unique<Cartella>(pages, U8{blocks}, U8{rows}, U8{columns});
    for (int p = 0; p < pages; ++p) {
        quint32 number = 0;
        for (size_t b = 0; b < blocks; ++b) {
            for (size_t r = 0; r < rows; ++r) {
                // Steps of two cells never meet again within nine.
                for (size_t i = 0; i < drawnPerRow; ++i) {
                    const size_t column = (static_cast<size_t>(p) + b + r + 2 * i) % columns;
                    setNumber(set->pagine.at(p)->blocchi[b].righe[r].celle[column], ++number);
                }
            }
        }
    }
    return set;
}

std::unique_ptr<Cartella> SampleSets::singleBlock(U8 rowCount, U8 columnCount)
{
    return std::make_unique<Cartella>(U8{1}, rowCount, columnCount);
}

Blocco &SampleSets::block(Cartella &set, int index)
{
    return set.pagine.first()->blocchi[static_cast<size_t>(index)];
}

Cella &SampleSets::cell(Cartella &set, int row, int column)
{
    return block(set).righe[static_cast<size_t>(row)].celle[static_cast<size_t>(column)];
}

void SampleSets::forEachCell(Cartella &set, const std::function<void(Cella &)> &change)
{
    for (Pagina *page : qAsConst(set.pagine)) {
        for (size_t b = 0; b < page->nBlocchi; ++b) {
            Blocco &oneBlock = page->blocchi[b];
            for (size_t r = 0; r < oneBlock.nRighe; ++r) {
                for (size_t c = 0; c < oneBlock.righe[r].nCelle; ++c) {
                    change(oneBlock.righe[r].celle[c]);
                }
            }
        }
    }
}

void SampleSets::setNumber(Cella &cell, quint32 number)
{
    cell.tipo = CELL_NUMERO;
    cell.numero = number;
}

void SampleSets::setText(Cella &cell, const QString &text)
{
    cell.tipo = CELL_TESTO;
    cell.testo = text;
}

void SampleSets::setPicture(Cella &cell, const QImage &picture)
{
    cell.tipo = CELL_IMMAGINE;
    cell.immagine = picture;
}

QImage SampleSets::twoColoredPicture(const QSize &size, const QColor &upper, const QColor &lower)
{
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(upper);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(0, size.height() / 2, size.width(), size.height() - size.height() / 2, lower);
    return picture;
}
