// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/CellStyling.h"
#include "mainwindow/ParameterRules.h"
#include "mainwindow/Selezione.h"
#include "mainwindow/WatchedPages.h"
#include "model/Cartella.h"
#include "output/CreateOutputFile.h"

#include <QElapsedTimer>
#include <QFont>
#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class EditPersonale;
class GeneraCartellaClassica;
class MsgArea;
class Options;
class PagePreview;
class QColorDialog;
class QTableWidget;
class QTableWidgetItem;

namespace Ui {
class MainWindow;
}

// The window in which a card set is set up, generated, seen, edited, styled, compared and printed.
// Its slots are grouped by workflow, one .cpp file each.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    // Builds the window and shows it maximised. Needs globalConfig.
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    // Validates the parameters now set, shows the verdict in the status icon, and appends the text of an error or
    // warning to *message, which may be null. 1 correct, 0 warning, -1 error.
    int checkParameters(QString *message, bool append);
    // Creates a new card set, or appends pages to the present one; with "Mappatura manuale" opens the editor instead.
    // False when the user or the validation cancelled.
    bool generate(bool append);
    // Shows a page (0-based) in the table.
    void loadPagina(U16 page);

    // The card set shown and edited. Never null.
    Cartella *cardSet() const { return m_cartella.get(); }

signals:
    // The user has confirmed leaving.
    void done();

