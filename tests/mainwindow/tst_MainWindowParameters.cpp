// SPDX-License-Identifier: MIT
#include "mainwindow/PageWindow.h"

#include <QCheckBox>
#include <QPixmap>

#include <QScopedValueRollback>
#include <functional>

namespace {
// The names of the parameter boxes, without their common beginning.
QSpinBox *box(const PageWindow &page, const char *name)
{
    return page.find<QSpinBox>(QByteArray("box_classica_").append(name).constData());
}

int value(const PageWindow &page, const char *name)
{
    return box(page, name)->value();
}

QString verdictText(const PageWindow &page)
{
    return page.find<QLabel>("label_settingstatus")->toolTip();
}

// Name of the icon file shown.
QString verdictIcon(const PageWindow &page)
{
    const QPixmap shown = page.find<QLabel>("label_settingstatus")->pixmap(Qt::ReturnByValue);
    for (const char *name : {"ok", "warning", "error"}) {
        const QPixmap icon(QStringLiteral(":/Images/resources/img/%1.png").arg(QString::fromLatin1(name)));
        if (!icon.isNull() && shown.toImage() == icon.toImage()) {
            return QString::fromLatin1(name);
        }
    }
    return QString();
}

// A window whose configuration was changed before it was built.
class ConfiguredWindow final
{
public:
    explicit ConfiguredWindow(const std::function<void(Config &)> &change)
    {
        change(page.config);
        page.window = std::make_unique<MainWindow>();
    }

    PageWindow page;
};

const QString correct = QStringLiteral("Impostazioni corrette");
const QString advice = QStringLiteral("Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.");
} // namespace

class tst_MainWindowParameters final : public QObject
{
    Q_OBJECT

private slots:
    void theBoxesHaveTheirRangesAndStartValues_data();
    void theBoxesHaveTheirRangesAndStartValues();
    void theConfigurationFillsTheBoxes();
    void oddConfigurationsAreLoadedInOrder_data();
    void oddConfigurationsAreLoadedInOrder();
    void anOddDrawnCountReplacesTheWelcome();
    void theVerdictIsShownFromTheStart();
    void raisingTheMinimumStopsAtTheMaximum();
    void loweringTheMaximumStopsAtTheMinimum();
    void aMaximumIsTypedDigitByDigit();
    void aMaximumStillBeingTypedCounts();
    void theBoundsMayMeet();
    void anyDrawnCountButFiveIsCommented();
    void everyChangeIsValidated_data();
    void everyChangeIsValidated();
    void theIconFollowsTheVerdict();
    void messagesAreAppended();
    void theSameVerdictIsReturnedAndShown();
    void appendingCountsThePagesHeld();
    void cellsInMemoryCountForTheWarning();
    void byHandThePageIsOneBlockOfAllRows();
    void byHandRowsStopAtTheBoxsLimit();
    void byHandOnlyTheSizeIsChecked();
    void leavingTheHandReloadsTheConfiguration();
    void valuesOfTheConfigurationThatWereChangedAreNamed();
    void theyAreNamedUntilAParameterIsEdited_data();
    void theyAreNamedUntilAParameterIsEdited();
    void nothingIsSaidOfAConfigurationTakenAsItIs();
};

void tst_MainWindowParameters::theBoxesHaveTheirRangesAndStartValues_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("toolTip");
    const auto row = [](const char *name, int minimum, int maximum, int start, const char *label, const char *toolTip) {
        QTest::newRow(name) << minimum << maximum << start << QString::fromUtf8(label) << QString::fromUtf8(toolTip);
    };
    row("numeropagine", 1, 65535, 1, "Numero di pagine", "Numero totale di pagine (cartelle)");
    row("numeroblocchi", 1, 99, 6, "Numero di blocchi per pagina", "");
    row("numerorighexblocco", 1, 99, 3, "Numero di righe per blocco", "");
    row("numeroestrazionixriga", 0, 99, 5, "Numero di estrazioni per riga",
        "Numero di celle da riempire (numeri,immagini,scritte) in ogni riga");
    row("numerojollyxriga", 0, 99, 0, "Numero di immagini per riga",
        "Inserisci delle immagini al posto dei numeri nelle celle");
    row("numeroscrittexriga", 0, 99, 0, "Numero di scritte per riga",
        "Inserisci del testo al posto dei numeri nelle celle");
    row("numerocolonne", 1, 99, 9, "Numero di colonne", "Numero di celle (colonne) per riga");
    row("numerominimo", 0, 999999, 1, "Numero minimo da estrarre", "");
    row("numeromassimo", 0, 999999, 90, "Numero massimo da estrarre", "");
}

