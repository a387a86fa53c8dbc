#include "generators/bubble_box.h"
#include "generators/curved_outlines.h"
#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A small bubble on the way to the thinker: its centre between the start of the trail, 0, and its end, 1, across and
// down, and its height in parts of the pointer's.
struct TrailBubble
{
    QPointF centre;
    double height;
};

constexpr std::array kThree{TrailBubble{{0.22, 0.26}, 0.42}, TrailBubble{{0.66, 0.63}, 0.30},
                            TrailBubble{{1.0, 0.885}, 0.23}};
constexpr std::array kTwo{TrailBubble{{0.30, 0.31}, 0.48}, TrailBubble{{0.92, 0.84}, 0.32}};
constexpr std::array kArc{TrailBubble{{0.05, 0.30}, 0.38}, TrailBubble{{0.38, 0.66}, 0.30},
                          TrailBubble{{1.0, 0.885}, 0.23}};
constexpr std::array kPlumb{TrailBubble{{0.80, 0.29}, 0.42}, TrailBubble{{1.0, 0.82}, 0.28}};

constexpr std::array<std::span<const TrailBubble>, 4> kTrails{kTwo, kThree, kArc, kPlumb};

// How much a puff differs from its neighbours, so that the bubble looks drawn by hand. Repeats after seven, which no
// side's count divides.
constexpr std::array kUnevenness{0.05, -0.10, 0.08, -0.03, 0.12, -0.08, 0.02};

// The course that the puffs follow: a rounded rectangle, walked clockwise.
class PuffCourse
{
public:
    PuffCourse(const QRectF &box, double radius)
        : m_box(box)
        , m_radius(radius)
    {
    }

    // On one of the sides top, right, bottom and left, which begin and end in the middle of their corners.
    QPointF pointAt(int side, double part) const
    {
        const bool isAcross = side % 2 == 0;
        const double length = isAcross ? m_box.width() : m_box.height();
        const double depth = isAcross ? m_box.height() : m_box.width();
        const double eighth = m_radius * std::numbers::pi / 4.0;
        const double straight = length - 2.0 * m_radius;
        const double walked = part * (straight + 2.0 * eighth);
        // Along the side and inwards, with the side's middle at (0, 0).
        QPointF point(walked - eighth - straight / 2.0, 0.0);
        const double beyond = std::abs(point.x()) - straight / 2.0;
        if (beyond > 0.0) {
            const double angle = beyond / m_radius;
            point = {std::copysign(straight / 2.0 + m_radius * std::sin(angle), point.x()),
                     m_radius * (1.0 - std::cos(angle))};
        }
        const QPointF outwards(point.x(), point.y() - depth / 2.0);
        const QPointF centre = m_box.center();
        switch (side) {
        case 0:
            return centre + outwards;
        case 1:
            return centre + QPointF(-outwards.y(), outwards.x());
        case 2:
            return centre - outwards;
        default:
            return centre + QPointF(outwards.y(), -outwards.x());
        }
    }

private:
    QRectF m_box;
    double m_radius;
};

// A puffy bubble, and a trail of small ones.
class ThoughtBubbleShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(ThoughtBubbleShapeGenerator)

public:
    QString id() const override { return u"thought"_s; }
    QString label() const override { return tr("Thought"); }
    QSizeF defaultSize() const override { return {100.0, 90.0}; }
    QColor defaultFillColor() const override { return QColor(0xff, 0xff, 0xff); }
    QColor defaultStrokeColor() const override { return QColor(0x11, 0x11, 0x11); }

    QList<ParameterDefinition> parameters() const override
    {
        return {pixels(u"cornerRadius"_s, tr("Corner Radius"), 18.0),
                ratio(u"pointerLength"_s, tr("Tip"), 0.22, 0.08, 0.45)};
    }
    QList<ParameterDefinition> hiddenParameters() const override
    {
        return {integerParameter(u"form"_s, tr("Form"), 1, 1, qint64(kTrails.size()))};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const BubbleBox bubble(size, parameters);
        EditablePath path = fittedInto(puffs(bubble), bubble.box);
        const auto form = kTrails[parameters.undeclaredInteger(u"form"_s, 1, 0) % kTrails.size()];
        for (const QRectF &small : trail(bubble, form, size))
            path.contours += roundedRectangle(small, small.size() / 2.0).contours;
        return path;
    }

