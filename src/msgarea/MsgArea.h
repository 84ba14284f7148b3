// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

#include <memory>

class QFile;

namespace Ui {
class MsgArea;
}

// A window for long texts. In message mode it shows a report; in file mode it edits a small Latin-1 text file.
// Created per use, with the window it belongs to as parent; the creator decides whether it goes when it is closed.
class MsgArea final : public QMainWindow
{
    Q_OBJECT

public:
    MsgArea(QWidget *parent, bool fileMode);
    ~MsgArea() override;

    // A window over `parent` that goes when it is closed, for the caller to fill and show. Only a file can be edited.
    static MsgArea *makeFor(QWidget *parent, bool fileMode);
    // Shows a report in plain text over `parent`, and returns at once.
    static MsgArea *showReport(QWidget *parent, const QString &text);

    void setEditable(bool editable);
    // In file mode a path, whose content is shown (empty when it cannot be read); in message mode the text itself.
    void setText(const QString &textOrPath, bool plain);
    // Shows the lines, each a paragraph of its own.
    void setLines(const QStringList &lines);

    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent *event) override;

private slots:
    void on_actionSalva_triggered();
    void fileModified();

private:
    bool confirmClosing();
    QString loss() const;
    void fitReport();

    std::unique_ptr<Ui::MsgArea> ui;
    bool m_fileMode;
    std::unique_ptr<QFile> m_file; // null in message mode until a save picks one
    bool m_modified = false;
};
