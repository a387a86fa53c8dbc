#pragma once

#include "filters/library_filter.h"

#include <QColor>
#include <QString>

#include <array>

namespace zm {

/// Lays a tinted pattern over a picture, inside or outside a soft shape. The pattern is the alpha of a tile, laid three
/// times, each time moved a little, in a colour of its own. A family: members differ in their tiles.
class TintedMaskOverlayFilter : public LibraryFilter
{
public:
    FilterRenderResult render(const FilterRenderRequest &request) const final;

protected:
    /// What a member reads where nothing is set, as its description says.
    struct Defaults
    {
        QString texture;
        std::array<QColor, 3> colors;
    };

    /// The textures of a family lie in the folder of its name.
    TintedMaskOverlayFilter(const QString &id, const QString &maskTextureFamily, const Defaults &defaults);

private:
    const QString m_maskTextureFamily;
    const Defaults m_defaults;
};

/// Stars, sparkles and confetti.
class StarMaskFilter final : public TintedMaskOverlayFilter
{
public:
    StarMaskFilter();
};

/// Scratches, hairs and dust as on worn film, in colours.
class ColorScratchesFilter final : public TintedMaskOverlayFilter
{
public:
    ColorScratchesFilter();
};

} // namespace zm
