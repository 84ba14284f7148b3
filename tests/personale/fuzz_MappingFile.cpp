// SPDX-License-Identifier: MIT
#include "personale/MappingFile.h"

#include <QBuffer>
#include <QTextStream>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {
void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

MappingFile::Lettura readBytes(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    QTextStream stream(&buffer);
    return MappingFile::read(stream, [](int) {});
}

QByteArray writtenBytes(const std::vector<MappingFile::SchemaPagina> &pages)
{
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    for (const MappingFile::SchemaPagina &page : pages) {
        MappingFile::writePage(stream, page);
    }
    stream.flush();
    return bytes;
}
} // namespace

// Whatever was read has all its cells, and what is written of it is a line per page.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const MappingFile::Lettura reading =
        readBytes(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    for (const MappingFile::SchemaPagina &page : reading.pagine) {
        require(page.nRighe > 0);
        require(page.celle.size() == static_cast<size_t>(page.nRighe * page.nColonne));
        require(page.celle.size() <= 255);
    }
    int last = 0;
    for (const MappingFile::RigheSaltate &some : reading.saltate) {
        require(last < some.prima && some.prima <= some.ultima);
        last = some.ultima;
    }
    require(MappingFile::describe(reading.saltate).size() > 0);
    const QByteArray written = writtenBytes(reading.pagine);
    require(static_cast<size_t>(written.count('\n')) == reading.pagine.size());
    return 0;
}
