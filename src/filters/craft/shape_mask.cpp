#include "filters/craft/shape_mask.h"

#include "generators/shape_generator.h"
#include "generators/shape_generator_registry.h"
#include "values/editable_path.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// At a feather of 100 the edge is spread over about half the shorter side.
constexpr double kFeatherPerSide = 0.002;

/// The blur, in pixels of the mask, that a mask is drawn small enough for.
constexpr double kSoftMaskSigma = 4.0;

/// The longer side of a mask for corners, in pixels.
constexpr double kCornerMaskSide = 384.0;

} // namespace

QPainterPath shapeMaskPath(const QString &generatorId, const ParameterValues &shapeParameters,
                           const MaskTransform &transform, const QSizeF &size)
{
    const ShapeGenerator *generator = ShapeGeneratorRegistry::instance().find(generatorId);
    if (!generator)
        return {};
    const auto inBox = [&size](double x, double y) { return QPointF(x * size.width(), y * size.height()); };
    const QPointF pivot = inBox(transform.pivotX, transform.pivotY);
    const QPointF move = inBox(transform.x - 0.5, transform.y - 0.5) + pivot;
    QTransform matrix;
    matrix.translate(move.x(), move.y());
    matrix.rotate(transform.rotation);
    matrix.scale(transform.scaleX, transform.scaleY);
    matrix.translate(-pivot.x(), -pivot.y());
    return matrix.map(painterPath(generator->generate(size, shapeParameters)));
}

QImage filledShapeMask(const QPainterPath &path, const QSizeF &boxSize, const QSize &imageSize)
{
    QImage mask(imageSize, QImage::Format_RGBA8888);
    if (mask.isNull() || boxSize.isEmpty())
        return mask;
    mask.fill(QColor(255, 255, 255, 0));
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(imageSize.width() / boxSize.width(), imageSize.height() / boxSize.height());
    painter.fillPath(path, Qt::white);
    return mask;
}

double featherSigma(double feather, const QSize &imageSize)
{
    return std::clamp(feather, 0.0, 100.0) * kFeatherPerSide * std::min(imageSize.width(), imageSize.height());
}

PassChain::Picture addShapeMask(PassChain &chain, const FilterRenderRequest &request)
{
    const QSizeF box = request.bounds.size();
    const QPainterPath path =
        shapeMaskPath(request.text(u"mask"_s), {}, request.maskTransform(u"mask.transform"_s), box);
    // A soft mask has nothing to show between the pixels of a smaller picture, which the shader's sampler enlarges.
    const double sigma = featherSigma(request.number(u"mask.feather"_s), request.size());
    const double scale = std::min(kSoftMaskSigma / std::max(sigma, kSoftMaskSigma), 1.0);
    const QSize size = (QSizeF(request.size()) * scale).toSize().expandedTo({1, 1});
    return chain.gaussianBlur(chain.source(filledShapeMask(path, box, size)), sigma * scale);
}

PassChain::Picture addCornerMask(PassChain &chain, const QSizeF &size, double share)
{
    const QSize maskSize =
        size.scaled(kCornerMaskSide, kCornerMaskSide, Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1));
    const QPainterPath path = shapeMaskPath(u"ellipse"_s, {}, {.scaleX = share, .scaleY = share}, size);
    const PassChain::Picture mask = chain.source(filledShapeMask(path, size, maskSize));
    return chain.gaussianBlur(mask, featherSigma(75.0, maskSize));
}

} // namespace zm
