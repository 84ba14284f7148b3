// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>

class MsgArea;

namespace Ui {
class Options;
}

// The options dialog: resets config.ini or opens it for editing. Shows itself when created; the creator decides whether
// it goes when it is closed.
class Options final : public QDialog
{
    Q_OBJECT

public:
    // `parent` is the window to close by "Azzera ed esci"; it does not own the dialog and may go before it.
    explicit Options(QWidget *parent);
    ~Options() override;

    // Removes config.ini, tells the outcome and, after a success, closes the kept window when exitAfter is set.
    void deleteConfig(bool exitAfter);

    void done(int result) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void on_butt_azzeraesci_clicked();
    void on_butt_azzeracontinua_clicked();
    void on_butt_formatselection_clicked();

private:
    // Asks with Yes and No; whether the answer was Yes.
    bool confirm(const QString &question);

    std::unique_ptr<Ui::Options> ui;
    QPointer<QWidget> m_window;
    QPointer<MsgArea> m_msgArea; // the last one opened
};
