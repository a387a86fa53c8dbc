#include "filters/fade_out_filter.h"

#include "filters/description/filter_definition.h"
#include "rendering/filter_utility_renderer.h"
#include "services/render_services.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

/// White without alpha: as it comes, a picture fades to transparency.
constexpr QColor kDefaultFadeColor(255, 255, 255, 0);

} // namespace

QStringList FadeOutFilter::pickerKeywords() const
{
    constexpr auto english = QT_TR_NOOP("alpha, fade, gradient, transparent");
    return searchWords(tr(english), QString::fromLatin1(english));
}

QList<ParameterDefinition> FadeOutFilter::controls() const
{
    auto mode = headed<ChoiceParameter>(u"mode"_s, tr("Mode"));
    mode.options = {{u"linear"_s, tr("Linear"), {}}, {u"radial"_s, tr("Radial"), {}}};
    mode.defaultValue = u"linear"_s;
    auto position = headed<GradientPositionParameter>(u"position"_s, tr("Fade"));
    position.buttonLabel = tr("Position Fade");
    auto color = headed<ColorParameter>(u"fadeColor"_s, tr("Fade color"));
    color.defaultValue = kDefaultFadeColor;
    return {mode,
            position,
            realParameter(u"strength"_s, tr("Strength"), 100.0, 0.0, 100.0, 1.0),
            realParameter(u"curve"_s, tr("Curve"), 100.0, 25.0, 250.0, 1.0),
            realParameter(u"softness"_s, tr("Softness"), 60.0, 1.0, 100.0, 1.0),
            headed<BooleanParameter>(u"invert"_s, tr("Invert")),
            color,
            headed<DocumentColorParameter>(u"_documentColor"_s, tr("Document color"))};
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
