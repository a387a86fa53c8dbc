#include "values/parameter_definition.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr qint64 kLeast = std::numeric_limits<qint64>::min();
constexpr qint64 kMost = std::numeric_limits<qint64>::max();

ParameterDefinition choice(const QList<ParameterValue> &values)
{
    ChoiceParameter parameter;
    parameter.id = u"choice"_s;
    for (const ParameterValue &value : values)
        parameter.options.append({value, u"label"_s, {}});
    parameter.defaultValue = values.first();
    return parameter;
}

} // namespace

class TestParameters : public QObject
{
    Q_OBJECT

private slots:
    void realsSnap_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("expected");
        QTest::newRow("between steps") << 7.3 << 0.0 << 10.0 << 0.5 << 7.5;
        QTest::newRow("grid begins at the minimum") << 4.0 << 0.5 << 10.0 << 2.0 << 4.5;
        QTest::newRow("last step is cut off") << 9.9 << 0.0 << 10.0 << 4.0 << 8.0;
        QTest::newRow("step beyond the maximum") << 9.0 << 0.0 << 9.5 << 4.0 << 8.0;
        QTest::newRow("rounded past the maximum") << 10.0 << 0.0 << 10.0 << 4.0 << 10.0;
        QTest::newRow("no step") << 7.3 << 0.0 << 10.0 << 0.0 << 7.3;
        QTest::newRow("step is not a number") << 7.3 << 0.0 << 10.0 << kNaN << 7.3;
        QTest::newRow("below") << -1.0 << 0.25 << 10.0 << 1.0 << 0.25;
        QTest::newRow("not a number") << kNaN << 0.25 << 10.0 << 1.0 << 0.25;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 0.25 << 10.0 << 1.0 << 0.25;
    }
    void realsSnap()
    {
        QFETCH(double, value);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(double, step);
        QTEST(snapped(value, minimum, maximum, step), "expected");
    }

    void integersSnap()
    {
        QCOMPARE(snapped(qint64(7), 0, 10, 5), 5);
        QCOMPARE(snapped(qint64(8), 0, 10, 5), 10);
        QCOMPARE(snapped(qint64(-3), -10, 10, 2), -2); // half of a step rounds away from the minimum
        QCOMPARE(snapped(qint64(9), 0, 9, 5), 9);
        QCOMPARE(snapped(qint64(4), 0, 9, 0), 4);
        QCOMPARE(snapped(kMost, kLeast, kMost, 1), kMost);
        QCOMPARE(snapped(kMost - 1, kLeast, kMost, kMost), kMost - 1);
    }

    void valuesThatCannotBeKeptAreRefused()
    {
        LightSource nameless;
        nameless.id = {};
        const QList<ParameterValue> refused{kNaN,
                                            QColor(),
                                            AssetName{u".."_s},
                                            AssetName{u"a/b"_s},
                                            EnabledColor{true, QColor()},
                                            Stroke{Qt::red, -1.0},
                                            GradientPosition{kNaN, 0, 0, 0},
                                            MaskTransform{.rotation = kNaN},
                                            LightSources{nameless},
                                            LightSources(kMaximumLightSources + 1)};
        ParameterValues values;
        QVERIFY(values.set(u"key"_s, 1.5));
        for (const ParameterValue &value : refused)
            QVERIFY(!values.set(u"key"_s, value));
        QCOMPARE(values.number(u"key"_s, 0.0), 1.5);
        QVERIFY(!values.set({}, true));
    }

    void readersFallBackOnOtherKinds()
    {
        ParameterValues values;
        values.set(u"integer"_s, qint64(3));
        values.set(u"text"_s, u"three"_s);
        values.set(u"mask"_s, ShapeMask{u"star5"_s});
        values.set(u"stroke"_s, Stroke{Qt::red, 2.0});
        QCOMPARE(values.number(u"integer"_s, 0.0), 3.0);
        QCOMPARE(values.number(u"text"_s, 7.0), 7.0);
        QCOMPARE(values.number(u"absent"_s, 7.0), 7.0);
        QCOMPARE(values.string(u"mask"_s, {}), u"star5"_s);
        QCOMPARE(values.string(u"integer"_s, u"none"_s), u"none"_s);
        QCOMPARE(values.stroke(u"stroke"_s, {}), (Stroke{Qt::red, 2.0}));
        QCOMPARE(values.boolean(u"integer"_s, true), true);
    }

    void definitionsCleanTheirNumbers()
    {
        const ParameterDefinition swapped = realParameter(u"a"_s, u"A"_s, 7.3, 10.0, 0.0, 0.5, ParameterFlag::Percent);
        const auto &range = std::get<RealRangeParameter>(swapped);
        QCOMPARE(range.minimum, 0.0);
        QCOMPARE(range.maximum, 10.0);
        QCOMPARE(range.defaultValue, 7.5);
        QVERIFY(parameterHead(swapped).flags.testFlag(ParameterFlag::Percent));
        QCOMPARE(*defaultValue(integerParameter(u"b"_s, u"B"_s, 99, 1, 6)), ParameterValue(qint64(6)));
        QVERIFY(!defaultValue(FilterActionParameter()));
        QVERIFY(parameterHead(DocumentColorParameter()).flags.testFlag(ParameterFlag::NotStored));
        QCOMPARE(snapped(5.0, 2.0, 0.0, 0.5), 2.0);
    }

    void controlsAcceptTheirOwnKind()
    {
        const ParameterDefinition real = realParameter(u"r"_s, {}, 0.0, 0.0, 1.0, 0.1);
        const ParameterDefinition integer = integerParameter(u"i"_s, {}, 1, 1, 6);
        QCOMPARE(*acceptedValue(real, qint64(1)), ParameterValue(1.0));
        QCOMPARE(*acceptedValue(integer, 2.5), ParameterValue(qint64(3)));
        QCOMPARE(*acceptedValue(integer, 1e300), ParameterValue(qint64(6)));
        QCOMPARE(*acceptedValue(integer, kNaN), ParameterValue(qint64(1)));
        QCOMPARE(*acceptedValue(integerParameter(u"i"_s, {}, 0, kLeast, kMost), 1e300), ParameterValue(kMost));
        QVERIFY(!acceptedValue(choice({u""_s}), true));
        LightSourcesParameter oneLight;
        oneLight.maximumCount = 1;
        QVERIFY(!acceptedValue(oneLight, LightSources(2)));
        QVERIFY(!acceptedValue(real, u"0.5"_s));
        QVERIFY(!acceptedValue(ColorParameter(), QColor()));
        QCOMPARE(*acceptedValue(choice({qint64(0), qint64(1)}), u"1"_s), ParameterValue(qint64(1)));
        QVERIFY(!acceptedValue(choice({u"a"_s}), u"b"_s));
        QCOMPARE(*acceptedValue(ShapeParameter(), u"star5"_s), ParameterValue(ShapeMask{u"star5"_s}));
        QCOMPARE(*acceptedValue(StrokeParameter(), Stroke{Qt::red, 1e9}), ParameterValue(Stroke{Qt::red, 100.0}));
        QVERIFY(!acceptedValue(ColorPresetParameter(), true));
    }

    void completingFillsGapsOnly()
    {
        ParameterValues stored;
        stored.set(u"r"_s, u"of another kind"_s);
        stored.set(u"unknown"_s, true);
        FilterActionParameter button;
        button.id = u"button"_s;
        const ParameterValues completed = completeParameters(
            {realParameter(u"r"_s, {}, 0.5, 0.0, 1.0, 0.1), integerParameter(u"i"_s, {}, 4, 1, 6), button}, stored);
        QCOMPARE(completed.count(), 3);
        QCOMPARE(completed.string(u"r"_s, {}), u"of another kind"_s);
        QCOMPARE(completed.number(u"i"_s, 0.0), 4.0);
        QVERIFY(completed.contains(u"unknown"_s));
    }

    void readersFindTheKindOfTheControl()
    {
        auto choice = headed<ChoiceParameter>(u"choice"_s, {});
        choice.defaultValue = u"a"_s;
        const QList<ParameterDefinition> controls{realParameter(u"real"_s, {}, 0.5, 0.0, 1.0, 0.1), choice,
                                                  headed<ShapeParameter>(u"shape"_s, {}),
                                                  headed<ColorParameter>(u"color"_s, {})};
        ParameterValues stored;
        stored.set(u"real"_s, qint64(3));
        stored.set(u"choice"_s, 7.0);
        stored.set(u"shape"_s, u"star5"_s);
        stored.set(u"color"_s, true);
        stored.set(u"unknown"_s, true);
        ParameterValues read = readableParameters(controls, stored);
        QCOMPARE(read.number(u"real"_s, 0.0), 3.0); // an integer is a number, too, and is not limited here
        QCOMPARE(read.entries().value(u"choice"_s), ParameterValue(7.0));
        QCOMPARE(read.string(u"shape"_s, {}), u"star5"_s);
        QCOMPARE(read.color(u"color"_s, Qt::white), QColor(Qt::black));
        QVERIFY(read.contains(u"unknown"_s));
        stored.set(u"real"_s, u"3"_s);
        stored.set(u"choice"_s, true);
        read = readableParameters(controls, stored);
        QCOMPARE(read.number(u"real"_s, 0.0), 0.5);
        QCOMPARE(read.string(u"choice"_s, {}), u"a"_s);
    }
};

QTEST_GUILESS_MAIN(TestParameters)
#include "tst_parameters.moc"
