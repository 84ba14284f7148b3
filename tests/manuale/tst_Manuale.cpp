// SPDX-License-Identifier: MIT
#include "manuale/Manuale.h"

#include "generation/GUtils.h"
#include "mainwindow/PageWindow.h"
#include "personale/EditPersonale.h"
#include "serata/Serata.h"

#include <QAction>
#include <QBuffer>
#include <QMenu>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

#include <cmath>

namespace {
const QByteArray contents = "<p>the contents, a <a href=\"#far\">link</a></p>";
const QByteArray muchText = "<p>one line</p>";
const QByteArray farPlace = "<h2><a name=\"far\"></a>the far place</h2>";

QByteArray html(const QByteArray &body)
{
    return "<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>t</title></head><body>" + body + "</body></html>";
}

// Of more than one screen.
QByteArray longManual()
{
    return html(contents + muchText.repeated(100) + farPlace + muchText.repeated(100));
}

// A main window, in a folder with a manual of which tests need only a little.
class ManualWindow final
{
public:
    ManualWindow()
    {
        write("en", longManual());
        write("it", longManual());
    }

    static void write(const char *language, const QByteArray &content)
    {
        QDir::current().mkpath(QStringLiteral("manual"));
        QFile file(QStringLiteral("manual/manual_%1.html").arg(QLatin1String(language)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    Manuale *open() const
    {
        QApplication::setActiveWindow(page.window.get());
        QTest::keyClick(page.window.get(), Qt::Key_F1);
        return manual();
    }
    Manuale *manual() const { return page.window->findChild<Manuale *>(); }
    QTextBrowser *text() const { return part<QTextBrowser>("testo_browser"); }
    template<class Part>
    Part *part(const char *name) const
    {
        return manual()->findChild<Part *>(QString::fromLatin1(name));
    }
    int place() const { return text()->verticalScrollBar()->value(); }
    // The first link is followed by the keyboard.
    void followLink() const
    {
        text()->setFocus();
        QTest::keyClick(text(), Qt::Key_Tab);
        QTest::keyClick(text(), Qt::Key_Return);
    }

    PageWindow page;
};

// Red, as a part of a page.
QByteArray picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return "<img src=\"data:image/png;base64," + png.toBase64() + "\" alt=\"red\">";
}

// Of the longest line of red pixels.
int redWidth(const QImage &image)
{
    int longest = 0;
    for (int y = 0; y < image.height(); ++y) {
        int red = 0;
        for (int x = 0; x < image.width(); ++x) {
            red += image.pixelColor(x, y) == Qt::red ? 1 : 0;
        }
        longest = std::max(longest, red);
    }
    return longest;
}

double channel(int value)
{
    const double part = value / 255.0;
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * channel(colour.red()) + 0.7152 * channel(colour.green()) + 0.0722 * channel(colour.blue());
}

double contrast(const QColor &one, const QColor &other)
{
    const double light = std::max(luminance(one), luminance(other));
    const double dark = std::min(luminance(one), luminance(other));
    return (light + 0.05) / (dark + 0.05);
}

QColor colourOfTheFirstLink(const QTextBrowser *text)
{
    const QTextBlock block = text->document()->firstBlock();
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
        if (fragment.fragment().charFormat().isAnchor()) {
            return fragment.fragment().charFormat().foreground().color();
        }
    }
    return QColor();
}

QPalette darkPalette()
{
    QPalette palette(QColor(45, 45, 45));
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}
} // namespace

class tst_Manuale final : public QObject
{
    Q_OBJECT

private slots:
    void theCommandIsTheFirstOfTheHelp();
    void f1OpensTheManual();
    void itIsInTheLanguageOfTheTexts();
    void aMissingManualIsToldOfWithItsPlace();
    void askedAgainItIsTheSameWindowAtTheSamePlace();
    void itGoesToTheWindowThatAsks();
    void itGoesWithItsWindow();
    void escapeHidesIt();
    void linksAreFollowedByKeysAndBack();
    void theContentsAreAKeyAway();
    void picturesWithinTheFileAreShown();
    void widePicturesFitThePage();
    void textsAreFoundOneAfterTheOther();
    void aTextThatIsNotThereIsToldOf();
    void linksAreReadableOnLightAndDark();
};

void tst_Manuale::theCommandIsTheFirstOfTheHelp()
{
    const PageWindow page;
    const QList<QAction *> commands = page.find<QMenu>("menuAiuto")->actions();
    QCOMPARE(commands.size(), 2);
    QCOMPARE(commands[0]->text(), QStringLiteral("Manuale"));
    QCOMPARE(commands[0]->shortcut(), QKeySequence(Qt::Key_F1));
    QCOMPARE(commands[1]->text(), QStringLiteral("Informazioni"));
    QCOMPARE(commands[1]->shortcut(), QKeySequence());
}

void tst_Manuale::f1OpensTheManual()
{
    const ManualWindow t;
    QCOMPARE(t.manual(), nullptr);
    t.open();
    QVERIFY(t.manual()->isVisible());
    QCOMPARE(t.manual()->windowTitle(), QStringLiteral("Quintra - Manuale"));
    QVERIFY(t.text()->toPlainText().startsWith(QLatin1String("the contents")));
    QVERIFY(!t.manual()->isModal());
}

void tst_Manuale::itIsInTheLanguageOfTheTexts()
{
    const ManualWindow t;
    ManualWindow::write("it", html("<p>italiano</p>"));
    QFile::remove(QStringLiteral("manual/manual_en.html"));
    t.open();
    QCOMPARE(t.text()->toPlainText(), QStringLiteral("italiano"));
}

void tst_Manuale::aMissingManualIsToldOfWithItsPlace()
{
    const ManualWindow t;
    QVERIFY(QDir(QStringLiteral("manual")).removeRecursively());
    QCOMPARE(t.open(), nullptr);
    QCOMPARE(t.page.status(),
             QStringLiteral("Il manuale non è in %1!").arg(QDir::currentPath() + QStringLiteral("/manual")));
}

void tst_Manuale::askedAgainItIsTheSameWindowAtTheSamePlace()
{
    const ManualWindow t;
    const Manuale *first = t.open();
    t.followLink();
    const int place = t.place();
    QVERIFY(place > 0);
    t.manual()->close();
    QCOMPARE(t.open(), first);
    QVERIFY(first->isVisible());
    QCOMPARE(t.place(), place);
    t.open();
    QCOMPARE(t.page.window->findChildren<Manuale *>().size(), 1);
}

void tst_Manuale::itGoesToTheWindowThatAsks()
{
    const ManualWindow t;
    const Manuale *first = t.open();
    t.followLink();
    const int place = t.place();
    t.page.check("MappaManuale");
    t.page.window->generate(false);
    auto *editor = t.page.window->findChild<EditPersonale *>();
    QApplication::setActiveWindow(editor);
    QTest::keyClick(editor, Qt::Key_F1);
    QCOMPARE(editor->findChild<Manuale *>(), first);
    QVERIFY(first->isVisible());
    QCOMPARE(t.place(), place);
    QCOMPARE(QApplication::activeModalWidget(), editor);
    QTest::keyClick(t.text(), Qt::Key_Escape); // not blocked by the editor
    QVERIFY(!first->isVisible());
}

void tst_Manuale::itGoesWithItsWindow()
{
    const PageWindow page;
    ManualWindow::write("it", longManual());
    {
        Serata evening;
        evening.show();
        QApplication::setActiveWindow(&evening);
        QTest::keyClick(&evening, Qt::Key_F1);
        const auto *manual = evening.findChild<Manuale *>();
        QVERIFY(manual != nullptr && manual->isVisible());
    }
    QApplication::setActiveWindow(page.window.get());
    QTest::keyClick(page.window.get(), Qt::Key_F1);
    const auto *manual = page.window->findChild<Manuale *>();
    QVERIFY(manual != nullptr && manual->isVisible());
}

void tst_Manuale::escapeHidesIt()
{
    const ManualWindow t;
    t.open();
    t.text()->setFocus();
    QTest::keyClick(t.text(), Qt::Key_Escape);
    QVERIFY(!t.manual()->isVisible());
}

void tst_Manuale::linksAreFollowedByKeysAndBack()
{
    const ManualWindow t;
    t.open();
    const auto *back = t.part<QPushButton>("indietro_button");
    QVERIFY(!back->isEnabled());
    t.followLink();
    QVERIFY(t.place() > 0);
    QVERIFY(back->isEnabled());
    QApplication::setActiveWindow(t.manual());
    QTest::keyClick(t.text(), Qt::Key_Left, Qt::AltModifier);
    QTRY_COMPARE(t.place(), 0);
}

void tst_Manuale::theContentsAreAKeyAway()
{
    const ManualWindow t;
    t.open();
    t.followLink();
    QApplication::setActiveWindow(t.manual());
    QTest::keyClick(t.text(), Qt::Key_Up, Qt::AltModifier);
    QTRY_COMPARE(t.place(), 0);
}

void tst_Manuale::picturesWithinTheFileAreShown()
{
    const ManualWindow t;
    ManualWindow::write("it", html("<p>" + picture(QSize(30, 20)) + "</p>"));
    t.open();
    QCOMPARE(redWidth(t.text()->viewport()->grab().toImage()), 30);
}

void tst_Manuale::widePicturesFitThePage()
{
    const ManualWindow t;
    ManualWindow::write("it", html("<p>" + picture(QSize(1500, 100)) + "</p><p>" + picture(QSize(30, 20)) + "</p>"));
    t.open();
    for (const int width : {1000, 500, 1800}) {
        t.manual()->resize(width, 600);
        QCOMPARE(t.text()->horizontalScrollBar()->maximum(), 0);
        const int page = t.text()->viewport()->width();
        const int seen = redWidth(t.text()->viewport()->grab().toImage());
        QVERIFY2(seen > page - 60 || seen >= 1500, qPrintable(QString::number(seen)));
    }
}

void tst_Manuale::textsAreFoundOneAfterTheOther()
{
    const ManualWindow t;
    ManualWindow::write("it", html("<p>alpha</p><p>beta</p><p>Alpha again</p>"));
    t.open();
    QApplication::setActiveWindow(t.manual());
    QTest::keyClick(t.text(), Qt::Key_F, Qt::ControlModifier);
    auto *wanted = t.part<QLineEdit>("cerca_edit");
    QVERIFY(wanted->hasFocus());
    QTest::keyClicks(wanted, QStringLiteral("alpha"));
    QList<int> found;
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(wanted, Qt::Key_Return);
        QCOMPARE(t.text()->textCursor().selectedText().toLower(), QStringLiteral("alpha"));
        found << t.text()->textCursor().selectionStart();
    }
    QCOMPARE(found, QList<int>({0, 11, 0}));
    QVERIFY(t.manual()->isVisible());
}

