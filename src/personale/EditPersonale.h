// SPDX-License-Identifier: MIT
#pragma once

#include "personale/PaginaPersonale.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class GeneraCartellaPersonale;
class MsgArea;

namespace MappingFile {
struct SchemaPagina;
}

namespace Ui {
class EditPersonale;
}

// The manual mapping editor: the user ticks which cells of each page are filled, and with what, then creates the pages
// in the card set. Shows itself when created and deletes itself when closed.
class EditPersonale final : public QMainWindow
{
    Q_OBJECT

public:
    // `cartella` receives the pages and is not owned. Each of the pageCount pages is a grid of rows x columns.
    EditPersonale(QWidget *parent, Cartella *cartella, U8 rows, U8 columns, U16 pageCount, int nmin, int nmax,
                  U8 append);
    ~EditPersonale() override;

    // Pages made from now on go to this card set, which took the place of the one before.
    void setCardSet(Cartella *cartella) { m_cartella = cartella; }

signals:
    // The user has confirmed closing.
    void done();

public slots:
    void on_pageNumSpinBox_valueChanged(int v);
    void on_checkBox_ordinaNumxColonne_clicked();
    void on_row_from_spinBox_valueChanged(int v);
    void on_row_to_spinBox_valueChanged(int v);
    void on_col_from_spinBox_valueChanged(int v);
    void on_col_to_spinBox_valueChanged(int v);
    void on_riempiButton_clicked();
    void on_svuotaButton_clicked();
    void on_invertiButton_clicked();
    void on_setNumTxtImgButton_clicked();
    void on_creapagineButton_clicked();
    void on_checkboxChecked(U8 r, U8 c, bool b);
    void on_checkboxRClicked(U8 r, U8 c);
    void on_actionSave_triggered();
    void on_actionEsci_triggered();
    void on_actionOpen_triggered();
    void on_actionCreaPagine_triggered();
    void on_impostaschemacorrenteButton_clicked();
    void on_impostaDAspinBox_valueChanged(int v);
    void on_impostaAspinBox_valueChanged(int v);
    void on_impostasuttute_checkBox_clicked(bool b);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class RightClick { CyclesType, Ignored };

    void fitToolsWidth();
    static PaginaPersonale makePage(U8 rows, U8 columns);
    void connectBoxes(const PaginaPersonale &page, RightClick rightClick);
    void takeDisplayedBoxes();
    void displayPage(U16 page);
    void switchToPage(U16 page);
    void showPageCount();
    void showFocusedCell(QWidget *focused);
    // The page on display; m_noPage in an editor without pages.
    PaginaPersonale &displayedPage();
    void forEachCellInScope(const std::function<void(PersonaleChkBox &)> &action);
    std::vector<size_t> pagesToCopyTo() const;
    bool copySchemeTo(const std::vector<size_t> &pages);
    void resizePages(const std::vector<size_t> &pages);
    CELL_VALUE chosenType() const;
    void recountNumbers();
    void checkSettings();
    void showReason(const QString &reason);
    int clampedPage(int page) const;
    void updatePageRange();
    void createPages();
    void restoreMainWindow();
    bool ask(const QString &title, const QString &question);
    bool confirmClosing();

    QString askSaveFileName();
    QByteArray mappingText();
    QString writeMapping(const QString &fileName);
    void showSaveReport(const QString &fileName);
    void warnOfPagesThatComeBackCut();
    QString readMapping(const QString &fileName);
    void warn(const QString &text);
    bool confirmPages(const std::vector<MappingFile::SchemaPagina> &pages);
    bool confirmBoxes(double count);
    void showPagesOrReason(const QString &whyNone);
    void replacePages(const std::vector<MappingFile::SchemaPagina> &schemes);
    std::vector<PaginaPersonale> makePages(const std::vector<MappingFile::SchemaPagina> &schemes);

    std::unique_ptr<Ui::EditPersonale> ui;
    QPointer<QWidget> m_mainWindow;
    QPointer<MsgArea> m_msgArea; // the last report
    std::unique_ptr<GeneraCartellaPersonale> m_generatore;
    Cartella *m_cartella; // not owned
    U8 m_append;          // kept, not read
    bool m_mainWasMaximized = false;
    bool m_open = false; // shown to the user and not yet closed for good
    U16 m_pageCount;
    U16 m_currentPage = 0; // 0-based
    int m_nmin;
    int m_nmax;
    int m_available;
    int m_tickedNumbers = 0; // not taken anew when the page is switched
    std::optional<Verdict> m_shownVerdict;
    std::vector<PaginaPersonale> m_pages;
    PaginaPersonale m_noPage; // without cells
};
