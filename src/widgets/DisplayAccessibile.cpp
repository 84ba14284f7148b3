// SPDX-License-Identifier: MIT
#include "widgets/DisplayAccessibile.h"

#include <QLCDNumber>

namespace {
QAccessibleInterface *interfaceOf(const QString &className, QObject *object)
{
    auto *display = className == QLatin1String("QLCDNumber") ? qobject_cast<QLCDNumber *>(object) : nullptr;
    return display != nullptr ? new DisplayAccessibile(display) : nullptr; // the toolkit owns it
}
} // namespace

void DisplayAccessibile::install()
{
    QAccessible::installFactory(interfaceOf);
}

DisplayAccessibile::DisplayAccessibile(QWidget *display)
    : QAccessibleWidget(display, QAccessible::StaticText)
{
}

QString DisplayAccessibile::text(QAccessible::Text kind) const
{
    const auto *display = static_cast<const QLCDNumber *>(widget());
    return kind == QAccessible::Name
               ? QStringLiteral("%1 %2").arg(display->toolTip(), QString::number(display->intValue()))
               : QAccessibleWidget::text(kind);
}
