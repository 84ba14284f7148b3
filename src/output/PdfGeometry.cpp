// SPDX-License-Identifier: MIT
#include "output/PdfGeometry.h"

#include <algorithm>

namespace {
float pixelsPerMm(int pixels, double millimetres)
{
    return millimetres > 0.0 ? static_cast<float>(pixels / millimetres) : 0.0F;
}

// A page, block or row without parts is laid out as if it had one; nothing is then drawn in it.
float divisor(int parts)
{
    return static_cast<float>(std::max(parts, 1));
}
} // namespace

DocumentLayout documentLayout(const Sheet &sheet)
{
    DocumentLayout document;
    document.sheet = sheet.pixels;
    document.pixelsPerMmX = pixelsPerMm(sheet.pixels.width(), sheet.widthMm);
    document.pixelsPerMmY = pixelsPerMm(sheet.pixels.height(), sheet.heightMm);
    document.left = static_cast<float>(sheet.leftMm) * document.pixelsPerMmX;
    document.right = static_cast<float>(sheet.rightMm) * document.pixelsPerMmX;
    document.top = static_cast<float>(sheet.topMm) * document.pixelsPerMmY;
    document.bottom = static_cast<float>(sheet.bottomMm) * document.pixelsPerMmY;
    document.blockWidth = static_cast<float>(sheet.pixels.width()) - 2.0F * document.left - document.right;
    return document;
}

PageLayout pageLayout(const DocumentLayout &document, int blocks, float spacingMm)
{
    PageLayout page;
    page.left = document.left;
    page.top = document.top;
    page.blockWidth = document.blockWidth;
    page.spacing = spacingMm * document.pixelsPerMmY;
    const float usable = static_cast<float>(document.sheet.height()) - 2.0F * document.top - document.bottom;
    page.blockHeight = usable / divisor(blocks) - page.spacing;
    return page;
}

BlockLayout blockLayout(const PageLayout &page, int block, int rows)
{
    const float top = page.top + static_cast<float>(block) * (page.spacing + page.blockHeight);
    return {page.left, top, page.blockWidth, page.blockHeight, rows};
}

RowLayout rowLayout(const BlockLayout &block, int row, int cells)
{
    const float rows = divisor(block.rows);
    const float top = block.top + static_cast<float>(row) * block.height / rows;
    return {block.left, top, block.width / divisor(cells), block.height / rows};
}
