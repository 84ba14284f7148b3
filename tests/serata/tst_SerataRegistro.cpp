// SPDX-License-Identifier: MIT
// Registers that the user opens in the window of an evening.
#include "serata/Serata.h"

#include "msgarea/MsgArea.h"
#include "serata/Evening.h"
#include "serata/Registro.h"
#include "support/FileFaults.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QTextEdit>
#include <QtTest>

#include <sys/stat.h>

class tst_SerataRegistro final : public QObject
{
    Q_OBJECT

private slots:
    void aRegisterIsOpened();
    void itStaysOpenWhileItAsks();
    void theEveningOfARegisterIsBesideIt();
    void aRegisterWithOddLinesIsUsedAsFarAsItGoes();
    void aRegisterWithoutCardsIsRefused();
    void aRegisterThatCannotBeReadIsRefused();
    void aRegisterThatIsNoFileIsRefused_data();
    void aRegisterThatIsNoFileIsRefused();
    void aRegisterIsUsedAsFarAsItCanBeRead();
    void theReportOfARegisterStandsBeforeItsWindow();
    void theRegisterThatIsOpenStaysOpen();
    void aChangedRegisterAsksAboutItsCalls();
    void callsOfARegisterThatCannotBePutAsideStay();
};

void tst_SerataRegistro::aRegisterIsOpened()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.check(QStringLiteral("2.2"));
    e.folder.write(QStringLiteral("natale.csv"), "3;1;|;7;\"a\"\n12;3;|;100;200\n");
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), e.folder.path(QStringLiteral("natale.csv")));
    e.trigger("actionApriRegistro");
    QCOMPARE(e.status(), QStringLiteral("Schede: 2. Numeri da 7 a 200. Chiamati: 0."));
    QVERIFY(!e.isMarked(7));
    QCOMPARE(e.text("esito_label"), QStringLiteral("Nessuna scheda"));
    QCOMPARE(e.card(), QString());
    e.check(QStringLiteral("12.3"));
    QCOMPARE(e.card(), QStringLiteral("100 200"));
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), QString());
    e.trigger("actionApriRegistro");
    QCOMPARE(e.card(), QStringLiteral("100 200"));
}

void tst_SerataRegistro::itStaysOpenWhileItAsks()
{
    Evening e;
    QVERIFY(e.openSet());
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), QString(), [&e](QWidget *) {
        e.window->close();
        QVERIFY(e.window->isVisible());
    });
    e.trigger("actionApriRegistro");
    e.window->close();
    QVERIFY(!e.window->isVisible());
}

void tst_SerataRegistro::theEveningOfARegisterIsBesideIt()
{
    Evening e;
    QVERIFY(e.openSet());
    QDir().mkdir(QStringLiteral("natale"));
    e.folder.write(QStringLiteral("natale/cards.csv"), "1;1;|;7;9\n");
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale/cards.csv"))));
    e.call(7);
    QCOMPARE(e.saved(QStringLiteral("natale/cards.csv.chiamate")), (Numbers{7}));
    QCOMPARE(e.saved(), Numbers{});
    QVERIFY(e.openAgain(*fourCards()));
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale/cards.csv"))));
    QVERIFY(e.isMarked(7));
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("1.1: manca il 9")));
}

void tst_SerataRegistro::aRegisterWithOddLinesIsUsedAsFarAsItGoes()
{
    Evening e;
    QVERIFY(e.openSet());
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7\n1;2;|;x\n1;3;|;9\n1;4;|;1");
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale.csv"))));
    QCOMPARE(e.status(), QStringLiteral("Schede: 2. Numeri da 1 a 90. Chiamati: 0."));
    auto *report = e.window->findChild<MsgArea *>();
    QVERIFY(report != nullptr && report->isVisible());
    QCOMPARE(report->findChild<QTextEdit *>(QStringLiteral("textEdit"))->toPlainText(),
             QStringLiteral("Queste righe del registro non sono schede e sono state saltate:\n"
                            "Riga 2: una cella non è né un numero, né un testo tra virgolette, né la parola immagine.\n"
                            "Riga 4: testo troncato (file incompleto)."));
    report->close();
    e.check(QStringLiteral("1.3"));
    QCOMPARE(e.card(), QStringLiteral("9"));
}

void tst_SerataRegistro::aRegisterWithoutCardsIsRefused()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.folder.write(QStringLiteral("natale.csv"), "%PDF-1.4\n");
    e.boxes.expectBox(title, QStringLiteral("Il registro non contiene schede."), QMessageBox::Ok, [](QMessageBox *box) {
        QCOMPARE(box->informativeText(),
                 QStringLiteral("Queste righe del registro non sono schede e sono state saltate:\n"
                                "Riga 1: all'inizio non vi sono numeri validi di pagina e di scheda."));
    });
    QVERIFY(!e.window->openRegister(e.folder.path(QStringLiteral("natale.csv"))));
    QVERIFY(e.isMarked(7));
    QCOMPARE(e.files(), (QStringList{evening, journal, QStringLiteral("natale.csv")}));
}

