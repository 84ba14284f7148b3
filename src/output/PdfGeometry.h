// SPDX-License-Identifier: MIT
#pragma once

#include <QLineF>
#include <QRectF>

// Where things stand on a printed page. Millimetres go in, device pixels come out. Positions count from the painter's
// origin, which already lies inside the page margins: a margin is therefore applied twice at the left and at the top,
// and the right and lower edges of the blocks fall on the margins. All values are single-precision.

// The sheet as the device knows it, and the margins asked for.
struct Sheet
{
    QRect pixels; // whole sheet, margins included
    double widthMm = 0.0;
    double heightMm = 0.0;
    double leftMm = 0.0; // margins
    double topMm = 0.0;
    double rightMm = 0.0;
    double bottomMm = 0.0;
};

// What holds for every page of a document.
struct DocumentLayout
{
    QRectF sheet;
    float pixelsPerMmX = 0.0F;
    float pixelsPerMmY = 0.0F;
    float left = 0.0F; // margins
    float top = 0.0F;
    float right = 0.0F;
    float bottom = 0.0F;
    float blockWidth = 0.0F;
};

// The blocks of one page, all of one size.
struct PageLayout
{
    float left = 0.0F;
    float top = 0.0F; // of the first block
    float blockWidth = 0.0F;
    float blockHeight = 0.0F;
    float spacing = 0.0F; // between two blocks
};

// One row, cut into cells of one width. Without cells the width is that of the row.
struct RowLayout
{
    float left = 0.0F;
    float top = 0.0F;
    float cellWidth = 0.0F;
    float height = 0.0F;

    QRectF cellRect(int cell) const { return {left + static_cast<float>(cell) * cellWidth, top, cellWidth, height}; }
};

// One block, cut into rows of one height.
struct BlockLayout
{
    float left = 0.0F;
    float top = 0.0F;
    float width = 0.0F;
    float height = 0.0F;
    int rows = 0;

    QRectF rect() const { return {left, top, width, height}; }
    // The upper edge of one of its rows.
    QLineF topEdge(const RowLayout &row) const { return {QPointF(left, row.top), QPointF(left + width, row.top)}; }
};

[[nodiscard]] DocumentLayout documentLayout(const Sheet &sheet);
// Without blocks the block height is that of a single one.
[[nodiscard]] PageLayout pageLayout(const DocumentLayout &document, int blocks, float spacingMm);
[[nodiscard]] BlockLayout blockLayout(const PageLayout &page, int block, int rows);
[[nodiscard]] RowLayout rowLayout(const BlockLayout &block, int row, int cells);
