// SPDX-License-Identifier: MIT
#include "windows/CutTexts.h"

#include "serata/NumeriInteri.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QLCDNumber>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>

namespace {
QString describe(const QWidget *widget)
{
    const QSize needed = widget->sizeHint();
    return QStringLiteral("%1 \"%2\": %3 x %4 instead of %5 x %6")
        .arg(widget->objectName(), textOf(widget))
        .arg(widget->width())
        .arg(widget->height())
        .arg(needed.width())
        .arg(needed.height());
}

bool isSmallerThan(const QWidget *widget, const QSize &needed)
{
    return widget->width() < needed.width() || widget->height() < needed.height();
}

bool isTitleCut(const QGroupBox *group)
{
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const QRect place = group->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, group);
    return place.left() + group->fontMetrics().horizontalAdvance(group->title()) > group->width();
}

// The lines of a label that breaks them may need more height in a narrow place.
bool isLabelCut(const QLabel *label)
{
    return label->wordWrap() ? label->height() < label->heightForWidth(label->width())
                             : isSmallerThan(label, label->sizeHint());
}

bool isChoiceCut(const QComboBox *combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    const QRect place =
        combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
    return place.width() < combo->fontMetrics().horizontalAdvance(combo->currentText());
}

bool isMenuCut(const QMenuBar *bar)
{
    const QList<QAction *> actions = bar->actions();
    return std::any_of(actions.begin(), actions.end(), [bar](QAction *action) {
        const QRect place = bar->actionGeometry(action);
        return place.isEmpty() || !bar->rect().contains(place);
    });
}

bool isMessageCut(const QStatusBar *bar)
{
    const int grip = bar->isSizeGripEnabled() ? bar->height() : 0;
    return bar->fontMetrics().horizontalAdvance(bar->currentMessage()) > bar->width() - grip;
}

bool isDockTitleCut(const QDockWidget *dock)
{
    return dock->titleBarWidget() == nullptr && dock->fontMetrics().height() > dock->widget()->y();
}

// A pane whose content is wider than itself hides the ends of its texts. A grid of cells, which has no label, may.
bool isPaneTooNarrow(const QScrollArea *pane)
{
    return pane->findChild<QLabel *>() != nullptr && pane->horizontalScrollBar()->maximum() > 0;
}

bool isCut(const QWidget *widget)
{
    if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        return isTitleCut(group);
    }
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        const bool leavesOut = qobject_cast<const NumeriInteri *>(label) != nullptr; // numbers that would be cut
        return !label->text().isEmpty() && !leavesOut && isLabelCut(label);
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        return isChoiceCut(combo) || isSmallerThan(combo, combo->minimumSizeHint());
    }
    if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
        return isMenuCut(bar);
    }
    if (const auto *bar = qobject_cast<const QStatusBar *>(widget)) {
        return isMessageCut(bar);
    }
    if (const auto *dock = qobject_cast<const QDockWidget *>(widget)) {
        return isDockTitleCut(dock);
    }
    if (const auto *pane = qobject_cast<const QScrollArea *>(widget)) {
        return isPaneTooNarrow(pane);
    }
    const bool spin = qobject_cast<const QAbstractSpinBox *>(widget) != nullptr;
    return (spin || !textOf(widget).isEmpty()) && isSmallerThan(widget, widget->sizeHint());
}
} // namespace

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->text();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return button->text();
    }
    const auto *group = qobject_cast<const QGroupBox *>(widget);
    return group != nullptr ? group->title() : QString();
}

QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const auto *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisibleTo(&window) && isCut(widget)) {
            cut << describe(widget);
        }
    }
    return cut;
}

QStringList overlaps(const QWidget &window)
{
    QStringList found;
    for (const auto *layout : window.findChildren<QLayout *>()) {
        QVector<const QWidget *> before;
        for (int i = 0; i < layout->count(); ++i) {
            const QWidget *widget = layout->itemAt(i)->widget();
            if (widget == nullptr || !widget->isVisibleTo(&window)) {
                continue;
            }
            for (const QWidget *other : qAsConst(before)) {
                if (widget->geometry().intersects(other->geometry())) {
                    found << widget->objectName() + QStringLiteral(" over ") + other->objectName();
                }
            }
            before << widget;
        }
    }
    return found;
}
