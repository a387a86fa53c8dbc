#include "values/editable_path_builder.h"
#include "values/fill.h"

#include <QGradient>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

bool near(const QPointF &a, const QPointF &b)
{
    return QLineF(a, b).length() < 1e-9;
}

GradientFill radial(const QPointF &centre, const QPointF &rim)
{
    return {GradientType::Radial, centre, rim, {{0.0, Qt::red}, {1.0, Qt::blue}}};
}

EditablePathNode node(const QPointF &anchor, std::optional<QPointF> in = {}, std::optional<QPointF> out = {})
{
    EditablePathNode result;
    result.anchor = anchor;
    result.inControl = in.value_or(anchor);
    result.outControl = out.value_or(anchor);
    result.hasInControl = in.has_value();
    result.hasOutControl = out.has_value();
    return result;
}

/// Anchors, handles and closing; ids are new in every conversion.
QString geometryText(const EditablePath &path)
{
    QString text;
    const auto point = [&text](bool present, const QPointF &p) {
        text += present ? u" %1,%2"_s.arg(p.x()).arg(p.y()) : u" -"_s;
    };
    for (const EditablePathContour &contour : path.contours) {
        text += contour.closed ? u"closed"_s : u"open"_s;
        for (const EditablePathNode &n : contour.nodes) {
            point(true, n.anchor);
            point(n.hasInControl, n.inControl);
            point(n.hasOutControl, n.outControl);
        }
        text += u'\n';
    }
    return text;
}

} // namespace

class TestFillsAndPaths : public QObject
{
    Q_OBJECT

private slots:
    void gradientPointsTouchTheEdges_data()
    {
        QTest::addColumn<double>("angle");
        QTest::addColumn<QLineF>("points");
        QTest::addColumn<double>("readBack");
        const double third = 0.5 / std::sqrt(3.0);
        QTest::newRow("right") << 0.0 << QLineF(0, 0.5, 1, 0.5) << 0.0;
        QTest::newRow("diagonal") << 45.0 << QLineF(0, 0, 1, 1) << 45.0;
        QTest::newRow("down") << 90.0 << QLineF(0.5, 0, 0.5, 1) << 90.0;
        QTest::newRow("flat") << 30.0 << QLineF(0, 0.5 - third, 1, 0.5 + third) << 30.0;
        QTest::newRow("negative") << -90.0 << QLineF(0.5, 1, 0.5, 0) << 270.0;
        QTest::newRow("several turns") << 765.0 << QLineF(0, 0, 1, 1) << 45.0;
        QTest::newRow("not a number") << kNaN << QLineF(0, 0.5, 1, 0.5) << 0.0;
    }
    void gradientPointsTouchTheEdges()
    {
        QFETCH(double, angle);
        QFETCH(QLineF, points);
        QFETCH(double, readBack);
        const QLineF line = gradientPoints(angle);
        QVERIFY(near(line.p1(), points.p1()) && near(line.p2(), points.p2()));
        QVERIFY(std::abs(gradientAngle({GradientType::Linear, line.p1(), line.p2(), {}}) - readBack) < 1e-9);
    }

    void radialArithmeticKeepsTheRimsDirection()
    {
        const GradientFill gradient = radial({0.5, 0.5}, {0.5, 0.9});
        QCOMPARE(radialRadius(gradient), 40.0);
        const GradientFill moved = withRadialOrigin(gradient, {25.0, 400.0});
        QVERIFY(near(moved.start, {0.25, 1.0}) && near(moved.end, {0.25, 1.4}));
        QCOMPARE(radialOrigin(moved), QPointF(25, 100));
        QCOMPARE(withRadialOrigin(gradient, {kNaN, 10.0}).start, QPointF(0.5, 0.1));
        for (const double percent : {80.0, 25.0, 10.0})
            QVERIFY(near(withRadialRadius(gradient, percent).end, {0.5, 0.5 + percent / 100.0}));
        QCOMPARE(withRadialRadius(gradient, kNaN).end, QPointF(0.5, 0.5));
        QVERIFY(near(withRadialRadius(radial({0.5, 0.5}, {0.5, 0.5}), 50.0).end, {1.0, 0.5}));
        QCOMPARE(gradientAngle(radial({0.3, 0.3}, {0.3, 0.3})), 0.0);
    }

    void fillsAreCleaned()
    {
        QCOMPARE(Fill(QColor()).solidColor(Qt::green), QColor(Qt::black));
        GradientFill wild = radial({kNaN, 0.0}, {1.0, 1.0});
        wild.stops = {{-3.0, QColor()}};
        const Fill clean(wild);
        QCOMPARE(clean.gradient()->start, QPointF(0.5, 0.5));
        QCOMPARE(clean.gradient()->end, QPointF(1.0, 0.5));
        QCOMPARE(clean.gradient()->stops, (QList<GradientStop>{{0.0, Qt::black}, {0.0, Qt::black}}));
        wild.stops.clear();
        QCOMPARE(Fill(wild).gradient()->stops.size(), 2);
        const Fill texture(TextureFill{u"wood"_s, {}, {}, QTransform(kNaN, 0, 0, 1, 0, 0), 9});
        QVERIFY(texture.texture()->transform.isIdentity());
        QCOMPARE(texture.texture()->mapping, 0U);
        QCOMPARE(texture.brushFor({10, 10}).color().alpha(), 0);
    }

