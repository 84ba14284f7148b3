// SPDX-License-Identifier: MIT
#include "settings/TranslationChecks.h"
#include "windows/CutTexts.h"
#include "windows/EveryWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTranslator>
#include <QtTest>

// No layout breaks: with small and large fonts, longer texts, no texts at all for a language, and from the right to the
// left. QT_SCALE_FACTOR runs the same on screens of other resolutions.

using namespace EveryWindow;

namespace {
constexpr int usualSize = 10; // points

void setFontSize(int points)
{
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
}

// A text as it could be in a language of long words: a third longer and with accents, but with the same placeholders,
// tags, line breaks, mnemonics and last character.
QString lengthened(const QString &text)
{
    static const QString plain = QStringLiteral("aeiouAEIOUn");
    static const QString accented =
        QStringLiteral("\u00e0\u00e9\u00ee\u00f6\u00fa\u00c0\u00c9\u00ce\u00d6\u00da\u00f1");
    QString result;
    bool tag = false;
    for (const QChar c : text) {
        tag = c == QLatin1Char('<') || (tag && c != QLatin1Char('>'));
        const int place = plain.indexOf(c);
        result += place >= 0 && !tag ? accented.at(place) : c;
    }
    const int more = (text.size() + 2) / 3;
    QString words;
    while (words.size() < more) {
        words += words.size() % 6 == 0 ? QLatin1Char(' ') : QChar(0xf3);
    }
    const int end = qMax(result.lastIndexOf(QRegularExpression(QStringLiteral("[^\\s.:!?>]"))) + 1, 0);
    return tag || text.contains(QLatin1Char('<'))
               ? result.replace(QStringLiteral("</p>"), words + QStringLiteral("</p>"))
               : result.insert(end, words);
}

// Gives every text of the program's translations lengthened.
class LongTexts final : public QTranslator
{
public:
    LongTexts()
    {
        QFile file(QStringLiteral(QUINTRA_TRANSLATION));
        if (!file.open(QIODevice::ReadOnly)) {
            qFatal("no translation");
        }
        for (const auto &entry : TranslationChecks::read(file.readAll()).entries) {
            m_texts.insert(entry.context + QLatin1Char('/') + entry.source, lengthened(entry.source));
        }
        QCoreApplication::installTranslator(this);
    }
    ~LongTexts() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(LongTexts)

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return m_texts.value(QString::fromUtf8(context) + QLatin1Char('/') + QString::fromUtf8(text));
    }

private:
    QHash<QString, QString> m_texts;
};

bool hasLongTexts(const QWidget &window)
{
    const auto widgets = window.findChildren<QWidget *>();
    return std::any_of(widgets.begin(), widgets.end(),
                       [](const QWidget *widget) { return textOf(widget).contains(QChar(0xf3)); });
}

QRect placeOf(const QWidget *window, const char *name)
{
    const auto *widget = window->findChild<QWidget *>(QString::fromLatin1(name));
    return QRect(widget->mapTo(window, QPoint()), widget->size());
}
} // namespace

class tst_Layouts final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void fontsOfAllSizesFit_data();
    void fontsOfAllSizesFit();
    void longTextsFit_data();
    void longTextsFit();
    void aLongTextKeepsWhatMustStay();
    void fromTheRightNothingBreaks_data();
    void fromTheRightNothingBreaks();
    void fromTheRightLabelsStandAtTheRight();
    void whatIsOnPaperIsNotMirrored();
    void aLanguageWithoutAFileBreaksNothing_data();
    void aLanguageWithoutAFileBreaksNothing();
    void overlappingWidgetsAreFound();
};

void tst_Layouts::init()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
    setFontSize(usualSize);
}

void tst_Layouts::fontsOfAllSizesFit_data()
{
    constexpr int smallest = 9; // points
    constexpr int largest = 14;
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    for (const QString &name : names()) {
        for (int size = smallest; size <= largest; ++size) {
            QTest::addRow("%s %d", qPrintable(name), size) << name << size;
        }
    }
}

void tst_Layouts::fontsOfAllSizesFit()
{
    QFETCH(QString, name);
    QFETCH(int, size);
    setFontSize(size);
    Stage stage;
    const auto window = show(name, stage);
    QCOMPARE(cutTexts(*window).join(QLatin1Char('\n')), QString());
    QCOMPARE(overlaps(*window).join(QLatin1Char('\n')), QString());
}

void tst_Layouts::longTextsFit_data()
{
    addRows();
}

void tst_Layouts::longTextsFit()
{
    QFETCH(QString, name);
    Stage stage;
    QVERIFY(QDir(QStringLiteral("language")).removeRecursively()); // the dialog of the first start would read them
    const LongTexts longTexts;
    const auto window = show(name, stage);
    const bool isMessage = name.startsWith(QLatin1String("MsgArea"));
    const bool isChoice = name == QLatin1String("QColorDialog") || name == QLatin1String("QFontDialog");
    QCOMPARE(hasLongTexts(*window), !isMessage && !isChoice);
    QCOMPARE(cutTexts(*window).join(QLatin1Char('\n')), QString());
    QCOMPARE(overlaps(*window).join(QLatin1Char('\n')), QString());
}

