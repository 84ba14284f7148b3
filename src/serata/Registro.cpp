// SPDX-License-Identifier: MIT
#include "serata/Registro.h"

#include "settings/WholeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>

namespace Registro {
namespace {
constexpr char separator = ';';
constexpr char rowMark = '|';
constexpr char quote = '"';
constexpr char escape = '\\';
constexpr char pictureWord[] = "immagine";
constexpr int escapedDigits = 4; // hexadecimal, after \u
constexpr int hexadecimal = 16;
constexpr size_t longestCell = 11;     // bytes of a number of 32 bits and a separator
constexpr size_t longestCharacter = 6; // bytes of an escaped one
constexpr int bytesAtOnce = 1 << 16;   // are written
constexpr int usualLine = 1 << 10;     // bytes: more than the cards of most sets need
constexpr int longestLine = 1 << 24;   // bytes: of texts longer than anyone types
constexpr size_t mostPerCard = std::numeric_limits<U8>::max();

class RegistroText
{
    Q_DECLARE_TR_FUNCTIONS(Registro)
};

// A text that grows. Room for whatever is appended must have been made before: at once for all numbers of a row, which
// are so written almost as fast as the set is read.
class LineWriter final
{
public:
    void makeRoom(size_t bytes)
    {
        m_room += bytes;
        if (m_room > m_text.size()) {
            m_text.resize(2 * m_room);
        }
    }
    void append(char character) { m_text[m_length++] = character; }
    void append(quint32 number)
    {
        char *const begin = m_text.data() + m_length;
        m_length += static_cast<size_t>(std::to_chars(begin, m_text.data() + m_text.size(), number).ptr - begin);
    }
    void append(const char *word)
    {
        for (; *word != '\0'; ++word) {
            append(*word);
        }
    }

    void clear()
    {
        m_room = 0;
        m_length = 0;
    }
    const char *data() const { return m_text.data(); }
    int size() const { return static_cast<int>(m_length); }

private:
    std::vector<char> m_text;
    size_t m_room = 0; // bytes asked for
    size_t m_length = 0;
};

bool standsAsItIs(QChar c)
{
    constexpr ushort lastLatin1 = 0xff;
    return c.unicode() <= lastLatin1 && c.category() != QChar::Other_Control;
}

void appendEscaped(LineWriter &line, QChar c)
{
    line.append(escape);
    line.append('u');
    const QString digits = QString::number(c.unicode(), hexadecimal).rightJustified(escapedDigits, QLatin1Char('0'));
    line.append(digits.toLatin1().constData());
}

void appendCharacter(LineWriter &line, QChar c)
{
    const char character = c.toLatin1();
    if (!standsAsItIs(c)) {
        appendEscaped(line, c);
        return;
    }
    if (character == quote || character == escape) {
        line.append(character);
    }
    line.append(character);
}

void appendText(LineWriter &line, const QString &text)
{
    line.makeRoom(longestCharacter * static_cast<size_t>(text.size()) + 2);
    line.append(quote);
    for (const QChar c : text) {
        appendCharacter(line, c);
    }
    line.append(quote);
}

void appendCell(LineWriter &line, const Cella &cella)
{
    switch (cella.tipo) {
    case CELL_NUMERO:
        line.append(cella.numero);
        break;
    case CELL_TESTO:
        appendText(line, cella.testo);
        break;
    case CELL_IMMAGINE:
        line.append(pictureWord);
        break;
    case CELL_VUOTA:
        break;
    }
}

void appendRow(LineWriter &line, const Riga &riga)
{
    line.makeRoom(2 + longestCell * riga.nCelle);
    line.append(separator);
    line.append(rowMark);
    for (const Cella &cella : riga) {
        line.append(separator);
        appendCell(line, cella);
    }
}

void appendLine(LineWriter &line, const Blocco &blocco, Posizione posizione)
{
    line.makeRoom(2 * longestCell);
    line.append(quint32{posizione.pagina});
    line.append(separator);
    line.append(quint32{posizione.blocco});
    for (const Riga &riga : blocco) {
        appendRow(line, riga);
    }
    line.append('\n');
}

// Takes a line apart, from its first character to its last.
class LineReader final
{
public:
    LineReader(const char *begin, const char *end)
        : m_next(begin)
        , m_end(end)
    {
    }

    bool atEnd() const { return m_next == m_end; }
    // Whether nothing is left of the present column.
    bool atColumnEnd() const { return atEnd() || *m_next == separator; }

    bool take(char character)
    {
        const bool there = !atEnd() && *m_next == character;
        m_next += there ? 1 : 0;
        return there;
    }

    bool take(const char *word)
    {
        const auto length = static_cast<std::ptrdiff_t>(std::strlen(word));
        const bool there = m_end - m_next >= length && std::equal(word, word + length, m_next);
        m_next += there ? length : 0;
        return there;
    }

    // A decimal number; nothing when there is no digit. What is too large for the type is its largest value.
    std::optional<quint32> takeNumber()
    {
        quint32 number = 0;
        const auto [end, error] = std::from_chars(m_next, m_end, number);
        if (end == m_next) {
            return std::nullopt;
        }
        m_next = end;
        return error == std::errc() ? number : std::numeric_limits<quint32>::max();
    }

