// SPDX-License-Identifier: MIT
#include "generation/BlockSignature.h"
#include "model/Cartella.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace {
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

// The blocks entered so far, found again by their signature in a table of places (open addressing). Blocks must be
// entered page by page.
class BlockIndex final
{
public:
    explicit BlockIndex(const QVector<Pagina *> &pages)
    {
        size_t blocks = 0;
        for (const Pagina *page : pages) {
            blocks += page->nBlocchi;
        }
        m_blocks.reserve(blocks);
        size_t places = 2;
        while (places < 2 * blocks) {
            places *= 2;
        }
        m_places.resize(places);
    }

    // Enters a block; how many blocks of earlier pages have its signature.
    quint64 enter(QString signature, BlockPosition position)
    {
        const auto entered = static_cast<quint32>(m_blocks.size());
        Place &place = placeOf(signature);
        if (place.firstBlock == noBlock) {
            place.firstBlock = entered;
        }
        m_blocks.push_back({std::move(signature), position, noBlock, entered, 0, 0});
        m_firstEqual = place.firstBlock;

        Entry &first = m_blocks[place.firstBlock];
        if (m_blocks[first.lastEqual].position.page != position.page) {
            first.onEarlierPages = first.equals;
        }
        m_blocks[first.lastEqual].nextEqual = entered;
        first.lastEqual = entered;
        ++first.equals;
        return first.onEarlierPages;
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
    static constexpr quint32 noBlock = std::numeric_limits<quint32>::max();

    struct Entry
    {
        QString signature;
        BlockPosition position;
        quint32 nextEqual;
        // Only kept of the first block with a signature:
        quint32 lastEqual;
        quint32 equals;
        quint32 onEarlierPages; // of the equals, than that of the last one
    };
    struct Place
    {
        uint hash = 0;
        quint32 firstBlock = noBlock;
    };

    // The place of the signature, or the free one to put it.
    Place &placeOf(const QString &signature)
    {
        const uint hash = qHash(signature);
        const size_t mask = m_places.size() - 1;
        size_t at = hash & mask;
        while (m_places[at].firstBlock != noBlock &&
               (m_places[at].hash != hash || m_blocks[m_places[at].firstBlock].signature != signature)) {
            at = (at + 1) & mask;
        }
        m_places[at].hash = hash;
        return m_places[at];
    }

    std::vector<Entry> m_blocks; // in the order entered
    std::vector<Place> m_places;
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
    BlockIndex index(pagine);
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
    BlockIndex index(pagine);
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
