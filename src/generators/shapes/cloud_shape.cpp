#include "base/geometry.h"
#include "generators/curved_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// How a puff is drawn in a box of some proportions: where it ends, and its bulge as bulgeTo() takes it.
struct Puff
{
    QPointF end;
    double bulge;
};

// Clockwise from the left end of the base, as the form stands in one box.
struct CloudLayout
{
    QPointF start;
    std::span<const Puff> puffs;
};

// The same puffs lying and towering; between the two boxes, the one turns into the other.
struct CloudForm
{
    CloudLayout lying;
    CloudLayout towering;
    // The first and the last puff stand on a straight base; without one the puffs go all the way round.
    bool hasBase;
};

constexpr QSizeF kLyingBox(120.0, 80.0);
constexpr QSizeF kToweringBox(80.0, 300.0);
constexpr double kLyingProportion = kLyingBox.width() / kLyingBox.height();
constexpr double kToweringProportion = kToweringBox.width() / kToweringBox.height();

// The fair-weather cloud: a dome between two steps.
constexpr std::array kFairWeather{Puff{{18, 45}, 0.84}, Puff{{38, 26}, 0.62}, Puff{{79, 22}, 0.78},
                                  Puff{{101, 44}, 0.60}, Puff{{98, 78}, 0.86}};
constexpr std::array kFairTower{Puff{{12, 200}, 0.50}, Puff{{8, 102}, 0.46}, Puff{{68, 88}, 1.20},
                                Puff{{68, 186}, 0.46}, Puff{{58, 296}, 0.52}};
// The plain sign: one high puff and a low one.
constexpr std::array kSign{Puff{{30, 40}, 0.80}, Puff{{72, 26}, 0.84}, Puff{{99, 45}, 0.60}, Puff{{96, 78}, 0.80}};
constexpr std::array kSignTower{Puff{{15, 168}, 0.46}, Puff{{68, 116}, 1.20}, Puff{{66, 204}, 0.52},
                                Puff{{58, 296}, 0.56}};
// Puffs all the way round.
constexpr std::array kBalloon{Puff{{16, 33}, 0.68}, Puff{{44, 14}, 0.66}, Puff{{82, 14}, 0.60}, Puff{{106, 35}, 0.66},
                              Puff{{99, 62}, 0.70}, Puff{{64, 70}, 0.60}, Puff{{26, 64}, 0.60}};
constexpr std::array kBalloonTower{Puff{{12, 160}, 0.48}, Puff{{6, 84}, 0.50},   Puff{{74, 72}, 1.16},
                                   Puff{{68, 128}, 0.54}, Puff{{68, 186}, 0.52}, Puff{{76, 234}, 0.54},
                                   Puff{{6, 226}, 1.10}};
// A long bank that rises to the right.
constexpr std::array kBank{Puff{{14, 56}, 0.80}, Puff{{34, 42}, 0.56},  Puff{{58, 27}, 0.62},
                           Puff{{92, 24}, 0.76}, Puff{{109, 47}, 0.58}, Puff{{106, 78}, 0.84}};
constexpr std::array kBankTower{Puff{{2, 236}, 0.56}, Puff{{8, 166}, 0.52},  Puff{{16, 100}, 0.50},
                                Puff{{72, 88}, 1.20}, Puff{{70, 190}, 0.46}, Puff{{62, 296}, 0.52}};

constexpr std::array kForms{CloudForm{{{24, 78}, kFairWeather}, {{24, 296}, kFairTower}, true},
                            CloudForm{{{26, 78}, kSign}, {{24, 296}, kSignTower}, true},
                            CloudForm{{{26, 64}, kBalloon}, {{6, 226}, kBalloonTower}, false},
                            CloudForm{{{14, 78}, kBank}, {{20, 296}, kBankTower}, true}};

class CloudShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(CloudShapeGenerator)

public:
    QString id() const override { return u"cloud"_s; }
    QString label() const override { return tr("Cloud"); }
    QSizeF defaultSize() const override { return {120.0, 80.0}; }
    QColor defaultFillColor() const override { return QColor(0xff, 0xff, 0xff); }
    QColor defaultStrokeColor() const override { return QColor(0x8a, 0xa1, 0xb7); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"form"_s, tr("Form"), 1, 1, 4), ratio(u"puffiness"_s, tr("Puffiness"), 0.6)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const CloudForm &form = kForms[parameters.integer(u"form"_s) - 1];
        const double swelling = 0.72 + 0.48 * parameters.real(u"puffiness"_s);
        // Wider than the lying form, half of the stretch goes into the distances alone, over which the puffs stay
        // round, and the fitting adds the other half. Narrower, the form rises towards the tower.
        const double stretch = size.width() / size.height() / kLyingProportion;
        const double across = stretch > 1.0 ? std::sqrt(stretch) : stretch;
        const double rise = std::clamp(std::log(stretch) / std::log(kToweringProportion / kLyingProportion), 0.0, 1.0);
        const auto placed = [&](const QPointF &lying, const QPointF &towering) {
            return QPointF(across * std::lerp(lying.x(), towering.x() * kLyingBox.width() / kToweringBox.width(), rise),
                           std::lerp(lying.y(), towering.y() * kLyingBox.height() / kToweringBox.height(), rise));
        };
        EditablePathBuilder builder;
        QPointF from = placed(form.lying.start, form.towering.start);
        builder.moveTo(from);
        const std::size_t count = form.lying.puffs.size();
        for (std::size_t i = 0; i < count; ++i) {
            const Puff &lying = form.lying.puffs[i];
            const Puff &towering = form.towering.puffs[i];
            const QPointF to = placed(lying.end, towering.end);
            const double bulge = std::min(std::lerp(lying.bulge, towering.bulge, rise) * swelling, 1.1);
            if (form.hasBase && (i == 0 || i + 1 == count))
                drawBasePuff(builder, from, to, bulge, i == 0);
            else
                bulgeTo(builder, from, to, bulge);
            from = to;
        }
        builder.close();
        return fittedInto(builder.path(), QRectF(QPointF(), size));
    }

private:
    // A puff that leaves the base along it, or comes to rest on it.
    static void drawBasePuff(EditablePathBuilder &builder, const QPointF &from, const QPointF &to, double bulge,
                             bool isFirst)
    {
        const QPointF chord = (to - from) / 3.0;
        const QPointF rise = QPointF(chord.y(), -chord.x()) * (2.0 * bulge);
        const QPointF run = chord * (1.0 - bulge * bulge);
        const double reach = lengthOf(chord) * (1.0 + bulge * bulge);
        if (isFirst)
            builder.curveTo(from - QPointF(reach, 0.0), to - run + rise, to);
        else
            builder.curveTo(from + run + rise, to + QPointF(reach, 0.0), to);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeCloudShapeGenerator()
{
    return std::make_unique<CloudShapeGenerator>();
}

} // namespace zm