void tst_MainWindowParameters::theBoxesHaveTheirRangesAndStartValues()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, start);
    QFETCH(QString, label);
    QFETCH(QString, toolTip);
    const PageWindow page;
    const QSpinBox *parameter = box(page, QTest::currentDataTag());
    QCOMPARE(parameter->minimum(), minimum);
    QCOMPARE(parameter->maximum(), maximum);
    QCOMPARE(parameter->value(), start);
    QVERIFY(parameter->isEnabled());
    if (!toolTip.isEmpty()) {
        QCOMPARE(parameter->toolTip(), toolTip);
    }
    QStringList labels;
    for (const QLabel *candidate : page.window->findChildren<QLabel *>()) {
        if (candidate->buddy() == parameter) {
            labels.append(candidate->text());
        }
    }
    QCOMPARE(labels, QStringList(label));
}

void tst_MainWindowParameters::theConfigurationFillsTheBoxes()
{
    const ConfiguredWindow configured([](Config &config) {
        config.classicNBlocks = 2;
        config.classicNCols = 7;
        config.classicNDrawnxRow = 4;
        config.classicNJollyxRow = 1;
        config.nMin = 10;
        config.nMax = 75;
        config.classicNRowxBlock = 8;
    });
    const PageWindow &page = configured.page;
    QCOMPARE(value(page, "numeropagine"), 1);
    QCOMPARE(value(page, "numeroblocchi"), 2);
    QCOMPARE(value(page, "numerocolonne"), 7);
    QCOMPARE(value(page, "numeroestrazionixriga"), 4);
    QCOMPARE(value(page, "numerojollyxriga"), 1);
    QCOMPARE(value(page, "numeroscrittexriga"), 0);
    QCOMPARE(value(page, "numerominimo"), 10);
    QCOMPARE(value(page, "numeromassimo"), 75);
    QCOMPARE(value(page, "numerorighexblocco"), 8);
    QCOMPARE(verdictText(page), correct);
}

void tst_MainWindowParameters::oddConfigurationsAreLoadedInOrder_data()
{
    QTest::addColumn<int>("nMin");
    QTest::addColumn<int>("nMax");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    // The minimum comes first, and the form's 90 still stands in the maximum.
    QTest::newRow("minimum above the form's maximum") << 100 << 200 << 90 << 200;
    QTest::newRow("minimum above its maximum") << 80 << 20 << 80 << 80;
    QTest::newRow("both turned round above the form") << 200 << 100 << 90 << 100;
    QTest::newRow("below zero") << -5 << -1 << 0 << 0;
    QTest::newRow("beyond the ranges") << 5 << 2000000 << 5 << 999999;
    QTest::newRow("unreadable") << 0 << 0 << 0 << 0;
}

void tst_MainWindowParameters::oddConfigurationsAreLoadedInOrder()
{
    QFETCH(int, nMin);
    QFETCH(int, nMax);
    const ConfiguredWindow configured([&](Config &config) {
        config.nMin = nMin;
        config.nMax = nMax;
        config.classicNBlocks = 0;
        config.classicNCols = 1000;
    });
    QTEST(value(configured.page, "numerominimo"), "minimum");
    QTEST(value(configured.page, "numeromassimo"), "maximum");
    QCOMPARE(value(configured.page, "numeroblocchi"), 1);
    QCOMPARE(value(configured.page, "numerocolonne"), 99);
}

void tst_MainWindowParameters::anOddDrawnCountReplacesTheWelcome()
{
    const ConfiguredWindow configured([](Config &config) { config.classicNDrawnxRow = 4; });
    QCOMPARE(configured.page.status(), advice);
    QCOMPARE(configured.page.window->statusBar()->styleSheet(), QStringLiteral("color: #00FF00"));
}

void tst_MainWindowParameters::theVerdictIsShownFromTheStart()
{
    const PageWindow page; // whose configuration changes no box
    QCOMPARE(verdictText(page), correct);
    QCOMPARE(verdictIcon(page), QStringLiteral("ok"));
}

void tst_MainWindowParameters::raisingTheMinimumStopsAtTheMaximum()
{
    const PageWindow page;
    box(page, "numerominimo")->setValue(91);
    QCOMPARE(value(page, "numerominimo"), 90);
    QCOMPARE(value(page, "numeromassimo"), 90);
    QCOMPARE(verdictText(page), QStringLiteral("Non posso creare 90 celle piene con solo 1 numeri."));
}

