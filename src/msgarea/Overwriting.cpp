// SPDX-License-Identifier: MIT
#include "msgarea/Overwriting.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>

namespace {
class OverwritingText
{
    Q_DECLARE_TR_FUNCTIONS(Overwriting)
};
} // namespace

bool confirmOverwriting(QWidget *parent, const QString &title, const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!file.exists() || file.isDir()) {
        return true;
    }
    return QMessageBox::question(parent, title,
                                 OverwritingText::tr("Il file esiste già:\n%1\n\nSostituirlo?").arg(file.fileName()),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}
