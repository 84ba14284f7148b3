// SPDX-License-Identifier: MIT
#include "mainwindow/WatchedPages.h"

#include <algorithm>

WatchedPages::Hold::Hold(WatchedPages &watched, Pagina *page)
    : m_watched(watched)
    , m_page(page)
{
    m_watched.m_holds.push_back(this);
}

WatchedPages::Hold::~Hold()
{
    auto &holds = m_watched.m_holds;
    holds.erase(std::remove(holds.begin(), holds.end(), this), holds.end());
}

void WatchedPages::forget(const Pagina *page)
{
    for (Hold *hold : m_holds) {
        if (hold->m_page == page) {
            hold->m_page = nullptr;
        }
    }
}

void WatchedPages::forgetAll()
{
    for (Hold *hold : m_holds) {
        hold->m_page = nullptr;
    }
}
