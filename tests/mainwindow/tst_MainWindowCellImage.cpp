// SPDX-License-Identifier: MIT
#include "PageWindow.h"

#include "support/LogCapture.h"
#include "support/MemoryLimit.h"

#include <QFileDialog>

namespace {
const QString title = QStringLiteral("Quintra - Modifica valori");
const QString imageBox = QStringLiteral("Selezione immagine cella");
const QString changeIt = QStringLiteral("L'immagine per la cella selezionata è quella visibile. La si vuole Cambiare?");
const QString goOn = QStringLiteral("L'immagine per la cella selezionata è quella visisbile. Proseguire?");
const QString openCaption = QStringLiteral("Apre un'immagine da inserire nella cella");
const QString oneItemOnly =
    QStringLiteral("MainWindow::on_buttSelezionaImmagine_clicked() REQUIRE ONLY ONE ITEM SELECTED!!!");
const QString imageCellOnly =
    QStringLiteral("MainWindow::on_buttSelezionaImmagine_clicked() REQUIRE A CELL-IMAGE TYPE!!!");
const QString missingPicture = QStringLiteral("L'immagine di base non può essere letta.");
const QString noFile = QStringLiteral("MainWindow::on_buttSelezionaImmagine_clicked(): Image file null or empty");

void expectImageQuestion(PageWindow &w, const QString &question, QMessageBox::StandardButton answer, const QSize &icon)
{
    w.boxes.expectBox(title, imageBox, answer, [=](QMessageBox *box) {
        QCOMPARE(box->informativeText(), question);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::Yes));
        QCOMPARE(box->iconPixmap().size(), icon);
    });
}

// One page with an image cell without picture at 0,0, selected.
void showImageCell(PageWindow &w)
{
    w.showPages({{1, 1, 2}});
    w.cell(0, 0, 0).tipo = CELL_IMMAGINE;
    w.window->loadPagina(0);
    w.select(0, 0);
}

QImage picture(const QSize &size, const QColor &colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}
} // namespace

class tst_MainWindowCellImage final : public QObject
{
    Q_OBJECT

private slots:
    void anImageIsChosen();
    void anImageThatFindsNoMemoryIsTold();
    void aMissingPictureIsToldUntilThereIsOne();
    void theKindOfFilesIsRemembered();
    void aPresentImageIsAskedAbout();
    void noKeepsThePresentImage();
    void noAtTheEndChangesNothing();
    void noFileChangesNothing();
    void anUnreadableFileGivesAnEmptyImage();
    void aLargePictureIsShownSmall();
    void anImageNeedsOneItem();
    void anImageNeedsAnImageCell();
    void aFillerTakesNoImage();
    void aPageDeletedDuringTheChoiceOfAPictureIsNotWritten();
    void aPictureChosenForAPageNoLongerShownIsItsOwn();
    void aCellThatIsNoPictureAnyMoreGetsNone();
};

