#include "document/shape_layer.h"
#include "generators/shape_generator_registry.h"
#include "generators/shape_preview.h"
#include "values/fill.h"

#include <QSet>
#include <QTest>

#include <cmath>

using namespace zm;
using namespace Qt::StringLiterals;

namespace {

/// What documents rely on, in the registry's order: id, size, fill, stroke, and the parameters' id, kind (r for a
/// percentage, p for pixels, i for an integer), default, minimum and maximum.
constexpr const char *kContracts[] = {
    "arrow-right 100x80 #101b27 -, cornerRoundness r 0 0 1, tipWidth r 0.4 0.2 0.8, tailWidth r 0.46 0.1 0.85",
    "burst 100x100 #ffb000 #6d4300, rays i 14 6 32, depth r 0.05 0 1, cornerRoundness r 0.12 0 1",
    "cloud 120x80 #ffffff #8aa1b7, form i 1 1 4, puffiness r 0.6 0 1",
    "diamond 100x120 #101b27 -, cornerRoundness r 0 0 1, horizontalCenter r 0.5 0.1 0.9, verticalCenter r 0.5 0.1 0.9",
    "ellipse 120x80 #101b27 -, roundness r 1 0 1, middleWidth r 0 0 1",
    "half-circle 100x60 #101b27 -, crescent r 0 0 1, cornerRadius p 0 0 100",
    "heart 100x90 #ed2224 #dd5f5f, lobeRoundness r 0.24 0 1, cleftDepth r 0.34 0 1, tipSharpness r 0.23 0 1",
    "lightning-bolt 90x120 #ffd23f #3a310b, bend r 0.52 0 1, cornerRoundness r 0 0 1",
    "paint-spot 110x90 #f5323f #9c1d28, form i 1 1 6, spikeLength r 0.55 0 1, spikeAmount r 0.65 0 1",
    "polygon 100x100 #101b27 -, sides i 5 3 12, cornerRoundness r 0 0 1",
    "rhombus 120x80 #101b27 -, cornerRoundness r 0 0 1, horizontalLength r 0.72 0.2 1, verticalLength r 1 0.2 1",
    "ribbon 80x120 #3498cf #ffffff, form i 1 1 6, notchDepth r 0.26 0 0.45, cornerRoundness r 0 0 1",
    "rounded-rect 100x70 #101b27 -, radius p 0 0 100",
    "shield-badge 100x120 #315c9d #172846, form i 1 1 4, pointDepth r 0.65 0.6 1, cornerRoundness r 0.08 0 1",
    "speech 100x90 #ffffff #111111, cornerRadius p 4 0 100, pointerLength r 0.22 0.08 0.45",
    "splodge 100x90 #4ccdb6 #1c6f67, form i 1 1 6, cornerRoundness r 0.8 0 1",
    "star5 100x100 #ffdf00 #222222, spikes i 5 2 32, tipRoundness r 0 0 1",
    "thought 100x90 #ffffff #111111, cornerRadius p 18 0 100, pointerLength r 0.22 0.08 0.45",
    "triangle 100x100 #101b27 -, sides i 3 3 12, cornerRoundness r 0 0 1",
    "vignette 100x100 #101b27 -, corner-radius r 0.7 0 1",
};

QString written(const ShapeGenerator &generator)
{
    const QSizeF size = generator.defaultSize();
    const QColor stroke = generator.defaultStrokeColor();
    const QString colors = generator.defaultFillColor().name() + u' ' + (stroke.isValid() ? stroke.name() : u"-"_s);
    QString text = generator.id() + u" %1x%2 "_s.arg(size.width()).arg(size.height()) + colors;
    for (const ParameterDefinition &definition : generator.parameters()) {
        const ParameterHead &head = parameterHead(definition);
        const auto add = [&](QChar kind, const auto &range) {
            text += u", %1 %2 "_s.arg(head.id, kind);
            text += u"%1 %2 %3"_s.arg(range.defaultValue).arg(range.minimum).arg(range.maximum);
        };
        if (const auto *real = std::get_if<RealRangeParameter>(&definition))
            add(real->step == 0.01 && head.flags == ParameterFlag::Percent ? u'r' : u'p', *real);
        else
            add(u'i', std::get<IntegerRangeParameter>(definition));
    }
    return text;
}

/// A place between the parameter's limits, 0..1.
ParameterValue valueAt(const ParameterDefinition &definition, double place)
{
    if (const auto *integer = std::get_if<IntegerRangeParameter>(&definition))
        return qint64(std::lround(std::lerp(double(integer->minimum), double(integer->maximum), place)));
    const auto &real = std::get<RealRangeParameter>(definition);
    return std::lerp(real.minimum, real.maximum, place);
}

/// All combinations of every form, and of the lowest, middle and highest value of every other parameter.
QList<ParameterValues> settings(const ShapeGenerator &generator)
{
    QList<ParameterValues> result{{}};
    const QList<ParameterDefinition> definitions = generator.parameters() + generator.hiddenParameters();
    for (const ParameterDefinition &definition : definitions) {
        const QString &id = parameterHead(definition).id;
        const double steps = id == "form"_L1 ? double(std::get<IntegerRangeParameter>(definition).maximum - 1) : 2.0;
        QList<ParameterValues> extended;
        for (ParameterValues values : std::as_const(result)) {
            for (double step = 0.0; step <= steps; ++step) {
                values.set(id, valueAt(definition, step / steps));
                extended.append(values);
            }
        }
        result = extended;
    }
    return result;
}

QString described(const ParameterValues &values)
{
    QString text;
    for (const auto &[key, value] : values.entries().asKeyValueRange())
        text += u" %1=%2"_s.arg(key).arg(values.number(key, qQNaN()));
    return text;
}

ParameterValues with(const QList<std::pair<QString, ParameterValue>> &entries)
{
    ParameterValues values;
    for (const auto &[key, value] : entries)
        values.set(key, value);
    return values;
}

QString text(const ShapeGenerator &generator, const ParameterValues &values)
{
    return svgPathText(painterPath(generator.generate({100.0, 90.0}, values)));
}

QList<QPointF> anchors(const EditablePath &path)
{
    QList<QPointF> points;
    for (const EditablePathContour &contour : path.contours) {
        for (const EditablePathNode &node : contour.nodes)
            points.append(node.anchor);
    }
    return points;
}

/// Two sides of a polygon cross, more than by a touch.
bool crossesItself(const QPolygonF &polygon)
{
    QList<QLineF> sides; // from left to right
    for (qsizetype i = 1; i < polygon.size(); ++i) {
        const QLineF side(polygon[i - 1], polygon[i]);
        sides.append(side.dx() < 0.0 ? QLineF(side.p2(), side.p1()) : side);
    }
    std::ranges::sort(sides, {}, &QLineF::x1);
    const auto separates = [](const QLineF &line, const QLineF &other) {
        const auto distance = [&line](const QPointF &point) {
            return (line.dx() * (point.y() - line.y1()) - line.dy() * (point.x() - line.x1())) / line.length();
        };
        const auto [low, high] = std::minmax({distance(other.p1()), distance(other.p2())});
        return low < -1e-6 && high > 1e-6;
    };
    for (qsizetype i = 0; i < sides.size(); ++i) {
        for (qsizetype j = i + 1; j < sides.size() && sides[j].x1() <= sides[i].x2(); ++j) {
            if (separates(sides[i], sides[j]) && separates(sides[j], sides[i]))
                return true;
        }
    }
    return false;
}

/// What is wrong with an outline in the box; empty when nothing is.
QString fault(const EditablePath &path, const QSizeF &box)
{
    QSet<QUuid> ids;
    for (const EditablePathContour &contour : path.contours) {
        if (!contour.closed || contour.nodes.size() < 2)
            return u"an open contour"_s;
        for (const EditablePathNode &node : contour.nodes) {
            const QPointF sum = node.anchor + node.inControl + node.outControl;
            if (!std::isfinite(sum.x()) || !std::isfinite(sum.y()))
                return u"not finite"_s;
            ids.insert(node.id);
        }
    }
    if (ids.size() != anchors(path).size())
        return u"an id twice"_s;
    const QPainterPath outline = painterPath(path);
    const QRectF bounds = outline.boundingRect();
    const double rounding = 1e-9 * std::max(box.width(), box.height());
    if (!QRectF(QPointF(), box).adjusted(-rounding, -rounding, rounding, rounding).contains(bounds))
        return u"outside the box"_s;
    const double side = std::min(box.width(), box.height());
    if (std::min(bounds.width(), bounds.height()) < 0.3 * side)
        return u"a sliver"_s;
    // Drawn a thousand pixels high or wide at least, so that curves are followed closely.
    const QTransform large = QTransform::fromScale(1000.0 / side, 1000.0 / side);
    const QList<QPolygonF> polygons = outline.toSubpathPolygons(large);
    return std::ranges::any_of(polygons, crossesItself) ? u"crosses itself"_s : QString();
}

} // namespace

