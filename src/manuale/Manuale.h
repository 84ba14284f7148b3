// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QMainWindow;
struct ManualFile;

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

    // Shows the manual, in the language of the texts, over the window that asks for it. There is one for all windows;
    // it goes to the one that asked last, so that no modal one blocks it. Where there is no manual the window's status
    // bar says where it was looked for, and the window stays as it is.
    static void openFor(QMainWindow *asker);

    // Shows a manual that could be read, in front of the other windows.
    void showManual(const ManualFile &manual);

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectCommands();
    void colourLinks();
    void findNext();

    std::unique_ptr<Ui::Manuale> ui;
};
