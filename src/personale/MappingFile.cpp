// SPDX-License-Identifier: MIT
#include "personale/MappingFile.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

namespace MappingFile {
namespace {
constexpr int rowCountBase = 32;   // a page of n rows starts with the character of code n + 32
constexpr int lengthModulus = 256; // of a line's length only the low 8 bits give the column count
constexpr size_t mostPages = std::numeric_limits<U16>::max();

class MappingFileText
{
    Q_DECLARE_TR_FUNCTIONS(MappingFile)
};

// By type.
const QString untickedLetters = QStringLiteral("nsio");
const QString tickedLetters = QStringLiteral("NSIO");

// Fills `pagina` from a line; the reason when the line gives none.
std::optional<Motivo> decode(const QString &line, SchemaPagina &pagina)
{
    if (line.isEmpty()) {
        return Motivo::Vuota;
    }
    const auto code = static_cast<quint8>(line.at(0).toLatin1()); // 0 above U+00FF
    if (line.at(0).unicode() <= rowCountBase) {
        return Motivo::SenzaRighe;
    }
    const int letters = line.size() - 1;
    pagina.nRighe = static_cast<U8>(code - rowCountBase);
    if (letters < pagina.nRighe) {
        return Motivo::TroppoCorta;
    }
    pagina.nColonne = static_cast<U8>(letters % lengthModulus / pagina.nRighe);
    const int cells = pagina.nRighe * pagina.nColonne;
    pagina.celle.reserve(static_cast<size_t>(cells));
    std::transform(line.cbegin() + 1, line.cbegin() + 1 + cells, std::back_inserter(pagina.celle), cellOf);
    return std::nullopt;
}

QString reasonText(Motivo motivo)
{
    switch (motivo) {
    case Motivo::Vuota:
        return MappingFileText::tr("nessun contenuto");
    case Motivo::SenzaRighe:
        return MappingFileText::tr("il primo carattere non indica il numero di righe della pagina");
    case Motivo::TroppoCorta:
        return MappingFileText::tr("caratteri insufficienti per le celle della pagina");
    case Motivo::TroppePagine:
        return MappingFileText::tr("oltre il numero massimo di pagine (%1)").arg(mostPages);
    }
    return QString();
}
} // namespace

QChar letterOf(const CellaSchema &cella)
{
    const QString &letters = cella.spuntata ? tickedLetters : untickedLetters;
    return cella.tipo >= 0 && cella.tipo < letters.size() ? letters.at(cella.tipo) : QChar(u'?');
}

CellaSchema cellOf(QChar letter)
{
    const bool spuntata = tickedLetters.contains(letter);
    const int tipo = (spuntata ? tickedLetters : untickedLetters).indexOf(letter);
    return {tipo < 0 ? CELL_VUOTA : static_cast<CELL_VALUE>(tipo), spuntata};
}

bool comesBackWhole(const SchemaPagina &pagina)
{
    constexpr int lastLatin1 = 255;
    const int cells = pagina.nRighe * pagina.nColonne;
    return cells > 0 && cells < lengthModulus && pagina.nRighe + rowCountBase <= lastLatin1;
}

void writePage(QTextStream &stream, const SchemaPagina &pagina)
{
    QString line(QChar(pagina.nRighe + rowCountBase));
    for (const CellaSchema &cella : pagina.celle) {
        line.append(letterOf(cella));
    }
    stream << line << '\n';
}

Lettura read(QTextStream &stream, const std::function<void(int)> &lineRead)
{
    Lettura result;
    int number = 0;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.isNull()) {
            break; // nothing can be read, though this is not the end
        }
        ++number;
        SchemaPagina pagina;
        auto reason = decode(line, pagina);
        if (!reason && result.pagine.size() == mostPages) {
            reason = Motivo::TroppePagine;
        }
        if (reason) {
            skip(result.saltate, number, *reason);
        } else {
            result.pagine.push_back(std::move(pagina));
        }
        lineRead(number);
    }
    return result;
}

QString describe(const std::vector<RigheSaltate> &saltate)
{
    return MappingFileText::tr("Queste righe del file non descrivono una pagina e sono state saltate:") +
           ::describe(saltate, reasonText, mostEntriesDescribed);
}

} // namespace MappingFile
