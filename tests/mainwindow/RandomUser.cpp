// SPDX-License-Identifier: MIT
#include "RandomUser.h"

#include "mainwindow/MainWindow.h"
#include "personale/EditPersonale.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPointer>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <numeric>
#include <set>

namespace {
constexpr int deepest = 3;      // boxes in the middle of boxes
constexpr int stepsToPaint = 8; // windows are painted in one step of so many, for that takes most of the time

// Of the whole set: what it holds can be reached, and no page stands in it twice.
bool isSound(const Cartella &set)
{
    const std::set<const Pagina *> pages(set.pagine.cbegin(), set.pagine.cend());
    quint64 sum = 0;
    for (const Pagina *page : set.pagine) {
        for (const Blocco &block : *page) {
            for (const Riga &row : block) {
                sum = std::accumulate(begin(row), end(row), sum, [](quint64 before, const Cella &cell) {
                    return before + cell.numero + static_cast<quint64>(cell.testo.size() + cell.immagine.width());
                });
            }
        }
    }
    volatile const quint64 read = sum; // so that every cell is read
    Q_UNUSED(read)
    return pages.size() == static_cast<size_t>(set.pagine.size()) && pages.count(nullptr) == 0;
}

int rowsOf(const Pagina &page)
{
    return std::accumulate(begin(page), end(page), 0,
                           [](int before, const Blocco &block) { return before + block.nRighe; });
}

bool takesInput(const QWidget &widget)
{
    static const std::array<const char *, 7> classes = {
        "QAbstractButton", "QSpinBox", "QComboBox", "QAbstractItemView", "QLineEdit", "QTextEdit", "QMenuBar"};
    return widget.objectName() != QLatin1String("qt_spinbox_lineedit") &&
           std::any_of(classes.begin(), classes.end(), [&widget](const char *name) { return widget.inherits(name); });
}
} // namespace

RandomUser::RandomUser(unsigned seed, bool telling)
    : m_seed(seed)
    , m_telling(telling)
{
    qApp->installEventFilter(this);
    startAnew();
}

RandomUser::~RandomUser()
{
    qApp->removeEventFilter(this);
}

void RandomUser::tell(const char *what, const QObject *where, const QString &more) const
{
    if (m_telling) {
        std::printf("  %*s%s %s %s %s\n", 2 * m_depth, "", what, where->metaObject()->className(),
                    qPrintable(where->objectName()), qPrintable(more));
        std::fflush(stdout);
    }
}

void RandomUser::startAnew()
{
    m_window.reset();
    m_window = std::make_unique<MainWindow>();
}

bool RandomUser::step(int number)
{
    std::seed_seq seeds{m_seed, static_cast<unsigned>(number)};
    m_random.seed(seeds);
    m_painting = number % stepsToPaint == 0;
    if (!m_window->isVisible()) {
        startAnew();
    }
    act();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    breakIfPlanted(number);
    const QString wrong = problem();
    if (!wrong.isEmpty()) {
        std::printf("step %d: %s\n", number, qPrintable(wrong));
    }
    return wrong.isEmpty();
}

void RandomUser::breakIfPlanted(int step)
{
    if (m_stepsToFault.erase(step) > 0 && m_stepsToFault.empty()) {
        m_window->setCursor(Qt::WaitCursor);
    }
}

