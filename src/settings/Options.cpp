// SPDX-License-Identifier: MIT
#include "settings/Options.h"

#include "msgarea/Confirmation.h"
#include "msgarea/MsgArea.h"
#include "msgarea/OpenDialogs.h"
#include "resources/Resources.h"
#include "settings/Config.h"
#include "ui_Options.h"
#include "widgets/WholeTitle.h"

#include <QFile>
#include <QMessageBox>
#include <QWindow>

Options::Options(QWidget *parent)
    : QDialog(nullptr)
    , ui(std::make_unique<Ui::Options>())
    , m_window(parent)
{
    initQuintraResources();
    ui->setupUi(this);
    showWholeTitle(ui->groupBox);
    setWindowTitle(tr("Quintra - Opzioni")); // of its boxes too
    show();
    if (parent != nullptr && parent->windowHandle() != nullptr) {
        parent->windowHandle()->installEventFilter(this);
    }
}

Options::~Options() = default;

void Options::done(int result)
{
    if (!isAsking(*this)) {
        QDialog::done(result);
    }
}

// A click brings the other window, which takes input all the time, to the front. The dialog stays before it.
bool Options::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::FocusIn) {
        raise();
    }
    return QDialog::eventFilter(watched, event);
}

void Options::deleteConfig(bool exitAfter)
{
    QFile file(Config::filePath());
    if (!file.remove()) {
        QMessageBox::warning(this, windowTitle(),
                             tr("Problema durante la cancellazione del file:\n %1").arg(file.errorString()));
        return;
    }
    QMessageBox::information(this, windowTitle(), tr("File di configurazione eliminato correttamente."));
    if (exitAfter && m_window) {
        m_window->close();
    }
}

bool Options::confirm(const QString &question)
{
    return confirmLoss(this, windowTitle(), question, tr("Le impostazioni di config.ini vanno perse."));
}

void Options::on_butt_azzeraesci_clicked()
{
    if (confirm(tr("Proseguire con la cancellazionede del file di configurazione e l'uscita dal programma?"))) {
        deleteConfig(true);
    }
}

void Options::on_butt_azzeracontinua_clicked()
{
    if (confirm(tr("Proseguire con la cancellazionede del file di configurazione?"))) {
        deleteConfig(false);
    }
}

void Options::on_butt_formatselection_clicked()
{
    m_msgArea = MsgArea::makeFor(this, true);
    m_msgArea->setText(Config::filePath(), true);
    m_msgArea->show();
}
