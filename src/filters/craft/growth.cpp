#include "filters/craft/growth.h"

#include <algorithm>

namespace zm {

namespace {

/// Cuts two opposite margins of a length to what there is room for; where both want more than half of it, both get
/// half.
void fit(int length, int longest, int *before, int *after)
{
    const int room = longest - length;
    *before = std::min(*before, std::max(room - std::min(*after, room / 2), 0));
    *after = std::min(*after, room - *before);
}

} // namespace

int longestGrownSide(const FilterRenderRequest &request)
{
    const int texture = request.renderer ? request.renderer->maximumTextureSize() : 0;
    return std::max({texture, request.size().width(), request.size().height()});
}

QMargins affordableMargins(const FilterRenderRequest &request, const QMargins &wanted)
{
    const int longest = longestGrownSide(request);
    int left = std::max(wanted.left(), 0);
    int top = std::max(wanted.top(), 0);
    int right = std::max(wanted.right(), 0);
    int bottom = std::max(wanted.bottom(), 0);
    fit(request.size().width(), longest, &left, &right);
    fit(request.size().height(), longest, &top, &bottom);
    return {left, top, right, bottom};
}

QRectF grownBounds(const FilterRenderRequest &request, const QMargins &margins)
{
    const double unitX = request.bounds.width() / request.size().width();
    const double unitY = request.bounds.height() / request.size().height();
    return request.bounds.adjusted(-margins.left() * unitX, -margins.top() * unitY, margins.right() * unitX,
                                   margins.bottom() * unitY);
}

} // namespace zm
