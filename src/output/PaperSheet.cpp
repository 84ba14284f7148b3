// SPDX-License-Identifier: MIT
#include "output/PaperSheet.h"

#include "model/Cartella.h"

#include <QPageLayout>

QPageLayout pageLayoutOf(const Cartella &set)
{
    const QMarginsF margins(set.margineSinistro, set.margineSuperiore, set.margineDestro, set.margineInferiore);
    const QPageSize paper(static_cast<QPageSize::PageSizeId>(set.formato));
    return {paper.isValid() ? paper : QPageSize(QPageSize::A4), QPageLayout::Portrait, margins,
            QPageLayout::Millimeter};
}

Sheet sheetOf(const QPageLayout &layout, int resolution, const Cartella &set)
{
    const QSizeF millimetres = layout.pageSize().size(QPageSize::Millimeter);
    return {layout.fullRectPixels(resolution),
            millimetres.width(),
            millimetres.height(),
            set.margineSinistro,
            set.margineSuperiore,
            set.margineDestro,
            set.margineInferiore};
}

QVector<int> pagesWithoutRoom(const Cartella &set, int resolution)
{
    const DocumentLayout document = documentLayout(sheetOf(pageLayoutOf(set), resolution, set));
    QVector<int> pages;
    for (int page = 0; page < set.getNumPages(); ++page) {
        const Pagina &asked = *set.pagine.at(page);
        if (asked.nBlocchi > 0 && pageLayout(document, asked.nBlocchi, asked.spazioBlocchi).blockHeight <= 0.0F) {
            pages.append(page);
        }
    }
    return pages;
}
