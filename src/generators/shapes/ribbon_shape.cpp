#include "generators/cornered_outline.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

CorneredOutline polygon(const QList<QPointF> &vertices)
{
    CorneredOutline outline(vertices.first());
    for (qsizetype i = 1; i < vertices.size(); ++i)
        outline.lineTo(vertices[i]);
    return outline;
}

// A strip of cloth whose ends are cut; the cut is in parts of the side that it runs along.
class RibbonShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(RibbonShapeGenerator)

public:
    QString id() const override { return u"ribbon"_s; }
    QString label() const override { return tr("Ribbon"); }
    QSizeF defaultSize() const override { return {80.0, 120.0}; }
    QColor defaultFillColor() const override { return QColor(0x34, 0x98, 0xcf); }
    QColor defaultStrokeColor() const override { return QColor(0xff, 0xff, 0xff); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"form"_s, tr("Form"), 1, 1, 6), ratio(u"notchDepth"_s, tr("Depth"), 0.26, 0.0, 0.45),
                ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.0)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double notch = parameters.real(u"notchDepth"_s);
        const int form = parameters.integer(u"form"_s);
        // A larger radius would swallow the wave of the fifth.
        const double largest = (form == 5 ? 0.14 : 0.3) * std::min(size.width(), size.height());
        return cut(form, size, notch).rounded(parameters.real(u"cornerRoundness"_s) * largest);
    }

private:
    static CorneredOutline cut(int form, const QSizeF &size, double notch)
    {
        const double w = size.width();
        const double h = size.height();
        const double down = notch * h;
        // Two cuts share the width.
        const double in = 0.6 * notch * w;
        switch (form) {
        default: // a bookmark with a swallow's tail
            return polygon({{0, 0}, {w, 0}, {w, h}, {w / 2, h - down}, {0, h}});
        case 2: // a pennant with one point
            return polygon({{0, 0}, {w, 0}, {w, h - down}, {w / 2, h}, {0, h - down}});
        case 3:
            return archedBookmark(w, h, down);
        case 4: // a sash with two swallow's tails
            return polygon({{0, 0}, {w, 0}, {w - in, h / 2}, {w, h}, {0, h}, {in, h / 2}});
        case 5:
            return wavingBookmark(w, h, down);
        case 6: // a church banner with a long tail between two short ones
            return polygon({{0, 0},
                            {w, 0},
                            {w, h - 0.4 * down},
                            {0.75 * w, h - down},
                            {w / 2, h},
                            {0.25 * w, h - down},
                            {0, h - 0.4 * down}});
        }
    }

    // Hollowed out from below like a bridge.
    static CorneredOutline archedBookmark(double w, double h, double down)
    {
        CorneredOutline outline({0, 0});
        outline.lineTo({w, 0});
        outline.lineTo({w, h});
        outline.curveTo({0.86 * w, h - 0.66 * down}, {0.70 * w, h - down}, {0.5 * w, h - down});
        outline.curveTo({0.30 * w, h - down}, {0.14 * w, h - 0.66 * down}, {0, h});
        return outline;
    }

    // Hangs loosely: both sides swing the same way.
    static CorneredOutline wavingBookmark(double w, double h, double down)
    {
        // A cubic whose controls lie this far to both sides of its ends swings out by a part of it: max 3t(1-t)(1-2t).
        const double swing = 0.07 * std::min(w, 1.5 * h);
        const double handle = swing / 0.2886751346;
        const double left = swing;
        const double right = w - swing;
        CorneredOutline outline({left, 0});
        outline.lineTo({right, 0});
        outline.curveTo({right + handle, h / 3}, {right - handle, 2 * h / 3}, {right, h});
        outline.lineTo({w / 2, h - down});
        outline.lineTo({left, h});
        outline.curveTo({left - handle, 2 * h / 3}, {left + handle, h / 3}, {left, 0});
        return outline;
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeRibbonShapeGenerator()
{
    return std::make_unique<RibbonShapeGenerator>();
}

} // namespace zm
