// SPDX-License-Identifier: MIT
#pragma once

#include "personale/EditPersonale.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/Find.h"
#include "support/ScratchFolder.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGridLayout>
#include <QLCDNumber>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>

// An editor with the window that opened it, its card set and scripted boxes, in a folder of its own.
struct EditorUnderTest
{
    explicit EditorUnderTest(U8 rows = 3, U8 columns = 9, U16 pages = 2, int nmin = 1, int nmax = 90)
        : config(qApp)
    {
        config.defaultSaveDir = folder.path(QString());
        mainWindow.show();
        editor = new EditPersonale(&mainWindow, &cartella, rows, columns, pages, nmin, nmax, 0);
    }
    ~EditorUnderTest() { delete editor; }
    Q_DISABLE_COPY_MOVE(EditorUnderTest)

    template<typename T>
    T *find(const char *name) const
    {
        return findIn<T>(editor, name);
    }
    QSpinBox *spin(const char *name) const { return find<QSpinBox>(name); }
    QAbstractButton *button(const char *name) const { return find<QAbstractButton>(name); }
    void click(const char *name) const { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }
    void trigger(const char *name) const { find<QAction>(name)->trigger(); }
    void showPage(int number) const { spin("pageNumSpinBox")->setValue(number); }
    void selectAll(bool all) const { button("selezione_tutte_ckbox")->setChecked(all); }
    void select(int rowFrom, int rowTo, int columnFrom, int columnTo) const
    {
        selectAll(false);
        spin("row_to_spinBox")->setValue(rowTo);
        spin("row_from_spinBox")->setValue(rowFrom);
        spin("col_to_spinBox")->setValue(columnTo);
        spin("col_from_spinBox")->setValue(columnFrom);
    }
    QString status() const { return editor->statusBar()->currentMessage(); }
    QString verdict() const { return find<QLabel>("status_label")->toolTip(); }
    QString picture() const
    {
        const QPixmap shown = find<QLabel>("status_label")->pixmap(Qt::ReturnByValue);
        for (const char *name : {"ok", "warning"}) {
            const QString path = QStringLiteral(":/Images/resources/img/%1.png").arg(QLatin1String(name));
            if (shown.toImage() == QPixmap(path).toImage()) {
                return QLatin1String(name);
            }
        }
        return QString();
    }
    bool canCreate() const
    {
        const bool enabled = button("creapagineButton")->isEnabled();
        Q_ASSERT(find<QAction>("actionCreaPagine")->isEnabled() == enabled);
        return enabled;
    }
    QGridLayout *grid() const { return find<QGridLayout>("boxesGridLayout"); }
    // The box of the page on display, position 0-based.
    PersonaleChkBox *box(int row, int column) const
    {
        QLayoutItem *item = grid()->itemAtPosition(row, column);
        return item != nullptr ? qobject_cast<PersonaleChkBox *>(item->widget()) : nullptr;
    }
    void tick(int row, int column, CELL_VALUE tipo) const
    {
        box(row, column)->setTipo(tipo);
        box(row, column)->setChecked(true);
    }
    // The page on display as the letters of a mapping file, rows separated by a blank.
    QString drawn() const
    {
        static const QString letters = QStringLiteral("nsio");
        QString text;
        for (int row = 0; box(row, 0) != nullptr; ++row) {
            text += row > 0 ? QStringLiteral(" ") : QString();
            for (int column = 0; box(row, column) != nullptr; ++column) {
                const QChar letter = letters.at(box(row, column)->tipo);
                text += box(row, column)->isChecked() ? letter.toUpper() : letter;
            }
        }
        return text;
    }
    void expectSave(const QString &fileName)
    {
        boxes.expectFileDialog(QStringLiteral("Salva le cartelle su file"), fileName);
    }
    void expectOpen(const QString &fileName)
    {
        boxes.expectBox(
            QStringLiteral("Quintra"),
            QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
            QMessageBox::Yes, QMessageBox::Question);
        boxes.expectFileDialog(QStringLiteral("Apre un file di cartelle"), fileName);
    }
    // Writes a file and opens it.
    void open(const QByteArray &content)
    {
        folder.write(QStringLiteral("in.QcF"), content);
        expectOpen(folder.path(QStringLiteral("in.QcF")));
        trigger("actionOpen");
    }
    void expectCopyQuestion(QMessageBox::StandardButton answer)
    {
        boxes.expectBox(
            QStringLiteral("Quintra"),
            QStringLiteral("Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?"), answer,
            QMessageBox::Question);
    }
    void copyTo(int from, int to)
    {
        spin("impostaAspinBox")->setValue(to);
        spin("impostaDAspinBox")->setValue(from);
        expectCopyQuestion(QMessageBox::Yes);
        click("impostaschemacorrenteButton");
    }
    void expectCloseQuestion(QMessageBox::StandardButton answer)
    {
        boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"), QStringLiteral("Sei sicuro di voler chiudere?"),
                        answer, QMessageBox::Question);
    }
    void expectCreated()
    {
        boxes.expectBox(QStringLiteral("Quintra - Mappatura manuale"),
                        QStringLiteral("Pagine create e aggiunte alla cartella principale!"), QMessageBox::Ok,
                        QMessageBox::Information);
    }

    ScratchFolder folder;
    CurrentConfig config;
    BoxScript boxes;
    Cartella cartella;
    QWidget mainWindow;
    QPointer<EditPersonale> editor;
};
