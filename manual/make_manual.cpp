// SPDX-License-Identifier: MIT
// make_manual <folder of the pages> <language> <file>: writes the manual in one language as one HTML page. What is
// wrong with the pages is told, and the result is 1.
#include "ManualPages.h"

#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("make_manual <folder of the pages> <language> <file>\n", stderr);
        return 1;
    }
    const BuiltManual manual = buildManual(QFile::decodeName(argv[1]), QString::fromLocal8Bit(argv[2]));
    for (const QString &problem : manual.problems) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
    QFile file(QFile::decodeName(argv[3]));
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(manual.html) == manual.html.size() && file.flush();
    if (!written) {
        std::fprintf(stderr, "%s: %s\n", argv[3], qPrintable(file.errorString()));
    }
    return written && manual.problems.isEmpty() ? 0 : 1;
}