    // The text up to the closing quotes, the opening ones were taken; nothing when it is not well-formed.
    std::optional<QString> takeText()
    {
        QString text;
        while (!atEnd()) {
            const char character = *m_next++;
            if (character == quote && !take(quote)) {
                return text;
            }
            const auto decoded = character == escape ? takeEscaped() : QChar::fromLatin1(character);
            if (!decoded) {
                return std::nullopt;
            }
            text += *decoded;
        }
        return std::nullopt;
    }

private:
    std::optional<QChar> takeEscaped()
    {
        if (take(escape)) {
            return QLatin1Char(escape);
        }
        ushort code = 0;
        if (!take('u') || m_end - m_next < escapedDigits) {
            return std::nullopt;
        }
        const char *const end = m_next + escapedDigits;
        if (std::from_chars(m_next, end, code, hexadecimal).ptr != end) {
            return std::nullopt;
        }
        m_next = end;
        return QChar(code);
    }

    const char *m_next;
    const char *m_end;
};

bool decodePosition(LineReader &line, Posizione &posizione)
{
    const auto pagina = line.takeNumber();
    const bool separated = line.take(separator);
    const auto blocco = line.takeNumber();
    if (!pagina || !separated || !blocco || !line.atColumnEnd() || *pagina == 0 ||
        *pagina > std::numeric_limits<U16>::max() || *blocco == 0 || *blocco > mostPerCard) {
        return false;
    }
    posizione = {static_cast<U16>(*pagina), static_cast<U8>(*blocco)};
    return true;
}

// The cell of one column; the reason when it holds none.
std::optional<Motivo> decodeCell(LineReader &line, Casella &casella)
{
    if (line.atColumnEnd()) {
        return std::nullopt;
    }
    if (const auto number = line.takeNumber()) {
        casella = {CELL_NUMERO, *number, QString()};
        return *number > numeroPiuAlto ? std::optional(Motivo::Numero) : std::nullopt;
    }
    if (line.take(quote)) {
        const auto text = line.takeText();
        casella = {CELL_TESTO, 0, text.value_or(QString())};
        return text ? std::nullopt : std::optional(Motivo::Testo);
    }
    if (line.take(pictureWord)) {
        casella.tipo = CELL_IMMAGINE;
        return std::nullopt;
    }
    return Motivo::Casella;
}

// One column after the position: the begin of a row, or a cell of the present one.
std::optional<Motivo> decodeColumn(LineReader &line, Scheda &scheda)
{
    if (line.take(rowMark)) {
        scheda.righe.emplace_back();
        return scheda.righe.size() > mostPerCard ? std::optional(Motivo::TroppeCaselle) : std::nullopt;
    }
    if (scheda.righe.empty()) {
        return Motivo::SenzaRiga;
    }
    std::vector<Casella> &riga = scheda.righe.back();
    riga.emplace_back();
    return riga.size() > mostPerCard ? std::optional(Motivo::TroppeCaselle) : decodeCell(line, riga.back());
}

// Fills `scheda` from a line; the reason when the line gives none.
std::optional<Motivo> decode(LineReader line, Scheda &scheda)
{
    if (line.atEnd()) {
        return Motivo::Vuota;
    }
    if (!decodePosition(line, scheda.posizione)) {
        return Motivo::SenzaPosizione;
    }
    while (line.take(separator)) {
        const auto reason = decodeColumn(line, scheda);
        if (reason) {
            return reason;
        }
    }
    return line.atEnd() ? std::nullopt : std::optional(Motivo::Casella);
}

QString reasonText(Motivo motivo)
{
    switch (motivo) {
    case Motivo::Vuota:
        return RegistroText::tr("nessun contenuto");
    case Motivo::Tronca:
        return RegistroText::tr("testo troncato (file incompleto)");
    case Motivo::TroppoLunga:
        return RegistroText::tr("troppi caratteri per una scheda");
    case Motivo::SenzaPosizione:
        return RegistroText::tr("all'inizio non vi sono numeri validi di pagina e di scheda");
    case Motivo::SenzaRiga:
        return RegistroText::tr("manca il segno | prima delle celle");
    case Motivo::Casella:
        return RegistroText::tr("una cella non è né un numero, né un testo tra virgolette, né la parola immagine");
    case Motivo::Numero:
        return RegistroText::tr("un numero è maggiore di %1").arg(numeroPiuAlto);
    case Motivo::Testo:
        return RegistroText::tr("le virgolette di un testo non sono chiuse, o \\ è usato male");
    case Motivo::TroppeCaselle:
        return RegistroText::tr("righe o celle oltre il massimo di %1").arg(mostPerCard);
    case Motivo::Doppia:
        return RegistroText::tr("numeri di pagina e di scheda già usati");
    }
    return QString();
}

// The lines of a device, one after the other, in a buffer that is used again.
class Lines final
{
public:
    explicit Lines(QIODevice &device)
        : m_device(device)
        , m_buffer(usualLine + 1, Qt::Uninitialized)
    {
    }

