// SPDX-License-Identifier: MIT
#pragma once

#include "serata/Partita.h"

#include <QDialog>

#include <memory>

namespace Ui {
class NuovaPartita;
}

// Asks for the numbers of a new game.
class NuovaPartita final : public QDialog
{
    Q_OBJECT

public:
    // Begins with these numbers; `calls` is how many calls of the present game would be lost.
    NuovaPartita(Intervallo numeri, int calls, QWidget *parent = nullptr);
    ~NuovaPartita() override;

    Intervallo numeri() const;

private:
    std::unique_ptr<Ui::NuovaPartita> ui;
};