void tst_MainWindowParameters::loweringTheMaximumStopsAtTheMinimum()
{
    const PageWindow page;
    box(page, "numerominimo")->setValue(50);
    box(page, "numeromassimo")->setValue(49);
    QCOMPARE(value(page, "numeromassimo"), 50);
    QCOMPARE(value(page, "numerominimo"), 50);
}

void tst_MainWindowParameters::aMaximumIsTypedDigitByDigit()
{
    const PageWindow page;
    box(page, "numerominimo")->setValue(10);
    QSpinBox *maximum = box(page, "numeromassimo");
    maximum->selectAll();
    QTest::keyClicks(maximum, QStringLiteral("75")); // 7 alone would be below the minimum
    QTest::keyClick(maximum, Qt::Key_Return);
    QCOMPARE(maximum->value(), 75);
    QCOMPARE(verdictText(page), QStringLiteral("Non posso creare 90 celle piene con solo 66 numeri."));
    maximum->selectAll();
    QTest::keyClicks(maximum, QStringLiteral("7"));
    QTest::keyClick(maximum, Qt::Key_Return);
    QCOMPARE(maximum->value(), 10);
    QCOMPARE(value(page, "numerominimo"), 10);
}

void tst_MainWindowParameters::aMaximumStillBeingTypedCounts()
{
    PageWindow page;
    QSpinBox *maximum = box(page, "numeromassimo");
    maximum->selectAll();
    QTest::keyClicks(maximum, QStringLiteral("50")); // and no Return: the shortcut comes first
    page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                         QStringLiteral("Problemi di impostazione parametri: non posso proseguire!"), QMessageBox::Ok);
    QVERIFY(!page.window->generate(false));
    QCOMPARE(maximum->value(), 50);
}

void tst_MainWindowParameters::theBoundsMayMeet()
{
    const PageWindow page;
    box(page, "numerominimo")->setValue(90);
    QCOMPARE(value(page, "numerominimo"), 90);
    box(page, "numeromassimo")->setValue(999999);
    box(page, "numerominimo")->setValue(999999);
    QCOMPARE(value(page, "numerominimo"), 999999);
}

void tst_MainWindowParameters::anyDrawnCountButFiveIsCommented()
{
    const PageWindow page;
    box(page, "numeroestrazionixriga")->setValue(4);
    QCOMPARE(page.status(), advice);
    QCOMPARE(value(page, "numeroestrazionixriga"), 4);
    page.window->updateStatusBar(QStringLiteral("altro"));
    box(page, "numeroestrazionixriga")->setValue(5);
    QCOMPARE(page.status(), QStringLiteral("altro"));
}

void tst_MainWindowParameters::everyChangeIsValidated_data()
{
    QTest::addColumn<int>("newValue");
    QTest::addColumn<QString>("message");
    QTest::newRow("numeroblocchi") << 7 << QStringLiteral("Non posso creare 105 celle piene con solo 90 numeri.");
    QTest::newRow("numerorighexblocco") << 4 << QStringLiteral("Non posso creare 120 celle piene con solo 90 numeri.");
    QTest::newRow("numeroestrazionixriga")
        << 6 << QStringLiteral("Non posso creare 108 celle piene con solo 90 numeri.");
    QTest::newRow("numerojollyxriga") << 6 << QStringLiteral("Non posso inserire 6 jolly con sole 5 estrazioni.");
    QTest::newRow("numeroscrittexriga") << 10 << QStringLiteral("Non posso inserire 10 scritte in sole 9 colonne.");
    QTest::newRow("numerocolonne") << 4 << QStringLiteral("Non posso inserire 5 numeri in sole 4 colonne.");
    QTest::newRow("numerominimo") << 2 << QStringLiteral("Non posso creare 90 celle piene con solo 89 numeri.");
    QTest::newRow("numeromassimo") << 89 << QStringLiteral("Non posso creare 90 celle piene con solo 89 numeri.");
}

void tst_MainWindowParameters::everyChangeIsValidated()
{
    QFETCH(int, newValue);
    QFETCH(QString, message);
    const PageWindow page;
    QSpinBox *parameter = box(page, QTest::currentDataTag());
    const int before = parameter->value();
    parameter->setValue(newValue);
    QCOMPARE(parameter->value(), newValue);
    QCOMPARE(verdictText(page), message);
    QCOMPARE(verdictIcon(page), QStringLiteral("error"));
    parameter->setValue(before);
    QCOMPARE(verdictText(page), correct);
    QCOMPARE(verdictIcon(page), QStringLiteral("ok"));
}

