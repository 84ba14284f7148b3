// SPDX-License-Identifier: MIT
#pragma once

#include "generation/GUtils.h"
#include "serata/CaselleDelegate.h"
#include "serata/MadeCards.h"
#include "serata/NuovaPartita.h"
#include "serata/Serata.h"
#include "serata/Tabellone.h"
#include "settings/Config.h"
#include "support/BoxScript.h"
#include "support/Find.h"
#include "support/ScratchFolder.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

// Numbers called, in order.
using Numbers = std::vector<quint32>;

// The files of the evening of a set, in the save folder: the register of its cards and the journal of its calls.
inline const QString evening = QStringLiteral("Serata in corso.csv");
inline const QString journal = QStringLiteral("Serata in corso.csv.chiamate");
// Of the window and of its boxes.
inline const QString title = QStringLiteral("Quintra - Serata");

// Two pages of two cards of two rows.
inline std::unique_ptr<Cartella> fourCards()
{
    auto set = std::make_unique<Cartella>(quint16(2), U8(2), U8(2), U8(3));
    const QStringList rows = {QStringLiteral("1 - 21"),  QStringLiteral("2 12 jolly"), QStringLiteral("3 * 23"),
                              QStringLiteral("- - 90"),  QStringLiteral("5 15 25"),    QStringLiteral("6 16 26"),
                              QStringLiteral("1 11 21"), QStringLiteral("- jolly *")};
    int row = 0;
    for (Pagina *pagina : set->pagine) {
        for (Blocco &blocco : *pagina) {
            blocco = blockOf(made({1, 1}, rows.mid(row, 2)));
            row += 2;
        }
    }
    return set;
}

// A window of an evening in a folder of its own, which is also the save folder. Its boxes are scripted, and what it
// draws is always the same. There is no window before one is opened.
class Evening final
{
public:
    Evening()
        : config((folder.writePicture(QStringLiteral("default.png"), QSize(8, 6), Qt::red), qApp))
    {
        config.defaultSaveDir = folder.path(QString());
        seedRandom(1);
    }
    ~Evening()
    {
        window.reset();
        QCOMPARE(boxes.problems(), QStringList());
    }
    Q_DISABLE_COPY_MOVE(Evening)

    // Shows a window with the evening of a set, in place of any other; true when it was opened and has the focus.
    bool openSet(const Cartella &set, Intervallo numbers = {1, 90})
    {
        window = std::make_unique<Serata>();
        const bool opened = window->openSet(set, numbers);
        window->show();
        return opened && QTest::qWaitForWindowActive(window.get());
    }
    bool openSet() { return openSet(*fourCards()); }
    // As above, but the window before is gone when this one opens.
    bool openAgain(const Cartella &set)
    {
        window.reset();
        return openSet(set);
    }

    // A widget or command of the window, which must have it.
    template<class Widget>
    Widget *find(const char *name) const
    {
        return findIn<Widget>(window.get(), name);
    }
    void press(const char *button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
    void trigger(const char *action) const { find<QAction>(action)->trigger(); }
    // In the place of what the field holds, and then Return.
    void type(const char *edit, const QString &text) const
    {
        auto *line = find<QLineEdit>(edit);
        line->clear();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    }
    void call(quint32 number) const { type("numero_edit", QString::number(number)); }
    void check(const QString &card) const { type("scheda_edit", card); }

    // What to do with the dialog of a new game, which comes next.
    static void onNewGame(const std::function<void(QDialog *)> &use)
    {
        QTimer::singleShot(0, [use]() {
            auto *dialog = qobject_cast<NuovaPartita *>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Quintra - Nuova partita"));
            use(dialog);
        });
    }

    Tabellone *board() const { return find<Tabellone>("tabellone"); }
    // Where a number stands on the board; not valid when it is not in play.
    QModelIndex place(quint32 number) const
    {
        const auto *model = board()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column) {
                const QModelIndex index = model->index(row, column);
                if (index.data().isValid() && index.data().toUInt() == number) {
                    return index;
                }
            }
        }
        return QModelIndex();
    }
    // On the board, where the number must be in sight.
    void click(quint32 number) const
    {
        QTest::mouseClick(board()->viewport(), Qt::LeftButton, {}, board()->visualRect(place(number)).center());
    }
    // Whether the board shows the number as called.
    bool isMarked(quint32 number) const { return place(number).data(CaselleDelegate::CalledRole).toBool(); }

    QString text(const char *label) const { return find<QLabel>(label)->text(); }
    QString status() const { return window->statusBar()->currentMessage(); }
    // The prizes of the card shown, line by line.
    QStringList prizes() const
    {
        QStringList lines;
        const auto *list = find<QListWidget>("vincite_list");
        for (int i = 0; i < list->count(); ++i) {
            lines << list->item(i)->text();
        }
        return lines;
    }
    // The lines of a list of cards, as far as they were fetched.
    QStringList entries(const char *view) const
    {
        QStringList lines;
        const auto *model = find<QListView>(view)->model();
        for (int i = 0; i < model->rowCount(); ++i) {
            lines << model->index(i, 0).data().toString();
        }
        return lines;
    }
    // The card shown, as "1* - 21 / 2 12* jolly": called numbers have a star.
    QString card() const
    {
        const auto *table = find<QTableWidget>("scheda_table");
        QStringList rows;
        for (int r = 0; r < table->rowCount(); ++r) {
            QStringList cells;
            for (int c = 0; c < table->columnCount(); ++c) {
                const QTableWidgetItem *item = table->item(r, c);
                const bool called = item->data(CaselleDelegate::CalledRole).toBool();
                cells << (item->text().isEmpty() ? QStringLiteral("-") : item->text()) +
                             (called ? QStringLiteral("*") : QString());
            }
            rows << cells.join(QLatin1Char(' '));
        }
        return rows.join(QStringLiteral(" / "));
    }
    // The numbers that a journal of the folder holds.
    Numbers saved(const QString &fileName = journal) const { return Diario::read(folder.path(fileName)).chiamate; }
    // The registers and journals of the folder.
    QStringList files() const { return QDir().entryList({QStringLiteral("*.csv*")}, QDir::Files, QDir::Name); }

    ScratchFolder folder;
    CurrentConfig config;
    BoxScript boxes;
    std::unique_ptr<Serata> window;
};
