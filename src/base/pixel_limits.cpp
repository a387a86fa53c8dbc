#include "base/pixel_limits.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zm {

QSize coveringPixels(const QSizeF &size)
{
    const auto roundedUp = [](double side) {
        return int(std::clamp(std::ceil(side), 1.0, double(std::numeric_limits<int>::max())));
    };
    return {roundedUp(size.width()), roundedUp(size.height())};
}

} // namespace zm
