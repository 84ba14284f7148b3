// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>
#include <QStringList>

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
// The words of one page (1-based) with the boxes they stand in.
QStringList placedWords(const QString &file, int page);
// One page (1-based) as a picture.
QImage picture(const QString &file, int page, int dotsPerInch);
// Pictures stored in the file.
int storedPictures(const QString &file);
} // namespace PdfTools