QString RandomUser::problem() const
{
    if (!isSound(*m_window->cardSet())) {
        return QStringLiteral("a page is missing or stands in the set twice");
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    if (std::any_of(windows.begin(), windows.end(), [](QWidget *w) { return w->cursor().shape() == Qt::WaitCursor; })) {
        return QStringLiteral("the wait cursor was left on");
    }
    const int shown = m_window->findChild<QSpinBox *>(QStringLiteral("pagina_corrente_spinBox"))->value();
    if (shown > m_window->cardSet()->getNumPages()) {
        return QStringLiteral("page %1 of %2 is shown").arg(shown).arg(m_window->cardSet()->getNumPages());
    }
    const auto *table = m_window->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    if (shown > 0 && table->rowCount() != rowsOf(*m_window->cardSet()->pagine[shown - 1])) {
        return QStringLiteral("the table has %1 rows").arg(table->rowCount());
    }
    return QString();
}

void RandomUser::act()
{
    keepSmall();
    const int kind = below(40);
    if (kind < 1 && (openEditor() == nullptr || below(4) == 0)) {
        makePages();
    } else if (kind < 3) {
        triggerAction();
    } else if (kind < 29) {
        useAnyWidget();
    } else if (kind < 35) {
        pressKey();
    } else if (kind < 38) {
        callSlot();
    } else {
        closeOrResize();
    }
}

// Large sets find nothing more and take their time.
void RandomUser::keepSmall() const
{
    constexpr int mostPages = 4;
    constexpr int mostOfAnything = 12;
    for (const char *part : {"numeropagine", "numeroblocchi", "numerorighexblocco", "numerocolonne"}) {
        auto *spin = m_window->findChild<QSpinBox *>(QStringLiteral("box_classica_") + QLatin1String(part));
        spin->setValue(std::min(spin->value(), qstrcmp(part, "numeropagine") == 0 ? mostPages : mostOfAnything));
    }
}

// Left to chance, nearly all parameters would be refused.
void RandomUser::makePages()
{
    const std::array<std::pair<const char *, int>, 9> values = {{{"numeropagine", 1 + below(3)},
                                                                 {"numeroblocchi", 1 + below(3)},
                                                                 {"numerorighexblocco", 1 + below(3)},
                                                                 {"numerominimo", 1},
                                                                 {"numeromassimo", 90},
                                                                 {"numerocolonne", 9},
                                                                 {"numeroestrazionixriga", 4 + below(2)},
                                                                 {"numerojollyxriga", below(2)},
                                                                 {"numeroscrittexriga", below(2)}}};
    for (const auto &[name, value] : values) {
        m_window->findChild<QSpinBox *>(QStringLiteral("box_classica_") + QLatin1String(name))->setValue(value);
    }
    m_window->findChild<QCheckBox *>(QStringLiteral("MappaManuale"))->setChecked(below(3) == 0);
    tell("makes pages in", m_window.get());
    if (below(3) == 0) {
        m_window->findChild<QAction *>(QStringLiteral("actionCrea"))->trigger();
    } else {
        m_window->findChild<QAbstractButton *>(QStringLiteral("butt_aggiungi_pagine"))->click();
    }
}

// Open in front of all others, which it keeps from input.
QWidget *RandomUser::openEditor() const
{
    auto *editor = m_window->findChild<EditPersonale *>();
    return editor != nullptr && editor->isVisible() ? editor : nullptr;
}

// One of the program's own: what the toolkit's dialogs do on the disk is not for a random user. The order is the same
// in every process. While an editor is open, it is that or one of its boxes; now and then another, as for a caller,
// whom no window in front keeps off.
QWidget *RandomUser::anyWindow()
{
    const bool pastTheEditor = below(8) == 0;
    QWidget *first = openEditor() != nullptr && !pastTheEditor ? openEditor() : m_window.get();
    std::vector<QWidget *> windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const bool foreign = window->inherits("QFileDialog") || window->inherits("QColorDialog") ||
                             window->inherits("QFontDialog") || window->windowType() == Qt::ToolTip;
        const bool blocked = openEditor() != nullptr && !pastTheEditor && window->parentWidget() != openEditor();
        if (window->isVisible() && !foreign && !blocked) {
            windows.push_back(window);
        }
    }
    const auto name = [](const QWidget *window) {
        return QByteArray(window->metaObject()->className()) + window->objectName().toUtf8() +
               window->windowTitle().toUtf8();
    };
    std::sort(windows.begin(), windows.end(), [name](QWidget *a, QWidget *b) { return name(a) < name(b); });
    return windows.empty() || below(3) == 0 ? first : anyOf(windows);
}

void RandomUser::triggerAction()
{
    QWidget *window = anyWindow();
    std::vector<QAction *> actions;
    for (QAction *action : window->findChildren<QAction *>()) {
        if (action->isEnabled() && action->isVisible() && !action->isSeparator() && action->menu() == nullptr) {
            actions.push_back(action);
        }
    }
    if (!actions.empty()) {
        QAction *action = anyOf(actions);
        tell("triggers", action, action->text());
        action->trigger();
    }
}

