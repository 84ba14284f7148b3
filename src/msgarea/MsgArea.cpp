// SPDX-License-Identifier: MIT
#include "msgarea/MsgArea.h"

#include "msgarea/Confirmation.h"
#include "msgarea/OpenDialogs.h"
#include "resources/Resources.h"
#include "settings/Config.h"
#include "settings/DiskFile.h"
#include "settings/WholeFile.h"
#include "ui_MsgArea.h"
#include "widgets/WindowPlace.h"

#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QShortcut>
#include <QTextDocument>

namespace {
// Content of a Latin-1 file, empty when it cannot be read.
QString readLatin1(QFile &file)
{
    const bool device = isDevice(file.fileName());
    if (device || !file.open(QIODevice::ReadOnly)) {
        return QString();
    }
    const QByteArray text = readToEnd(file);
    const bool whole = file.error() == QFile::NoError;
    file.close();
    return whole ? QString::fromLatin1(text) : QString();
}
} // namespace

MsgArea::MsgArea(QWidget *parent, bool fileMode)
    : QMainWindow(parent, Qt::Window)
    , ui(std::make_unique<Ui::MsgArea>())
    , m_fileMode(fileMode)
{
    initQuintraResources();
    ui->setupUi(this);
    // The shortcuts of a hidden menu bar would be dead.
    addActions({ui->actionSalva, ui->actionEsci});
    ui->menubar->setVisible(fileMode);
    if (!fileMode) {
        auto *leave = new QShortcut(QKeySequence(Qt::Key_Escape), this);
        leave->setWhatsThis(tr("Chiude la finestra"));
        connect(leave, &QShortcut::activated, this, &MsgArea::close);
    }
    connect(ui->textEdit, &QTextEdit::textChanged, this, &MsgArea::fileModified);
}

MsgArea::~MsgArea() = default;

MsgArea *MsgArea::makeFor(QWidget *parent, bool fileMode)
{
    auto *window = new MsgArea(parent, fileMode);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowModality(Qt::WindowModal);
    window->setEditable(fileMode);
    return window;
}

MsgArea *MsgArea::showReport(QWidget *parent, const QString &text)
{
    MsgArea *window = makeFor(parent, false);
    window->setText(text, true);
    window->show();
    return window;
}

void MsgArea::setEditable(bool editable)
{
    ui->textEdit->setReadOnly(!editable);
}

void MsgArea::setText(const QString &textOrPath, bool plain)
{
    QString text = textOrPath;
    if (m_fileMode) {
        m_file = std::make_unique<QFile>(textOrPath);
        text = readLatin1(*m_file);
    }
    if (plain) {
        ui->textEdit->setPlainText(text);
    } else {
        ui->textEdit->setHtml(text);
    }
}

void MsgArea::setLines(const QStringList &lines)
{
    // At once: appending one by one lays the whole text out again for every line.
    ui->textEdit->setPlainText(lines.join(QLatin1Char('\n')));
}

// Not in the event of showing: the window system has got its place by then.
void MsgArea::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        fitReport();
        placeOver(this, parentWidget());
    }
    QMainWindow::setVisible(visible);
}

// A short report needs no large window.
void MsgArea::fitReport()
{
    constexpr int fewLines = 100; // more would take their time to be laid out
    const QTextDocument &report = *ui->textEdit->document();
    if (m_fileMode || report.blockCount() > fewLines) {
        return;
    }
    const std::unique_ptr<QTextDocument> unbroken(report.clone());
    unbroken->setTextWidth(-1);
    const QSize smallest(360, 200);
    const QMargins margins = ui->verticalLayout->contentsMargins() + ui->textEdit->frameWidth();
    resize(unbroken->size().toSize().grownBy(margins).expandedTo(smallest).boundedTo(size()));
}

void MsgArea::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!isAsking(*this) && confirmClosing());
}

bool MsgArea::confirmClosing()
{
    if (!m_fileMode || !m_modified) {
        return true;
    }
    return confirmLoss(this, tr("Testo modificato"), tr("Vuoi uscire senza salvare?"), loss());
}

// What leaving would lose. A text counts as modified from its loading on, though the user did not touch it.
QString MsgArea::loss() const
{
    return ui->textEdit->document()->isModified() ? tr("Le modifiche al testo vanno perse.")
                                                  : tr("Il testo non è stato toccato.");
}

void MsgArea::on_actionSalva_triggered()
{
    if (m_fileMode && !m_modified) {
        return;
    }
    if (!m_fileMode) {
        const QString name =
            QFileDialog::getSaveFileName(this, tr("Salva su file"), globalConfig->defaultSaveDir, QStringLiteral("*"));
        if (name.isEmpty()) {
            return;
        }
        m_file = std::make_unique<QFile>(name);
    }
    const QByteArray text = ui->textEdit->toPlainText().toLatin1();
    if (m_file && writeWhole(m_file->fileName(), text, QIODevice::Text) == Written::Whole) {
        QMessageBox::information(this, tr("Salva"), tr("File salvato con successo."));
        m_modified = false;
        ui->textEdit->document()->setModified(false);
    } else {
        QMessageBox::warning(this, tr("Salva"), tr("Errore nel salvataggio del file!"));
    }
}

void MsgArea::fileModified()
{
    m_modified = true;
}
