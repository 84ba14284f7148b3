// SPDX-License-Identifier: MIT
#include "serata/Diario.h"

#include "serata/SharedCalls.h"
#include "support/FileFaults.h"
#include "support/OrdinaryUser.h"
#include "support/ResourceLimit.h"
#include "support/ScratchFolder.h"

#include <QTest>

#include <cerrno>
#include <sys/stat.h>

namespace {
using Numbers = std::vector<quint32>;
const QString name = QStringLiteral("natale.csv.chiamate");

// What a journal of this text tells, as "1-90: 34 7 (2)": the range, the calls, the lines that tell nothing.
QString courseOf(const Diario::Corso &corso)
{
    QString text = corso.numeri ? QStringLiteral("%1-%2:").arg(corso.numeri->da).arg(corso.numeri->a) : QString();
    for (const quint32 number : corso.chiamate) {
        text += QStringLiteral(" %1").arg(number);
    }
    return corso.righeSaltate > 0 ? text + QStringLiteral(" (%1)").arg(corso.righeSaltate) : text;
}

bool startsWith(const Numbers &numbers, const Numbers &begin)
{
    return numbers.size() >= begin.size() && std::equal(begin.begin(), begin.end(), numbers.begin());
}
} // namespace

class tst_Diario final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyStepIsALine();
    void theCourseIsReadBack_data();
    void theCourseIsReadBack();
    void aFileThatIsNotThereTellsNothing();
    void aJournalThatCannotBeReadIsToldOf_data();
    void aJournalThatCannotBeReadIsToldOf();
    void aJournalThatCannotBeReadStaysAsItIs();
    void aLineThatWasNotFinishedIsDropped();
    void anOldJournalIsReplaced();
    void anEveningGoesOnAfterItsLastLine();
    void aStepThatDoesNotReachTheDiskIsNoStep();
    void afterAFaultTheNextStepIsWhole();
    void aJournalThatCannotBeWrittenIsRefused();
    void aFullDiskIsToldOfByItsReason();
    void aFolderThatCannotBeReadTakesAJournal();
    void aJournalIsOpenInOneWindow();
    void whatWasConfirmedOutlivesTheProgram();

private:
    std::unique_ptr<ScratchFolder> m_folder;
};

void tst_Diario::init()
{
    m_folder = std::make_unique<ScratchFolder>();
}

void tst_Diario::cleanup()
{
    m_folder.reset();
}

void tst_Diario::everyStepIsALine()
{
    Diario diario(name);
    QVERIFY(diario.begin(0x53a7c9e201b4f688, {1, 90}));
    QCOMPARE(m_folder->read(name), QByteArray("schede 53a7c9e201b4f688\nnumeri 1 90\n"));
    QVERIFY(diario.addCall(34));
    QVERIFY(diario.addCall(0));
    QVERIFY(diario.addTakenBack(34));
    QVERIFY(diario.addGame({0, 999999}));
    QVERIFY(diario.addCards(1));
    QCOMPARE(m_folder->read(name), QByteArray("schede 53a7c9e201b4f688\nnumeri 1 90\n"
                                              "+34\n+0\n-34\nnumeri 0 999999\nschede 1\n"));
}

void tst_Diario::theCourseIsReadBack_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("course");
    const QByteArray game("schede 5\nnumeri 1 90\n");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("no game") << QByteArray("schede 5\n") << QString();
    QTest::newRow("no call") << game << QStringLiteral("1-90:");
    QTest::newRow("calls in their order") << game + "+34\n+7\n+90\n+1\n" << QStringLiteral("1-90: 34 7 90 1");
    QTest::newRow("taken back") << game + "+34\n+7\n-34\n+1\n" << QStringLiteral("1-90: 7 1");
    QTest::newRow("taken back and called again") << game + "+34\n+7\n-34\n+34\n" << QStringLiteral("1-90: 7 34");
    QTest::newRow("a new game") << game + "+34\nnumeri 1 75\n+7\n" << QStringLiteral("1-75: 7");
    QTest::newRow("other cards") << game + "+34\nschede 6\n+7\n" << QStringLiteral("1-90: 34 7");
    QTest::newRow("last line not finished") << game + "+34\n+7" << QStringLiteral("1-90: 34");
    QTest::newRow("null bytes at the end") << game + "+34\n" + QByteArray(9, '\0') << QStringLiteral("1-90: 34");
    QTest::newRow("called twice") << game + "+34\n+34\n" << QStringLiteral("1-90: 34 (1)");
    QTest::newRow("taken back uncalled") << game + "-34\n+7\n" << QStringLiteral("1-90: 7 (1)");
    QTest::newRow("outside the range") << game + "+0\n+91\n+7\n" << QStringLiteral("1-90: 7 (2)");
    QTest::newRow("calls without a game") << QByteArray("schede 5\n+34\n") << QStringLiteral(" (1)");
    QTest::newRow("other lines") << game + "\nx\n34\n++34\n+\n+3x\n+7\n" << QStringLiteral("1-90: 7 (6)");
    QTest::newRow("ranges that are none")
        << game + "numeri 9 1\nnumeri 1\nnumeri 1 2 3\nnumeri 1 1000000\nnumeri a b\n+7\n"
        << QStringLiteral("1-90: 7 (5)");
    QTest::newRow("prints that are none") << game + "schede\nschede xyz\nschede 11112222333344445\n"
                                          << QStringLiteral("1-90: (3)");
    QTest::newRow("another file") << QByteArray("%PDF-1.4\n\n") << QStringLiteral(" (2)");
}