    // Goes to the next line; false after the last one. After one without end nothing is read: a device that failed
    // would forget it.
    bool next()
    {
        if (!m_whole) {
            return false;
        }
        m_length = 0;
        m_tooLong = false;
        do {
            makeRoom();
        } while (readOn());
        return m_length > 0 || m_tooLong;
    }
    // Why the line cannot be read at all.
    std::optional<Motivo> reason() const
    {
        if (m_tooLong) {
            return Motivo::TroppoLunga;
        }
        return m_whole ? std::nullopt : std::optional(Motivo::Tronca);
    }
    LineReader reader() const
    {
        const char *begin = m_buffer.constData();
        const char *end = begin + m_length - 1;
        return {begin, end > begin && *(end - 1) == '\r' ? end - 1 : end};
    }

private:
    // A full buffer grows; what is too long for a line is read over itself.
    void makeRoom()
    {
        if (m_length >= longestLine) {
            m_tooLong = true;
            m_length = 0;
        } else if (m_length == m_buffer.size() - 1) {
            m_buffer.resize(2 * static_cast<int>(m_length) + 1);
        }
    }
    // True when there is more of the line.
    bool readOn()
    {
        const qint64 room = m_buffer.size() - 1 - m_length;
        const qint64 read = m_device.readLine(m_buffer.data() + m_length, room + 1);
        m_length += std::max(read, qint64{0});
        m_whole = read > 0 && m_buffer.at(static_cast<int>(m_length) - 1) == '\n';
        return read == room && !m_whole;
    }

    QIODevice &m_device;
    QByteArray m_buffer;
    qint64 m_length = 0;
    bool m_whole = true;
    bool m_tooLong = false;
};

// Takes only what a device holds at this place.
class Comparison final : public QIODevice
{
public:
    explicit Comparison(QIODevice &device)
        : m_device(device)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char * /*data*/, qint64 /*length*/) override { return -1; }
    qint64 writeData(const char *data, qint64 length) override
    {
        const bool same = m_device.read(length) == QByteArray::fromRawData(data, static_cast<int>(length));
        return same ? length : -1;
    }

private:
    QIODevice &m_device;
};

// A different one for every position.
quint32 key(Posizione posizione)
{
    constexpr int bitsOfBlock = 8;
    return quint32(posizione.pagina) << bitsOfBlock | posizione.blocco;
}

bool emptyInto(QIODevice &device, LineWriter &lines)
{
    const bool written = writeAll(device, lines.data(), lines.size());
    lines.clear();
    return written;
}

// Whether the last bytes have left the program too.
bool isClosed(QFile &file)
{
    file.close();
    return file.error() == QFile::NoError;
}
} // namespace

QByteArray lineOf(const Blocco &blocco, Posizione posizione)
{
    LineWriter line;
    appendLine(line, blocco, posizione);
    return {line.data(), line.size()};
}

bool write(QIODevice &device, const Cartella &cartella)
{
    LineWriter lines;
    Posizione posizione;
    for (const Pagina *pagina : cartella.pagine) {
        ++posizione.pagina;
        posizione.blocco = 0;
        for (const Blocco &blocco : *pagina) {
            ++posizione.blocco;
            const int before = lines.size();
            appendLine(lines, blocco, posizione);
            if (lines.size() - before > longestLine) {
                return false;
            }
        }
        if (lines.size() >= bytesAtOnce && !emptyInto(device, lines)) {
            return false;
        }
    }
    return emptyInto(device, lines);
}

bool save(const QString &fileName, const Cartella &cartella, QString &reason)
{
    WholeFile whole(fileName);
    if (!whole.create()) {
        reason = whole.errorString();
        return false;
    }
    QFile file(whole.writtenName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !write(file, cartella) || !isClosed(file)) {
        reason = file.error() != QFile::NoError ? file.errorString()
                                                : RegistroText::tr("Una scheda ha testi troppo lunghi.");
        return false;
    }
    if (!whole.commit()) {
        reason = whole.errorString();
        return false;
    }
    return true;
}

bool holds(QIODevice &device, const Cartella &cartella)
{
    Comparison comparison(device);
    return write(comparison, cartella) && device.atEnd();
}

Lettura read(QIODevice &device)
{
    Lettura result;
    QSet<quint32> positions;
    Lines lines(device);
    for (int number = 1; lines.next(); ++number) {
        Scheda scheda;
        auto reason = lines.reason();
        if (!reason) {
            reason = decode(lines.reader(), scheda);
        }
        if (!reason && positions.contains(key(scheda.posizione))) {
            reason = Motivo::Doppia;
        }
        if (reason) {
            skip(result.saltate, number, *reason);
        } else {
            positions.insert(key(scheda.posizione));
            result.schede.push_back(std::move(scheda));
        }
    }
    std::sort(result.schede.begin(), result.schede.end(),
              [](const Scheda &a, const Scheda &b) { return a.posizione < b.posizione; });
    return result;
}

QString describe(const std::vector<RigheSaltate> &saltate, size_t mostEntries)
{
    return RegistroText::tr("Queste righe del registro non sono schede e sono state saltate:") +
           ::describe(saltate, reasonText, mostEntries);
}

} // namespace Registro
