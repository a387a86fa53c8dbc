#include "cli/parameter_text.h"

#include <QTest>

using namespace zm;
using namespace Qt::StringLiterals;

using Read = std::optional<ParameterValue>;

/// Values of controls as people type them.
class TestParameterText : public QObject
{
    Q_OBJECT

private slots:
    void textsAreReadByTheirControl_data()
    {
        QTest::addColumn<ParameterDefinition>("definition");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Read>("expected");
        const auto row = [](const ParameterDefinition &definition, const QString &text, const Read &expected) {
            QTest::addRow("kind %d: %s", int(definition.index()), qPrintable(text)) << definition << text << expected;
        };
        const ParameterDefinition real = realParameter({}, {}, 0.0, 0.0, 10.0, 0.5);
        row(real, u"7.3"_s, 7.5);
        row(real, u"-1e9"_s, 0.0);
        for (const QString &text : {u""_s, u"nan"_s, u"inf"_s, u"7,5"_s, u"7 px"_s, u"true"_s})
            row(real, text, {});
        row(integerParameter({}, {}, 1, 1, 6), u"2.5"_s, qint64(3));
        row(BooleanParameter(), u"true"_s, true);
        row(BooleanParameter(), u"1"_s, {});
        row(ColorParameter(), u"#102030"_s, QColor(16, 32, 48));
        row(ColorParameter(), u"#10203040"_s, QColor(16, 32, 48, 64));
        for (const QString &text : {u"red"_s, u"#123"_s, u"#10203g"_s, u"102030"_s})
            row(ColorParameter(), text, {});
        row(EnabledColorParameter(), u"#ffffff"_s, EnabledColor{true, Qt::white});
        row(EnabledColorParameter(), u"none"_s, EnabledColor{false, Qt::transparent});
        row(StrokeParameter(), u"#ff0000@2.4"_s, Stroke{QColor(255, 0, 0), 2.0});
        row(StrokeParameter(), u"#ff0000"_s, {});
        row(StrokeParameter(), u"@2"_s, {});
        row(GradientPositionParameter(), u"0,0.5,1,-2"_s, GradientPosition{0.0, 0.5, 1.0, -2.0});
        row(GradientPositionParameter(), u"0,0.5,1"_s, {});
        row(GradientPositionParameter(), u"0,0.5,1,inf"_s, {});
        row(MaskTransformParameter(), u"0.1,0.2,3,4,-90"_s, MaskTransform{0.1, 0.2, 3.0, 4.0, -90.0});
        row(MaskTransformParameter(), u"0.1,0.2,3,4,-90,0"_s, {});
        ChoiceParameter choice;
        choice.options = {{u"soft"_s, {}, {}}, {qint64(2), {}, {}}};
        row(choice, u"soft"_s, u"soft"_s);
        row(choice, u"2"_s, qint64(2));
        row(choice, u"hard"_s, {});
        row(ShapeParameter(), u"star5"_s, ShapeMask{u"star5"_s});
        row(AssetParameter(), u"../x.png"_s, {});
        row(FilterActionParameter(), u"1"_s, {});
        LightSourcesParameter lights;
        lights.maximumCount = 1;
        for (const QString &text : {u"[{},{}]"_s, u"{}"_s, u"[1]"_s, u"[{\"x\":\"0\"}]"_s, u"[{\"shape\":\"star\"}]"_s,
                                    u"[{\"colour\":\"#ffffff\"}]"_s})
            row(lights, text, {});
    }

    void textsAreReadByTheirControl()
    {
        QFETCH(ParameterDefinition, definition);
        QFETCH(QString, text);
        QFETCH(Read, expected);
        QVERIFY(cli::parameterValueFromText(definition, text) == expected);
    }

    void lightsKeepTheirDefaults()
    {
        const Read read = cli::parameterValueFromText(LightSourcesParameter(),
                                                      u"[{\"x\":0.25,\"shape\":\"spot\",\"tint\":\"#00ff00\"},{}]"_s);
        QVERIFY(read);
        LightSources lights = std::get<LightSources>(*read);
        QCOMPARE(lights.size(), 2);
        LightSource first;
        first.id = lights[0].id;
        first.x = 0.25;
        first.shape = LightSource::Shape::Spot;
        first.tint = Qt::green;
        QVERIFY(lights[0] == first);
        QVERIFY(lights[0].id != lights[1].id);
    }

    void presetsSetWhatTheyHold()
    {
        ColorPresetParameter button;
        button.id = u"look"_s;
        button.target = u"tone"_s;
        button.resetKeys = {u"old"_s};
        ColorPreset night{u"Night"_s, {Qt::black, Qt::blue}, {}};
        night.parameters.set(u"amount"_s, 3.0);
        night.parameters.set(u"tone1"_s, QColor(Qt::red));
        button.presets = {night};
        ParameterValues values;
        values.set(u"old"_s, 1.0);
        values.set(u"kept"_s, 2.0);
        Error error;
        QVERIFY(cli::setParameterFromText(values, {button}, u"look=Night"_s, error));
        ParameterValues expected;
        expected.set(u"kept"_s, 2.0);
        expected.set(u"tone0"_s, QColor(Qt::black));
        expected.set(u"tone1"_s, QColor(Qt::red));
        expected.set(u"amount"_s, 3.0);
        QVERIFY(values == expected);
        QVERIFY(!cli::setParameterFromText(values, {button}, u"look=night"_s, error));
        QCOMPARE(error.message(), u"look cannot be \"night\"; it takes Night"_s);
        QVERIFY(values == expected);
    }
};

QTEST_GUILESS_MAIN(TestParameterText)
#include "tst_parameter_text.moc"
