// SPDX-License-Identifier: MIT
#include "personale/PersonaleChkBox.h"
#include "widgets/ReadableStyle.h"
#include "windows/EveryWindow.h"
#include "windows/Palettes.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTextEdit>
#include <QToolTip>
#include <QtTest>

#include <map>

// Every text stands out from its background, measured on the windows as they are painted.

using namespace EveryWindow;

namespace {
constexpr double wanted = 4.5;
const QSize largeEnough(1500, 1500); // for all panes to be seen whole

// A text on a widget, or a part of one.
struct Text
{
    const QWidget *widget;
    QRect place; // in the widget
    QString what;
};

using Texts = QVector<Text>;

// These texts may stand out less.
QString exceptionOf(const Text &text)
{
    if (!text.widget->isEnabled()) {
        return QStringLiteral("greyed, as desktops show what cannot be used now");
    }
    const auto *view = qobject_cast<const QAbstractItemView *>(text.widget->parentWidget());
    if (view != nullptr && text.what.endsWith(QLatin1String("selected"))) {
        return QStringLiteral("selected, in the two colours that the desktop has for that");
    }
    return QString();
}

QString nameOf(const QWidget *widget)
{
    return widget->objectName().isEmpty() ? QLatin1String(widget->metaObject()->className()) : widget->objectName();
}

QStyleOptionButton optionOf(const QAbstractButton *button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    return option;
}

QRect placeOnButton(const QAbstractButton *button)
{
    if (qobject_cast<const PersonaleChkBox *>(button) != nullptr) {
        constexpr int frame = 4;
        const int indicator = button->style()->pixelMetric(QStyle::PM_IndicatorWidth);
        return button->rect().adjusted(indicator + 2 * frame, frame, -frame, -frame);
    }
    if (button->text().isEmpty()) {
        return QRect();
    }
    const QStyleOptionButton option = optionOf(button);
    QStyle::SubElement contents = QStyle::SE_PushButtonContents;
    if (button->inherits("QCheckBox")) {
        contents = QStyle::SE_CheckBoxContents;
    } else if (button->inherits("QRadioButton")) {
        contents = QStyle::SE_RadioButtonContents;
    }
    return button->style()->subElementRect(contents, &option, button).adjusted(2, 2, -2, -2);
}

QRect placeOfTitle(const QGroupBox *group)
{
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return group->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, group);
}

QRect placeOfChoice(const QComboBox *combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    return combo->style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
        .adjusted(2, 2, -2, -2);
}

QRect placeOfTitle(const QDockWidget *dock)
{
    constexpr int buttons = 40;
    const int height = dock->widget()->y();
    return QRect(2, 2, dock->width() - buttons, height - 4);
}

// The place of the one text of a widget; invalid when it has none.
QRect placeOfText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->text().trimmed().isEmpty() ? QRect() : label->contentsRect();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return placeOnButton(button);
    }
    if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        return placeOfTitle(group);
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        return edit->text().isEmpty() ? QRect() : edit->rect().adjusted(3, 3, -3, -3);
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        return placeOfChoice(combo);
    }
    if (const auto *dock = qobject_cast<const QDockWidget *>(widget)) {
        return placeOfTitle(dock);
    }
    if (const auto *bar = qobject_cast<const QStatusBar *>(widget)) {
        return bar->currentMessage().isEmpty() ? QRect() : bar->rect().adjusted(2, 3, -30, -2);
    }
    return qobject_cast<const QLCDNumber *>(widget) != nullptr ? widget->rect().adjusted(2, 2, -2, -2) : QRect();
}

Texts itemsOf(const QAbstractItemView *view)
{
    Texts texts;
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(row, column);
            const QString text = index.data().toString();
            const QRect place = view->visualRect(index).adjusted(2, 2, -2, -2);
            const bool selected = view->selectionModel() != nullptr && view->selectionModel()->isSelected(index);
            if (!text.isEmpty() && view->viewport()->rect().contains(place)) {
                texts << Text{view->viewport(), place, text + (selected ? QStringLiteral(" selected") : QString())};
            }
        }
    }
    return texts;
}

Texts sectionsOf(const QHeaderView *header)
{
    Texts texts;
    const bool across = header->orientation() == Qt::Horizontal;
    for (int i = 0; i < header->count(); ++i) {
        const int from = header->sectionViewportPosition(i) + 2;
        const int size = header->sectionSize(i) - 4;
        const QRect place =
            across ? QRect(from, 2, size, header->height() - 4) : QRect(2, from, header->width() - 4, size);
        if (header->viewport()->rect().contains(place)) {
            texts << Text{header->viewport(), place, header->model()->headerData(i, header->orientation()).toString()};
        }
    }
    return texts;
}