void tst_Layouts::aLongTextKeepsWhatMustStay()
{
    QCOMPARE(lengthened(QStringLiteral("Nuova")), QStringLiteral("N\u00fa\u00f6v\u00e0 \u00f3"));
    QCOMPARE(lengthened(QStringLiteral("Pagina %1 di %2.")),
             QStringLiteral("P\u00e0g\u00ee\u00f1\u00e0 %1 d\u00ee %2 \u00f3\u00f3\u00f3\u00f3\u00f3."));
    QCOMPARE(lengthened(QStringLiteral("<p>no</p>")), QStringLiteral("<p>\u00f1\u00f6 \u00f3\u00f3</p>"));
}

void tst_Layouts::fromTheRightNothingBreaks_data()
{
    addRows();
}

void tst_Layouts::fromTheRightNothingBreaks()
{
    QFETCH(QString, name);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    Stage stage;
    const auto window = show(name, stage);
    QCOMPARE(cutTexts(*window).join(QLatin1Char('\n')), QString());
    QCOMPARE(overlaps(*window).join(QLatin1Char('\n')), QString());
}

void tst_Layouts::fromTheRightLabelsStandAtTheRight()
{
    Stage stage;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QApplication::setLayoutDirection(direction);
        const auto window = show(QStringLiteral("MainWindow"), stage);
        const bool labelFirst = placeOf(window.get(), "label_numeropagine").right() <
                                placeOf(window.get(), "box_classica_numeropagine").left();
        const bool parametersFirst =
            placeOf(window.get(), "parametriDock").right() < placeOf(window.get(), "stileDock").left();
        QCOMPARE(labelFirst, direction == Qt::LeftToRight);
        QCOMPARE(parametersFirst, direction == Qt::LeftToRight);
    }
}

// The first column of a card is the left one in every language, as in the printed file.
void tst_Layouts::whatIsOnPaperIsNotMirrored()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    Stage stage;
    const auto window = show(QStringLiteral("MainWindow"), stage);
    const auto *table = window->findChild<QTableWidget *>(QStringLiteral("tableWidget"));
    QVERIFY(table->columnViewportPosition(0) < table->columnViewportPosition(1));

    const auto evening = show(QStringLiteral("Serata"), stage);
    for (const char *name : {"scheda_table", "tabellone"}) {
        const auto *view = evening->findChild<QTableView *>(QString::fromLatin1(name));
        QVERIFY2(view->columnViewportPosition(0) < view->columnViewportPosition(1), name);
    }

    const auto editor = show(QStringLiteral("EditPersonale"), stage);
    const auto *grid = editor->findChild<QWidget *>(QStringLiteral("boxesWidget"));
    const auto boxes = grid->findChildren<QAbstractButton *>();
    const auto at = [&boxes](const QString &tip) {
        return *std::find_if(boxes.begin(), boxes.end(), [&tip](const auto *box) { return box->toolTip() == tip; });
    };
    QVERIFY(at(QStringLiteral("1,1"))->x() < at(QStringLiteral("1,2"))->x());
    QTest::keyClick(at(QStringLiteral("1,1")), Qt::Key_Right);
    QVERIFY(at(QStringLiteral("1,2"))->hasFocus());
}

void tst_Layouts::aLanguageWithoutAFileBreaksNothing_data()
{
    addRows();
}

void tst_Layouts::aLanguageWithoutAFileBreaksNothing()
{
    QFETCH(QString, name);
    Stage stage;
    QVERIFY(!stage.speak(QStringLiteral("xx_YY")));
    const auto window = show(name, stage);
    QCOMPARE(cutTexts(*window).join(QLatin1Char('\n')), QString());
    if (name == QLatin1String("MainWindow")) {
        QCOMPARE(window->findChild<QPushButton *>(QStringLiteral("butt_stampa"))->text(), QStringLiteral("STAMPA"));
    }
}

void tst_Layouts::overlappingWidgetsAreFound()
{
    Stage stage;
    const auto window = show(QStringLiteral("NuovaPartita"), stage);
    auto *first = window->findChild<QSpinBox *>(QStringLiteral("da_spinBox"));
    auto *second = window->findChild<QSpinBox *>(QStringLiteral("a_spinBox"));
    second->setGeometry(first->geometry());
    QVERIFY(!overlaps(*window).isEmpty());
    second->resize(second->width() / 4, second->height());
    QVERIFY(!cutTexts(*window).isEmpty());
}

QTEST_MAIN(tst_Layouts)
#include "tst_Layouts.moc"
