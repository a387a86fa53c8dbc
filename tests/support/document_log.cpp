#include "support/document_log.h"

#include <QCryptographicHash>
#include <QDebug>

using namespace Qt::StringLiterals;

namespace zm::test {

QUuid testId(uint n)
{
    return QUuid(n, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}

DocumentLog::DocumentLog(const Document &document)
{
    const auto name = [](const QUuid &id) { return u"#%1"_s.arg(id.data1); };
    const auto logId = [&](auto signal, const QString &what) {
        connect(&document, signal, this, [=, this](const QUuid &id) { add(what + u' ' + name(id)); });
    };
    const auto logPlace = [&](auto signal, const QString &what) {
        connect(&document, signal, this, [=, this](qsizetype index, const QUuid &id) {
            add(u"%1 %2 %3"_s.arg(what).arg(index).arg(name(id)));
        });
    };
    const auto logMove = [&](auto signal, const QString &what) {
        connect(&document, signal, this, [=, this](qsizetype from, qsizetype to, const QUuid &id) {
            add(u"%1 %2 %3 %4"_s.arg(what).arg(from).arg(to).arg(name(id)));
        });
    };
    connect(&document, &Document::sizeChanged, this, [this](const QSizeF &size) {
        add(u"sizeChanged %1x%2"_s.arg(size.width()).arg(size.height()));
    });
    connect(&document, &Document::backgroundColorChanged, this,
            [this](const QColor &color) { add(u"backgroundColorChanged "_s + color.name(QColor::HexArgb)); });
    logPlace(&Document::objectAboutToBeInserted, u"objectAboutToBeInserted"_s);
    logPlace(&Document::objectInserted, u"objectInserted"_s);
    logPlace(&Document::objectAboutToBeRemoved, u"objectAboutToBeRemoved"_s);
    logPlace(&Document::objectRemoved, u"objectRemoved"_s);
    logMove(&Document::objectAboutToBeMoved, u"objectAboutToBeMoved"_s);
    logMove(&Document::objectMoved, u"objectMoved"_s);
    logId(&Document::objectNameChanged, u"objectNameChanged"_s);
    logId(&Document::objectVisibilityChanged, u"objectVisibilityChanged"_s);
    logId(&Document::objectOpacityChanged, u"objectOpacityChanged"_s);
    logId(&Document::objectBlendModeChanged, u"objectBlendModeChanged"_s);
    logId(&Document::objectTransformChanged, u"objectTransformChanged"_s);
    logId(&Document::imageLayerChanged, u"imageLayerChanged"_s);
    logId(&Document::layerFiltersChanged, u"layerFiltersChanged"_s);
    logId(&Document::selectionChanged, u"selectionChanged"_s);
}

QString describe(const Document &document)
{
    QString text;
    QDebug out(&text);
    out << document.size() << document.backgroundColor().name(QColor::HexArgb);
    for (qsizetype i = 0; i < document.objectCount(); ++i) {
        const SceneObject &object = *document.objectAt(i);
        const ObjectTransform &t = object.transform();
        out << '\n' << object.id().data1 << object.name() << object.blendMode() << object.opacity()
            << object.isVisible() << t.position() << t.scale() << t.shear() << t.anchor() << t.rotation();
        const auto *layer = dynamic_cast<const ImageLayer *>(&object);
        if (!layer)
            continue;
        const QImage image = layer->rasterImage();
        out << image.size()
            << QCryptographicHash::hash(QByteArrayView(image.constBits(), image.sizeInBytes()),
                                        QCryptographicHash::Md5).toHex();
        for (const FilterInstance &filter : layer->filters())
            out << filter.instanceId.data1 << filter.filterId << filter.enabled << filter.rasterSelectionScoped
                << filter.parameters.number(u"strength"_s, -1.0);
    }
    return text;
}

} // namespace zm::test
