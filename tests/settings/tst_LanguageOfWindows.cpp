// SPDX-License-Identifier: MIT
#include "generation/GUtils.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/PagePreview.h"
#include "manuale/Manuale.h"
#include "model/Cartella.h"
#include "msgarea/MsgArea.h"
#include "personale/EditPersonale.h"
#include "serata/NuovaPartita.h"
#include "serata/Serata.h"
#include "settings/Config.h"
#include "settings/FormatSelection.h"
#include "settings/MadeTranslations.h"
#include "settings/Options.h"
#include "settings/Product.h"
#include "support/BoxScript.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStatusBar>
#include <QStyleOptionGroupBox>
#include <QTableWidget>
#include <QTextDocument>
#include <QToolTip>
#include <QtTest>

#include <memory>

namespace {
const QSize smallestScreen(1024, 700); // device-independent pixels
constexpr int desktopFontSize = 10;    // points
const QString sourceLanguage = QStringLiteral("it_IT");
const QStringList languages = QStringLiteral(QUINTRA_PLACES).split(QLatin1Char(','));

// What the windows need to live: the translation files of the build, a picture, the settings, the utilities.
class Program final
{
public:
    Program()
        : config((prepareFolder(), qApp))
        , utils(qApp)
    {
        globalUtils = &utils;
    }
    ~Program() { globalUtils = nullptr; }
    Q_DISABLE_COPY_MOVE(Program)

    bool speak(const QString &language)
    {
        config.language = language; // chosen by the first-start dialog when it opens
        return utils.loadTranslations(language);
    }

private:
    void prepareFolder()
    {
        folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red);
        const QDir built(QStringLiteral(QUINTRA_LANGUAGE_FOLDER));
        QDir::current().mkdir(QStringLiteral("language"));
        for (const QString &name : built.entryList(QDir::Files)) {
            QFile::copy(built.filePath(name), folder.path(QStringLiteral("language/") + name));
        }
    }

public:
    ScratchFolder folder;
    CurrentConfig config;
    GUtils utils;
    BoxScript boxes;
};

enum Window { Main, FirstStart, Settings, Mapping, Evening, NewGame, Manual, Preview, Messages };

std::unique_ptr<QWidget> makeWindow(int window, Cartella *cartella)
{
    constexpr U8 rows = 3;
    constexpr U8 columns = 9;
    constexpr U16 pages = 2;
    constexpr int lowest = 1;
    constexpr int highest = 90;
    switch (window) {
    case Main:
        return std::make_unique<MainWindow>();
    case FirstStart:
        return std::make_unique<FormatSelection>();
    case Settings:
        return std::make_unique<Options>(nullptr);
    case Mapping:
        return std::make_unique<EditPersonale>(nullptr, cartella, rows, columns, pages, lowest, highest, 0);
    case Evening:
        return std::make_unique<Serata>();
    case NewGame:
        return std::make_unique<NuovaPartita>(Intervallo(), 0);
    case Manual:
        return std::make_unique<Manuale>();
    case Preview:
        return std::make_unique<PagePreview>();
    default:
        return std::make_unique<MsgArea>(nullptr, true);
    }
}

// Texts of the toolkit come from translations of its own.
bool isToolkitsOwn(const QWidget *widget)
{
    return qobject_cast<QDialogButtonBox *>(widget->parentWidget()) != nullptr ||
           widget->objectName().startsWith(QLatin1String("qt_"));
}

// The text is none of the translation file: it is put together from one and numbers.
bool holdsNumbers(const QWidget *widget)
{
    return widget->objectName() == QLatin1String("label_nuova") || widget->objectName() == QLatin1String("numeri_text");
}

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->text();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return button->text();
    }
    const auto *group = qobject_cast<const QGroupBox *>(widget);
    return group != nullptr ? group->title() : QString();
}

// All texts of the window's own, in an order that is the same in every language.
QStringList textsOf(const QWidget &window)
{
    QStringList texts(
        window.windowTitle().remove(Product::nameAndRelease()).remove(QRegularExpression(QStringLiteral("^ - "))));
    for (const auto *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisibleTo(&window) && !isToolkitsOwn(widget) && !holdsNumbers(widget)) {
            texts << textOf(widget) << widget->toolTip() << widget->statusTip() << widget->accessibleName();
        }
    }
    for (const auto *action : window.findChildren<QAction *>()) {
        if (!action->objectName().isEmpty()) { // those of text editors and toolkit dialogs have none
            texts << action->text() << action->toolTip();
        }
    }
    return texts.join(QLatin1Char('\n')).split(QLatin1Char('\n')); // tool tips can be several texts
}

