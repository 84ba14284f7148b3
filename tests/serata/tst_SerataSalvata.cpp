// SPDX-License-Identifier: MIT
#include "serata/SerataSalvata.h"

#include "generation/GUtils.h"
#include "serata/MadeCards.h"
#include "serata/SharedCalls.h"
#include "support/FileFaults.h"
#include "support/OrdinaryUser.h"
#include "support/ScratchFolder.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {
using Numbers = std::vector<quint32>;
using Parte = SerataSalvata::Parte;
const QString registro = QStringLiteral("natale.csv");

std::vector<Scheda> cards()
{
    return {made({1, 1}, {QStringLiteral("5 - 7")}), made({1, 2}, {QStringLiteral("7 9 8")})};
}

std::vector<Scheda> otherCards()
{
    return {made({1, 1}, {QStringLiteral("5 - 6")})};
}

QStringList filesHere()
{
    return QDir().entryList(QDir::Files, QDir::Name);
}

// Goes on with the evening until all numbers are drawn; whoever looks at `calls` sees a number after its step.
void playOn(const QString &path, SharedCalls &calls)
{
    SerataSalvata serata(cards(), path);
    bool good = serata.isSameEvening() ? serata.resume() : serata.begin({1, 90});
    while (good && !serata.partita().notCalled().empty()) {
        const quint32 number = drawOneOf(serata.partita().notCalled());
        good = serata.toggle(number);
        if (good) {
            calls.show(number);
        }
    }
    _exit(good ? 0 : 1);
}
} // namespace

class tst_SerataSalvata final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anEveningWithoutAJournalBegins();
    void stepsAreInTheJournal();
    void anEveningGoesOnWhereItWas();
    void theSameCardsAreKnownAgain();
    void anEveningGoesOnWithChangedCards();
    void aJournalWithoutAGameGoesOnWithOne();
    void aNewEveningForgetsTheOneBefore();
    void aStepThatDoesNotReachTheDiskChangesNothing();
    void anEveningThatCannotGoOnChangesNothing();
    void anEveningIsOpenOnce();
    void whatCannotBePutAsideStays();
    void theFilesOfAnEveningArePutAside_data();
    void theFilesOfAnEveningArePutAside();
    void nothingToPutAsideIsNoFailure();
    void anEveningThatIsPlayedIsNotPutAside_data();
    void anEveningThatIsPlayedIsNotPutAside();
    void callsMadeMeanwhileAreThere();
    void aJournalThatCannotBeReadIsNotGoneOnWith();
    void aNameThatIsTakenIsNotOverwritten();
    void killedAtAnyMomentTheEveningGoesOn();

private:
    // Counts the players that were killed before all numbers of an evening were drawn.
    static void playUntilFinished(const QString &path, int &kills);

    std::unique_ptr<ScratchFolder> m_folder;
};

void tst_SerataSalvata::init()
{
    m_folder = std::make_unique<ScratchFolder>();
}

void tst_SerataSalvata::cleanup()
{
    m_folder.reset();
}

void tst_SerataSalvata::anEveningWithoutAJournalBegins()
{
    SerataSalvata serata(cards(), registro);
    QVERIFY(!serata.isSameEvening());
    QCOMPARE(serata.callsBefore(), size_t(0));
    QCOMPARE(serata.skippedLines(), 0);
    QCOMPARE(filesHere(), QStringList());
    QVERIFY(serata.begin({1, 90}));
    QCOMPARE(filesHere(), QStringList(QStringLiteral("natale.csv.chiamate")));
    QVERIFY(serata.partita().numeri() == (Intervallo{1, 90}));
    QCOMPARE(serata.partita().schede().size(), size_t(2));
}

void tst_SerataSalvata::stepsAreInTheJournal()
{
    SerataSalvata serata(cards(), registro);
    QVERIFY(serata.begin({1, 90}));
    QVERIFY(serata.toggle(7));
    QVERIFY(serata.toggle(88));
    QVERIFY(serata.toggle(7));
    QCOMPARE(serata.partita().chiamate(), (Numbers{88}));
    QVERIFY(serata.startGame({1, 75}));
    QCOMPARE(serata.partita().chiamate(), Numbers{});
    QVERIFY(serata.partita().numeri() == (Intervallo{1, 75}));
    QVERIFY(serata.toggle(75));
    const QByteArray lines = m_folder->read(SerataSalvata::diarioOf(registro));
    QVERIFY(lines.endsWith("\nnumeri 1 90\n+7\n+88\n-7\nnumeri 1 75\n+75\n"));
}

