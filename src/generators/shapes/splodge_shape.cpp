#include "generators/curved_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

using Anchors = std::span<const QPointF>;

// Clockwise; only their proportions count, since the curve is fitted into its box.
constexpr std::array kPuddle{QPointF(98, 40), QPointF(95, 57), QPointF(79, 66), QPointF(73, 86), QPointF(57, 92),
                             QPointF(44, 79), QPointF(28, 81), QPointF(12, 74), QPointF(13, 57), QPointF(2, 43),
                             QPointF(9, 26),  QPointF(25, 26), QPointF(35, 7),  QPointF(53, 4),  QPointF(63, 17),
                             QPointF(80, 13), QPointF(93, 25)};
constexpr std::array kPebble{QPointF(100, 58), QPointF(86, 84), QPointF(56, 91), QPointF(24, 80), QPointF(2, 54),
                             QPointF(8, 22),   QPointF(30, 6),  QPointF(52, 13), QPointF(74, 9),  QPointF(93, 28)};
constexpr std::array kTrefoil{QPointF(53, 2),  QPointF(66, 6),  QPointF(74, 18), QPointF(73, 32), QPointF(80, 40),
                              QPointF(92, 48), QPointF(99, 64), QPointF(87, 82), QPointF(67, 80), QPointF(49, 73),
                              QPointF(33, 87), QPointF(13, 87), QPointF(2, 69),  QPointF(12, 51), QPointF(28, 44),
                              QPointF(34, 32), QPointF(34, 16), QPointF(41, 5)};
constexpr std::array kSplash{QPointF(98, 40), QPointF(99, 51), QPointF(90, 59), QPointF(78, 60), QPointF(73, 65),
                             QPointF(79, 76), QPointF(74, 86), QPointF(64, 81), QPointF(57, 74), QPointF(52, 78),
                             QPointF(49, 91), QPointF(40, 97), QPointF(32, 88), QPointF(36, 75), QPointF(31, 68),
                             QPointF(18, 68), QPointF(6, 71),  QPointF(0, 60),  QPointF(8, 51),  QPointF(21, 48),
                             QPointF(24, 41), QPointF(17, 31), QPointF(7, 22),  QPointF(12, 10), QPointF(25, 13),
                             QPointF(35, 23), QPointF(42, 21), QPointF(48, 8),  QPointF(60, 2),  QPointF(71, 9),
                             QPointF(69, 22), QPointF(74, 29), QPointF(86, 30)};
constexpr std::array kKidney{QPointF(98, 62), QPointF(90, 82), QPointF(66, 94), QPointF(36, 88), QPointF(12, 68),
                             QPointF(2, 38),  QPointF(10, 12), QPointF(32, 2),  QPointF(47, 7),  QPointF(54, 20),
                             QPointF(58, 34), QPointF(67, 43), QPointF(80, 43), QPointF(92, 49)};
constexpr std::array kDrip{QPointF(97, 26), QPointF(96, 49), QPointF(91, 68), QPointF(82, 71), QPointF(77, 57),
                           QPointF(69, 52), QPointF(63, 62), QPointF(61, 92), QPointF(54, 99), QPointF(47, 92),
                           QPointF(46, 64), QPointF(39, 54), QPointF(31, 58), QPointF(28, 76), QPointF(21, 83),
                           QPointF(14, 77), QPointF(12, 56), QPointF(2, 40),  QPointF(6, 20),  QPointF(24, 6),
                           QPointF(52, 1),  QPointF(81, 6)};

constexpr std::array<Anchors, 6> kForms{kPuddle, kPebble, kTrefoil, kSplash, kKidney, kDrip};

// Blobs between a faceted stone and a puddle.
class SplodgeShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(SplodgeShapeGenerator)

public:
    QString id() const override { return u"splodge"_s; }
    QString label() const override { return tr("Splodge"); }
    QSizeF defaultSize() const override { return {100.0, 90.0}; }
    QColor defaultFillColor() const override { return QColor(0x4c, 0xcd, 0xb6); }
    QColor defaultStrokeColor() const override { return QColor(0x1c, 0x6f, 0x67); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"form"_s, tr("Form"), 1, 1, 6),
                ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.8)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const Anchors anchors = kForms[parameters.integer(u"form"_s) - 1];
        // Handles that are a little short already leave knees, so the strength comes close to 1 early.
        const double faceted = 1.0 - parameters.real(u"cornerRoundness"_s);
        return fittedInto(smoothedPolygon({anchors.begin(), anchors.end()}, 1.0 - faceted * faceted),
                          QRectF(QPointF(), size));
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeSplodgeShapeGenerator()
{
    return std::make_unique<SplodgeShapeGenerator>();
}

} // namespace zm