// Each kind of widget as often as any other, for a page has many cells.
void RandomUser::useAnyWidget()
{
    QWidget *window = anyWindow();
    std::map<QByteArray, std::vector<QWidget *>> kinds;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->window() == window && widget->isVisible() && widget->isEnabled() && takesInput(*widget)) {
            kinds[widget->metaObject()->className()].push_back(widget);
        }
    }
    if (!kinds.empty()) {
        useWidget(anyOf(std::next(kinds.begin(), below(static_cast<int>(kinds.size())))->second));
    }
}

void RandomUser::useWidget(QWidget *widget)
{
    if (auto *spin = qobject_cast<QSpinBox *>(widget)) {
        turn(spin);
    } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        tell("chooses in", combo);
        combo->setCurrentIndex(below(combo->count() + 1));
    } else if (auto *table = qobject_cast<QTableWidget *>(widget)) {
        useTable(table);
    } else if (qobject_cast<QLineEdit *>(widget) != nullptr || qobject_cast<QTextEdit *>(widget) != nullptr) {
        type(widget);
    } else {
        click(widget);
    }
}

void RandomUser::turn(QSpinBox *spin)
{
    const int value = anyOf<int>({spin->minimum(), spin->value() - 1, spin->value() + 1, below(6), below(13), 90});
    tell("turns", spin, QString::number(value));
    spin->setValue(value);
}

void RandomUser::type(QWidget *widget)
{
    const QString text = anyOf<QString>({QStringLiteral("7"), QStringLiteral("x"), QStringLiteral("45"), QString(),
                                         QStringLiteral("1.1"), QStringLiteral("Zw\u00f6lf;\"")});
    tell("types into", widget, text);
    const QPointer<QWidget> editor = widget;
    if (below(2) == 0) {
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    }
    for (const QChar letter : text) {
        if (editor) {
            QTest::sendKeyEvent(QTest::Click, editor, Qt::Key(0), letter, Qt::NoModifier);
        }
    }
    if (editor && below(3) > 0) {
        QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
    }
}

void RandomUser::useTable(QTableWidget *table)
{
    QTableWidgetItem *item = table->rowCount() > 0 && table->columnCount() > 0
                                 ? table->item(below(table->rowCount()), below(table->columnCount()))
                                 : nullptr;
    if (item == nullptr) {
        return;
    }
    tell("uses", table, QStringLiteral("%1, %2").arg(item->row()).arg(item->column()));
    if (below(2) == 0) {
        item->setSelected(below(4) > 0);
        return;
    }
    const QPointer<QWidget> viewport = table->viewport();
    table->editItem(item);
    auto *editor = viewport ? viewport->findChild<QLineEdit *>() : nullptr;
    if (editor != nullptr) {
        type(editor);
    }
}

void RandomUser::click(QWidget *widget)
{
    const QPointer<QWidget> clicked = widget; // pressing may delete it
    const Qt::MouseButton button = below(5) == 0 ? Qt::RightButton : Qt::LeftButton;
    const auto *pressed = qobject_cast<QAbstractButton *>(widget);
    const QPoint place =
        pressed != nullptr ? QPoint() : QPoint(below(widget->width() + 1), below(widget->height() + 1));
    tell(button == Qt::LeftButton ? "clicks" : "clicks right on", widget);
    QTest::mousePress(widget, button, Qt::NoModifier, place);
    if (clicked) {
        QTest::mouseRelease(clicked, button, Qt::NoModifier, place);
    }
}

