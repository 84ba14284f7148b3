// SPDX-License-Identifier: MIT
#include "manuale/Pictures.h"

#include "generation/GUtils.h"
#include "mainwindow/PagePreview.h"
#include "manuale/PictureScene.h"
#include "model/Cartella.h"
#include "msgarea/MsgArea.h"
#include "personale/EditPersonale.h"
#include "personale/PersonaleChkBox.h"
#include "serata/Serata.h"
#include "settings/FormatSelection.h"
#include "settings/Options.h"

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

namespace {
enum Zoom { WholePage, Width }; // items of the preview's combo box

constexpr int pagesOfAnEvening = 20;

void takeMainWindow(PictureScene &scene)
{
    scene.makePages(pagesOfAnEvening);
    scene.take(scene.mainWindow());
}

void takeFirstStart(PictureScene &scene)
{
    FormatSelection dialog;
    dialog.show();
    scene.take(&dialog);
}

void takeComparison(PictureScene &scene)
{
    scene.makePages(pagesOfAnEvening);
    scene.boxes.expectBox(scene.titleOf("Cartella classica"), QMessageBox::Ok,
                          [&scene](QMessageBox *box) { scene.take(box); });
    scene.trigger("actionConfronta_blocchi");
}

void takePreview(PictureScene &scene, Zoom zoom, const QSize &size = QSize())
{
    scene.trigger("actionAnteprima");
    auto *preview = scene.opened<PagePreview>();
    PictureScene::choose(preview, "zoom_comboBox", zoom);
    scene.take(preview, size);
}

void takePreviewOfAPage(PictureScene &scene)
{
    scene.makePages(pagesOfAnEvening);
    takePreview(scene, WholePage);
}

void takeNumberedPage(PictureScene &scene)
{
    scene.makePages(pagesOfAnEvening);
    scene.trigger("actionNumeraBlocchi");
    takePreview(scene, Width, QSize(1000, 560)); // the numbers are small
}

void takeParameters(PictureScene &scene)
{
    PictureScene::type(scene.mainWindow(), "box_classica_numeroestrazionixriga", 6);
    scene.take(findIn<QDockWidget>(scene.mainWindow(), "parametriDock"));
}

void clickCell(QTableWidget *table, int row, int column)
{
    const QPoint place = table->visualItemRect(table->item(row, column)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

// A new one after every page shown.
QTableWidget *tableOf(PictureScene &scene)
{
    return findIn<QTableWidget>(scene.mainWindow(), "tableWidget");
}

int firstEmptyColumn(const QTableWidget *table)
{
    int column = 0;
    while (!table->item(0, column)->text().isEmpty()) {
        ++column;
    }
    return column;
}

// Answered No, No, OK: what was typed becomes a picture.
void makePictureCell(PictureScene &scene, int column)
{
    for (const auto answer : {QMessageBox::No, QMessageBox::No, QMessageBox::Ok}) {
        scene.boxes.expectBox(scene.titleOf("Modifica valori"), answer, [](QMessageBox *) {});
    }
    QTableWidget *table = tableOf(scene);
    table->editItem(table->item(0, column));
    PictureScene::type(table->viewport()->findChild<QLineEdit *>(), QStringLiteral("logo"));
    QTRY_COMPARE(scene.boxes.answered(), 3);
}

void takeStyle(PictureScene &scene)
{
    PictureScene::type(scene.mainWindow(), "box_classica_numeroblocchi", 3);
    scene.makePages(10);
    PictureScene::press(scene.mainWindow(), "applica_tutte_pagine_checkBox");
    PictureScene::type(scene.mainWindow(), "spazio_blocchi_spin", 8);
    PictureScene::press(scene.mainWindow(), "pagina_applica");
    scene.chooseColour("colorapaginasfondo", QStringLiteral("#fff4d6"));
    clickCell(tableOf(scene), 3, 0);
    scene.chooseColour("colorabloccosfondo", QStringLiteral("#dce9f7"));
    tableOf(scene)->selectAll();
    PictureScene::press(scene.mainWindow(), "applica_tutte_celle");
    scene.chooseColour("coloracellatesto", QStringLiteral("#8b1a1a"));
    const int column = firstEmptyColumn(tableOf(scene));
    makePictureCell(scene, column);
    clickCell(tableOf(scene), 0, column);
    scene.take(scene.mainWindow());
}

void takePicturesAndWords(PictureScene &scene)
{
    const bool italian = shownLanguage().startsWith(QLatin1String("it"));
    scene.config->defaultCellText = italian ? QStringLiteral("BIS") : QStringLiteral("WIN");
    PictureScene::type(scene.mainWindow(), "box_classica_numeroblocchi", 4);
    PictureScene::type(scene.mainWindow(), "box_classica_numeroestrazionixriga", 7);
    PictureScene::type(scene.mainWindow(), "box_classica_numerojollyxriga", 1);
    PictureScene::type(scene.mainWindow(), "box_classica_numeroscrittexriga", 1);
    scene.makePages(5);
    takePreview(scene, WholePage);
}

PersonaleChkBox *cellOf(const EditPersonale *editor, int row, int column)
{
    for (auto *box : editor->findChildren<PersonaleChkBox *>()) {
        if (box->riga == row && box->colonna == column && box->isVisible()) {
            return box;
        }
    }
    qFatal("no such cell");
}

void takeEditor(PictureScene &scene)
{
    PictureScene::press(scene.mainWindow(), "MappaManuale");
    PictureScene::type(scene.mainWindow(), "box_classica_numerorighexblocco", 5);
    PictureScene::type(scene.mainWindow(), "box_classica_numerocolonne", 5);
    PictureScene::type(scene.mainWindow(), "box_classica_numeromassimo", 75);
    scene.makePages(10);
    auto *editor = scene.opened<EditPersonale>();
    PictureScene::press(editor, "selezione_tutte_ckbox");
    PictureScene::press(editor, "num_radioButton");
    PictureScene::press(editor, "setNumTxtImgButton");
    PictureScene::press(editor, "riempiButton");
    for (int times = 0; times < 2; ++times) {
        QTest::keyClick(cellOf(editor, 2, 2), Qt::Key_T);
    }
    PictureScene::press(editor, "checkBox_ordinaNumxColonne");
    scene.take(editor, QSize(760, 640));
    delete editor;
}

void takeEvening(PictureScene &scene)
{
    scene.makePages(pagesOfAnEvening);
    scene.trigger("actionSerata");
    auto *evening = scene.opened<Serata>();
    QStringList calls = {QStringLiteral("17"), QStringLiteral("4"), QStringLiteral("88"), QStringLiteral("52")};
    const Riga &firstRow = scene.mainWindow()->cardSet()->pagine[0]->blocchi[0].righe[0];
    for (int i = 0; i < firstRow.nCelle; ++i) {
        if (firstRow.celle[size_t(i)].tipo == CELL_NUMERO) {
            calls << QString::number(firstRow.celle[size_t(i)].numero);
        }
    }
    calls.removeDuplicates(); // calling a number again takes it back
    for (const QString &number : qAsConst(calls)) {
        PictureScene::type(findIn<QLineEdit>(evening, "numero_edit"), number);
    }
    PictureScene::type(findIn<QLineEdit>(evening, "scheda_edit"), QStringLiteral("1.1"));
    scene.take(evening, QSize(1024, 700));
}

Options *openOptions(PictureScene &scene)
{
    scene.trigger("actionOpzioni");
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *options = qobject_cast<Options *>(window)) {
            return options;
        }
    }
    qFatal("no options");
}

void takeOptions(PictureScene &scene)
{
    Options *options = openOptions(scene);
    scene.take(options);
    delete options;
}

// The comments come from the dialog of the first start. The folder in the picture is one that a user could have.
void takeConfig(PictureScene &scene)
{
    {
        FormatSelection dialog;
        QTest::mouseClick(findIn<QAbstractButton>(&dialog, "procedi"), Qt::LeftButton);
    }
    QFile file(Config::filePath());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray content = file.readAll();
    content.replace(QDir::currentPath().toUtf8(), "/home/anna/Quintra");
    QVERIFY(file.resize(0) && file.write(content) == content.size());
    file.close();
    Options *options = openOptions(scene);
    PictureScene::press(options, "butt_formatselection");
    auto *text = options->findChild<MsgArea *>();
    scene.take(text);
    delete options;
}
} // namespace

void printPage(PictureScene &scene, const QString &fileName)
{
    scene.makePages(1);
    int row = 0;
    for (const char *colour : {"#fff0b8", "#d0e6ff", "#d8f2d0"}) {
        clickCell(tableOf(scene), row, 0);
        scene.chooseColour("colorabloccosfondo", QString::fromLatin1(colour));
        row += 6;
    }
    scene.boxes.expectFileDialog(QCoreApplication::translate("MainWindow", "Salva le cartelle su file"), fileName);
    PictureScene::press(scene.mainWindow(), "butt_stampa");
}

const std::vector<Picture> &picturesOfTheManual()
{
    static const std::vector<Picture> pictures = {{"first-start", takeFirstStart},
                                                  {"main-window", takeMainWindow},
                                                  {"compare", takeComparison},
                                                  {"preview", takePreviewOfAPage},
                                                  {"parameters", takeParameters},
                                                  {"style", takeStyle},
                                                  {"pictures-and-words", takePicturesAndWords},
                                                  {"editor", takeEditor},
                                                  {"numbered", takeNumberedPage},
                                                  {"serata", takeEvening},
                                                  {"config", takeConfig},
                                                  {"options", takeOptions}};
    return pictures;
}
