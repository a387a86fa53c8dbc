#include "values/parameter_values.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace zm {

namespace {

bool areFinite(std::initializer_list<double> numbers)
{
    return std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isfinite(number); });
}

bool isBareFileName(const QString &name)
{
    using namespace Qt::StringLiterals;
    return !name.isEmpty() && name != "."_L1 && name != ".."_L1 && !name.contains(u'/') && !name.contains(u'\\');
}

bool isStorableLight(const LightSource &light)
{
    return !light.id.isNull() && light.tint.isValid()
        && areFinite({light.x, light.y, light.radius, light.angle, light.intensity, light.softness});
}

struct StorableCheck
{
    bool operator()(bool) const { return true; }
    bool operator()(qint64) const { return true; }
    bool operator()(double number) const { return std::isfinite(number); }
    bool operator()(const QColor &color) const { return color.isValid(); }
    bool operator()(const QString &) const { return true; }
    bool operator()(const AssetName &asset) const { return isBareFileName(asset.fileName); }
    bool operator()(const EnabledColor &value) const { return value.color.isValid(); }
    bool operator()(const Stroke &stroke) const
    {
        return stroke.color.isValid() && std::isfinite(stroke.width) && stroke.width >= 0.0;
    }
    bool operator()(const GradientPosition &position) const
    {
        return areFinite({position.x1, position.y1, position.x2, position.y2});
    }
    bool operator()(const MaskTransform &mask) const
    {
        return areFinite({mask.x, mask.y, mask.scaleX, mask.scaleY, mask.rotation, mask.pivotX, mask.pivotY});
    }
    bool operator()(const ShapeMask &) const { return true; }
    bool operator()(const LightSources &lights) const
    {
        return lights.size() <= kMaximumLightSources && std::all_of(lights.cbegin(), lights.cend(), isStorableLight);
    }
};

template<typename T>
T valueOr(const QMap<QString, ParameterValue> &values, const QString &key, const T &fallback)
{
    const auto found = values.constFind(key);
    if (found == values.cend())
        return fallback;
    const T *value = std::get_if<T>(&*found);
    return value ? *value : fallback;
}

} // namespace

bool isStorable(const ParameterValue &value)
{
    return std::visit(StorableCheck(), value);
}

bool ParameterValues::set(const QString &key, const ParameterValue &value)
{
    if (key.isEmpty() || !isStorable(value))
        return false;
    m_values.insert(key, value);
    return true;
}

double ParameterValues::number(const QString &key, double fallback) const
{
    const auto found = m_values.constFind(key);
    if (found != m_values.cend()) {
        if (const qint64 *integer = std::get_if<qint64>(&*found))
            return double(*integer);
    }
    return valueOr(m_values, key, fallback);
}

bool ParameterValues::boolean(const QString &key, bool fallback) const
{
    return valueOr(m_values, key, fallback);
}

QColor ParameterValues::color(const QString &key, const QColor &fallback) const
{
    return valueOr(m_values, key, fallback);
}

QString ParameterValues::string(const QString &key, const QString &fallback) const
{
    return valueOr(m_values, key, valueOr(m_values, key, ShapeMask{fallback}).generatorId);
}

EnabledColor ParameterValues::enabledColor(const QString &key, const EnabledColor &fallback) const
{
    return valueOr(m_values, key, fallback);
}

Stroke ParameterValues::stroke(const QString &key, const Stroke &fallback) const
{
    return valueOr(m_values, key, fallback);
}

GradientPosition ParameterValues::gradientPosition(const QString &key, const GradientPosition &fallback) const
{
    return valueOr(m_values, key, fallback);
}

MaskTransform ParameterValues::maskTransform(const QString &key, const MaskTransform &fallback) const
{
    return valueOr(m_values, key, fallback);
}

LightSources ParameterValues::lightSources(const QString &key, const LightSources &fallback) const
{
    return valueOr(m_values, key, fallback);
}

} // namespace zm
