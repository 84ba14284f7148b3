// SPDX-License-Identifier: MIT
// Windows of an evening open: on a new one, on one that goes on, or not at all.
#include "serata/Serata.h"

#include "generation/GUtils.h"
#include "serata/Evening.h"
#include "serata/Registro.h"
#include "serata/SharedCalls.h"
#include "support/FileFaults.h"
#include "support/OrdinaryUser.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QtTest>

#include <cstdio>

namespace {
// The question about the evening that is saved, of which one number was called.
void expectOtherCards(Evening &e, QMessageBox::StandardButton answer)
{
    e.boxes.expectBox(title,
                      QStringLiteral("In %1 c'è una serata con altre schede (numeri chiamati: 1).\n\nContinuare "
                                     "quella? Con No ne comincia una nuova, e quella viene messa da parte.")
                          .arg(e.folder.path(journal)),
                      answer);
}
} // namespace

class tst_SerataApertura final : public QObject
{
    Q_OBJECT

private slots:
    void theEveningOfASetIsSavedInTheSaveFolder();
    void theEveningGoesOnWhereItWas();
    void callsThatCannotBeReadAreToldOf();
    void aJournalThatCannotBeReadIsLeftAlone_data();
    void aJournalThatCannotBeReadIsLeftAlone();
    void aJournalWithoutAGameIsPutAside_data();
    void aJournalWithoutAGameIsPutAside();
    void theRegisterOfTheEveningIsThereAgain_data();
    void theRegisterOfTheEveningIsThereAgain();
    void withoutItsRegisterNoEveningGoesOn();
    void aSetThatDoesNotFitTheMemoryIsAskedAbout();
    void theRangeIsThatOfTheParametersAndOfTheCards();
    void anEveningOfOtherCardsGoesOnIfWanted();
    void anEveningOfOtherCardsIsPutAsideIfNotWanted();
    void anEveningThatCannotBePutAsideIsLeftAlone();
    void anEveningOfOtherCardsIsLeftAloneWithoutAnAnswer();
    void anEveningThatIsPlayedElsewhereIsNotPutAside();
    void withoutASetTheLastEveningGoesOn();
    void withoutASetAndAnEveningTheBoardIsThere();
    void aFolderThatTakesNothingIsReplacedByAnother();
    void withoutAFolderNoWindowOpens();
    void withoutARegisterNoWindowOpens();
    void boxesStandBeforeWindowsThatAreShown();
    void anEveningIsOpenInOneWindowOfTheComputer();
    void theWindowThatIsOpenIsShownAgain();
    void killedAtAnyMomentTheEveningGoesOn();
};

void tst_SerataApertura::theEveningOfASetIsSavedInTheSaveFolder()
{
    Evening e;
    const auto set = fourCards();
    QVERIFY(e.openSet(*set));
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    QFile file(evening);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(Registro::read(file).schede == schedeOf(*set));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 0."));
}

void tst_SerataApertura::theEveningGoesOnWhereItWas()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.call(1);
    e.call(7);
    e.call(21);
    QVERIFY(e.openAgain(*fourCards()));
    QCOMPARE(e.text("ultimo_label"), QStringLiteral("21"));
    QCOMPARE(e.text("precedenti_label"), QStringLiteral("1"));
    QVERIFY(e.isMarked(1) && e.isMarked(21) && !e.isMarked(7));
    QCOMPARE(e.entries("quasi_view"), QStringList(QStringLiteral("2.2: manca il 11")));
    QCOMPARE(e.status(), QStringLiteral("Schede: 4. Numeri da 1 a 90. Chiamati: 2."));
    e.call(11);
    QCOMPARE(e.saved(), (Numbers{1, 21, 11}));
}

void tst_SerataApertura::callsThatCannotBeReadAreToldOf()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.folder.write(journal, e.folder.read(journal) + "+8\nx\n+8\n+9");
    QVERIFY(e.openAgain(*fourCards()));
    QCOMPARE(e.status(), QStringLiteral("Righe illeggibili nel file delle chiamate: 2!"));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 2 di 90"));
    QVERIFY(e.isMarked(7) && e.isMarked(8) && !e.isMarked(9));
}

