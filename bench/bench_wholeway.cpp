// SPDX-License-Identifier: MIT
#include "BarePage.h"
#include "ClassicSets.h"
#include "PeakMemory.h"
#include "PlainWriter.h"
#include "Ratios.h"

#include "generation/GUtils.h"
#include "mainwindow/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <optional>

// The whole way as a user goes it: 20000 pages from "Nuova" to the last byte of the PDF file.

namespace {
using namespace ClassicSets;

constexpr int pages = 20000;
const char fileName[] = "tutte.pdf";

// The next file dialog gets this answer.
void answerFileDialog()
{
    QTimer::singleShot(0, []() {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            qFatal("no file dialog");
        }
        dialog->selectFile(QString::fromLatin1(fileName));
        static_cast<QDialog *>(dialog)->accept();
    });
}

void makeAndPrint(MainWindow &window)
{
    window.findChild<QSpinBox *>(QStringLiteral("box_classica_numeropagine"))->setValue(pages);
    window.findChild<QAction *>(QStringLiteral("actionCrea"))->trigger();
    answerFileDialog();
    window.findChild<QPushButton *>(QStringLiteral("butt_stampa"))->click();
    if (window.cardSet()->getNumPages() != pages || !QFile::remove(QString::fromLatin1(fileName))) {
        qFatal("not generated and printed");
    }
}

double wholeWay()
{
    MainWindow window;
    return processorTime([&window]() { makeAndPrint(window); });
}

void drawNumbers()
{
    BarePage page;
    for (int i = 0; i < pages; ++i) {
        page.fill();
        benchmark::DoNotOptimize(page.numbers().data());
    }
}

void writePlainly(const Cartella &set)
{
    PlainWriter writer;
    for (const Pagina *page : set.pagine) {
        writer.addPage(*page);
    }
    writer.save("confronto.pdf");
}

double bareParts()
{
    const auto set = firstPages(pages);
    std::optional<Cartella> records; // their end does not count
    return processorTime([&]() {
        drawNumbers();
        records.emplace(pages, blocks, rowsPerBlock, columns);
        writePlainly(*set);
    });
}

double memoryOfWholeWay()
{
    return peakMemoryOf([]() {
        MainWindow window;
        makeAndPrint(window);
    });
}

double memoryOfBareParts()
{
    return peakMemoryOf([]() { writePlainly(*filled(pages)); });
}

const Ratio way("from Nuova to the PDF file, 20000 pages / its bare parts", wholeWay, bareParts, Ratio::Bound::AtMost,
                1.3, 3);
const Ratio memory("peak memory of that / records and plain writer", memoryOfWholeWay, memoryOfBareParts,
                   Ratio::Bound::AtMost, 1.3, 1);
} // namespace