/// Laws that all shapes keep, over the registry, and numbers worked out by hand for some.
class TestShapeGenerators : public QObject
{
    Q_OBJECT

private slots:
    void everyShapeKeepsItsContract()
    {
        QCOMPARE(m_registry.generators().size(), std::size(kContracts));
        for (size_t i = 0; i < std::size(kContracts); ++i) {
            const ShapeGenerator *shape = m_registry.generators()[i].get();
            QCOMPARE(written(*shape), QLatin1StringView(kContracts[i]));
            QCOMPARE(m_registry.find(shape->id()), shape);
        }
        QVERIFY(!m_registry.find(u"star"_s));
    }

    void everyOutlineIsSound()
    {
        for (const auto &shape : m_registry.generators()) {
            for (const ParameterValues &values : settings(*shape) + QList<ParameterValues>{{}}) {
                for (const QSizeF &size : {shape->defaultSize(), QSizeF(1, 1), QSizeF(16, 16), QSizeF(2000, 2000),
                                           QSizeF(2000, 4000), QSizeF(300, 80), QSizeF(80, 300)}) {
                    const QString problem = fault(shape->generate(size, values), size);
                    QVERIFY2(problem.isEmpty(), qPrintable(shape->id() + described(values) + u": "_s + problem));
                }
            }
        }
    }

