// SPDX-License-Identifier: MIT
#include "PlainWriter.h"

#include "model/Cartella.h"

#include <array>
#include <cstdio>

namespace {
constexpr float pointsPerMm = 72.0F / 25.4F;
constexpr float left = 4 * pointsPerMm;
constexpr float right = 2 * pointsPerMm;
constexpr float top = 6 * pointsPerMm;
constexpr float bottom = 3 * pointsPerMm;
constexpr float spacing = 1.2F * pointsPerMm;
constexpr float fontSize = 30;
constexpr float baseLine = 10; // below the middle of the cell
} // namespace

PlainWriter::PlainWriter()
    : m_document(HPDF_New(nullptr, nullptr))
{
    HPDF_SetCompressionMode(m_document, HPDF_COMP_ALL);
    m_font = HPDF_GetFont(m_document, "Helvetica", nullptr);
}

PlainWriter::~PlainWriter()
{
    HPDF_Free(m_document);
}

void PlainWriter::addPage(const Pagina &page)
{
    m_page = HPDF_AddPage(m_document);
    HPDF_Page_SetSize(m_page, HPDF_PAGE_SIZE_A4, HPDF_PAGE_PORTRAIT);
    const float sheetWidth = HPDF_Page_GetWidth(m_page);
    const float sheetHeight = HPDF_Page_GetHeight(m_page);
    HPDF_Page_SetRGBFill(m_page, 1, 1, 1);
    HPDF_Page_Rectangle(m_page, 0, 0, sheetWidth, sheetHeight);
    HPDF_Page_Fill(m_page);
    HPDF_Page_SetRGBFill(m_page, 0, 0, 0);
    const float width = sheetWidth - left - right;
    const float height = (sheetHeight - top - bottom) / page.nBlocchi - spacing;
    for (U8 b = 0; b < page.nBlocchi; ++b) {
        addBlock(page.blocchi[b], sheetHeight - top - static_cast<float>(b) * (height + spacing), width, height);
    }
}

void PlainWriter::save(const char *fileName)
{
    HPDF_SaveToFile(m_document, fileName);
}

void PlainWriter::addBlock(const Blocco &block, float upper, float width, float height)
{
    const float rowHeight = height / block.nRighe;
    for (U8 r = 0; r < block.nRighe; ++r) {
        const Riga &row = block.righe[r];
        const float y = upper - r * rowHeight;
        const float cellWidth = width / row.nCelle;
        for (U8 c = 0; c < row.nCelle; ++c) {
            const float x = left + c * cellWidth;
            if (row.celle[c].tipo == CELL_NUMERO) {
                addNumber(row.celle[c].numero, x + cellWidth / 2, y - rowHeight / 2 - baseLine);
            }
            if (c > 0) {
                addLine(x, y, x, y - rowHeight);
            }
        }
        if (r > 0) {
            addLine(left, y, left + width, y);
        }
    }
    HPDF_Page_SetLineWidth(m_page, 1);
    HPDF_Page_Rectangle(m_page, left, upper - height, width, height);
    HPDF_Page_Stroke(m_page);
}

void PlainWriter::addNumber(quint32 number, float middle, float y)
{
    std::array<char, 12> text{};
    std::snprintf(text.data(), text.size(), "%u", number);
    HPDF_Page_BeginText(m_page);
    HPDF_Page_SetFontAndSize(m_page, m_font, fontSize);
    HPDF_Page_TextOut(m_page, middle - HPDF_Page_TextWidth(m_page, text.data()) / 2, y, text.data());
    HPDF_Page_EndText(m_page);
}

void PlainWriter::addLine(float x1, float y1, float x2, float y2)
{
    HPDF_Page_SetLineWidth(m_page, 0);
    HPDF_Page_MoveTo(m_page, x1, y1);
    HPDF_Page_LineTo(m_page, x2, y2);
    HPDF_Page_Stroke(m_page);
}
