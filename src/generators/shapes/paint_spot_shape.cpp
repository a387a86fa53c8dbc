#include "base/geometry.h"
#include "generators/curved_outlines.h"
#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// What a form is thrown with. Lengths in parts of the body's radius.
struct SpotForm
{
    quint32 seed;
    int fewestSpikes;
    int mostSpikes;
    // How far the angles stray from even ones, in parts of the gap.
    double stray;
    // Radius of the drops at the ends of the spikes.
    double drop;
    // The part of the spikes that end in drops; the others taper.
    double drops;
    // Droplets that have come off.
    int droplets;
};

constexpr std::array kForms{SpotForm{11, 6, 15, 0.60, 0.095, 0.6, 0}, SpotForm{23, 5, 12, 0.65, 0.120, 0.5, 2},
                            SpotForm{37, 8, 18, 0.50, 0.070, 0.2, 0}, SpotForm{41, 5, 10, 0.45, 0.150, 1.0, 1},
                            SpotForm{59, 7, 16, 0.70, 0.080, 0.4, 3}, SpotForm{73, 6, 13, 0.60, 0.110, 0.8, 0}};

enum class Throw : quint32 { Angle, Length, Drop, Taper, Body, Droplet };

// 0..1, the same for the same arguments. Mixes integers, so that it does not depend on a platform's arithmetic.
double thrown(const SpotForm &form, int index, Throw what)
{
    quint32 bits = form.seed * 0x9e3779b1u ^ quint32(index) * 0x85ebca6bu ^ quint32(what) * 0xc2b2ae35u;
    bits = (bits ^ (bits >> 15)) * 0x2c1b3c6du;
    bits = (bits ^ (bits >> 12)) * 0x297a2d39u;
    return double(bits ^ (bits >> 15)) / 4294967296.0;
}

// The uneven body that the spikes shoot out of: an ellipse whose shorter radius is 1, which swells and shrinks on the
// way round.
class Body
{
public:
    Body(const SpotForm &form, const QSizeF &size)
        : m_form(form)
        , m_across(std::max(std::pow(size.width() / size.height(), kShare), 1.0))
        , m_down(std::max(std::pow(size.height() / size.width(), kShare), 1.0))
    {
    }

    // The parameter of the ellipse at a part of the way round, from the top, clockwise: about even along the outline.
    double angleAt(double part) const
    {
        const double even = (2.0 * part - 0.5) * std::numbers::pi;
        return even + 0.45 * (m_across - m_down) / (m_across + m_down) * std::sin(2.0 * even);
    }
    QPointF pointAt(double angle) const
    {
        return QPointF(m_across * std::cos(angle), m_down * std::sin(angle)) * swelling(angle);
    }
    // Along the outline, clockwise, by the change of the angle.
    QPointF clockwiseAt(double angle) const
    {
        return QPointF(-m_across * std::sin(angle), m_down * std::cos(angle)) * swelling(angle);
    }

private:
    // How much of the box's stretch the body takes up, so that the drops keep some of their roundness. With all of it
    // the spikes were hairs on a long body.
    static constexpr double kShare = 0.35;

    double swelling(double angle) const
    {
        const double turn = 2.0 * std::numbers::pi;
        return 0.95 + 0.08 * std::cos(2.0 * angle + turn * thrown(m_form, 0, Throw::Body))
            + 0.06 * std::cos(3.0 * angle + turn * thrown(m_form, 1, Throw::Body));
    }

    const SpotForm &m_form;
    double m_across;
    double m_down;
};

struct Spike
{
    double angle;
    QPointF root;
    QPointF out;
    // From the root to the tip.
    double length;
    double drop;
    // Ends in a drop on a narrower neck instead of tapering.
    bool hangs;

    QPointF tip() const { return root + out * length; }
};

// Where a spike rises from the body, along which the outline runs there.
struct Foot
{
    double angle;
    QPointF point;
    QPointF clockwise;
};

// Paint that has hit the paper: a round body, and spikes that end in drops.
class PaintSpotShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(PaintSpotShapeGenerator)

public:
    QString id() const override { return u"paint-spot"_s; }
    QString label() const override { return tr("Paint Spot"); }
    QSizeF defaultSize() const override { return {110.0, 90.0}; }
    QColor defaultFillColor() const override { return QColor(0xf5, 0x32, 0x3f); }
    QColor defaultStrokeColor() const override { return QColor(0x9c, 0x1d, 0x28); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"form"_s, tr("Form"), 1, 1, 6), ratio(u"spikeLength"_s, tr("Length"), 0.55),
                ratio(u"spikeAmount"_s, tr("Spikes"), 0.65)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const SpotForm &form = kForms[parameters.integer(u"form"_s) - 1];
        const double amount = parameters.real(u"spikeAmount"_s);
        const double length = parameters.real(u"spikeLength"_s);
        const int count = int(std::round(form.fewestSpikes + amount * (form.mostSpikes - form.fewestSpikes)));
        const Body body(form, size);
        const QList<Spike> spikes = throwSpikes(form, body, count, length);

        QList<std::pair<Foot, Foot>> feet(count);
        for (int i = 0; i < count; ++i)
            feet[i] = feetBetween(body, spikes[i], spikes[(i + 1) % count]);
        EditablePathBuilder builder;
        builder.moveTo(feet.last().second.point);
        for (int i = 0; i < count; ++i) {
            drawSpike(builder, feet[(i + count - 1) % count].second, spikes[i], feet[i].first);
            drawBody(builder, feet[i].first, feet[i].second);
        }
        builder.close();
        EditablePath path = builder.path();
        path.contours += droplets(form, spikes);
        return fittedInto(path, QRectF(QPointF(), size));
    }