void tst_Diario::theCourseIsReadBack()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, course);
    m_folder->write(name, text);
    QCOMPARE(courseOf(Diario::read(name)), course);
}

void tst_Diario::aFileThatIsNotThereTellsNothing()
{
    QCOMPARE(courseOf(Diario::read(name)), QString());
    QVERIFY(!Diario::read(name).numeri.has_value());
    m_folder->write(name, "schede ffffffffffffffff\n");
    QCOMPARE(Diario::read(name).impronta, ~quint64(0));
}

void tst_Diario::aJournalThatCannotBeReadIsToldOf_data()
{
    QTest::addColumn<int>("faultAt"); // read, 0 for none
    QTest::addColumn<QString>("leadsTo");
    QTest::newRow("a failing disk") << 1 << QString();
    QTest::newRow("a folder") << 0 << QStringLiteral(".");
    QTest::newRow("a pipe") << 0 << QStringLiteral("pipe");
    QTest::newRow("a device without end") << 0 << QStringLiteral("/dev/zero");
}

void tst_Diario::aJournalThatCannotBeReadIsToldOf()
{
    QFETCH(int, faultAt);
    QFETCH(QString, leadsTo);
    QCOMPARE(mkfifo("pipe", S_IRUSR | S_IWUSR), 0);
    if (leadsTo.isEmpty()) {
        m_folder->write(name, "schede 5\nnumeri 1 90\n+34\n");
        QCOMPARE(Diario::read(name).errore, QString());
    } else {
        QVERIFY(QFile::link(leadsTo, name));
    }
    const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Reads, faultAt, FileFaults::Effect::Error);
    const Diario::Corso corso = Diario::read(m_folder->path(name));
    QVERIFY(!corso.errore.isEmpty());
    QVERIFY(!corso.numeri && corso.chiamate.empty());
}

void tst_Diario::aJournalThatCannotBeReadStaysAsItIs()
{
    const QByteArray text = "schede 5\nnumeri 1 90\n" + QByteArray("+34\n-34\n").repeated(1000) + "+34\n";
    m_folder->write(name, text);
    Diario diario(m_folder->path(name));
    for (const int block : {1, 2}) {
        const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::ReadsOfBlocks, block,
                                FileFaults::Effect::LastingError);
        const QString reason = qt_error_string(EIO);
        QVERIFY(!diario.resume());
        QCOMPARE(diario.errorString(), reason);
        QCOMPARE(Diario::read(m_folder->path(name)).errore, reason);
    }
    QCOMPARE(m_folder->read(name), text);
    const auto corso = diario.resume();
    QVERIFY(corso && corso->chiamate == Numbers{34});
}

void tst_Diario::aLineThatWasNotFinishedIsDropped()
{
    const QByteArray begun("schede 5\nnumeri 1 90\n");
    const QByteArray whole = begun + "+34\n+7\n-34\n";
    const QStringList courses = {QStringLiteral("1-90:"), QStringLiteral("1-90: 34"), QStringLiteral("1-90: 34 7"),
                                 QStringLiteral("1-90: 7")};
    for (int length = begun.size(); length <= whole.size(); ++length) {
        const QByteArray cut = whole.left(length);
        const QString course = courses[cut.count('\n') - begun.count('\n')];
        m_folder->write(name, cut);
        QCOMPARE(courseOf(Diario::read(name)), course);
        Diario diario(name);
        QVERIFY(diario.resume());
        QVERIFY(diario.addCall(88));
        QCOMPARE(courseOf(Diario::read(name)), course + QStringLiteral(" 88"));
    }
}

void tst_Diario::anOldJournalIsReplaced()
{
    m_folder->write(name, "schede 4\nnumeri 1 90\n+34\n+35\n+36\n");
    Diario diario(name);
    QVERIFY(diario.begin(5, {1, 75}));
    QCOMPARE(m_folder->read(name), QByteArray("schede 5\nnumeri 1 75\n"));
    QVERIFY(diario.addCall(7));
    QVERIFY(diario.begin(6, {1, 90}));
    QCOMPARE(m_folder->read(name), QByteArray("schede 6\nnumeri 1 90\n"));
}

void tst_Diario::anEveningGoesOnAfterItsLastLine()
{
    {
        Diario diario(name);
        QVERIFY(diario.begin(5, {1, 90}));
        QVERIFY(diario.addCall(34));
    }
    Diario diario(name);
    QVERIFY(diario.resume());
    QVERIFY(diario.addCall(7));
    QCOMPARE(m_folder->read(name), QByteArray("schede 5\nnumeri 1 90\n+34\n+7\n"));
}

