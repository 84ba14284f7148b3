// SPDX-License-Identifier: MIT
#include "widgets/SidePane.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

namespace {
constexpr int narrowest = 100; // pixels

bool takesWheel(const QObject *input)
{
    return qobject_cast<const QAbstractSpinBox *>(input) != nullptr ||
           qobject_cast<const QComboBox *>(input) != nullptr;
}
} // namespace

SidePane::SidePane(QWidget *parent)
    : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus); // nothing would show it
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { showFocused(now); });
}

SidePane::~SidePane()
{
    disconnect(qApp, nullptr, this, nullptr); // the focus may move once more while the inputs go
}

// The toolkit does it only where the focus was in the pane before.
void SidePane::showFocused(QWidget *focused)
{
    if (focused != nullptr && widget() != nullptr && widget()->isAncestorOf(focused)) {
        ensureWidgetVisible(focused);
    }
}

// Room for the scroll bar as well, so that it hides nothing where the window is low.
QSize SidePane::sizeHint() const
{
    if (widget() == nullptr) {
        return QScrollArea::sizeHint();
    }
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
            widget()->sizeHint().height()};
}

QSize SidePane::minimumSizeHint() const
{
    return QScrollArea::minimumSizeHint().expandedTo(QSize(narrowest, 0));
}

bool SidePane::event(QEvent *event)
{
    if (event->type() == QEvent::Polish) {
        leaveWheelToPane();
    }
    return QScrollArea::event(event);
}

void SidePane::leaveWheelToPane()
{
    for (QWidget *input : findChildren<QWidget *>()) {
        if (takesWheel(input)) {
            input->setFocusPolicy(Qt::StrongFocus); // not by the wheel
            input->installEventFilter(this);
        }
    }
}

bool SidePane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel && takesWheel(watched) && !static_cast<QWidget *>(watched)->hasFocus()) {
        event->ignore(); // goes on to the pane
        return true;
    }
    if (event->type() == QEvent::LayoutRequest && watched == widget()) {
        updateGeometry();
        showScrollBarIfNeeded();
    }
    return QScrollArea::eventFilter(watched, event);
}

void SidePane::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    showScrollBarIfNeeded();
}

// The toolkit keeps a scroll bar once shown: beside it the texts are broken, and higher than without it.
void SidePane::showScrollBarIfNeeded()
{
    const QSize room = maximumViewportSize();
    const int broken = widget()->heightForWidth(room.width());
    const int needed = broken >= 0 ? broken : widget()->minimumSizeHint().height();
    setVerticalScrollBarPolicy(needed <= room.height() ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}