private:
    static QList<Spike> throwSpikes(const SpotForm &form, const Body &body, int count, double length)
    {
        QList<Spike> spikes(count);
        for (int i = 0; i < count; ++i) {
            const double far = thrown(form, i, Throw::Length);
            Spike &spike = spikes[i];
            spike.angle = body.angleAt((i + form.stray * (thrown(form, i, Throw::Angle) - 0.5)) / count);
            spike.root = body.pointAt(spike.angle);
            const QPointF along = body.clockwiseAt(spike.angle);
            spike.out = QPointF(along.y(), -along.x()) / lengthOf(along);
            spike.hangs = thrown(form, i, Throw::Taper) < form.drops;
            const double room = 0.28 * 2.0 * std::numbers::pi / count * (1.0 - form.stray / 2.0);
            const double size = form.drop * (0.55 + 0.9 * thrown(form, i, Throw::Drop)) * (spike.hangs ? 1.0 : 0.6);
            spike.drop = std::min(size, room);
            spike.length = 0.06 + 2.2 * spike.drop + length * (0.10 + 1.05 * far * far);
        }
        return spikes;
    }

    // Between a spike and the next: where the one ends and the other begins. The same place unless the gap is wide.
    static std::pair<Foot, Foot> feetBetween(const Body &body, const Spike &before, const Spike &after)
    {
        const double turn = 2.0 * std::numbers::pi;
        const double gap = after.angle - before.angle + (after.angle > before.angle ? 0.0 : turn);
        const auto spread = [&body](const Spike &spike) {
            return (0.20 + 1.6 * spike.drop) / lengthOf(body.clockwiseAt(spike.angle));
        };
        double end = before.angle + spread(before);
        double begin = before.angle + gap - spread(after);
        // What is left between them is too little to be drawn.
        if (begin - end < 0.12)
            begin = end = before.angle + gap * spread(before) / (spread(before) + spread(after));
        const auto foot = [&body](double angle) { return Foot{angle, body.pointAt(angle), body.clockwiseAt(angle)}; };
        return {foot(end), foot(begin)};
    }

    static void drawBody(EditablePathBuilder &builder, const Foot &end, const Foot &begin)
    {
        if (end.angle == begin.angle)
            return;
        const double handle = 4.0 / 3.0 * std::tan((begin.angle - end.angle) / 4.0);
        builder.curveTo(end.point + end.clockwise * handle, begin.point - begin.clockwise * handle, begin.point);
    }

    static void drawSpike(EditablePathBuilder &builder, const Foot &begin, const Spike &spike, const Foot &end)
    {
        const QPointF across(-spike.out.y(), spike.out.x());
        const auto flare = [&](const Foot &foot) {
            const double distance = std::abs(QPointF::dotProduct(foot.point - spike.root, across));
            const double length = std::max(distance - 0.6 * spike.drop, 0.3 * distance) * 0.7;
            return foot.clockwise * (length / lengthOf(foot.clockwise));
        };
        const QPointF rise = begin.point + flare(begin);
        const QPointF fall = end.point - flare(end);
        const QPointF tip = spike.tip();
        if (!spike.hangs) {
            const QPointF round = across * (1.6 * spike.drop);
            builder.curveTo(rise, tip - round, tip);
            builder.curveTo(tip + round, fall, end.point);
            return;
        }
        const QPointF head = tip - spike.out * spike.drop;
        const double way = QPointF::dotProduct(head - (begin.point + end.point) / 2.0, spike.out);
        // The drop reaches round its neck by this angle.
        const double neck = std::clamp(way * 0.5, spike.drop * 0.9, 6.0 * spike.drop);
        const double lean = std::atan(0.5 * spike.drop / neck);
        const double arc = 4.0 / 3.0 * std::tan((std::numbers::pi / 2.0 + lean) / 4.0) * spike.drop;
        const QPointF side = across * std::cos(lean);
        const QPointF back = spike.out * -std::sin(lean);
        const QPointF up = spike.out * std::cos(lean);
        const QPointF apart = across * std::sin(lean);
        const QPointF near = head + (back - side) * spike.drop;
        const QPointF far = head + (back + side) * spike.drop;
        builder.curveTo(rise, near - (up - apart) * neck, near);
        builder.curveTo(near + (up - apart) * arc, tip - across * arc, tip);
        builder.curveTo(tip + across * arc, far + (up + apart) * arc, far);
        builder.curveTo(far - (up + apart) * neck, fall, end.point);
    }

    // Beyond the longest spikes, clear of them.
    static QList<EditablePathContour> droplets(const SpotForm &form, QList<Spike> spikes)
    {
        std::ranges::stable_sort(spikes, std::ranges::greater(), &Spike::length);
        QList<EditablePathContour> contours;
        for (int i = 0; i < form.droplets; ++i) {
            const Spike &spike = spikes[i];
            const double radius = spike.drop * (0.55 + 0.4 * thrown(form, i, Throw::Droplet));
            const QPointF centre = spike.tip() + spike.out * (1.6 * spike.drop + radius);
            const QRectF box(centre - QPointF(radius, radius), QSizeF(2.0 * radius, 2.0 * radius));
            contours += roundedRectangle(box, box.size() / 2.0).contours;
        }
        return contours;
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makePaintSpotShapeGenerator()
{
    return std::make_unique<PaintSpotShapeGenerator>();
}

} // namespace zm
