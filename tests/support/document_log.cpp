#include "support/document_log.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace zm::test {

namespace {

template<typename Value>
QString textOf(const Value &value)
{
    if constexpr (std::is_same_v<Value, QUuid>)
        return u"#%1"_s.arg(value.data1);
    else if constexpr (std::is_same_v<Value, QSizeF>)
        return u"%1x%2"_s.arg(value.width()).arg(value.height());
    else if constexpr (std::is_same_v<Value, QColor>)
        return value.name(QColor::HexArgb);
    else
        return QString::number(value);
}

void write(QDebug &out, const EditablePath &path)
{
    out << "path" << path.fillRule;
    for (const EditablePathContour &contour : path.contours) {
        out << "contour" << contour.closed;
        for (const EditablePathNode &node : contour.nodes)
            out << node.id << node.anchor << node.inControl << node.outControl << int(node.type) << node.hasInControl
                << node.hasOutControl;
    }
}

void write(QDebug &out, const Fill &fill)
{
    out << fill.solidColor({});
    if (const GradientFill *gradient = fill.gradient()) {
        out << quint32(gradient->type) << gradient->start << gradient->end;
        for (const GradientStop &stop : gradient->stops)
            out << stop.position << stop.color;
    }
    if (const TextureFill *texture = fill.texture())
        out << texture->generatorId << texture->image.size() << texture->transform << texture->mapping;
}

void write(QDebug &out, const ImageLayer &layer)
{
    const QImage image = layer.rasterImage();
    out << layer.isRaster() << layer.layerSize() << int(layer.rasterSurfacePolicy()) << image.size()
        << qHashBits(image.constBits(), size_t(image.sizeInBytes()));
    if (layer.hasRasterSelection())
        write(out, *layer.rasterSelection());
}

void write(QDebug &out, const ShapeLayer &layer)
{
    out << layer.layerSize() << layer.stroke().color << layer.stroke().width;
    write(out, layer.fill());
    if (const auto *generator = std::get_if<GeneratorGeometry>(&layer.geometry())) {
        out << generator->generatorId;
        for (const QString &key : generator->parameters.entries().keys())
            out << key << generator->parameters.number(key, -1.0);
    } else {
        write(out, std::get<EditablePath>(layer.geometry()));
    }
}

void write(QDebug &out, const TextLayer &layer)
{
    out << layer.state().textWidth;
    for (const TextParagraph &paragraph : layer.state().blocks) {
        out << "paragraph" << paragraph.alignment << paragraph.direction << paragraph.lineHeight;
        for (const TextRun &run : paragraph.runs) {
            out << run.text << run.font.toString() << run.outlineColor << run.outlineWidth << run.underlineColor
                << run.baselineOffset << run.underline << run.overline << run.strikeOut;
            write(out, run.fill);
        }
    }
}

} // namespace

QUuid testId(uint n)
{
    return QUuid(n, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}

DocumentLog::DocumentLog(const Document &document)
{
    const auto log = [&](auto signal, const QString &what) {
        connect(&document, signal, this, [=, this](const auto &...values) {
            m_entries.append(QStringList({what, textOf(values)...}).join(u' '));
        });
    };
    log(&Document::sizeChanged, u"sizeChanged"_s);
    log(&Document::backgroundColorChanged, u"backgroundColorChanged"_s);
    log(&Document::objectAboutToBeInserted, u"objectAboutToBeInserted"_s);
    log(&Document::objectInserted, u"objectInserted"_s);
    log(&Document::objectAboutToBeRemoved, u"objectAboutToBeRemoved"_s);
    log(&Document::objectRemoved, u"objectRemoved"_s);
    log(&Document::objectAboutToBeMoved, u"objectAboutToBeMoved"_s);
    log(&Document::objectMoved, u"objectMoved"_s);
    log(&Document::objectNameChanged, u"objectNameChanged"_s);
    log(&Document::objectVisibilityChanged, u"objectVisibilityChanged"_s);
    log(&Document::objectOpacityChanged, u"objectOpacityChanged"_s);
    log(&Document::objectBlendModeChanged, u"objectBlendModeChanged"_s);
    log(&Document::objectTransformChanged, u"objectTransformChanged"_s);
    log(&Document::imageLayerChanged, u"imageLayerChanged"_s);
    log(&Document::layerFiltersChanged, u"layerFiltersChanged"_s);
    log(&Document::shapeGeometryChanged, u"shapeGeometryChanged"_s);
    log(&Document::shapeLayerChanged, u"shapeLayerChanged"_s);
    log(&Document::textLayerChanged, u"textLayerChanged"_s);
    log(&Document::selectionChanged, u"selectionChanged"_s);
}

QString describe(const Document &document)
{
    QString text;
    QDebug out(&text);
    out << qSetRealNumberPrecision(17);
    out << document.size() << document.backgroundColor().name(QColor::HexArgb);
    for (qsizetype i = 0; i < document.objectCount(); ++i) {
        const SceneObject &object = *document.objectAt(i);
        const ObjectTransform &t = object.transform();
        out << '\n'
            << object.id().data1 << object.name() << object.blendMode() << object.opacity() << object.isVisible()
            << t.position() << t.scale() << t.shear() << t.anchor() << t.rotation();
        if (const ImageLayer *image = document.imageLayer(object.id()))
            write(out, *image);
        if (const ShapeLayer *shape = document.shapeLayer(object.id()))
            write(out, *shape);
        if (const TextLayer *textLayer = document.textLayer(object.id()))
            write(out, *textLayer);
        for (const FilterInstance &filter : document.layer(object.id())->filters())
            out << filter.instanceId.data1 << filter.filterId << filter.enabled << filter.rasterSelectionScoped
                << filter.parameters.number(u"strength"_s, -1.0);
    }
    return text;
}

} // namespace zm::test
