#include "document/fill.h"
#include "document/shape_layer.h"
#include "generators/shape_generator_registry.h"
#include "generators/shape_preview.h"

#include <QSet>
#include <QTest>

#include <cmath>
#include <limits>

using namespace zm;
using namespace Qt::StringLiterals;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// What documents and translations rely on: id, label, size, fill, stroke, and the parameters' id, label, kind (r for a
/// percentage, p for pixels, i for an integer), default, minimum and maximum. In the registry's order.
constexpr const char *kContracts[] = {
    "arrow-right Arrow 100x80 #101b27 - [cornerRoundness Corner Radius r 0 0 1] [tipWidth Tip r 0.4 0.2 0.8] "
    "[tailWidth Tail r 0.46 0.1 0.85]",
    "burst Burst 100x100 #ffb000 #6d4300 [rays Rays i 14 6 32] [depth Depth r 0.05 0 1] "
    "[cornerRoundness Corner Radius r 0.12 0 1]",
    "cloud Cloud 120x80 #ffffff #8aa1b7 [form Form i 1 1 4] [puffiness Puffiness r 0.6 0 1]",
    "diamond Diamond 100x120 #101b27 - [cornerRoundness Corner Radius r 0 0 1] "
    "[horizontalCenter Horizontal r 0.5 0.1 0.9] [verticalCenter Vertical r 0.5 0.1 0.9]",
    "ellipse Ellipse 120x80 #101b27 - [roundness Roundness r 1 0 1] [middleWidth Middle r 0 0 1]",
    "half-circle Half Circle 100x60 #101b27 - [crescent Crescent r 0 0 1] [cornerRadius Corner Radius p 0 0 100]",
    "heart Heart 100x90 #ed2224 #dd5f5f [lobeRoundness Lobes r 0.24 0 1] [cleftDepth Cleft r 0.34 0 1] "
    "[tipSharpness Tip r 0.23 0 1]",
    "lightning-bolt Lightning 90x120 #ffd23f #3a310b [bend Bend r 0.52 0 1] [cornerRoundness Corner Radius r 0 0 1]",
    "paint-spot Paint Spot 110x90 #f5323f #9c1d28 [form Form i 1 1 6] [spikeLength Length r 0.55 0 1] "
    "[spikeAmount Spikes r 0.65 0 1]",
    "polygon Polygon 100x100 #101b27 - [sides Sides i 5 3 12] [cornerRoundness Corner Radius r 0 0 1]",
    "rhombus Rhombus 120x80 #101b27 - [cornerRoundness Corner Radius r 0 0 1] "
    "[horizontalLength Horizontal r 0.72 0.2 1] [verticalLength Vertical r 1 0.2 1]",
    "ribbon Ribbon 80x120 #3498cf #ffffff [form Form i 1 1 6] [notchDepth Depth r 0.26 0 0.45] "
    "[cornerRoundness Corner Radius r 0 0 1]",
    "rounded-rect Rectangle 100x70 #101b27 - [radius Corner Radius p 0 0 100]",
    "shield-badge Shield Badge 100x120 #315c9d #172846 [form Form i 1 1 4] [pointDepth Point r 0.65 0.6 1] "
    "[cornerRoundness Corner Radius r 0.08 0 1]",
    "speech Speech 100x90 #ffffff #111111 [cornerRadius Corner Radius p 4 0 100] "
    "[pointerLength Pointer r 0.22 0.08 0.45]",
    "splodge Splodge 100x90 #4ccdb6 #1c6f67 [form Form i 1 1 6] [cornerRoundness Corner Radius r 0.8 0 1]",
    "star5 Star 100x100 #ffdf00 #222222 [spikes Spikes i 5 2 32] [tipRoundness Tip r 0 0 1]",
    "thought Thought 100x90 #ffffff #111111 [cornerRadius Corner Radius p 18 0 100] "
    "[pointerLength Tip r 0.22 0.08 0.45]",
    "triangle Triangle 100x100 #101b27 - [sides Sides i 3 3 12] [cornerRoundness Corner Radius r 0 0 1]",
    "vignette Vignette 100x100 #101b27 - [corner-radius Corner Radius r 0.7 0 1]",
};

