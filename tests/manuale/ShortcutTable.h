// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QWidget;

// A command of a window that has keys.
struct ShortcutRow
{
    QString window;  // its title
    QString command; // as the user reads it, with the menus that lead to it
    QStringList keys;
};

// What the keys of a window do, in the words of the window.
QVector<ShortcutRow> shortcutRows(const QWidget &window);
// Lines of a table in Markdown, without its head.
QStringList tableLines(const QVector<ShortcutRow> &rows);
// A page whose one table is found by its first line, with other lines below that table's head. Empty without such a
// table.
QString withTable(const QString &page, const QStringList &lines);
