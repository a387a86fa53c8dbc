#include "io/document/filter_records.h"
#include "io/document/layer_section.h"
#include "io/document/parameter_records.h"
#include "support/document_log.h"
#include "support/file_bytes.h"

#include <QTest>

#include <limits>

using namespace zm;
using namespace zm::test;
using namespace Qt::StringLiterals;

namespace {

constexpr auto kShapeSection = quint32(SectionType::ShapeLayer);
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

QByteArray parameter(quint32 type, const QByteArray &key, const QByteArray &value)
{
    return FileBytes().u32(type).key(key).u32(quint32(value.size())).zeros(24).bytes(value);
}

FileBytes filter(const QByteArray &key, const QByteArrayList &parameters, quint32 flags = 1, uint id = 7)
{
    const QByteArray block = parameters.join();
    FileBytes bytes = FileBytes().u32(1).uuid(testId(id)).u32(flags).key(key);
    return bytes.u32(quint32(parameters.size())).u32(quint32(block.size())).bytes(block);
}

QByteArray lights(quint32 count, quint32 shape = 2, double softness = 0.5)
{
    FileBytes bytes = FileBytes().u32(count).zeros(28);
    for (uint id = 1; id <= count; ++id) {
        bytes.uuid(testId(id)).point(0.25, -0.5).point(2.0, 90.0).point(0.75, softness);
        bytes.color(1.0F, 0.0F, 0.0F).u32(shape).zeros(12);
    }
    return bytes;
}

/// A path without contours in a box of 30 x 20, filled with blue.
QByteArray shapeContent()
{
    FileBytes bytes = FileBytes().u32(1).u32(2).point(30.0, 20.0).u32(32).u32(128);
    bytes.color(0.0F, 0.0F, 0.0F).f64(2.5).zeros(8);
    bytes.u32(1).u32(2).zeros(24);
    bytes.u32(1).u32(1).u32(1).zeros(4).color(0.0F, 0.0F, 1.0F).zeros(16);
    return bytes.point(1.0, 0.0).point(0.0, 0.0).point(1.0, 0.0).point(0.0, 0.0).f64(1.0).zeros(8);
}

FileBytes section(const QByteArrayList &filters, const QByteArray &name = "Moon \xE2\x98\xBE",
                  const QByteArray &blendMode = "of-tomorrow")
{
    const QByteArray content = shapeContent();
    FileBytes bytes = FileBytes().u32(1).uuid(testId(3)).u32(1);
    bytes.u32(quint32(name.size())).u32(quint32(blendMode.size()));
    bytes.u32(quint32(filters.size())).u32(quint32(content.size())).f64(0.25).point(-7.5, 1e9);
    bytes.point(-0.5, 3.0).f64(725.0).point(-89.0, 12.5).point(0.0, 1.0).zeros(8);
    return bytes.bytes(name + blendMode + content + filters.join());
}

FileBytes section()
{
    return section({filter("unheard-of", {}, 3), filter("x", {}, 0, 8)});
}

std::unique_ptr<Layer> decoded(const QByteArray &payload, Error &error)
{
    return decodeLayerSection(kShapeSection, payload, true, error);
}

std::optional<QByteArray> encoded(const Layer &layer, Error &error)
{
    return encodeLayerSection(layer, EmbeddedImageMode::Lossless, error);
}

/// Nothing, with the reason as the test's failure, when the record is refused.
std::optional<FilterInstance> decodedFilter(const QByteArray &record, bool honourSelectionFlag = true)
{
    Error error;
    ByteReader reader(record);
    const std::optional<FilterInstance> instance = decodeFilter(reader, honourSelectionFlag, error);
    [&] { QVERIFY2(instance && reader.atEnd(), qPrintable(error.message())); }();
    return instance;
}

} // namespace

