// SPDX-License-Identifier: MIT
#include "serata/Registro.h"

#include "serata/MadeCards.h"
#include "support/Fuzzing.h"

#include <QBuffer>

#include <algorithm>

namespace {
constexpr size_t mostPerCard = 255;

Registro::Lettura readBytes(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return Registro::read(buffer);
}

QByteArray writtenBytes(const std::vector<Scheda> &schede)
{
    QByteArray text;
    for (const Scheda &scheda : schede) {
        text += Registro::lineOf(blockOf(scheda), scheda.posizione);
    }
    return text;
}

void requireSound(const Scheda &scheda)
{
    require(scheda.posizione.pagina > 0 && scheda.posizione.blocco > 0);
    require(scheda.righe.size() <= mostPerCard);
    for (const auto &riga : scheda.righe) {
        require(riga.size() <= mostPerCard);
        require(std::all_of(riga.begin(), riga.end(), [](const Casella &c) { return c.numero <= numeroPiuAlto; }));
    }
}
} // namespace

// Whatever was read are cards, each once; written anew they are read back as they were.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const Registro::Lettura reading = readBytes(bytesOf(data, size));
    Posizione before;
    for (const Scheda &scheda : reading.schede) {
        requireSound(scheda);
        require(before < scheda.posizione);
        before = scheda.posizione;
    }
    int last = 0;
    for (const Registro::RigheSaltate &some : reading.saltate) {
        require(last < some.prima && some.prima <= some.ultima);
        last = some.ultima;
    }
    require(Registro::describe(reading.saltate).size() > 0);
    const Registro::Lettura again = readBytes(writtenBytes(reading.schede));
    require(again.saltate.empty() && again.schede == reading.schede);
    return 0;
}
