// SPDX-License-Identifier: MIT
#include "personale/EditPersonale.h"

#include "model/PageNumbers.h"
#include "msgarea/MemoryQuestion.h"
#include "msgarea/MsgArea.h"
#include "msgarea/Overwriting.h"
#include "msgarea/WaitCursor.h"
#include "output/Megabytes.h"
#include "personale/MappingFile.h"
#include "settings/Config.h"
#include "settings/DiskFile.h"
#include "settings/Product.h"
#include "settings/WholeFile.h"
#include "ui_EditPersonale.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextStream>

namespace {
const QString &fileSuffix()
{
    static const QString suffix = QStringLiteral("QcF");
    return suffix;
}

QString fileFilter()
{
    return fileSuffix() + QStringLiteral(" (*.") + fileSuffix() + QStringLiteral(");;");
}

// The suffix counts only in its exact case.
QString withSuffix(const QString &fileName)
{
    if (QFileInfo(fileName).suffix() == fileSuffix()) {
        return fileName;
    }
    return fileName + QLatin1Char('.') + fileSuffix();
}

MappingFile::SchemaPagina schemeOf(const PaginaPersonale &page)
{
    MappingFile::SchemaPagina scheme{page.nRighe, page.nColonne, {}};
    scheme.celle.reserve(page.cellCount());
    for (const PersonaleChkBox &box : page) {
        scheme.celle.push_back({box.tipo, box.isChecked()});
    }
    return scheme;
}

void drawScheme(const MappingFile::SchemaPagina &scheme, const PaginaPersonale &page)
{
    PersonaleChkBox *box = page.begin();
    for (const MappingFile::CellaSchema &cella : scheme.celle) {
        box->setChecked(cella.spuntata);
        box->setTipo(cella.tipo);
        ++box;
    }
}
} // namespace

void EditPersonale::on_actionSave_triggered()
{
    const QString fileName = askSaveFileName();
    if (fileName.isEmpty()) {
        ui->statusBar->showMessage(tr("Creazione file annullata!"));
        return;
    }
    globalConfig->rememberFolder(fileName);
    letClosedDialogsDisappear();
    const QString loss = writeMapping(fileName);
    showSaveReport(fileName);
    if (!loss.isEmpty()) {
        warn(tr("Errore nel salvataggio del file:\n%1\n\n%2").arg(fileName, loss));
    }
    warnOfPagesThatComeBackCut();
}

// The file holds at most 255 cells a page.
void EditPersonale::warnOfPagesThatComeBackCut()
{
    QVector<int> cut;
    for (int page = 0; page < m_pageCount; ++page) {
        const PaginaPersonale &saved = m_pages[static_cast<size_t>(page)];
        if (!MappingFile::comesBackWhole({saved.nRighe, saved.nColonne, {}})) {
            cut.append(page);
        }
    }
    if (!cut.isEmpty()) {
        warn(tr("Le pagine con troppe celle non saranno rilette per intero dal file.\nPagine: %1")
                 .arg(pageNumbersText(cut)));
    }
}

// With its suffix; empty when the user wants none. The dialog asks before a file is overwritten, but knows only the
// name without the suffix.
QString EditPersonale::askSaveFileName()
{
    const QString chosen =
        QFileDialog::getSaveFileName(this, tr("Salva le cartelle su file"), globalConfig->defaultSaveDir, fileFilter());
    if (chosen.isEmpty()) {
        return QString();
    }
    QString fileName = withSuffix(chosen);
    if (fileName == chosen) {
        return fileName;
    }
    const bool sure = confirmOverwriting(this, Product::titleFor(tr("Mappatura manuale")), fileName);
    return sure ? fileName : QString();
}

// Why a file that could be opened was not written; empty when it was. That a file cannot be opened is told by the size
// in the report.
QString EditPersonale::writeMapping(const QString &fileName)
{
    const WaitCursor wait(this);
    QString reason;
    const Written written = writeWhole(fileName, mappingText(), QIODevice::Text, &reason);
    if (written == Written::NotOpened) {
        qWarning("EditPersonale::writeMapping(): %s: %s", qPrintable(fileName), qPrintable(reason));
    }
    return written == Written::Incomplete ? reason : QString();
}

QByteArray EditPersonale::mappingText()
{
    QByteArray text;
    QTextStream stream(&text);
    int saved = 0;
    for (const PaginaPersonale &page : m_pages) {
        MappingFile::writePage(stream, schemeOf(page));
        ui->statusBar->showMessage(tr("Pagina %1 di %2 salvata").arg(++saved).arg(m_pageCount));
    }
    stream.flush();
    return text;
}

void EditPersonale::showSaveReport(const QString &fileName)
{
    const QFileInfo info(fileName);
    const qint64 size = info.size();
    m_msgArea = MsgArea::showReport(
        this, tr("File creato con successo!\n\nNome: %1\nEstensione: %2\nPercorso: %3\n\nPagine: %4\nDimensione: "
                 "%5 Bytes (%6 MB)\n")
                  .arg(info.completeBaseName(), info.suffix(), info.absolutePath(), QString::number(m_pageCount),
                       QString::number(size), megabytesText<float>(size)));
}