Texts textsOf(QWidget *widget)
{
    if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
        return sectionsOf(header);
    }
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
        return itemsOf(view);
    }
    if (const auto *edit = qobject_cast<const QTextEdit *>(widget)) {
        return {{edit->viewport(), edit->viewport()->rect(), nameOf(edit)}};
    }
    Texts texts;
    if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
        for (QAction *action : bar->actions()) {
            texts << Text{bar, bar->actionGeometry(action).adjusted(2, 2, -2, -2), action->text()};
        }
        return texts;
    }
    const QRect place = placeOfText(widget);
    if (place.isValid()) {
        texts << Text{widget, place, nameOf(widget)};
    }
    return texts;
}

// Between the colour of which there is most and that which differs most from it.
double contrastIn(const QImage &picture)
{
    std::map<QRgb, int> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++pixels[picture.pixel(x, y)];
        }
    }
    const auto fewer = [](const auto &a, const auto &b) { return a.second < b.second; };
    const QColor background(std::max_element(pixels.begin(), pixels.end(), fewer)->first);
    double highest = 1;
    for (const auto &[colour, count] : pixels) {
        highest = std::max(highest, Palettes::contrast(QColor(colour), background));
    }
    return highest;
}

// What was measured in a window.
struct Measured
{
    double lowest = 21;
    QString lowestText;
    QStringList tooLow;
    std::map<QString, QPair<int, double>> exceptions; // how many, and the lowest
    int texts = 0;

    void add(const Text &text, double contrast)
    {
        const QString exception = exceptionOf(text);
        if (!exception.isEmpty()) {
            auto &[count, lowestOf] = exceptions.try_emplace(exception, 0, contrast).first->second;
            ++count;
            lowestOf = std::min(lowestOf, contrast);
            return;
        }
        ++texts;
        if (contrast < lowest) {
            lowest = contrast;
            lowestText = text.what;
        }
        if (contrast < wanted) {
            tooLow << QStringLiteral("%1 %2").arg(text.what).arg(contrast, 0, 'f', 2);
        }
    }
};

// Pictures beside texts would be measured with them.
void hidePictures(QWidget *window)
{
    for (auto *button : window->findChildren<QAbstractButton *>()) {
        button->setIcon(QIcon());
    }
    for (auto *action : window->findChildren<QAction *>()) {
        action->setIconVisibleInMenu(false);
    }
    for (auto *edit : window->findChildren<QLineEdit *>()) {
        edit->deselect();
    }
}

void measureMenus(QWidget *window, Measured &measured)
{
    for (auto *menu : window->findChildren<QMenu *>()) {
        menu->resize(menu->sizeHint());
        const QImage picture = menu->grab().toImage();
        for (QAction *action : menu->actions()) {
            const QRect place = menu->actionGeometry(action).adjusted(4, 3, -4, -3);
            if (action->isEnabled() && !action->isSeparator() && picture.rect().contains(place)) {
                measured.add({menu, place, action->text()}, contrastIn(picture.copy(place)));
            }
        }
    }
}

Measured measure(QWidget *window)
{
    hidePictures(window);
    Measured measured;
    const QImage picture = window->grab().toImage();
    for (auto *widget : window->findChildren<QWidget *>()) {
        for (const Text &text : widget->isVisible() ? textsOf(widget) : Texts()) {
            const QRect seen = text.widget->visibleRegion().boundingRect().intersected(text.place);
            if (seen == text.place) {
                measured.add(text,
                             contrastIn(picture.copy(QRect(text.widget->mapTo(window, seen.topLeft()), seen.size()))));
            }
        }
    }
    measureMenus(window, measured);
    return measured;
}
} // namespace

class tst_Contrast final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void everyTextStandsOut_data();
    void everyTextStandsOut();
    void everyMessageStandsOut_data();
    void everyMessageStandsOut();
    void boxesToTickAreSeen_data();
    void boxesToTickAreSeen();
    void tipsStandOut_data();
    void tipsStandOut();
    void aTextThatDoesNotStandOutIsFound();

private:
    static void addPalettes();
};

void tst_Contrast::initTestCase()
{
    QApplication::setStyle(new ReadableStyle); // as the program does
}

void tst_Contrast::cleanup()
{
    QApplication::setPalette(Palettes::all().first().palette);
}

void tst_Contrast::everyTextStandsOut_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPalette>("palette");
    for (const Palettes::Named &palette : Palettes::all()) {
        for (const QString &name : names()) {
            QTest::addRow("%s, %s", qPrintable(name), qPrintable(palette.name)) << name << palette.palette;
        }
    }
}