// The translation in a window of this class; empty when there is none. A title may be put together from the product's
// name and a text.
QString translationOf(const QString &source, const QString &className, const QTranslator &translator)
{
    const QString text = translator.translate(qUtf8Printable(className), qUtf8Printable(source));
    const QString name = Product::titleFor(QString());
    if (text.isEmpty() && source.startsWith(name)) {
        return name + translator.translate(qUtf8Printable(className), qUtf8Printable(source.mid(name.size())));
    }
    return text.isEmpty() ? translator.translate("PersonaleChkBox", qUtf8Printable(source)) : text;
}

// Names, numbers and the like.
bool isForEveryLanguage(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("[a-z]{3}"), QRegularExpression::CaseInsensitiveOption);
    return !text.contains(word) || text.contains(Product::nameText());
}

QString describe(const QWidget *widget)
{
    const QSize wanted = widget->sizeHint();
    return QStringLiteral("%1 \"%2\": %3 x %4 instead of %5 x %6")
        .arg(widget->objectName(), textOf(widget))
        .arg(widget->width())
        .arg(widget->height())
        .arg(wanted.width())
        .arg(wanted.height());
}

bool isTitleCut(const QGroupBox *group)
{
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const QRect place = group->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, group);
    const int text = group->fontMetrics().horizontalAdvance(group->title());
    return text > place.width() || place.left() + text > group->width();
}

bool isCut(const QWidget *widget)
{
    if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        return isTitleCut(group);
    }
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label != nullptr && label->wordWrap()) {
        return false;
    }
    return widget->width() < widget->sizeHint().width() || widget->height() < widget->sizeHint().height();
}

// A pane whose content is wider than itself hides the ends of its texts. A grid of cells, which has no label, may.
bool isPaneTooNarrow(const QWidget *widget)
{
    const auto *pane = qobject_cast<const QScrollArea *>(widget);
    return pane != nullptr && pane->findChild<QLabel *>() != nullptr && pane->horizontalScrollBar()->maximum() > 0;
}

// The widgets of the shown window whose texts have too little room.
QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const auto *widget : window.findChildren<QWidget *>()) {
        const bool hidden = !widget->isVisibleTo(&window);
        if (!hidden && ((!textOf(widget).isEmpty() && isCut(widget)) || isPaneTooNarrow(widget))) {
            cut << describe(widget);
        }
    }
    return cut;
}

int widthOf(const QString &text, const QFont &font)
{
    const QFontMetrics metrics(font);
    int width = 0;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        width = qMax(width, metrics.horizontalAdvance(line));
    }
    return width;
}

// A tool tip breaks its lines by itself only when it is rich text.
bool isToolTipCut(const QString &tip)
{
    return !Qt::mightBeRichText(tip) && widthOf(tip, QToolTip::font()) > smallestScreen.width();
}

bool isStatusTipCut(const QString &tip, const QStatusBar *bar)
{
    return bar != nullptr && widthOf(tip, bar->font()) > bar->width() - bar->height(); // the size grip at the end
}

// The tips of a window and of its widgets and actions that do not fit on the screen.
QStringList cutTips(const QWidget &window)
{
    const auto *bar = window.findChild<QStatusBar *>();
    QStringList cut;
    const auto collect = [&](const QString &toolTip, const QString &statusTip) {
        if (isToolTipCut(toolTip)) {
            cut << toolTip;
        }
        if (isStatusTipCut(statusTip, bar)) {
            cut << statusTip;
        }
    };
    for (const auto *widget : window.findChildren<QWidget *>()) {
        collect(widget->toolTip(), widget->statusTip());
    }
    for (const auto *action : window.findChildren<QAction *>()) {
        collect(action->toolTip(), action->statusTip());
    }
    return cut;
}

