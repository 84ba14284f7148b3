// SPDX-License-Identifier: MIT
#pragma once

#include "PageWindow.h"

#include <QAction>

#include <algorithm>
#include <numeric>

// What the tests of pages filled by the program and of those mapped by hand share.

inline const QString boxTitle = QStringLiteral("Quintra - Cartella classica");
inline const QString newQuestion = QStringLiteral("Sei sicuro di voler cancellare la cartella e crearne una nuova?");
inline const QString cancelled = QStringLiteral("Creazione annullata.");

// A parameter, by what follows "box_classica_" in the name of its box.
inline void set(const PageWindow &page, const char *name, int value)
{
    page.find<QSpinBox>(QByteArray("box_classica_").append(name).constData())->setValue(value);
}

inline void chooseNew(const PageWindow &page)
{
    page.window->findChild<QAction *>(QStringLiteral("actionCrea"))->trigger();
}

inline QVector<quint32> numbersOf(const Pagina &page)
{
    QVector<quint32> numbers;
    for (size_t b = 0; b < page.nBlocchi; ++b) {
        for (size_t r = 0; r < page.blocchi[b].nRighe; ++r) {
            const Riga &row = page.blocchi[b].righe[r];
            for (size_t c = 0; c < row.nCelle; ++c) {
                if (row.celle[c].tipo == CELL_NUMERO) {
                    numbers.append(row.celle[c].numero);
                }
            }
        }
    }
    return numbers;
}

inline QVector<quint32> oneToNinety()
{
    QVector<quint32> numbers(90);
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

inline QVector<quint32> sorted(QVector<quint32> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}
