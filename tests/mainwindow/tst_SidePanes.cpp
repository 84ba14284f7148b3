// SPDX-License-Identifier: MIT
// The panes at the sides of the main window and of the editor of manual mappings, and what they tell and offer.
#include "mainwindow/PageWindow.h"
#include "personale/EditPersonale.h"
#include "widgets/SidePane.h"

#include <QAction>
#include <QCheckBox>
#include <QDockWidget>
#include <QGridLayout>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>

namespace {
const QSize lowWindow(1024, 400);

void showLow(QWidget *window)
{
    window->showNormal();
    window->resize(lowWindow);
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QApplication::setActiveWindow(window);
    QCoreApplication::processEvents(); // the layouts settle
}
} // namespace

class tst_SidePanes final : public QObject
{
    Q_OBJECT

private slots:
    void aPaneWithoutContentHasTheSizeOfAScrollArea();
    void aPaneIsClosedAndComesBackByTheMenu_data();
    void aPaneIsClosedAndComesBackByTheMenu();
    void aPaneIsDrawnNarrower();
    void theTableStaysInTheCentralWidget();
    void aPaneScrollsOnlyWhereTheWindowIsTooLow();

    void theVerdictIsReadBesideItsIcon();
    void emptyPagesAreToldBesideTheIcon();
    void theEditorsVerdictIsReadBesideItsIcon();
    void whatNewWillMakeIsTold();
};

void tst_SidePanes::aPaneIsClosedAndComesBackByTheMenu_data()
{
    QTest::addColumn<QString>("pane");
    QTest::addColumn<QString>("title");
    QTest::newRow("left") << QStringLiteral("parametriDock") << QStringLiteral("Parametri");
    QTest::newRow("right") << QStringLiteral("stileDock") << QStringLiteral("Stile");
}

void tst_SidePanes::aPaneIsClosedAndComesBackByTheMenu()
{
    QFETCH(QString, pane);
    QFETCH(QString, title);
    const PageWindow page;
    page.window->generate(false);
    showLow(page.window.get());
    auto *dock = page.find<QDockWidget>(qPrintable(pane));
    const int before = page.table()->width();
    QTest::mouseClick(dock->findChild<QAbstractButton *>(QStringLiteral("qt_dockwidget_closebutton")), Qt::LeftButton);
    QVERIFY(!dock->isVisible());
    QTRY_VERIFY(page.table()->width() > before);
    const int alone = page.table()->width();

    QAction *entry = nullptr;
    for (QAction *action : page.find<QMenu>("menuVisualizza")->actions()) {
        entry = action->text() == title ? action : entry;
    }
    QVERIFY(entry != nullptr);
    QVERIFY(!entry->isChecked());
    entry->trigger();
    QVERIFY(dock->isVisible());
    QTRY_VERIFY(page.table()->width() < alone);
}

void tst_SidePanes::aPaneIsDrawnNarrower()
{
    const PageWindow page;
    page.window->generate(false);
    showLow(page.window.get());
    auto *dock = page.find<QDockWidget>("stileDock");
    const int before = dock->width();
    const QPoint edge = dock->mapTo(page.window.get(), QPoint(-3, dock->height() / 2));
    constexpr int drawn = 60;
    QWindow *window = page.window->windowHandle();
    QTest::mouseMove(window, edge);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, edge);
    QTest::mouseMove(window, edge + QPoint(drawn, 0));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, edge + QPoint(drawn, 0));
    QTRY_COMPARE(dock->width(), before - drawn);
}

void tst_SidePanes::theTableStaysInTheCentralWidget()
{
    const PageWindow page;
    auto *layout = page.window->findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    for (const char *pane : {"parametriDock", "stileDock"}) {
        page.find<QDockWidget>(pane)->close();
    }
    page.window->generate(false);
    QCOMPARE(page.table()->parentWidget(), page.window->centralWidget());
    QVERIFY(layout->indexOf(page.table()) >= 0);
}

// Also after it has scrolled: beside a scroll bar its texts are broken, and the pane is higher than without one.
void tst_SidePanes::aPaneScrollsOnlyWhereTheWindowIsTooLow()
{
    const PageWindow page;
    page.window->showNormal();
    const auto *bar = page.find<QScrollArea>("parametriScrollArea")->verticalScrollBar();
    const auto scrollsAt = [&](int height) {
        page.window->resize(lowWindow.width(), height);
        QCoreApplication::processEvents(); // the layouts settle
        return bar->isVisible();
    };
    int height = 1000;
    QVERIFY(!scrollsAt(height));
    while (!scrollsAt(height - 1)) {
        --height;
    }
    QVERIFY(scrollsAt(lowWindow.height()));
    QVERIFY(!scrollsAt(height));
}