// The texts whose mnemonic another text of the same menu has already.
QStringList repeatedMnemonics(const QList<QAction *> &menu)
{
    QSet<QString> taken;
    QStringList repeated;
    for (const QAction *action : menu) {
        const QString key = QKeySequence::mnemonic(action->text()).toString();
        if (!key.isEmpty() && taken.contains(key)) {
            repeated << action->text();
        }
        taken.insert(key);
    }
    return repeated;
}

// The same in the menu bar of a window and in each of its menus.
QStringList repeatedMnemonics(const QMainWindow &window)
{
    QStringList repeated = repeatedMnemonics(window.menuWidget()->actions());
    for (const auto *menu : window.menuWidget()->findChildren<QMenu *>()) {
        repeated << repeatedMnemonics(menu->actions());
    }
    return repeated;
}

// Dialogs keep the size they ask for; the others are made as large as the smallest screen.
void showOnSmallestScreen(QWidget *window)
{
    if (qobject_cast<QDialog *>(window) == nullptr) {
        window->showNormal();
        window->resize(smallestScreen);
    }
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCoreApplication::processEvents(); // the layouts settle
}

// The columns of a table that are seen whole.
int columnsSeen(const MainWindow &window)
{
    const auto *table = window.findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    int seen = 0;
    for (int column = 0; column < table->columnCount(); ++column) {
        const int end = table->columnViewportPosition(column) + table->columnWidth(column);
        seen += end <= table->viewport()->width() ? 1 : 0;
    }
    return seen;
}
} // namespace

class tst_LanguageOfWindows final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void noTextIsCut_data();
    void noTextIsCut();
    void mostOfAPageIsSeenOnTheSmallestScreen_data();
    void mostOfAPageIsSeenOnTheSmallestScreen();
    void theMainWindowFitsAScreenAtDoubleScale_data();
    void theMainWindowFitsAScreenAtDoubleScale();
    void aTextTooLongForItsPlaceIsFound();
    void aTipTooLongForTheScreenIsFound();
    void noMnemonicIsTwiceInAMenu_data();
    void noMnemonicIsTwiceInAMenu();
    void aMnemonicTwiceInAMenuIsFound();
    void theShownLanguageIsKnown();
    void theKindsOfCellsHaveDifferentInitials_data();
    void theKindsOfCellsHaveDifferentInitials();

private:
    static void addWindows();
    static void addLanguages();
};

// The platform of the tests has larger letters than desktops have.
void tst_LanguageOfWindows::initTestCase()
{
    QFont font = QApplication::font();
    font.setPointSize(desktopFontSize);
    QApplication::setFont(font);
}

void tst_LanguageOfWindows::addWindows()
{
    struct Row
    {
        Window window;
        QLatin1String className;
    };
    const Row rows[] = {{Main, QLatin1String("MainWindow")},  {FirstStart, QLatin1String("FormatSelection")},
                        {Settings, QLatin1String("Options")}, {Mapping, QLatin1String("EditPersonale")},
                        {Evening, QLatin1String("Serata")},   {NewGame, QLatin1String("NuovaPartita")},
                        {Manual, QLatin1String("Manuale")},   {Preview, QLatin1String("PagePreview")},
                        {Messages, QLatin1String("MsgArea")}};
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("window");
    QTest::addColumn<QString>("className");
    for (const QString &language : languages) {
        for (const Row &row : rows) {
            const QString name = row.className + QLatin1Char(' ') + language;
            QTest::newRow(qPrintable(name)) << language << int(row.window) << QString(row.className);
        }
    }
}

void tst_LanguageOfWindows::everyTextIsTranslated_data()
{
    addWindows();
}

void tst_LanguageOfWindows::everyTextIsTranslated()
{
    QFETCH(QString, language);
    QFETCH(int, window);
    QFETCH(QString, className);
    Program program;
    Cartella cartella;
    QVERIFY(program.speak(sourceLanguage));
    const QStringList source = textsOf(*makeWindow(window, &cartella));

    QVERIFY(program.speak(language));
    const QStringList shown = textsOf(*makeWindow(window, &cartella));

    QTranslator translator;
    QVERIFY(
        translator.load(Product::nameText() + QLatin1Char('_') + language, QStringLiteral(QUINTRA_LANGUAGE_FOLDER)));
    QCOMPARE(shown.size(), source.size());
    int translated = 0;
    for (int i = 0; i < source.size(); ++i) {
        const QString wanted = translationOf(source[i], className, translator);
        if (wanted.isEmpty()) {
            QVERIFY2(isForEveryLanguage(source[i]), qPrintable(source[i]));
            QCOMPARE(shown[i], source[i]);
        } else {
            QCOMPARE(shown[i], wanted);
            ++translated;
        }
    }
    QVERIFY(translated > 0);
}

