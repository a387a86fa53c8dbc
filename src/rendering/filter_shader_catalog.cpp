#include "rendering/filter_shader_catalog.h"

#include "rendering/library_shader_rows.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// A row of the utilities, which all read the one sampler u_input.
FilterShaderDescriptor utility(const QString &id, const char *label, const QString &resourceName,
                               const QList<QByteArray> &uniformBlockNames, const QList<QByteArray> &uniforms)
{
    return {
        .id = id,
        .label = QCoreApplication::translate("FilterShaderCatalog", label),
        .fragmentResource = u":/zelmoraatelier/shaders/filter-utils/%1.frag.qsb"_s.arg(resourceName),
        .samplers = {"u_input"},
        .uniformBlockNames = uniformBlockNames,
        .uniforms = uniforms,
    };
}

QList<FilterShaderDescriptor> utilities()
{
    return {
        utility(u"addNoise"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Add noise"), u"util_add_noise"_s,
                {"AddNoiseUniforms"}, {"u_sizeAmountSeed", "u_channels"}),
        utility(u"boxBlur"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Box blur"), u"util_box_blur"_s,
                {"BoxBlurUniforms"}, {"u_dirTexelSizeRadius", "u_radius"}),
        utility(u"colorAdjust"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Color adjust"), u"util_color_adjust"_s,
                {"ColorAdjustUniforms"}, {"u_brightnessSaturationHueContrast", "u_exposureTemperatureGamma"}),
        utility(u"colorize"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Colorize"), u"util_colorize"_s,
                {"ColorizeUniforms"}, {"u_fillOpacity"}),
        utility(u"fadeOut"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Fade out"), u"util_fade_out"_s,
                {"FadeOutUniforms"}, {"u_startEnd", "u_modeStrengthSoftnessCurve", "u_invert", "u_fadeColor"}),
        utility(u"gaussianBlur"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Gaussian blur"), u"util_gaussian_blur"_s,
                {"GaussianBlurUniforms"}, {"u_dirTexelSize", "u_sigmaRadius"}),
        utility(u"grayscale"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Grayscale"), u"util_grayscale"_s,
                {"GrayscaleUniforms"}, {"u_amountBlackWhiteThresholdAmount", "u_thresholdPointSoftness"}),
        utility(u"highlightsToAlpha"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Highlights to alpha"),
                u"util_highlights_to_alpha"_s, {"HighlightsToAlphaUniforms"},
                {"u_shadow", "u_midtone", "u_thresholdSoftnessStrength"}),
        utility(u"innerShadow"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Inner shadow"), u"util_inner_shadow"_s,
                {"InnerShadowUniforms"}, {"u_sizeShadowStrength", "u_region", "u_tint"}),
        utility(u"pixelate"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Pixelate"), u"util_pixelate"_s,
                {"PixelateUniforms"}, {"u_sizeBlock"}),
        utility(u"raise"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Raise"), u"util_raise"_s, {"RaiseUniforms"},
                {"u_sizeBevel", "u_region"}),
        utility(u"sobel"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Sobel edge"), u"util_sobel"_s, {"SobelUniforms"},
                {"u_texelSizeStrengthRadius", "u_thresholdInvert"}),
        utility(u"softBevel"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Soft bevel"), u"util_soft_bevel"_s,
                {"SoftBevelUniforms"}, {"u_sizeShadowStrength", "u_region"}),
        utility(u"textureCopy"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Texture copy"), u"util_texture_copy"_s, {},
                {}),
        utility(u"toneMap"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Tone map"), u"util_tone_map"_s,
                {"ToneMapUniforms"}, {"u_shadow", "u_highlight", "u_amount"}),
        utility(u"waterReflection"_s, QT_TRANSLATE_NOOP("FilterShaderCatalog", "Water reflection"),
                u"util_water_reflection"_s, {"WaterReflectionUniforms"},
                {"u_inputOutputSize", "u_originalOffsetReflectionSize", "u_sourceStartEnd", "u_directionGlassMix",
                 "u_opacityFadeWaveStrengthFrequency", "u_rippleSheen"}),
    };
}

FilterShaderDescriptor libraryShader(const LibraryShaderRow &row)
{
    FilterShaderDescriptor descriptor;
    descriptor.id = u"fx/%1"_s.arg(row.id);
    descriptor.label = row.id;
    descriptor.fragmentResource = u":/zelmoraatelier/shaders/library/%1.frag.qsb"_s.arg(row.id);
    for (const QLatin1StringView sampler : row.samplers)
        descriptor.samplers.append(QByteArray(sampler.data(), sampler.size()));
    for (qsizetype i = 0; i < row.fields.size(); ++i)
        descriptor.uniforms.append(u"u_param%1"_s.arg(i).toLatin1());
    if (!descriptor.uniforms.isEmpty())
        descriptor.uniformBlockNames.append("LibraryUniforms"_ba);
    return descriptor;
}

QList<FilterShaderDescriptor> utilitiesAndLibrary()
{
    QList<FilterShaderDescriptor> descriptors = utilities();
    for (const LibraryShaderRow &row : libraryShaderRows())
        descriptors.append(libraryShader(row));
    return descriptors;
}

} // namespace

FilterShaderCatalog::FilterShaderCatalog(const QList<FilterShaderDescriptor> &descriptors)
    : m_descriptors(descriptors)
{
}

const FilterShaderCatalog &FilterShaderCatalog::instance()
{
    static const FilterShaderCatalog catalog(utilitiesAndLibrary());
    return catalog;
}

const FilterShaderDescriptor *FilterShaderCatalog::find(const QString &id) const
{
    const auto found = std::find_if(m_descriptors.cbegin(), m_descriptors.cend(),
                                    [&id](const FilterShaderDescriptor &descriptor) { return descriptor.id == id; });
    return found == m_descriptors.cend() ? nullptr : &*found;
}

} // namespace zm
