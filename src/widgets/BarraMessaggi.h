// SPDX-License-Identifier: MIT
#pragma once

#include <QStatusBar>

// A status bar whose messages can be read in any colour: they stand on black or white, whichever differs more from it.
class BarraMessaggi final : public QStatusBar
{
public:
    using QStatusBar::QStatusBar;

protected:
    void paintEvent(QPaintEvent *event) override;
};