QString written(const ParameterDefinition &definition)
{
    const ParameterHead &head = parameterHead(definition);
    const auto row = [&head](QChar kind, const auto &range) {
        return u" [%1 %2 %3 %4 %5 %6]"_s.arg(head.id, head.label, kind)
            .arg(range.defaultValue)
            .arg(range.minimum)
            .arg(range.maximum);
    };
    if (const auto *integer = std::get_if<IntegerRangeParameter>(&definition))
        return row(u'i', *integer);
    const auto &real = std::get<RealRangeParameter>(definition);
    if (head.flags == ParameterFlag::Percent)
        return row(real.step == 0.01 ? u'r' : u'?', real);
    return row(head.unit == ParameterUnit::Pixels && real.step == 1.0 ? u'p' : u'?', real);
}

QString written(const ShapeGenerator &generator)
{
    const QColor stroke = generator.defaultStrokeColor();
    QString text = u"%1 %2 %3x%4 %5 %6"_s.arg(generator.id(), generator.label())
                       .arg(generator.defaultSize().width())
                       .arg(generator.defaultSize().height())
                       .arg(generator.defaultFillColor().name(), stroke.isValid() ? stroke.name() : u"-"_s);
    for (const ParameterDefinition &definition : generator.parameters())
        text += written(definition);
    return text;
}

/// A place between the parameter's limits, 0..1.
ParameterValue valueAt(const ParameterDefinition &definition, double place)
{
    const auto between = [place](const auto &range) {
        return double(range.minimum) + place * double(range.maximum - range.minimum);
    };
    if (const auto *integer = std::get_if<IntegerRangeParameter>(&definition))
        return qint64(std::lround(between(*integer)));
    return between(std::get<RealRangeParameter>(definition));
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
    QStringList words;
    for (const auto &[key, value] : values.entries().asKeyValueRange())
        words.append(u"%1=%2"_s.arg(key).arg(values.number(key, kNaN)));
    return words.join(u' ');
}

