// SPDX-License-Identifier: MIT
#include "manuale/PictureScene.h"

#include "settings/FormatSelection.h"
#include "settings/Product.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QtTest>

namespace {
constexpr unsigned seed = 7;
const QSize mainWindowSize(1024, 700);

// Windows that were opened are shown as large as asked for before their picture is taken.
void settle(QWidget *widget, const QSize &size)
{
    QWidget *window = widget->window();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    if (size.isValid()) {
        window->setWindowState(Qt::WindowNoState);
        window->resize(size);
    }
    QCoreApplication::processEvents();
}

QStringList itemTexts(const QAbstractItemView *view)
{
    QStringList texts;
    for (int row = 0; row < view->model()->rowCount(); ++row) {
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            texts << view->model()->index(row, column).data().toString();
        }
    }
    return texts;
}

QStringList menuTexts(const QMenuBar *bar)
{
    QStringList texts;
    for (const QAction *menu : bar->actions()) {
        texts << menu->text();
    }
    return texts;
}

QStringList ownTexts(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return {label->text()};
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return {button->text()};
    }
    if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        return {group->title()};
    }
    if (const auto *dock = qobject_cast<const QDockWidget *>(widget)) {
        return {dock->windowTitle()};
    }
    if (const auto *choice = qobject_cast<const QComboBox *>(widget)) {
        return {choice->currentText()};
    }
    if (const auto *text = qobject_cast<const QTextEdit *>(widget)) {
        return text->toPlainText().split(QLatin1Char('\n'));
    }
    if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
        return menuTexts(bar);
    }
    if (const auto *bar = qobject_cast<const QStatusBar *>(widget)) {
        return {bar->currentMessage()};
    }
    if (const auto *list = qobject_cast<const QListView *>(widget)) {
        return itemTexts(list);
    }
    return {};
}
} // namespace

PictureScene::PictureScene(const QString &language)
{
    QFile::copy(QStringLiteral(QUINTRA_RUN_FOLDER "/default.png"), m_folder.path(QStringLiteral("default.png")));
    QFile::link(QStringLiteral(QUINTRA_RUN_FOLDER "/language"), m_folder.path(QStringLiteral("language")));
    m_utils = std::make_unique<GUtils>(qApp);
    globalUtils = m_utils.get();
    m_utils->loadTranslations(language);
    config = std::make_unique<CurrentConfig>(qApp);
    config->language = language;
}

PictureScene::~PictureScene()
{
    m_mainWindow.reset();
    config.reset();
    globalUtils = nullptr;
}

MainWindow *PictureScene::mainWindow()
{
    if (!m_mainWindow) {
        seedRandom(seed);
        m_mainWindow = std::make_unique<MainWindow>();
        settle(m_mainWindow.get(), mainWindowSize);
    }
    return m_mainWindow.get();
}

void PictureScene::type(const QWidget *window, const char *spinBox, int value)
{
    auto *box = findIn<QSpinBox>(window, spinBox);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QString::number(value));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(box->value(), value);
}

void PictureScene::type(QWidget *lineEdit, const QString &text)
{
    lineEdit->setFocus();
    QTest::keyClicks(lineEdit, text);
    QTest::keyClick(lineEdit, Qt::Key_Return);
}

void PictureScene::press(const QWidget *window, const char *button)
{
    auto *pressed = findIn<QAbstractButton>(window, button);
    QTest::mouseClick(pressed, Qt::LeftButton, Qt::NoModifier, QPoint(10, pressed->height() / 2));
}

void PictureScene::choose(const QWidget *window, const char *comboBox, int index)
{
    findIn<QComboBox>(window, comboBox)->setCurrentIndex(index);
}

void PictureScene::makePages(int pages)
{
    type(mainWindow(), "box_classica_numeropagine", pages);
    trigger("actionCrea");
}

void PictureScene::chooseColour(const char *button, const QString &colour)
{
    press(mainWindow(), button);
    auto *dialog = mainWindow()->findChild<QColorDialog *>();
    QVERIFY(dialog->isVisible());
    dialog->setCurrentColor(colour);
    dialog->accept();
}

QString PictureScene::titleOf(const char *role) const
{
    return Product::titleFor(QCoreApplication::translate("MainWindow", role));
}

void PictureScene::take(QWidget *widget, const QSize &size)
{
    settle(widget, size);
    m_shot.image = widget->grab().toImage();
    m_shot.texts = textsSeen(widget);
}

QStringList textsSeen(const QWidget *widget)
{
    static const QRegularExpression letters(QStringLiteral("\\p{L}{2}"));
    QStringList texts = ownTexts(widget);
    for (const auto *child : widget->findChildren<QWidget *>()) {
        if (child->isVisibleTo(widget)) {
            texts << ownTexts(child);
        }
    }
    texts = texts.filter(letters);
    texts.replaceInStrings(QStringLiteral("\n"), QStringLiteral(" "));
    return texts;
}
