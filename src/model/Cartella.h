// SPDX-License-Identifier: MIT
#pragma once

#include "model/Types.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QObject>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

// What a cell shows. The values are fixed: mapping files and translations rely on them.
enum CELL_VALUE : qint32 {
    CELL_NUMERO = 0,
    CELL_TESTO = 1,
    CELL_IMMAGINE = 2,
    CELL_VUOTA = 3,
};

// The font of every new cell, "Arial" 30 points. One shared object: copies cost nothing.
const QFont &defaultCellFont();

// The records are open: other code reads and writes their fields. A count always equals the length of its array.
// Range-based for walks the parts of a record; those of a const record are const.

struct Cella
{
    CELL_VALUE tipo = CELL_VUOTA;
    QString testo;      // of a CELL_TESTO cell
    quint32 numero = 0; // of a CELL_NUMERO cell, else without meaning
    QImage immagine;    // of a CELL_IMMAGINE cell
    QFont font = defaultCellFont();
    QColor coloreTesto = Qt::black;
    QColor coloreSfondo = Qt::white;
};

struct Riga
{
    U8 nCelle = 0;
    std::unique_ptr<Cella[]> celle; // left to right

    friend Cella *begin(Riga &row) { return row.celle.get(); }
    friend Cella *end(Riga &row) { return begin(row) + row.nCelle; }
    friend const Cella *begin(const Riga &row) { return row.celle.get(); }
    friend const Cella *end(const Riga &row) { return begin(row) + row.nCelle; }
};

struct Blocco
{
    U8 nRighe = 0;
    std::unique_ptr<Riga[]> righe;   // top to bottom
    qint32 spessoreLineaEsterna = 1; // pen widths; 0 is the thinnest pen
    qint32 spessoreLineaInterna = 0;
    QColor coloreLineaEsterna = Qt::black;
    QColor coloreLineaInterna = Qt::black;

    friend Riga *begin(Blocco &block) { return block.righe.get(); }
    friend Riga *end(Blocco &block) { return begin(block) + block.nRighe; }
    friend const Riga *begin(const Blocco &block) { return block.righe.get(); }
    friend const Riga *end(const Blocco &block) { return begin(block) + block.nRighe; }
};

struct Pagina
{
    U8 nBlocchi = 0;
    std::unique_ptr<Blocco[]> blocchi; // top to bottom
    QColor sfondo = Qt::white;
    float spazioBlocchi = 1.2F; // millimetres between blocks

    friend Blocco *begin(Pagina &page) { return page.blocchi.get(); }
    friend Blocco *end(Pagina &page) { return begin(page) + page.nBlocchi; }
    friend const Blocco *begin(const Pagina &page) { return page.blocchi.get(); }
    friend const Blocco *end(const Pagina &page) { return begin(page) + page.nBlocchi; }
};

// The card set: an ordered list of pages of blocks (the cards) of rows of cells. All indices are 0-based.
// A refused call returns false, 0 or -1 and leaves the set unchanged; most write a debug warning.
class Cartella final : public QObject
{
    Q_OBJECT

public:
    Cartella();
    // nPagine equal pages of empty cells.
    Cartella(quint16 nPagine, U8 nBlocchi, U8 nRighe, U8 nCelle);
    // One page of empty cells.
    Cartella(U8 nBlocchi, U8 nRighe, U8 nCelle);
    // One page per vector index, see generateBlocks().
    Cartella(const QVector<U8> &nBlocchi, const QVector<U8> &nRighe, const QVector<U8> &nCelle);
    // Deletes the pages, unless pagineEsterne is set.
    ~Cartella() override;
    Q_DISABLE_COPY_MOVE(Cartella)

    // Appends a page of empty cells. False without blocks.
    bool generateBlock(U8 nBlocchi, U8 nRighe, U8 nCelle);
    // Appends one page per index. False when the length of nRighe or nCelle differs from that of nBlocchi at the first
    // call in the life of the program, or nBlocchi is shorter than that; a page that cannot be built is skipped and
    // does not make the result false.
    bool generateBlocks(const QVector<U8> &nBlocchi, const QVector<U8> &nRighe, const QVector<U8> &nCelle);

    int getNumPages() const;
    // Largest cell count of any row of the set, of a page, of a block; 0 when there is none.
    U8 getMaxColSize() const;
    U8 getMaxPageColSize(quint16 page) const;
    U8 getMaxBlockColSize(quint16 page, U8 block) const;

    // Turns a row counted over the whole page into a block and a row of that block. 1 on success; -1 when the page has
    // no such row, the two results are then unchanged.
    int fromPage_Abs2Rel_BlockNum(quint16 page, int absRow, U8 &block, U8 &relRow) const;

    // Translated display name. An unknown type stops the program.
    QString cellType2String(CELL_VALUE type) const;

    // The set takes ownership of p; false for a null one. An index beyond the end appends.
    bool appendPage(Pagina *p);
    bool insertPage(Pagina *p, quint16 index);
    bool prependPage(Pagina *p);
    // False when there is no such page.
    bool deletePage(quint16 index);

    // Compares every block with every block of every earlier page; the number of equal pairs. One line per pair is
    // appended to risultati, the counters are written to sommario; either may be null.
    qint64 checkForEqualBlocks(QVector<QString> *risultati = nullptr, QString *sommario = nullptr);
    // The first `most` lines that checkForEqualBlocks() would give, without progress.
    QVector<QString> equalBlockLines(qint64 most) const;

    QVector<Pagina *> pagine;      // owned, in display and print order
    U8 pagineEsterne = 0;          // not 0: the pages belong to another set
    double margineSuperiore = 3.0; // millimetres
    double margineInferiore = 3.0;
    double margineSinistro = 2.0;
    double margineDestro = 2.0;
    qint32 formato = 0; // a QPagedPaintDevice::PageSize, A4

signals:
    // Progress of checkForEqualBlocks(), once per page.
    void checkForEqualBlocksStatus(const QString &status);
};

// Gives all pages of a temporary set to another one, at its end; pagineEsterne is then set. None when all went over,
// else the index of the page that was refused: it and those after it stay with the temporary set.
[[nodiscard]] std::optional<int> handOverPages(Cartella &temporary, Cartella &set);