void tst_LanguageOfWindows::noTextIsCut_data()
{
    addWindows();
}

void tst_LanguageOfWindows::noTextIsCut()
{
    QFETCH(QString, language);
    QFETCH(int, window);
    Program program;
    Cartella cartella;
    QVERIFY(program.speak(language));
    const std::unique_ptr<QWidget> shown = makeWindow(window, &cartella);
    showOnSmallestScreen(shown.get());

    QCOMPARE(cutTexts(*shown).join(QStringLiteral(", ")), QString());
    QCOMPARE(cutTips(*shown), QStringList());
    const QSize needed = shown->size().expandedTo(shown->minimumSizeHint());
    QVERIFY2(needed.width() <= smallestScreen.width(), qPrintable(QString::number(needed.width())));
    QVERIFY2(needed.height() <= smallestScreen.height(), qPrintable(QString::number(needed.height())));
}

void tst_LanguageOfWindows::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void tst_LanguageOfWindows::mostOfAPageIsSeenOnTheSmallestScreen_data()
{
    addLanguages();
}

void tst_LanguageOfWindows::mostOfAPageIsSeenOnTheSmallestScreen()
{
    QFETCH(QString, language);
    Program program;
    QVERIFY(program.speak(language));
    MainWindow window;
    QVERIFY(window.generate(false));
    showOnSmallestScreen(&window);
    const auto *table = window.findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    QCOMPARE(table->columnCount(), 9);
    QCOMPARE(table->columnWidth(8), 70);
    QVERIFY2(columnsSeen(window) >= 8, qPrintable(QString::number(table->viewport()->width())));

    auto *pane = window.findChild<QDockWidget *>(QStringLiteral("stileDock"));
    window.resizeDocks({pane}, {pane->minimumSizeHint().width()}, Qt::Horizontal);
    QCoreApplication::processEvents();
    QVERIFY2(columnsSeen(window) == 9, qPrintable(QString::number(table->viewport()->width())));
}

void tst_LanguageOfWindows::theMainWindowFitsAScreenAtDoubleScale_data()
{
    addLanguages();
}

// 1600 pixels of a screen are 800 of the window's.
void tst_LanguageOfWindows::theMainWindowFitsAScreenAtDoubleScale()
{
    constexpr int widest = 800;
    QFETCH(QString, language);
    Program program;
    QVERIFY(program.speak(language));
    MainWindow window;
    window.showNormal();
    window.resize(widest, smallestScreen.height());
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(window.width(), widest);
    QVERIFY2(window.minimumSizeHint().width() <= widest, qPrintable(QString::number(window.minimumSizeHint().width())));
}

void tst_LanguageOfWindows::aTextTooLongForItsPlaceIsFound()
{
    Program program;
    Options dialog(nullptr);
    dialog.setFixedSize(dialog.sizeHint());
    auto *group = dialog.findChild<QGroupBox *>();
    auto *button = dialog.findChild<QPushButton *>(QStringLiteral("butt_azzeraesci"));
    showOnSmallestScreen(&dialog);
    QCOMPARE(cutTexts(dialog), QStringList());

    group->setTitle(QString(200, QLatin1Char('m')));
    QCOMPARE(cutTexts(dialog).size(), 1);

    group->setTitle(QString());
    button->setText(QString(200, QLatin1Char('m')));
    QVERIFY(!cutTexts(dialog).isEmpty());
}

void tst_LanguageOfWindows::aTipTooLongForTheScreenIsFound()
{
    Program program;
    MainWindow window;
    showOnSmallestScreen(&window);
    auto *action = window.findChild<QAction *>(QStringLiteral("actionCrea"));
    const QString tooLong(200, QLatin1Char('m'));
    const QString twoLines = QString(50, QLatin1Char('m')) + QLatin1Char('\n') + QString(50, QLatin1Char('m'));

    action->setStatusTip(tooLong);
    action->setToolTip(twoLines);
    QCOMPARE(cutTips(window), QStringList(tooLong));

    action->setStatusTip(QString());
    action->setToolTip(tooLong);
    QCOMPARE(cutTips(window), QStringList(tooLong));

    action->setToolTip(QStringLiteral("<p>%1</p>").arg(tooLong));
    QCOMPARE(cutTips(window), QStringList());
}

