// SPDX-License-Identifier: MIT
#include "settings/FormatSelection.h"

#include "generation/GUtils.h"
#include "msgarea/MsgArea.h"
#include "resources/Resources.h"
#include "settings/Config.h"
#include "settings/Product.h"
#include "ui_FormatSelection.h"

#include <QCloseEvent>
#include <QDir>
#include <QMessageBox>

namespace {
constexpr int localeLength = 5; // such as en_GB

// The locale names of the translation files in language/ of the current folder, in the order of the file names
// ignoring case.
QStringList availableLanguages()
{
    const QString filePrefix = Product::nameText() + QLatin1Char('_');
    const QDir folder(QDir::currentPath() + QStringLiteral("/language/"), filePrefix + QStringLiteral("*.qm"),
                      QDir::Name | QDir::IgnoreCase, QDir::Files);
    QStringList languages;
    for (const QString &name : folder.entryList()) {
        languages.append(name.mid(filePrefix.size(), localeLength));
    }
    return languages;
}
} // namespace

FormatSelection::FormatSelection(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::FormatSelection>())
{
    initQuintraResources();
    ui->setupUi(this);
    showTexts();
    fillLanguages();
}

FormatSelection::~FormatSelection() = default;

void FormatSelection::fillLanguages()
{
    // Remembered first: the first item becomes the current one at once, and so the language of the configuration.
    const QString configured = globalConfig->language;
    const QStringList languages = availableLanguages();
    for (const QString &language : languages) {
        ui->lang_selection->addItem(language);
    }
    const int index = languages.lastIndexOf(configured);
    if (index > 0) {
        ui->lang_selection->setCurrentIndex(index);
    }
}

void FormatSelection::showTexts()
{
    ui->retranslateUi(this);
    const QString about = Product::nameAndRelease() + QLatin1Char('\n') + tr("Generatore di cartelle per la Quintra.");
    for (QLabel *title : {ui->titolo, ui->label_lingua, ui->label_impostazioni}) {
        title->setToolTip(about);
    }
    setWindowTitle(Product::nameAndRelease());
}

void FormatSelection::reject()
{
    close();
}

void FormatSelection::closeEvent(QCloseEvent *event)
{
    emit done();
    event->accept();
}

void FormatSelection::on_procedi_clicked()
{
    globalConfig->load();
    emit done();
}

void FormatSelection::on_default_settings_clicked()
{
    MsgArea *editor = MsgArea::makeFor(this, true);
    editor->setText(Config::filePath(), true);
    editor->show();
}

void FormatSelection::on_lang_selection_currentIndexChanged(int index)
{
    globalConfig->language = ui->lang_selection->itemText(index);
    globalUtils->loadTranslations(globalConfig->language);
    showTexts();
    if (!globalConfig->writeComments(
            tr("Numeri - Minimo"), tr("Numeri - Massimo"), tr("Classica - Numero blocchi"),
            tr("Classica - Numero righe per blocco"), tr("Classica - Numero estrazioni per riga"),
            tr("Classica - Numero colonne"), tr("Classica - Numero jolly per riga"), tr("Testo di base nelle celle"),
            tr("Immagine di base nelle celle"), tr("Directory di base dove salvare"), tr("Lingua di default"))) {
        QMessageBox::warning(this, tr("Configurazione"), tr("Impossibile commentare il file, formato errato!"));
    }
}