void tst_SerataRegistro::aRegisterThatCannotBeReadIsRefused()
{
    Evening e;
    QVERIFY(e.openSet());
    e.boxes.expectBox(title, QStringLiteral("Il registro non si può leggere."), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    QVERIFY(!e.window->openRegister(e.folder.path(QStringLiteral("missing.csv"))));
    e.call(7);
    QCOMPARE(e.saved(), (Numbers{7}));

    const QString folder = e.folder.path(QStringLiteral("closed"));
    const OrdinaryUser user(e.folder);
    e.folder.write(QStringLiteral("closed/natale.csv"), "1;1;|;7\n");
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare accanto al registro."), QMessageBox::Ok);
    QVERIFY(!e.window->openRegister(folder + QStringLiteral("/natale.csv")));
    QVERIFY(e.isMarked(7));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_SerataRegistro::aRegisterThatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a pipe") << QStringLiteral("pipe");
    QTest::newRow("a device without end") << QStringLiteral("/dev/zero");
}

void tst_SerataRegistro::aRegisterThatIsNoFileIsRefused()
{
    QFETCH(QString, path);
    Evening e;
    QCOMPARE(mkfifo("pipe", S_IRUSR | S_IWUSR), 0);
    QVERIFY(e.openSet());
    e.boxes.expectBox(title, QStringLiteral("Il registro non si può leggere."), QMessageBox::Ok,
                      [](QMessageBox *box) { QCOMPARE(box->informativeText(), QStringLiteral("Non è un file.")); });
    QVERIFY(!e.window->openRegister(path));
    e.call(7);
    QCOMPARE(e.saved(), (Numbers{7}));
}

void tst_SerataRegistro::aRegisterIsUsedAsFarAsItCanBeRead()
{
    Evening e;
    QVERIFY(e.openSet());
    const Cartella many(200, 6, 3, 9); // more than one read
    const QString path = e.folder.path(QStringLiteral("natale.csv"));
    QString reason;
    QVERIFY(Registro::save(path, many, reason));
    const auto open = [&e, &path](int call) {
        const FileFaults faults(path, FileFaults::Calls::Reads, call, FileFaults::Effect::Error);
        return e.window->openRegister(path);
    };
    const auto ioError = [](QMessageBox *box) {
        QCOMPARE(box->informativeText(), QStringLiteral("Input/output error"));
    };
    e.boxes.expectBox(title, QStringLiteral("Il registro non si può leggere."), QMessageBox::Ok, ioError);
    QVERIFY(!open(1));
    e.boxes.expectBox(title, QMessageBox::Ok, [&ioError](QMessageBox *box) {
        QVERIFY(box->text().startsWith(QStringLiteral("Il registro non si può leggere fino in fondo. Schede lette: ")));
        ioError(box);
    });
    QVERIFY(open(2));
    QVERIFY(e.status().startsWith(QStringLiteral("Schede: ")));
    QVERIFY(!e.status().startsWith(QStringLiteral("Schede: 1200.")));
}

void tst_SerataRegistro::theReportOfARegisterStandsBeforeItsWindow()
{
    Evening e;
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7\nx\n");
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openRegister(e.folder.path(QStringLiteral("natale.csv"))));
    QVERIFY(e.window->isVisible());
    QVERIFY(e.window->findChild<MsgArea *>()->isVisible());
}

void tst_SerataRegistro::theRegisterThatIsOpenStaysOpen()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.boxes.expectFileDialog(QStringLiteral("Apre un registro"), e.folder.path(evening));
    e.trigger("actionApriRegistro");
    QCOMPARE(e.status(), QStringLiteral("Questo registro è già aperto."));
    e.call(8);
    QCOMPARE(e.saved(), (Numbers{7, 8}));
}

void tst_SerataRegistro::aChangedRegisterAsksAboutItsCalls()
{
    Evening e;
    QVERIFY(e.openSet());
    const QString path = e.folder.path(QStringLiteral("natale.csv"));
    const QString question = QStringLiteral("In %1.chiamate c'è una serata con altre schede (numeri chiamati: 1).\n\n"
                                            "Continuare quella? Con No ne comincia una nuova, e quella viene messa "
                                            "da parte.")
                                 .arg(path);
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;9\n");
    QVERIFY(e.window->openRegister(path));
    e.call(7);
    QVERIFY(e.openAgain(*fourCards()));
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;8\n");

    e.boxes.expectBox(title, question, QMessageBox::Cancel);
    QVERIFY(!e.window->openRegister(path));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 0."));

    e.boxes.expectBox(title, question, QMessageBox::Yes);
    QVERIFY(e.window->openRegister(path));
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("1.1: manca il 8")));

    QVERIFY(e.openAgain(*fourCards()));
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;10\n");
    e.boxes.expectBox(title, question, QMessageBox::No);
    QVERIFY(e.window->openRegister(path));
    QVERIFY(!e.isMarked(7));
    QCOMPARE(e.files().filter(QStringLiteral("natale 2")).size(), 1); // the calls, with the time
    QCOMPARE(e.folder.read(QStringLiteral("natale.csv")), QByteArray("1;1;|;7;10\n"));
}

void tst_SerataRegistro::callsOfARegisterThatCannotBePutAsideStay()
{
    Evening e;
    const OrdinaryUser user(e.folder);
    QVERIFY(e.openSet());
    const QString path = e.folder.path(QStringLiteral("natale.csv"));
    e.folder.write(QStringLiteral("natale.csv"), "1;1;|;7;9\n");
    e.folder.write(QStringLiteral("natale.csv.chiamate"), "schede 1\nnumeri 1 90\n+7\n");
    const QString folder = e.folder.path(QString());
    e.boxes.expectBox(title, QMessageBox::No, [&](QMessageBox *) {
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    });
    e.boxes.expectBox(title, QStringLiteral("La serata di prima non si può mettere da parte."), QMessageBox::Ok,
                      QMessageBox::Critical);
    const bool opened = e.window->openRegister(path);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!opened);
    QCOMPARE(e.folder.read(QStringLiteral("natale.csv.chiamate")), QByteArray("schede 1\nnumeri 1 90\n+7\n"));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 0."));
}

QTEST_MAIN(tst_SerataRegistro)
#include "tst_SerataRegistro.moc"
