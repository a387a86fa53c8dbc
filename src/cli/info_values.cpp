#include "cli/info_values.h"

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

/// In the order of the alternatives of ParameterValue.
constexpr QLatin1StringView kTypeNames[] = {"boolean"_L1,       "integer"_L1,   "real"_L1,
                                            "color"_L1,         "string"_L1,    "asset"_L1,
                                            "enabledColor"_L1,  "stroke"_L1,    "gradientPosition"_L1,
                                            "maskTransform"_L1, "shapeMask"_L1, "lightList"_L1};
static_assert(std::size(kTypeNames) == std::variant_size_v<ParameterValue>);

struct ValueWriter
{
    QJsonValue operator()(bool value) const { return value; }
    QJsonValue operator()(qint64 value) const { return value; }
    QJsonValue operator()(double value) const { return value; }
    QJsonValue operator()(const QColor &value) const { return colorInfo(value); }
    QJsonValue operator()(const QString &value) const { return value; }
    QJsonValue operator()(const AssetName &value) const { return value.fileName; }
    QJsonValue operator()(const EnabledColor &value) const
    {
        return QJsonObject{{u"enabled"_s, value.enabled}, {u"color"_s, colorInfo(value.color)}};
    }
    QJsonValue operator()(const Stroke &value) const { return strokeInfo(value); }
    QJsonValue operator()(const GradientPosition &value) const
    {
        return QJsonArray{value.x1, value.y1, value.x2, value.y2};
    }
    QJsonValue operator()(const MaskTransform &value) const
    {
        return QJsonObject{{u"x"_s, value.x},
                           {u"y"_s, value.y},
                           {u"scaleX"_s, value.scaleX},
                           {u"scaleY"_s, value.scaleY},
                           {u"rotation"_s, value.rotation},
                           {u"pivotX"_s, value.pivotX},
                           {u"pivotY"_s, value.pivotY},
                           {u"mode"_s, value.mode == MaskTransform::Mode::Uniform ? u"uniform"_s : u"xy"_s}};
    }
    QJsonValue operator()(const ShapeMask &value) const { return value.generatorId; }
    QJsonValue operator()(const LightSources &value) const
    {
        QJsonArray lights;
        for (const LightSource &light : value) {
            lights.append(QJsonObject{{u"id"_s, idText(light.id)},
                                      {u"x"_s, light.x},
                                      {u"y"_s, light.y},
                                      {u"radius"_s, light.radius},
                                      {u"angle"_s, light.angle},
                                      {u"intensity"_s, light.intensity},
                                      {u"softness"_s, light.softness},
                                      {u"shape"_s, lightShapeName(light.shape)},
                                      {u"tint"_s, colorInfo(light.tint)}});
        }
        return lights;
    }
};

} // namespace

QString idText(const QUuid &id)
{
    return id.toString(QUuid::WithoutBraces);
}

QJsonArray pointInfo(const QPointF &point)
{
    return {point.x(), point.y()};
}

QJsonArray sizeInfo(const QSizeF &size)
{
    return {size.width(), size.height()};
}

QJsonArray colorInfo(const QColor &color)
{
    // From the 16 bits that a colour has for each channel: its floats would be printed with digits that are not there.
    const QRgba64 rgba = color.isValid() ? color.toRgb().rgba64() : QRgba64::fromRgba64(0);
    const auto channel = [](quint16 value) { return value / 65535.0; };
    return {channel(rgba.red()), channel(rgba.green()), channel(rgba.blue()), channel(rgba.alpha())};
}

QJsonObject strokeInfo(const Stroke &stroke)
{
    return {{u"color"_s, colorInfo(stroke.color)}, {u"width"_s, stroke.width}};
}

QJsonObject parametersInfo(const ParameterValues &values)
{
    QJsonObject info;
    for (const auto &[key, value] : values.entries().asKeyValueRange()) {
        info.insert(
            key, QJsonObject{{u"type"_s, kTypeNames[value.index()]}, {u"value"_s, std::visit(ValueWriter(), value)}});
    }
    return info;
}

} // namespace zm::cli
