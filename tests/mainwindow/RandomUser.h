// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <random>
#include <set>
#include <vector>

class MainWindow;
class QFileDialog;
class QMessageBox;
class QSpinBox;
class QTableWidget;
class QWidget;

// Uses whatever stands in the main window and in those that it opens, and answers every dialog. Chance decides, the
// same for the same seed in every process.
class RandomUser final : public QObject
{
public:
    // Needs globalConfig, and works in the current folder. Tells each thing that it does if wanted.
    RandomUser(unsigned seed, bool telling);
    ~RandomUser() override;
    Q_DISABLE_COPY_MOVE(RandomUser)

    // A fault to try the search with: the last of these steps is a finding when all others were played before it.
    void plantFault(const std::set<int> &steps) { m_stepsToFault = steps; }

    // False when it was a finding. A step does the same thing whatever others are left out before it, as far as the
    // windows are the same.
    bool step(int number);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    template<class T>
    T anyOf(const std::vector<T> &all)
    {
        return all[static_cast<size_t>(below(static_cast<int>(all.size())))];
    }
    void tell(const char *what, const QObject *where, const QString &more = QString()) const;

    void startAnew();
    void act();
    void keepSmall() const;
    QWidget *openEditor() const;
    void makePages();
    QWidget *anyWindow();
    void triggerAction();
    void useAnyWidget();
    void useWidget(QWidget *widget);
    void turn(QSpinBox *spin);
    void type(QWidget *widget);
    void useTable(QTableWidget *table);
    void click(QWidget *widget);
    void pressKey();
    void callSlot();
    void closeOrResize();
    void answer(QWidget *dialog);
    void answerBox(QMessageBox *box);
    void chooseFile(QFileDialog *dialog);
    void breakIfPlanted(int step);
    QString problem() const;

    unsigned m_seed;
    bool m_telling;
    std::mt19937 m_random;
    int m_depth = 0;
    bool m_painting = true;
    std::set<int> m_stepsToFault;
    std::unique_ptr<MainWindow> m_window;
};
