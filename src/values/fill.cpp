#include "values/fill.h"

#include "base/fuzzy.h"
#include "values/valid_color.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace zm {

namespace {

bool hasFiniteNumbers(const QTransform &t)
{
    const double numbers[] = {t.m11(), t.m12(), t.m13(), t.m21(), t.m22(), t.m23(), t.m31(), t.m32(), t.m33()};
    return std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); });
}

TextureFill cleanTexture(TextureFill texture)
{
    if (texture.mapping > 3)
        texture.mapping = 0;
    if (!hasFiniteNumbers(texture.transform))
        texture.transform = {};
    return texture;
}

QColor faded(QColor color)
{
    color.setAlpha(0);
    return color;
}

/// Of each run of stops that fall into one cell the outer two, which tell all that can be seen of them.
template<typename Cell>
QList<GradientStop> outerStops(const QList<GradientStop> &sorted, Cell cellOf)
{
    QList<GradientStop> outer;
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        const bool isFirst = i == 0 || cellOf(sorted[i - 1]) != cellOf(sorted[i]);
        const bool isLast = i + 1 == sorted.size() || cellOf(sorted[i + 1]) != cellOf(sorted[i]);
        if (isFirst || isLast)
            outer.append(sorted[i]);
    }
    return outer;
}

QGradientStops brushStops(const GradientFill &gradient)
{
    QList<GradientStop> stops = sortedStops(gradient.stops);
    // QPainter resolves a gradient to 1024 colours at most, and QGradient takes a time for each stop that grows with
    // their number.
    constexpr qsizetype cells = 2048;
    if (stops.size() > 2 * cells)
        stops = outerStops(stops, [](const GradientStop &stop) { return std::floor(stop.position * cells); });
    stops = outerStops(stops, std::mem_fn(&GradientStop::position));
    // QGradient keeps one stop for each position; a hard edge needs two that differ by next to nothing.
    for (qsizetype i = 1; i < stops.size(); ++i) {
        if (stops[i - 1].position != stops[i].position)
            continue;
        if (stops[i].position < 1.0)
            stops[i].position = std::nextafter(stops[i].position, 1.0);
        else
            stops[i - 1].position = std::nextafter(1.0, 0.0);
    }

    QGradientStops result;
    if (stops.first().position > 1e-12)
        result.append({0.0, faded(stops.first().color)});
    for (const GradientStop &stop : std::as_const(stops))
        result.append({stop.position, stop.color});
    if (!fuzzyEqual(stops.last().position, 1.0))
        result.append({1.0, faded(stops.last().color)});
    return result;
}

QBrush gradientBrush(const GradientFill &gradient, const QSize &size)
{
    const double width = std::max(size.width(), 1);
    const double height = std::max(size.height(), 1);
    const QPointF start(gradient.start.x() * width, gradient.start.y() * height);
    const QPointF end(gradient.end.x() * width, gradient.end.y() * height);
    const auto brush = [&gradient](QGradient &&shape) {
        shape.setCoordinateMode(QGradient::LogicalMode);
        shape.setStops(brushStops(gradient));
        return QBrush(shape);
    };
    if (gradient.type == GradientType::Linear)
        return brush(QLinearGradient(start, end));
    return brush(QRadialGradient(start, std::max(QLineF(start, end).length(), 1.0), start));
}

Fill linearFill(const QLinearGradient &brush)
{
    GradientFill gradient;
    QLineF points(brush.start(), brush.finalStop());
    if (brush.coordinateMode() == QGradient::LogicalMode)
        points = gradientPoints(gradientAngle({GradientType::Linear, points.p1(), points.p2(), {}}));
    gradient.start = points.p1();
    gradient.end = points.p2();
    gradient.stops.clear();
    const QGradientStops stops = brush.stops();
    for (const QGradientStop &stop : stops)
        gradient.stops.append({stop.first, stop.second});
    return gradient;
}

} // namespace

Fill::Fill()
    : m_value(QColor(Qt::black))
{
}

Fill::Fill(const QColor &color)
    : m_value(validOrBlack(color))
{
}

Fill::Fill(const GradientFill &gradient)
    : m_value(cleanGradient(gradient))
{
}

Fill::Fill(const TextureFill &texture)
    : m_value(cleanTexture(texture))
{
}

Fill Fill::fromBrush(const QBrush &brush, quint32 mapping)
{
    if (brush.style() == Qt::LinearGradientPattern)
        return linearFill(*static_cast<const QLinearGradient *>(brush.gradient()));
    if (brush.style() == Qt::TexturePattern)
        return TextureFill{{}, {}, brush.textureImage(), brush.transform(), mapping};
    return brush.color();
}

QColor Fill::solidColor(const QColor &fallback) const
{
    const QColor *color = std::get_if<QColor>(&m_value);
    return color ? *color : fallback;
}

QBrush Fill::brushFor(const QSize &size) const
{
    if (const GradientFill *painted = gradient())
        return gradientBrush(*painted, size);
    if (const TextureFill *painted = texture()) {
        if (painted->image.isNull())
            return QColor(Qt::transparent); // no brush at all would leave texts in their palette's colour
        QBrush brush(painted->image);
        brush.setTransform(painted->transform);
        return brush;
    }
    return solidColor(Qt::black);
}

GradientFill gradientFrom(const Fill &fill, GradientType type)
{
    const GradientFill *present = fill.gradient();
    if (present && present->type == type)
        return *present;
    const QLineF points = defaultGradientPoints(type);
    GradientFill gradient{type, points.p1(), points.p2(), {{0.0, fill.solidColor(Qt::black)}, {1.0, Qt::white}}};
    if (present)
        gradient.stops = present->stops;
    return gradient;
}

} // namespace zm