class TestLayerRecords : public QObject
{
    Q_OBJECT

private slots:
    void everyKindOfValueStandsAsItsTableTells_data()
    {
        QTest::addColumn<ParameterValue>("value");
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QByteArray>("bytes");

        const auto row = [](const char *name, quint32 type, const ParameterValue &value, const QByteArray &bytes) {
            QTest::newRow(name) << value << type << bytes;
        };
        const FileBytes red = FileBytes().color(1.0F, 0.0F, 0.0F);
        const FileBytes oneToSeven = FileBytes().point(1, 2).point(3, 4).point(5, 6).f64(7);
        using enum LightSource::Shape;
        using enum MaskTransform::Mode;
        row("boolean", 1, true, FileBytes().u32(1));
        row("negative integer", 2, qint64(-3), FileBytes().i64(-3));
        row("real", 3, 0.1, FileBytes().f64(0.1));
        row("colour", 4, QColor(255, 0, 0, 0), FileBytes().color(1.0F, 0.0F, 0.0F, 0.0F));
        row("string", 5, u"d\u00E9j\u00E0"_s, "d\xC3\xA9j\xC3\xA0");
        row("asset", 6, AssetName{u"..paper.png"_s}, FileBytes().key("..paper.png"));
        row("enabled colour", 7, EnabledColor{true, Qt::red}, FileBytes().u32(1).bytes(red));
        row("stroke", 8, Stroke{Qt::red, 0.5}, FileBytes(red).f64(0.5));
        row("gradient", 9, GradientPosition{1, 2, 3, 4}, FileBytes().point(1, 2).point(3, 4));
        row("uniform mask", 10, MaskTransform{1, 2, 3, 4, 5, 6, 7, Uniform}, FileBytes(oneToSeven).u32(1).zeros(4));
        row("free mask", 10, MaskTransform{1, 2, 3, 4, 5, 6, 7, Free}, FileBytes(oneToSeven).u32(2).zeros(4));
        row("shape mask", 11, ShapeMask{u"heart"_s}, "heart");
        row("no lights", 12, LightSources(), lights(0));
        row("lights", 12,
            LightSources{{testId(1), 0.25, -0.5, 2, 90, 0.75, 0.5, Oval, Qt::red},
                         {testId(2), 0.25, -0.5, 2, 90, 0.75, 0.5, Oval, Qt::red}},
            lights(2));
    }

    void everyKindOfValueStandsAsItsTableTells()
    {
        QFETCH(ParameterValue, value);
        QFETCH(quint32, type);
        QFETCH(QByteArray, bytes);
        const QByteArray expected = parameter(1, "B", FileBytes().u32(0)) + parameter(type, "a", bytes);

        ParameterValues values;
        values.set(u"a"_s, value);
        values.set(u"B"_s, false);
        values.set(u"A"_s, 1.0);
        Error error;
        quint32 count = 0;
        QCOMPARE(encodeParameters(values, {u"A"_s}, &count, error), expected);
        QCOMPARE(count, 2U);

        values.remove(u"A"_s);
        ByteReader reader(expected);
        QCOMPARE(decodeParameters(reader, count, error), values);
        QVERIFY(reader.atEnd() && !error.isSet());
    }

