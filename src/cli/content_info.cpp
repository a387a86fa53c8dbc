#include "cli/content_info.h"

#include "cli/info_values.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

/// Of the RGBA8888 rows without padding, or of the SVG text.
QString contentDigest(const ImageLayerSource &source)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (const auto *svg = std::get_if<SvgImageSource>(&source)) {
        hash.addData(svg->data);
    } else {
        const QImage image = std::get<RasterImageSource>(source).image.convertToFormat(QImage::Format_RGBA8888);
        for (int y = 0; y < image.height(); ++y)
            hash.addData(QByteArrayView(image.constScanLine(y), qsizetype(image.width()) * 4));
    }
    return QString::fromLatin1(hash.result().toHex());
}

QJsonObject nodeInfo(const EditablePathNode &node)
{
    constexpr QLatin1StringView types[] = {"corner"_L1, "smooth"_L1, "symmetric"_L1};
    const auto handle = [](bool isUsed, const QPointF &point) {
        return isUsed ? QJsonValue(pointInfo(point)) : QJsonValue(QJsonValue::Null);
    };
    return {{u"id"_s, idText(node.id)},
            {u"type"_s, types[int(node.type)]},
            {u"anchor"_s, pointInfo(node.anchor)},
            {u"in"_s, handle(node.hasInControl, node.inControl)},
            {u"out"_s, handle(node.hasOutControl, node.outControl)}};
}

QJsonObject gradientInfo(const GradientFill &gradient)
{
    QJsonArray stops;
    for (const GradientStop &stop : gradient.stops)
        stops.append(QJsonArray{stop.position, colorInfo(stop.color)});
    return {{u"kind"_s, u"gradient"_s},
            {u"type"_s, gradient.type == GradientType::Linear ? u"linear"_s : u"radial"_s},
            {u"start"_s, pointInfo(gradient.start)},
            {u"end"_s, pointInfo(gradient.end)},
            {u"stops"_s, stops}};
}

QJsonObject textureInfo(const TextureFill &texture)
{
    const QTransform &t = texture.transform;
    return {
        {u"kind"_s, u"texture"_s},
        {u"generator"_s, texture.generatorId},
        {u"parameters"_s, parametersInfo(texture.parameters)},
        {u"mapping"_s, int(texture.mapping) + 1}, // as files count it
        {u"transform"_s, QJsonArray{t.m11(), t.m12(), t.m13(), t.m21(), t.m22(), t.m23(), t.m31(), t.m32(), t.m33()}}};
}

} // namespace

QJsonObject imageInfo(const ImageContent &image, bool withDigest)
{
    const bool isSvg = std::holds_alternative<SvgImageSource>(image.source);
    const QSize pixels = isSvg ? pixelSize(image.source) : image.pixelSize;
    QJsonObject info{{u"encoding"_s, isSvg ? u"svg"_s : u"raster"_s},
                     {u"pixelSize"_s, sizeInfo(pixels)},
                     {u"size"_s, sizeInfo(image.size)},
                     {u"policy"_s, image.policy == RasterSurfacePolicy::Fixed ? u"fixed"_s : u"expanding"_s},
                     {u"selection"_s, image.selection ? QJsonValue(pathInfo(*image.selection)) : QJsonValue::Null}};
    if (withDigest)
        info.insert(u"sha256"_s, contentDigest(image.source));
    return info;
}

QJsonObject shapeInfo(const ShapeContent &shape)
{
    QJsonObject info{{u"size"_s, sizeInfo(shape.shape.size)},
                     {u"fill"_s, fillInfo(shape.fill)},
                     {u"stroke"_s, strokeInfo(shape.stroke)}};
    if (const auto *path = std::get_if<EditablePath>(&shape.shape.geometry)) {
        info.insert(u"geometry"_s, u"path"_s);
        info.insert(u"path"_s, pathInfo(*path));
    } else {
        const auto &generator = std::get<GeneratorGeometry>(shape.shape.geometry);
        info.insert(u"geometry"_s, u"parametric"_s);
        info.insert(u"generator"_s, generator.generatorId);
        info.insert(u"parameters"_s, parametersInfo(generator.parameters));
    }
    return info;
}

QJsonObject pathInfo(const EditablePath &path)
{
    QJsonArray contours;
    for (const EditablePathContour &contour : path.contours) {
        QJsonArray nodes;
        for (const EditablePathNode &node : contour.nodes)
            nodes.append(nodeInfo(node));
        contours.append(QJsonObject{{u"closed"_s, contour.closed}, {u"nodes"_s, nodes}});
    }
    return {{u"fillRule"_s, path.fillRule == Qt::WindingFill ? u"winding"_s : u"oddEven"_s}, {u"contours"_s, contours}};
}

QJsonObject fillInfo(const Fill &fill)
{
    if (const GradientFill *gradient = fill.gradient())
        return gradientInfo(*gradient);
    if (const TextureFill *texture = fill.texture())
        return textureInfo(*texture);
    return {{u"kind"_s, u"solid"_s}, {u"color"_s, colorInfo(fill.solidColor(Qt::black))}};
}

} // namespace zm::cli
