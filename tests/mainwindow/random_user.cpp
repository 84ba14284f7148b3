// SPDX-License-Identifier: MIT
// A user who does anything at any time, also while a box waits for an answer, and answers the boxes anyhow.
//
//     random_user <seed> <sessions>            plays that many sessions, each in a process of its own
//     random_user <seed> --replay <step>...    plays some steps of one session and tells them
//
// A finding is a session that ends by itself, does not end, or leaves the program in a state that must not be. It is
// told by its seed and the steps that are needed for it.
#include "mainwindow/MainWindow.h"
#include "personale/EditPersonale.h"
#include "settings/Config.h"
#include "support/ScratchFolder.h"

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
#include <QProxyStyle>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <numeric>
#include <random>
#include <set>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {
constexpr int stepsOfASession = 1000;
// Seconds after which a session counts as one that never ends: of the processor, and of one that waits for ever.
constexpr rlim_t longestWork = 240;
constexpr unsigned longestWait = 3600;
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

// Quickly painted, and without the pictures that every box and file dialog would read again.
class PlainStyle final : public QProxyStyle
{
public:
    PlainStyle()
        : QProxyStyle(QStringLiteral("windows"))
    {
    }
    QIcon standardIcon(StandardPixmap, const QStyleOption *, const QWidget *) const override { return QIcon(); }
};

class RandomUser final : public QObject
{
public:
    RandomUser(unsigned seed, bool telling)
        : m_seed(seed)
        , m_telling(telling)
    {
        qApp->installEventFilter(this);
        startAnew();
    }
    ~RandomUser() override { qApp->removeEventFilter(this); }
    Q_DISABLE_COPY_MOVE(RandomUser)

    // False when it was a finding. A step does the same thing whatever others are left out before it, as far as the
    // windows are the same.
    bool step(int number);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    template<class T>
    T anyOf(const std::vector<T> &all)
    {
        return all[static_cast<size_t>(below(static_cast<int>(all.size())))];
    }
    void tell(const char *what, const QObject *where, const QString &more = QString()) const;

    void startAnew();
    void act();
    void keepSmall() const;
    QWidget *openEditor() const;
    void makePages();
    QWidget *anyWindow();
    void triggerAction();
    void useAnyWidget();
    void useWidget(QWidget *widget);
    void turn(QSpinBox *spin);
    void type(QWidget *widget);
    void useTable(QTableWidget *table);
    void click(QWidget *widget);
    void pressKey();
    void callSlot();
    void closeOrResize();
    void answer(QWidget *dialog);
    void answerBox(QMessageBox *box);
    void chooseFile(QFileDialog *dialog);
    QString problem() const;

    unsigned m_seed;
    bool m_telling;
    std::mt19937 m_random;
    int m_depth = 0;
    bool m_painting = true;
    std::unique_ptr<MainWindow> m_window;
};

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
    const QString wrong = problem();
    if (!wrong.isEmpty()) {
        std::printf("step %d: %s\n", number, qPrintable(wrong));
    }
    return wrong.isEmpty();
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

// In a process of its own, for it ends the process at the first finding.
int play(unsigned seed, const std::vector<int> &steps, bool telling)
{
    int argc = 1;
    std::array<char, 12> name = {"random_user"};
    std::array<char *, 2> argv = {name.data(), nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false");
    qSetGlobalQHashSeed(0);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(new PlainStyle);
    QApplication app(argc, argv.data());
    QApplication::setQuitOnLastWindowClosed(false);
    const ScratchFolder folder;
    folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red);
    CurrentConfig config(&app);
    config.defaultSaveDir = folder.path(QString());
    RandomUser user(seed, telling);
    return std::all_of(steps.begin(), steps.end(), [&user](int step) { return user.step(step); }) ? 0 : 1;
}

// Whether the steps of a session are played to the end, and the process ends well.
bool endsWell(unsigned seed, const std::vector<int> &steps, bool telling = false)
{
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        const rlimit work{longestWork, longestWork};
        setrlimit(RLIMIT_CPU, &work);
        alarm(longestWait);
        if (!telling) {
            const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
            dup2(nothing, STDOUT_FILENO);
            dup2(nothing, STDERR_FILENO);
        }
        exit(play(seed, steps, telling));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Leaves out, in smaller and smaller pieces, whatever is not needed for the finding.
std::vector<int> shrunk(unsigned seed, std::vector<int> steps)
{
    for (size_t piece = steps.size() / 2; piece > 0; piece /= 2) {
        for (size_t from = 0; from < steps.size();) {
            std::vector<int> fewer(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(from));
            fewer.insert(fewer.end(), steps.begin() + static_cast<std::ptrdiff_t>(std::min(from + piece, steps.size())),
                         steps.end());
            if (endsWell(seed, fewer)) {
                from += piece;
            } else {
                steps = fewer;
            }
        }
    }
    return steps;
}

void report(unsigned seed, const std::vector<int> &steps)
{
    std::printf("FOUND with seed %u, shrinking\n", seed);
    std::fflush(stdout);
    const std::vector<int> needed = shrunk(seed, steps);
    std::printf("random_user %u --replay", seed);
    for (const int step : needed) {
        std::printf(" %d", step);
    }
    std::printf("\n");
    endsWell(seed, needed, true);
}
} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fputs("usage: random_user <seed> <sessions>\n       random_user <seed> --replay <step>...\n", stderr);
        return 2;
    }
    const unsigned seed = QByteArray(argv[1]).toUInt();
    if (qstrcmp(argv[2], "--replay") == 0) {
        std::vector<int> steps;
        std::transform(argv + 3, argv + argc, std::back_inserter(steps),
                       [](const char *step) { return std::atoi(step); });
        return endsWell(seed, steps, true) ? 0 : 1;
    }
    const unsigned sessions = QByteArray(argv[2]).toUInt();
    std::vector<int> steps(stepsOfASession);
    std::iota(steps.begin(), steps.end(), 0);
    unsigned findings = 0;
    for (unsigned session = seed; session < seed + sessions; ++session) {
        if (!endsWell(session, steps)) {
            ++findings;
            report(session, steps);
        }
    }
    std::printf("%u sessions of %d steps, %u with a finding\n", sessions, stepsOfASession, findings);
    return findings == 0 ? 0 : 1;
}
