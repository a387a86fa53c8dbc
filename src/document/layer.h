#pragma once

#include "document/scene_object.h"
#include "values/filter_instance.h"

#include <QImage>
#include <QList>
#include <QSizeF>

#include <optional>

namespace zm {

struct RenderServices;

enum class LayerType { Image = 0, Text = 1, Shape = 2 };

/// A layer's pixels before effects, in QImage::Format_RGBA8888, and the logical size in layer units that they stand
/// for. The two differ when a fractional size was rendered to whole pixels.
struct RenderedContent
{
    QImage image;
    QSizeF size;
};

/// Transparent pixels in QImage::Format_RGBA8888 that cover a box of layer units, to draw content into. Null for a box
/// beyond what a raster may have.
QImage transparentContentImage(const QSizeF &size);

/// A scene object with content that can be drawn and a stack of effects over it.
class Layer : public SceneObject
{
public:
    using SceneObject::SceneObject;
    ~Layer() override;

    virtual LayerType layerType() const = 0;
    /// Draws the content at its own resolution, without effects and without the transform.
    virtual RenderedContent renderContent(const RenderServices *services) const = 0;

    /// The content's pixels, drawn again only when the content or the services changed since the last call.
    RenderedContent renderedContent(const RenderServices *services) const;

    const QList<FilterInstance> &filters() const { return m_filters; }
    /// Returns whether something changed; compares field by field.
    bool setFilters(const QList<FilterInstance> &filters);

    /// Grows when the content changes, and not with placement, effects, name or visibility.
    quint64 contentRevision() const { return m_contentRevision; }

protected:
    /// Called by every effective setter of content.
    void markContentChanged();
    /// The cached pixels of the present content, whichever services they were made with.
    std::optional<RenderedContent> cachedContent() const;

private:
    struct RenderCache
    {
        RenderedContent content;
        quint64 contentRevision = 0;
        const RenderServices *services = nullptr;
    };

    mutable std::optional<RenderCache> m_renderCache;
    QList<FilterInstance> m_filters;
    quint64 m_contentRevision = 0;
};

} // namespace zm
