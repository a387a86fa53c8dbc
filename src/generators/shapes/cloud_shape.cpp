#include "document/editable_path_builder.h"
#include "generators/curved_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Where a puff ends, and its bulge as bulgeTo() takes it.
struct Puff
{
    QPointF end;
    double bulge;
};

// Clockwise from the left end of the base, drawn in a box of 120 x 80.
struct CloudForm
{
    QPointF start;
    std::span<const Puff> puffs;
    // The first and the last puff stand on a straight base; without one the puffs go all the way round.
    bool hasBase;
};

// The fair-weather cloud: a dome between two steps.
constexpr std::array kFairWeather{Puff{{18, 45}, 0.84}, Puff{{38, 26}, 0.62}, Puff{{79, 22}, 0.78},
                                  Puff{{101, 44}, 0.60}, Puff{{98, 78}, 0.86}};
// The plain sign: one high puff and a low one.
constexpr std::array kSign{Puff{{30, 40}, 0.80}, Puff{{72, 26}, 0.84}, Puff{{99, 45}, 0.60}, Puff{{96, 78}, 0.80}};
// Puffs all the way round.
constexpr std::array kBalloon{Puff{{16, 33}, 0.68}, Puff{{44, 14}, 0.66}, Puff{{82, 14}, 0.60}, Puff{{106, 35}, 0.66},
                              Puff{{99, 62}, 0.70}, Puff{{64, 70}, 0.50}, Puff{{26, 64}, 0.50}};
// A long bank that rises to the right.
constexpr std::array kBank{Puff{{14, 56}, 0.80}, Puff{{34, 42}, 0.56},  Puff{{58, 27}, 0.62},
                           Puff{{92, 24}, 0.76}, Puff{{109, 47}, 0.58}, Puff{{106, 78}, 0.84}};

constexpr std::array kForms{CloudForm{{24, 78}, kFairWeather, true}, CloudForm{{26, 78}, kSign, true},
                            CloudForm{{26, 64}, kBalloon, false}, CloudForm{{14, 78}, kBank, true}};

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
        const double swelling = 0.61 + 0.65 * parameters.real(u"puffiness"_s);
        // Half of the box's stretch goes into the distances alone, over which the puffs stay round; the fitting adds
        // the other half. Round ones all the way leave no cloud in a narrow box, stretched ones make a candle of it.
        const double stretch = std::sqrt(size.width() / size.height() / (120.0 / 80.0));
        const auto stretched = [stretch](const QPointF &point) { return QPointF(point.x() * stretch, point.y()); };
        EditablePathBuilder builder;
        QPointF from = stretched(form.start);
        builder.moveTo(from);
        for (std::size_t i = 0; i < form.puffs.size(); ++i) {
            const QPointF to = stretched(form.puffs[i].end);
            const double bulge = std::min(form.puffs[i].bulge * swelling, 1.1);
            if (form.hasBase && (i == 0 || i + 1 == form.puffs.size()))
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
        const double reach = std::hypot(chord.x(), chord.y()) * (1.0 + bulge * bulge);
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
