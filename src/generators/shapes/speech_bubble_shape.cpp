#include "base/geometry.h"
#include "generators/bubble_box.h"
#include "generators/cubic_curve.h"
#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

enum class Edge { Straight, Bent, Flowing };

// One edge of the pointer: where it starts, in parts of the whole width, and its handles in parts of the way from there
// to the tip, across and down. A flowing edge leaves the box along the box's own outline.
struct PointerEdge
{
    double x;
    Edge kind;
    QPointF nearHandle;
    QPointF tipHandle;
};

struct Pointer
{
    PointerEdge right;
    PointerEdge left;
};

constexpr std::array kPointers{
    // A plain wedge.
    Pointer{{0.46, Edge::Straight, {}, {}}, {0.30, Edge::Straight, {}, {}}},
    // A horn that bends to the left.
    Pointer{{0.46, Edge::Bent, {0.06, 0.42}, {0.48, 0.86}}, {0.31, Edge::Bent, {-0.10, 0.40}, {0.44, 0.80}}},
    // A sail that bends down.
    Pointer{{0.46, Edge::Bent, {0.46, 0.10}, {0.84, 0.46}}, {0.29, Edge::Bent, {0.30, 0.24}, {0.86, 0.58}}},
    // Drawn out of the lower edge like a drop.
    Pointer{{0.46, Edge::Flowing, {0.46, 0.0}, {0.90, 0.40}}, {0.15, Edge::Flowing, {0.60, 0.0}, {0.92, 0.40}}},
};

// A rounded box with a pointer that is one line with it.
class SpeechBubbleShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(SpeechBubbleShapeGenerator)

public:
    QString id() const override { return u"speech"_s; }
    QString label() const override { return tr("Speech"); }
    QSizeF defaultSize() const override { return {100.0, 90.0}; }
    QColor defaultFillColor() const override { return QColor(0xff, 0xff, 0xff); }
    QColor defaultStrokeColor() const override { return QColor(0x11, 0x11, 0x11); }

    QList<ParameterDefinition> parameters() const override
    {
        return {pixels(u"cornerRadius"_s, tr("Corner Radius"), 4.0),
                ratio(u"pointerLength"_s, tr("Pointer"), 0.22, 0.08, 0.45)};
    }
    QList<ParameterDefinition> hiddenParameters() const override
    {
        return {integerParameter(u"form"_s, tr("Form"), 1, 1, qint64(kPointers.size()))};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const BubbleBox bubble(size, parameters);
        const Pointer &form = kPointers[parameters.undeclaredInteger(u"form"_s, 1, 0) % kPointers.size()];
        const Pointer pointer = strengthened(form, (bubble.tip.y() - bubble.box.bottom()) / size.width());
        const QRectF &box = bubble.box;
        const double radius = bubble.cornerRadius;
        const double handle = radius * (1.0 - kQuarterArc);

        EditablePathBuilder builder;
        const auto lineTo = [&](const QPointF &point, double length) {
            if (length > 0.0)
                builder.lineTo(point);
        };
        const auto corner = [&](const QPointF &vertex, const QPointF &in, const QPointF &out) {
            if (radius > 0.0)
                builder.curveTo(vertex - in * handle, vertex + out * handle, vertex + out * radius);
        };
        const QPointF rightwards(1.0, 0.0);
        const QPointF down(0.0, 1.0);
        const double down1 = box.height() - 2.0 * radius;
        builder.moveTo(box.topLeft() + rightwards * radius);
        lineTo(box.topRight() - rightwards * radius, box.width() - 2.0 * radius);
        corner(box.topRight(), rightwards, down);
        lineTo(box.bottomRight() - down * radius, down1);
        corner(box.bottomRight(), down, -rightwards);
        drawLowerEdge(builder, bubble, pointer, size.width());
        lineTo(box.topLeft() + down * radius, down1);
        corner(box.topLeft(), -down, rightwards);
        builder.close();
        return builder.path();
    }