void tst_SerataApertura::aJournalThatCannotBeReadIsLeftAlone_data()
{
    QTest::addColumn<bool>("ofARegister");
    QTest::newRow("of a set") << false;
    QTest::newRow("of a register") << true;
}

void tst_SerataApertura::aJournalThatCannotBeReadIsLeftAlone()
{
    QFETCH(bool, ofARegister);
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray calls = e.folder.read(journal);
    e.window = std::make_unique<Serata>();
    e.boxes.expectBox(title, QStringLiteral("Il file delle chiamate non si può leggere."), QMessageBox::Ok,
                      [](QMessageBox *box) { QCOMPARE(box->informativeText(), QStringLiteral("Input/output error")); });
    {
        const FileFaults faults(e.folder.path(journal), FileFaults::Calls::Reads, 1, FileFaults::Effect::Error);
        QVERIFY(
            !(ofARegister ? e.window->openRegister(e.folder.path(evening)) : e.window->openSet(*fourCards(), {1, 90})));
    }
    QCOMPARE(e.folder.read(journal), calls);
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    QVERIFY(e.openAgain(*fourCards()));
    QVERIFY(e.isMarked(7));
}

void tst_SerataApertura::aJournalWithoutAGameIsPutAside_data()
{
    aJournalThatCannotBeReadIsLeftAlone_data();
}

