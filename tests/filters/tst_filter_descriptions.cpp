#include "filters/description/filter_catalog.h"
#include "filters/description/filter_definition.h"
#include "filters/description/filter_pictures.h"
#include "filters/filter_registry.h"

#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

/// Apostrophes stand for quotation marks.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

FilterDefinition read(const QByteArray &members)
{
    return filterDefinitionFromJson(u"fx"_s, json("{'name': 'fx', " + members + "}"));
}

/// The definition of a single control with the key k.
std::optional<ParameterDefinition> control(const QByteArray &members)
{
    const FilterDefinition definition = read("'controls': [{'key': 'k'," + members + "}]");
    return definition.controls.isEmpty() ? std::nullopt : std::optional(definition.controls.first());
}

/// Answers with the context and the text, so that both can be seen.
class EchoTranslator final : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QByteArrayView(context).startsWith("LibraryFilter-")
            ? u"%1:%2"_s.arg(QLatin1StringView(context), QString::fromUtf8(text))
            : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// How filters describe themselves, in JSON and in code.
class TestFilterDescriptions : public QObject
{
    Q_OBJECT

private slots:
    void unusableFilesGiveNoFilter()
    {
        for (const char *text : {"", "{", "[]", "null", "{'label': 'L'}", "{'name': 'other'}"})
            QVERIFY2(filterDefinitionFromJson(u"fx"_s, json(text)).id.isEmpty(), text);
        QVERIFY(filterDefinitionFromJson(QString(), json("{'name': ''}")).id.isEmpty());
        QVERIFY(loadFilterDefinition(u"no-such-filter"_s).id.isEmpty());
        QVERIFY(!FilterRegistry::instance().find(u"no-such-filter"_s));
        QVERIFY(!FilterRegistry::instance().find(QString()));
    }

