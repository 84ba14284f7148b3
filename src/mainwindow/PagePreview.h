// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>

class Cartella;
class Foglio;

namespace Ui {
class PagePreview;
}

// Shows a page of a card set as it will be printed. It follows what it is told to show, and asks for other pages.
// Escape closes it.
class PagePreview final : public QDialog
{
    Q_OBJECT

public:
    explicit PagePreview(QWidget *parent = nullptr);
    ~PagePreview() override;

    // Shows a page (0-based) of the set as it is now; call it again after every change. The set is not owned and may go
    // at any time. Without such a page the window says that there is none. A `numbered` page has the number of each
    // block beside it.
    void showPage(const Cartella *set, int page, bool numbered = false);

signals:
    // The user wants to see another page (0-based) of the set.
    void pageWanted(int page);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    // In the order of the items of the combo box.
    enum Zoom { FitPage, FitWidth, FullSize };

    void wantPage(int page);
    void showTexts();
    void fitSheet();
    QSize sheetSizeNow() const;

    std::unique_ptr<Ui::PagePreview> ui;
    Foglio *m_sheet = nullptr; // child of the scroll area
    QPointer<const Cartella> m_set;
    int m_page = -1;
};
