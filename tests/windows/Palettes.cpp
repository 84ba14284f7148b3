// SPDX-License-Identifier: MIT
#include "windows/Palettes.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace {
QPalette dark()
{
    const QColor window(0x35, 0x35, 0x35);
    const QColor grey(0x7f, 0x7f, 0x7f);
    QPalette palette(Qt::white, window, window.lighter(), window.darker(), window.darker(150), Qt::white, Qt::white,
                     QColor(0x23, 0x23, 0x23), window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        palette.setColor(QPalette::Disabled, role, grey);
    }
    return palette;
}

QPalette highContrast()
{
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::darkGray, Qt::gray, Qt::white, Qt::white, Qt::black,
                     Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::ToolTipBase, Qt::black);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}
} // namespace

namespace Palettes {
QVector<Named> all()
{
    return {{QStringLiteral("light"), QApplication::style()->standardPalette()},
            {QStringLiteral("dark"), dark()},
            {QStringLiteral("high contrast"), highContrast()}};
}

double contrast(const QColor &one, const QColor &other)
{
    constexpr double glare = 0.05;
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + glare) / (std::min(a, b) + glare);
}
} // namespace Palettes
