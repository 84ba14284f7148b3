// SPDX-License-Identifier: MIT
#include "serata/Serata.h"

#include "msgarea/MemoryQuestion.h"
#include "msgarea/MsgArea.h"
#include "msgarea/WaitCursor.h"
#include "serata/Registro.h"
#include "settings/Config.h"
#include "settings/DiskFile.h"
#include "ui_Serata.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {
constexpr size_t mostLinesInABox = 5;
constexpr double bytesPerByteRead = 2 * sizeof(Casella); // a cell has a separator at least, vectors grow ahead
} // namespace

bool Serata::openSet(const Cartella &cartella, Intervallo numeri)
{
    if (!confirmMemory(boxParent(), windowTitle(), bytesToPlay(cartella), QString())) {
        return false;
    }
    const QString registro = registerOfTheEvening(globalConfig->defaultSaveDir);
    auto serata = std::make_unique<SerataSalvata>(schedeOf(cartella), registro);
    switch (decideOn(*serata)) {
    case EveningBefore::GoesOn:
        if (!serata->isSameEvening()) {
            return openRegister(registro);
        }
        return requireRegister(registro, cartella) && goOn(std::move(serata));
    case EveningBefore::Unclear:
        return false;
    case EveningBefore::PutAside:
        if (!putAside(*serata, SerataSalvata::Parte::Tutto)) {
            return false;
        }
        break;
    case EveningBefore::None:
        break;
    }
    return beginSet(cartella, std::move(serata), numeri);
}

Serata::EveningBefore Serata::decideOn(const SerataSalvata &serata)
{
    if (!serata.whyUnreadable().isEmpty()) {
        refuse(tr("Il file delle chiamate non si può leggere."), serata.whyUnreadable());
        return EveningBefore::Unclear;
    }
    if (serata.callsBefore() == 0) {
        return serata.skippedLines() == 0 ? EveningBefore::None : EveningBefore::PutAside;
    }
    const bool nothingElse = serata.partita().schede().empty();
    return serata.isSameEvening() || nothingElse ? EveningBefore::GoesOn : askAbout(serata);
}