    void whatIsWrongIsRefusedWithItsReason()
    {
        const auto refused = [](const char *message, const QByteArray &payload, quint32 type = kShapeSection) {
            Error error;
            QVERIFY2(!decodeLayerSection(type, payload, true, error), message);
            QCOMPARE(error.message(), QString::fromLatin1(message));
        };
        const auto header = [&](qsizetype offset, const QByteArray &patch) {
            refused("A layer payload header is invalid.", section().patch(offset, patch));
        };
        header(0, FileBytes().u32(2));
        for (const qsizetype offset : {24, 28}) // the name, the blend mode
            header(offset, FileBytes().u32(0x1000001));
        header(32, FileBytes().u32(1'000'001));
        header(36, FileBytes().u32(0xFFFFFFF0)); // a sum beyond 32 bits
        for (const qsizetype offset : {56, 72, 80, 88, 112})
            header(offset, FileBytes().f64(kInfinity));
        header(40, FileBytes().f64(1.0000001));
        header(64, FileBytes().f64(-0.0005));
        header(96, FileBytes().f64(-89.5));
        header(104, FileBytes().f64(kNoNumber));
        refused("The .zelmora file contains a null object identifier.", section().patch(4, FileBytes().zeros(16)));
        refused("A layer has an empty blend-mode ID.", section({}, "name", {}));
        for (const quint32 type : {0, 1, 5})
            refused("A section is not a supported layer type.", section(), type);
        refused("A layer contains a duplicated filter instance ID.", section({filter("f", {}), filter("g", {})}));
        refused("A layer section has trailing data.", section().zeros(1));

        const FileBytes good = filter("f", {parameter(1, "k", FileBytes().u32(1))});
        const auto wrongFilter = [&](const char *message, qsizetype offset, const FileBytes &patch) {
            refused(message, section({FileBytes(good).patch(offset, patch)}));
        };
        wrongFilter("A filter record is truncated or invalid.", 0, FileBytes().u32(2));
        wrongFilter("A filter record is truncated or invalid.", 60, FileBytes().u32(69));
        wrongFilter("The .zelmora file contains a null object identifier.", 4, FileBytes().zeros(16));
        wrongFilter("A registry key is empty or not null-terminated.", 24, FileBytes().zeros(1));
        wrongFilter("A filter parameter block has trailing data.", 56, FileBytes().u32(0));
        wrongFilter("A parameter header is truncated.", 56, FileBytes().u32(1'000'000));
        wrongFilter("A parameter collection is too large.", 56, FileBytes().u32(1'000'001));
        wrongFilter("A parameter value is truncated.", 64 + 36, FileBytes().u32(0xFFFFFFFF));
        wrongFilter("A registry key is empty or not null-terminated.", 64 + 4, QByteArray(32, 'k'));
        wrongFilter("A registry key has nonzero padding.", 64 + 35, QByteArray("x"));
        wrongFilter("A registry key is not valid 7-bit ASCII.", 64 + 5, QByteArray("\x80"));

        const auto value = [&](const char *message, quint32 type, const QByteArray &bytes) {
            refused(message, section({filter("f", {parameter(type, "k", bytes)})}));
        };
        const QByteArray twice = parameter(1, "k", FileBytes().u32(1));
        refused("A parameter key is duplicated.", section({filter("f", {twice, twice})}));
        for (const quint32 type : {0, 13})
            value("The .zelmora file uses an unknown parameter type.", type, {});
        const QList<std::pair<quint32, int>> sizes{{1, 4},  {2, 8},  {3, 8},  {4, 16},
                                                   {7, 20}, {8, 24}, {9, 32}, {10, 64}};
        for (const auto &[type, size] : sizes) {
            for (const int wrong : {size - 1, size + 1})
                value("A parameter value has an invalid byte length.", type, FileBytes().zeros(wrong));
        }
        value("A Boolean parameter is invalid.", 1, FileBytes().u32(2));
        value("A real parameter is not finite.", 3, FileBytes().f64(kNoNumber));
        value("The .zelmora file contains an invalid color.", 4, FileBytes().color(0, 0, 0, 1.0000001F));
        value("The .zelmora file contains an invalid color.", 4, FileBytes().color(float(kNoNumber), 0, 0));
        for (const quint32 type : {5, 11})
            value("A parameter string value is too large.", type, QByteArray(0x1000001, 'x'));
        value("An asset parameter has an invalid byte length.", 6, FileBytes().zeros(31));
        for (const char *path : {".", "..", "a/b", "a\\b"})
            value("An asset parameter must be a file name, not a path.", 6, FileBytes().key(path));
        value("An enabled-color parameter is invalid.", 7, FileBytes().u32(2).color(0, 0, 0));
        value("A stroke parameter is invalid.", 8, FileBytes().color(0, 0, 0).f64(-0.5));
        value("A gradient parameter is invalid.", 9, FileBytes().point(0, 0).point(0, kInfinity));
        value("A mask transform is invalid.", 10, FileBytes().zeros(48).f64(kInfinity).u32(1).zeros(4));
        for (const quint32 mode : {0, 3})
            value("A mask transform is invalid.", 10, FileBytes().zeros(56).u32(mode).zeros(4));
        const FileBytes twoOfThree = FileBytes(lights(3)).patch(0, FileBytes().u32(2));
        for (const QByteArray &wrong : {lights(0).chopped(1), lights(65), QByteArray(twoOfThree), lights(1, 0),
                                        lights(1, 5), lights(1, 1, kInfinity)})
            value("A light list parameter is invalid.", 12, wrong);
        const FileBytes nobody = FileBytes(lights(1)).patch(32, FileBytes().zeros(16));
        value("The .zelmora file contains a null object identifier.", 12, nobody);
    }

