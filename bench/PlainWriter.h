// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <hpdf.h>

struct Blocco;
struct Pagina;

// Writes classic pages to a PDF file call by call, with a library that does nothing else: what printing is measured
// against. Points, from the lower left corner.
class PlainWriter final
{
public:
    PlainWriter();
    ~PlainWriter();
    Q_DISABLE_COPY_MOVE(PlainWriter)

    void addPage(const Pagina &page);
    void save(const char *fileName);

private:
    void addBlock(const Blocco &block, float upper, float width, float height);
    void addNumber(quint32 number, float middle, float y);
    void addLine(float x1, float y1, float x2, float y2);

    HPDF_Doc m_document;
    HPDF_Font m_font;
    HPDF_Page m_page = nullptr;
};
