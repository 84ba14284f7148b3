// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "model/Types.h"
#include "resources/Resources.h"
#include "settings/Config.h"
#include "ui_MainWindow.h"

namespace {
constexpr int advisedDrawn = 5;
} // namespace

// The order matters: every value is coupled with, and checked against, those that stand in the other boxes by then.
void MainWindow::loadDefaultParameters()
{
    ui->box_classica_numeroblocchi->setValue(globalConfig->classicNBlocks);
    ui->box_classica_numerocolonne->setValue(globalConfig->classicNCols);
    ui->box_classica_numeroestrazionixriga->setValue(globalConfig->classicNDrawnxRow);
    ui->box_classica_numerojollyxriga->setValue(globalConfig->classicNJollyxRow);
    ui->box_classica_numerominimo->setValue(globalConfig->nMin);
    ui->box_classica_numeromassimo->setValue(globalConfig->nMax);
    ui->box_classica_numerorighexblocco->setValue(globalConfig->classicNRowxBlock);
    ui->box_classica_numeromassimo->setMaximum(highestNumber);
}

// By hand, the user decides what each cell holds: only the size of the page is left to set.
void MainWindow::enableParameters(bool byHand)
{
    ui->box_classica_numerocolonne->setEnabled(true);
    ui->box_classica_numerorighexblocco->setEnabled(true);
    ui->box_classica_numeroblocchi->setEnabled(!byHand);
    ui->box_classica_numeroestrazionixriga->setEnabled(!byHand);
    ui->box_classica_numerojollyxriga->setEnabled(!byHand);
    ui->box_classica_numeroscrittexriga->setEnabled(!byHand);
}

CardParameters MainWindow::parameters() const
{
    CardParameters p;
    p.pages = ui->box_classica_numeropagine->value();
    p.blocks = ui->box_classica_numeroblocchi->value();
    p.rows = ui->box_classica_numerorighexblocco->value();
    p.columns = ui->box_classica_numerocolonne->value();
    p.drawn = ui->box_classica_numeroestrazionixriga->value();
    p.jolly = ui->box_classica_numerojollyxriga->value();
    p.scritte = ui->box_classica_numeroscrittexriga->value();
    p.minimum = ui->box_classica_numerominimo->value();
    p.maximum = ui->box_classica_numeromassimo->value();
    p.manual = ui->MappaManuale->isChecked();
    return p;
}

int MainWindow::checkParameters(QString *message, bool append)
{
    CardSetSize present;
    present.pagesToKeep = append ? m_cartella->getNumPages() : 0;
    present.cellsInMemory = m_cellsInMemory;

    const CardParameters wanted = parameters();
    ui->label_nuova->setText(ParameterRules::outcome(wanted));
    const ParameterRules::Result result = ParameterRules::check(wanted, present);
    const bool correct = result.verdict == Verdict::Correct;
    showSettingStatus(result.verdict, correct ? tr("Impostazioni corrette") : result.message);
    if (message != nullptr) {
        message->append(result.message);
    }
    return static_cast<int>(result.verdict);
}

void MainWindow::showSettingStatus(Verdict verdict, const QString &toolTip)
{
    ui->label_settingstatus->setPixmap(QPixmap(verdictIcon(verdict)));
    ui->label_settingstatus->setToolTip(toolTip);
    ui->label_settingstatus->setAccessibleName(toolTip);
    ui->label_settingmessage->setText(toolTip);
}

void MainWindow::parameterEdited()
{
    ui->label_valoricambiati->hide();
    checkParameters(nullptr, false);
}

// The boxes and the coupling between them may change what the configuration says.
void MainWindow::showChangedDefaults()
{
    struct Default
    {
        const char *key;
        int configured;
        const QSpinBox *box;
    };
    const Default defaults[] = {
        {"CLASSIC_NBLOCKS", globalConfig->classicNBlocks, ui->box_classica_numeroblocchi},
        {"CLASSIC_NCOLS", globalConfig->classicNCols, ui->box_classica_numerocolonne},
        {"CLASSIC_NDRAWNxROW", globalConfig->classicNDrawnxRow, ui->box_classica_numeroestrazionixriga},
        {"CLASSIC_NJOLLYxROW", globalConfig->classicNJollyxRow, ui->box_classica_numerojollyxriga},
        {"CLASSIC_NROWxBLOCK", globalConfig->classicNRowxBlock, ui->box_classica_numerorighexblocco},
        {"NMIN", globalConfig->nMin, ui->box_classica_numerominimo},
        {"NMAX", globalConfig->nMax, ui->box_classica_numeromassimo},
    };
    QStringList changed;
    for (const Default &value : defaults) {
        if (value.box->value() != value.configured) {
            changed += QStringLiteral("%1: %2 > %3")
                           .arg(QLatin1String(value.key))
                           .arg(value.configured)
                           .arg(value.box->value());
        }
    }
    ui->label_valoricambiati->setText(tr("Valori di config.ini cambiati:\n%1").arg(changed.join(QLatin1Char('\n'))));
    ui->label_valoricambiati->setVisible(!changed.isEmpty());
}

void MainWindow::on_box_classica_numeropagine_valueChanged(int)
{
    parameterEdited();
}

void MainWindow::on_box_classica_numeroblocchi_valueChanged(int)
{
    parameterEdited();
}

void MainWindow::on_box_classica_numerorighexblocco_valueChanged(int)
{
    parameterEdited();
}

void MainWindow::on_box_classica_numeroestrazionixriga_valueChanged(int value)
{
    if (value != advisedDrawn) {
        updateStatusBar(tr("Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5."));
    }
    parameterEdited();
}

void MainWindow::on_box_classica_numerojollyxriga_valueChanged(int)
{
    parameterEdited();
}

void MainWindow::on_box_classica_numeroscrittexriga_valueChanged(int)
{
    parameterEdited();
}

void MainWindow::on_box_classica_numerocolonne_valueChanged(int)
{
    parameterEdited();
}

void MainWindow::on_box_classica_numerominimo_valueChanged(int value)
{
    const int maximum = ui->box_classica_numeromassimo->value();
    if (maximum < value) {
        ui->box_classica_numerominimo->setValue(maximum);
    }
    parameterEdited();
}

// Only a number typed to its end comes here: its first digits alone may be below the minimum.
void MainWindow::on_box_classica_numeromassimo_valueChanged(int value)
{
    const int minimum = ui->box_classica_numerominimo->value();
    if (minimum > value) {
        ui->box_classica_numeromassimo->setValue(minimum);
    }
    parameterEdited();
}

void MainWindow::on_MappaManuale_toggled(bool checked)
{
    if (checked) {
        // One block that holds all rows of the page.
        const int rows = ui->box_classica_numeroblocchi->value() * ui->box_classica_numerorighexblocco->value();
        ui->box_classica_numerorighexblocco->setValue(rows);
        ui->box_classica_numeroblocchi->setValue(1);
    } else {
        loadDefaultParameters();
    }
    enableParameters(checked);
    parameterEdited(); // other rules hold now, even where no value changed
    if (!checked) {
        showChangedDefaults();
    }
}
