// SPDX-License-Identifier: MIT
#pragma once

#include "personale/PaginaPersonale.h"

#include <QObject>
#include <QPair>
#include <QString>
#include <QVector>

#include <vector>

// Turns hand-drawn pages into pages of the card set and fills them with numbers. Keeps nothing between calls; failures
// and warnings are appended to the caller's text.
class GeneraCartellaPersonale final : public QObject
{
    Q_OBJECT

public:
    // Appends one page per record to `cartella` and fills it. False at the first page that cannot be filled; the pages
    // appended until then stay.
    bool generaPagine(U16 pageCount, std::vector<PaginaPersonale> &pages, Cartella *cartella, int nmin, int nmax,
                      QString &errore);
    // Fills a page with numbers of the whole range. Always true; a page without numbers adds a warning. A page that
    // wants more numbers than there are gets zeros.
    bool riempiPagina(Pagina *pagina, PaginaPersonale &schema, int nmin, int nmax, QString &errore);
    // Fills a page column by column, each from a range of its own. False when a column wants more numbers than it has.
    bool riempiPerColonne(Pagina *pagina, PaginaPersonale &schema, int nmin, int nmax, QString &errore);
    // Why a column (0-based) cannot be filled from a range of rangeSize numbers; "?" for a negative column.
    QString messaggioColonna(int colonna, const QVector<int> &wanted, const QVector<QPair<int, int>> &ranges,
                             int rangeSize) const;
    // Why page `index` of a run could not be added. Its "%i" is not filled in.
    QString messaggioPagina(int index) const;

signals:
    void done();

private:
    bool appendPagine(int pageCount, const PaginaPersonale &schema, Cartella *cartella, QString &errore) const;
};