void tst_MainWindowCellImage::anImageIsChosen()
{
    PageWindow w;
    showImageCell(w);
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("foto.png"));
    QVERIFY(picture(QSize(20, 10), Qt::blue).save(path));
    w.boxes.expectFileDialog(openCaption, path, [](QWidget *widget) {
        const auto *dialog = qobject_cast<QFileDialog *>(widget);
        QCOMPARE(dialog->directory().canonicalPath(), QDir::current().canonicalPath());
        QCOMPARE(dialog->nameFilters(), QStringList({QStringLiteral("JPEG (*.jpg *.jpeg)"),
                                                     QStringLiteral("TIFF (*.tif)"), QStringLiteral("PNG (*.png)"),
                                                     QStringLiteral("GIF (*.gif)"), QStringLiteral("BITMAP (*.bmp)")}));
    });
    expectImageQuestion(w, goOn, QMessageBox::Yes, QSize(20, 10));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(20, 10));
    QCOMPARE(w.cell(0, 0, 0).immagine.pixelColor(3, 3), QColor(Qt::blue));
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellImage::anImageThatFindsNoMemoryIsTold()
{
    if (!MemoryLimit::isSurvived()) {
        QSKIP("no allocation may fail");
    }
    PageWindow w;
    showImageCell(w);
    const QString path = QDir::current().filePath(QStringLiteral("large.png"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("P6\n10000 10000\n255\n" + QByteArray(1000, 'x')); // 400 MB
    file.close();
    const QString before = w.status();
    std::unique_ptr<MemoryLimit> limit;
    w.boxes.expectFileDialog(openCaption, path,
                             [&limit](QWidget *) { limit = std::make_unique<MemoryLimit>(16 << 20); });
    w.boxes.expectBox(title, QStringLiteral("La memoria libera non è bastata: nulla è cambiato."), QMessageBox::Ok,
                      QMessageBox::Warning);
    w.press("buttSelezionaImmagine");
    limit.reset();
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.status(), before);
}

void tst_MainWindowCellImage::aMissingPictureIsToldUntilThereIsOne()
{
    PageWindow w;
    showImageCell(w);
    QCOMPARE(w.item(0, 0)->toolTip(), missingPicture);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"));
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.item(0, 0)->toolTip(), QString());
    QCOMPARE(w.item(0, 0)->text(), QStringLiteral("IMG"));
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellImage::theKindOfFilesIsRemembered()
{
    PageWindow w;
    showImageCell(w);
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("default.png"));
    const QString kind = QStringLiteral("PNG (*.png)");
    w.boxes.expectFileDialog(openCaption, path, [kind](QWidget *widget) {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        QCOMPARE(dialog->selectedNameFilter(), QStringLiteral("JPEG (*.jpg *.jpeg)"));
        dialog->selectNameFilter(kind);
    });
    expectImageQuestion(w, goOn, QMessageBox::No, QSize(8, 6));
    w.press("buttSelezionaImmagine");
    w.boxes.expectFileDialog(openCaption, QString(), [kind](QWidget *widget) {
        QCOMPARE(qobject_cast<QFileDialog *>(widget)->selectedNameFilter(), kind);
    });
    w.press("buttSelezionaImmagine");
}

void tst_MainWindowCellImage::aPresentImageIsAskedAbout()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(30, 30), Qt::green);
    const QString path = QDir::current().absoluteFilePath(QStringLiteral("foto.png"));
    QVERIFY(picture(QSize(20, 10), Qt::blue).save(path));
    expectImageQuestion(w, changeIt, QMessageBox::Yes, QSize(30, 30));
    w.boxes.expectFileDialog(openCaption, path);
    expectImageQuestion(w, goOn, QMessageBox::Yes, QSize(20, 10));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(20, 10));
}

void tst_MainWindowCellImage::noKeepsThePresentImage()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(30, 30), Qt::green);
    const QString before = w.status();
    expectImageQuestion(w, changeIt, QMessageBox::No, QSize(30, 30));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(30, 30));
    QCOMPARE(w.status(), before);
}

void tst_MainWindowCellImage::noAtTheEndChangesNothing()
{
    PageWindow w;
    showImageCell(w);
    const QString before = w.status();
    w.boxes.expectFileDialog(openCaption, QDir::current().absoluteFilePath(QStringLiteral("default.png")));
    expectImageQuestion(w, goOn, QMessageBox::No, QSize(8, 6));
    w.press("buttSelezionaImmagine");
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.status(), before);
}

void tst_MainWindowCellImage::noFileChangesNothing()
{
    PageWindow w;
    showImageCell(w);
    w.boxes.expectFileDialog(openCaption, QString());
    const LogCapture log;
    w.press("buttSelezionaImmagine");
    QCOMPARE(log.warnings().filter(QStringLiteral("MainWindow::")), QStringList{noFile});
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
}

