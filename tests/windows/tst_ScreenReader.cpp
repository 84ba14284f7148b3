// SPDX-License-Identifier: MIT
#include "model/Positions.h"
#include "personale/EditPersonale.h"
#include "personale/PersonaleChkBox.h"
#include "serata/Serata.h"
#include "windows/EveryWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include <functional>

using namespace EveryWindow;

namespace {
// Cells that are scrolled out of sight and menus that are closed are read as well.
bool isNeverSeen(const QAccessibleInterface &object)
{
    const QAccessible::Role role = object.role();
    const bool appears = role == QAccessible::Cell || role == QAccessible::PopupMenu || role == QAccessible::MenuItem;
    return object.state().invisible && !appears;
}

void walk(QAccessibleInterface *object, const std::function<void(QAccessibleInterface *)> &visit)
{
    if (object == nullptr || isNeverSeen(*object)) {
        return;
    }
    visit(object);
    for (int i = 0; i < object->childCount(); ++i) {
        walk(object->child(i), visit);
    }
}

// What a user works with or learns something from. Panes, frames and the like are only places.
bool tellsSomething(const QAccessibleInterface &object)
{
    switch (object.role()) {
    case QAccessible::Window:
    case QAccessible::Dialog:
    case QAccessible::MenuItem:
    case QAccessible::Table:
    case QAccessible::ColumnHeader:
    case QAccessible::RowHeader:
    case QAccessible::Cell:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::Graphic:
    case QAccessible::EditableText:
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
        return true;
    default:
        return object.state().focusable;
    }
}

// The list of a combo box is read as a part of the box, and named by it.
bool isListOfComboBox(const QAccessibleInterface &object)
{
    const QAccessibleInterface *parent = object.parent();
    return object.role() == QAccessible::List && parent != nullptr && parent->role() == QAccessible::ComboBox;
}

// The name of a combo box is its value: what it is for is told by its label.
bool isNamed(const QAccessibleInterface &object)
{
    if (object.role() == QAccessible::ComboBox) {
        return !object.relations(QAccessible::Label).isEmpty();
    }
    return !object.text(QAccessible::Name).isEmpty() || isListOfComboBox(object);
}

bool tellsItsState(QAccessibleInterface &object)
{
    const QAccessible::State state = object.state();
    switch (object.role()) {
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
        return state.checkable;
    case QAccessible::SpinBox:
        return object.valueInterface() != nullptr;
    case QAccessible::ComboBox:
        return !object.text(QAccessible::Value).isEmpty();
    case QAccessible::EditableText:
        return object.textInterface() != nullptr && state.editable != state.readOnly;
    case QAccessible::Table:
        return object.tableInterface() != nullptr;
    case QAccessible::Cell:
    case QAccessible::ListItem:
        return state.selectable && state.focusable;
    default:
        return true;
    }
}

QString describe(const QAccessibleInterface &object)
{
    const QObject *widget = object.object();
    return QStringLiteral("%1 \"%2\" of %3")
        .arg(QLatin1String(QMetaEnum::fromType<QAccessible::Role>().valueToKey(object.role())),
             object.text(QAccessible::Name), widget != nullptr ? widget->objectName() : QStringLiteral("a view"));
}

// Of a dialog of the toolkit: some parts of its own, which nobody else can reach, have no names.
bool isPartOfTheToolkit(const QAccessibleInterface &object)
{
    const QString name = object.object() != nullptr ? object.object()->objectName() : QString();
    return name.isEmpty() || name.startsWith(QLatin1String("qt_"));
}

// What is wrong with the objects of a window; counts those that were looked at.
QStringList problems(QWidget *window, int &checked, bool ofToolkit = false)
{
    QStringList found;
    walk(QAccessible::queryAccessibleInterface(window), [&](QAccessibleInterface *object) {
        if (!tellsSomething(*object) || (ofToolkit && isPartOfTheToolkit(*object) && !isNamed(*object))) {
            return;
        }
        ++checked;
        if (!isNamed(*object)) {
            found << QStringLiteral("no name: ") + describe(*object);
        }
        if (!tellsItsState(*object)) {
            found << QStringLiteral("no state: ") + describe(*object);
        }
    });
    return found;
}

QAccessibleInterface *spoken(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString nameOf(QObject *object)
{
    return spoken(object)->text(QAccessible::Name);
}

QString nameOf(const QWidget &window, const char *widget)
{
    return nameOf(window.findChild<QWidget *>(QString::fromLatin1(widget)));
}

QString nameOfCell(const QWidget &window, int row, int column)
{
    auto *table = window.findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    return spoken(table)->tableInterface()->cellAt(row, column)->text(QAccessible::Name);
}

// The boxes of the editor, row by row.
QList<PersonaleChkBox *> boxesOf(const QWidget &editor)
{
    QList<PersonaleChkBox *> boxes = editor.findChildren<PersonaleChkBox *>();
    std::sort(boxes.begin(), boxes.end(), [](const auto *a, const auto *b) {
        return std::pair(a->riga, a->colonna) < std::pair(b->riga, b->colonna);
    });
    return boxes;
}
} // namespace

class tst_ScreenReader final : public QObject
{
    Q_OBJECT

private slots:
    void everyObjectSaysWhatItIs_data();
    void everyObjectSaysWhatItIs();
    void whatSaysNothingIsFound();
    void aCellOfTheEditorSaysItsPlaceTypeAndTick();
    void aGeneratedNumberIsReadWithItsCell();
    void aCellOfTheEditorIsTickedByAReader();
    void theNameOfACellIsStoredNowhere();
    void aCellOfThePageSaysItsPlaceAndContent();
    void whatIsTypedIntoACellIsRead();
    void theIconOfTheParametersIsItsMessage();
    void theIconOfTheEditorIsItsMessage();
    void numberDisplaysSayWhatTheyCount();
    void buttonsAndTextsWithoutALabelAreNamed();
    void theSheetOfThePreviewIsAPicture();
    void placesOfTheBoardWithoutANumberSaySo();
    void namesAreTranslated();
    void cleanupTestCase();

private:
    int m_checked = 0;
};

void tst_ScreenReader::everyObjectSaysWhatItIs_data()
{
    addRows();
}

void tst_ScreenReader::everyObjectSaysWhatItIs()
{
    QFETCH(QString, name);
    Stage stage;
    const auto window = show(name, stage);
    int checked = 0;
    QCOMPARE(problems(window.get(), checked, isToolkitDialog(name)).join(QLatin1Char('\n')), QString());
    QVERIFY(checked > 1);
    qInfo("%s: %d objects", qPrintable(name), checked);
    m_checked += checked;
}

void tst_ScreenReader::cleanupTestCase()
{
    qInfo("all windows: %d objects", m_checked);
}

void tst_ScreenReader::whatSaysNothingIsFound()
{
    QDialog window;
    window.setWindowTitle(QStringLiteral("window"));
    const BoxScript boxes;
    window.show();
    int checked = 0;
    QCOMPARE(problems(&window, checked), QStringList());
    QCOMPARE(checked, 1);

    auto *box = new QCheckBox(&window);
    auto *icon = new QLabel(&window);
    icon->setPixmap(QPixmap(4, 4));
    auto *table = new QTableWidget(1, 1, &window);
    table->setItem(0, 0, new QTableWidgetItem);
    for (QWidget *added : {static_cast<QWidget *>(box), static_cast<QWidget *>(icon), static_cast<QWidget *>(table)}) {
        added->show();
    }
    QCOMPARE(problems(&window, checked).size(), 4);

    box->setAccessibleName(QStringLiteral("box"));
    icon->setAccessibleName(QStringLiteral("icon"));
    table->setAccessibleName(QStringLiteral("table"));
    table->item(0, 0)->setText(QStringLiteral("1"));
    QCOMPARE(problems(&window, checked), QStringList());
}

void tst_ScreenReader::aCellOfTheEditorSaysItsPlaceTypeAndTick()
{
    Stage stage;
    const auto window = show(QStringLiteral("EditPersonale"), stage);
    const QList<PersonaleChkBox *> boxes = boxesOf(*window);
    QCOMPARE(nameOf(boxes[1]), QStringLiteral("riga 1, colonna 2, testo, spuntata"));
    QCOMPARE(nameOf(boxes[2]), QStringLiteral("riga 1, colonna 3, immagine, spuntata"));
    QCOMPARE(nameOf(boxes[3]), QStringLiteral("riga 1, colonna 4, vuota, non spuntata"));
    QCOMPARE(nameOf(boxes[26]), QStringLiteral("riga 3, colonna 9, vuota, non spuntata"));

    QTest::keyClick(boxes[26], Qt::Key_Space);
    QTest::keyClick(boxes[26], Qt::Key_T);
    QCOMPARE(nameOf(boxes[26]), QStringLiteral("riga 3, colonna 9, numero, spuntata"));
    QCOMPARE(spoken(boxes[26])->role(), QAccessible::CheckBox);
    QVERIFY(spoken(boxes[26])->state().checked);
    QVERIFY(spoken(boxes[26])->state().focusable);
    QCOMPARE(boxes[26]->toolTip(), QStringLiteral("3,9"));
    QCOMPARE(boxes[26]->statusTip(), QStringLiteral("Numero"));
}

void tst_ScreenReader::aGeneratedNumberIsReadWithItsCell()
{
    Stage stage;
    const auto window = show(QStringLiteral("EditPersonale"), stage);
    PersonaleChkBox *box = boxesOf(*window).first();
    QVERIFY(!box->text().isEmpty());
    QCOMPARE(nameOf(box), QStringLiteral("riga 1, colonna 1, numero %1, spuntata").arg(box->text()));
}

void tst_ScreenReader::aCellOfTheEditorIsTickedByAReader()
{
    Stage stage;
    const auto window = show(QStringLiteral("EditPersonale"), stage);
    PersonaleChkBox *box = boxesOf(*window).last();
    QAccessibleActionInterface *actions = spoken(box)->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));

    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(box->isChecked());
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!box->isChecked());
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(box->hasFocus());
}