void tst_Manuale::aTextThatIsNotThereIsToldOf()
{
    const ManualWindow t;
    t.open();
    auto *wanted = t.part<QLineEdit>("cerca_edit");
    const auto *result = t.part<QLabel>("esito_label");
    QTest::keyClicks(wanted, QStringLiteral("nowhere"));
    QCOMPARE(result->text(), QString());
    QTest::keyClick(wanted, Qt::Key_Return);
    QCOMPARE(result->text(), QStringLiteral("Testo non trovato!"));
    QTest::keyClick(wanted, Qt::Key_Backspace);
    QCOMPARE(result->text(), QString());
}

void tst_Manuale::linksAreReadableOnLightAndDark()
{
    constexpr double readable = 4.5;
    const QPalette light = QApplication::palette();
    const auto restore = qScopeGuard([light]() { QApplication::setPalette(light); });
    const ManualWindow t;
    t.open();
    for (const QPalette &palette : {light, darkPalette(), light}) {
        QApplication::setPalette(palette);
        const double seen = contrast(colourOfTheFirstLink(t.text()), t.text()->palette().color(QPalette::Base));
        QVERIFY2(seen >= readable, qPrintable(QString::number(seen)));
    }
}

QTEST_MAIN(tst_Manuale)
#include "tst_Manuale.moc"
