// SPDX-License-Identifier: MIT
#include "mainwindow/PagePreview.h"

#include "mainwindow/PageWindow.h"
#include "output/CreateOutputFile.h"
#include "output/PageImage.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>

namespace {
QAction *command(const PageWindow &page)
{
    return page.window->findChild<QAction *>(QStringLiteral("actionAnteprima"));
}

PagePreview *openPreview(const PageWindow &page)
{
    command(page)->trigger();
    auto *preview = page.window->findChild<PagePreview *>();
    if (preview == nullptr || !preview->isVisible()) {
        qFatal("no preview");
    }
    return preview;
}

QWidget *sheet(const PagePreview *preview)
{
    return preview->findChild<QScrollArea *>(QStringLiteral("foglio_scrollArea"))->widget();
}

// What the preview shows of the sheet.
QImage seen(const PagePreview *preview)
{
    return sheet(preview)->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage printed(const PageWindow &page, int number, const QSize &size)
{
    return pageImage(*page.set(), number, size, printingResolution());
}

bool shows(const PagePreview *preview, const PageWindow &page, int number)
{
    const QImage image = seen(preview);
    return image == printed(page, number, image.size());
}

void zoom(const PagePreview *preview, int index)
{
    preview->findChild<QComboBox *>(QStringLiteral("zoom_comboBox"))->setCurrentIndex(index);
}

QString label(const PagePreview *preview)
{
    return preview->findChild<QLabel *>(QStringLiteral("pagina_label"))->text();
}

QPushButton *button(const PagePreview *preview, const char *name)
{
    return preview->findChild<QPushButton *>(QString::fromLatin1(name));
}
} // namespace

class tst_PagePreview final : public QObject
{
    Q_OBJECT

private slots:
    void aSetThatIsGoneIsNotDrawn();
    void commandStandsAfterTheOptions();
    void pageOnDisplayIsShownAsPrinted();
    void previewFollowsThePageShown();
    void previewFollowsEditsAndColours();
    void previewFollowsThePaper();
    void previewFollowsDeletionsAndNewSets();
    void pagesAreBrowsedInThePreview();
    void pagesAreBrowsedByKeys_data();
    void pagesAreBrowsedByKeys();
    void zoomFitsPageOrWidthOrShowsFullSize();
    void escapeCloses();
    void secondCommandShowsTheSamePreview();
    void withoutPagesTheWindowSaysSo();
    void largestPageIsShown();
};

void tst_PagePreview::commandStandsAfterTheOptions()
{
    const PageWindow page;
    const auto *menu = page.window->findChild<QMenu *>(QStringLiteral("menuStrumenti"));
    const QList<QAction *> entries = menu->actions();
    const int options = entries.indexOf(page.window->findChild<QAction *>(QStringLiteral("actionOpzioni")));
    QCOMPARE(entries.indexOf(command(page)), options + 1);
    QCOMPARE(command(page)->text(), QStringLiteral("Anteprima di stampa"));
    QVERIFY(command(page)->shortcut() != QKeySequence(QStringLiteral("Ctrl+P")));
}

void tst_PagePreview::pageOnDisplayIsShownAsPrinted()
{
    const PageWindow page;
    page.press("butt_aggiungi_pagine");
    const PagePreview *preview = openPreview(page);
    QCOMPARE(preview->windowTitle(), QStringLiteral("Quintra - Anteprima di stampa"));
    QVERIFY(shows(preview, page, 0));
    QCOMPARE(label(preview), QStringLiteral("Pagina 1 di 1, A4 (210x297mm)"));
}

void tst_PagePreview::previewFollowsThePageShown()
{
    const PageWindow page;
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(3);
    page.press("butt_aggiungi_pagine");
    const PagePreview *preview = openPreview(page);
    page.pageNumber()->setValue(3);
    QVERIFY(shows(preview, page, 2));
    QVERIFY(!shows(preview, page, 0));
    QCOMPARE(label(preview), QStringLiteral("Pagina 3 di 3, A4 (210x297mm)"));
}

void tst_PagePreview::previewFollowsEditsAndColours()
{
    PageWindow page;
    page.showPages(1, {1, 3, 3});
    const PagePreview *preview = openPreview(page);
    const QImage empty = seen(preview);
    page.type(0, 0, QStringLiteral("42"));
    QVERIFY(seen(preview) != empty);
    QVERIFY(shows(preview, page, 0));
    const QImage edited = seen(preview);

    page.select(0, 0);
    page.press("coloracellasfondo");
    page.choose(Qt::yellow);
    QVERIFY(seen(preview) != edited);
    QVERIFY(shows(preview, page, 0));
    const QImage coloured = seen(preview);

    page.select(0, 0);
    QFont font(QStringLiteral("Liberation Sans"), 60);
    page.boxes.expectFontDialog(font);
    page.press("seleziona_font_button");
    QVERIFY(seen(preview) != coloured);
    QVERIFY(shows(preview, page, 0));

    page.showPages(1, {2, 3, 3});
    const QImage narrow = seen(preview);
    page.find<QSpinBox>("spazio_blocchi_spin")->setValue(20);
    page.press("pagina_applica");
    QVERIFY(seen(preview) != narrow);
    QVERIFY(shows(preview, page, 0));
}

void tst_PagePreview::previewFollowsThePaper()
{
    const PageWindow page;
    page.press("butt_aggiungi_pagine");
    const PagePreview *preview = openPreview(page);
    QVERIFY(sheet(preview)->width() < sheet(preview)->height());
    page.find<QComboBox>("pagina_formato")->setCurrentIndex(28);
    QVERIFY(sheet(preview)->width() > sheet(preview)->height());
    QVERIFY(shows(preview, page, 0));
    QVERIFY(label(preview).endsWith(QStringLiteral("Ledger (432x279mm)")));
}

void tst_PagePreview::previewFollowsDeletionsAndNewSets()
{
    PageWindow page;
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(2);
    page.press("butt_aggiungi_pagine");
    const PagePreview *preview = openPreview(page);
    page.press("pagina_elimina");
    QVERIFY(shows(preview, page, 0));
    QCOMPARE(label(preview), QStringLiteral("Pagina 1 di 1, A4 (210x297mm)"));
    page.press("pagina_elimina");
    QVERIFY(!sheet(preview)->isVisible());
    QCOMPARE(label(preview), QStringLiteral("La cartella è vuota!"));

    page.press("butt_aggiungi_pagine");
    QVERIFY(shows(preview, page, 0));
    const QImage before = seen(preview);
    page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                         QStringLiteral("Sei sicuro di voler cancellare la cartella e crearne una nuova?"),
                         QMessageBox::Yes);
    page.window->findChild<QAction *>(QStringLiteral("actionCrea"))->trigger();
    QVERIFY(seen(preview) != before);
    QVERIFY(shows(preview, page, 0));
}

