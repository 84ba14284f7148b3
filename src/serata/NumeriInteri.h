// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

// Shows as many of the numbers of its text, separated by spaces, as have room: half a number would be read as another
// one. The text stays whole.
class NumeriInteri final : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};
