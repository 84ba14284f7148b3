// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class FormatSelection;
}

QT_WARNING_PUSH
// The signal by which all top-level windows end hides the slot of dialogs.
QT_WARNING_DISABLE_CLANG("-Woverloaded-virtual")

// The first-start dialog: choice of the language, direct editing of config.ini.
class FormatSelection final : public QDialog
{
    Q_OBJECT

public:
    explicit FormatSelection(QWidget *parent = nullptr);
    ~FormatSelection() override;

    // Escape ends the dialog like its close button.
    void reject() override;

signals:
    // "OK" was pressed, or the dialog was closed.
    void done();

protected:
    void closeEvent(QCloseEvent *event) override;

private slots:
    void on_procedi_clicked();
    void on_default_settings_clicked();
    void on_lang_selection_currentIndexChanged(int index);

private:
    // Offers the languages of the translation files and chooses the configured one.
    void fillLanguages();
    // The texts in the language installed now.
    void showTexts();

    std::unique_ptr<Ui::FormatSelection> ui;
};

QT_WARNING_POP