void tst_PagePreview::pagesAreBrowsedInThePreview()
{
    const PageWindow page;
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(2);
    page.press("butt_aggiungi_pagine");
    const PagePreview *preview = openPreview(page);
    QPushButton *next = button(preview, "successiva_button");
    QPushButton *previous = button(preview, "precedente_button");
    QVERIFY(!previous->isEnabled());
    QTest::mouseClick(next, Qt::LeftButton);
    QCOMPARE(page.pageNumber()->value(), 2);
    QVERIFY(shows(preview, page, 1));
    QVERIFY(!next->isEnabled());
    QTest::mouseClick(previous, Qt::LeftButton);
    QCOMPARE(page.pageNumber()->value(), 1);
}

void tst_PagePreview::pagesAreBrowsedByKeys_data()
{
    QTest::addColumn<QString>("focused");
    for (const char *name : {"successiva_button", "zoom_comboBox", "foglio_scrollArea"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_PagePreview::pagesAreBrowsedByKeys()
{
    QFETCH(QString, focused);
    const PageWindow page;
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(2);
    page.press("butt_aggiungi_pagine");
    const PagePreview *preview = openPreview(page);
    zoom(preview, 2); // so that there is something to scroll
    auto *widget = preview->findChild<QWidget *>(focused);
    QApplication::setActiveWindow(widget->window());
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_PageDown);
    QCOMPARE(page.pageNumber()->value(), 2);
    QTest::keyClick(widget, Qt::Key_PageDown);
    QCOMPARE(page.pageNumber()->value(), 2);
    QTest::keyClick(widget, Qt::Key_PageUp);
    QCOMPARE(page.pageNumber()->value(), 1);
}

void tst_PagePreview::zoomFitsPageOrWidthOrShowsFullSize()
{
    const PageWindow page;
    page.press("butt_aggiungi_pagine");
    PagePreview *preview = openPreview(page);
    preview->resize(700, 500);
    const auto *area = preview->findChild<QScrollArea *>(QStringLiteral("foglio_scrollArea"));
    const QSize room = area->maximumViewportSize();

    QCOMPARE(sheet(preview)->height(), room.height());
    zoom(preview, 1);
    const int barWidth = area->verticalScrollBar()->sizeHint().width();
    QVERIFY(qAbs(sheet(preview)->width() - (room.width() - barWidth)) <= 1);
    QVERIFY(sheet(preview)->height() > room.height());
    zoom(preview, 2);
    QCOMPARE(sheet(preview)->size(), sheetSize(*page.set(), printingResolution()));
    zoom(preview, 0);
    preview->resize(900, 800);
    QCOMPARE(sheet(preview)->height(), area->maximumViewportSize().height());
}

void tst_PagePreview::escapeCloses()
{
    const PageWindow page;
    page.press("butt_aggiungi_pagine");
    const QPointer<PagePreview> preview = openPreview(page);
    QTest::keyClick(preview.data(), Qt::Key_Escape);
    QTRY_VERIFY(preview.isNull());
    page.pageNumber()->setValue(1); // nobody follows any more
}

void tst_PagePreview::secondCommandShowsTheSamePreview()
{
    const PageWindow page;
    page.press("butt_aggiungi_pagine");
    const PagePreview *first = openPreview(page);
    QCOMPARE(openPreview(page), first);
    QCOMPARE(page.window->findChildren<PagePreview *>().size(), 1);
}

void tst_PagePreview::withoutPagesTheWindowSaysSo()
{
    const PageWindow page;
    const PagePreview *preview = openPreview(page);
    QCOMPARE(label(preview), QStringLiteral("La cartella è vuota!"));
    QVERIFY(!button(preview, "successiva_button")->isEnabled());
    QVERIFY(!button(preview, "precedente_button")->isEnabled());
}

void tst_PagePreview::largestPageIsShown()
{
    PageWindow page;
    page.showPages(1, {99, 9, 99});
    const PagePreview *preview = openPreview(page);
    QVERIFY(shows(preview, page, 0));
}

void tst_PagePreview::aSetThatIsGoneIsNotDrawn()
{
    const ScratchFolder folder;
    const CurrentConfig config(qApp);
    auto set = std::make_unique<Cartella>(quint16(2), U8(1), U8(1), U8(1));
    PagePreview preview(nullptr);
    preview.show();
    preview.showPage(set.get(), 0, false);
    const QImage drawn = seen(&preview);
    set.reset();
    QVERIFY(seen(&preview) != drawn);
    preview.showPage(nullptr, 0, false);
    QVERIFY(!sheet(&preview)->isVisible());
}

QTEST_MAIN(tst_PagePreview)
#include "tst_PagePreview.moc"
