// SPDX-License-Identifier: MIT
#pragma once

#include "model/Cartella.h"

#include <vector>

// Pages that are held while the user is asked something: the loop of the question's box lets pages be deleted.
class WatchedPages final
{
public:
    // Holds a page for as long as it lives itself.
    class Hold final
    {
    public:
        Hold(WatchedPages &watched, Pagina *page);
        ~Hold();
        Q_DISABLE_COPY_MOVE(Hold)

        // Null once the page has been deleted.
        Pagina *page() const { return m_page; }

    private:
        friend class WatchedPages;

        WatchedPages &m_watched;
        Pagina *m_page;
    };

    // To be called before a page, or all pages, are deleted.
    void forget(const Pagina *page);
    void forgetAll();

private:
    std::vector<Hold *> m_holds;
};
