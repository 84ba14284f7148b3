// SPDX-License-Identifier: MIT
// Every file that is written or read, and everything that may be in its way, for an ordinary user.
#include "generation/CellImage.h"
#include "generation/GUtils.h"
#include "manuale/Manuale.h"
#include "msgarea/MsgArea.h"
#include "output/CreateOutputFile.h"
#include "output/SampleSets.h"
#include "personale/EditorUnderTest.h"
#include "serata/Diario.h"
#include "serata/Registro.h"
#include "serata/Serata.h"
#include "settings/MadeTranslations.h"
#include "support/LogCapture.h"
#include "support/Obstacle.h"
#include "support/OrdinaryUser.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QMainWindow>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTextEdit>
#include <QtTest>

namespace {
const QByteArray older = "what was there";
const QString editorTitle = QStringLiteral("Quintra - Mappatura manuale");

// A dialog for files does not let these names through.
bool passesDialogs(const Obstacle::Kind &kind)
{
    return kind.nameFor == nullptr || kind.onReading == Obstacle::Effect::None;
}

void addKinds(bool (*wanted)(const Obstacle::Kind &))
{
    QTest::addColumn<int>("kind");
    const std::vector<Obstacle::Kind> &all = Obstacle::kinds();
    for (size_t i = 0; i < all.size(); ++i) {
        if (wanted(all[i])) {
            QTest::newRow(all[i].name) << static_cast<int>(i);
        }
    }
}

const Obstacle::Kind &kindNow()
{
    QFETCH(int, kind);
    return Obstacle::kinds()[static_cast<size_t>(kind)];
}

QByteArray png()
{
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return buffer.data();
}

bool tellsWhy(const QString &reason)
{
    return !reason.isEmpty() && reason != QStringLiteral("Unknown error");
}

// Whether the thread of a dialog that lists its folder has started: without files to open that ends the program. It
// takes its name when it has what it needs.
bool hasListingStarted()
{
    const QDir tasks(QStringLiteral("/proc/self/task"));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile name(tasks.filePath(task + QStringLiteral("/comm")));
        if (name.open(QIODevice::ReadOnly) && name.readAll() == "QFileInfoGather\n") {
            return true;
        }
    }
    return false;
}

// Without an event of the dialog in the meantime.
bool waitForListing()
{
    constexpr int longest = 5000; // ms
    for (int waited = 0; waited < longest; ++waited) {
        if (hasListingStarted()) {
            return true;
        }
        QTest::qSleep(1);
    }
    return false;
}

// A window that asks for the manual, which lies in the folder of an obstacle.
class ManualBehindObstacle final
{
public:
    explicit ManualBehindObstacle(const ScratchFolder &folder)
        : obstacle(folder, kindNow(), QStringLiteral("manual_it.html"),
                   "<p>the manual</p><p><a name=\"far\"></a>far</p>")
    {
        QVERIFY(QFile::link(QStringLiteral("there"), QStringLiteral("manual")));
    }
    bool isReadable() const { return obstacle.onReading() == Obstacle::Effect::None; }
    QString status() const { return asker.statusBar()->currentMessage(); }
    // What the status bar says where the manual cannot be read.
    QString expectedStatus() const
    {
        return isReadable() ? QString() : QStringLiteral("Il manuale non è in %1/manual!").arg(QDir::currentPath());
    }
    QTextBrowser *text() const { return asker.findChild<QTextBrowser *>(); }
    bool isShown() const
    {
        return text() != nullptr && text()->isVisible() && text()->toPlainText() == QStringLiteral("the manual\nfar");
    }

    QMainWindow asker;
    Obstacle obstacle;
};

// Strikes when the user has chosen the file and nothing has been done with it yet.
std::function<void(QWidget *)> strikingWhenChosen(Obstacle &obstacle)
{
    return [&obstacle](QWidget *dialog) {
        QVERIFY(waitForListing());
        QObject::connect(qobject_cast<QFileDialog *>(dialog), &QFileDialog::fileSelected,
                         [&obstacle]() { obstacle.strike(); });
    };
}
} // namespace

