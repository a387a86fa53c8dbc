#include "editor/shape_preview_image_provider.h"

#include "generators/shape_generator.h"
#include "generators/shape_generator_registry.h"
#include "generators/shape_preview.h"
#include "values/parameter_definition.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// A side that is not asked for is as long as the other.
QSize pictureSize(const QSize &requested)
{
    const int width = requested.width() > 0 ? requested.width() : requested.height();
    const int height = requested.height() > 0 ? requested.height() : requested.width();
    if (width <= 0)
        return {ShapePreviewImageProvider::kDefaultSide, ShapePreviewImageProvider::kDefaultSide};
    QSize size(width, height);
    if (std::max(width, height) > ShapePreviewImageProvider::kMaximumSide)
        size.scale(ShapePreviewImageProvider::kMaximumSide, ShapePreviewImageProvider::kMaximumSide,
                   Qt::KeepAspectRatio);
    return size.expandedTo({1, 1});
}

} // namespace

ShapePreviewImageProvider::ShapePreviewImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QImage ShapePreviewImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const ShapeGenerator *generator = ShapeGeneratorRegistry::instance().find(id.section(u'/', -1));
    QImage image;
    if (generator) {
        image = QImage(pictureSize(requestedSize), QImage::Format_RGBA8888_Premultiplied);
        image.fill(Qt::transparent);
        const QSizeF shapeSize = generator->defaultSize();
        QRect box(QPoint(), shapeSize.scaled(image.size(), Qt::KeepAspectRatio).toSize().expandedTo({1, 1}));
        box.moveCenter(image.rect().center());
        QPainter(&image).drawImage(
            box, shapePreview(*generator, completeParameters(generator->parameters(), {}), shapeSize, box.size()));
    }
    if (size)
        *size = image.size();
    return image;
}

QString shapePreviewSource(const QString &generatorId)
{
    return u"image://%1/%2/%3"_s.arg(kShapePreviewProviderId, u"shape"_s, generatorId);
}

} // namespace zm