void tst_SerataSalvata::anEveningGoesOnWhereItWas()
{
    {
        SerataSalvata serata(cards(), registro);
        QVERIFY(serata.begin({1, 75}));
        QVERIFY(serata.toggle(7) && serata.toggle(8) && serata.toggle(9) && serata.toggle(8));
    }
    SerataSalvata serata(cards(), registro);
    QVERIFY(serata.isSameEvening());
    QCOMPARE(serata.callsBefore(), size_t(2));
    QVERIFY(serata.resume());
    QVERIFY(serata.partita().numeri() == (Intervallo{1, 75}));
    QCOMPARE(serata.partita().chiamate(), (Numbers{7, 9}));
    QCOMPARE(serata.partita().quasiTombole(), (Numbers{0, 1}));
    QVERIFY(serata.toggle(5));
    QCOMPARE(Diario::read(SerataSalvata::diarioOf(registro)).chiamate, (Numbers{7, 9, 5}));
}

void tst_SerataSalvata::theSameCardsAreKnownAgain()
{
    {
        SerataSalvata serata(cards(), registro);
        QVERIFY(serata.begin({1, 90}));
    }
    QVERIFY(SerataSalvata(cards(), registro).isSameEvening());
    std::vector<std::vector<Scheda>> changed(7, cards());
    changed[0].pop_back();
    changed[1][1].posizione = {2, 2};
    changed[2][0].righe[0][0].numero = 6;
    changed[3][0].righe[0][1].tipo = CELL_IMMAGINE;
    changed[4][0].righe[0].push_back({});
    changed[5][0].righe.insert(changed[5][0].righe.begin(), std::vector<Casella>());
    std::swap(changed[6][1].righe[0][0], changed[6][1].righe[0][1]);
    for (const auto &schede : changed) {
        QVERIFY(!SerataSalvata(schede, registro).isSameEvening());
    }
}

void tst_SerataSalvata::anEveningGoesOnWithChangedCards()
{
    {
        SerataSalvata serata(cards(), registro);
        QVERIFY(serata.begin({1, 90}) && serata.toggle(5));
    }
    {
        SerataSalvata serata(otherCards(), registro);
        QVERIFY(!serata.isSameEvening());
        QCOMPARE(serata.callsBefore(), size_t(1));
        QVERIFY(serata.resume());
        QCOMPARE(serata.partita().quasiTombole(), (Numbers{0}));
        QVERIFY(serata.toggle(6));
    }
    QVERIFY(SerataSalvata(otherCards(), registro).isSameEvening());
    QCOMPARE(SerataSalvata(otherCards(), registro).callsBefore(), size_t(2));
}

void tst_SerataSalvata::aJournalWithoutAGameGoesOnWithOne()
{
    m_folder->write(SerataSalvata::diarioOf(registro), "damaged\n+5\n");
    {
        SerataSalvata serata(cards(), registro);
        QVERIFY(!serata.isSameEvening());
        QCOMPARE(serata.skippedLines(), 2);
        QVERIFY(serata.resume());
        QVERIFY(serata.partita().numeri() == (Intervallo{5, 9}));
        QVERIFY(serata.toggle(7));
    }
    QVERIFY(SerataSalvata(cards(), registro).isSameEvening());
    QCOMPARE(SerataSalvata(cards(), registro).callsBefore(), size_t(1));
}

void tst_SerataSalvata::aNewEveningForgetsTheOneBefore()
{
    {
        SerataSalvata serata(cards(), registro);
        QVERIFY(serata.begin({1, 90}) && serata.toggle(5));
    }
    {
        SerataSalvata serata(cards(), registro);
        QVERIFY(serata.begin({1, 90}));
        QCOMPARE(serata.partita().chiamate(), Numbers{});
    }
    QCOMPARE(SerataSalvata(cards(), registro).callsBefore(), size_t(0));
}

