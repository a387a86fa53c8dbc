#include "generators/bubble_box.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

BubbleBox::BubbleBox(const QSizeF &size, const ShapeParameters &parameters)
{
    const double pointer = parameters.real(u"pointerLength"_s);
    // Two units of air, and three of height for the box, unless the whole is smaller than that.
    const double across = std::min(2.0, size.width() / 8.0);
    const double down = std::min(2.0, size.height() / 8.0);
    const double tipY = size.height() - down;
    const double leastHeight = std::min(3.0, (tipY - down) / 2.0);
    const double height = std::max(tipY - pointer * size.height() - down, leastHeight);
    box = QRectF(across, down, size.width() - 2.0 * across, height);
    cornerRadius = std::clamp(parameters.real(u"cornerRadius"_s), 0.0, std::min(box.width(), box.height()) / 2.0);
    tip = {(0.27 - (pointer - 0.08) / 0.37 * 0.08) * size.width(), tipY};
}

} // namespace zm