    void outerStopsFade_data()
    {
        QTest::addColumn<QList<double>>("positions");
        QTest::addColumn<QList<double>>("painted");
        QTest::newRow("whole") << QList<double>{0.0, 1.0} << QList<double>{0.0, 1.0};
        QTest::newRow("inner") << QList<double>{0.25, 0.75} << QList<double>{0.0, 0.25, 0.75, 1.0};
        QTest::newRow("out of order") << QList<double>{1.0, 0.5, 0.0} << QList<double>{0.0, 0.5, 1.0};
        QTest::newRow("above one") << QList<double>{0.0, 1.5} << QList<double>{0.0, 1.0};
        QTest::newRow("hard edge") << QList<double>{0.0, 0.5, 0.5, 0.5, 1.0} << QList<double>{0.0, 0.5, 0.5, 1.0};
        QTest::newRow("hard edges at the ends")
            << QList<double>{0.0, 0.0, 1.0, 1.0} << QList<double>{0.0, 0.0, 1.0, 1.0};
    }
    void outerStopsFade()
    {
        QFETCH(QList<double>, positions);
        QFETCH(QList<double>, painted);
        GradientFill gradient;
        gradient.stops.clear();
        for (const double position : positions)
            gradient.stops.append({position, QColor(10, 20, 30)});
        const QBrush filled = Fill(gradient).brushFor({200, 100});
        const QGradient *brush = filled.gradient();
        QCOMPARE(brush->coordinateMode(), QGradient::LogicalMode);
        const QGradientStops stops = brush->stops();
        QCOMPARE(stops.size(), painted.size());
        for (qsizetype i = 0; i < stops.size(); ++i) {
            QVERIFY(std::abs(stops[i].first - painted[i]) < 1e-12);
            const bool fades = (i == 0 && !positions.contains(0.0))
                || (i + 1 == stops.size() && stops[i].first == 1.0 && positions.last() < 1.0
                    && positions.first() < 1.0);
            QCOMPARE(stops[i].second.alpha(), fades ? 0 : 255);
        }
    }

    void brushesAreFittedToPixels()
    {
        GradientFill gradient{GradientType::Linear, {0.0, 0.25}, {0.5, 1.0}, {{0.0, Qt::red}, {1.0, Qt::blue}}};
        const QBrush linear = Fill(gradient).brushFor({200, 100});
        QCOMPARE(static_cast<const QLinearGradient *>(linear.gradient())->start(), QPointF(0, 25));
        QCOMPARE(static_cast<const QLinearGradient *>(linear.gradient())->finalStop(), QPointF(100, 100));
        const QBrush round = Fill(radial({0.5, 0.5}, {0.5, 0.5})).brushFor({0, -5});
        const auto *circle = static_cast<const QRadialGradient *>(round.gradient());
        QCOMPARE(circle->center(), QPointF(0.5, 0.5));
        QCOMPARE(circle->focalPoint(), circle->center());
        QCOMPARE(circle->radius(), 1.0);
        gradient.stops.fill({0.5, Qt::red}, kMaximumGradientStops + 5);
        for (GradientStop &stop : gradient.stops)
            stop.position = QRandomGenerator::global()->generateDouble();
        const Fill crowded(gradient);
        QCOMPARE(crowded.gradient()->stops.size(), kMaximumGradientStops);
        QVERIFY(crowded.brushFor({10, 10}).gradient()->stops().size() <= 4100); // and in no time
    }

    void brushesBecomeFills()
    {
        QLinearGradient pixels(10, 10, 10, 90);
        pixels.setColorAt(0.0, Qt::red);
        pixels.setColorAt(0.4, Qt::blue);
        const Fill fromPixels = Fill::fromBrush(pixels);
        QVERIFY(near(fromPixels.gradient()->start, {0.5, 0.0}) && near(fromPixels.gradient()->end, {0.5, 1.0}));
        QCOMPARE(fromPixels.gradient()->stops, (QList<GradientStop>{{0.0, Qt::red}, {0.4, Qt::blue}}));
        pixels.setCoordinateMode(QGradient::ObjectMode);
        QCOMPARE(Fill::fromBrush(pixels).gradient()->start, QPointF(10, 10));
        QImage image(2, 2, QImage::Format_RGBA8888);
        image.fill(Qt::red);
        const Fill texture = Fill::fromBrush(QBrush(image), 2);
        QCOMPARE(texture.texture()->image, image);
        QCOMPARE(texture.texture()->mapping, 2U);
        QVERIFY(texture.texture()->generatorId.isEmpty());
        QCOMPARE(Fill::fromBrush(QBrush(QColor())).solidColor(Qt::red), QColor(Qt::black));
    }

