// SPDX-License-Identifier: MIT
// The smallest use of the libraries: ten classic pages, generated, checked and printed without a window.
// Usage: print_cards [file.pdf]
#include "generation/GUtils.h"
#include "generation/GeneraCartellaClassica.h"
#include "model/Cartella.h"
#include "output/CreateOutputFile.h"
#include "settings/Config.h"

#include <QGuiApplication>
#include <QTextStream>

namespace {
constexpr quint16 pages = 10;
constexpr U8 blocks = 6;
constexpr U8 rows = 3;
constexpr U8 columns = 9;
constexpr U8 drawnPerRow = 5;
constexpr int firstNumber = 1;
constexpr int lastNumber = 90;
} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const GUtils utils(qApp);   // seeds the random generator
    CurrentConfig config(qApp); // defaults, from config.ini in the current folder
    QTextStream out(stdout);

    Cartella cards(pages, blocks, rows, columns);
    GeneraCartellaClassica generator;
    for (Pagina *page : qAsConst(cards.pagine)) {
        if (!generator.generate(page, columns, drawnPerRow, 0, 0, firstNumber, lastNumber)) {
            out << "A page could not be filled.\n";
            return 1;
        }
    }

    QString summary;
    cards.checkForEqualBlocks(nullptr, &summary);
    out << summary << "\n\n";

    QString report;
    const QString file = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("cartelle.pdf");
    const bool printed = CreateOutputFile().create(file, &cards, report) > 0;
    out << report << '\n';
    return printed ? 0 : 1;
}
