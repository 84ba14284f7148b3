// SPDX-License-Identifier: MIT
#include "output/CreateOutputFile.h"

#include "generation/GUtils.h"
#include "model/Cartella.h"
#include "output/Megabytes.h"
#include "output/NumeriBlocchi.h"
#include "output/PagePainter.h"
#include "output/PaperSheet.h"
#include "settings/Config.h"
#include "settings/Product.h"
#include "settings/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>

namespace {
constexpr int pdfFormatId = 0;
constexpr int noFormatId = -1;
constexpr int notWritten = -1;

void setUpPrinter(QPrinter &printer, const QString &fileName, const Cartella &set)
{
    printer.setDocName(Product::nameAndRelease());
    printer.setCreator(Product::nameAndRelease());
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(fileName);
    printer.setPageSize(QPageSize(static_cast<QPageSize::PageSizeId>(set.formato)));
    printer.setPageMargins(
        QMarginsF(set.margineSinistro, set.margineSuperiore, set.margineDestro, set.margineInferiore),
        QPageLayout::Millimeter);
}

// The printer does not tell that its last bytes did not reach the file: a PDF file is whole when it has its end mark.
bool isComplete(const QString &fileName)
{
    constexpr char endMark[] = "%%EOF";
    constexpr qint64 tail = sizeof(endMark) + 1; // line ends included
    QFile file(fileName);
    const bool regular = QFileInfo(file).isFile();
    if (!regular || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    file.seek(qMax<qint64>(0, file.size() - tail));
    return file.readAll().contains(endMark);
}
} // namespace

CreateOutputFile::CreateOutputFile(QObject *parent)
    : QObject(parent)
{
}

int CreateOutputFile::create(const QString &outputFileName, Cartella *set, QString &report)
{
    return create(outputFileName, set, report, Numbers::None).bytes;
}

CreateOutputFile::Printed CreateOutputFile::create(const QString &outputFileName, Cartella *set, QString &report,
                                                   Numbers numbers)
{
    fileName = outputFileName;
    cartella = set;

    const QString suffix = QFileInfo(fileName).suffix().toUpper();
    const int id = globalConfig->outputFormatId;
    if (suffix != globalConfig->outputFormatName || id == noFormatId) {
        report += tr("Formato file sconosciuto!");
        return {notWritten};
    }
    if (id != pdfFormatId) {
        report += tr("Formato %1 non disponibile. Creazione annullata.").arg(globalConfig->formatName(id));
        return {};
    }
    return printPdf(report, numbers);
}

int CreateOutputFile::printPdf(QString &report)
{
    return printPdf(report, Numbers::None).bytes;
}

CreateOutputFile::Printed CreateOutputFile::printPdf(QString &report, Numbers numbers)
{
    WholeFile file(fileName);
    const bool created = file.create();
    QPrinter printer(QPrinter::ScreenResolution);
    setUpPrinter(printer, file.writtenName(), *cartella);
    QPainter painter;
    if (!created || !painter.begin(&printer)) {
        report += tr("Impossibile scrivere sul file!");
        return {notWritten};
    }
    const std::optional<int> leftOut = printInto(file, painter, printer, numbers);
    if (!leftOut) {
        report += tr("Impossibile continuare a scrivere sul file!");
        return {notWritten};
    }
    const qint64 bytes = QFileInfo(fileName).size();
    report += successReport(bytes);
    emit status(tr("Stampa PDF completata!"));
    return {static_cast<int>(bytes), *leftOut};
}

std::optional<int> CreateOutputFile::printInto(WholeFile &file, QPainter &painter, QPrinter &printer, Numbers numbers)
{
    const DocumentLayout document = documentLayout(sheetOf(printer.pageLayout(), printer.resolution(), *cartella));
    const PagePainter pages(&painter, document);
    NumeriBlocchi numbering(&painter, document);
    if (!printPages(pages, numbers == Numbers::BesideBlocks ? &numbering : nullptr, printer)) {
        painter.end();
        file.leaveIncomplete();
        return std::nullopt;
    }
    const bool ended = painter.end();
    const bool complete = isComplete(file.writtenName());
    if (!ended || !complete || !file.commit()) {
        return std::nullopt;
    }
    return numbering.leftOut();
}

bool CreateOutputFile::printPages(const PagePainter &painter, NumeriBlocchi *numbers, QPrinter &printer)
{
    const int count = cartella->getNumPages();
    for (int p = 0; p < count; ++p) {
        emit status(tr("PDF: Stampa pagina %1 di %2 (%3%) in corso...").arg(p + 1).arg(count).arg(p * 100 / count));
        painter.paintPage(*cartella->pagine.at(p));
        if (numbers != nullptr) {
            numbers->paint(*cartella->pagine.at(p), p + 1);
        }
        const bool last = p == count - 1;
        if (!last && !printer.newPage()) {
            return false;
        }
    }
    return true;
}

QString CreateOutputFile::successReport(qint64 bytes) const
{
    const QFileInfo file(fileName);
    return tr("File creato con successo!\n\nNome: %1\nPercorso: %2\n\nPagine: %3\nDimensione: %4 Bytes (%5 MB)\n"
              "----------------------------------------\n\nDimensioni pagina: %6")
        .arg(file.completeBaseName(), file.absolutePath(), QString::number(cartella->getNumPages()),
             QString::number(bytes), megabytesText<double>(bytes), GUtils::paperFormatName(cartella->formato));
}

int printingResolution()
{
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    return printer.resolution();
}