void tst_MainWindowParameters::theIconFollowsTheVerdict()
{
    const PageWindow page;
    box(page, "numeropagine")->setValue(65535);
    QCOMPARE(verdictIcon(page), QStringLiteral("warning"));
    QVERIFY2(verdictText(page).startsWith(QStringLiteral("Si sconsiglia di proseguire")),
             qPrintable(verdictText(page)));
    box(page, "numeromassimo")->setValue(50);
    QCOMPARE(verdictIcon(page), QStringLiteral("error"));
    box(page, "numeromassimo")->setValue(90);
    box(page, "numeropagine")->setValue(1);
    QCOMPARE(verdictIcon(page), QStringLiteral("ok"));
}

void tst_MainWindowParameters::messagesAreAppended()
{
    const PageWindow page;
    QString message = QStringLiteral("Prima. ");
    QCOMPARE(page.window->checkParameters(&message, false), 1);
    QCOMPARE(message, QStringLiteral("Prima. "));
    box(page, "numerocolonne")->setValue(4);
    QCOMPARE(page.window->checkParameters(&message, false), -1);
    QCOMPARE(message, QStringLiteral("Prima. Non posso inserire 5 numeri in sole 4 colonne."));
}

void tst_MainWindowParameters::theSameVerdictIsReturnedAndShown()
{
    const PageWindow page;
    QCOMPARE(page.window->checkParameters(nullptr, false), 1);
    box(page, "numeropagine")->setValue(65535);
    QString message;
    QCOMPARE(page.window->checkParameters(&message, false), 0);
    QCOMPARE(message, verdictText(page));
    QCOMPARE(message, QStringLiteral("Si sconsiglia di proseguire per le seguenti ragioni:\n"
                                     "10616670 -> caselle totali richieste.\n"
                                     "0 -> caselle totali in memoria.\n"
                                     "10000000 -> caselle massime gestibili.\n"
                                     "(eventuale crash del programma)"));
}

void tst_MainWindowParameters::appendingCountsThePagesHeld()
{
    PageWindow page;
    page.showPages(1, {1, 1, 1});
    while (page.set()->getNumPages() < 65535) {
        page.set()->generateBlock(1, 1, 1);
    }
    QString message;
    QCOMPARE(page.window->checkParameters(&message, false), 1);
    QCOMPARE(message, QString());
    QCOMPARE(page.window->checkParameters(&message, true), -1);
    QCOMPARE(message, QStringLiteral("Le pagine totali richieste (65536)\neccedono il massimo consentito (65535)."));
    QCOMPARE(verdictText(page), message);
    page.set()->deletePage(0);
    QCOMPARE(page.window->checkParameters(nullptr, true), 1);
}

void tst_MainWindowParameters::cellsInMemoryCountForTheWarning()
{
    const PageWindow page;
    page.press("butt_aggiungi_pagine"); // 162 cells
    box(page, "numeropagine")->setValue(61728);
    QString message;
    QCOMPARE(page.window->checkParameters(&message, false), 0);
    QVERIFY2(
        message.contains(QStringLiteral("\n9999936 -> caselle totali richieste.\n162 -> caselle totali in memoria.\n")),
        qPrintable(message));
    box(page, "numeropagine")->setValue(61727);
    QCOMPARE(page.window->checkParameters(nullptr, false), 1);
}

void tst_MainWindowParameters::byHandThePageIsOneBlockOfAllRows()
{
    const PageWindow page;
    QVERIFY(!page.find<QCheckBox>("MappaManuale")->isChecked());
    page.check("MappaManuale");
    QCOMPARE(value(page, "numerorighexblocco"), 18);
    QCOMPARE(value(page, "numeroblocchi"), 1);
    for (const char *name : {"numerocolonne", "numerorighexblocco", "numeropagine", "numerominimo", "numeromassimo"}) {
        QVERIFY2(box(page, name)->isEnabled(), name);
    }
    for (const char *name : {"numeroblocchi", "numeroestrazionixriga", "numerojollyxriga", "numeroscrittexriga"}) {
        QVERIFY2(!box(page, name)->isEnabled(), name);
    }
}

void tst_MainWindowParameters::byHandRowsStopAtTheBoxsLimit()
{
    const PageWindow page;
    box(page, "numeroblocchi")->setValue(50);
    page.check("MappaManuale");
    QCOMPARE(value(page, "numerorighexblocco"), 99);
}

