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
constexpr std::array kPuddle{QPointF(98, 40), QPointF(94, 58), QPointF(79, 66), QPointF(73, 86), QPointF(57, 92),
                             QPointF(44, 79), QPointF(28, 81), QPointF(12, 74), QPointF(13, 57), QPointF(2, 43),
                             QPointF(9, 26),  QPointF(25, 26), QPointF(35, 7),  QPointF(53, 4),  QPointF(63, 17),
                             QPointF(80, 13), QPointF(91, 24)};
constexpr std::array kPebble{QPointF(100, 58), QPointF(86, 84), QPointF(56, 91), QPointF(24, 80), QPointF(2, 54),
                             QPointF(8, 22),   QPointF(30, 6),  QPointF(52, 13), QPointF(74, 9),  QPointF(93, 28)};
constexpr std::array kTrefoil{QPointF(57, 3),  QPointF(73, 12), QPointF(72, 33), QPointF(90, 45), QPointF(99, 65),
                              QPointF(86, 83), QPointF(65, 79), QPointF(47, 72), QPointF(32, 88), QPointF(12, 87),
                              QPointF(2, 68),  QPointF(13, 51), QPointF(31, 43), QPointF(33, 16)};
constexpr std::array kSplash{QPointF(98, 40), QPointF(100, 54), QPointF(86, 61), QPointF(72, 59), QPointF(80, 75),
                             QPointF(72, 84), QPointF(59, 72),  QPointF(50, 90), QPointF(38, 96), QPointF(32, 84),
                             QPointF(37, 68), QPointF(22, 66),  QPointF(6, 72),  QPointF(0, 60),  QPointF(8, 50),
                             QPointF(24, 46), QPointF(18, 32),  QPointF(6, 22),  QPointF(12, 10), QPointF(26, 14),
                             QPointF(38, 26), QPointF(46, 10),  QPointF(60, 2),  QPointF(72, 10), QPointF(68, 28),
                             QPointF(82, 30)};
constexpr std::array kKidney{QPointF(98, 60), QPointF(90, 82), QPointF(66, 94), QPointF(36, 88),
                             QPointF(12, 68), QPointF(2, 38),  QPointF(10, 12), QPointF(32, 2),
                             QPointF(52, 12), QPointF(56, 32), QPointF(66, 46), QPointF(86, 44)};
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
        return fittedInto(smoothedPolygon({anchors.begin(), anchors.end()}, parameters.real(u"cornerRoundness"_s)),
                          QRectF(QPointF(), size));
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeSplodgeShapeGenerator()
{
    return std::make_unique<SplodgeShapeGenerator>();
}

} // namespace zm