class tst_Obstacles final : public QObject
{
    Q_OBJECT

private slots:
    void aSetIsPrinted_data();
    void aSetIsPrinted();
    void aRegisterIsSaved_data();
    void aRegisterIsSaved();
    void aMappingIsSaved_data();
    void aMappingIsSaved();
    void aTextIsSaved_data();
    void aTextIsSaved();
    void aRegisterIsOpened_data();
    void aRegisterIsOpened();
    void aMappingIsOpened_data();
    void aMappingIsOpened();
    void aTextIsShown_data();
    void aTextIsShown();
    void aPictureIsLoaded_data();
    void aPictureIsLoaded();
    void anEveningIsBegun_data();
    void anEveningIsBegun();
    void aJournalIsRead_data();
    void aJournalIsRead();
    void aTranslationIsLoaded_data();
    void aTranslationIsLoaded();
    void theManualIsOpened_data();
    void theManualIsOpened();
    void theOpenManualStays_data();
    void theOpenManualStays();
};

void tst_Obstacles::aSetIsPrinted_data()
{
    addKinds([](const Obstacle::Kind &) { return true; });
}

void tst_Obstacles::aMappingIsSaved_data()
{
    addKinds(passesDialogs);
}

void tst_Obstacles::aTextIsSaved_data()
{
    aSetIsPrinted_data();
}

void tst_Obstacles::aMappingIsOpened_data()
{
    addKinds(passesDialogs);
}

void tst_Obstacles::aTextIsShown_data()
{
    aSetIsPrinted_data();
}

void tst_Obstacles::aPictureIsLoaded_data()
{
    aSetIsPrinted_data();
}

void tst_Obstacles::aSetIsPrinted()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Config config(qApp);
    globalConfig = &config;
    Obstacle obstacle(folder, kindNow(), QStringLiteral("cards.pdf"), older);
    const auto set = SampleSets::classic(2);
    CreateOutputFile output;
    QString report;
    obstacle.strike();
    const int bytes = output.create(obstacle.path(), set.get(), report);
    obstacle.lift();
    globalConfig = nullptr;
    switch (obstacle.onWriting()) {
    case Obstacle::Effect::None:
        QVERIFY(bytes > 0);
        QVERIFY(folder.read(obstacle.path()).startsWith("%PDF-"));
        return;
    case Obstacle::Effect::Refused:
        QCOMPARE(report, QStringLiteral("Impossibile scrivere sul file!"));
        break;
    case Obstacle::Effect::Broken:
        QCOMPARE(report, QStringLiteral("Impossibile continuare a scrivere sul file!"));
        break;
    }
    QCOMPARE(bytes, -1);
    QVERIFY(obstacle.isContentKept());
}

void tst_Obstacles::aRegisterIsSaved_data()
{
    aSetIsPrinted_data();
}

void tst_Obstacles::aRegisterIsSaved()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Obstacle obstacle(folder, kindNow(), QStringLiteral("cards.csv"), older);
    const auto set = SampleSets::classic(2);
    QString reason;
    obstacle.strike();
    const bool saved = Registro::save(obstacle.path(), *set, reason);
    obstacle.lift();
    QCOMPARE(saved, obstacle.onWriting() == Obstacle::Effect::None);
    QCOMPARE(reason.isEmpty(), saved);
    QVERIFY(saved ? folder.read(obstacle.path()).startsWith("1;1;|;") : obstacle.isContentKept());
}

void tst_Obstacles::aMappingIsSaved()
{
    EditorUnderTest t(1, 1, 1);
    const OrdinaryUser user(t.folder);
    Obstacle obstacle(t.folder, kindNow(), QStringLiteral("a.QcF"), older);
    const QString caption = QStringLiteral("Salva le cartelle su file");
    const LogCapture log;
    t.boxes.expectFileDialog(caption, obstacle.path(), strikingWhenChosen(obstacle));
    t.boxes.expectBox(
        caption, QFileInfo(obstacle.path()).fileName() + QStringLiteral(" already exists.\nDo you want to replace it?"),
        QMessageBox::Yes);
    const bool broken = obstacle.onWriting() == Obstacle::Effect::Broken;
    if (broken) {
        const QString reason = QLatin1String(QTest::currentDataTag()) == QStringLiteral("full disk")
                                   ? QStringLiteral("File too large")
                                   : QStringLiteral("No space left on device");
        t.boxes.expectBox(editorTitle,
                          QStringLiteral("Errore nel salvataggio del file:\n%1\n\n%2").arg(obstacle.path(), reason),
                          QMessageBox::Ok);
    }
    t.trigger("actionSave");
    obstacle.lift();
    QVERIFY(t.editor->findChild<MsgArea *>() != nullptr); // the described report
    if (obstacle.onWriting() == Obstacle::Effect::None) {
        QCOMPARE(t.folder.read(obstacle.path()), QByteArray("!o\n"));
    } else {
        QVERIFY(obstacle.isContentKept());
    }
    QCOMPARE(log.warnings().join(QLatin1Char('\n')).contains(QStringLiteral("EditPersonale::writeMapping()")),
             obstacle.onWriting() == Obstacle::Effect::Refused);
}