    void everyParameterShows()
    {
        for (const auto &shape : m_registry.generators()) {
            for (const ParameterDefinition &definition : shape->parameters()) {
                const QString &id = parameterHead(definition).id;
                const auto *integer = std::get_if<IntegerRangeParameter>(&definition);
                const bool isLength = parameterHead(definition).unit == ParameterUnit::Pixels; // what fits limits it
                const double most = isLength ? 1.0 : 5.0;
                const double steps = integer ? std::min(most, double(integer->maximum - integer->minimum)) : most;
                // Two forms may be alike where another parameter flattens them.
                for (ParameterValues values : id == "form"_L1 ? QList<ParameterValues>{{}} : settings(*shape)) {
                    QSet<QString> seen;
                    for (double step = 0.0; step <= steps; ++step) {
                        values.set(id, valueAt(definition, step / steps));
                        seen.insert(text(*shape, values));
                    }
                    QVERIFY2(seen.size() == steps + 1.0, qPrintable(shape->id() + u' ' + id + described(values)));
                }
            }
        }
    }

    void strangeValuesAreUnderstood()
    {
        for (const auto &shape : m_registry.generators()) {
            const QByteArray name = shape->id().toUtf8();
            ParameterValues strange = with({{u"unknown"_s, 3.0}});
            for (const ParameterDefinition &definition : shape->parameters()) {
                const QString &id = parameterHead(definition).id;
                strange.set(id, u"7"_s);
                const auto drawn = [&](const ParameterValue &value) { return text(*shape, with({{id, value}})); };
                const auto *real = std::get_if<RealRangeParameter>(&definition);
                if (real && real->flags == ParameterFlag::Percent)
                    QVERIFY2(drawn(100.0 * real->maximum) == drawn(real->maximum), name);
                QVERIFY2(drawn(-1e300) == drawn(valueAt(definition, 0.0)), name);
                QVERIFY2(drawn(1e300) == drawn(valueAt(definition, 1.0)), name);
            }
            QVERIFY2(text(*shape, strange) == text(*shape, {}), name);
            const auto inBox = [&](const QSizeF &size) { return anchors(shape->generate(size, {})); };
            for (const QSizeF &size : {QSizeF(0, 0), QSizeF(qQNaN(), -5), QSizeF(qInf(), 1)})
                QVERIFY2(inBox(size) == inBox({1, 1}), name);
        }
    }

