// SPDX-License-Identifier: MIT
#include "generation/BlockSignature.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>

namespace {
constexpr unsigned shortNumbers = 1000;
constexpr int longestShortText = 3;

// The text of a number below 1000 or of an empty cell.
struct ShortText
{
    std::array<ushort, longestShortText> characters;
    ushort length;
};

using ShortTexts = std::array<ShortText, 1 + shortNumbers>;

constexpr ShortText shortTextOf(unsigned number)
{
    const auto ones = static_cast<ushort>('0' + number % 10);
    const auto tens = static_cast<ushort>('0' + number / 10 % 10);
    const auto hundreds = static_cast<ushort>('0' + number / 100);
    return number < 10    ? ShortText{{ones, 0, 0}, 1}
           : number < 100 ? ShortText{{tens, ones, 0}, 2}
                          : ShortText{{hundreds, tens, ones}, 3};
}

// The text of an empty cell, then those of the short numbers.
constexpr ShortTexts makeShortTexts()
{
    ShortTexts texts{};
    texts[0] = {{' ', 0, 0}, 1};
    for (unsigned number = 0; number < shortNumbers; ++number) {
        texts[1 + number] = shortTextOf(number);
    }
    return texts;
}

constexpr ShortTexts shortTexts = makeShortTexts();

// Index of the cell's text in shortTexts, or one beyond it. Numbers and empty cells come mixed in a way that no
// processor can predict, and this is most of the equal-block check: hence tables instead of branches. In 64 bits,
// since the index of the largest number does not fit in 32.
quint64 shortTextIndex(const Cella &cell)
{
    constexpr quint64 notShort = shortTexts.size();
    constexpr std::array<quint32, 4> numberBits{~0U, 0, 0, 0}; // by type
    constexpr std::array<quint64, 4> offset{1, notShort, notShort, 0};
    const auto type = static_cast<unsigned>(cell.tipo);
    return type < offset.size() ? (cell.numero & numberBits[type]) + offset[type] : notShort;
}

QString longText(const Cella &cell)
{
    switch (cell.tipo) {
    case CELL_NUMERO:
        return QString::number(cell.numero);
    case CELL_TESTO:
        return QLatin1Char('S') + cell.testo;
    case CELL_IMMAGINE:
        return QLatin1Char('J') + QString::number(cell.immagine.sizeInBytes());
    case CELL_VUOTA:
        return QStringLiteral(" ");
    }
    qFatal("Cartella::checkForEqualBlocks() - CELL_VALUE type ERROR!");
}

// Puts a signature together: on the stack, unless it is long.
class SignatureWriter final
{
public:
    void writeRow(const Riga &row)
    {
        ushort *end = roomFor(row.nCelle);
        for (int c = 0; c < row.nCelle; ++c) {
            const quint64 index = shortTextIndex(row.celle[c]);
            if (index < shortTexts.size()) {
                const ShortText &text = shortTexts[index];
                std::copy_n(text.characters.data(), longestShortText, end);
                end += text.length;
            } else {
                endAt(end);
                append(longText(row.celle[c]));
                end = roomFor(row.nCelle - c);
            }
        }
        *end = '\n';
        endAt(end + 1);
    }

    QString text() const { return QString(reinterpret_cast<const QChar *>(m_text.constData()), m_text.size()); }

private:
    static constexpr int ordinaryLength = 1024;

    // Where the text goes on, with room for the short texts of so many cells and the end of their row.
    ushort *roomFor(int cells)
    {
        const int length = m_text.size();
        m_text.resize(length + cells * longestShortText + 1);
        return m_text.data() + length;
    }

    void endAt(const ushort *end) { m_text.resize(static_cast<int>(end - m_text.constData())); }

    void append(const QString &text) { m_text.append(text.utf16(), text.size()); }

    QVarLengthArray<ushort, ordinaryLength> m_text;
};
} // namespace

QString blockSignature(const Blocco &block)
{
    SignatureWriter writer;
    for (int r = 0; r < block.nRighe; ++r) {
        writer.writeRow(block.righe[r]);
    }
    return writer.text();
}
