// SPDX-License-Identifier: MIT
#include "model/Cartella.h"

#include "generation/BlockSignature.h"

#include <algorithm>
#include <vector>

namespace {
struct BlockPosition
{
    int page;
    int block;
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

// The equal blocks of a set. Sorting brings them together: unlike a hash table it reads the memory of large sets in
// order.
class EqualBlocks final
{
public:
    // Calls `aboutToRead` with the index of each page.
    template<typename Progress>
    EqualBlocks(const QVector<Pagina *> &pages, Progress aboutToRead)
    {
        for (int p = 0; p < pages.size(); ++p) {
            aboutToRead(p);
            int b = 0;
            for (const Blocco &block : *pages[p]) {
                enter(blockSignature(block), {p, b++});
            }
        }
        groupEquals();
    }

    // Pairs of equal blocks on different pages.
    qint64 pairs() const
    {
        qint64 sum = 0;
        for (const Block &block : m_blocks) {
            sum += block.equalsBefore;
        }
        return sum;
    }

    // Appends the first `most` pairs, in the order of the later block of each.
    void appendLines(QVector<QString> &lines, qint64 most) const
    {
        const PairLines words;
        qint64 left = most;
        for (const Block &block : m_blocks) {
            for (quint32 i = 0; i < block.equalsBefore && left > 0; ++i, --left) {
                lines.append(words.line(block.position, m_blocks[m_grouped[block.firstEqual + i].index].position));
            }
        }
    }

private:
    struct Block
    {
        QString signature;
        BlockPosition position;
        quint32 firstEqual;   // where its equals begin in m_grouped
        quint32 equalsBefore; // how many of them are on earlier pages
    };
    struct Place
    {
        uint hash; // spares most comparisons of signatures
        quint32 index;
    };

    void enter(const QString &signature, BlockPosition position)
    {
        m_grouped.push_back({qHash(signature), static_cast<quint32>(m_blocks.size())});
        m_blocks.push_back({signature, position, 0, 0});
    }

    void groupEquals()
    {
        std::sort(m_grouped.begin(), m_grouped.end(), [this](Place left, Place right) {
            const int order = compare(left, right);
            return order != 0 ? order < 0 : left.index < right.index;
        });
        quint32 first = 0;
        quint32 before = 0;
        for (quint32 at = 1; at < m_grouped.size(); ++at) {
            Block &block = m_blocks[m_grouped[at].index];
            if (compare(m_grouped[at - 1], m_grouped[at]) != 0) {
                first = at;
                before = 0;
            } else if (m_blocks[m_grouped[at - 1].index].position.page != block.position.page) {
                before = at - first;
            }
            block.firstEqual = first;
            block.equalsBefore = before;
        }
    }

    // 0 for equal signatures; else by their hash values, in no order that means anything.
    int compare(Place left, Place right) const
    {
        if (left.hash != right.hash) {
            return left.hash < right.hash ? -1 : 1;
        }
        return m_blocks[left.index].signature.compare(m_blocks[right.index].signature);
    }

    std::vector<Block> m_blocks;  // in the order of the set
    std::vector<Place> m_grouped; // equal blocks together, in the order of the set
};

quint64 cellsOf(const Blocco &block)
{
    quint64 cells = 0;
    for (const Riga &row : block) {
        cells += row.nCelle;
    }
    return cells;
}

struct Counters
{
    quint64 blocks = 0;
    quint64 comparisons = 0; // as comparing each pair makes
    quint64 cells = 0;
};

Counters countersOf(const QVector<Pagina *> &pages)
{
    Counters counters;
    for (const Pagina *page : pages) {
        counters.comparisons += counters.blocks * page->nBlocchi;
        counters.blocks += page->nBlocchi;
        for (const Blocco &block : *page) {
            counters.cells += cellsOf(block);
        }
    }
    return counters;
}

QString summaryOf(const Counters &counters, qint64 equal)
{
    constexpr float hundred = 100.0F;
    float percentage = static_cast<float>(equal) * hundred;
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
        .arg(equal)
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
    const EqualBlocks blocks(
        pagine, [&](int page) { emit checkForEqualBlocksStatus(progress.arg(QString::number(page + 1), pageCount)); });
    const qint64 equal = blocks.pairs();
    if (risultati != nullptr) {
        blocks.appendLines(*risultati, equal);
    }
    if (sommario != nullptr) {
        *sommario = summaryOf(countersOf(pagine), equal);
    }
    return equal;
}

QVector<QString> Cartella::equalBlockLines(qint64 most) const
{
    QVector<QString> lines;
    EqualBlocks(pagine, [](int) {}).appendLines(lines, most);
    return lines;
}
