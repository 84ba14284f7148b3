// SPDX-License-Identifier: MIT
#include "mainwindow/PageWindow.h"
#include "serata/Registro.h"
#include "serata/Serata.h"
#include "support/FileFaults.h"

#include <QAction>
#include <QFile>
#include <QMenu>

class tst_MainWindowSerata final : public QObject
{
    Q_OBJECT

private slots:
    void theCommandsStandTogetherInTheirMenu();
    void aSetIsSavedAsARegister();
    void aNameWithoutSuffixGetsOne();
    void withoutPagesNoRegisterIsSaved();
    void aRegisterThatIsCancelledIsNotSaved();
    void aRegisterThatCannotBeWrittenIsToldOf();
    void theEveningOpensOnTheSet();
    void whatHappensToTheSetChangesNothingInTheEvening();
    void theEveningOpensOnceAndAgain();
    void theEveningGoesWithTheWindow();

private:
    // A window with cards of numbers, whose save folder is its own.
    static void generate(PageWindow &page);
};

void tst_MainWindowSerata::generate(PageWindow &page)
{
    page.config.defaultSaveDir = QDir::currentPath();
    page.find<QSpinBox>("box_classica_numeropagine")->setValue(3);
    QVERIFY(page.window->generate(false));
}

void tst_MainWindowSerata::theCommandsStandTogetherInTheirMenu()
{
    const PageWindow page;
    const QList<QAction *> actions = page.find<QMenu>("menuStrumenti")->actions();
    const int first = actions.indexOf(page.find<QAction>("actionSalvaRegistro"));
    QVERIFY(first > 0);
    QCOMPARE(actions.at(first)->text(), QStringLiteral("Salva registro..."));
    QCOMPARE(actions.at(first + 1)->objectName(), QStringLiteral("actionSerata"));
    QCOMPARE(actions.at(first + 1)->text(), QStringLiteral("Serata..."));
    QVERIFY(actions.indexOf(page.find<QAction>("actionAnteprima")) < first);
}

void tst_MainWindowSerata::aSetIsSavedAsARegister()
{
    PageWindow page;
    generate(page);
    const QString path = QDir::current().filePath(QStringLiteral("natale.csv"));
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"), path);
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QCOMPARE(page.status(), QStringLiteral("Registro salvato."));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Registro::Lettura reading = Registro::read(file);
    QVERIFY(reading.saltate.empty());
    QVERIFY(reading.schede == schedeOf(*page.set()));
    QCOMPARE(reading.schede.size(), size_t(18));
}

void tst_MainWindowSerata::aNameWithoutSuffixGetsOne()
{
    PageWindow page;
    generate(page);
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"),
                                QDir::current().filePath(QStringLiteral("natale")));
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QVERIFY(QFile::exists(QStringLiteral("natale.csv")));
}

void tst_MainWindowSerata::withoutPagesNoRegisterIsSaved()
{
    const PageWindow page;
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QCOMPARE(page.status(), QStringLiteral("La cartella è vuota!"));
}

void tst_MainWindowSerata::aRegisterThatIsCancelledIsNotSaved()
{
    PageWindow page;
    generate(page);
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"), QString());
    page.find<QAction>("actionSalvaRegistro")->trigger();
    QCOMPARE(page.boxes.problems(), QStringList());
    QCOMPARE(page.status(), QStringLiteral("Creazione file annullata!"));
}

