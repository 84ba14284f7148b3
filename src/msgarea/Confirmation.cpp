// SPDX-License-Identifier: MIT
#include "msgarea/Confirmation.h"

#include <QLabel>
#include <QMessageBox>

#include <algorithm>

namespace {
// The toolkit makes a box as wide as its text, and breaks the informative text to that.
void keepOnOneLine(const QMessageBox &box)
{
    constexpr int widest = 480; // pixels
    if (auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"))) {
        label->setMinimumWidth(std::min(label->fontMetrics().horizontalAdvance(label->text()) + 1, widest));
    }
}
} // namespace

bool confirmLoss(QWidget *parent, const QString &title, const QString &question, const QString &loss)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::No);
    box.setInformativeText(loss);
    keepOnOneLine(box);
    return box.exec() == QMessageBox::Yes;
}