    void outlinesGrowWithTheBox()
    {
        const QString stretching = u"arrow-right burst ellipse polygon triangle vignette"_s;
        for (const auto &shape : m_registry.generators()) {
            if (shape->id() == "speech"_L1 || shape->id() == "thought"_L1)
                continue; // keeps a margin of 2 units at every size
            const double across = stretching.contains(shape->id()) ? 7.0 : 3.0;
            const QList<QPointF> small = anchors(shape->generate({100, 90}, {}));
            const QList<QPointF> large = anchors(shape->generate({100 * across, 270}, {}));
            QCOMPARE(large.size(), small.size());
            for (qsizetype i = 0; i < small.size(); ++i) {
                const QPointF grown(small[i].x() * across, small[i].y() * 3.0);
                QVERIFY2(QLineF(large[i], grown).length() < 1e-9, qPrintable(shape->id()));
            }
        }
    }

    void nodesFollowTheParameters()
    {
        using Row = std::tuple<QString, int, int>;
        for (const auto &[id, vertices, roundedNodes] :
             {Row{u"arrow-right"_s, 7, 14}, Row{u"burst"_s, 2 * 9, 4 * 9}, Row{u"diamond"_s, 4, 8},
              Row{u"lightning-bolt"_s, 10, 20}, Row{u"polygon"_s, 9, 18}, Row{u"triangle"_s, 9, 18},
              Row{u"rhombus"_s, 4, 8}, Row{u"rounded-rect"_s, 4, 8}, Row{u"star5"_s, 2 * 9, 3 * 9},
              Row{u"vignette"_s, 4, 8}}) {
            ParameterValues values = with({{u"rays"_s, 9.0}, {u"sides"_s, 9.0}, {u"spikes"_s, 9.0}});
            const auto nodes = [&](double round) {
                for (const QString &key : {u"cornerRoundness"_s, u"radius"_s, u"tipRoundness"_s, u"corner-radius"_s})
                    values.set(key, round);
                return m_registry.find(id)->generate({100, 90}, values).contours[0].nodes;
            };
            const QList<EditablePathNode> sharp = nodes(0.0);
            QVERIFY2(sharp.size() == vertices && nodes(0.4).size() == roundedNodes, qPrintable(id));
            for (const EditablePathNode &node : sharp)
                QVERIFY2(!node.hasInControl && !node.hasOutControl, qPrintable(id));
        }
    }