private:
    // A pointer that is long for the box's width, in parts of it, would look like a tentacle: its root becomes a
    // quarter as wide as the pointer is long, where the box has room, and its edges become straighter.
    static Pointer strengthened(Pointer pointer, double length)
    {
        const double leastX = std::max(pointer.left.x - 0.13, 0.08);
        pointer.left.x = std::min(pointer.left.x, std::max(pointer.right.x - length / 4.0, leastX));
        const double straightness = 0.7 * std::clamp((length - 0.6) / 0.6, 0.0, 1.0);
        for (PointerEdge *edge : {&pointer.right, &pointer.left}) {
            edge->nearHandle += (QPointF(1.0, 1.0) / 3.0 - edge->nearHandle) * straightness;
            edge->tipHandle += (QPointF(2.0, 2.0) / 3.0 - edge->tipHandle) * straightness;
        }
        return pointer;
    }

    // From the right end of the lower edge over the pointer to the end of the lower left corner. With a large radius
    // the pointer may stand on that corner.
    static void drawLowerEdge(EditablePathBuilder &builder, const BubbleBox &bubble, const Pointer &pointer,
                              double width)
    {
        const QPointF vertex = bubble.box.bottomLeft();
        const QPointF right(bubble.cornerRadius, 0.0);
        const QPointF down(0.0, bubble.cornerRadius);
        const CubicCurve corner{vertex + right, vertex + right * (1.0 - kQuarterArc),
                                vertex - down * (1.0 - kQuarterArc), vertex - down};
        const double rightX = pointer.right.x * width;
        const double leftX = pointer.left.x * width;
        const double rightCut = parameterAtX(corner, rightX);
        const double leftCut = parameterAtX(corner, leftX);

        if (rightCut > 0.0) {
            const CubicCurve before = corner.piece(0.0, rightCut);
            builder.lineTo(before.start);
            builder.curveTo(before.firstControl, before.secondControl, before.end);
        } else {
            builder.lineTo({rightX, vertex.y()});
        }
        const auto base = [&](double cut, double x) {
            return cut > 0.0 ? corner.pointAt(cut) : QPointF(x, vertex.y());
        };
        // Along the outline, to the left.
        const auto direction = [&](double cut) {
            const QPointF along = cut > 0.0 ? corner.derivativeAt(cut) : QPointF(-1.0, 0.0);
            return along / lengthOf(along);
        };
        drawEdge(builder, pointer.right, base(rightCut, rightX), bubble.tip, direction(rightCut), true);
        drawEdge(builder, pointer.left, base(leftCut, leftX), bubble.tip, -direction(leftCut), false);

        if (leftCut <= 0.0)
            builder.lineTo(corner.start);
        if (bubble.cornerRadius > 0.0) {
            const CubicCurve after = corner.piece(leftCut, 1.0);
            builder.curveTo(after.firstControl, after.secondControl, after.end);
        }
    }

    // Where the corner passes x on its way to the left; 0 when it starts further left than that.
    static double parameterAtX(const CubicCurve &corner, double x)
    {
        if (x >= corner.start.x())
            return 0.0;
        double low = 0.0;
        double high = 1.0;
        for (int i = 0; i < 40; ++i) {
            const double middle = (low + high) / 2.0;
            (corner.pointAt(middle).x() > x ? low : high) = middle;
        }
        return low;
    }

    static void drawEdge(EditablePathBuilder &builder, const PointerEdge &edge, const QPointF &base, const QPointF &tip,
                         const QPointF &alongOutline, bool isTowardsTip)
    {
        const QPointF &end = isTowardsTip ? tip : base;
        if (edge.kind == Edge::Straight) {
            builder.lineTo(end);
            return;
        }
        const QPointF way = tip - base;
        const auto onWay = [&](const QPointF &part) { return base + QPointF(way.x() * part.x(), way.y() * part.y()); };
        const QPointF tipHandle = onWay(edge.tipHandle);
        const QPointF nearHandle = edge.kind == Edge::Flowing
            ? base + alongOutline * (std::abs(way.x()) * edge.nearHandle.x())
            : onWay(edge.nearHandle);
        if (isTowardsTip)
            builder.curveTo(nearHandle, tipHandle, end);
        else
            builder.curveTo(tipHandle, nearHandle, end);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeSpeechBubbleShapeGenerator()
{
    return std::make_unique<SpeechBubbleShapeGenerator>();
}

} // namespace zm
