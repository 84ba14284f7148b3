// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

#include <functional>
#include <vector>

class QFontDialog;

// Answers the modal boxes and dialogs of a test, in the order given. A box that nobody expected, one that differs from
// what was expected, and one that never came fail the test when the script is destroyed. A test with a window has a
// script, even an empty one.
//
//     BoxScript boxes;
//     boxes.expectBox(QStringLiteral("Quintra"), QStringLiteral("Sei sicuro di voler uscire?"), QMessageBox::No);
//     window.close();
class BoxScript final : public QObject
{
    Q_OBJECT

public:
    explicit BoxScript(QObject *parent = nullptr);
    ~BoxScript() override;

    // A message box with this title and text; it is answered with `answer`. QMessageBox::Escape closes it by its title
    // bar. `icon` is compared unless it is NoIcon.
    void expectBox(const QString &title, const QString &text, QMessageBox::StandardButton answer,
                   QMessageBox::Icon icon = QMessageBox::NoIcon);
    // A message box of which `look` examines more: it is called before the answer is given.
    void expectBox(const QString &title, const QString &text, QMessageBox::StandardButton answer,
                   std::function<void(QMessageBox *)> look);
    // As above, of a box whose text is not known beforehand.
    void expectBox(const QString &title, QMessageBox::StandardButton answer, std::function<void(QMessageBox *)> look);
    // A file dialog with this caption; `path` is chosen, an empty one cancels.
    void expectFileDialog(const QString &caption, const QString &path);
    // As above; `look` is given the dialog first.
    void expectFileDialog(const QString &caption, const QString &path, std::function<void(QWidget *)> look);
    // A font dialog: `font` is chosen, or it is cancelled.
    void expectFontDialog(const QFont &font);
    // A font dialog in which `choose` does what the user does, before it is accepted.
    void expectFontDialog(std::function<void(QFontDialog *)> choose);
    void expectFontDialogCancelled();

    // Boxes answered until now.
    int answered() const { return m_answered; }
    // What the destructor will complain of: what went wrong until now, and what is still waited for.
    QStringList problems() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Step
    {
        QString description;
        // Empty when the dialog is the expected one and was answered, else what was wrong.
        std::function<QString(QWidget *)> play;
    };

    void meet(QWidget *dialog);

    std::vector<Step> m_steps;
    size_t m_next = 0;
    int m_answered = 0;
    QStringList m_problems;
};
