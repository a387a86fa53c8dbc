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
    log(&Document::selectionChanged, u"selectionChanged"_s);
}

QString describe(const Document &document)
{
    QString text;
    QDebug out(&text);
    out << document.size() << document.backgroundColor().name(QColor::HexArgb);
    for (qsizetype i = 0; i < document.objectCount(); ++i) {
        const SceneObject &object = *document.objectAt(i);
        const ObjectTransform &t = object.transform();
        out << '\n'
            << object.id().data1 << object.name() << object.blendMode() << object.opacity() << object.isVisible()
            << t.position() << t.scale() << t.shear() << t.anchor() << t.rotation();
        const ImageLayer *layer = document.imageLayer(object.id());
        if (!layer)
            continue;
        const QImage image = layer->rasterImage();
        out << image.size() << qHashBits(image.constBits(), size_t(image.sizeInBytes()));
        for (const FilterInstance &filter : layer->filters())
            out << filter.instanceId.data1 << filter.filterId << filter.enabled << filter.rasterSelectionScoped
                << filter.parameters.number(u"strength"_s, -1.0);
    }
    return text;
}

} // namespace zm::test