void tst_SerataSalvata::aStepThatDoesNotReachTheDiskChangesNothing()
{
    SerataSalvata serata(cards(), m_folder->path(registro));
    QVERIFY(serata.begin({1, 90}) && serata.toggle(7));
    {
        const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Changes, 1,
                                FileFaults::Effect::LastingError);
        QVERIFY(!serata.toggle(5));
        QVERIFY(!serata.toggle(7));
        QVERIFY(!serata.startGame({1, 75}));
        QVERIFY(!serata.errorString().isEmpty());
    }
    QCOMPARE(serata.partita().chiamate(), (Numbers{7}));
    QCOMPARE(serata.partita().tombole(), Numbers{});
    QVERIFY(serata.partita().numeri() == (Intervallo{1, 90}));
    QVERIFY(serata.toggle(5));
    QCOMPARE(serata.partita().tombole(), (Numbers{0}));
}

// The journal is one of other cards and has no game: both lines are added first.
void tst_SerataSalvata::anEveningThatCannotGoOnChangesNothing()
{
    const QByteArray before("schede 1\n");
    m_folder->write(SerataSalvata::diarioOf(registro), before);
    const QString path = m_folder->path(registro);
    for (int call = 1; call <= 4; ++call) { // write and sync of either line
        SerataSalvata serata(cards(), path);
        const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Changes, call, FileFaults::Effect::Error);
        QVERIFY(!serata.resume());
        QVERIFY(!serata.errorString().isEmpty());
        QVERIFY(serata.partita().chiamate().empty());
        m_folder->write(SerataSalvata::diarioOf(registro), before);
    }
    SerataSalvata serata(cards(), path);
    QVERIFY(serata.resume());
    QVERIFY(SerataSalvata(cards(), path).isSameEvening());
}

void tst_SerataSalvata::anEveningIsOpenOnce()
{
    SerataSalvata first(cards(), registro);
    QVERIFY(first.begin({1, 90}));
    SerataSalvata second(cards(), registro);
    QVERIFY(!second.resume());
    QVERIFY(!second.begin({1, 90}));
    QVERIFY(!second.errorString().isEmpty());
}

void tst_SerataSalvata::whatCannotBePutAsideStays()
{
    const OrdinaryUser user(*m_folder);
    m_folder->write(registro, "cards");
    m_folder->write(SerataSalvata::diarioOf(registro), "calls");
    const QString folder = m_folder->path(QString());
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    const QString aside = SerataSalvata(cards(), m_folder->path(registro)).putAside(Parte::Tutto);
    const QString callsAside = SerataSalvata(cards(), m_folder->path(registro)).putAside(Parte::Chiamate);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(aside, QString());
    QCOMPARE(callsAside, QString());
    QCOMPARE(filesHere(), (QStringList{registro, SerataSalvata::diarioOf(registro)}));
}

void tst_SerataSalvata::theFilesOfAnEveningArePutAside_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("form");
    QTest::newRow("with a suffix") << QStringLiteral("natale.csv")
                                   << QStringLiteral("natale ....-..-.. ..\\...\\....csv");
    QTest::newRow("with two dots") << QStringLiteral("natale.1.csv")
                                   << QStringLiteral("natale\\.1 ....-..-.. ..\\...\\....csv");
    QTest::newRow("without a suffix") << QStringLiteral("natale") << QStringLiteral("natale ....-..-.. ..\\...\\...");
}

void tst_SerataSalvata::theFilesOfAnEveningArePutAside()
{
    QFETCH(QString, name);
    QFETCH(QString, form);
    m_folder->write(name, "cards");
    m_folder->write(SerataSalvata::diarioOf(name), "calls");
    const QString aside = SerataSalvata(cards(), m_folder->path(name)).putAside(Parte::Tutto);
    const QString asideName = QFileInfo(aside).fileName();
    QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(form)).match(asideName).hasMatch(),
             qPrintable(asideName));
    QCOMPARE(filesHere(), (QStringList{asideName, SerataSalvata::diarioOf(asideName)}));
    QCOMPARE(m_folder->read(asideName), QByteArray("cards"));
    QCOMPARE(m_folder->read(SerataSalvata::diarioOf(asideName)), QByteArray("calls"));
}

void tst_SerataSalvata::nothingToPutAsideIsNoFailure()
{
    QVERIFY(!SerataSalvata(cards(), m_folder->path(registro)).putAside(Parte::Tutto).isEmpty());
    QCOMPARE(filesHere(), QStringList());
}

void tst_SerataSalvata::anEveningThatIsPlayedIsNotPutAside_data()
{
    QTest::addColumn<bool>("registerToo");
    QTest::newRow("with its register") << true;
    QTest::newRow("its calls alone") << false;
}