void tst_ScreenReader::theNameOfACellIsStoredNowhere()
{
    Stage stage;
    const auto window = show(QStringLiteral("EditPersonale"), stage);
    for (const PersonaleChkBox *box : boxesOf(*window)) {
        QCOMPARE(box->accessibleName(), QString());
        QCOMPARE(box->accessibleDescription(), QString());
        QVERIFY(box->dynamicPropertyNames().isEmpty());
    }
}

void tst_ScreenReader::aCellOfThePageSaysItsPlaceAndContent()
{
    Stage stage;
    const auto window = show(QStringLiteral("MainWindow"), stage);
    const auto *table = window->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    QSet<QString> contents;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QString text = table->item(row, column)->text();
            const bool missing = row == 17 && column >= 7;
            const QString content = missing                        ? QStringLiteral("cella mancante")
                                    : text.isEmpty()               ? QStringLiteral("vuota")
                                    : text == QLatin1String("IMG") ? QStringLiteral("immagine")
                                    : text == QLatin1String("TXT") ? QStringLiteral("testo TXT")
                                                                   : QStringLiteral("numero ") + text;
            QCOMPARE(nameOfCell(*window, row, column), QStringLiteral("blocco %1, riga %2, colonna %3, %4")
                                                           .arg(row / 3 + 1)
                                                           .arg(row % 3 + 1)
                                                           .arg(column + 1)
                                                           .arg(content));
            contents.insert(content.section(QLatin1Char(' '), 0, 0));
        }
    }
    QCOMPARE(contents.size(), 5);
}