void tst_LanguageOfWindows::noMnemonicIsTwiceInAMenu_data()
{
    addWindows();
}

void tst_LanguageOfWindows::noMnemonicIsTwiceInAMenu()
{
    QFETCH(QString, language);
    QFETCH(int, window);
    Program program;
    Cartella cartella;
    QVERIFY(program.speak(language));
    const std::unique_ptr<QWidget> shown = makeWindow(window, &cartella);
    const auto *withMenus = qobject_cast<QMainWindow *>(shown.get());
    const QSet<int> dialogs = {FirstStart, Settings, NewGame, Manual, Preview};
    QCOMPARE(withMenus == nullptr, dialogs.contains(window));
    if (withMenus != nullptr) {
        QVERIFY(!withMenus->menuWidget()->findChildren<QMenu *>().isEmpty());
        for (const QAction *menu : withMenus->menuWidget()->actions()) {
            const bool givenTitle = window == Mapping || window == Messages;
            QCOMPARE(QKeySequence::mnemonic(menu->text()).isEmpty(), givenTitle);
        }
        QCOMPARE(repeatedMnemonics(*withMenus), QStringList());
    }
}

void tst_LanguageOfWindows::aMnemonicTwiceInAMenuIsFound()
{
    Program program;
    const QString context = QStringLiteral("MainWindow");
    program.folder.write(QStringLiteral("language/Quintra_ma_DE.qm"),
                         madeTranslation({{context, QStringLiteral("&File"), QStringLiteral("&One")},
                                          {context, QStringLiteral("&Aiuto"), QStringLiteral("Tw&o")},
                                          {context, QStringLiteral("Apri"), QStringLiteral("&Three")},
                                          {context, QStringLiteral("Salva"), QStringLiteral("Eigh&t")},
                                          {context, QStringLiteral("Opzioni"), QStringLiteral("&Twenty")}}));
    QVERIFY(program.speak(QStringLiteral("ma_DE")));
    const MainWindow window;
    QCOMPARE(repeatedMnemonics(window), QStringList({QStringLiteral("Tw&o"), QStringLiteral("Eigh&t")}));
}

void tst_LanguageOfWindows::theShownLanguageIsKnown()
{
    QCOMPARE(shownLanguage(), sourceLanguage);
    Program program;
    for (const QString &language : languages) {
        QVERIFY(program.speak(language));
        QCOMPARE(shownLanguage(), language);
    }
    program.speak(QStringLiteral("it_CH"));
    QCOMPARE(shownLanguage(), sourceLanguage);
    QVERIFY(!program.speak(QStringLiteral("xx_XX")));
    QCOMPARE(shownLanguage(), sourceLanguage);
    program.folder.write(QStringLiteral("language/Quintra_ma_DE.qm"),
                         madeTranslation({{QStringLiteral("Manuale"), QStringLiteral("Cerca"), QStringLiteral("x")}}));
    QVERIFY(program.speak(QStringLiteral("ma_DE")));
    QVERIFY(shownLanguage() != sourceLanguage); // its texts are in a language that it does not tell
}

void tst_LanguageOfWindows::theKindsOfCellsHaveDifferentInitials_data()
{
    addLanguages();
}

// The editor of the manual mapping marks each cell with the first letter of its kind.
void tst_LanguageOfWindows::theKindsOfCellsHaveDifferentInitials()
{
    QFETCH(QString, language);
    Program program;
    QVERIFY(program.speak(language));
    QSet<QChar> initials;
    for (const CELL_VALUE kind : {CELL_NUMERO, CELL_TESTO, CELL_IMMAGINE, CELL_VUOTA}) {
        PersonaleChkBox box;
        box.setTipo(kind);
        initials.insert(box.statusTip().at(0).toUpper());
    }
    QCOMPARE(initials.size(), 4);
}

QTEST_MAIN(tst_LanguageOfWindows)
#include "tst_LanguageOfWindows.moc"