void RandomUser::pressKey()
{
    static const std::vector<Qt::Key> keys = {Qt::Key_Tab,    Qt::Key_Return,    Qt::Key_Escape, Qt::Key_Space,
                                              Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Up,     Qt::Key_Down,
                                              Qt::Key_Left,   Qt::Key_Right,     Qt::Key_PageUp, Qt::Key_PageDown,
                                              Qt::Key_F2,     Qt::Key_F11,       Qt::Key_A,      Qt::Key_3};
    QWidget *focused = QApplication::focusWidget();
    QWidget *target = focused != nullptr && !focused->window()->inherits("QFileDialog") ? focused : anyWindow();
    const Qt::Key key = anyOf(keys);
    const Qt::KeyboardModifiers modifiers =
        anyOf<Qt::KeyboardModifier>({Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    tell("presses on", target, QString::number(key, 16));
    const QPointer<QWidget> alive = target;
    QTest::sendKeyEvent(QTest::Press, target, key, QString(), modifiers);
    if (alive) {
        QTest::sendKeyEvent(QTest::Release, target, key, QString(), modifiers);
    }
}

// One without parameters, or with one that is a number, a switch or a colour.
void RandomUser::callSlot()
{
    QObject *owner = anyWindow();
    std::vector<QMetaMethod> methods;
    const QMetaObject *meta = owner->metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        static const QList<QByteArray> known = {"int", "bool", "QColor"};
        const QList<QByteArray> types = method.parameterTypes();
        if (method.methodType() == QMetaMethod::Slot &&
            (types.isEmpty() || (types.size() == 1 && known.contains(types.first())))) {
            methods.push_back(method);
        }
    }
    if (methods.empty() || qstrncmp(meta->className(), "Q", 1) == 0) {
        return; // what the toolkit calls itself is none of ours
    }
    const QMetaMethod method = anyOf(methods);
    tell("calls", owner, QString::fromLatin1(method.methodSignature()));
    const int number = below(14) - 1;
    const bool on = number > 6;
    const QColor colour = QColor::fromHsv(number * 20 + 20, 200, 200);
    const QByteArray type = method.parameterTypes().value(0);
    if (type.isEmpty()) {
        method.invoke(owner);
    } else if (type == "int") {
        method.invoke(owner, Q_ARG(int, number));
    } else if (type == "bool") {
        method.invoke(owner, Q_ARG(bool, on));
    } else {
        method.invoke(owner, Q_ARG(QColor, colour));
    }
}

void RandomUser::closeOrResize()
{
    QWidget *window = anyWindow();
    if (below(2) == 0) {
        tell("closes", window);
        window->close();
    } else {
        tell("resizes", window);
        window->resize(300 + below(900), 200 + below(700));
    }
}

// Every dialog that takes the input is answered when its loop runs. A paint event that is kept back is none.
bool RandomUser::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (event->type() == QEvent::Show && dialog != nullptr && dialog->isModal()) {
        QTimer::singleShot(0, dialog, [this, dialog]() { answer(dialog); });
    }
    return event->type() == QEvent::Paint && !m_painting;
}

void RandomUser::answer(QWidget *dialog)
{
    const QPointer<QWidget> open = dialog;
    if (m_depth < deepest && below(4) == 0) {
        ++m_depth;
        act();
        --m_depth;
    }
    if (!open || !open->isVisible()) {
        return;
    }
    tell("answers", dialog, dialog->windowTitle());
    if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
        answerBox(box);
    } else if (auto *chooser = qobject_cast<QFileDialog *>(dialog)) {
        chooseFile(chooser);
    } else if (auto *fonts = qobject_cast<QFontDialog *>(dialog)) {
        fonts->setCurrentFont(QFont(QStringLiteral("Arial"), 1 + below(60)));
        static_cast<QDialog *>(fonts)->done(below(2));
    } else if (auto *colours = qobject_cast<QColorDialog *>(dialog)) {
        colours->setCurrentColor(QColor::fromHsv(below(360), 200, 200));
        static_cast<QDialog *>(colours)->done(below(2));
    } else if (dialog->inherits("Options") && below(2) == 0) {
        return; // shown without a loop of its own: it may stay
    } else if (below(2) == 0) {
        qobject_cast<QDialog *>(dialog)->reject();
    } else {
        qobject_cast<QDialog *>(dialog)->accept();
    }
}

void RandomUser::answerBox(QMessageBox *box)
{
    if (box->checkBox() != nullptr) {
        box->checkBox()->setChecked(below(2) == 0);
    }
    const QList<QAbstractButton *> buttons = box->buttons();
    const int chosen = below(buttons.size() * 2 + 1);
    if (chosen == buttons.size() * 2) {
        box->reject();
    } else {
        buttons.at(chosen / 2)->click();
    }
}

// Only in the folder of the session.
void RandomUser::chooseFile(QFileDialog *dialog)
{
    static const std::vector<QString> names = {QStringLiteral("a.pdf"), QStringLiteral("a.QcF"),
                                               QStringLiteral("a.csv"), QStringLiteral("default.png"),
                                               QStringLiteral("a.odd"), QStringLiteral("a")};
    const QPointer<QFileDialog> open = dialog;
    if (below(5) > 0) {
        dialog->selectFile(QDir::current().filePath(anyOf(names)));
        static_cast<QDialog *>(dialog)->accept();
    }
    if (open && open->isVisible()) { // a file that is not there, or is to be kept
        open->reject();
    }
}
