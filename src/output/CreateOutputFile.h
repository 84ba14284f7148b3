// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <optional>

class NumeriBlocchi;
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

    // Whether each block has its number beside it.
    enum class Numbers { None, BesideBlocks };
    struct Printed
    {
        int bytes = 0;
        int numbersLeftOut = 0; // for which there was no room
    };

    // Chooses the writer by the suffix of fileName. The size of the file in bytes, 0 when the format is not available,
    // negative on failure. `set` is not owned.
    int create(const QString &outputFileName, Cartella *set, QString &report);
    Printed create(const QString &outputFileName, Cartella *set, QString &report, Numbers numbers);
    // Writes `fileName` from `cartella`. The size of the file in bytes, -1 on failure. The file takes its name only
    // when it is whole, so that a failed print leaves an older one; what was written until a page failed is left as
    // well.
    int printPdf(QString &report);
    Printed printPdf(QString &report, Numbers numbers);

    QString fileName;
    Cartella *cartella = nullptr; // not owned

signals:
    void status(const QString &text);

private:
    // How many numbers were left out; none when not all of it came into the file.
    std::optional<int> printInto(WholeFile &file, QPainter &painter, QPrinter &printer, Numbers numbers);
    // False when the file cannot be written on. `numbers` may be null.
    bool printPages(const PagePainter &painter, NumeriBlocchi *numbers, QPrinter &printer);
    QString successReport(qint64 bytes) const;
};

// Dots an inch in which printing lays out its pages.
[[nodiscard]] int printingResolution();
