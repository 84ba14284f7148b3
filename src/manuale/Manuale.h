// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class Manuale;
}

// The window of the manual, to be read beside the others: links, the way back, the way to the contents, and a search.
// Escape hides it, and it comes back at the place where it was.
class Manuale final : public QDialog
{
    Q_OBJECT

public:
    explicit Manuale(QWidget *parent = nullptr);
    ~Manuale() override;

    // Shows a manual, which manualFile() has found, in front of the other windows.
    void showFile(const QString &fileName);

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectCommands();
    void colourLinks();
    void findNext();

    std::unique_ptr<Ui::Manuale> ui;
};
