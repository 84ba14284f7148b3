// SPDX-License-Identifier: MIT
#include "output/PdfTools.h"

#include <QProcess>
#include <QRegularExpression>

#include <cmath>
#include <optional>

namespace {
std::optional<QByteArray> outputOf(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.start(QString::fromLatin1(program), arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qWarning("%s failed: %s", program, process.readAllStandardError().constData());
        return std::nullopt;
    }
    return process.readAllStandardOutput();
}

QString textOf(const char *program, const QStringList &arguments)
{
    return QString::fromUtf8(outputOf(program, arguments).value_or(QByteArray()));
}

QRegularExpressionMatch infoLine(const QString &file, const QString &pattern)
{
    const QRegularExpression line(pattern, QRegularExpression::MultilineOption);
    return line.match(textOf("pdfinfo", {file}));
}

QStringList wordsOf(const QString &text)
{
    return text.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
}

QString number(int value)
{
    return QString::number(value);
}
} // namespace

int PdfTools::pageCount(const QString &file)
{
    return infoLine(file, QStringLiteral("^Pages: +(\\d+)$")).captured(1).toInt();
}

QSizeF PdfTools::pageSize(const QString &file)
{
    const auto line = infoLine(file, QStringLiteral("^Page size: +([\\d.]+) x ([\\d.]+) pts"));
    return {line.captured(1).toDouble(), line.captured(2).toDouble()};
}

QString PdfTools::title(const QString &file)
{
    return infoLine(file, QStringLiteral("^Title: +(.*)$")).captured(1);
}

QString PdfTools::creator(const QString &file)
{
    return infoLine(file, QStringLiteral("^Creator: +(.*)$")).captured(1);
}

bool PdfTools::isSound(const QString &file)
{
    return outputOf("qpdf", {QStringLiteral("--check"), file}).has_value();
}

QString PdfTools::text(const QString &file)
{
    return textOf("pdftotext", {file, QStringLiteral("-")});
}

QStringList PdfTools::words(const QString &file)
{
    return wordsOf(text(file));
}

QStringList PdfTools::wordsAsWritten(const QString &file)
{
    return wordsOf(textOf("pdftotext", {QStringLiteral("-raw"), file, QStringLiteral("-")}));
}

bool PdfTools::PlacedWord::operator==(const PlacedWord &other) const
{
    constexpr double tolerance = 1e-4;
    const auto near = [](double left, double right) { return std::abs(left - right) < tolerance; };
    return text == other.text && near(box.left(), other.box.left()) && near(box.top(), other.box.top()) &&
           near(box.right(), other.box.right()) && near(box.bottom(), other.box.bottom());
}

QVector<PdfTools::PlacedWord> PdfTools::placedWords(const QString &file, int page)
{
    const QStringList arguments = {QStringLiteral("-f"),    number(page), QStringLiteral("-l"), number(page),
                                   QStringLiteral("-bbox"), file,         QStringLiteral("-")};
    static const QRegularExpression word(
        QStringLiteral("<word xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=\"(.*)\">(.*)</word>"));
    QVector<PlacedWord> words;
    for (auto match = word.globalMatch(textOf("pdftotext", arguments)); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        const auto at = [&one](int index) { return one.captured(index).toDouble(); };
        words.append({one.captured(5), QRectF(QPointF(at(1), at(2)), QPointF(at(3), at(4)))});
    }
    return words;
}

QImage PdfTools::picture(const QString &file, int page, int dotsPerInch)
{
    const QStringList arguments = {
        QStringLiteral("-r"), number(dotsPerInch), QStringLiteral("-f"),          number(page),
        QStringLiteral("-l"), number(page),        QStringLiteral("-singlefile"), file};
    return QImage::fromData(outputOf("pdftoppm", arguments).value_or(QByteArray()), "PPM");
}

int PdfTools::storedPictures(const QString &file)
{
    const QString list = textOf("pdfimages", {QStringLiteral("-list"), file});
    constexpr int headLines = 2;
    QStringList objects;
    for (const QString &line : list.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(headLines)) {
        constexpr int objectColumn = 10;
        objects.append(line.simplified().section(QLatin1Char(' '), objectColumn, objectColumn));
    }
    objects.removeDuplicates();
    return objects.size();
}