void EditPersonale::on_actionOpen_triggered()
{
    if (!ask(Product::nameText(),
             tr("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"))) {
        return;
    }
    const QString fileName =
        QFileDialog::getOpenFileName(this, tr("Apre un file di cartelle"), globalConfig->defaultSaveDir, fileFilter());
    if (fileName.isEmpty()) {
        ui->statusBar->showMessage(tr("Apertura file annullata!"));
        return;
    }
    if (isDevice(fileName)) {
        ui->statusBar->showMessage(tr("Apertura file annullata!"));
        warn(tr("Non è un file di cartelle:\n%1").arg(fileName));
        return;
    }
    globalConfig->rememberFolder(fileName);
    letClosedDialogsDisappear();
    QString failure;
    if (!withinMemory(this, Product::titleFor(tr("Mappatura manuale")), [&]() { failure = readMapping(fileName); })) {
        ui->statusBar->showMessage(tr("Apertura file annullata!"));
    }
    if (!failure.isEmpty()) {
        warn(tr("Errore nella lettura del file:\n%1\n\n%2").arg(fileName, failure));
    }
}

// Why a file that could be opened was not read to its end; empty when it was.
QString EditPersonale::readMapping(const QString &fileName)
{
    const WaitCursor wait(this);
    QFile file(fileName);
    const bool opened = file.open(QIODevice::ReadOnly | QIODevice::Text);
    if (!opened) {
        qWarning("EditPersonale::readMapping(): %s: %s", qPrintable(fileName), qPrintable(file.errorString()));
    }
    QTextStream stream(&file);
    const MappingFile::Lettura reading = MappingFile::read(
        stream, [this](int lines) { ui->statusBar->showMessage(tr("Sto leggendo la pagina %1").arg(lines)); });
    QString failure = file.error() != QFile::NoError ? file.errorString() : QString();
    if (!confirmPages(reading.pagine)) {
        ui->statusBar->showMessage(tr("Apertura file annullata!"));
        return failure;
    }
    letClosedDialogsDisappear();
    replacePages(reading.pagine);
    showPagesOrReason(!failure.isEmpty() ? failure : tr("Nessuna riga del file descrive una pagina."));
    ui->statusBar->showMessage(tr("Apertura completata!"));
    if (!reading.saltate.empty()) {
        m_msgArea = MsgArea::showReport(this, MappingFile::describe(reading.saltate));
    }
    return opened ? failure : QString();
}

// The boxes of such pages take much more memory than the file.
bool EditPersonale::confirmPages(const std::vector<MappingFile::SchemaPagina> &pages)
{
    double cells = 0;
    for (const MappingFile::SchemaPagina &page : pages) {
        cells += static_cast<double>(page.celle.size());
    }
    return confirmBoxes(cells);
}

// Whether so many boxes may be made.
bool EditPersonale::confirmBoxes(double count)
{
    return confirmMemory(this, Product::titleFor(tr("Mappatura manuale")), count * PersonaleChkBox::bytes, QString());
}

void EditPersonale::showPagesOrReason(const QString &whyNone)
{
    const bool pages = !m_pages.empty();
    ui->senzaPagineLabel->setText(tr("Non vi sono pagine.\n%1").arg(whyNone));
    ui->senzaPagineLabel->setVisible(!pages);
    ui->boxesScrollArea->setVisible(pages);
}

void EditPersonale::warn(const QString &text)
{
    QMessageBox::warning(this, Product::titleFor(tr("Mappatura manuale")), text);
}

void EditPersonale::replacePages(const std::vector<MappingFile::SchemaPagina> &schemes)
{
    std::vector<PaginaPersonale> pages = makePages(schemes); // before the old ones go: it may fail
    takeDisplayedBoxes();
    m_pages = std::move(pages);
    m_currentPage = 0;
    m_pageCount = static_cast<U16>(m_pages.size());
    recountNumbers();
    if (!m_pages.empty()) {
        displayPage(0);
    }
    checkSettings();
    ui->pageNumSpinBox->setValue(1);
    showPageCount();
    updatePageRange();
}

std::vector<PaginaPersonale> EditPersonale::makePages(const std::vector<MappingFile::SchemaPagina> &schemes)
{
    std::vector<PaginaPersonale> pages;
    pages.reserve(schemes.size());
    for (const MappingFile::SchemaPagina &scheme : schemes) {
        pages.push_back(makePage(scheme.nRighe, scheme.nColonne));
        ui->statusBar->showMessage(tr("Sto caricando la pagina %1 di %2").arg(pages.size()).arg(schemes.size()));
        drawScheme(scheme, pages.back());
        connectBoxes(pages.back(), RightClick::Ignored);
    }
    return pages;
}

// The pages to copy to and the commands that need a page follow the new page count.
void EditPersonale::updatePageRange()
{
    const bool all = ui->impostasuttute_checkBox->isChecked();
    ui->impostaDAspinBox->setValue(clampedPage(all ? 1 : ui->impostaDAspinBox->value()));
    ui->impostaAspinBox->setValue(clampedPage(all ? m_pageCount : ui->impostaAspinBox->value()));
    const bool pages = m_pageCount > 0;
    for (QWidget *group : {ui->paginaGroup, ui->selezioneGroup, ui->tipoGroup, ui->copiaGroup}) {
        group->setEnabled(pages);
    }
}
