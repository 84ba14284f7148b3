// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"
#include "settings/RigheSaltate.h"

#include <QChar>
#include <QString>

#include <functional>
#include <vector>

class QTextStream;

// Hand-drawn schemes as text: one line per page, its row count as a character, then one letter per cell.
namespace MappingFile {

struct CellaSchema
{
    CELL_VALUE tipo = CELL_VUOTA;
    bool spuntata = false;
};

// The cells stand in row-major order; there are always nRighe x nColonne of them.
struct SchemaPagina
{
    U8 nRighe = 0;
    U8 nColonne = 0;
    std::vector<CellaSchema> celle;
};

// Why a line gives no page.
enum class Motivo {
    Vuota,        // no character at all
    SenzaRighe,   // the first character stands for no row count
    TroppoCorta,  // not even one cell per row
    TroppePagine, // more pages than an editor holds
};

using RigheSaltate = ::RigheSaltatePer<Motivo>;

struct Lettura
{
    std::vector<SchemaPagina> pagine;
    std::vector<RigheSaltate> saltate;
};

QChar letterOf(const CellaSchema &cella);
CellaSchema cellOf(QChar letter);

void writePage(QTextStream &stream, const SchemaPagina &pagina);
// Whether the line of such a page is read back as it was: only 8 bits of its length count, the character of its row
// count must be one of Latin-1, and a line without letters gives no page.
bool comesBackWhole(const SchemaPagina &pagina);
// Reads to the end of the stream; lineRead is told the number of lines read so far. Never fails: odd lines are skipped.
Lettura read(QTextStream &stream, const std::function<void(int)> &lineRead);

// The skipped lines and why, for the user. Long lists are cut after their first entries.
QString describe(const std::vector<RigheSaltate> &saltate);

} // namespace MappingFile
