#include "shapes_bench.h"

#include "generators/shape_generator_registry.h"

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr int kRuns = 101;
constexpr int kRepeats = 20; // in one run: a single outline is near the clock's resolution
constexpr QSizeF kBox(200.0, 160.0);

struct Timing
{
    QString name;
    double medianMs = 0.0;
    qsizetype nodes = 0;
};

ParameterValues highest(const ShapeGenerator &generator)
{
    ParameterValues values;
    const QList<ParameterDefinition> definitions = generator.parameters();
    for (const ParameterDefinition &definition : definitions) {
        if (const auto *real = std::get_if<RealRangeParameter>(&definition))
            values.set(real->id, real->maximum);
        else if (const auto *integer = std::get_if<IntegerRangeParameter>(&definition))
            values.set(integer->id, integer->maximum);
    }
    return values;
}

template<typename Work>
double medianOfOne(Work &&work)
{
    return medianMilliseconds(kRuns,
                              [&work] {
                                  for (int i = 0; i < kRepeats; ++i)
                                      work();
                              })
        / kRepeats;
}

Timing timed(const ShapeGenerator &generator, const ParameterValues &values)
{
    Timing timing{generator.id()};
    for (const EditablePathContour &contour : generator.generate(kBox, values).contours)
        timing.nodes += contour.nodes.size();
    timing.medianMs = medianOfOne([&] { (void)generator.generate(kBox, values); });
    return timing;
}

BenchRow row(const QString &name, const Timing &timing)
{
    const QString note = u"%1 us, %2 nodes; goal under 50 us"_s;
    return {name, timing.medianMs, note.arg(timing.medianMs * 1e3, 0, 'f', 1).arg(timing.nodes)};
}

} // namespace

QList<BenchRow> benchShapes()
{
    const double idMs = medianOfOne([] { (void)EditablePathNode(); });
    QList<BenchRow> rows{{u"one node with its id"_s, idMs, u"%1 us, floor of a node"_s.arg(idMs * 1e3, 0, 'f', 2)}};
    for (const bool withDefaults : {true, false}) {
        QList<Timing> timings;
        for (const auto &generator : ShapeGeneratorRegistry::instance().generators())
            timings.append(timed(*generator, withDefaults ? ParameterValues() : highest(*generator)));
        std::ranges::sort(timings, {}, &Timing::medianMs);
        const QString name = withDefaults ? u"outline, defaults: %1 (%2)"_s : u"outline, highest: %1 (%2)"_s;
        const Timing &median = timings[timings.size() / 2];
        rows.append(row(name.arg(u"median of %1"_s.arg(timings.size()), median.name), median));
        rows.append(row(name.arg(u"slowest"_s, timings.last().name), timings.last()));
    }
    return rows;
}

} // namespace zm::bench