    void roundedOutlinesHaveNoKinks()
    {
        for (const auto &[round, radius] :
             {std::pair(0.3, 1.0), {0.3, 8.0}, {0.3, 100.0}, {1.0, 1.0}, {1.0, 8.0}, {1.0, 100.0}}) {
            ParameterValues values = with({{u"crescent"_s, round - 0.3},
                                           {u"cornerRadius"_s, radius},
                                           {u"radius"_s, 50.0 * round},
                                           {u"middleWidth"_s, 1.0 - round}});
            for (const QString &key : {u"cornerRoundness"_s, u"roundness"_s, u"corner-radius"_s})
                values.set(key, round);
            for (const QString &id :
                 {u"diamond"_s, u"polygon"_s, u"ellipse"_s, u"vignette"_s, u"rounded-rect"_s, u"half-circle"_s}) {
                for (const QSizeF &size : {QSizeF(100, 60), QSizeF(300, 80), QSizeF(80, 300)}) {
                    const QList<EditablePathNode> nodes = m_registry.find(id)->generate(size, values).contours[0].nodes;
                    for (qsizetype i = 0; i < nodes.size(); ++i) {
                        const EditablePathNode &before = nodes[(i + nodes.size() - 1) % nodes.size()];
                        const EditablePathNode &node = nodes[i];
                        const EditablePathNode &after = nodes[(i + 1) % nodes.size()];
                        const QLineF in(node.hasInControl ? node.inControl : before.anchor, node.anchor);
                        const QLineF out(node.anchor, node.hasOutControl ? node.outControl : after.anchor);
                        QVERIFY2(std::min(in.angleTo(out), out.angleTo(in)) < 0.05, qPrintable(id + described(values)));
                    }
                }
            }
        }
    }

    void verticesStandWhereTheyAreCalculated()
    {
        const QPolygonF arrow({{0, 21.6}, {60, 21.6}, {60, 4.8}, {100, 40}, {60, 75.2}, {60, 58.4}, {0, 58.4}});
        const ParameterValues twoSpikes = with({{u"spikes"_s, 2.4}});
        const ParameterValues sixRays = with({{u"rays"_s, 6.0}, {u"depth"_s, 0.0}, {u"cornerRoundness"_s, 0.0}});
        using Row = std::tuple<QString, QSizeF, ParameterValues, int, QPolygonF>;
        for (const auto &[id, size, values, count, expected] :
             {Row{u"arrow-right"_s, {100, 80}, {}, 7, arrow},
              Row{u"star5"_s, {100, 200}, {}, 10, {{{50, 52}, {62.6962, 82.5252}, {95.6507, 85.1672}}}},
              Row{u"star5"_s, {300, 100}, {}, 10, {{{150, 2}, {162.6962, 32.5252}, {195.6507, 35.1672}}}},
              Row{u"star5"_s, {100, 100}, twoSpikes, 4, {{{50, 2}, {71.6, 50}, {50, 98}, {28.4, 50}}}},
              Row{u"burst"_s, {100, 200}, sixRays, 12, {{{50, 4}, {70.16, 30.1637}, {91.5692, 52}}}}}) {
            const QList<QPointF> points = anchors(m_registry.find(id)->generate(size, values));
            QCOMPARE(points.size(), count);
            for (qsizetype i = 0; i < expected.size(); ++i) // rounded numbers
                QVERIFY2(QLineF(points[i], expected[i]).length() < 5e-4, qPrintable(id));
        }
    }

    void previewsLookLikeLayers()
    {
        for (const auto &shape : m_registry.generators()) {
            const QSizeF size = shape->defaultSize();
            const ShapeLayer layer(GeneratorGeometry{shape->id(), {}}, size, defaultShapeStroke(*shape),
                                   Fill(shape->defaultFillColor()), {});
            const QImage preview = shapePreview(*shape, {}, size, size.toSize());
            QVERIFY2(preview == layer.renderContent(nullptr).image, qPrintable(shape->id()));
            QCOMPARE(shapePreview(*shape, {}, {qQNaN(), 0}, {0, 0}).size(), QSize(1, 1));
        }
    }

private:
    const ShapeGeneratorRegistry &m_registry = ShapeGeneratorRegistry::instance();
};

QTEST_GUILESS_MAIN(TestShapeGenerators)
#include "tst_shape_generators.moc"
