// SPDX-License-Identifier: MIT
#pragma once

#include "serata/SerataSalvata.h"

#include <QMainWindow>

#include <memory>

class ElencoSchede;
class QFile;

namespace Registro {
struct Lettura;
}

namespace Ui {
class Serata;
}

// The window of an evening: the board on which numbers are called, the check of a card, and the cards that have won or
// nearly. It has cards of its own, so that what happens to the set from which it was opened changes nothing in it; what
// it shows is on the disk before.
class Serata final : public QMainWindow
{
    Q_OBJECT

public:
    // Shows the evening of a set with the numbers from `da` to `a`, in a window over `parent` that goes when it is
    // closed. Where one is open already it is shown as it is. No window opens when the evening cannot be saved.
    static void open(QWidget *parent, const Cartella &cartella, quint32 da, quint32 a);

    explicit Serata(QWidget *parent = nullptr);
    ~Serata() override;

    // Opens the evening of a set, or of the register in a file: where it was, if it is not new. False, and nothing
    // shown has changed, when the user or the disk does not let it.
    bool openSet(const Cartella &cartella, Intervallo numeri);
    bool openRegister(const QString &fileName);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    // Construction.
    void setupCommands();
    void setupBoard();
    void setupLists();
    void catchDigits();

    // What is to become of the evening of which a journal tells.
    enum class EveningBefore { None, GoesOn, PutAside, Unclear };

    // Opening. What returns false has told the user why.
    EveningBefore decideOn(const SerataSalvata &serata);
    EveningBefore askAbout(const SerataSalvata &serata);
    bool putAside(SerataSalvata &serata, SerataSalvata::Parte parte);
    bool beginSet(const Cartella &cartella, std::unique_ptr<SerataSalvata> serata, Intervallo numeri);
    bool beginElsewhere(const Cartella &cartella, Intervallo numeri, const QString &reason);
    bool requireRegister(const QString &fileName, const Cartella &cartella);
    bool requireCards(const Registro::Lettura &reading, const QFile &file);
    bool openEvening(std::unique_ptr<SerataSalvata> serata);
    bool goOn(std::unique_ptr<SerataSalvata> serata);
    void adopt(std::unique_ptr<SerataSalvata> serata);
    void tellOfSkippedLines(const QString &description);
    QWidget *boxParent();
    bool refuse(const QString &text, const QString &reason);

    // Commands.
    void chooseRegister();
    void startGame();
    void toggle(quint32 numero);
    void draw();
    bool beginNumber(const QKeyEvent &key);
    void takeTypedNumber();
    void takeTypedCard();
    void check(const QString &text);
    void showWholeScreen(bool whole);

    // What is shown.
    void refresh();
    void showCalls();
    void showLists();
    void showCard();
    void say(const QString &text);

    std::unique_ptr<Ui::Serata> ui;
    std::unique_ptr<SerataSalvata> m_serata; // none until one was opened
    ElencoSchede *m_tombole;                 // child
    ElencoSchede *m_quasiTombole;            // child
    std::optional<size_t> m_scheda;          // the card shown
};