    void aLayerCutAnywhereIsRefused()
    {
        const QByteArray whole = section();
        for (qsizetype size = 0; size < whole.size(); ++size) {
            Error error;
            QVERIFY2(!decoded(whole.first(size), error) && error.isSet(), qPrintable(QString::number(size)));
        }
    }

    void whatNoRecordHoldsIsNotWritten()
    {
        Error readError;
        const std::unique_ptr<Layer> layer = decoded(section({}, QByteArray(0x1000000, 'n')), readError);
        QVERIFY2(layer, qPrintable(readError.message()));
        const auto written = [&](const QList<FilterInstance> &filters) {
            layer->setFilters(filters);
            Error error;
            return encoded(*layer, error) ? QString() : error.message();
        };
        const auto withValue = [&](const QString &key, const ParameterValue &value) {
            FilterInstance instance{testId(1), QString(31, u'f'), {}};
            instance.parameters.set(key, value);
            return written({instance});
        };
        const QString misfit = u"A filter or parameter key does not fit its 32-byte field."_s;
        const QString notAscii = u"Filter and parameter keys must use 7-bit ASCII."_s;
        const QString longest(0x1000000, u'x');
        QCOMPARE(withValue(QString(31, u'k'), longest), QString());
        for (const ParameterValue &text : {ParameterValue(longest + u'x'), ParameterValue(ShapeMask{longest + u'x'})})
            QCOMPARE(withValue(u"k"_s, text), u"A parameter string value is too large."_s);
        QCOMPARE(withValue(QString(32, u'k'), true), misfit);
        QCOMPARE(withValue(u"\u263E"_s, true), misfit);
        QCOMPARE(withValue(u"\u00E9"_s, true), notAscii);
        QCOMPARE(withValue(u"a\0b"_s, true), notAscii);
        QCOMPARE(withValue(u"k"_s, AssetName{QString(32, u'k')}), misfit);
        QCOMPARE(written({{testId(1), {}, {}}}), misfit);
        QCOMPARE(written({{{}, u"f"_s, {}}}), u"A filter has a null instance ID."_s);
        QCOMPARE(written({{testId(1), u"f"_s, {}}, {testId(1), u"g"_s, {}}}),
                 u"A layer contains a duplicated filter instance ID."_s);
        layer->setName(layer->name() + u'n');
        QCOMPARE(written({}), u"A layer name or blend-mode ID is too large."_s);
    }

    void unknownFiltersKeepAllAndOldFilesDoNotTellOfTheSelection()
    {
        const QByteArray asset = parameter(6, "a", FileBytes().key("b"));
        const QByteArray record = filter("unheard-of", {asset, parameter(12, "c", lights(64))}, 2);
        for (const bool honoursSelection : {true, false}) {
            const std::optional<FilterInstance> instance = decodedFilter(record, honoursSelection);
            QVERIFY(instance && !instance->enabled && instance->parameters.count() == 2);
            QCOMPARE(instance->rasterSelectionScoped, honoursSelection);
            Error error;
            QCOMPARE(encodeFilter(*instance, error) == record, honoursSelection);
        }
    }