void tst_MainWindowCellImage::anUnreadableFileGivesAnEmptyImage()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(30, 30), Qt::green);
    QFile file(QDir::current().absoluteFilePath(QStringLiteral("rotto.png")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    expectImageQuestion(w, changeIt, QMessageBox::Yes, QSize(30, 30));
    w.boxes.expectFileDialog(openCaption, file.fileName());
    expectImageQuestion(w, goOn, QMessageBox::Yes, QSize(0, 0));
    w.press("buttSelezionaImmagine");
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.cell(0, 0, 0).tipo, CELL_IMMAGINE);
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellImage::aLargePictureIsShownSmall()
{
    PageWindow w;
    showImageCell(w);
    w.cell(0, 0, 0).immagine = picture(QSize(4000, 1000), Qt::green);
    expectImageQuestion(w, changeIt, QMessageBox::No, QSize(256, 64));
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.cell(0, 0, 0).immagine.size(), QSize(4000, 1000));
}

void tst_MainWindowCellImage::anImageNeedsOneItem()
{
    PageWindow w;
    showImageCell(w);
    w.select(0, 1);
    {
        const LogCapture log;
        w.window->on_buttSelezionaImmagine_clicked();
        QCOMPARE(log.warnings(), QStringList{oneItemOnly});
    }
    w.table()->clearSelection();
    const LogCapture log;
    w.window->on_buttSelezionaImmagine_clicked();
    QCOMPARE(log.warnings(), QStringList{oneItemOnly});
}

void tst_MainWindowCellImage::anImageNeedsAnImageCell()
{
    PageWindow w;
    showImageCell(w);
    w.table()->clearSelection();
    w.select(0, 1);
    const LogCapture log;
    w.window->on_buttSelezionaImmagine_clicked();
    QCOMPARE(log.warnings(), QStringList{imageCellOnly});
}

void tst_MainWindowCellImage::aFillerTakesNoImage()
{
    PageWindow w;
    w.showPages({{1, 2, 3}});
    w.shorten(0, 1, 1);
    w.window->loadPagina(0);
    w.select(1, 2);
    const LogCapture log;
    w.window->on_buttSelezionaImmagine_clicked();
    QCOMPARE(log.warnings(), QStringList{imageCellOnly});
}

void tst_MainWindowCellImage::aPageDeletedDuringTheChoiceOfAPictureIsNotWritten()
{
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    w.cell(0, 0, 0).tipo = CELL_IMMAGINE;
    w.window->loadPagina(0);
    w.select(0, 0);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"),
                             [&w](QWidget *) { w.find<QPushButton>("pagina_elimina")->click(); });
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QCOMPARE(w.set()->getNumPages(), 1);
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
}

void tst_MainWindowCellImage::aPictureChosenForAPageNoLongerShownIsItsOwn()
{
    PageWindow w;
    w.showPages(2, {1, 1, 2});
    w.cell(0, 0, 0).tipo = CELL_IMMAGINE;
    w.window->loadPagina(0);
    w.select(0, 0);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"),
                             [&w](QWidget *) { w.pageNumber()->setValue(2); });
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QVERIFY(!w.cell(0, 0, 0).immagine.isNull());
    QCOMPARE(w.cell(1, 0, 0).tipo, CELL_VUOTA);
    QCOMPARE(w.item(0, 0)->text(), QString());
    QCOMPARE(w.status(), QStringLiteral("Immagine impostata correttamente."));
}

void tst_MainWindowCellImage::aCellThatIsNoPictureAnyMoreGetsNone()
{
    PageWindow w;
    showImageCell(w);
    w.boxes.expectFileDialog(openCaption, QDir::currentPath() + QStringLiteral("/default.png"),
                             [&w](QWidget *) { w.cell(0, 0, 0).tipo = CELL_NUMERO; });
    w.boxes.expectBox(title, imageBox, QMessageBox::Yes);
    w.press("buttSelezionaImmagine");
    QVERIFY(w.cell(0, 0, 0).immagine.isNull());
}

QTEST_MAIN(tst_MainWindowCellImage)
#include "tst_MainWindowCellImage.moc"