void tst_SidePanes::theVerdictIsReadBesideItsIcon()
{
    const PageWindow page;
    const auto *icon = page.find<QLabel>("label_settingstatus");
    QCOMPARE(page.text("label_settingmessage"), QStringLiteral("Impostazioni corrette"));
    QCOMPARE(icon->toolTip(), page.text("label_settingmessage"));

    page.find<QSpinBox>("box_classica_numeroestrazionixriga")->setValue(6);
    QCOMPARE(page.text("label_settingmessage"), QStringLiteral("Non posso creare 108 celle piene con solo 90 numeri."));
    QCOMPARE(icon->toolTip(), page.text("label_settingmessage"));

    page.find<QSpinBox>("box_classica_numeroestrazionixriga")->setValue(5);
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(65535);
    QVERIFY(page.text("label_settingmessage").contains(QStringLiteral("10000000 -> caselle massime gestibili.")));
    QCOMPARE(icon->toolTip(), page.text("label_settingmessage"));
}

void tst_SidePanes::emptyPagesAreToldBesideTheIcon()
{
    const PageWindow page;
    page.find<QSpinBox>("box_classica_numeroestrazionixriga")->setValue(0);
    page.window->generate(false);
    QCOMPARE(page.text("label_settingmessage"), QStringLiteral("Sono state create solo pagine vuote!"));
    QCOMPARE(page.find<QLabel>("label_settingstatus")->toolTip(), page.text("label_settingmessage"));
}

void tst_SidePanes::theEditorsVerdictIsReadBesideItsIcon()
{
    Cartella cartella;
    EditPersonale editor(nullptr, &cartella, 1, 3, 1, 1, 2, 0);
    const auto *icon = editor.findChild<QLabel *>(QStringLiteral("status_label"));
    const auto *text = editor.findChild<QLabel *>(QStringLiteral("status_text"));
    QVERIFY(text != nullptr);
    QCOMPARE(text->text(), QStringLiteral("Impostazioni corrette"));
    QCOMPARE(icon->toolTip(), text->text());

    editor.findChild<QCheckBox *>(QStringLiteral("selezione_tutte_ckbox"))->setChecked(true);
    for (const char *button : {"setNumTxtImgButton", "riempiButton"}) {
        editor.findChild<QPushButton *>(QString::fromLatin1(button))->click();
    }
    QCOMPARE(text->text(), QStringLiteral("I numeri da generare (3) sono maggiori di quelli disponibili (2)."));
    QCOMPARE(icon->toolTip(), text->text());

    editor.findChild<QPushButton *>(QStringLiteral("svuotaButton"))->click();
    QCOMPARE(text->text(), QStringLiteral("Impostazioni corrette"));
    QCOMPARE(icon->toolTip(), text->text());
    editor.hide();
}

void tst_SidePanes::whatNewWillMakeIsTold()
{
    const PageWindow page;
    QCOMPARE(page.text("label_nuova"), QStringLiteral("Nuova: 1 pagine × 6 blocchi = 6 blocchi"));
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(50);
    QCOMPARE(page.text("label_nuova"), QStringLiteral("Nuova: 50 pagine × 6 blocchi = 300 blocchi"));
    page.find<QSpinBox>("box_classica_numeroblocchi")->setValue(4);
    QCOMPARE(page.text("label_nuova"), QStringLiteral("Nuova: 50 pagine × 4 blocchi = 200 blocchi"));
    page.check("MappaManuale");
    QCOMPARE(page.text("label_nuova"), QStringLiteral("Nuova: si apre l'editor della mappatura manuale"));
    page.check("MappaManuale");
    QCOMPARE(page.text("label_nuova"), QStringLiteral("Nuova: 50 pagine × 6 blocchi = 300 blocchi"));
}

void tst_SidePanes::aPaneWithoutContentHasTheSizeOfAScrollArea()
{
    QCOMPARE(SidePane().sizeHint(), QScrollArea().sizeHint());
}

QTEST_MAIN(tst_SidePanes)
#include "tst_SidePanes.moc"
