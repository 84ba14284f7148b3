// SPDX-License-Identifier: MIT
#include "ClassicSets.h"
#include "Ratios.h"

#include "serata/Partita.h"
#include "serata/Registro.h"

#include <QBuffer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

// The register of the largest set, and the calls of an evening with its cards.

namespace {
using namespace ClassicSets;

constexpr quint32 firstNumber = 1;
constexpr quint32 lastNumber = 90;

double saveRegister()
{
    const auto set = firstPages(mostPages);
    return processorTime([&set]() {
        QString reason;
        benchmark::DoNotOptimize(Registro::save(QStringLiteral("register.csv"), *set, reason));
    });
}

QByteArray registerBytes()
{
    const auto set = firstPages(mostPages);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    benchmark::DoNotOptimize(Registro::write(buffer, *set));
    return bytes;
}

// The columns of a register, each with what parts it from the next.
std::vector<std::string_view> columnsOf(const QByteArray &bytes)
{
    const auto isParting = [](char c) { return c == ';' || c == '\n'; };
    std::vector<std::string_view> columns;
    for (const char *next = bytes.cbegin(); next != bytes.cend();) {
        const char *const end = std::find_if(next, bytes.cend(), isParting) + 1;
        columns.emplace_back(next, static_cast<size_t>(end - next));
        next = end;
    }
    return columns;
}

// Nothing to be found out or worded any more.
double writeReadyColumns()
{
    const QByteArray bytes = registerBytes();
    const std::vector<std::string_view> columns = columnsOf(bytes);
    return processorTime([&columns]() {
        const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen("columns.csv", "wb"), &std::fclose);
        for (const std::string_view column : columns) {
            std::fwrite(column.data(), 1, column.size(), file.get());
        }
    });
}

double callAllNumbers()
{
    Partita partita(schedeOf(*firstPages(mostPages)));
    const double seconds = processorTime([&partita]() {
        for (quint32 number = firstNumber; number <= lastNumber; ++number) {
            partita.toggle(number);
            benchmark::DoNotOptimize(partita.tombole().size() + partita.quasiTombole().size());
        }
    });
    return seconds / (lastNumber - firstNumber + 1);
}

// The same lists without an index: every number of every card is looked up.
double countAnew()
{
    const std::vector<Scheda> schede = schedeOf(*firstPages(mostPages));
    std::vector<bool> called(lastNumber + 1, false);
    std::fill(called.begin() + lastNumber / 2, called.end(), true);
    return processorTime([&schede, &called]() {
        std::vector<size_t> won;
        for (size_t i = 0; i < schede.size(); ++i) {
            int missing = 0;
            for (const auto &riga : schede[i].righe) {
                for (const Casella &casella : riga) {
                    missing += casella.tipo == CELL_NUMERO && !called[casella.numero] ? 1 : 0;
                }
            }
            if (missing <= 1) {
                won.push_back(i);
            }
        }
        benchmark::DoNotOptimize(won.size());
    });
}

const Ratio saving("saving a register of 65535 pages / its ready columns by fwrite", saveRegister, writeReadyColumns,
                   Ratio::Bound::AtMost, 2, 5);
const Ratio calling("a call on the cards of 65535 pages / counting them all anew", callAllNumbers, countAnew,
                    Ratio::Bound::AtMost, 0.05, 5);
} // namespace
