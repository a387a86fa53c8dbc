#include "filters/library_filter.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr qsizetype kLights = 8; // as many as the shader has room for

/// The transfer function of sRGB, IEC 61966-2-1.
double toLinear(double encoded)
{
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

void setLight(LibraryUniformBlock &block, int index, const LightSource &light, const FilterRenderRequest &request)
{
    const auto set = [&block, index](const char *name, double x, double y, double z, double w) {
        const QByteArray field = QByteArray(name) + QByteArray::number(index);
        block.setVec4(QLatin1StringView(field), x, y, z, w);
    };
    const QRectF box = request.layerBox();
    const QPointF centre = request.placeInLayer(light.x, light.y);
    const double radius = request.renderScale() * light.radius * std::min(box.width(), box.height());
    set("u_lightGeometry", centre.x(), centre.y(), std::max(radius, 1.0), qDegreesToRadians(light.angle));
    const QColor tint = light.tint;
    set("u_lightColor", toLinear(tint.redF()), toLinear(tint.greenF()), toLinear(tint.blueF()), light.intensity);
    set("u_lightShape", double(light.shape), light.softness, 0.0, 0.0);
}

// The picture under a base light and up to eight placed ones.
class RelightFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double base = std::clamp(request.percent(u"baseLight"_s), 0.0, 2.0);
        LightSources lights = request.parameters.lightSources(u"lights"_s, {});
        lights.resize(std::min<qsizetype>(lights.size(), kLights));
        if (lights.isEmpty() && qFuzzyCompare(base, 1.0))
            return request.unchanged();

        LibraryUniformBlock block(u"relight"_s);
        block.setVec4("u_frame"_L1, request.size().width(), request.size().height(), double(lights.size()), base);
        for (int i = 0; i < lights.size(); ++i)
            setLight(block, i, lights.at(i), request);
        return request.singlePass(block);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(Relight, RelightFilter, u"relight"_s)

} // namespace zm