    void knownFiltersHaveWhatTheyDefine()
    {
        std::optional<FilterInstance> instance = decodedFilter(
            filter("fade-image",
                   {parameter(1, "invert", FileBytes().u32(1)), parameter(3, "undefined", FileBytes().f64(1)),
                    parameter(4, "_documentColor", FileBytes().color(0, 0, 0))}));
        QVERIFY(instance);
        const QStringList stored{u"curve"_s,    u"fadeColor"_s, u"invert"_s,  u"mode"_s,
                                 u"position"_s, u"softness"_s,  u"strength"_s};
        QCOMPARE(QStringList(instance->parameters.entries().keys()), stored);
        QCOMPARE(instance->parameters.boolean(u"invert"_s, false), true);
        QCOMPARE(instance->parameters.number(u"softness"_s, 0.0), 60.0);

        Error error;
        const std::optional<QByteArray> written = encodeFilter(*instance, error);
        instance->parameters.set(u"_documentColor"_s, QColor(Qt::green));
        QCOMPARE(encodeFilter(*instance, error), written);
    }

    void theOldFadeTargetBecomesAlpha()
    {
        const auto target = [](const char *name) { return parameter(5, "fadeTarget", name); };
        const QByteArray red = parameter(4, "fadeColor", FileBytes().color(1.0F, 0.0F, 0.0F, 0.4F));
        const QByteArray noColor = parameter(3, "fadeColor", FileBytes().f64(1));
        const QList<std::pair<QByteArrayList, QColor>> cases{
            {{target("transparency"), red}, QColor(255, 0, 0, 0)},
            {{target("color"), red}, QColor(255, 0, 0, 255)},
            {{target("mixed"), red}, QColor(255, 0, 0, 102)},
            {{red}, QColor(255, 0, 0, 102)},
            {{parameter(11, "fadeTarget", "color"), red}, QColor(255, 0, 0, 102)},
            {{target("color")}, QColor(255, 255, 255, 255)},
            {{target("mixed"), noColor}, QColor(255, 255, 255, 0)},
        };
        for (const auto &[parameters, color] : cases) {
            const std::optional<FilterInstance> instance = decodedFilter(filter("fade-image", parameters));
            QVERIFY(instance && !instance->parameters.contains(u"fadeTarget"_s));
            QCOMPARE(instance->parameters.color(u"fadeColor"_s, {}), color);
        }
    }

    void aLayerStandsAsItsTableTells()
    {
        const QByteArray bytes = section();
        Error error;
        const std::unique_ptr<Layer> layer = decoded(bytes, error);
        QVERIFY2(layer, qPrintable(error.message()));
        QCOMPARE(layer->id(), testId(3));
        QCOMPARE(layer->name(), u"Moon \u263E"_s);
        QCOMPARE(layer->blendMode(), u"of-tomorrow"_s);
        QVERIFY(layer->isVisible() && layer->opacity() == 0.25);
        QCOMPARE(layer->transform().position(), QPointF(-7.5, 1e9));
        QCOMPARE(layer->transform().scale(), QPointF(-0.5, 3.0));
        QCOMPARE(layer->transform().rotation(), 725.0);
        QCOMPARE(layer->transform().shear(), QPointF(-89.0, 12.5));
        QCOMPARE(layer->transform().anchor(), QPointF(0.0, 1.0));
        const FilterInstance first{testId(7), u"unheard-of"_s, {}, true, true};
        const FilterInstance second{testId(8), u"x"_s, {}, false, false};
        QVERIFY(layer->filters() == (QList{first, second}));
        QCOMPARE(sectionType(*layer), SectionType::ShapeLayer);
        QCOMPARE(encoded(*layer, error), bytes);
        layer->setVisible(false);
        QCOMPARE(encoded(*layer, error), FileBytes(bytes).patch(20, FileBytes().u32(0)));
    }
};

QTEST_GUILESS_MAIN(TestLayerRecords)
#include "tst_layer_records.moc"