void tst_ScreenReader::whatIsTypedIntoACellIsRead()
{
    Stage stage;
    const auto window = show(QStringLiteral("MainWindow"), stage);
    auto *table = window->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    table->item(1, 2)->setText(QStringLiteral("77"));
    QCOMPARE(nameOfCell(*window, 1, 2), QStringLiteral("blocco 1, riga 2, colonna 3, numero 77"));
}

void tst_ScreenReader::theIconOfTheParametersIsItsMessage()
{
    Stage stage;
    const auto window = show(QStringLiteral("MainWindow"), stage);
    QCOMPARE(spoken(window->findChild<QLabel *>(QStringLiteral("label_settingstatus")))->role(), QAccessible::Graphic);
    QCOMPARE(nameOf(*window, "label_settingstatus"), QStringLiteral("Impostazioni corrette"));
    window->findChild<QSpinBox *>(QStringLiteral("box_classica_numeroestrazionixriga"))->setValue(6);
    QCOMPARE(nameOf(*window, "label_settingstatus"),
             QStringLiteral("Non posso creare 108 celle piene con solo 90 numeri."));
}

void tst_ScreenReader::theIconOfTheEditorIsItsMessage()
{
    constexpr int rows = 99;
    Stage stage;
    EditPersonale editor(nullptr, &stage.cartella, rows, 1, 1, 1, 90, 0);
    QCOMPARE(nameOf(editor, "status_label"), QStringLiteral("Impostazioni corrette"));
    for (const char *name : {"selezione_tutte_ckbox", "num_radioButton", "riempiButton", "setNumTxtImgButton"}) {
        editor.findChild<QAbstractButton *>(QString::fromLatin1(name))->click();
    }
    QCOMPARE(nameOf(editor, "status_label"),
             QStringLiteral("I numeri da generare (99) sono maggiori di quelli disponibili (90)."));
}