void tst_SerataApertura::aJournalWithoutAGameIsPutAside()
{
    QFETCH(bool, ofARegister);
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.window = std::make_unique<Serata>();
    const QByteArray calls = e.folder.read(journal).replace("numeri 1", "numeri l");
    e.folder.write(journal, calls);
    e.boxes.expectBox(title, QMessageBox::Ok, [](QMessageBox *box) {
        const QStringList lines = box->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.first(), QStringLiteral("Le chiamate di prima sono illeggibili e sono state messe da parte:"));
        QVERIFY(QFile::exists(lines.last()));
    });
    QVERIFY(ofARegister ? e.window->openRegister(e.folder.path(evening)) : e.window->openSet(*fourCards(), {1, 90}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 90"));
    const QStringList aside = QDir().entryList({QStringLiteral("Serata in corso 20*.csv.chiamate")}, QDir::Files);
    QCOMPARE(aside.size(), 1);
    QCOMPARE(e.folder.read(aside.first()), calls);
}

void tst_SerataApertura::theRegisterOfTheEveningIsThereAgain_data()
{
    QTest::addColumn<QByteArray>("content"); // null: it was deleted
    QTest::newRow("deleted") << QByteArray();
    QTest::newRow("emptied") << QByteArray("");
    QTest::newRow("changed") << QByteArray("1;1;|;77\n");
}

void tst_SerataApertura::theRegisterOfTheEveningIsThereAgain()
{
    QFETCH(QByteArray, content);
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray cards = e.folder.read(evening);
    if (content.isNull()) {
        QVERIFY(QFile::remove(evening));
    } else {
        e.folder.write(evening, content);
    }
    QVERIFY(e.openAgain(*fourCards()));
    QVERIFY(e.isMarked(7));
    QCOMPARE(e.folder.read(evening), cards);
}

void tst_SerataApertura::withoutItsRegisterNoEveningGoesOn()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.window = std::make_unique<Serata>();
    QVERIFY(QFile::remove(evening));
    e.boxes.expectBox(title, QStringLiteral("La serata non può continuare."), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    {
        const FileFaults faults(e.folder.path(QString()), FileFaults::Calls::Changes, 1,
                                FileFaults::Effect::LastingError);
        QVERIFY(!e.window->openSet(*fourCards(), {1, 90}));
    }
    QCOMPARE(e.saved(), (Numbers{7}));
}

void tst_SerataApertura::aSetThatDoesNotFitTheMemoryIsAskedAbout()
{
    Evening e;
    Cartella set(1, 255, 255, 1);
    for (Blocco &blocco : *set.pagine[0]) {
        for (Riga &riga : blocco) {
            riga.nCelle = 255; // which nobody looks at
        }
    }
    set.pagine.fill(set.pagine[0], 3000);
    e.window = std::make_unique<Serata>();
    e.boxes.expectBox(title, QMessageBox::No, [](QMessageBox *box) {
        QVERIFY(box->text().startsWith(QStringLiteral("La memoria libera potrebbe non bastare")));
    });
    QVERIFY(!e.window->openSet(set, {1, 90}));
    QCOMPARE(e.files(), QStringList());
    set.pagine.resize(1);
}

void tst_SerataApertura::theRangeIsThatOfTheParametersAndOfTheCards()
{
    Evening e;
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openSet(*fourCards(), {10, 50}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 90"));
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openSet(*fourCards(), {0, 100}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 101"));
    e.window = std::make_unique<Serata>();
    QVERIFY(e.window->openSet(Cartella(), {1, 75}));
    QCOMPARE(e.text("chiamate_label"), QStringLiteral("Numeri chiamati: 0 di 75"));
    e.window.reset();
    QWidget parent;
    Serata::open(&parent, Cartella(), 75, 1); // parameters that contradict each other
    QCOMPARE(parent.findChild<QLabel *>(QStringLiteral("chiamate_label"))->text(),
             QStringLiteral("Numeri chiamati: 0 di 75"));
}

void tst_SerataApertura::anEveningOfOtherCardsGoesOnIfWanted()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const Cartella other(1, 1, 3, 9);
    expectOtherCards(e, QMessageBox::Yes);
    QVERIFY(e.openAgain(other));
    QVERIFY(e.isMarked(7));
    e.check(QStringLiteral("2.2"));
    QCOMPARE(e.card(), QStringLiteral("1 11 21 / - jolly immagine"));
    QCOMPARE(e.files(), (QStringList{evening, journal}));
}

void tst_SerataApertura::anEveningOfOtherCardsIsPutAsideIfNotWanted()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray cards = e.folder.read(evening);
    const QByteArray calls = e.folder.read(journal);
    const Cartella other(1, 1, 3, 9);
    expectOtherCards(e, QMessageBox::No);
    QVERIFY(e.openAgain(other));
    QVERIFY(!e.isMarked(7));
    QCOMPARE(e.saved(), Numbers{});
    const QStringList files = e.files();
    QCOMPARE(files.size(), 4);
    QCOMPARE(e.folder.read(files[0]), cards);
    QCOMPARE(e.folder.read(files[1]), calls);
    QCOMPARE(files.mid(2), (QStringList{evening, journal}));
    QVERIFY(e.window->openRegister(e.folder.path(files[0])));
    QVERIFY(e.isMarked(7));
}

void tst_SerataApertura::anEveningThatCannotBePutAsideIsLeftAlone()
{
    Evening e;
    const OrdinaryUser user(e.folder);
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray calls = e.folder.read(journal);
    const QString folder = e.folder.path(QString());
    e.boxes.expectBox(title, QMessageBox::No, [&](QMessageBox *) {
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    });
    e.boxes.expectBox(title, QStringLiteral("La serata di prima non si può mettere da parte."), QMessageBox::Ok,
                      QMessageBox::Critical);
    const bool opened = e.openAgain(Cartella(1, 1, 3, 9));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(!opened);
    QCOMPARE(e.folder.read(journal), calls);
    QCOMPARE(e.files(), (QStringList{evening, journal}));
}

void tst_SerataApertura::anEveningOfOtherCardsIsLeftAloneWithoutAnAnswer()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray calls = e.folder.read(journal);
    const Cartella other(1, 1, 3, 9);
    expectOtherCards(e, QMessageBox::Escape);
    QVERIFY(!e.openAgain(other));
    QCOMPARE(e.folder.read(journal), calls);
    QCOMPARE(e.files(), (QStringList{evening, journal}));
}