void tst_SerataSalvata::anEveningThatIsPlayedIsNotPutAside()
{
    QFETCH(bool, registerToo);
    m_folder->write(registro, "cards");
    SerataSalvata played(cards(), registro);
    QVERIFY(played.begin({1, 90}) && played.toggle(7));
    const QStringList before = filesHere();
    SerataSalvata other(otherCards(), registro);
    QCOMPARE(other.putAside(registerToo ? Parte::Tutto : Parte::Chiamate), QString());
    QVERIFY(!other.errorString().isEmpty());
    QCOMPARE(filesHere(), before);
    QVERIFY(played.toggle(8));
    QCOMPARE(Diario::read(SerataSalvata::diarioOf(registro)).chiamate, (Numbers{7, 8}));
}

// Two windows looked at the journal before one of them went on.
void tst_SerataSalvata::callsMadeMeanwhileAreThere()
{
    auto first = std::make_unique<SerataSalvata>(cards(), registro);
    QVERIFY(first->begin({1, 90}) && first->toggle(7));
    SerataSalvata second(cards(), registro);
    QVERIFY(first->toggle(8));
    first.reset();
    QVERIFY(second.resume());
    QCOMPARE(second.partita().chiamate(), (Numbers{7, 8}));
}

void tst_SerataSalvata::aJournalThatCannotBeReadIsNotGoneOnWith()
{
    const QByteArray text("schede 5\nnumeri 1 90\n+34\n");
    m_folder->write(SerataSalvata::diarioOf(registro), text);
    {
        const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Reads, 1,
                                FileFaults::Effect::LastingError);
        SerataSalvata serata(cards(), m_folder->path(registro));
        QVERIFY(!serata.whyUnreadable().isEmpty());
        QVERIFY(!serata.resume());
        QVERIFY(!serata.errorString().isEmpty());
    }
    QCOMPARE(m_folder->read(SerataSalvata::diarioOf(registro)), text);
    QCOMPARE(SerataSalvata(cards(), registro).whyUnreadable(), QString());
}

void tst_SerataSalvata::aNameThatIsTakenIsNotOverwritten()
{
    m_folder->write(registro, "first");
    SerataSalvata serata(cards(), m_folder->path(registro));
    const QString first = serata.putAside(Parte::Tutto);
    m_folder->write(registro, "second");
    const QString second = serata.putAside(Parte::Tutto); // fails within the same second
    QCOMPARE(m_folder->read(QFileInfo(first).fileName()), QByteArray("first"));
    QCOMPARE(m_folder->read(second.isEmpty() ? registro : QFileInfo(second).fileName()), QByteArray("second"));
}

// Many programs one after the other, each killed while it plays: every number that one of them has shown is still
// called, in the same order, and at the end all are.
void tst_SerataSalvata::killedAtAnyMomentTheEveningGoesOn()
{
    int kills = 0;
    for (int evening = 1; kills < 4 && !QTest::currentTestFailed(); ++evening) { // a busy machine lets one finish
        playUntilFinished(m_folder->path(QString::number(evening) + registro), kills);
    }
}

void tst_SerataSalvata::playUntilFinished(const QString &path, int &kills)
{
    SharedCalls calls;
    const int killsBefore = kills;
    bool finished = false;
    for (useconds_t life = 200; !finished; life += 150) {
        const pid_t player = fork();
        if (player == 0) {
            seedRandom(life);
            playOn(path, calls);
        }
        usleep(life);
        kill(player, SIGKILL);
        int state = 0;
        waitpid(player, &state, 0);
        finished = WIFEXITED(state) && WEXITSTATUS(state) == 0;
        kills += WIFSIGNALED(state) ? 1 : 0;
        QVERIFY(finished || WIFSIGNALED(state));

        const Numbers found = Diario::read(SerataSalvata::diarioOf(path)).chiamate;
        const Numbers shown = calls.shown();
        QVERIFY(containsInOrder(found, shown)); // some numbers reached the disk and no eye
        QVERIFY(found.size() <= shown.size() + size_t(kills - killsBefore));
    }
    QCOMPARE(Diario::read(SerataSalvata::diarioOf(path)).chiamate.size(), size_t(90));
}

QTEST_GUILESS_MAIN(tst_SerataSalvata)
#include "tst_SerataSalvata.moc"
