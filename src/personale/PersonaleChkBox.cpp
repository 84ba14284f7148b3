// SPDX-License-Identifier: MIT
#include "personale/PersonaleChkBox.h"

#include <QAccessible>
#include <QGridLayout>
#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSet>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {
constexpr int tilePadding = 3;     // pixels between the edge of a cell and its content
constexpr double signScale = 0.75; // of the font of the type's letter to that of the number

// Boxes at the same place of different pages share one text.
const QString &positionText(U8 row, U8 column)
{
    static QHash<quint32, QString> texts;
    QString &text = texts[row * 256U + column];
    if (text.isNull()) {
        text = QStringLiteral("%1,%2").arg(row + 1).arg(column + 1);
    }
    return text;
}

// The same text again, in the memory of its first occurrence.
QString shared(const QString &text)
{
    static QSet<QString> texts;
    return *texts.insert(text);
}

// Translucent, so that it suits light and dark palettes.
QColor tileColor(CELL_VALUE tipo, bool ticked)
{
    QColor color(Qt::gray);
    switch (tipo) {
    case CELL_NUMERO:
        color = QColor(0x2f, 0x74, 0xd8);
        break;
    case CELL_TESTO:
        color = QColor(0x2c, 0x9c, 0x50);
        break;
    case CELL_IMMAGINE:
        color = QColor(0xe0, 0x8a, 0x18);
        break;
    case CELL_VUOTA:
        break;
    }
    color.setAlpha(ticked ? 80 : 35); // more would hide the letters of a dark palette
    return color;
}

QFont signFont(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * signScale);
    return font;
}

bool takesTab(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isVisible() && widget.isEnabled() &&
           widget.focusProxy() == nullptr;
}
} // namespace

PersonaleChkBox::PersonaleChkBox()
    : tipo(CELL_VUOTA)
{
    static const int positionType = qRegisterMetaType<U8>("U8"); // an argument of the signals
    Q_UNUSED(positionType)
    setPosition(0, 0);
    setStatusTip(shared(typeName(tipo)));
    connect(this, &QCheckBox::toggled, this, &PersonaleChkBox::checked);
}

QString PersonaleChkBox::typeName(CELL_VALUE value)
{
    switch (value) {
    case CELL_NUMERO:
        return tr("Numero");
    case CELL_TESTO:
        return tr("Testo");
    case CELL_IMMAGINE:
        return tr("Immagine");
    case CELL_VUOTA:
        return tr("Vuota");
    }
    qFatal("CELL_TYPE UNKNOWN");
}

void PersonaleChkBox::setTipo(CELL_VALUE value)
{
    if (value == tipo) {
        return;
    }
    setStatusTip(shared(typeName(value)));
    tipo = value;
    update();
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void PersonaleChkBox::setPosition(U8 row, U8 column)
{
    riga = row;
    colonna = column;
    setToolTip(positionText(row, column));
}

// Numbers of two digits fit without moving the grid.
QSize PersonaleChkBox::sizeHint() const
{
    const int indicator =
        style()->pixelMetric(QStyle::PM_IndicatorWidth) + style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    const QFontMetrics metrics = fontMetrics();
    const int number = qMax(metrics.horizontalAdvance(text()), metrics.horizontalAdvance(QStringLiteral("00")));
    const int sign = QFontMetrics(signFont(font())).horizontalAdvance(QLatin1Char('M'));
    return QSize(indicator + number + sign + 4 * tilePadding, metrics.height() + 3 * tilePadding);
}

bool PersonaleChkBox::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void PersonaleChkBox::checked(bool b)
{
    emit schecked(riga, colonna, b);
}

void PersonaleChkBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        emit rclicked(riga, colonna);
        return;
    }
    m_dragging = false;
    m_pointer = mapToParent(event->pos());
    QCheckBox::mousePressEvent(event);
}

// On one cell the left button is that of a plain check box.
void PersonaleChkBox::mouseMoveEvent(QMouseEvent *event)
{
    if (isDown() && event->buttons().testFlag(Qt::LeftButton) && !rect().contains(event->pos())) {
        m_dragging = true;
        setDown(false); // the release does not click any more
    }
    if (!m_dragging) {
        QCheckBox::mouseMoveEvent(event);
        return;
    }
    const QPoint pointer = mapToParent(event->pos());
    tickOnTheWay(m_pointer, pointer);
    m_pointer = pointer;
}

void PersonaleChkBox::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragging = m_dragging && event->button() != Qt::LeftButton;
    QCheckBox::mouseReleaseEvent(event);
}

// A quick mouse tells of few points: those between them count as well. Cells scrolled out of sight do not.
void PersonaleChkBox::tickOnTheWay(const QPoint &from, const QPoint &to)
{
    const QWidget *page = parentWidget();
    const int steps = 1 + (to - from).manhattanLength() / qMax(1, qMin(width(), height()) / 2);
    for (int step = 0; page != nullptr && step <= steps; ++step) {
        const QPoint point = from + (to - from) * step / steps;
        auto *box = qobject_cast<PersonaleChkBox *>(page->childAt(point));
        if (box != nullptr && box->visibleRegion().contains(box->mapFromParent(point))) {
            box->setChecked(true);
        }
    }
}

void PersonaleChkBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return moveFocus(-1, 0);
    case Qt::Key_Down:
        return moveFocus(1, 0);
    case Qt::Key_Left:
        return moveFocus(0, -1);
    case Qt::Key_Right:
        return moveFocus(0, 1);
    case Qt::Key_T:
        if (event->modifiers() == Qt::NoModifier && !event->isAutoRepeat()) {
            emit rclicked(riga, colonna);
            return;
        }
        break;
    default:
        break;
    }
    QCheckBox::keyPressEvent(event);
}

bool PersonaleChkBox::focusNextPrevChild(bool next)
{
    QWidget *other = this;
    do {
        other = next ? other->nextInFocusChain() : other->previousInFocusChain();
    } while (other != this && (other->parentWidget() == parentWidget() || !takesTab(*other)));
    other->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return other != this;
}

// At an edge of the grid the focus stays.
void PersonaleChkBox::moveFocus(int rows, int columns)
{
    const QWidget *page = parentWidget();
    const auto *grid = page != nullptr ? qobject_cast<const QGridLayout *>(page->layout()) : nullptr;
    QLayoutItem *neighbour = grid != nullptr ? grid->itemAtPosition(riga + rows, colonna + columns) : nullptr;
    if (neighbour != nullptr) {
        neighbour->widget()->setFocus(Qt::TabFocusReason);
    }
}

void PersonaleChkBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(palette().highlight(), 2) : QPen(tileColor(tipo, true), 1));
    painter.setBrush(tileColor(tipo, isChecked()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), tilePadding, tilePadding);

    QStyleOptionButton option;
    initStyleOption(&option);
    option.state.setFlag(QStyle::State_HasFocus, false); // told by the frame above
    option.rect.adjust(tilePadding, 0, -tilePadding, 0);
    painter.drawControl(QStyle::CE_CheckBox, option);

    painter.setFont(signFont(font()));
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(option.rect, Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter, statusTip().left(1));
}
