// SPDX-License-Identifier: MIT
#include "msgarea/MemoryQuestion.h"

#include "msgarea/Confirmation.h"
#include "settings/FreeMemory.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace {
class MemoryQuestionText
{
    Q_DECLARE_TR_FUNCTIONS(MemoryQuestion)
};

QString megabytes(double bytes)
{
    constexpr double bytesPerMegabyte = 1048576.0;
    return QString::number(bytes / bytesPerMegabyte, 'f', 0);
}
} // namespace

bool confirmMemory(QWidget *parent, const QString &title, double bytes, const QString &loss)
{
    if (fitsMemory(bytes)) {
        return true;
    }
    const QString question =
        MemoryQuestionText::tr("La memoria libera potrebbe non bastare, e il programma chiudersi.\nMB necessari: "
                               "%1\nMB liberi: %2\n\nVuoi proseguire comunque?")
            .arg(megabytes(bytes), megabytes(freeMemory()));
    return confirmLoss(parent, title, question, loss);
}

void tellOfNoMemory(QWidget *parent, const QString &title)
{
    QMessageBox::warning(parent, title, MemoryQuestionText::tr("La memoria libera non è bastata: nulla è cambiato."));
}
