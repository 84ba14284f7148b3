// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow/MainWindow.h"
#include "model/Positions.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/Find.h"
#include "support/ScratchFolder.h"

#include <QColorDialog>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStatusBar>
#include <QTableWidget>
#include <QtTest>

// How many blocks, rows of a block and cells of a row a page has.
struct PageShape
{
    U8 blocks;
    U8 rows;
    U8 cells;
};

// A main window in a folder of its own, whose card set is generated and can be given any shape.
class PageWindow final
{
public:
    PageWindow()
        : config((m_folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red), qApp))
        , window(std::make_unique<MainWindow>())
    {
    }
    Q_DISABLE_COPY_MOVE(PageWindow)

    // Makes the set from pages of empty cells and shows the first one.
    void showPages(const QVector<PageShape> &shapes)
    {
        find<QSpinBox>("box_classica_numeropagine")->setValue(1);
        QVERIFY(window->generate(false));
        while (set()->getNumPages() > 0) {
            set()->deletePage(0);
        }
        for (const PageShape &shape : shapes) {
            set()->generateBlock(shape.blocks, shape.rows, shape.cells);
        }
        window->loadPagina(0);
    }
    void showPages(int count, const PageShape &shape) { showPages(QVector<PageShape>(count, shape)); }

    template<class Widget>
    Widget *find(const char *name) const
    {
        return findIn<Widget>(window.get(), name);
    }
    void press(const char *name) const { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void check(const char *name) const { find<QAbstractButton>(name)->click(); }
    QString text(const char *label) const { return find<QLabel>(label)->text(); }
    int shown(const char *lcd) const { return find<QLCDNumber>(lcd)->intValue(); }
    bool enabled(const char *name) const { return find<QWidget>(name)->isEnabled(); }
    QString status() const { return window->statusBar()->currentMessage(); }
    QSpinBox *pageNumber() const { return find<QSpinBox>("pagina_corrente_spinBox"); }

    QTableWidget *table() const { return find<QTableWidget>("tableWidget"); }
    QTableWidgetItem *item(int row, int column) const { return table()->item(row, column); }
    void select(int row, int column) const { item(row, column)->setSelected(true); }
    void type(int row, int column, const QString &text) const
    {
        table()->editItem(item(row, column));
        auto *editor = table()->viewport()->findChild<QLineEdit *>();
        QVERIFY(editor != nullptr);
        editor->clear();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return); // committed from the event loop
        const QPointer<QLineEdit> open = editor;
        QTRY_VERIFY(open.isNull());
    }

    Cartella *set() const { return window->cardSet(); }
    Pagina *page(int number) const { return set()->pagine[number]; }
    Cella &cell(int page, int row, int column) const { return *cellAt(*set()->pagine[page], row, column); }
    // Gives a row of the table fewer cells.
    void shorten(int page, int row, U8 cells) const
    {
        const auto position = rowPosition(*set()->pagine[page], row);
        Riga &riga = set()->pagine[page]->blocchi[size_t(position->block)].righe[size_t(position->row)];
        riga.nCelle = cells;
        riga.celle = std::make_unique<Cella[]>(cells);
    }

    QColorDialog *picker() const { return window->findChild<QColorDialog *>(); }
    // The user chooses a colour in the picker, which must be open.
    void choose(const QColor &colour) const
    {
        QVERIFY(picker()->isVisible());
        picker()->setCurrentColor(colour);
        picker()->accept();
    }

private:
    ScratchFolder m_folder;

public:
    CurrentConfig config;
    BoxScript boxes;
    std::unique_ptr<MainWindow> window;
};

// Collects the messages of a window's status bar.
class StatusLog final
{
public:
    explicit StatusLog(const PageWindow &page)
        : m_spy(page.window->statusBar(), &QStatusBar::messageChanged)
    {
    }
    QStringList messages() const
    {
        QStringList all;
        for (const QList<QVariant> &arguments : m_spy) {
            all.append(arguments.first().toString());
        }
        return all;
    }

private:
    QSignalSpy m_spy;
};
