// SPDX-License-Identifier: MIT
#include "manuale/ShortcutTable.h"

#include "settings/Product.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace {
const QLatin1String tableLine("|");
constexpr int headLines = 2;

// Without the mnemonics.
QString plain(QString text)
{
    return text.remove(QLatin1Char('&'));
}

QString titleOf(const QWidget &window)
{
    const QString title = window.windowTitle().section(QStringLiteral(" - "), 1);
    return !title.isEmpty() ? title : window.windowTitle().remove(QStringLiteral(" v") + Product::releaseText());
}

// The names of the menus that lead to an action, with a sign behind each.
QString menusOf(const QAction *action)
{
    for (const QWidget *widget : action->associatedWidgets()) {
        if (const auto *menu = qobject_cast<const QMenu *>(widget)) {
            return QStringLiteral("**%1** > ").arg(plain(menu->title()));
        }
    }
    return QString();
}

class Collector final
{
public:
    explicit Collector(const QWidget &window)
        : m_title(titleOf(window))
    {
        for (const auto *action : window.findChildren<QAction *>()) {
            if (action->isEnabled()) {
                add(menusOf(action) + QStringLiteral("**%1**").arg(plain(action->text())), action->shortcut());
            }
        }
        for (const auto *button : window.findChildren<QAbstractButton *>()) {
            if (button->window() == &window) {
                add(QStringLiteral("**%1**").arg(plain(button->text())), button->shortcut());
            }
        }
        for (const auto *shortcut : window.findChildren<QShortcut *>()) {
            add(shortcut->whatsThis(), shortcut->key());
        }
    }

    QVector<ShortcutRow> rows;

private:
    // Several keys for one command stand in one row.
    void add(const QString &command, const QKeySequence &keys)
    {
        if (keys.isEmpty()) {
            return;
        }
        const QString text = keys.toString(QKeySequence::NativeText);
        for (ShortcutRow &row : rows) {
            if (row.command == command) {
                row.keys << text;
                return;
            }
        }
        rows << ShortcutRow{m_title, command, {text}};
    }

    const QString m_title;
};
} // namespace

QVector<ShortcutRow> shortcutRows(const QWidget &window)
{
    return Collector(window).rows;
}

QStringList tableLines(const QVector<ShortcutRow> &rows)
{
    QStringList lines;
    for (const ShortcutRow &row : rows) {
        lines
            << QStringLiteral("| %1 | %2 | `%3` |").arg(row.window, row.command, row.keys.join(QStringLiteral("`, `")));
    }
    lines.removeDuplicates();
    return lines;
}

QString withTable(const QString &page, const QStringList &lines)
{
    QStringList result = page.split(QLatin1Char('\n'));
    int first = 0;
    while (first < result.size() && !result[first].startsWith(tableLine)) {
        ++first;
    }
    int next = first + headLines;
    if (next > result.size()) {
        return QString();
    }
    while (next < result.size() && result[next].startsWith(tableLine)) {
        result.removeAt(next);
    }
    for (const QString &line : lines) {
        result.insert(next++, line);
    }
    return result.join(QLatin1Char('\n'));
}
