// SPDX-License-Identifier: MIT
#include "widgets/WholeTitle.h"

#include <QGroupBox>
#include <QProxyStyle>
#include <QStyleOption>

#include <memory>

namespace {
class RoomForTitles final : public QProxyStyle
{
public:
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override
    {
        QRect place = QProxyStyle::subControlRect(control, option, part, widget);
        const auto *group = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
        if (control == CC_GroupBox && part == SC_GroupBoxLabel && group != nullptr) {
            place.setWidth(qMax(place.width(), group->fontMetrics.horizontalAdvance(group->text + QLatin1Char(' '))));
        }
        return place;
    }
};
} // namespace

void showWholeTitle(QGroupBox *group)
{
    auto style = std::make_unique<RoomForTitles>();
    style->setParent(group);
    group->setStyle(style.release());
}
