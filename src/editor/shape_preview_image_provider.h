#pragma once

#include <QQuickImageProvider>

namespace zm {

/// Gives the interface pictures of shapes as their generators draw them by themselves, by the generator's id at the end
/// of the address. Asked from any thread.
class ShapePreviewImageProvider : public QQuickImageProvider
{
public:
    /// Of a picture for which no size is asked, pixels.
    static constexpr int kDefaultSide = 96;
    static constexpr int kMaximumSide = 1024;

    ShapePreviewImageProvider();

    /// The shape in its own proportions in the middle of a picture of the requested size, transparent around it; larger
    /// requests are reduced in proportion. Null for an unknown shape.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

/// What the engine knows the provider as.
inline constexpr QLatin1StringView kShapePreviewProviderId("shape-preview");

/// The address of a shape's picture.
QString shapePreviewSource(const QString &generatorId);

} // namespace zm
