// SPDX-License-Identifier: MIT
// Stands in for libFuzzer where the compiler has none: runs the files of a folder, each as it is and changed in many
// ways, always the same ones.
#include "support/Fuzzing.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <random>

namespace {
constexpr int mostChanges = 8; // of one copy

void run(const QByteArray &bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()), static_cast<size_t>(bytes.size()));
}

int below(std::mt19937 &random, int end)
{
    return static_cast<int>(random() % static_cast<unsigned>(end));
}

QByteArray changed(QByteArray bytes, std::mt19937 &random)
{
    for (int changes = 1 + below(random, mostChanges); changes > 0; --changes) {
        const int position = below(random, bytes.size() + 1);
        switch (below(random, 4)) {
        case 0:
            bytes.insert(position, static_cast<char>(random()));
            break;
        case 1:
            bytes.remove(position, 1 + below(random, 9));
            break;
        case 2:
            bytes.insert(position, bytes.mid(below(random, bytes.size() + 1), below(random, 300)));
            break;
        default:
            bytes.insert(position, '\n');
        }
    }
    return bytes;
}
} // namespace

int main(int argc, char **argv)
{
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    const int runs = argc > 2 ? QByteArray(argv[2]).toInt() : 0;
    if (runs == 0 || names.isEmpty()) {
        std::fputs("usage: fuzz_<reader> <folder with files> <runs>\n", stderr);
        return 2;
    }
    const int changedCopies = runs / names.size();
    std::mt19937 random(1);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            return 2;
        }
        const QByteArray bytes = file.readAll();
        run(bytes);
        for (int i = 0; i < changedCopies; ++i) {
            run(changed(bytes, random));
        }
    }
    std::printf("%d files, %d runs\n", names.size(), names.size() * (changedCopies + 1));
    return 0;
}
