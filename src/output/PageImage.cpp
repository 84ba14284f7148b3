// SPDX-License-Identifier: MIT
#include "output/PageImage.h"

#include "model/Cartella.h"
#include "output/NumeriBlocchi.h"
#include "output/PagePainter.h"
#include "output/PaperSheet.h"

#include <QPageLayout>
#include <QPainter>

namespace {
constexpr qreal inchesPerMetre = 1000.0 / 25.4;
} // namespace

QSize sheetSize(const Cartella &set, int resolution)
{
    return pageLayoutOf(set).fullRectPixels(resolution).size();
}

QImage pageImage(const Cartella &set, int page, const QSize &size, int resolution, bool numbered)
{
    if (page < 0 || page >= set.getNumPages()) {
        return QImage();
    }
    const QPageLayout layout = pageLayoutOf(set);
    const Sheet sheet = sheetOf(layout, resolution, set);
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull()) {
        return image;
    }
    // Fonts have the size in points that they have on paper, however large the sheet is drawn.
    image.setDotsPerMeterX(qRound(resolution * inchesPerMetre));
    image.setDotsPerMeterY(qRound(resolution * inchesPerMetre));
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(qreal(size.width()) / sheet.pixels.width(), qreal(size.height()) / sheet.pixels.height());
    // A printer's origin lies inside the margins.
    painter.translate(layout.paintRectPixels(resolution).topLeft());
    PagePainter(&painter, documentLayout(sheet)).paintPage(*set.pagine.at(page));
    if (numbered) {
        NumeriBlocchi(&painter, documentLayout(sheet)).paint(*set.pagine.at(page), page + 1);
    }
    return image;
}