void tst_ScreenReader::numberDisplaysSayWhatTheyCount()
{
    Stage stage;
    const auto window = show(QStringLiteral("MainWindow"), stage);
    QCOMPARE(nameOf(*window, "pagine_lcdNumber"), QStringLiteral("Numero di pagine della cartella 2"));
    QCOMPARE(nameOf(*window, "cella_riga"), QStringLiteral("Riga della cella nel suo blocco 1"));
    const auto editor = show(QStringLiteral("EditPersonale"), stage);
    QCOMPARE(nameOf(*editor, "pageNumDisplay"), QStringLiteral("Il numero di pagine 1"));
}

void tst_ScreenReader::buttonsAndTextsWithoutALabelAreNamed()
{
    Stage stage;
    QCOMPARE(nameOf(*show(QStringLiteral("MsgArea file"), stage), "textEdit"), QStringLiteral("Testo"));
    const auto editor = show(QStringLiteral("EditPersonale"), stage);
    QCOMPARE(nameOf(*editor, "row_to_spinBox"), QStringLiteral("Ultima riga della selezione"));
    const auto dialog = show(QStringLiteral("FormatSelection"), stage);
    stage.speak(QStringLiteral("it_IT"));
    QCOMPARE(dialog->findChild<QAbstractButton *>(QStringLiteral("default_settings"))->text(), QStringLiteral("..."));
    QCOMPARE(nameOf(*dialog, "default_settings"), QStringLiteral("Impostazioni di default"));
}

void tst_ScreenReader::theSheetOfThePreviewIsAPicture()
{
    Stage stage;
    const auto window = show(QStringLiteral("PagePreview"), stage);
    QStringList pictures;
    walk(spoken(window.get()), [&](QAccessibleInterface *object) {
        if (object->role() == QAccessible::Graphic) {
            pictures << object->text(QAccessible::Name);
        }
    });
    QCOMPARE(pictures, QStringList(QStringLiteral("Pagina 1 di 2, A4 (210x297mm)")));
}

void tst_ScreenReader::placesOfTheBoardWithoutANumberSaySo()
{
    Stage stage;
    Serata window;
    QVERIFY(window.openSet(stage.cartella, {1, 95}));
    auto *board = window.findChild<QTableView *>(QStringLiteral("tabellone"));
    QAccessibleTableInterface *cells = spoken(board)->tableInterface();
    QCOMPARE(cells->cellAt(9, 4)->text(QAccessible::Name), QStringLiteral("95, non chiamato"));
    QCOMPARE(cells->cellAt(9, 5)->text(QAccessible::Name), QStringLiteral("nessun numero"));
}

void tst_ScreenReader::namesAreTranslated()
{
    Stage stage;
    QVERIFY(stage.speak(QStringLiteral("en_GB")));
    const auto editor = show(QStringLiteral("EditPersonale"), stage);
    QCOMPARE(nameOf(boxesOf(*editor)[1]), QStringLiteral("row 1, column 2, text, ticked"));
    const auto window = show(QStringLiteral("MainWindow"), stage);
    QCOMPARE(nameOfCell(*window, 17, 8), QStringLiteral("card 6, row 3, column 9, missing cell"));
}

QTEST_MAIN(tst_ScreenReader)
#include "tst_ScreenReader.moc"