public slots:
    void updateStatusBar(const QString &msg);
    void setStatusBarStyle();

    void on_pagina_corrente_spinBox_valueChanged(int value);
    void tableItemChanged(QTableWidgetItem *item);
    void tableItemSelectionChanged();
    void on_applica_tutte_celle_clicked(bool checked);
    void on_applica_tutti_blocchi_checkBox_clicked(bool checked);
    void on_pagina_applica_clicked();
    void on_seleziona_font_button_clicked();
    void on_pagina_formato_currentIndexChanged(int index);

    void on_box_classica_numeropagine_valueChanged(int value);
    void on_box_classica_numeroblocchi_valueChanged(int value);
    void on_box_classica_numerorighexblocco_valueChanged(int value);
    void on_box_classica_numeroestrazionixriga_valueChanged(int value);
    void on_box_classica_numerojollyxriga_valueChanged(int value);
    void on_box_classica_numeroscrittexriga_valueChanged(int value);
    void on_box_classica_numerocolonne_valueChanged(int value);
    void on_box_classica_numerominimo_valueChanged(int value);
    void on_box_classica_numeromassimo_valueChanged(int value);

    void on_butt_stampa_clicked();
    void on_actionConfronta_blocchi_triggered();
    void on_butt_aggiungi_pagine_clicked();
    void on_actionCrea_triggered();
    void on_actionEsci_triggered();
    void on_MappaManuale_toggled(bool checked);
    void generatePersDone();
    void on_buttSelezionaImmagine_clicked();
    void on_pagina_elimina_clicked();
    void on_actionOpzioni_triggered();

    void on_colorapaginasfondo_clicked();
    void coloraPaginaSfondo(QColor color);
    void on_colorabloccolineaesterna_clicked();
    void coloraBloccoLineaEsterna(QColor color);
    void on_colorabloccolineainterna_clicked();
    void coloraBloccoLineaInterna(QColor color);
    void on_colorabloccosfondo_clicked();
    void coloraBloccoSfondo(QColor color);
    void on_coloracellatesto_clicked();
    void coloraCellaTesto(QColor color);
    void on_coloracellasfondo_clicked();
    void coloraCellaSfondo(QColor color);

    void on_blocco_applica_clicked();
    void on_cella_applica_clicked();
    void on_actionOpen_triggered();
    void on_actionSave_triggered();
    void on_actionInformazioni_triggered();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    // Construction.
    void setupShortcuts();
    void connectCommands();
    void welcome();
    void setupParameters();
    void setupPageView();
    void setupColorDialog();
    void setupPaperFormats();
    void setupSidePanes();

    // Parameters.
    void loadDefaultParameters();
    void parameterEdited();
    void showChangedDefaults();
    void enableParameters(bool byHand);
    CardParameters parameters() const;
    void showSettingStatus(Verdict verdict, const QString &toolTip);

    // Generation.
    bool confirmNewSet();
    bool confirmGeneration(bool append);
    bool confirmVerdict(int verdict, const QString &message);
    void replaceCardSet(std::unique_ptr<Cartella> cartella);
    bool generateUndisturbed(bool append);
    void warnOfUnreadableImage();
    void createEmptyPages(const CardParameters &requested);
    bool appendEmptyPages(const CardParameters &requested);
    void fillPages(int first, const CardParameters &requested);
    bool tellOfFailedPage(int page);
    void showFirstPage();
    bool openEditor(bool append);
    void makeEditor(bool append);

    // Boxes.
    static QString boxTitle();
    void warn(const QString &text, const QString &reason);

    // Printing.
    QString askFileName(const QString &caption, const QString &format);
    CreateOutputFile::Printed writeOutputFile(const QString &fileName, QString &report);
    void openPreview();
    void updatePreview();
    void cardSetChanged();
    QString unprintedPages() const;
    void warnOfPagesWithoutRoom();

    // The evening.
    void saveRegister();
    void openEvening();
    void rememberNumbers(NumberRange numbers, int pagesBefore);

    // The page table.
    QTableWidget *replaceTable();
    void reloadPage();
    Pagina *shownPage() const;
    QVector<TablePosition> selectedPositions() const;
    Selezione selection() const;
    void showSelection(const Selezione &selection);
    void resetSelectionPanels(int blocks);
    void disableLineWidths();
    void showFontOf(const Selezione &selection);
    void showFont(const QFont &font);
    void showFontText(const QString &text);

    // Cell editing.
    std::optional<TablePosition> typedPlace(const QTableWidgetItem *item);
    void takeTypedText(const TablePosition &place, const QString &text);
    Cella askWhatIsTyped(const QString &text);
    void clearSelectedCells();
    void showContent(const TablePosition &place, bool asTyped);
    const Cella *selectedImageCell() const;
    bool confirmImage(const QString &question, const QImage &image);

    // Styling.
    QVector<Pagina *> pagesInRange() const;
    bool require(bool condition, const QString &refusal);
    bool requirePages();
    bool requireSelection();
    bool requireBlock();
    static QString lineColoursHaveNoEffect();
    void openColourPicker(const QWidget *button, void (MainWindow::*colouringSlot)(QColor));
    void disconnectColourPicker();
    void recolour(const std::function<void()> &change);
    void recolourCells(QColor Cella::*part, const QColor &colour, const QString &done);
    bool changeSelectedCells(const std::function<void(Cella &)> &change);
    void warnOfSkippedCells(bool complete);

    // Comparison.
    void showEqualBlocks(qint64 pairs);

    std::unique_ptr<Ui::MainWindow> ui;
    QPointer<Options> m_options; // the last one opened
    std::unique_ptr<GeneraCartellaClassica> m_generatore;
    quint64 m_cellsInMemory = 0; // deleting pages does not lower it
    std::unique_ptr<Cartella> m_cartella;
    WatchedPages m_watchedPages;
    QTableWidget *m_table = nullptr;       // child of the central widget, rebuilt for every page
    QTableWidget *m_tableAsking = nullptr; // the one whose item the user is being asked about
    QColorDialog *m_colorDialog = nullptr; // child, shared by all colour commands
    QFont m_currentFont;
    QString m_imageFilter; // of file names, the last one chosen for pictures
    QPointer<MsgArea> m_about;
    QPointer<PagePreview> m_preview;  // deletes itself when closed
    QPointer<EditPersonale> m_editor; // deletes itself when closed
    int m_pageShown = 0;              // 1-based, 0 for none
    int m_pagesBeforeEditor = 0;      // page count of the set when the editor got it
    NumberRange m_editorNumbers;      // that the editor got
    NumberRange m_numbers;            // that the pages of the set were made with
    bool m_leaving = false;           // the user has confirmed leaving
    bool m_generated = false;         // a card set has been generated
    bool m_unprinted = false;         // it was changed after it was printed
    bool m_manyMessages = false;      // more come than can be read: not every one is painted
    QElapsedTimer m_lastRepaint;      // of the status bar
    bool m_editGuard = false;         // while set, changes of table items are not edits
};