void tst_Obstacles::aTextIsSaved()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Obstacle obstacle(folder, kindNow(), QStringLiteral("a.txt"), older);
    MsgArea area(nullptr, true);
    area.setText(obstacle.path(), true);
    area.findChild<QTextEdit *>()->setPlainText(QStringLiteral("changed"));
    const bool written = obstacle.onWriting() == Obstacle::Effect::None;
    BoxScript boxes;
    boxes.expectBox(QStringLiteral("Salva"),
                    written ? QStringLiteral("File salvato con successo.")
                            : QStringLiteral("Errore nel salvataggio del file!"),
                    QMessageBox::Ok, [&obstacle](QMessageBox *) { obstacle.lift(); });
    obstacle.strike();
    area.findChild<QAction *>(QStringLiteral("actionSalva"))->trigger();
    QVERIFY(written ? folder.read(obstacle.path()) == "changed" : obstacle.isContentKept());
}

void tst_Obstacles::aRegisterIsOpened_data()
{
    aSetIsPrinted_data();
}

// The calls are written beside the register.
void tst_Obstacles::aRegisterIsOpened()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    const CurrentConfig config(qApp);
    const QByteArray content = "1;1;|;7;9\n";
    Obstacle obstacle(folder, kindNow(), QStringLiteral("cards.csv"), content);
    const QString kind = QString::fromLatin1(QTest::currentDataTag());
    const bool opens = kind == QStringLiteral("nothing") || kind == QStringLiteral("read-only file");
    BoxScript boxes;
    if (!opens) {
        boxes.expectBox(QStringLiteral("Quintra - Serata"),
                        obstacle.onReading() == Obstacle::Effect::None
                            ? QStringLiteral("La serata non si può salvare accanto al registro.")
                            : QStringLiteral("Il registro non si può leggere."),
                        QMessageBox::Ok, [](QMessageBox *box) { QVERIFY(!box->informativeText().isEmpty()); });
    }
    Serata window;
    obstacle.strike();
    const bool opened = window.openRegister(obstacle.path());
    obstacle.lift();
    QCOMPARE(boxes.problems(), QStringList());
    QCOMPARE(opened, opens);
    QVERIFY(obstacle.isContentKept());
}

void tst_Obstacles::aMappingIsOpened()
{
    EditorUnderTest t(1, 2, 1);
    const OrdinaryUser user(t.folder);
    Obstacle obstacle(t.folder, kindNow(), QStringLiteral("a.QcF"), "!NNN\n!SSS\n");
    const LogCapture log;
    t.boxes.expectBox(
        QStringLiteral("Quintra"),
        QStringLiteral("Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?"),
        QMessageBox::Yes);
    t.boxes.expectFileDialog(QStringLiteral("Apre un file di cartelle"), obstacle.path(), strikingWhenChosen(obstacle));
    if (obstacle.onReading() == Obstacle::Effect::Broken) {
        t.boxes.expectBox(
            editorTitle,
            QStringLiteral("Errore nella lettura del file:\n%1\n\nInput/output error").arg(obstacle.path()),
            QMessageBox::Ok);
    }
    t.trigger("actionOpen");
    obstacle.lift();
    QCOMPARE(t.status(), QStringLiteral("Apertura completata!"));
    const bool read = obstacle.onReading() == Obstacle::Effect::None;
    QCOMPARE(t.find<QLCDNumber>("pageNumDisplay")->intValue(), read ? 2 : 0);
    QCOMPARE(t.drawn(), read ? QStringLiteral("NNN") : QString());
    QCOMPARE(t.find<QLabel>("senzaPagineLabel")->isVisible(), !read);
    QCOMPARE(log.warnings().join(QLatin1Char('\n')).contains(QStringLiteral("EditPersonale::readMapping()")),
             obstacle.onReading() == Obstacle::Effect::Refused);
}

