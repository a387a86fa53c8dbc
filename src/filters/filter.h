#pragma once

#include "values/parameter_definition.h"

#include <QColor>
#include <QFlags>
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>

namespace zm {

struct FilterRenderRequest;
struct FilterRenderResult;

enum class FilterFlag : quint32 {
    /// The result may leave the layer's box.
    ExtendsBeyondBounds = 1,
    /// An export should offer transparency.
    PrefersTransparentExport = 2,
    /// The inspector stays open when the effect is added.
    KeepInspectorOpen = 4,
    /// An instance can be limited to the raster selection.
    SupportsRasterSelection = 8,
    /// Renders in documents that have it, but is not offered.
    Experimental = 16,
};
Q_DECLARE_FLAGS(FilterFlags, FilterFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(FilterFlags)

enum class FilterCategory { None = 0, Basic = 1, Color = 2, Edge = 3, Frame = 4, Montages = 5 };

/// Where in the making of a picture the filter works. Evaluation treats all stages alike, in the order of the stack.
enum class FilterStage { Raster = 0, PostTransform = 1, Document = 2 };

/// How the interface shows that the first render of a new instance takes its time.
enum class FirstRenderLoading { Off = 0, Delayed = 1, Paint = 2 };

/// A filter that comes along when another one is added.
struct AutoAddFilter
{
    QString filterName;
    /// Applied after the one that brings it.
    bool after = true;
    /// Only when the stack has no instance of it yet.
    bool ifMissing = false;
    ParameterValues parameters;
};

/// A text layer that comes along when a filter is added.
struct AutoAddText
{
    QString name;
    QString text;
    QString font;
    double size = 0.1; ///< of the layer's height
    QColor color = Qt::black;
    QString align;
    double letterSpacing = 0.0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    QRectF rect; ///< fractions of the layer
    std::optional<Stroke> stroke;
};

/// An effect: what it is called, its controls, how the interface treats it, and how it renders. Without state and
/// shared by all its instances, which name it by id.
class Filter
{
public:
    Filter() = default;
    virtual ~Filter() = default;

    Filter(const Filter &) = delete;
    Filter &operator=(const Filter &) = delete;

    /// Stored in documents.
    virtual QString id() const = 0;
    /// The three labels are for people, translated.
    virtual QString label() const = 0;
    virtual QString pickerLabel() const { return label(); }
    virtual QString inspectorLabel() const { return pickerLabel(); }
    virtual FilterCategory category() const { return FilterCategory::Edge; }
    virtual FilterStage stage() const { return FilterStage::Raster; }
    virtual FirstRenderLoading firstRenderLoading() const { return FirstRenderLoading::Delayed; }
    virtual FilterFlags flags() const { return {}; }
    /// The formats of the pictures that go in and come out; 0, RGBA8888 with straight alpha, is the only one so far.
    virtual int inputImageFormat() const { return 0; }
    virtual int outputImageFormat() const { return 0; }
    /// Words to search by, in the language of the interface and in English.
    virtual QStringList pickerKeywords() const = 0;
    virtual QStringList resources() const { return {}; }
    virtual QList<ParameterDefinition> controls() const = 0;
    virtual QList<AutoAddFilter> autoAddFilters() const { return {}; }
    virtual QList<AutoAddText> autoAddText() const { return {}; }
    virtual std::optional<QColor> preferredBackground() const { return std::nullopt; }

    /// False for a filter that works on the processor, too: only such a one is asked to render without a renderer.
    virtual bool needsRenderer() const { return true; }
    /// Pure: the same request gives the same picture. A failure gives the input. The request has a picture.
    virtual FilterRenderResult render(const FilterRenderRequest &request) const = 0;
};

} // namespace zm
