// SPDX-License-Identifier: MIT
#include "personale/MappingFile.h"

#include "support/Fuzzing.h"

#include <QBuffer>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>

namespace {
struct Reading
{
    MappingFile::Lettura result;
    int lines = 0; // that were told
};

Reading readBytes(QByteArray bytes)
{
    Reading reading;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    QTextStream stream(&buffer);
    reading.result = MappingFile::read(stream, [&reading](int lines) {
        require(lines == reading.lines + 1);
        reading.lines = lines;
    });
    return reading;
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

bool isSame(const MappingFile::SchemaPagina &a, const MappingFile::SchemaPagina &b)
{
    return a.nRighe == b.nRighe && a.nColonne == b.nColonne &&
           std::equal(a.celle.begin(), a.celle.end(), b.celle.begin(), b.celle.end(),
                      [](const MappingFile::CellaSchema &one, const MappingFile::CellaSchema &other) {
                          return one.tipo == other.tipo && one.spuntata == other.spuntata;
                      });
}

// Every line is a page or was skipped, and none is both.
void requireSound(const Reading &reading)
{
    int lines = static_cast<int>(reading.result.pagine.size());
    int last = 0;
    for (const MappingFile::RigheSaltate &some : reading.result.saltate) {
        require(last < some.prima && some.prima <= some.ultima);
        last = some.ultima;
        lines += some.ultima - some.prima + 1;
    }
    require(last <= reading.lines && lines == reading.lines);
    for (const MappingFile::SchemaPagina &page : reading.result.pagine) {
        require(page.nRighe > 0);
        require(page.celle.size() == static_cast<size_t>(page.nRighe * page.nColonne));
        require(page.celle.size() <= 255);
    }
}
} // namespace

// Whatever was read has all its cells; a line is written for each page, and the pages that may be promised to come back
// whole do.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTextCodec *const codec = QTextCodec::codecForName("UTF-8");
    QTextCodec::setCodecForLocale(codec); // the same on every machine
    const Reading reading = readBytes(bytesOf(data, size));
    requireSound(reading);
    require(MappingFile::describe(reading.result.saltate).size() > 0);
    std::vector<MappingFile::SchemaPagina> pages = reading.result.pagine;
    require(static_cast<size_t>(writtenBytes(pages).count('\n')) == pages.size());
    pages.erase(
        std::remove_if(pages.begin(), pages.end(), [](const auto &page) { return !MappingFile::comesBackWhole(page); }),
        pages.end());
    const Reading again = readBytes(writtenBytes(pages));
    const std::vector<MappingFile::SchemaPagina> &back = again.result.pagine;
    require(again.result.saltate.empty() && std::equal(pages.begin(), pages.end(), back.begin(), back.end(), isSame));
    return 0;
}
