#include "rendering/library_shader_rows.h"

#include <algorithm>
#include <iterator>

namespace zm {

namespace {

/// A row as it is written down: names between single spaces.
struct RowText
{
    const char *id;
    const char *samplers;
    const char *fields;
};

constexpr RowText kRows[] = {
    {"art-deco-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_width u_ornament u_spacing u_lineWeight u_shine u_color0 u_color1"},
    {"braided-rope-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_width u_twistDensity u_roughness u_lightAngle u_color0 u_color1 u_color2 "
     "u_overlap"},
    {"lace-cutout-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_width u_detailSize u_openness u_relief u_pattern u_color"},
    {"leather-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_width u_padding u_grain u_cornerRadius u_stitchSpacing u_stitchLength "
     "u_color u_threadColor u_seed"},
    {"spectrum-lines-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_width u_lineCount u_spacing u_colorCycles u_colorShift u_palette "
     "u_variation u_relief"},
    {"stained-glass-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_width u_paneSize u_seamWidth u_shine u_translucency u_color0 u_color1 "
     "u_color2 u_color3 u_leadColor u_seed"},
    {"stained-glass", "u_input",
     "u_size u_paneSize u_colorLevels u_saturation u_seamWidth u_leadColor u_shine u_refraction u_translucency "
     "u_seed"},
    {"embroidery", "u_input",
     "u_size u_stitchSize u_direction u_followContours u_threadSheen u_fabricTexture u_colorDepth u_fabricColor "
     "u_seed u_renderScale u_formsSize u_step"},
    {"low-poly", "u_input",
     "u_size u_facetSize u_variation u_saturation u_edgeWidth u_edgeColor u_seed u_edgeFacetSize u_frameWidth "
     "u_inputSize u_sourceOffset"},
    {"low-poly-effect", "u_input", "u_size u_facetSize u_variation u_saturation u_edgeWidth u_edgeColor u_seed"},
    {"pixel-drift", "u_input u_sorted", "u_sourceBatch u_atlasLayout u_streak u_amount u_lineMapping"},
    {"pixel-drift-prepare", "u_input", "u_sourceBatch u_atlasLayout u_streak u_thresholdOrder u_lineMapping"},
    {"stippling", "u_input",
     "u_size u_dotSize u_density u_contrast u_inkColor u_paperColor u_paperTexture u_seed u_renderScale"},
    {"paper-diorama-smooth", "u_input", "u_size u_direction u_radiusPx u_detail"},
    {"paper-diorama", "u_input u_soft",
     "u_size u_renderScale u_layers u_depthPx u_lightDirection u_palette u_paperTexture"},
    {"watercolor-wash", "u_input", "u_size u_renderScale u_bleed u_pigment u_detail u_paper u_blend"},
    {"80sflash", "u_input u_soft",
     "u_size u_flashCenter u_flashRadius u_flash u_saturation u_softFocus u_glow u_warmth u_vignette u_grain "
     "u_grainSize"},
    {"confetti-strokes", "u_input",
     "u_inputSize u_outputSize u_pad u_frameWidth u_shapeScale u_density u_spread u_cornerEmphasis u_seed u_color0 "
     "u_color1 u_color2 u_color3 u_color4"},
    {"autumn-glow", "u_input u_soft",
     "u_size u_glowCenter u_glowRadius u_flash u_saturation u_warmth u_softness u_bokeh u_vignette u_grain "
     "u_grainSize"},
    {"bevel", "u_input", "u_size u_bevel u_strength u_smoothness u_sign u_cornerRadius u_cornerStyle"},
    {"bokeh-pearls", "u_input u_mask",
     "u_size u_density u_radius u_softness u_rim u_intensity u_shape u_colorBoost u_variation u_overlap "
     "u_colorWarmth u_maskInverted u_step u_reduction"},
    {"blueprint", "u_input",
     "u_size u_texelSize u_tint u_lineColor u_intensity u_edgeStrength u_edgeRadius u_tintMix u_gridSize "
     "u_gridOpacity u_gridColor u_mapSize"},
    {"bubbles-border", "u_input",
     "u_inputSize u_outputSize u_pad u_frameWidth u_bubbleRadius u_cornerRadius u_spread u_density u_color0 "
     "u_color1 u_color2 u_color3"},
    {"chrome-border", "u_input",
     "u_inputSize u_outputSize u_pad u_width u_bevel u_polish u_reflections u_lightAngle u_roundness u_tint"},
    {"color-brush-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_framePad u_bleed u_brushWidth u_roughness u_seed u_color0 u_color1 u_color2 "
     "u_color3 u_color4"},
    {"colorswap", "u_input", "u_pick u_negate u_intensity"},
    {"comic-book", "u_input",
     "u_size u_style u_ink u_levels u_dotSize u_colorPunch u_brightnessCorrection u_renderScale"},
    {"cotton-candy-border", "u_input",
     "u_inputSize u_outputSize u_pad u_frameWidth u_tuftRadius u_cornerRadius u_airiness u_color"},
    {"crystal-contrast", "u_input", "u_amount u_contrast u_colorPop u_coolTone u_size u_cell"},
    {"dreamy-blend", "u_input",
     "u_size u_tint u_tintAmount u_colorSpread u_maskSize u_maskFeather u_maskExpo u_lightness u_sharpen "
     "u_sharpenReach"},
    {"film-grader", "u_input",
     "u_size u_style u_strength u_saturation u_contrast u_fade u_grain u_vignette u_artifacts u_seed u_fadedBlack "
     "u_shadowTint u_lightTint u_grainSize u_hueAxis u_hueDraw u_dyeDensity"},
    {"film-grain", "u_input", "u_size u_style u_amount u_opacity u_seed u_scale"},
    {"fire-frame", "u_input",
     "u_inputSize u_outputSize u_pad u_frameWidth u_textureSize u_glowSize u_intensity u_radius u_structure u_seed "
     "u_color0 u_color1 u_color2 u_style"},
    {"flag-collage", "u_input u_flag u_mask", "u_inSize u_outSize u_inset u_amplitude u_wavelength u_flagOpacity"},
    {"frame-swirl", "u_bg u_input",
     "u_swirlAngle u_swirlRadius u_bgGammaInv u_negative u_thumbScale u_thumbAlpha u_thumbTilt u_maskFeather "
     "u_ovalShape u_aspectRatio u_size u_fadeShare"},
    {"frosted-border", "u_input u_frosted",
     "u_inputSize u_outputSize u_pad u_borderWidth u_cornerRadius u_frost u_refraction u_highlight"},
    {"funhouse-lens", "u_input", "u_size u_style u_strength u_radius u_center"},
    {"glass-caustics", "u_input", "u_size u_causticScale u_refraction u_light u_flow u_chroma u_seed"},
    {"ghost", "u_input",
     "u_size u_texelSize u_tint u_strength u_blurRadius u_noise u_threshold u_softness u_glow u_fade u_copySize"},
    {"gradient-border", "u_input",
     "u_inputSize u_outputSize u_pad u_borderWidth u_cornerRadius u_rotation u_balance u_softness u_color0 u_color1"},
    {"halation-highlights", "u_input", "u_threshold u_softness"},
    {"halation", "u_input u_highlights u_blurred", "u_strength u_warmth"},
    {"hdr-photo", "u_input", "u_texelSize u_amount u_detail u_color u_radius u_step u_mapSize"},
    {"heatmap", "u_input u_lut", "u_lutSize u_mix u_contrast u_gamma u_reverse u_bands"},
    {"holographic-foil", "u_input", "u_size u_angle u_rainbow u_foilScalePx u_shimmer u_relief u_blend"},
    {"kaleidoscope", "u_input", "u_size u_center u_wedges u_offset u_zoom u_radius u_mirror"},
    {"lenticular-glass", "u_input", "u_size u_angle u_ribSize u_refraction u_softness u_colorSplit u_highlights"},
    {"light-leak-edges", "u_input",
     "u_size u_start u_end u_strength u_spread u_softness u_color_a u_color_b u_haze u_streaks u_seed u_mapSize"},
    {"light-sculptor", "u_input",
     "u_size u_lightCenter u_lightRadius u_depth u_normalStepPx u_lightHeight u_softness u_ambient u_shine "
     "u_material"},
    {"lomo_post", "u_input u_bg", "u_texelSize u_satMul u_sharpen u_cornerBlur u_sharpenReach"},
    {"lomo_pre", "u_input", "u_satMul u_invGamma u_crossProcess"},
    {"mica-text", "", "u_size u_accent1 u_accent2 u_amount u_sizeMix u_shine u_goldMix u_accentMix u_seed"},
    {"neon-border", "u_input",
     "u_inputSize u_outputSize u_pad u_frameWidth u_glowSize u_intensity u_radius u_colorMix u_seed u_color0 "
     "u_color1"},
    {"nightvision-comp", "u_input u_noisy u_green_blur u_mask_tint",
     "u_size u_tint_a u_tint_b u_scanlines u_vignette u_gain u_tint_strength u_line_strength u_glow"},
    {"nightvision-pre", "u_input", "u_contrast"},
    {"ocean-spray-border", "u_input",
     "u_inputSize u_outputSize u_pad u_frameWidth u_waveReach u_sprayReach u_waveEnergy u_foam u_spray "
     "u_cornerRadius u_waterColor u_sprayColor"},
    {"paint-splatter-frame", "u_input u_palette",
     "u_inputSize u_outputSize u_pad u_hashParams u_splashBand u_detailParams u_gridRadiusScales u_edgeParams "
     "u_splashParams u_gridParams"},
    {"painting", "u_input", "u_texelSize u_strength u_satMul u_brightMul"},
    {"pencil-sketch", "u_input u_edges u_tile", "u_size u_tileSize u_color u_tone u_texture u_edgeStrength u_softness"},
    {"petzval-lens", "u_input u_soft u_mask", "u_size u_center u_blurStrength u_swirl u_vignette"},
    {"pixelate", "u_input", "u_size u_block u_palette u_saturation u_contrast u_dither u_outline u_gridSize u_step"},
    {"pocket-cosmos", "u_input",
     "u_size u_planetSize u_rotation u_horizon u_curvature u_donutHole u_atmosphere u_sphereDepth"},
    {"polaroid", "u_input", "u_inSize u_outSize u_inset u_amplitude u_wavelength"},
    {"popart-tile", "u_input", "u_tint u_gammaExponent u_posterize"},
    {"prism-flare", "u_input",
     "u_size u_start u_end u_style u_intensity u_spread u_width u_fragmentation u_ghosts u_seed u_mapSize"},
    {"rain-glass", "u_input", "u_size u_dropletDensity u_dropletSize u_refraction u_streaking u_fog"},
    {"relight", "u_input",
     "u_frame u_lightGeometry0 u_lightGeometry1 u_lightGeometry2 u_lightGeometry3 u_lightGeometry4 "
     "u_lightGeometry5 u_lightGeometry6 u_lightGeometry7 u_lightColor0 u_lightColor1 u_lightColor2 u_lightColor3 "
     "u_lightColor4 u_lightColor5 u_lightColor6 u_lightColor7 u_lightShape0 u_lightShape1 u_lightShape2 "
     "u_lightShape3 u_lightShape4 u_lightShape5 u_lightShape6 u_lightShape7"},
    {"jagged-edge", "u_input", "u_size u_edge_size u_roughness u_pattern_size u_detail u_style u_seed u_softness"},
    {"retro", "u_input",
     "u_size u_tint u_tintAmount u_colorSpread u_contrast u_shadowLift u_saturation u_grain u_sharpen u_seed "
     "u_grainSize"},
    {"riso-press", "u_input",
     "u_size u_palette u_screenScale u_misregistration u_inkDensity u_grain u_seed u_renderScale"},
    {"rounded-corners", "u_input", "u_size u_radius u_style"},
    {"selective-color", "u_input u_gray",
     "u_targetHue u_tolerance u_softness u_backgroundSaturation u_targetBoost u_amount u_invert"},
    {"sepia-tone", "u_input", "u_tintHS u_brightness u_contrast u_intensity"},
    {"sharpen", "u_input", "u_size u_strength u_radius u_step"},
    {"signal-melt", "u_input", "u_size u_tearAmount u_blockSize u_displacement u_rgbSplit u_seed u_mode"},
    {"sobel", "u_input u_edges", "u_mix u_invert"},
    {"soft-amber", "u_input", "u_strength u_warmth u_pastel u_greens"},
    {"stardust", "u_input u_mask",
     "u_size u_sparkleColor u_sparkSeed u_fineSeed u_sparkParams u_fineParams u_styleParams u_renderParams "
     "u_maskInverted u_starsOnly"},
    {"stereodelic-gray", "u_input", "u_levelLow u_levelHigh u_invGamma"},
    {"stereodelic-stereo", "u_input", "u_rollUV"},
    {"tinted-mask-base", "u_input u_texture u_mask",
     "u_size u_texSize u_textureScale u_inverted u_offset u_intensity u_color0 u_color1 u_color2"},
    {"torn-paper", "u_input", "u_size u_tearsize u_roughness u_feather u_paperwidth u_papercolor u_shadow u_seed"},
    {"tilt-shift", "u_input u_blurred", "u_size u_focusPosition u_focusWidth u_angle u_blurStrength u_colorPunch"},
    {"tritone", "u_input", "u_toneLow u_toneMid u_toneHigh u_balance u_contrast u_amount"},
    {"voltage-ink", "u_input",
     "u_size u_edgeThreshold u_lineIntensity u_glowRadius u_glowColor u_backgroundDim u_mapSize u_step u_reach "
     "u_edgeScale"},
    {"vignette", "u_input u_mask", "u_strength u_mask_invert u_tint"},
    {"wall-painting", "u_input u_wall u_mask", "u_inSize u_outSize u_wallSize u_textureDepth u_contrast u_opacity"},
    {"wanted-poster", "u_input u_mask", "u_adjustment"},
    {"winter-breeze", "u_input u_soft",
     "u_size u_lightCenter u_lightRadius u_flash u_saturation u_coldness u_softness u_frost u_storm u_vignette "
     "u_grain u_grainSize"},
    {"zoom-trails", "u_input", "u_size u_center u_focusRadius u_length u_amount u_focusSoftness u_glow u_colorSplit"},
};

QList<QLatin1StringView> names(const char *text)
{
    QList<QLatin1StringView> result;
    for (const QLatin1StringView name : qTokenize(QLatin1StringView(text), u' ', Qt::SkipEmptyParts))
        result.append(name);
    return result;
}

} // namespace

const QList<LibraryShaderRow> &libraryShaderRows()
{
    static const QList<LibraryShaderRow> rows = [] {
        QList<LibraryShaderRow> result;
        result.reserve(std::size(kRows));
        for (const RowText &row : kRows)
            result.append({QLatin1StringView(row.id), names(row.samplers), names(row.fields)});
        return result;
    }();
    return rows;
}

const LibraryShaderRow *findLibraryShader(QStringView bareId)
{
    const QList<LibraryShaderRow> &rows = libraryShaderRows();
    const auto found = std::ranges::find_if(rows, [bareId](const LibraryShaderRow &row) { return row.id == bareId; });
    return found == rows.cend() ? nullptr : &*found;
}

} // namespace zm
