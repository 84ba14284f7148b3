// SPDX-License-Identifier: MIT
// Apart from the other tests of the window: a process that has shown file dialogs is not one to fork.
#include "msgarea/MsgArea.h"
#include "settings/WholeFile.h"
#include "support/BoxScript.h"
#include "support/FileFaults.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QTextEdit>
#include <QtTest>

namespace {
const QString name = QStringLiteral("a.txt");
const QByteArray before(3000, 'b');
const QByteArray after(5000, 'a');
} // namespace

class tst_TextFaults final : public QObject
{
    Q_OBJECT

private slots:
    void afterAnyFaultTheOldTextOrTheNewOneIsWhole_data();
    void afterAnyFaultTheOldTextOrTheNewOneIsWhole();
    void aTextThatBreaksOffIsNotShown();
};

void tst_TextFaults::afterAnyFaultTheOldTextOrTheNewOneIsWhole_data()
{
    QTest::addColumn<FileFaults::Effect>("effect");
    QTest::newRow("one error") << FileFaults::Effect::Error;
    QTest::newRow("lasting errors") << FileFaults::Effect::LastingError;
    QTest::newRow("killed") << FileFaults::Effect::Death;
}

void tst_TextFaults::afterAnyFaultTheOldTextOrTheNewOneIsWhole()
{
    QFETCH(FileFaults::Effect, effect);
    const ScratchFolder folder;
    const QString path = folder.path(name);
    const auto faultAt = [&](int call) {
        return std::make_unique<FileFaults>(path, FileFaults::Calls::Changes, call, effect);
    };
    bool reached = true;
    int call = 1;
    for (; reached; ++call) {
        folder.write(name, before);
        MsgArea area(nullptr, true);
        area.setText(path, true);
        area.findChild<QTextEdit *>()->setPlainText(QString::fromLatin1(after));
        const auto save = [&area](bool whole) {
            BoxScript boxes;
            boxes.expectBox(QStringLiteral("Salva"),
                            whole ? QStringLiteral("File salvato con successo.")
                                  : QStringLiteral("Errore nel salvataggio del file!"),
                            QMessageBox::Ok);
            area.findChild<QAction *>(QStringLiteral("actionSalva"))->trigger();
        };
        if (effect == FileFaults::Effect::Death) {
            const auto fault = faultAt(call);
            reached = isKilledDuring([&]() { save(true); });
        } else {
            bool whole = true; // after the same writing without a window
            {
                const auto fault = faultAt(call);
                whole = writeWhole(path, after) == Written::Whole;
                reached = FileFaults::seen() >= call;
            }
            folder.write(name, before);
            const auto fault = faultAt(call);
            save(whole);
        }
        const QByteArray found = folder.read(name);
        QVERIFY2(found == after || (reached && found == before), qPrintable(QString::number(call)));
    }
    QVERIFY(call > 4);
}

// Saving it would cut the file.
void tst_TextFaults::aTextThatBreaksOffIsNotShown()
{
    const ScratchFolder folder;
    folder.write(name, after);
    MsgArea area(nullptr, true);
    for (const int block : {0, 1, 2}) {
        const FileFaults fault(folder.path(name), FileFaults::Calls::ReadsOfBlocks, block,
                               FileFaults::Effect::LastingError);
        area.setText(folder.path(name), true);
        QCOMPARE(area.findChild<QTextEdit *>()->toPlainText(), block == 0 ? QString::fromLatin1(after) : QString());
    }
}

QTEST_MAIN(tst_TextFaults)
#include "tst_TextFaults.moc"