void tst_SerataApertura::anEveningThatIsPlayedElsewhereIsNotPutAside()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.boxes.expectBox(title, QMessageBox::No, [](QMessageBox *) {});
    e.boxes.expectBox(title, QStringLiteral("La serata di prima non si può mettere da parte."), QMessageBox::Ok,
                      [](QMessageBox *box) {
                          QCOMPARE(box->informativeText(),
                                   QStringLiteral("La serata è già aperta in un'altra finestra."));
                      });
    Serata other;
    QVERIFY(!other.openSet(Cartella(1, 1, 3, 9), {1, 90}));
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    e.call(8);
    QCOMPARE(e.saved(), (Numbers{7, 8}));
}

void tst_SerataApertura::withoutASetTheLastEveningGoesOn()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    QVERIFY(e.openAgain(Cartella()));
    QVERIFY(e.isMarked(7));
    e.check(QStringLiteral("2.1"));
    QCOMPARE(e.card(), QStringLiteral("5 15 25 / 6 16 26"));
}

void tst_SerataApertura::withoutASetAndAnEveningTheBoardIsThere()
{
    Evening e;
    QVERIFY(e.openSet(Cartella()));
    e.call(7);
    QVERIFY(e.isMarked(7));
    e.check(QStringLiteral("1.1"));
    QCOMPARE(e.status(), QStringLiteral("La scheda 1.1 non esiste!"));
    QVERIFY(e.openAgain(Cartella()));
    QVERIFY(e.isMarked(7));
}

void tst_SerataApertura::aFolderThatTakesNothingIsReplacedByAnother()
{
    Evening e;
    const QString missing = e.folder.path(QStringLiteral("missing"));
    e.config.defaultSaveDir = missing;
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(missing), QMessageBox::Ok,
                      [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), e.folder.path(QString()));
    QVERIFY(e.openSet());
    QCOMPARE(e.files(), (QStringList{evening, journal}));
    QCOMPARE(QDir(e.config.defaultSaveDir), QDir(e.folder.path(QString())));
}

void tst_SerataApertura::withoutAFolderNoWindowOpens()
{
    Evening e;
    e.config.defaultSaveDir = e.folder.path(QStringLiteral("missing"));
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(e.config.defaultSaveDir),
                      QMessageBox::Ok);
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString());
    QWidget parent;
    Serata::open(&parent, *fourCards(), 1, 90);
    QVERIFY(parent.findChild<Serata *>() == nullptr);
}

void tst_SerataApertura::withoutARegisterNoWindowOpens()
{
    Evening e;
    QVERIFY(QDir().mkdir(e.folder.path(evening)));
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(e.config.defaultSaveDir),
                      QMessageBox::Ok, [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString());
    QVERIFY(!e.openSet());
    QVERIFY(QFileInfo(e.folder.path(evening)).isDir());
}

void tst_SerataApertura::boxesStandBeforeWindowsThatAreShown()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    e.window.reset();
    QWidget parent;
    const auto standsBefore = [](const QWidget *window) {
        return [window](QMessageBox *box) { QCOMPARE(box->parentWidget(), window); };
    };
    e.boxes.expectBox(title, QMessageBox::Escape, standsBefore(&parent)); // about the other cards
    Serata::open(&parent, Cartella(1, 1, 3, 9), 1, 90);
    e.config.defaultSaveDir = e.folder.path(QStringLiteral("missing"));
    e.boxes.expectBox(title, QMessageBox::Ok, standsBefore(&parent)); // nothing can be saved
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString(),
                             [&parent](QWidget *dialog) { QCOMPARE(dialog->parentWidget(), &parent); });
    Serata::open(&parent, *fourCards(), 1, 90);
    e.config.defaultSaveDir = e.folder.path(QString());
    Serata::open(&parent, *fourCards(), 1, 90);
    auto *window = parent.findChild<Serata *>();
    e.boxes.expectBox(title, QMessageBox::Ok, standsBefore(window)); // it is shown now
    QVERIFY(!window->openRegister(QStringLiteral("missing.csv")));
}

