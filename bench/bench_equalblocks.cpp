// SPDX-License-Identifier: MIT
#include "Ratios.h"

#include "generation/BlockSignature.h"
#include "generation/GUtils.h"
#include "generation/GeneraCartellaClassica.h"
#include "model/Cartella.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {
constexpr int mostPages = 65535;
constexpr U8 blocks = 6;
constexpr int repetitions = 5; // of which the shortest counts

const Ratio signatureRatio("equal blocks, 65535 pages / their signatures alone", "checkEqualBlocks/65535",
                           "buildSignatures/65535", Ratio::Bound::AtMost, 2.0);
const Ratio growthRatio("equal blocks, 16000 pages / 8000 pages", "checkEqualBlocks/16000", "checkEqualBlocks/8000",
                        Ratio::Bound::AtMost, 2.2);
const Ratio pairwiseRatio("comparing pair by pair, 2000 pages / equal blocks", "comparePairByPair/2000",
                          "checkEqualBlocks/2000", Ratio::Bound::AtLeast, 100.0);

// Generated pages of six cards 3 x 9; as good as certainly all different. Made once for all measurements.
const Cartella &generatedSet()
{
    static const std::unique_ptr<Cartella> set = []() {
        auto made = std::make_unique<Cartella>(quint16(mostPages), blocks, U8(3), U8(9));
        seedRandom(1);
        for (Pagina *page : qAsConst(made->pagine)) {
            GeneraCartellaClassica().generate(page, 9, 5, 0, 0, 1, 90);
        }
        return made;
    }();
    return *set;
}

// The first pages of the generated set, which keeps them.
std::unique_ptr<Cartella> firstPages(const benchmark::State &state)
{
    auto view = std::make_unique<Cartella>();
    view->pagineEsterne = 1;
    view->pagine = generatedSet().pagine.mid(0, static_cast<int>(state.range(0)));
    return view;
}

std::vector<QString> signaturesOf(const Cartella &set)
{
    std::vector<QString> signatures;
    signatures.reserve(static_cast<size_t>(set.getNumPages()) * blocks);
    for (const Pagina *page : set.pagine) {
        for (int b = 0; b < page->nBlocchi; ++b) {
            signatures.push_back(blockSignature(page->blocchi[b]));
        }
    }
    return signatures;
}

void checkEqualBlocks(benchmark::State &state)
{
    const auto set = firstPages(state);
    for (auto _ : state) {
        QString summary;
        if (set->checkForEqualBlocks(nullptr, &summary) != 0) {
            state.SkipWithError("the blocks are not all different");
        }
    }
}
BENCHMARK(checkEqualBlocks)
    ->Arg(2000)
    ->Arg(8000)
    ->Arg(16000)
    ->Arg(mostPages)
    ->Repetitions(repetitions)
    ->Unit(benchmark::kMillisecond);

void buildSignatures(benchmark::State &state)
{
    const auto set = firstPages(state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(signaturesOf(*set).data());
    }
}
BENCHMARK(buildSignatures)->Arg(mostPages)->Repetitions(repetitions)->Unit(benchmark::kMillisecond);

void comparePairByPair(benchmark::State &state)
{
    const auto set = firstPages(state);
    for (auto _ : state) {
        const std::vector<QString> signatures = signaturesOf(*set);
        quint64 equal = 0;
        for (size_t later = 0; later < signatures.size(); ++later) {
            const size_t ofEarlierPages = later - later % blocks;
            for (size_t earlier = 0; earlier < ofEarlierPages; ++earlier) {
                equal += signatures[later] == signatures[earlier] ? 1 : 0;
            }
        }
        benchmark::DoNotOptimize(equal);
    }
}
BENCHMARK(comparePairByPair)->Arg(2000)->Repetitions(repetitions)->Unit(benchmark::kMillisecond);
} // namespace
