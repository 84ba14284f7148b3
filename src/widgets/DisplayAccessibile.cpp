// SPDX-License-Identifier: MIT
#include "widgets/DisplayAccessibile.h"

#include <QLCDNumber>

namespace {
QAccessibleInterface *displayInterface(const QString &className, QObject *object)
{
    auto *display = className == QLatin1String("QLCDNumber") ? qobject_cast<QLCDNumber *>(object) : nullptr;
    if (display == nullptr) {
        return nullptr;
    }
    return new DisplayAccessibile(display); // the toolkit owns it
}
} // namespace

void DisplayAccessibile::install()
{
    QAccessible::installFactory(displayInterface);
}

DisplayAccessibile::DisplayAccessibile(QWidget *display)
    : QAccessibleWidget(display, QAccessible::StaticText)
{
}

QString DisplayAccessibile::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Name) {
        return QAccessibleWidget::text(kind);
    }
    const auto *display = static_cast<const QLCDNumber *>(widget());
    return QStringLiteral("%1 %2").arg(display->toolTip(), QString::number(display->intValue()));
}