Serata::EveningBefore Serata::askAbout(const SerataSalvata &serata)
{
    const QString text =
        tr("In %1 c'è una serata con altre schede (numeri chiamati: %2).\n\nContinuare quella? Con No ne "
           "comincia una nuova, e quella viene messa da parte.")
            .arg(QDir::toNativeSeparators(SerataSalvata::diarioOf(serata.registro())))
            .arg(serata.callsBefore());
    const QMessageBox::StandardButton answer = QMessageBox::question(
        boxParent(), windowTitle(), text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    letClosedDialogsDisappear();
    switch (answer) {
    case QMessageBox::Yes:
        return EveningBefore::GoesOn;
    case QMessageBox::No:
        return EveningBefore::PutAside;
    default:
        return EveningBefore::Unclear;
    }
}

bool Serata::putAside(SerataSalvata &serata, SerataSalvata::Parte parte)
{
    const QString newName = serata.putAside(parte);
    if (newName.isEmpty()) {
        return refuse(tr("La serata di prima non si può mettere da parte."), serata.errorString());
    }
    if (serata.callsBefore() == 0) { // nobody was asked
        QMessageBox::warning(boxParent(), windowTitle(),
                             tr("Le chiamate di prima sono illeggibili e sono state messe da parte:\n%1")
                                 .arg(QDir::toNativeSeparators(SerataSalvata::diarioOf(newName))));
    }
    return true;
}

// A set gets a register of its own: without it its cards would be lost with the program. The journal comes first: it
// refuses when another window uses both.
bool Serata::beginSet(const Cartella &cartella, std::unique_ptr<SerataSalvata> serata, Intervallo numeri)
{
    const Partita &partita = serata->partita();
    if (!serata->begin(partita.schede().empty() ? numeri : united(numeri, partita.numeri()))) {
        return beginElsewhere(cartella, numeri, serata->errorString());
    }
    QString reason;
    if (!Registro::save(serata->registro(), cartella, reason)) {
        return beginElsewhere(cartella, numeri, reason);
    }
    adopt(std::move(serata));
    return true;
}

bool Serata::beginElsewhere(const Cartella &cartella, Intervallo numeri, const QString &reason)
{
    refuse(tr("La serata non si può salvare in %1.").arg(globalConfig->defaultSaveDir), reason);
    const QString folder =
        QFileDialog::getExistingDirectory(boxParent(), tr("Dove salvare la serata"), globalConfig->defaultSaveDir);
    if (folder.isEmpty()) {
        return false;
    }
    letClosedDialogsDisappear();
    const bool there = globalConfig->rememberFolder(registerOfTheEvening(folder));
    return there && openSet(cartella, numeri);
}

// The register of an evening that goes on may have been deleted or changed.
bool Serata::requireRegister(const QString &fileName, const Cartella &cartella)
{
    const WaitCursor wait(this);
    QString reason;
    QFile file(fileName);
    const bool kept = !isDevice(fileName) && file.open(QIODevice::ReadOnly) && Registro::holds(file, cartella);
    return kept || Registro::save(fileName, cartella, reason) || refuse(tr("La serata non può continuare."), reason);
}

bool Serata::openRegister(const QString &fileName)
{
    const WaitCursor wait(this);
    if (isDevice(fileName)) {
        return refuse(tr("Il registro non si può leggere."), tr("Non è un file."));
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return refuse(tr("Il registro non si può leggere."), file.errorString());
    }
    if (!confirmMemory(boxParent(), windowTitle(), bytesPerByteRead * static_cast<double>(file.size()), QString())) {
        return false;
    }
    Registro::Lettura reading = Registro::read(file);
    if (!requireCards(reading, file) ||
        !openEvening(std::make_unique<SerataSalvata>(std::move(reading.schede), fileName))) {
        return false;
    }
    if (!reading.saltate.empty()) {
        tellOfSkippedLines(Registro::describe(reading.saltate));
    }
    return true;
}

// What can be used of a register is used.
bool Serata::requireCards(const Registro::Lettura &reading, const QFile &file)
{
    if (file.error() != QFile::NoError) {
        refuse(reading.schede.empty()
                   ? tr("Il registro non si può leggere.")
                   : tr("Il registro non si può leggere fino in fondo. Schede lette: %1.").arg(reading.schede.size()),
               file.errorString());
        return !reading.schede.empty();
    }
    if (reading.schede.empty() && !reading.saltate.empty()) {
        return refuse(tr("Il registro non contiene schede."), Registro::describe(reading.saltate, mostLinesInABox));
    }
    return true;
}

// The evening of a register.
bool Serata::openEvening(std::unique_ptr<SerataSalvata> serata)
{
    switch (decideOn(*serata)) {
    case EveningBefore::GoesOn:
        return goOn(std::move(serata));
    case EveningBefore::Unclear:
        return false;
    case EveningBefore::PutAside:
        if (!putAside(*serata, SerataSalvata::Parte::Chiamate)) {
            return false;
        }
        break;
    case EveningBefore::None:
        break;
    }
    if (!serata->begin(withUsualNumbers(serata->partita().numeri()))) {
        return refuse(tr("La serata non si può salvare accanto al registro."), serata->errorString());
    }
    adopt(std::move(serata));
    return true;
}

bool Serata::goOn(std::unique_ptr<SerataSalvata> serata)
{
    if (!serata->resume()) {
        return refuse(tr("La serata non può continuare."), serata->errorString());
    }
    adopt(std::move(serata));
    if (m_serata->skippedLines() > 0) {
        say(tr("Righe illeggibili nel file delle chiamate: %1!").arg(m_serata->skippedLines()));
    }
    return true;
}

// The board lets go of the old game before that goes.
void Serata::adopt(std::unique_ptr<SerataSalvata> serata)
{
    m_serata.swap(serata);
    m_scheda.reset();
    const Partita &partita = m_serata->partita();
    ui->tabellone->setPartita(&partita);
    refresh();
    say(tr("Schede: %1. Numeri da %2 a %3. Chiamati: %4.")
            .arg(partita.schede().size())
            .arg(partita.numeri().da)
            .arg(partita.numeri().a)
            .arg(partita.chiamate().size()));
}

void Serata::chooseRegister()
{
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Apre un registro"), globalConfig->defaultSaveDir,
                                                          QStringLiteral("CSV (*.csv);;"));
    if (fileName.isEmpty()) {
        return;
    }
    globalConfig->rememberFolder(fileName);
    if (QFileInfo(fileName) == QFileInfo(m_serata->registro())) {
        say(tr("Questo registro è già aperto."));
        return;
    }
    letClosedDialogsDisappear();
    openRegister(fileName);
}

void Serata::tellOfSkippedLines(const QString &description)
{
    show(); // the report stands before the window
    MsgArea::showReport(this, description);
}

// A box of a window that is not shown yet could lie behind all others.
QWidget *Serata::boxParent()
{
    return isVisible() ? this : parentWidget();
}

bool Serata::refuse(const QString &text, const QString &reason)
{
    QMessageBox box(QMessageBox::Critical, windowTitle(), text, QMessageBox::Ok, boxParent());
    box.setInformativeText(reason);
    box.exec();
    return false;
}
