// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class CardNumbers;
class Cartella;
class PagePainter;
class QPainter;
class QPrinter;
class WholeFile;

// Prints a card set to a file, PDF being the one format. Tells progress through status() and appends its report, or
// the reason of a failure, to the caller's text; it never shows anything.
class CreateOutputFile final : public QObject
{
    Q_OBJECT

public:
    explicit CreateOutputFile(QObject *parent = nullptr);

    // Chooses the writer by the suffix of fileName. The size of the file in bytes, 0 when the format is not available,
    // negative on failure. `set` is not owned. With `numbersLeftOut` each block has its number beside it, and it is
    // told for how many there was no room.
    int create(const QString &outputFileName, Cartella *set, QString &report, int *numbersLeftOut = nullptr);
    // Writes `fileName` from `cartella`. The size of the file in bytes, -1 on failure. The file takes its name only
    // when it is whole, so that a failed print leaves an older one; what was written until a page failed is left as
    // well.
    int printPdf(QString &report, int *numbersLeftOut = nullptr);

    QString fileName;
    Cartella *cartella = nullptr; // not owned

signals:
    void status(const QString &text);

private:
    // False when not all of it came into the file.
    bool printInto(WholeFile &file, QPainter &painter, QPrinter &printer, int *numbersLeftOut);
    // False when the file cannot be written on. `numbers` may be null.
    bool printPages(const PagePainter &painter, CardNumbers *numbers, QPrinter &printer);
    QString successReport(qint64 bytes) const;
};

// Dots an inch in which printing lays out its pages.
[[nodiscard]] int printingResolution();
