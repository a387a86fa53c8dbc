#pragma once

#include "io/document/layer_content.h"

namespace zm {

/// What the sections of a document file are.
enum class SectionType : quint32 { DocumentProperties = 1, ImageLayer = 2, TextLayer = 3, ShapeLayer = 4 };

/// All that a file tells about one layer.
struct LayerRecord
{
    QUuid id;
    QString name;
    bool visible = true;
    double opacity = 1.0;
    QString blendMode;
    ObjectTransform transform;
    LayerContent content;
    QList<FilterInstance> filters;
};

/// The type of the section that holds the layer.
SectionType sectionType(const Layer &layer);

/// The payload of the layer's section.
std::optional<QByteArray> encodeLayerSection(const Layer &layer, EmbeddedImageMode mode, Error &error);

/// The layer in the payload of a section of that type. honourFilterSelectionFlag is false for the versions of the
/// format that did not limit effects to the selection.
std::unique_ptr<Layer> decodeLayerSection(quint32 type, QByteArrayView payload, bool honourFilterSelectionFlag,
                                          Error &error);
/// The same before it becomes a layer.
std::optional<LayerRecord> decodeLayerRecord(quint32 type, QByteArrayView payload, bool honourFilterSelectionFlag,
                                             PixelReading pixels, Error &error);
/// Null, with an error, when the layer does not take what the record tells.
std::unique_ptr<Layer> layerFrom(LayerRecord record, Error &error);

} // namespace zm