void tst_MainWindowParameters::byHandOnlyTheSizeIsChecked()
{
    const PageWindow page;
    box(page, "numeroblocchi")->setValue(1);
    box(page, "numeroestrazionixriga")->setValue(10);
    QCOMPARE(verdictIcon(page), QStringLiteral("error"));
    page.check("MappaManuale"); // changes no value
    QCOMPARE(verdictIcon(page), QStringLiteral("ok"));
    box(page, "numerorighexblocco")->setValue(99);
    box(page, "numerocolonne")->setValue(99);
    box(page, "numeropagine")->setValue(65535);
    QCOMPARE(verdictIcon(page), QStringLiteral("warning"));
}

void tst_MainWindowParameters::leavingTheHandReloadsTheConfiguration()
{
    const PageWindow page;
    box(page, "numeropagine")->setValue(12);
    box(page, "numeroscrittexriga")->setValue(2);
    page.check("MappaManuale");
    for (const char *name : {"numerocolonne", "numerorighexblocco", "numerominimo", "numeromassimo"}) {
        box(page, name)->setValue(33);
    }
    globalConfig->classicNCols = 8;
    page.check("MappaManuale");
    QCOMPARE(value(page, "numeroblocchi"), 6);
    QCOMPARE(value(page, "numerocolonne"), 8);
    QCOMPARE(value(page, "numeroestrazionixriga"), 5);
    QCOMPARE(value(page, "numerojollyxriga"), 0);
    QCOMPARE(value(page, "numerominimo"), 1);
    QCOMPARE(value(page, "numeromassimo"), 90);
    QCOMPARE(value(page, "numerorighexblocco"), 3);
    QCOMPARE(value(page, "numeropagine"), 12);
    QCOMPARE(value(page, "numeroscrittexriga"), 2);
    for (const char *name : {"numerocolonne", "numerorighexblocco", "numeroblocchi", "numeroestrazionixriga",
                             "numerojollyxriga", "numeroscrittexriga"}) {
        QVERIFY2(box(page, name)->isEnabled(), name);
    }
    QCOMPARE(verdictText(page), correct);
}

void tst_MainWindowParameters::valuesOfTheConfigurationThatWereChangedAreNamed()
{
    ScratchFolder folder;
    folder.write(QStringLiteral("config.ini"), "[General]\nNMIN=101\nNMAX=200\nCLASSIC_NCOLS=500\n");
    Config config(qApp);
    const QScopedValueRollback<Config *> global(globalConfig, &config);
    MainWindow window;
    const auto *changed = window.findChild<QLabel *>(QStringLiteral("label_valoricambiati"));
    QVERIFY(!changed->isHidden());
    QCOMPARE(changed->text(),
             QStringLiteral("Valori di config.ini cambiati:\nCLASSIC_NCOLS: 500 > 99\nNMIN: 101 > 90"));
    QCOMPARE(window.findChild<QSpinBox *>(QStringLiteral("box_classica_numerominimo"))->value(), 90);
}

void tst_MainWindowParameters::theyAreNamedUntilAParameterIsEdited_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"numeropagine", "numeroblocchi", "numerorighexblocco", "numeroestrazionixriga", "numerojollyxriga",
          "numeroscrittexriga", "numerocolonne", "numerominimo", "numeromassimo"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void tst_MainWindowParameters::theyAreNamedUntilAParameterIsEdited()
{
    QFETCH(QByteArray, name);
    const ConfiguredWindow window([](Config &config) {
        config.nMin = 10;
        config.nMax = 80;
        config.classicNCols = 500; // more than there may be
    });
    const auto *changed = window.page.find<QLabel>("label_valoricambiati");
    QVERIFY(!changed->isHidden());
    auto *edited = box(window.page, name.constData());
    edited->setValue(edited->value() == edited->maximum() ? edited->value() - 1 : edited->value() + 1);
    QVERIFY(changed->isHidden());
}

void tst_MainWindowParameters::nothingIsSaidOfAConfigurationTakenAsItIs()
{
    const PageWindow page;
    QVERIFY(page.find<QLabel>("label_valoricambiati")->isHidden());
    page.check("MappaManuale");
    page.check("MappaManuale");
    QVERIFY(page.find<QLabel>("label_valoricambiati")->isHidden());
}

QTEST_MAIN(tst_MainWindowParameters)
#include "tst_MainWindowParameters.moc"
