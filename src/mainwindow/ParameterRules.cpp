// SPDX-License-Identifier: MIT
#include "mainwindow/ParameterRules.h"

#include "model/Cartella.h"

#include <QCoreApplication>

namespace ParameterRules {
namespace {
class ParameterRulesText
{
    Q_DECLARE_TR_FUNCTIONS(ParameterRules)
};

// The problem of one page's layout; null when there is none.
QString cardLayoutProblem(const CardParameters &p)
{
    const qint64 filled = qint64{p.blocks} * p.rows * p.drawn;
    const qint64 numbers = qint64{p.maximum} - p.minimum + 1;
    const int special = p.jolly + p.scritte;

    if (filled > numbers) {
        return ParameterRulesText::tr("Non posso creare %1 celle piene con solo %2 numeri.").arg(filled).arg(numbers);
    }
    if (p.jolly > p.columns) {
        return ParameterRulesText::tr("Non posso inserire %1 jolly in sole %2 colonne.").arg(p.jolly).arg(p.columns);
    }
    if (p.scritte > p.columns) {
        return ParameterRulesText::tr("Non posso inserire %1 scritte in sole %2 colonne.")
            .arg(p.scritte)
            .arg(p.columns);
    }
    if (special > p.columns) {
        return ParameterRulesText::tr("Non posso inserire %1 scritte e immagini in sole %2 colonne.")
            .arg(special)
            .arg(p.columns);
    }
    if (p.jolly > p.drawn) {
        return ParameterRulesText::tr("Non posso inserire %1 jolly con sole %2 estrazioni.").arg(p.jolly).arg(p.drawn);
    }
    if (p.scritte > p.drawn) {
        return ParameterRulesText::tr("Non posso inserire %1 scritte con sole %2 estrazioni.")
            .arg(p.scritte)
            .arg(p.drawn);
    }
    if (special > p.drawn) {
        return ParameterRulesText::tr("Non posso inserire %1 scritte e immagini con sole %2 estrazioni.")
            .arg(special)
            .arg(p.drawn);
    }
    if (p.drawn > p.columns) {
        return ParameterRulesText::tr("Non posso inserire %1 numeri in sole %2 colonne.").arg(p.drawn).arg(p.columns);
    }
    return QString();
}
} // namespace

Result check(const CardParameters &parameters, const CardSetSize &present)
{
    if (!parameters.manual) {
        const QString problem = cardLayoutProblem(parameters);
        if (!problem.isNull()) {
            return {Verdict::Error, problem};
        }
    }
    const int pages = present.pagesToKeep + parameters.pages;
    if (pages > maxPages) {
        return {Verdict::Error,
                ParameterRulesText::tr("Le pagine totali richieste (%1)\neccedono il massimo consentito (%2).")
                    .arg(pages)
                    .arg(maxPages)};
    }
    const quint64 requested = cellsRequested(parameters);
    if (present.cellsInMemory + requested > maxCells) {
        return {Verdict::Warning, ParameterRulesText::tr("Si sconsiglia di proseguire per le seguenti ragioni:\n"
                                                         "%1 -> caselle totali richieste.\n"
                                                         "%2 -> caselle totali in memoria.\n"
                                                         "%3 -> caselle massime gestibili.\n"
                                                         "(eventuale crash del programma)")
                                      .arg(requested)
                                      .arg(present.cellsInMemory)
                                      .arg(maxCells)};
    }
    return {Verdict::Correct, QString()};
}

QString outcome(const CardParameters &p)
{
    if (p.manual) {
        return ParameterRulesText::tr("Nuova: si apre l'editor della mappatura manuale");
    }
    return ParameterRulesText::tr("Nuova: %1 pagine × %2 blocchi = %3 blocchi")
        .arg(p.pages)
        .arg(p.blocks)
        .arg(qint64{p.pages} * p.blocks);
}

quint64 cellsRequested(const CardParameters &p)
{
    return static_cast<quint64>(qint64{p.pages} * p.blocks * p.rows * p.columns);
}

} // namespace ParameterRules

double ParameterRules::bytesRequested(const CardParameters &p)
{
    constexpr double perArray = 32; // what the allocator adds
    const double pages = p.pages;
    const double blocks = pages * p.blocks;
    const double rows = blocks * p.rows;
    const double cells = rows * p.columns;
    return pages * (sizeof(Pagina) + 2 * perArray) + blocks * (sizeof(Blocco) + perArray) +
           rows * (sizeof(Riga) + perArray) + cells * sizeof(Cella);
}
