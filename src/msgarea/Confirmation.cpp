// SPDX-License-Identifier: MIT
#include "msgarea/Confirmation.h"

#include <QMessageBox>

bool confirmLoss(QWidget *parent, const QString &title, const QString &question, const QString &loss)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    box.setInformativeText(loss);
    return box.exec() == QMessageBox::Yes;
}