private:
    static EditablePath puffs(const BubbleBox &bubble)
    {
        const QRectF &box = bubble.box;
        const double shorter = std::min(box.width(), box.height());
        const auto countAlong = [&](double length) {
            return int(std::clamp(std::round(length / (0.30 * shorter)), 3.0, 9.0));
        };
        const std::array counts{countAlong(box.width()), countAlong(box.height())};
        // The puffs take their room inwards of the course.
        const double inset = 0.1 * shorter;
        const PuffCourse course(box.adjusted(inset, inset, -inset, -inset),
                                bubble.cornerRadius * (1.0 - 2.0 * inset / shorter));
        // Where the course has corners, the puffs there fill them.
        const double cornerSwell = 0.30 * (1.0 - 2.0 * bubble.cornerRadius / shorter);
        QList<QPointF> ends;
        QList<double> bulges;
        for (int side = 0; side < 4; ++side) {
            const int count = counts[side % 2];
            for (int i = 0; i < count; ++i) {
                const double shift = kUnevenness[ends.size() % kUnevenness.size()];
                ends.append(course.pointAt(side, (i + 0.5 + shift) / count));
                bulges.append(0.56 + kUnevenness[3 * bulges.size() % kUnevenness.size()]
                              + (i == 0 ? cornerSwell : 0.0));
            }
        }
        EditablePathBuilder builder;
        builder.moveTo(ends.last());
        for (qsizetype i = 0; i < ends.size(); ++i)
            bulgeTo(builder, ends[i > 0 ? i - 1 : ends.size() - 1], ends[i], bulges[i]);
        builder.close();
        return builder.path();
    }

    // Round bubbles, or flatter ones in a wide box, like the puffs above.
    static QList<QRectF> trail(const BubbleBox &bubble, std::span<const TrailBubble> form, const QSizeF &size)
    {
        const QPointF start(0.46 * size.width(), bubble.box.bottom());
        const QPointF way = bubble.tip - start;
        const double flatness = std::clamp(size.width() / size.height(), 1.0, 1.6);
        const auto heightOf = [&](double part) { return part * std::min(way.y(), 0.8 * size.width()); };
        // Bubbles that the width keeps small begin close to the box all the same.
        const double first = form.front().centre.y();
        const double spread = (1.0 - std::min(first, 0.9 * heightOf(form.front().height) / way.y())) / (1.0 - first);

        QList<QRectF> bubbles;
        for (const TrailBubble &small : form) {
            const double high = heightOf(small.height);
            const double down = 1.0 - (1.0 - small.centre.y()) * spread;
            QRectF box(0.0, 0.0, flatness * high, high);
            box.moveCenter(start + QPointF(small.centre.x() * way.x(), down * way.y()));
            if (!bubbles.isEmpty())
                appendBetween(bubbles, box);
            bubbles.append(box);
        }
        return bubbles;
    }

    // More bubbles for a height that could take them, with even gaps, so that a long trail does not fall
    // apart.
    static void appendBetween(QList<QRectF> &bubbles, const QRectF &next)
    {
        const QRectF last = bubbles.last();
        const double usual = (last.height() + next.height()) / 2.0;
        const QPointF way = next.center() - last.center();
        const int count = int((way.y() / usual - 1.0) / 1.2);
        const double gap = way.y() / (count + 1) - usual;
        for (int i = 1; i <= count; ++i) {
            QRectF box(QPointF(), last.size() + (next.size() - last.size()) * (double(i) / (count + 1)));
            const double down = i * (gap + (last.height() + box.height()) / 2.0);
            box.moveCenter(last.center() + way * (down / way.y()));
            bubbles.append(box);
        }
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeThoughtBubbleShapeGenerator()
{
    return std::make_unique<ThoughtBubbleShapeGenerator>();
}

} // namespace zm
