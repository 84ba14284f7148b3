// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

// Looks into PDF files with the tools that other people open them with. A tool that fails gives an empty result.
namespace PdfTools {
int pageCount(const QString &file);
// Of the first page, in points (1/72 inch).
QSizeF pageSize(const QString &file);
QString title(const QString &file);
QString creator(const QString &file);
// Structure and streams can be read without an error or a warning.
bool isSound(const QString &file);
// Everything that is written on the pages, in reading order.
QString text(const QString &file);
// The words of text().
QStringList words(const QString &file);
// The same words in the order in which the file writes them.
QStringList wordsAsWritten(const QString &file);
// A word and the box it stands in, in points from the upper left corner of its page.
struct PlacedWord
{
    QString text;
    QRectF box;

    // Boxes that differ by less than anybody could measure are equal.
    bool operator==(const PlacedWord &other) const;
};
// The words of one page (1-based).
QVector<PlacedWord> placedWords(const QString &file, int page);
// One page (1-based) as a picture.
QImage picture(const QString &file, int page, int dotsPerInch);
// Pictures stored in the file.
int storedPictures(const QString &file);
} // namespace PdfTools