void tst_SerataApertura::anEveningIsOpenInOneWindowOfTheComputer()
{
    Evening e;
    QVERIFY(e.openSet());
    e.call(7);
    const QByteArray cards = e.folder.read(evening);
    e.boxes.expectBox(title, QStringLiteral("La serata non può continuare."), QMessageBox::Ok, [](QMessageBox *box) {
        QCOMPARE(box->informativeText(), QStringLiteral("La serata è già aperta in un'altra finestra."));
    });
    QWidget parent;
    Serata::open(&parent, *fourCards(), 1, 90);
    QVERIFY(parent.findChild<Serata *>() == nullptr);

    e.call(7); // now it has no calls, but is still in use
    e.boxes.expectBox(title, QStringLiteral("La serata non si può salvare in %1.").arg(e.config.defaultSaveDir),
                      QMessageBox::Ok);
    e.boxes.expectFileDialog(QStringLiteral("Dove salvare la serata"), QString());
    Serata::open(&parent, Cartella(1, 1, 1), 1, 90);
    QVERIFY(parent.findChild<Serata *>() == nullptr);
    QCOMPARE(e.folder.read(evening), cards);
    e.call(8);
    QCOMPARE(e.saved(), (Numbers{8}));
}

void tst_SerataApertura::theWindowThatIsOpenIsShownAgain()
{
    Evening e;
    QWidget parent;
    Serata::open(&parent, *fourCards(), 1, 90);
    QPointer<Serata> window = parent.findChild<Serata *>();
    QVERIFY(window != nullptr && window->isVisible());
    window->hide();
    Serata::open(&parent, Cartella(1, 1, 1), 1, 90);
    QCOMPARE(parent.findChildren<Serata *>().size(), 1);
    QVERIFY(window->isVisible());
    window->close();
    QTRY_VERIFY(window.isNull());
}

// The program itself, with its window, killed while numbers are drawn: what was shown is still called.
void tst_SerataApertura::killedAtAnyMomentTheEveningGoesOn()
{
    Evening e;
    Numbers shown;
    int kills = 0;
    for (int life = 1; e.saved().size() < 90; ++life) { // each shows one number at least
        QProcess player;
        player.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--play")});
        QVERIFY(player.waitForReadyRead());
        QTest::qSleep(life);
        player.kill();
        player.waitForFinished();
        QList<QByteArray> lines = player.readAllStandardOutput().split('\n');
        lines.removeLast();
        for (const QByteArray &line : qAsConst(lines)) {
            shown.push_back(line.toUInt());
        }
        kills += player.exitStatus() == QProcess::CrashExit ? 1 : 0;
        const Numbers found = e.saved();
        QVERIFY(containsInOrder(found, shown)); // some numbers reached the disk and no eye
        QVERIFY(found.size() <= shown.size() + size_t(kills));
    }
    QVERIFY(kills > 0);
    QVERIFY(e.openSet());
    QCOMPARE(e.text("ultimo_label").toUInt(), e.saved().back());
}

namespace {
// The child of the last test: draws in the current folder and writes what the window shows.
int play()
{
    CurrentConfig config(qApp);
    config.defaultSaveDir = QDir::currentPath();
    seedRandom(unsigned(QCoreApplication::applicationPid()));
    Serata window;
    if (!window.openSet(*fourCards(), {1, 90})) {
        return 1;
    }
    window.show();
    auto *button = window.findChild<QPushButton *>(QStringLiteral("estrai_button"));
    const auto *last = window.findChild<QLabel *>(QStringLiteral("ultimo_label"));
    const auto *calls = window.findChild<QLabel *>(QStringLiteral("chiamate_label"));
    while (calls->text() != QLatin1String("Numeri chiamati: 90 di 90")) {
        QTest::mouseClick(button, Qt::LeftButton);
        std::printf("%s\n", qPrintable(last->text()));
        std::fflush(stdout);
    }
    return 0;
}
} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--play"))) {
        return play();
    }
    tst_SerataApertura test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SerataApertura.moc"