void tst_Contrast::everyTextStandsOut()
{
    QFETCH(QString, name);
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    Stage stage;
    const auto window = show(name, stage);
    if (qobject_cast<QMainWindow *>(window.get()) != nullptr) {
        window->resize(largeEnough);
    }
    if (window->focusWidget() != nullptr) {
        window->focusWidget()->clearFocus();
    }
    QCoreApplication::processEvents();
    const Measured measured = measure(window.get());
    QCOMPARE(measured.tooLow.join(QStringLiteral(", ")), QString());
    QVERIFY(measured.texts > 0);
    qInfo("%s: %d texts, lowest %.1f (%s)", QTest::currentDataTag(), measured.texts, measured.lowest,
          qPrintable(measured.lowestText));
    for (const auto &[reason, found] : measured.exceptions) {
        qInfo("%s: not measured by that: %d (lowest %.1f), %s", QTest::currentDataTag(), found.first, found.second,
              qPrintable(reason));
    }
}

void tst_Contrast::addPalettes()
{
    QTest::addColumn<QPalette>("palette");
    for (const Palettes::Named &palette : Palettes::all()) {
        QTest::newRow(qPrintable(palette.name)) << palette.palette;
    }
}

void tst_Contrast::everyMessageStandsOut_data()
{
    addPalettes();
}

// The colours of the messages are given: red, green, blue and black.
void tst_Contrast::everyMessageStandsOut()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    Stage stage;
    const auto window = show(QStringLiteral("MainWindow"), stage);
    auto *bar = window->findChild<QStatusBar *>(QStringLiteral("statusBar"));
    for (const char *sign : {"!", ".", "?", ""}) {
        bar->showMessage(QStringLiteral("Message") + QLatin1String(sign));
        const double found = contrastIn(bar->grab(placeOfText(bar)).toImage());
        QVERIFY2(found >= wanted, qPrintable(QStringLiteral("\"%1\" %2").arg(QLatin1String(sign)).arg(found)));
    }
}

void tst_Contrast::boxesToTickAreSeen_data()
{
    addPalettes();
}

void tst_Contrast::boxesToTickAreSeen()
{
    constexpr double wantedOfMarks = 3;
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    Stage stage;
    const auto window = show(QStringLiteral("EditPersonale"), stage);
    for (const char *name : {"selezione_tutte_ckbox", "txt_radioButton"}) {
        auto *button = window->findChild<QAbstractButton *>(QString::fromLatin1(name));
        QVERIFY(!button->isChecked());
        const bool check = button->inherits("QCheckBox");
        const QStyleOptionButton option = optionOf(button);
        const QRect place = button->style()->subElementRect(
            check ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &option, button);
        QImage picture = window->grab(QRect(button->mapTo(window.get(), place.topLeft()), place.size())).toImage();
        QPainter(&picture).fillRect(picture.rect().adjusted(3, 3, -3, -3), palette.color(QPalette::Window));
        const double found = contrastIn(picture);
        QVERIFY2(found >= wantedOfMarks, qPrintable(QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(found)));
    }
}

void tst_Contrast::tipsStandOut_data()
{
    addPalettes();
}

void tst_Contrast::tipsStandOut()
{
    QFETCH(QPalette, palette);
    QApplication::setPalette(palette);
    Stage stage;
    const auto window = show(QStringLiteral("Options"), stage);
    QToolTip::showText(QPoint(1, 1), QStringLiteral("Message"), window.get());
    QWidget *tip = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        tip = widget->inherits("QTipLabel") && widget->isVisible() ? widget : tip;
    }
    QVERIFY(tip != nullptr);
    const double found = contrastIn(tip->grab(tip->rect().adjusted(2, 2, -2, -2)).toImage());
    QVERIFY2(found >= wanted, qPrintable(QString::number(found)));
}

void tst_Contrast::aTextThatDoesNotStandOutIsFound()
{
    QWidget window;
    window.resize(400, 100);
    auto *label = new QLabel(QStringLiteral("Mmmmm"), &window);
    auto *button = new QPushButton(QStringLiteral("Mmmmm"), &window);
    label->resize(200, 50);
    button->setGeometry(200, 0, 200, 50);
    const BoxScript boxes;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(measure(&window).tooLow, QStringList());

    QPalette faint = window.palette();
    faint.setColor(QPalette::WindowText, faint.color(QPalette::Window).darker(150));
    label->setPalette(faint);
    QCOMPARE(measure(&window).tooLow.size(), 1);
    button->setEnabled(false);
    QCOMPARE(measure(&window).tooLow.size(), 1);
    QCOMPARE(measure(&window).exceptions.size(), size_t(1));
}

QTEST_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
