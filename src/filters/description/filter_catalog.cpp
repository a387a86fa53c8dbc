#include "filters/description/filter_catalog.h"

#include "filters/filter_registry.h"

using namespace Qt::StringLiterals;

namespace zm {

const QList<FilterCategoryGroup> &FilterCatalog::imageGroups()
{
    static const QList<FilterCategoryGroup> groups{
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Basics"),
         u"reset_board"_s,
         {u"color-adjust"_s, u"shadow"_s, u"relight"_s, u"sharpen"_s}},
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Edges"),
         u"path_edit"_s,
         {u"bokeh-pearls"_s, u"brushstroke-photo-frame"_s, u"scratch-mask"_s, u"shape-tool"_s, u"fade-image"_s,
          u"focus-frame"_s, u"jagged-edge"_s, u"light-leak"_s, u"petzval-lens"_s, u"prism-flare"_s, u"bevel"_s,
          u"corner-editor"_s, u"star-mask"_s, u"stardust"_s, u"swirl"_s, u"swirl-frame"_s, u"vignette"_s,
          u"zoom-trails"_s}},
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Recolor, Tone, add FX"),
         u"magic_wand"_s,
         {u"lomo"_s,          u"crystal-contrast"_s, u"soft-amber"_s,      u"80sflash"_s,
          u"autumn-glow"_s,   u"winter-breeze"_s,    u"film-grader"_s,     u"film-grain"_s,
          u"halation"_s,      u"signal-melt"_s,      u"pixel-drift"_s,     u"dreamy-blend"_s,
          u"colorswap"_s,     u"grayscale"_s,        u"selective-color"_s, u"comic-book"_s,
          u"voltage-ink"_s,   u"pencil-sketch"_s,    u"painting"_s,        u"watercolor-wash"_s,
          u"paper-diorama"_s, u"embroidery"_s,       u"stippling"_s,       u"low-poly-effect"_s,
          u"stained-glass"_s, u"light-sculptor"_s,   u"glass-caustics"_s,  u"holographic-foil"_s,
          u"riso-press"_s,    u"tilt-shift"_s,       u"pixelate"_s,        u"hdr-photo"_s,
          u"retro"_s,         u"sepia-tone"_s,       u"tritone"_s,         u"heatmap"_s,
          u"nightvision"_s,   u"blueprint"_s,        u"ghost"_s,           u"sobel"_s}},
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Styletransfers"), u"paint_brush"_s, {u"renaissance"_s}},
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Frames"),
         u"tab_image_layer"_s,
         {u"art-deco-frame"_s,
          u"borders"_s,
          u"braided-rope-frame"_s,
          u"bubbles-border"_s,
          u"camouflage-picture-frame"_s,
          u"chrome-border"_s,
          u"color-brush-frame"_s,
          u"confetti-strokes"_s,
          u"cotton-candy-border"_s,
          u"fabric-picture-frame"_s,
          u"fade-photo-frame"_s,
          u"film-strip"_s,
          u"fire-frame"_s,
          u"floral-flourish"_s,
          u"flower-frame"_s,
          u"frosted-border"_s,
          u"fruity-frame"_s,
          u"gradient-border"_s,
          u"grass-photo-frame"_s,
          u"heart-frame"_s,
          u"instant-camera"_s,
          u"lace-cutout-frame"_s,
          u"leather-frame"_s,
          u"mosaic-frame"_s,
          u"neon-border"_s,
          u"ocean-spray-border"_s,
          u"ornament-frame"_s,
          u"paint-splatter-frame"_s,
          u"paper-border"_s,
          u"pastel-frame"_s,
          u"plasma-picture-frame"_s,
          u"low-poly"_s,
          u"soft-shadow-border"_s,
          u"mat-picture-frame"_s,
          u"spectrum-lines-frame"_s,
          u"stained-glass-frame"_s,
          u"stone-picture-frame"_s,
          u"wooden-picture-frame"_s}},
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Photomontages, Fun & Art"),
         u"tab_layers"_s,
         {u"canvas-tiles"_s,
          u"flag-collage"_s,
          u"funhouse-lens"_s,
          u"infinity"_s,
          u"kaleidoscope"_s,
          u"lenticular-glass"_s,
          u"pocket-cosmos"_s,
          u"rain-glass"_s,
          u"motivational-poster"_s,
          u"newscast"_s,
          u"photo-circles"_s,
          u"popart-collage"_s,
          u"personalized-postage-stamp"_s,
          u"stereodelic"_s,
          u"sunburst"_s,
          u"tile-mosaic"_s,
          u"wall-painting"_s,
          u"wanted-poster"_s,
          u"water-reflection"_s,
          u"colorswirl"_s}},
    };
    return groups;
}

const QList<FilterCategoryGroup> &FilterCatalog::textGroups()
{
    static const QList<FilterCategoryGroup> groups{
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Basics"), u"reset_board"_s, {u"shadow"_s}},
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Glitter & Bling"),
         u"magic_wand"_s,
         {u"stardust-text"_s, u"mica-text"_s}},
        {QT_TRANSLATE_NOOP("LayerFilterAdapter", "Effect"),
         u"path_edit"_s,
         {u"fade-image"_s, u"water-reflection"_s, u"infinity"_s, u"swirl"_s}},
    };
    return groups;
}

QString FilterCatalog::groupTitle(const FilterCategoryGroup &group)
{
    return QCoreApplication::translate("LayerFilterAdapter", group.title);
}

QList<const Filter *> FilterCatalog::offeredFilters(const FilterCategoryGroup &group)
{
    QList<const Filter *> filters;
    for (const QString &id : group.filterIds) {
        const Filter *filter = FilterRegistry::instance().find(id);
        if (filter && !filter->flags().testFlag(FilterFlag::Experimental))
            filters.append(filter);
    }
    return filters;
}

} // namespace zm
