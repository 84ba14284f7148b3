// SPDX-License-Identifier: MIT
#include "manuale/FittedPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPixmap>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace {
QPixmap pictureOf(const QTextDocument &document, const QTextFormat &format)
{
    const QUrl name = QUrl::fromEncoded(format.toImageFormat().name().toUtf8());
    return document.resource(QTextDocument::ImageResource, name).value<QPixmap>();
}

// Between the margins of the page, which grow with the letters.
qreal roomIn(const QTextDocument &document)
{
    constexpr qreal usualDotsPerInch = 96;
    const QPaintDevice *screen = document.documentLayout()->paintDevice();
    const qreal growth = screen == nullptr ? 1 : std::max(screen->logicalDpiX() / usualDotsPerInch, 1.0);
    const qreal room = document.textWidth() - 2 * document.documentMargin() * growth;
    return std::floor(room) - 1; // places are rounded
}
} // namespace

FittedPictures::FittedPictures(QTextDocument *document)
    : QObject(document)
{
    document->documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

QSizeF FittedPictures::intrinsicSize(QTextDocument *document, int, const QTextFormat &format)
{
    const QSizeF size = pictureOf(*document, format).size();
    const qreal room = roomIn(*document);
    return room <= 0 || size.width() <= room ? size : size.scaled(room, size.height(), Qt::KeepAspectRatio);
}

void FittedPictures::drawObject(QPainter *painter, const QRectF &place, QTextDocument *document, int,
                                const QTextFormat &format)
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(QRect(place.topLeft().toPoint(), place.size().toSize()), pictureOf(*document, format));
}
