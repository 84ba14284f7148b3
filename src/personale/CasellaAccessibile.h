// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class PersonaleChkBox;

// What a screen reader knows of a cell of the mapping editor: made when one asks, so that the cells store nothing.
class CasellaAccessibile final : public QAccessibleWidget
{
public:
    // Lets all cells be read. Repeating it is free.
    static void install();

    explicit CasellaAccessibile(PersonaleChkBox *box);

    // "riga 1, colonna 1, numero 45, spuntata"
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

private:
    PersonaleChkBox *box() const;
    QString name() const;
};
