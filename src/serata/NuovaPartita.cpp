// SPDX-License-Identifier: MIT
#include "serata/NuovaPartita.h"

#include "ui_NuovaPartita.h"

NuovaPartita::NuovaPartita(Intervallo numeri, int calls, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::NuovaPartita>())
{
    ui->setupUi(this);
    ui->avviso_label->setText(tr("I numeri chiamati (%1) saranno tolti tutti.").arg(calls));
    ui->avviso_label->setVisible(calls > 0);
    for (QSpinBox *box : {ui->da_spinBox, ui->a_spinBox}) {
        box->setMaximum(numeroPiuAlto);
    }
    connect(ui->da_spinBox, qOverload<int>(&QSpinBox::valueChanged), ui->a_spinBox, &QSpinBox::setMinimum);
    ui->da_spinBox->setValue(static_cast<int>(numeri.da));
    ui->a_spinBox->setValue(static_cast<int>(numeri.a));
}

NuovaPartita::~NuovaPartita() = default;

Intervallo NuovaPartita::numeri() const
{
    return {static_cast<quint32>(ui->da_spinBox->value()), static_cast<quint32>(ui->a_spinBox->value())};
}
