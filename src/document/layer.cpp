#include "document/layer.h"

#include "base/pixel_limits.h"

namespace zm {

QImage transparentContentImage(const QSizeF &size)
{
    const QSize pixels = coveringPixels(size);
    QImage image;
    if (isAllocatableRasterSize(pixels))
        image = QImage(pixels, QImage::Format_RGBA8888);
    if (!image.isNull())
        image.fill(Qt::transparent);
    return image;
}

Layer::~Layer() = default;

RenderedContent Layer::renderedContent(const RenderServices *services) const
{
    if (!m_renderCache || m_renderCache->contentRevision != m_contentRevision || m_renderCache->services != services)
        m_renderCache = RenderCache{renderContent(services), m_contentRevision, services};
    return m_renderCache->content;
}

bool Layer::setFilters(const QList<FilterInstance> &filters)
{
    if (m_filters == filters)
        return false;
    m_filters = filters;
    bumpRevision();
    return true;
}

void Layer::markContentChanged()
{
    ++m_contentRevision;
    m_renderCache.reset();
    bumpRevision();
}

std::optional<RenderedContent> Layer::cachedContent() const
{
    if (!m_renderCache || m_renderCache->contentRevision != m_contentRevision)
        return std::nullopt;
    return m_renderCache->content;
}

} // namespace zm
