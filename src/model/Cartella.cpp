// SPDX-License-Identifier: MIT
#include "model/Cartella.h"

#include "model/Positions.h"

#include <QDebug>

#include <algorithm>

namespace {
constexpr int defaultPointSize = 30;

Riga emptyRow(U8 nCelle)
{
    Riga row;
    row.nCelle = nCelle;
    row.celle = std::make_unique<Cella[]>(nCelle);
    return row;
}

Blocco emptyBlock(U8 nRighe, U8 nCelle)
{
    Blocco block;
    block.nRighe = nRighe;
    block.righe = std::make_unique<Riga[]>(nRighe);
    std::generate_n(block.righe.get(), nRighe, [nCelle]() { return emptyRow(nCelle); });
    return block;
}

U8 widestRow(const Blocco &block)
{
    U8 widest = 0;
    for (const Riga &row : block) {
        widest = std::max(widest, row.nCelle);
    }
    return widest;
}

U8 widestRow(const Pagina &page)
{
    U8 widest = 0;
    for (const Blocco &block : page) {
        widest = std::max(widest, widestRow(block));
    }
    return widest;
}
} // namespace

const QFont &defaultCellFont()
{
    // Never destroyed: the toolkit's font engines, which a used font refers to, are gone before static objects.
    static const QFont *const font = new QFont(QStringLiteral("Arial"), defaultPointSize);
    return *font;
}

Cartella::Cartella() = default;

Cartella::Cartella(quint16 nPagine, U8 nBlocchi, U8 nRighe, U8 nCelle)
{
    pagine.reserve(nPagine);
    for (int p = 0; p < nPagine; ++p) {
        generateBlock(nBlocchi, nRighe, nCelle);
    }
}

Cartella::Cartella(U8 nBlocchi, U8 nRighe, U8 nCelle)
{
    generateBlock(nBlocchi, nRighe, nCelle);
}

Cartella::Cartella(const QVector<U8> &nBlocchi, const QVector<U8> &nRighe, const QVector<U8> &nCelle)
{
    generateBlocks(nBlocchi, nRighe, nCelle);
}

Cartella::~Cartella()
{
    if (pagineEsterne == 0) {
        qDeleteAll(pagine);
    }
}

bool Cartella::generateBlock(U8 nBlocchi, U8 nRighe, U8 nCelle)
{
    if (nBlocchi == 0) {
        qWarning() << "Cartella::generateBlock(): 0 block given to generate!";
        return false;
    }
    auto page = std::make_unique<Pagina>();
    page->nBlocchi = nBlocchi;
    page->blocchi = std::make_unique<Blocco[]>(nBlocchi);
    std::generate_n(page->blocchi.get(), nBlocchi, [=]() { return emptyBlock(nRighe, nCelle); });
    return appendPage(page.release());
}

bool Cartella::generateBlocks(const QVector<U8> &nBlocchi, const QVector<U8> &nRighe, const QVector<U8> &nCelle)
{
    // The length of the first call in the life of the program binds all later ones.
    static const int expectedLength = nBlocchi.size();
    if (nBlocchi.size() < expectedLength || nRighe.size() != expectedLength || nCelle.size() != expectedLength) {
        qWarning() << "Cartella::Cartella(multiple different blocks): array of different sizes.";
        return false;
    }
    for (int i = 0; i < expectedLength; ++i) {
        if (!generateBlock(nBlocchi[i], nRighe[i], nCelle[i])) {
            qWarning("Cartella::generateBlocks(): generate failed at block %d!", i);
        }
    }
    return true;
}

int Cartella::getNumPages() const
{
    return pagine.size();
}

U8 Cartella::getMaxColSize() const
{
    U8 widest = 0;
    for (const Pagina *page : pagine) {
        widest = std::max(widest, widestRow(*page));
    }
    return widest;
}

// In the queries below an index equal to the count is refused without a warning.

U8 Cartella::getMaxPageColSize(quint16 page) const
{
    if (page > pagine.size()) {
        qWarning() << "\nCartella::getMaxPageColSize(): requested page out of range!\n";
    }
    return page < pagine.size() ? widestRow(*pagine[page]) : U8(0);
}

U8 Cartella::getMaxBlockColSize(quint16 page, U8 block) const
{
    if (page > pagine.size()) {
        qWarning() << "\nCartella::getMaxBlockColSize(): requested page out of range!\n";
    }
    if (page >= pagine.size()) {
        return 0;
    }
    const Pagina &owner = *pagine[page];
    if (block > owner.nBlocchi) {
        qWarning() << "\nCartella::getMaxBlockColSize(): requested block out of range!\n";
    }
    return block < owner.nBlocchi ? widestRow(owner.blocchi[block]) : U8(0);
}

int Cartella::fromPage_Abs2Rel_BlockNum(quint16 page, int absRow, U8 &block, U8 &relRow) const
{
    if (page >= pagine.size() || absRow < 0) {
        return -1;
    }
    const Pagina &owner = *pagine[page];
    if (owner.nBlocchi == 0) {
        qWarning() << "Cartella::fromPage_Abs2Rel_BlockNum: Pagina hasn't blocks!";
        return -1;
    }
    const std::optional<RowPosition> position = rowPosition(owner, absRow);
    if (!position) {
        qWarning()
            << "Cartella::fromPage_Abs2Rel_BlockNum: Absolute rows number is greater than pagina's block number!";
        return -1;
    }
    block = static_cast<U8>(position->block);
    relRow = static_cast<U8>(position->row);
    return 1;
}

QString Cartella::cellType2String(CELL_VALUE type) const
{
    switch (type) {
    case CELL_NUMERO:
        return tr("numero");
    case CELL_TESTO:
        return tr("testo");
    case CELL_IMMAGINE:
        return tr("immagine");
    case CELL_VUOTA:
        return tr("vuota");
    }
    qFatal("Cartella::cellType2String - CELL_VALUE type unknown ERROR!");
}

bool Cartella::appendPage(Pagina *p)
{
    if (p == nullptr) {
        return false;
    }
    pagine.append(p);
    return true;
}

bool Cartella::insertPage(Pagina *p, quint16 index)
{
    if (p == nullptr) {
        return false;
    }
    pagine.insert(std::min<int>(index, pagine.size()), p);
    return true;
}

bool Cartella::prependPage(Pagina *p)
{
    return insertPage(p, 0);
}

bool Cartella::deletePage(quint16 index)
{
    if (index >= pagine.size()) {
        return false;
    }
    delete pagine.takeAt(index);
    return true;
}

std::optional<int> handOverPages(Cartella &temporary, Cartella &set)
{
    temporary.pagineEsterne = 1;
    for (int i = 0; i < temporary.pagine.size(); ++i) {
        if (!set.appendPage(temporary.pagine[i])) {
            temporary.pagine.remove(0, i); // these belong to the other set by now
            temporary.pagineEsterne = 0;
            return i;
        }
    }
    return std::nullopt;
}