    void fillsTurnIntoGradients()
    {
        const GradientFill fresh = gradientFrom(QColor(Qt::red), GradientType::Radial);
        QCOMPARE(fresh,
                 (GradientFill{GradientType::Radial, {0.5, 0.5}, {1.0, 0.5}, {{0.0, Qt::red}, {1.0, Qt::white}}}));
        const GradientFill linear = gradientFrom(radial({0.1, 0.2}, {0.3, 0.4}), GradientType::Linear);
        QCOMPARE(linear,
                 (GradientFill{GradientType::Linear, {0.0, 0.5}, {1.0, 0.5}, {{0.0, Qt::red}, {1.0, Qt::blue}}}));
        QCOMPARE(gradientFrom(linear, GradientType::Linear), linear);
        QCOMPARE(gradientFrom(TextureFill(), GradientType::Linear).stops.first().color, QColor(Qt::black));
    }

    void pathsBecomeOutlines_data()
    {
        QTest::addColumn<EditablePath>("path");
        QTest::addColumn<QString>("outline");
        const auto row = [](const char *name, bool closed, const QList<EditablePathNode> &nodes,
                            const QString &outline) {
            QTest::newRow(name) << EditablePath{{{nodes, closed}}, Qt::OddEvenFill} << outline;
        };
        row("lone node, closed", true, {node({5, 5})}, u"M 5 5"_s);
        row("open line", false, {node({0, 0}), node({4, 0})}, u"M 0 0 L 4 0"_s);
        row("there and back", true, {node({0, 0}), node({4, 0})}, u"M 0 0 L 4 0 L 0 0"_s);
        row("only an out handle", false, {node({0, 0}, {}, QPointF(1, 2)), node({4, 0})}, u"M 0 0 C 1 2 4 0 4 0"_s);
        row("only an in handle", false, {node({0, 0}), node({4, 0}, QPointF(3, 2))}, u"M 0 0 C 0 0 3 2 4 0"_s);
        row("closing curve", true, {node({0, 0}, QPointF(0, 5)), node({4, 0}), node({4, 4}, {}, QPointF(4, 5))},
            u"M 0 0 L 4 0 L 4 4 C 4 5 0 5 0 0"_s);
    }
    void pathsBecomeOutlines()
    {
        QFETCH(EditablePath, path);
        QFETCH(QString, outline);
        const QPainterPath drawn = painterPath(path);
        QCOMPARE(svgPathText(drawn), outline);
        QCOMPARE(drawn.fillRule(), Qt::OddEvenFill);
        if (path.contours.first().nodes.size() > 1)
            QCOMPARE(geometryText(editablePath(drawn)), geometryText(path));
        QCOMPARE(editablePath(drawn).fillRule, Qt::OddEvenFill);
    }

    void drawnOutlinesBecomeNodes()
    {
        QPainterPath outline;
        outline.addEllipse(0, 0, 10, 10);
        outline.moveTo(20, 0);
        outline.lineTo(30, 0);
        const EditablePath path = editablePath(outline);
        QCOMPARE(path.contours.size(), 2);
        QCOMPARE(path.contours[0].nodes.size(), 4);
        QVERIFY(path.contours[0].closed && !path.contours[1].closed);
        for (const EditablePathNode &round : path.contours[0].nodes)
            QCOMPARE(round.type, EditablePathNode::Type::Smooth);
        QCOMPARE(path.contours[1].nodes[0].type, EditablePathNode::Type::Corner);
        QCOMPARE(svgPathText(painterPath(path)), svgPathText(outline));
        QCOMPARE(path.contours[0].nodes[0].id.version(), QUuid::Random);
        QCOMPARE(findNode(path, path.contours[1].nodes[1].id), (EditablePathNodeIndex{1, 1}));
        QVERIFY(!findNode(path, QUuid::createUuid()));
        QVERIFY(editablePath(QPainterPath()).isEmpty());
    }

    void boundsHoldHandlesInUse()
    {
        const EditablePath lone{{{{node({5, 5})}, true}}};
        QVERIFY(pathBounds(lone, 0.0).isNull());
        QCOMPARE(pathBounds(lone, 2.0), QRectF(3, 3, 4, 4));
        EditablePath path{{{{node({0, 0}, {}, QPointF(0, 40)), node({10, 0})}, false}}};
        QCOMPARE(pathBounds(path, 1.0), QRectF(-1, -1, 12, 42));
        path.contours[0].nodes[0].hasOutControl = false;
        path.contours[0].nodes.append(node({10, 10}));
        QCOMPARE(pathBounds(path, 0.0), QRectF(0, 0, 10, 10));
        QVERIFY(pathBounds({}, 3.0).isNull());
    }

    void svgTextHasTwelveDigits()
    {
        QPainterPath outline(QPointF(1.0 / 3.0, 1e-7));
        outline.lineTo(123456.7890123456, -2);
        QCOMPARE(svgPathText(outline), u"M 0.333333333333 1e-07 L 123456.789012 -2"_s);
    }
};

QTEST_GUILESS_MAIN(TestFillsAndPaths)
#include "tst_fills_and_paths.moc"
