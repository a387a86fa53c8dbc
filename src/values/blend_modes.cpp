#include "values/blend_modes.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr std::array kBlendModes{
    BlendMode{"source-over"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Normal"),
              QPainter::CompositionMode_SourceOver},
    BlendMode{"multiply"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Multiply"), QPainter::CompositionMode_Multiply},
    BlendMode{"screen"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Screen"), QPainter::CompositionMode_Screen},
    BlendMode{"overlay"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Overlay"), QPainter::CompositionMode_Overlay},
    BlendMode{"darken"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Darken"), QPainter::CompositionMode_Darken},
    BlendMode{"lighten"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Lighten"), QPainter::CompositionMode_Lighten},
    BlendMode{"color-dodge"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Color Dodge"),
              QPainter::CompositionMode_ColorDodge},
    BlendMode{"color-burn"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Color Burn"),
              QPainter::CompositionMode_ColorBurn},
    BlendMode{"hard-light"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Hard Light"),
              QPainter::CompositionMode_HardLight},
    BlendMode{"soft-light"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Soft Light"),
              QPainter::CompositionMode_SoftLight},
    BlendMode{"difference"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Difference"),
              QPainter::CompositionMode_Difference},
    BlendMode{"exclusion"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Exclusion"),
              QPainter::CompositionMode_Exclusion},
    // QPainter has no composition that mixes the channels of a pixel.
    BlendMode{"hue"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Hue"), QPainter::CompositionMode_SourceOver},
    BlendMode{"saturation"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Saturation"),
              QPainter::CompositionMode_SourceOver},
    BlendMode{"color"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Color"), QPainter::CompositionMode_SourceOver},
    BlendMode{"luminosity"_L1, QT_TRANSLATE_NOOP("SceneObjectAdapter", "Luminosity"),
              QPainter::CompositionMode_SourceOver},
};

} // namespace

QString BlendMode::translatedLabel() const
{
    return QCoreApplication::translate("SceneObjectAdapter", label);
}

std::span<const BlendMode> blendModes()
{
    return kBlendModes;
}

QPainter::CompositionMode compositionMode(const QString &key)
{
    const auto row = std::ranges::find_if(kBlendModes, [&](const BlendMode &mode) { return key == mode.key; });
    return row == kBlendModes.end() ? QPainter::CompositionMode_SourceOver : row->composition;
}

} // namespace zm