void tst_Diario::aStepThatDoesNotReachTheDiskIsNoStep()
{
    Diario diario(name);
    QVERIFY(diario.begin(5, {1, 90}));
    QVERIFY(diario.addCall(34));
    const QByteArray before = m_folder->read(name);
    int refused = 0;
    for (int call = 1; call <= 2; ++call) { // write and sync
        const FileFaults faults(m_folder->path(name), FileFaults::Calls::Changes, call, FileFaults::Effect::Error);
        QVERIFY(!diario.addCall(7));
        QVERIFY(!diario.errorString().isEmpty());
        QCOMPARE(m_folder->read(name), before);
        ++refused;
    }
    QCOMPARE(refused, 2);
    QVERIFY(diario.addCall(7));
    QCOMPARE(m_folder->read(name), before + "+7\n");
}

void tst_Diario::afterAFaultTheNextStepIsWhole()
{
    Diario diario(name);
    QVERIFY(diario.begin(5, {1, 90}));
    m_folder->write(name, m_folder->read(name) + "+3"); // as if nothing could be taken back
    QVERIFY(diario.addCall(7));
    QCOMPARE(courseOf(Diario::read(name)), QStringLiteral("1-90: 7"));
}

void tst_Diario::aJournalThatCannotBeWrittenIsRefused()
{
    Diario nowhere(QStringLiteral("missing/natale.csv.chiamate"));
    QVERIFY(!nowhere.begin(5, {1, 90}));
    QVERIFY(!nowhere.errorString().isEmpty());
    QVERIFY(!nowhere.resume());

    for (int call = 1; call <= 3; ++call) { // write, sync, and the folder's sync
        Diario diario(m_folder->path(name));
        const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Changes, call, FileFaults::Effect::Error);
        QVERIFY(!diario.begin(5, {1, 90}));
        QVERIFY(!diario.errorString().isEmpty());
    }
}

// A part of the line has room.
void tst_Diario::aFullDiskIsToldOfByItsReason()
{
    Diario diario(name);
    QVERIFY(diario.begin(5, {1, 90}));
    const QByteArray before = m_folder->read(name);
    {
        const ResourceLimit full(RLIMIT_FSIZE, static_cast<rlim_t>(before.size()) + 1);
        QVERIFY(!diario.addCall(34));
    }
    QCOMPARE(diario.errorString(), qt_error_string(EFBIG));
    QCOMPARE(m_folder->read(name), before);
}

void tst_Diario::aFolderThatCannotBeReadTakesAJournal()
{
    const OrdinaryUser user(*m_folder);
    const QString folder = m_folder->path(QString());
    QVERIFY(QFile::setPermissions(folder, QFile::WriteOwner | QFile::ExeOwner));
    Diario diario(m_folder->path(name));
    const bool begun = diario.begin(5, {1, 90}) && diario.addCall(34);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY2(begun, qPrintable(diario.errorString()));
    QCOMPARE(m_folder->read(name), QByteArray("schede 5\nnumeri 1 90\n+34\n"));
}

void tst_Diario::aJournalIsOpenInOneWindow()
{
    Diario first(name);
    QVERIFY(first.begin(5, {1, 90}));
    Diario second(name);
    QVERIFY(!second.resume());
    QCOMPARE(second.errorString(), QStringLiteral("La serata è già aperta in un'altra finestra."));
    QVERIFY(!second.begin(6, {1, 90}));
    QVERIFY(first.addCall(34));
    QCOMPARE(m_folder->read(name), QByteArray("schede 5\nnumeri 1 90\n+34\n"));
}

// Killed at every call to the system, a write then being half done.
void tst_Diario::whatWasConfirmedOutlivesTheProgram()
{
    const Numbers numbers{34, 7, 90, 1, 55};
    bool killed = true;
    for (int call = 1; killed; ++call) {
        m_folder = std::make_unique<ScratchFolder>();
        const QString path = m_folder->path(name);
        SharedCalls calls;
        killed = isKilledDuring([&]() {
            const FileFaults faults(m_folder->path(QString()), FileFaults::Calls::Changes, call,
                                    FileFaults::Effect::Death);
            Diario diario(path);
            bool good = diario.begin(5, {1, 90});
            for (const quint32 number : numbers) {
                good = good && diario.addCall(number);
                if (good) {
                    calls.show(number);
                }
            }
        });
        const Numbers found = Diario::read(path).chiamate;
        const Numbers shown = calls.shown();
        QVERIFY2(startsWith(found, shown) && startsWith(numbers, found), qPrintable(QString::number(call)));
        QVERIFY(found.size() <= shown.size() + 1);
        QVERIFY(killed || shown.size() == numbers.size());
        QVERIFY(killed || call > 12);
    }
}

QTEST_GUILESS_MAIN(tst_Diario)
#include "tst_Diario.moc"
