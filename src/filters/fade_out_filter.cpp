#include "filters/fade_out_filter.h"

#include "filters/filter_definition.h"
#include "rendering/filter_utility_renderer.h"
#include "rendering/render_services.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// White without alpha: as it comes, a picture fades to transparency.
constexpr QColor kDefaultFadeColor(255, 255, 255, 0);

} // namespace

QStringList FadeOutFilter::pickerKeywords() const
{
    constexpr auto english = QT_TR_NOOP("alpha, fade, gradient, transparent");
    QStringList words = keywordList(tr(english)) + keywordList(QString::fromLatin1(english));
    words.removeDuplicates();
    return words;
}

QList<ParameterDefinition> FadeOutFilter::controls() const
{
    ChoiceParameter mode;
    static_cast<ParameterHead &>(mode) = {u"mode"_s, tr("Mode"), {}, ParameterUnit::None};
    mode.options = {{u"linear"_s, tr("Linear"), {}}, {u"radial"_s, tr("Radial"), {}}};
    mode.defaultValue = u"linear"_s;
    GradientPositionParameter position;
    static_cast<ParameterHead &>(position) = {u"position"_s, tr("Fade"), {}, ParameterUnit::None};
    position.buttonLabel = tr("Position Fade");
    BooleanParameter invert;
    static_cast<ParameterHead &>(invert) = {u"invert"_s, tr("Invert"), {}, ParameterUnit::None};
    ColorParameter color;
    static_cast<ParameterHead &>(color) = {u"fadeColor"_s, tr("Fade color"), {}, ParameterUnit::None};
    color.defaultValue = kDefaultFadeColor;
    DocumentColorParameter documentColor;
    documentColor.id = u"_documentColor"_s;
    documentColor.label = tr("Document color");
    return {mode,
            position,
            realParameter(u"strength"_s, tr("Strength"), 100.0, 0.0, 100.0, 1.0),
            realParameter(u"curve"_s, tr("Curve"), 100.0, 25.0, 250.0, 1.0),
            realParameter(u"softness"_s, tr("Softness"), 60.0, 1.0, 100.0, 1.0),
            invert,
            color,
            documentColor};
}

QImage FadeOutFilter::faded(const QImage &image, const ParameterValues &parameters, const RenderServices *services)
{
    if (!services || !services->filterRenderer || parameters.number(u"strength"_s, 100.0) <= 0.0)
        return image;
    const GradientPosition position = parameters.gradientPosition(u"position"_s, {});
    FadeOutSettings settings;
    settings.start = {position.x1, position.y1};
    settings.end = {position.x2, position.y2};
    const bool isRadial = parameters.string(u"mode"_s, u"linear"_s) == "radial"_L1;
    settings.mode = isRadial ? FadeMode::Radial : FadeMode::Linear;
    settings.strength = parameters.number(u"strength"_s, 100.0) / 100.0;
    settings.curve = parameters.number(u"curve"_s, 100.0) / 100.0;
    settings.softness = parameters.number(u"softness"_s, 60.0) / 100.0;
    settings.inverted = parameters.boolean(u"invert"_s, false);
    settings.color = parameters.color(u"fadeColor"_s, kDefaultFadeColor);
    const QImage faded = services->filterRenderer->fadeOut(image, settings);
    return faded.isNull() ? image : faded;
}

} // namespace zm
