#include "filters/description/filter_definition.h"
#include "filters/filter_render.h"
#include "filters/library_filter.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Lets a picture fade to transparency, or to a colour, along a line or around a point.
class FadeOutFilter final : public Filter
{
    Q_DECLARE_TR_FUNCTIONS(FadeOutFilter)

public:
    QString id() const override { return u"fade-image"_s; }
    QString label() const override { return tr("Fade Out"); }

    QStringList pickerKeywords() const override
    {
        constexpr auto english = QT_TR_NOOP("alpha, fade, gradient, transparent");
        return searchWords(tr(english), QString::fromLatin1(english));
    }

    QList<ParameterDefinition> controls() const override
    {
        auto mode = headed<ChoiceParameter>(u"mode"_s, tr("Mode"));
        mode.options = {{u"linear"_s, tr("Linear"), {}}, {u"radial"_s, tr("Radial"), {}}};
        mode.defaultValue = u"linear"_s;
        auto position = headed<GradientPositionParameter>(u"position"_s, tr("Fade"));
        position.buttonLabel = tr("Position Fade");
        auto color = headed<ColorParameter>(u"fadeColor"_s, tr("Fade color"));
        color.defaultValue = QColor(255, 255, 255, 0); // without alpha: as it comes, a picture fades to transparency
        return {mode,
                position,
                realParameter(u"strength"_s, tr("Strength"), 100.0, 0.0, 100.0, 1.0),
                realParameter(u"curve"_s, tr("Curve"), 100.0, 25.0, 250.0, 1.0),
                realParameter(u"softness"_s, tr("Softness"), 60.0, 1.0, 100.0, 1.0),
                headed<BooleanParameter>(u"invert"_s, tr("Invert")),
                color,
                headed<DocumentColorParameter>(u"_documentColor"_s, tr("Document color"))};
    }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const double strength = request.percent(u"strength"_s);
        if (strength <= 0.0)
            return request.unchanged();
        const GradientPosition position = request.parameters.gradientPosition(u"position"_s, {});
        FadeOutSettings settings;
        settings.start = {position.x1, position.y1};
        settings.end = {position.x2, position.y2};
        settings.mode = request.text(u"mode"_s) == "radial"_L1 ? FadeMode::Radial : FadeMode::Linear;
        settings.strength = strength;
        settings.curve = request.percent(u"curve"_s);
        settings.softness = request.percent(u"softness"_s);
        settings.inverted = request.flag(u"invert"_s);
        settings.color = request.color(u"fadeColor"_s);
        return request.result(request.renderer->fadeOut(request.image, settings));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(FadeOut, FadeOutFilter)

} // namespace zm