    void missingKeysTakeTheirDefaults()
    {
        const FilterDefinition bare = read("'label': 'L'");
        QCOMPARE(bare.pickerLabel, u"L"_s);
        QCOMPARE(bare.inspectorLabel, u"L"_s);
        QCOMPARE(bare.category, FilterCategory::None);
        QCOMPARE(bare.stage, FilterStage::Raster);
        QCOMPARE(bare.firstRenderLoading, FirstRenderLoading::Delayed);
        QVERIFY(!bare.flags && bare.controls.isEmpty() && !bare.preferredBackground);

        const FilterDefinition full =
            read("'label': 'L', 'pickerLabel': 'P', 'category': 'Montages', 'stage': 'postTransform', "
                 "'firstRenderLoading': 'paint', 'extendsBeyondBounds': true, 'prefersTransparentExport': true, "
                 "'keepInspectorOpen': true, 'supportsRasterSelection': true, 'experimental': true, "
                 "'pickerKeywords': ' a, b,, a ', 'preferredBackground': '#ff0000', 'inputImageFormat': 'odd', "
                 "'resources': ['r']");
        QCOMPARE(full.inspectorLabel, u"P"_s);
        QCOMPARE(full.category, FilterCategory::Montages);
        QCOMPARE(full.stage, FilterStage::PostTransform);
        QCOMPARE(full.firstRenderLoading, FirstRenderLoading::Paint);
        QCOMPARE(full.flags.toInt(), 31U);
        QCOMPARE(full.pickerKeywords, QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(full.resources, QStringList(u"r"_s));
        QCOMPARE(full.preferredBackground, QColor(Qt::red));
        QCOMPARE(full.inputImageFormat, 0);
        QVERIFY(!read("'preferredBackground': null").preferredBackground);
    }

    void textsAreTranslatedUnderTheFilter()
    {
        EchoTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const FilterDefinition definition =
            read("'label': 'L', 'pickerLabel': '', 'pickerKeywords': 'one, two', "
                 "'controls': [{'key': 'k', 'type': 'range', 'label': 'C'}], 'autoAddText': [{'text': 'T'}]");
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(definition.label, u"LibraryFilter-fx:L"_s);
        QCOMPARE(definition.pickerLabel, QString()); // an empty text is not sent to the translator
        // Both languages can be searched in.
        QCOMPARE(definition.pickerKeywords, QStringList({u"LibraryFilter-fx:one"_s, u"two"_s, u"one"_s}));
        QCOMPARE(parameterHead(definition.controls.first()).label, u"LibraryFilter-fx:C"_s);
        QCOMPARE(definition.autoAddText.first().name, u"LibraryFilter-fx:T"_s);
    }

    void controlsAreRead()
    {
        QVERIFY(!control("'type': 'unknown'"));
        QCOMPARE(read("'controls': [3, {'type': 'range'}, {'key': '', 'type': 'range'}]").controls.size(), 0);
        const auto range = std::get<RealRangeParameter>(
            *control("'type': 'range', 'min': 10, 'max': 0, 'step': 0.5, 'default': 7.3, 'unit': 'PX', 'hidden': true, "
                     "'percent': true"));
        QCOMPARE(range.minimum, 0.0);
        QCOMPARE(range.defaultValue, 7.5);
        QCOMPARE(range.unit, ParameterUnit::Pixels);
        QCOMPARE(range.flags, ParameterFlag::Hidden | ParameterFlag::Percent);
        const auto bare = std::get<RealNumberParameter>(*control("'type': 'number', 'unit': 'degrees'"));
        QCOMPARE(bare.minimum, -1000000.0);
        QCOMPARE(bare.unit, ParameterUnit::Degrees);

        const auto choice = std::get<ChoiceParameter>(
            *control("'type': 'select', 'default': '2', 'sortOptions': true, "
                     "'options': [{'value': 'a', 'label': 'A'}, {'value': 2, 'label': 'B'}, 'bare']"));
        QCOMPARE(choice.options.size(), 3);
        QCOMPARE(choice.options[2].label, u"bare"_s);
        QCOMPARE(choice.defaultValue, ParameterValue(qint64(2))); // compared as text, stored as the option's own
        QVERIFY(choice.sortOptions);
        const auto first = std::get<ChoiceParameter>(*control("'type': 'select', 'default': 'x', 'options': ['a']"));
        QCOMPARE(first.defaultValue, ParameterValue(u"a"_s));
        const auto texture = std::get<TexturePickerParameter>(*control("'type': 'texture-picker', 'options': ['a b']"));
        QCOMPARE(texture.options.first().previewSource, u"qrc:/icons/zelmoraatelier/24x24/magic_wand.svg"_s);

        const auto stroke = std::get<StrokeParameter>(
            *control("'type': 'stroke', 'default': {'enabled': false, 'color': '#112233', 'width': 5}"));
        QCOMPARE(stroke.defaultValue, (Stroke{QColor(0x11, 0x22, 0x33), 0.0}));
        QCOMPARE(std::get<EnabledColorParameter>(*control("'type': 'enabled-color'")).defaultValue, EnabledColor());
        const auto mask = std::get<MaskTransformParameter>(
            *control("'type': 'mask-transform', 'uniformScaleOnly': true, "
                     "'default': {'scale': 0.5, 'scaleY': 2, 'rotation': 3.14159265358979, 'mode': 'uniform'}"));
        QCOMPARE(mask.defaultValue.scaleX, 0.5);
        QCOMPARE(mask.defaultValue.scaleY, 2.0);
        QCOMPARE(mask.defaultValue.rotation, 180.0); // written in radians
        QCOMPARE(mask.defaultValue.mode, MaskTransform::Mode::Uniform);
        const auto lights = std::get<LightSourcesParameter>(
            *control("'type': 'light-sources', 'maxCount': 8, 'default': [{'shape': 'spot', 'x': 0.25}]"));
        QCOMPARE(lights.maximumCount, 8);
        QCOMPARE(lights.defaultValue.first().shape, LightSource::Shape::Spot);
        QCOMPARE(lights.defaultValue.first().y, 0.4);
        const auto preset = std::get<ColorPresetParameter>(
            *control("'type': 'color-preset-picker', 'resetKeys': ['a'], "
                     "'options': [{'label': 'L', 'colors': ['#ff0000'], 'params': {'n': 2, 's': 't'}}]"));
        QCOMPARE(preset.target, u"framecolor"_s);
        QCOMPARE(preset.presets.first().parameters.number(u"n"_s, 0.0), 2.0);
        QVERIFY(preset.flags.testFlag(ParameterFlag::NotStored));
    }

    void companionsAreRead()
    {
        const FilterDefinition definition =
            read("'autoAddFilters': [{'filterName': 'a', 'position': 'before', 'params': {'n': 1, 'b': true}}, "
                 "{'name': 'b', 'ifMissing': true}, {'position': 'before'}], "
                 "'autoAddText': [{'size': 0.2, 'stroke': {'color': '#00ff00', 'width': 3}}]");
        QCOMPARE(definition.autoAddFilters.size(), 2);
        QVERIFY(!definition.autoAddFilters[0].after && !definition.autoAddFilters[0].ifMissing);
        QCOMPARE(definition.autoAddFilters[0].parameters.count(), 2);
        QVERIFY(definition.autoAddFilters[1].after && definition.autoAddFilters[1].ifMissing);
        const AutoAddText &text = definition.autoAddText.first();
        QCOMPARE(text.text, u"Text"_s);
        QCOMPARE(text.rect, QRectF(0.05, 0.05, 0.9, 0.9));
        QCOMPARE(text.stroke, (Stroke{QColor(Qt::green), 3.0}));
    }

    /// The filters that are built in code are described in the resources too, for the pictures of the picker.
    void nativeFiltersMatchTheirFiles()
    {
        for (const QString &id : {u"fade-image"_s, u"shape-tool"_s}) {
            const FilterDefinition file = loadFilterDefinition(id);
            const Filter &filter = *FilterRegistry::instance().find(id);
            QCOMPARE(file.label, filter.label());
            QCOMPARE(file.pickerLabel, filter.pickerLabel());
            QCOMPARE(file.pickerKeywords, filter.pickerKeywords());
            const QList<ParameterDefinition> controls = filter.controls();
            QCOMPARE(file.controls.size(), controls.size());
            for (qsizetype i = 0; i < controls.size(); ++i) {
                QCOMPARE(parameterHead(file.controls[i]).id, parameterHead(controls[i]).id);
                QCOMPARE(parameterHead(file.controls[i]).label, parameterHead(controls[i]).label);
                QCOMPARE(file.controls[i].index(), controls[i].index());
                QVERIFY(defaultValue(file.controls[i]) == defaultValue(controls[i]));
                if (const auto *range = std::get_if<RealRangeParameter>(&controls[i])) {
                    QCOMPARE(std::get<RealRangeParameter>(file.controls[i]).minimum, range->minimum);
                    QCOMPARE(std::get<RealRangeParameter>(file.controls[i]).maximum, range->maximum);
                }
            }
        }
    }

    void catalogueOffersWhatIsRegistered()
    {
        QStringList listed;
        for (const FilterCategoryGroup &group : FilterCatalog::imageGroups()) {
            for (const QString &id : group.filterIds) {
                QVERIFY2(!listed.contains(id), qPrintable(id));
                listed.append(id);
            }
            QStringList offered;
            for (const Filter *filter : FilterCatalog::offeredFilters(group))
                offered.append(filter->id());
            QStringList known = group.filterIds;
            known.removeIf([](const QString &id) { return !FilterRegistry::instance().find(id); });
            QCOMPARE(offered, known);
        }
        QCOMPARE(filterThumbnailSource(u"no picture"_s), u"qrc:/icons/zelmoraatelier/24x24/magic_wand.svg"_s);
        QVERIFY(filterPreviewSource(u"sharpen"_s).isEmpty() || filterPreviewSource(u"sharpen"_s).startsWith("qrc"_L1));
        QVERIFY(filterPreviewSource(u"swirl"_s).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestFilterDescriptions)
#include "tst_filter_descriptions.moc"