ParameterValues numbers(const QList<std::pair<QString, double>> &entries)
{
    ParameterValues values;
    for (const auto &[key, number] : entries)
        values.set(key, number);
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

double cross(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// Two sides of a polygon cross, more than by a touch.
bool crossesItself(const QPolygonF &polygon)
{
    QList<QLineF> sides;
    for (qsizetype i = 1; i < polygon.size(); ++i)
        sides.append({polygon[i - 1], polygon[i]});
    const auto left = [](const QLineF &side) { return std::min(side.x1(), side.x2()); };
    const auto right = [](const QLineF &side) { return std::max(side.x1(), side.x2()); };
    std::ranges::sort(sides, {}, left);
    const auto separates = [](const QLineF &line, const QLineF &other) {
        const QPointF along = line.p2() - line.p1();
        const double a = cross(along, other.p1() - line.p1());
        const double b = cross(along, other.p2() - line.p1());
        const double touch = 1e-6 * std::hypot(along.x(), along.y()); // the distance of a point that lies on the line
        return (a > touch && b < -touch) || (a < -touch && b > touch);
    };
    for (qsizetype i = 0; i < sides.size(); ++i) {
        for (qsizetype j = i + 1; j < sides.size() && left(sides[j]) <= right(sides[i]); ++j) {
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
    if (path.isEmpty())
        return u"empty"_s;
    for (const EditablePathContour &contour : path.contours) {
        if (!contour.closed || contour.nodes.size() < 2)
            return u"an open contour"_s;
        for (const EditablePathNode &node : contour.nodes) {
            for (const QPointF &point : {node.anchor, node.inControl, node.outControl}) {
                if (!std::isfinite(point.x()) || !std::isfinite(point.y()))
                    return u"not finite"_s;
            }
            if (ids.contains(node.id))
                return u"an id twice"_s;
            ids.insert(node.id);
        }
    }
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
        QStringList contracts, seen;
        for (const char *contract : kContracts)
            contracts.append(QString::fromLatin1(contract));
        for (const auto &generator : generators()) {
            seen.append(written(*generator));
            QCOMPARE(registry().find(generator->id()), generator.get());
        }
        QCOMPARE(seen, contracts);
        QVERIFY(!registry().find(u"star"_s));
    }

    void everyOutlineIsSound_data() { addGenerators(); }
    void everyOutlineIsSound()
    {
        const ShapeGenerator &generator = fetched();
        QList<ParameterValues> all = settings(generator) + QList<ParameterValues>{{}};
        for (const ParameterDefinition &definition : generator.parameters()) {
            if (parameterHead(definition).unit == ParameterUnit::Pixels)
                all.append(numbers({{parameterHead(definition).id, 1e300}}));
        }
        for (const QSizeF &size : {generator.defaultSize(), QSizeF(1, 1), QSizeF(16, 16), QSizeF(2000, 2000),
                                   QSizeF(2000, 4000), QSizeF(300, 80), QSizeF(80, 300)}) {
            for (const ParameterValues &values : all) {
                const QString problem = fault(generator.generate(size, values), size);
                QVERIFY2(problem.isEmpty(),
                         qPrintable(u"%1: %2, %3 wide"_s.arg(described(values), problem).arg(size.width())));
            }
        }
    }

    void everyParameterShows_data() { addGenerators(); }
    void everyParameterShows()
    {
        const ShapeGenerator &generator = fetched();
        for (const ParameterDefinition &definition : generator.parameters()) {
            const QString &id = parameterHead(definition).id;
            const bool isLength = parameterHead(definition).unit == ParameterUnit::Pixels; // what fits limits it
            const double steps = isLength ? 1.0 : 5.0;
            // Two forms may be alike where another parameter flattens them.
            for (ParameterValues values : id == "form"_L1 ? QList<ParameterValues>{{}} : settings(generator)) {
                QSet<QString> seen;
                for (double step = 0.0; step <= steps; ++step) {
                    values.set(id, valueAt(definition, step / steps));
                    seen.insert(text(generator, values));
                }
                const auto *integer = std::get_if<IntegerRangeParameter>(&definition);
                const double count = integer ? std::min(steps, double(integer->maximum - integer->minimum)) : steps;
                QVERIFY2(seen.size() == count + 1.0, qPrintable(id + u" in "_s + described(values)));
            }
        }
    }

    void strangeValuesAreUnderstood_data() { addGenerators(); }
    void strangeValuesAreUnderstood()
    {
        const ShapeGenerator &generator = fetched();
        const QString plain = text(generator, {});
        ParameterValues strange;
        strange.set(u"unknown"_s, 3.0);
        for (const ParameterDefinition &definition : generator.parameters()) {
            const QString &id = parameterHead(definition).id;
            strange.set(id, u"7"_s);
            const auto withNumber = [&](double number) { return text(generator, numbers({{id, number}})); };
            if (const auto *real = std::get_if<RealRangeParameter>(&definition);
                real && real->flags == ParameterFlag::Percent)
                QCOMPARE(withNumber(100.0 * real->maximum), withNumber(real->maximum));
            ParameterValues lowest, highest;
            lowest.set(id, valueAt(definition, 0.0));
            highest.set(id, valueAt(definition, 1.0));
            QCOMPARE(withNumber(-1e300), text(generator, lowest));
            QCOMPARE(withNumber(1e300), text(generator, highest));
        }
        QCOMPARE(text(generator, strange), plain);

        const auto inBox = [&](const QSizeF &size) { return anchors(generator.generate(size, {})); };
        for (const QSizeF &size : {QSizeF(0, 0), QSizeF(kNaN, -5), QSizeF(kInfinity, 1)})
            QCOMPARE(inBox(size), inBox({1, 1}));
    }

    void outlinesGrowWithTheBox_data() { addGenerators(); }
    void outlinesGrowWithTheBox()
    {
        const ShapeGenerator &generator = fetched();
        if (generator.id() == "speech"_L1 || generator.id() == "thought"_L1)
            QSKIP("Keeps a margin of 2 units at every size.");
        static const QSet<QString> stretching{u"arrow-right"_s, u"burst"_s,    u"ellipse"_s,
                                              u"polygon"_s,     u"triangle"_s, u"vignette"_s};
        const double across = stretching.contains(generator.id()) ? 7.0 : 3.0;
        const QList<QPointF> small = anchors(generator.generate({100, 90}, {}));
        const QList<QPointF> large = anchors(generator.generate({100 * across, 270}, {}));
        QCOMPARE(large.size(), small.size());
        for (qsizetype i = 0; i < small.size(); ++i) {
            const QPointF off = large[i] - QPointF(small[i].x() * across, small[i].y() * 3.0);
            QVERIFY(std::hypot(off.x(), off.y()) < 1e-9);
        }
    }

    void nodesFollowTheParameters()
    {
        struct Row
        {
            const char *id;
            const char *roundness;
            const char *count;
            int vertices;
            int roundedNodes;
        };
        for (const Row &row :
             {Row{"arrow-right", "cornerRoundness", "", 7, 14}, Row{"burst", "cornerRoundness", "rays", 2 * 9, 4 * 9},
              Row{"diamond", "cornerRoundness", "", 4, 8}, Row{"lightning-bolt", "cornerRoundness", "", 10, 20},
              Row{"polygon", "cornerRoundness", "sides", 9, 18}, Row{"triangle", "cornerRoundness", "sides", 9, 18},
              Row{"rhombus", "cornerRoundness", "", 4, 8}, Row{"rounded-rect", "radius", "", 4, 8},
              Row{"star5", "tipRoundness", "spikes", 2 * 9, 3 * 9}, Row{"vignette", "corner-radius", "", 4, 8}}) {
            const auto nodes = [&](double round) {
                const ParameterValues values =
                    numbers({{QString::fromLatin1(row.roundness), round}, {QString::fromLatin1(row.count), 9}});
                return generator(row.id).generate({100, 90}, values).contours[0].nodes;
            };
            const QList<EditablePathNode> sharp = nodes(0.0);
            QVERIFY2(sharp.size() == row.vertices && nodes(0.4).size() == row.roundedNodes, row.id);
            QVERIFY2(std::ranges::none_of(sharp, &EditablePathNode::hasInControl), row.id);
            QVERIFY2(std::ranges::none_of(sharp, &EditablePathNode::hasOutControl), row.id);
        }
    }

    void roundedOutlinesHaveNoKinks_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<ParameterValues>("values");
        for (const double round : {0.3, 1.0}) {
            const auto row = [round](const char *id, const ParameterValues &values) {
                QTest::addRow("%s %s", id, qPrintable(described(values))) << QString::fromLatin1(id) << values;
            };
            row("diamond", numbers({{u"cornerRoundness"_s, round}}));
            row("polygon", numbers({{u"cornerRoundness"_s, round}}));
            row("ellipse", numbers({{u"roundness"_s, round}, {u"middleWidth"_s, 1.0 - round}}));
            row("vignette", numbers({{u"corner-radius"_s, round}}));
            row("rounded-rect", numbers({{u"radius"_s, 50.0 * round}}));
            for (const double radius : {1.0, 8.0, 100.0})
                row("half-circle", numbers({{u"crescent"_s, round - 0.3}, {u"cornerRadius"_s, radius}}));
        }
    }

    void roundedOutlinesHaveNoKinks()
    {
        QFETCH(QString, id);
        QFETCH(ParameterValues, values);
        for (const QSizeF &size : {QSizeF(100, 60), QSizeF(300, 80), QSizeF(80, 300)}) {
            const QList<EditablePathNode> nodes = registry().find(id)->generate(size, values).contours[0].nodes;
            for (qsizetype i = 0; i < nodes.size(); ++i) {
                const EditablePathNode &before = nodes[(i + nodes.size() - 1) % nodes.size()];
                const EditablePathNode &node = nodes[i];
                const EditablePathNode &after = nodes[(i + 1) % nodes.size()];
                const QPointF in = node.anchor - (node.hasInControl ? node.inControl : before.anchor);
                const QPointF out = (node.hasOutControl ? node.outControl : after.anchor) - node.anchor;
                const double turn = std::atan2(cross(in, out), QPointF::dotProduct(in, out));
                QVERIFY2(std::abs(turn) < 1e-3, qPrintable(u"node %1 turns by %2"_s.arg(i).arg(turn)));
            }
        }
    }

    void verticesStandWhereTheyAreCalculated()
    {
        const auto near = [](const QPointF &point, double x, double y) {
            return std::hypot(point.x() - x, point.y() - y) < 5e-4; // the numbers below are rounded
        };
        const QList<QPointF> arrow = anchors(generator("arrow-right").generate({100, 80}, {}));
        QVERIFY(near(arrow[0], 0, 21.6) && near(arrow[1], 60, 21.6) && near(arrow[2], 60, 4.8));
        QVERIFY(near(arrow[3], 100, 40) && near(arrow[4], 60, 75.2) && near(arrow[6], 0, 58.4));

        const QList<QPointF> star = anchors(generator("star5").generate({100, 200}, {}));
        QVERIFY(near(star[0], 50, 52) && near(star[1], 62.6962, 82.5252) && near(star[2], 95.6507, 85.1672));
        const QList<QPointF> roundInAWideBox = anchors(generator("star5").generate({300, 100}, {}));
        QVERIFY(near(roundInAWideBox[2], 195.6507, 35.1672));
        const QList<QPointF> thin = anchors(generator("star5").generate({100, 100}, numbers({{u"spikes"_s, 2.4}})));
        QCOMPARE(thin.size(), 4);
        QVERIFY(near(thin[0], 50, 2) && near(thin[1], 71.6, 50) && near(thin[2], 50, 98) && near(thin[3], 28.4, 50));

        const ParameterValues sixRays = numbers({{u"rays"_s, 6}, {u"depth"_s, 0}, {u"cornerRoundness"_s, 0}});
        const QList<QPointF> burst = anchors(generator("burst").generate({100, 200}, sixRays));
        QVERIFY(near(burst[0], 50, 4) && near(burst[1], 70.16, 30.1637) && near(burst[2], 91.5692, 52));
    }

    void previewsLookLikeLayers_data() { addGenerators(); }
    void previewsLookLikeLayers()
    {
        const ShapeGenerator &generator = fetched();
        const ShapeLayer layer(GeneratorGeometry{generator.id(), {}}, generator.defaultSize(),
                               shapePreviewStroke(generator), Fill(generator.defaultFillColor()), {});
        QCOMPARE(shapePreview(generator, {}, generator.defaultSize(), generator.defaultSize().toSize()),
                 layer.renderContent(nullptr).image);
        QCOMPARE(shapePreview(generator, {}, {kNaN, 0}, {0, 0}).size(), QSize(1, 1));
    }

private:
    static const ShapeGeneratorRegistry &registry() { return ShapeGeneratorRegistry::instance(); }
    static const std::vector<std::unique_ptr<ShapeGenerator>> &generators() { return registry().generators(); }
    static const ShapeGenerator &generator(const char *id) { return *registry().find(QString::fromLatin1(id)); }

    static void addGenerators()
    {
        QTest::addColumn<int>("index");
        for (size_t i = 0; i < generators().size(); ++i)
            QTest::newRow(qPrintable(generators()[i]->id())) << int(i);
    }
    static const ShapeGenerator &fetched()
    {
        QFETCH(int, index);
        return *generators()[size_t(index)];
    }
};

QTEST_GUILESS_MAIN(TestShapeGenerators)
#include "tst_shape_generators.moc"
