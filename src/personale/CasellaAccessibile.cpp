// SPDX-License-Identifier: MIT
#include "personale/CasellaAccessibile.h"

#include "model/SpokenContent.h"
#include "personale/PersonaleChkBox.h"

#include <QCoreApplication>

namespace {
class CasellaAccessibileText
{
    Q_DECLARE_TR_FUNCTIONS(CasellaAccessibile)
};

QAccessibleInterface *checkBoxInterface(const QString &className, QObject *object)
{
    auto *box = className == QLatin1String("PersonaleChkBox") ? qobject_cast<PersonaleChkBox *>(object) : nullptr;
    if (box == nullptr) {
        return nullptr;
    }
    return new CasellaAccessibile(box); // the toolkit owns it
}
} // namespace

void CasellaAccessibile::install()
{
    QAccessible::installFactory(checkBoxInterface);
}

CasellaAccessibile::CasellaAccessibile(PersonaleChkBox *box)
    : QAccessibleWidget(box, QAccessible::CheckBox)
{
}

PersonaleChkBox *CasellaAccessibile::box() const
{
    return static_cast<PersonaleChkBox *>(object());
}

QString CasellaAccessibile::name() const
{
    return CasellaAccessibileText::tr("riga %1, colonna %2, %3, %4")
        .arg(QString::number(box()->riga + 1), QString::number(box()->colonna + 1),
             spokenContent(box()->tipo, box()->text()),
             box()->isChecked() ? CasellaAccessibileText::tr("spuntata") : CasellaAccessibileText::tr("non spuntata"));
}

QString CasellaAccessibile::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? name() : QAccessibleWidget::text(kind);
}

QAccessible::State CasellaAccessibile::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = box()->isChecked();
    state.pressed = box()->isDown();
    return state;
}

QStringList CasellaAccessibile::actionNames() const
{
    return QStringList(toggleAction()) + QAccessibleWidget::actionNames();
}

void CasellaAccessibile::doAction(const QString &actionName)
{
    if (actionName == toggleAction()) {
        box()->click();
    } else {
        QAccessibleWidget::doAction(actionName);
    }
}
