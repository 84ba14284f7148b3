// SPDX-License-Identifier: MIT
#include "generation/BlockSignature.h"
#include "model/Cartella.h"

#include <QHash>
#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <limits>
#include <vector>

namespace {
// Signatures of ordinary blocks are put together on the stack.
constexpr int stackSignature = 1024;
using SignatureText = QVarLengthArray<QChar, stackSignature>;

template<typename Number>
void appendNumber(SignatureText &text, Number number)
{
    char digits[std::numeric_limits<Number>::digits10 + 2];
    const auto end = std::to_chars(digits, digits + sizeof(digits), number).ptr;
    for (const char *digit = digits; digit != end; ++digit) {
        text.append(QLatin1Char(*digit));
    }
}

void appendCell(SignatureText &text, const Cella &cell)
{
    switch (cell.tipo) {
    case CELL_NUMERO:
        appendNumber(text, cell.numero);
        return;
    case CELL_TESTO:
        text.append(QLatin1Char('S'));
        text.append(cell.testo.constData(), cell.testo.size());
        return;
    case CELL_IMMAGINE:
        text.append(QLatin1Char('J'));
        appendNumber(text, quint64(cell.immagine.sizeInBytes()));
        return;
    case CELL_VUOTA:
        text.append(QLatin1Char(' '));
        return;
    }
    qFatal("Cartella::checkForEqualBlocks() - CELL_VALUE type ERROR!");
}

quint64 cellsOf(const Blocco &block)
{
    quint64 cells = 0;
    for (int r = 0; r < block.nRighe; ++r) {
        cells += block.righe[r].nCelle;
    }
    return cells;
}

struct BlockPosition
{
    int page;
    int block;
};

// The blocks entered so far, found again by their signature. Blocks must be entered page by page.
class BlockIndex final
{
public:
    // Enters a block; how many blocks of earlier pages have its signature.
    quint64 enter(const QString &signature, BlockPosition position)
    {
        const auto entered = static_cast<quint32>(m_blocks.size());
        m_blocks.push_back({position, entered});

        Equals &equals = m_equals[signature];
        if (equals.count == 0) {
            equals.first = entered;
        } else {
            m_blocks[equals.last].nextEqual = entered;
        }
        if (equals.page != position.page) {
            equals.page = position.page;
            equals.onEarlierPages = equals.count;
        }
        equals.last = entered;
        ++equals.count;
        m_firstEqual = equals.first;
        return equals.onEarlierPages;
    }

    // Calls `take` with the position of each of the first `count` blocks that have the signature entered last.
    template<typename Take>
    void forEachEqual(quint64 count, Take take) const
    {
        quint32 block = m_firstEqual;
        for (quint64 i = 0; i < count; ++i, block = m_blocks[block].nextEqual) {
            take(m_blocks[block].position);
        }
    }

private:
    struct Entry
    {
        BlockPosition position;
        quint32 nextEqual; // itself when it is the last one
    };
    // All blocks of one signature.
    struct Equals
    {
        quint32 first = 0;
        quint32 last = 0;
        quint32 count = 0;
        quint32 onEarlierPages = 0; // of those, than `page`
        int page = -1;              // of the last one
    };

    std::vector<Entry> m_blocks; // in the order entered
    QHash<QString, Equals> m_equals;
    quint32 m_firstEqual = 0;
};

struct EqualBlockCounters
{
    quint64 blocks = 0;
    quint64 comparisons = 0; // as comparing each pair would have made
    quint64 cells = 0;
    quint64 equal = 0;
};

// Words the equal pairs.
class PairLines final
{
public:
    PairLines()
        : m_line(Cartella::tr("Pag %1 blocco %2 = Pag %3 blocco %4"))
    {
    }

    QString line(BlockPosition later, BlockPosition earlier) const
    {
        return m_line.arg(QString::number(later.page + 1), QString::number(later.block + 1),
                          QString::number(earlier.page + 1), QString::number(earlier.block + 1));
    }

private:
    QString m_line;
};

QString summaryOf(const EqualBlockCounters &counters)
{
    constexpr float hundred = 100.0F;
    float percentage = static_cast<float>(counters.equal) * hundred;
    percentage = counters.blocks == 0 ? 0.0F : percentage / static_cast<float>(counters.blocks);
    // A check without any comparison says that it made one.
    const quint64 comparisons = counters.comparisons == 0 ? 1 : counters.comparisons;
    return Cartella::tr("Blocchi verificati: %1\n"
                        "Confronti tra blocchi: %2\n"
                        "Celle verificate: %3\n"
                        "Blocchi uguali: %4 (%5%)")
        .arg(counters.blocks)
        .arg(comparisons)
        .arg(counters.cells)
        .arg(counters.equal)
        .arg(QString::number(static_cast<double>(percentage), 'f', 2));
}
} // namespace

QString blockSignature(const Blocco &block)
{
    SignatureText text;
    for (int r = 0; r < block.nRighe; ++r) {
        const Riga &row = block.righe[r];
        for (int c = 0; c < row.nCelle; ++c) {
            appendCell(text, row.celle[c]);
        }
        text.append(QLatin1Char('\n'));
    }
    return QString(text.constData(), text.size());
}

qint64 Cartella::checkForEqualBlocks(QVector<QString> *risultati, QString *sommario)
{
    if (pagine.size() < 2) {
        if (sommario != nullptr) {
            sommario->append(tr("La cartella e' vuota od ha solo una pagina.\n"
                                "I blocchi di una pagina sono sempre diversi."));
        }
        return 0;
    }
    const QString progress = tr("Confronto pagina %1 di %2");
    const QString pageCount = QString::number(pagine.size());
    const PairLines lines;
    BlockIndex index;
    EqualBlockCounters counters;
    for (int p = 0; p < pagine.size(); ++p) {
        emit checkForEqualBlocksStatus(progress.arg(QString::number(p + 1), pageCount));
        const Pagina &page = *pagine[p];
        for (int b = 0; b < page.nBlocchi; ++b) {
            const quint64 equal = index.enter(blockSignature(page.blocchi[b]), {p, b});
            counters.cells += cellsOf(page.blocchi[b]);
            counters.comparisons += counters.blocks; // still those of the earlier pages
            counters.equal += equal;
            if (risultati != nullptr) {
                index.forEachEqual(equal, [&](BlockPosition earlier) {
                    risultati->append(lines.line({p, b}, earlier));
                });
            }
        }
        counters.blocks += page.nBlocchi;
    }
    if (sommario != nullptr) {
        *sommario = summaryOf(counters);
    }
    return static_cast<qint64>(counters.equal);
}

QVector<QString> Cartella::equalBlockLines(qint64 most) const
{
    QVector<QString> found;
    const PairLines lines;
    BlockIndex index;
    for (int p = 0; p < pagine.size() && found.size() < most; ++p) {
        const Pagina &page = *pagine[p];
        for (int b = 0; b < page.nBlocchi && found.size() < most; ++b) {
            const quint64 equal = index.enter(blockSignature(page.blocchi[b]), {p, b});
            const auto wanted = static_cast<quint64>(most - found.size());
            index.forEachEqual(std::min(equal, wanted), [&](BlockPosition earlier) {
                found.append(lines.line({p, b}, earlier));
            });
        }
    }
    return found;
}
