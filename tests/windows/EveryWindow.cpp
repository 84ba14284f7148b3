// SPDX-License-Identifier: MIT
#include "windows/EveryWindow.h"

#include "generation/GeneraCartellaClassica.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/PagePreview.h"
#include "manuale/ManualFile.h"
#include "manuale/Manuale.h"
#include "model/Positions.h"
#include "msgarea/MsgArea.h"
#include "personale/EditPersonale.h"
#include "serata/NuovaPartita.h"
#include "serata/Serata.h"
#include "settings/FormatSelection.h"
#include "settings/Options.h"
#include "support/Find.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include <functional>
#include <map>

namespace {
using EveryWindow::Stage;
using Window = std::unique_ptr<QWidget>;

const QSize smallestScreen(1024, 700); // device-independent pixels
constexpr U8 columns = 9;
constexpr int depthOfLayouts = 3;

void fillPages(Cartella &cartella)
{
    constexpr int drawn = 5;
    constexpr int lowest = 1;
    constexpr int highest = 90;
    GeneraCartellaClassica generator;
    for (Pagina *page : cartella.pagine) {
        if (!generator.generate(page, columns, drawn, 1, 1, lowest, highest)) {
            qFatal("no cards");
        }
    }
}

// A page with cells of all types, one row shorter than the others, and one cell selected.
Window mainWindow(Stage &)
{
    constexpr int lastRow = 17;
    auto window = std::make_unique<MainWindow>();
    findIn<QSpinBox>(window.get(), "box_classica_numeropagine")->setValue(2);
    findIn<QSpinBox>(window.get(), "box_classica_numerojollyxriga")->setValue(1);
    findIn<QSpinBox>(window.get(), "box_classica_numeroscrittexriga")->setValue(1);
    if (!window->generate(false)) {
        qFatal("no pages");
    }
    Pagina &page = *window->cardSet()->pagine[0];
    const auto position = rowPosition(page, lastRow);
    page.blocchi[size_t(position->block)].righe[size_t(position->row)].nCelle = columns - 2;
    window->loadPagina(0);
    findIn<QTableWidget>(window.get(), "tableWidget")->setCurrentCell(0, 0);
    return window;
}

// A page with cells of all types, their numbers made.
Window editor(Stage &stage)
{
    constexpr U8 rows = 3;
    auto window = std::make_unique<EditPersonale>(nullptr, &stage.cartella, rows, columns, U16(1), 1, 90, 0);
    findIn<QSpinBox>(window.get(), "row_to_spinBox")->setValue(rows);
    int column = 0;
    for (const char *type : {"num_radioButton", "txt_radioButton", "img_radioButton"}) {
        findIn<QSpinBox>(window.get(), "col_to_spinBox")->setValue(++column);
        findIn<QSpinBox>(window.get(), "col_from_spinBox")->setValue(column);
        findIn<QAbstractButton>(window.get(), type)->click();
        findIn<QPushButton>(window.get(), "setNumTxtImgButton")->click();
        findIn<QPushButton>(window.get(), "riempiButton")->click();
    }
    stage.boxes->expectBox(QStringLiteral("Quintra - ") + EditPersonale::tr("Mappatura manuale"), QMessageBox::Ok,
                           [](QMessageBox *) {});
    findIn<QPushButton>(window.get(), "creapagineButton")->click();
    return window;
}

Window report(Stage &)
{
    auto window = std::make_unique<MsgArea>(nullptr, false);
    window->setEditable(false);
    window->setText(QStringLiteral("1\n2"), true);
    return window;
}

Window information(Stage &)
{
    auto window = std::make_unique<MsgArea>(nullptr, false);
    window->setEditable(false);
    window->setText(QStringLiteral("<h1>Quintra</h1><p>0.704</p>"), false);
    return window;
}

Window manual(Stage &stage)
{
    const QString file = QStringLiteral("manual.html");
    stage.folder.write(file, "<h1>Quintra</h1><p>0.704 <a href='other'>2</a></p>");
    auto window = std::make_unique<Manuale>();
    window->showManual(readManual(stage.folder.path(file)));
    return window;
}

Window fileEditor(Stage &)
{
    auto window = std::make_unique<MsgArea>(nullptr, true);
    window->setText(Config::filePath(), true);
    return window;
}

Window preview(Stage &stage)
{
    auto window = std::make_unique<PagePreview>();
    window->showPage(&stage.cartella, 0);
    return window;
}

void call(const Serata &window, quint32 number)
{
    auto *edit = findIn<QLineEdit>(&window, "numero_edit");
    edit->setText(QString::number(number));
    QTest::keyClick(edit, Qt::Key_Return);
}

// A card has all its numbers, another all but one; the first is shown.
Window evening(Stage &stage)
{
    auto window = std::make_unique<Serata>();
    if (!window->openSet(stage.cartella, {1, 90})) {
        qFatal("no evening");
    }
    quint32 last = 0;
    for (const Blocco &block : *stage.cartella.pagine[0]) {
        for (const Riga &row : block) {
            for (const Cella &cell : row) {
                if (cell.tipo == CELL_NUMERO) {
                    last = cell.numero;
                    call(*window, last);
                }
            }
        }
    }
    call(*window, last); // taken back
    auto *card = findIn<QLineEdit>(window.get(), "scheda_edit");
    card->setText(QStringLiteral("1.1"));
    QTest::keyClick(card, Qt::Key_Return);
    return window;
}

Window question(Stage &stage)
{
    stage.boxes.reset(); // nobody is to answer it
    auto box =
        std::make_unique<QMessageBox>(QMessageBox::Warning, QStringLiteral("Quintra - Cartella classica"),
                                      MainWindow::tr("Problemi di impostazione parametri: non posso proseguire!"),
                                      QMessageBox::Yes | QMessageBox::No);
    box->setInformativeText(MainWindow::tr("La cartella è vuota!"));
    return box;
}

template<class Dialog>
Window dialog(Stage &stage)
{
    stage.boxes.reset(); // nobody is to play it
    return std::make_unique<Dialog>();
}

const std::map<QString, std::function<Window(Stage &)>> &makers()
{
    static const std::map<QString, std::function<Window(Stage &)>> all = {
        {QStringLiteral("MainWindow"), mainWindow},
        {QStringLiteral("EditPersonale"), editor},
        {QStringLiteral("FormatSelection"), dialog<FormatSelection>},
        {QStringLiteral("Options"), [](Stage &) { return std::make_unique<Options>(nullptr); }},
        {QStringLiteral("MsgArea report"), report},
        {QStringLiteral("Manuale"), manual},
        {QStringLiteral("MsgArea information"), information},
        {QStringLiteral("MsgArea file"), fileEditor},
        {QStringLiteral("PagePreview"), preview},
        {QStringLiteral("Serata"), evening},
        {QStringLiteral("NuovaPartita"),
         [](Stage &) {
             return std::make_unique<NuovaPartita>(Intervallo{1, 90}, 3);
         }},
        {QStringLiteral("QMessageBox"), question},
        {QStringLiteral("QColorDialog"), dialog<QColorDialog>},
        {QStringLiteral("QFontDialog"), dialog<QFontDialog>},
    };
    return all;
}
} // namespace