void tst_MainWindowSerata::aRegisterThatCannotBeWrittenIsToldOf()
{
    PageWindow page;
    generate(page);
    const QString path = QDir::current().filePath(QStringLiteral("natale.csv"));
    page.boxes.expectFileDialog(QStringLiteral("Salva il registro su file"), path);
    page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                         QStringLiteral("Errore nella creazione del file:\n%1").arg(path), QMessageBox::Ok,
                         [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    {
        const FileFaults faults(QDir::currentPath(), FileFaults::Calls::Changes, 1, FileFaults::Effect::LastingError);
        page.find<QAction>("actionSalvaRegistro")->trigger();
    }
    QVERIFY(!QFile::exists(path));
    QCOMPARE(page.boxes.problems(), QStringList());
    QVERIFY(page.status() != QStringLiteral("Registro salvato."));
}

void tst_MainWindowSerata::theEveningOpensOnTheSet()
{
    PageWindow page;
    generate(page);
    page.find<QSpinBox>("box_classica_numeromassimo")->setValue(95);
    page.find<QAction>("actionSerata")->trigger();
    const auto *evening = page.window->findChild<Serata *>();
    QVERIFY(evening != nullptr && evening->isVisible());
    QVERIFY(!evening->isModal());
    QCOMPARE(evening->statusBar()->currentMessage(), QStringLiteral("Schede: 18. Numeri da 1 a 95. Chiamati: 0."));
    QCOMPARE(page.window->cursor().shape(), Qt::ArrowCursor);
}

void tst_MainWindowSerata::whatHappensToTheSetChangesNothingInTheEvening()
{
    PageWindow page;
    generate(page);
    const Cella *cell = std::find_if(begin(page.page(0)->blocchi[0].righe[0]), end(page.page(0)->blocchi[0].righe[0]),
                                     [](const Cella &c) { return c.tipo == CELL_NUMERO; });
    const QString number = QString::number(cell->numero);
    page.find<QAction>("actionSerata")->trigger();
    const auto *evening = page.window->findChild<Serata *>();

    page.press("pagina_elimina");
    page.boxes.expectBox(QStringLiteral("Quintra - Cartella classica"),
                         QStringLiteral("Sei sicuro di voler cancellare la cartella e crearne una nuova?"),
                         QMessageBox::Yes);
    page.find<QAction>("actionCrea")->trigger();
    page.press("pagina_elimina");
    QCOMPARE(page.boxes.problems(), QStringList());

    auto *card = evening->findChild<QLineEdit *>(QStringLiteral("scheda_edit"));
    for (const char *position : {"1.1", "3.6"}) {
        card->setText(QString::fromLatin1(position));
        QTest::keyClick(card, Qt::Key_Return);
        QCOMPARE(evening->findChild<QLabel *>(QStringLiteral("esito_label"))->text(),
                 QStringLiteral("Scheda %1").arg(QString::fromLatin1(position)));
    }
    card->setText(QStringLiteral("1.1"));
    QTest::keyClick(card, Qt::Key_Return);
    const auto *table = evening->findChild<QTableWidget *>(QStringLiteral("scheda_table"));
    QVERIFY(!table->findItems(number, Qt::MatchExactly).isEmpty());
}

void tst_MainWindowSerata::theEveningOpensOnceAndAgain()
{
    PageWindow page;
    generate(page);
    page.find<QAction>("actionSerata")->trigger();
    page.find<QAction>("actionSerata")->trigger();
    QCOMPARE(page.window->findChildren<Serata *>().size(), 1);
    QPointer<Serata> evening = page.window->findChild<Serata *>();
    auto *number = evening->findChild<QLineEdit *>(QStringLiteral("numero_edit"));
    QTest::keyClicks(number, QStringLiteral("34"));
    QTest::keyClick(number, Qt::Key_Return);
    evening->close();
    QTRY_VERIFY(evening.isNull());
    page.find<QAction>("actionSerata")->trigger();
    evening = page.window->findChild<Serata *>();
    QCOMPARE(evening->findChild<QLabel *>(QStringLiteral("ultimo_label"))->text(), QStringLiteral("34"));
}

void tst_MainWindowSerata::theEveningGoesWithTheWindow()
{
    QPointer<Serata> evening;
    {
        PageWindow page;
        generate(page);
        page.find<QAction>("actionSerata")->trigger();
        evening = page.window->findChild<Serata *>();
        QVERIFY(!evening.isNull());
    }
    QVERIFY(evening.isNull());
}

QTEST_MAIN(tst_MainWindowSerata)
#include "tst_MainWindowSerata.moc"