void tst_Obstacles::aTextIsShown()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Obstacle obstacle(folder, kindNow(), QStringLiteral("a.txt"), older);
    MsgArea area(nullptr, true);
    obstacle.strike();
    area.setText(obstacle.path(), true);
    obstacle.lift();
    const bool read = obstacle.onReading() == Obstacle::Effect::None;
    QCOMPARE(area.findChild<QTextEdit *>()->toPlainText(), read ? QString::fromLatin1(older) : QString());
}

void tst_Obstacles::aPictureIsLoaded()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Obstacle obstacle(folder, kindNow(), QStringLiteral("a.png"), png());
    obstacle.strike();
    const QImage picture = loadCellImage(obstacle.path());
    obstacle.lift();
    QCOMPARE(picture.isNull(), obstacle.onReading() != Obstacle::Effect::None);
}

void tst_Obstacles::anEveningIsBegun_data()
{
    aSetIsPrinted_data();
}

void tst_Obstacles::anEveningIsBegun()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Obstacle obstacle(folder, kindNow(), QStringLiteral("a.chiamate"), QByteArray());
    obstacle.strike();
    Diario diario(obstacle.path());
    const bool begun = diario.begin(5, {1, 90});
    obstacle.lift();
    QCOMPARE(begun, obstacle.onWriting() == Obstacle::Effect::None);
    QVERIFY(begun || tellsWhy(diario.errorString()));
    QCOMPARE(Diario::read(obstacle.path()).numeri.has_value(), begun);
}

void tst_Obstacles::aJournalIsRead_data()
{
    aSetIsPrinted_data();
}

void tst_Obstacles::aJournalIsRead()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    Obstacle obstacle(folder, kindNow(), QStringLiteral("a.chiamate"), "schede 5\nnumeri 1 90\n+34\n");
    obstacle.strike();
    const Diario::Corso corso = Diario::read(obstacle.path());
    const bool seen = QFileInfo::exists(obstacle.path());
    obstacle.lift();
    const bool read = obstacle.onReading() == Obstacle::Effect::None;
    QCOMPARE(corso.chiamate.size(), size_t(read ? 1 : 0));
    QVERIFY(read || tellsWhy(corso.errore) || !seen);
}

void tst_Obstacles::aTranslationIsLoaded_data()
{
    addKinds([](const Obstacle::Kind &kind) { return kind.nameFor == nullptr; });
}

void tst_Obstacles::aTranslationIsLoaded()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    const QByteArray file = madeTranslation(
        {{QStringLiteral("FormatSelection"), QStringLiteral("Lingua di default"), QStringLiteral("translated")}});
    Obstacle obstacle(folder, kindNow(), QStringLiteral("Quintra_it_IT.qm"), file);
    QVERIFY(QFile::link(QStringLiteral("there"), QStringLiteral("language")));
    GUtils utils(qApp);
    obstacle.strike();
    utils.loadTranslations(QStringLiteral("it_IT"));
    obstacle.lift();
    const bool read = obstacle.onReading() == Obstacle::Effect::None;
    QCOMPARE(QCoreApplication::translate("FormatSelection", "Lingua di default"),
             read ? QStringLiteral("translated") : QStringLiteral("Lingua di default"));
}

void tst_Obstacles::theManualIsOpened_data()
{
    aTranslationIsLoaded_data();
}

void tst_Obstacles::theManualIsOpened()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    ManualBehindObstacle t(folder);
    t.obstacle.strike();
    Manuale::openFor(&t.asker);
    t.obstacle.lift();
    QCOMPARE(t.isShown(), t.isReadable());
    QCOMPARE(t.text() != nullptr, t.isReadable());
    QCOMPARE(t.status(), t.expectedStatus());
}

void tst_Obstacles::theOpenManualStays_data()
{
    theManualIsOpened_data();
}

void tst_Obstacles::theOpenManualStays()
{
    const ScratchFolder folder;
    const OrdinaryUser user(folder);
    ManualBehindObstacle t(folder);
    Manuale::openFor(&t.asker);
    QVERIFY(t.isShown());
    t.obstacle.strike();
    Manuale::openFor(&t.asker);
    QEvent otherColours(QEvent::PaletteChange);
    QCoreApplication::sendEvent(t.text()->window(), &otherColours);
    t.text()->setSource(QUrl(QStringLiteral("#far")));
    t.text()->backward();
    t.obstacle.lift();
    QVERIFY(t.isShown());
    QCOMPARE(t.status(), t.expectedStatus());
}

QTEST_MAIN(tst_Obstacles)
#include "tst_Obstacles.moc"