namespace EveryWindow {
Stage::Stage()
    : config((prepareFolder(), qApp))
    , utils(qApp)
    , boxes(std::make_unique<BoxScript>())
    , cartella(quint16(2), U8(2), U8(3), columns)
{
    globalUtils = &utils;
    config.defaultSaveDir = folder.path(QString());
    fillPages(cartella);
    speak(QStringLiteral("it_IT"));
}

Stage::~Stage()
{
    globalUtils = nullptr;
}

void Stage::prepareFolder()
{
    folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red);
    const QDir built(QStringLiteral(QUINTRA_LANGUAGE_FOLDER));
    QDir::current().mkdir(QStringLiteral("language"));
    for (const QString &name : built.entryList(QDir::Files)) {
        QFile::copy(built.filePath(name), folder.path(QStringLiteral("language/") + name));
    }
}

bool Stage::speak(const QString &language)
{
    config.language = language; // chosen by the first-start dialog when it opens
    return utils.loadTranslations(language);
}

QStringList names()
{
    QStringList all;
    for (const auto &[name, make] : makers()) {
        all << name;
    }
    return all;
}

bool isToolkitDialog(const QString &name)
{
    return name.startsWith(QLatin1Char('Q'));
}

std::unique_ptr<QWidget> show(const QString &name, Stage &stage)
{
    std::unique_ptr<QWidget> window = makers().at(name)(stage);
    if (!window->inherits("QDialog") || name == QLatin1String("PagePreview")) {
        window->showNormal();
        window->resize(smallestScreen);
    }
    window->show();
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window.get())) {
        qFatal("%s is not shown", qPrintable(name));
    }
    for (int i = 0; i < depthOfLayouts; ++i) {
        QCoreApplication::processEvents(); // one may make the next one settle
    }
    return window;
}

void addRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : names()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}
} // namespace EveryWindow
