#include "filters/description/filter_definition.h"

#include "filters/description/control_reader.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

FilterCategory categoryFrom(const QString &text)
{
    if (text == "Basic"_L1)
        return FilterCategory::Basic;
    if (text == "Color"_L1)
        return FilterCategory::Color;
    if (text == "Edge"_L1)
        return FilterCategory::Edge;
    if (text == "Frame"_L1)
        return FilterCategory::Frame;
    return text == "Montages"_L1 ? FilterCategory::Montages : FilterCategory::None;
}

FilterStage stageFrom(const QString &text)
{
    if (text == "postTransform"_L1)
        return FilterStage::PostTransform;
    return text == "document"_L1 ? FilterStage::Document : FilterStage::Raster;
}

FirstRenderLoading loadingFrom(const QString &text)
{
    if (text == "off"_L1)
        return FirstRenderLoading::Off;
    return text == "paint"_L1 ? FirstRenderLoading::Paint : FirstRenderLoading::Delayed;
}

/// All four names mean RGBA8888 with straight alpha; another text keeps what was there.
int imageFormatFrom(const QString &text, int current)
{
    for (const auto name : {"straight"_L1, "straightAlpha"_L1, "rgba8888"_L1, "rgba8888Straight"_L1}) {
        if (text.compare(name, Qt::CaseInsensitive) == 0)
            return 0;
    }
    return current;
}

FilterFlags flagsFrom(const QJsonObject &object)
{
    FilterFlags flags;
    flags.setFlag(FilterFlag::ExtendsBeyondBounds, object["extendsBeyondBounds"_L1].toBool());
    flags.setFlag(FilterFlag::PrefersTransparentExport, object["prefersTransparentExport"_L1].toBool());
    flags.setFlag(FilterFlag::KeepInspectorOpen, object["keepInspectorOpen"_L1].toBool());
    flags.setFlag(FilterFlag::SupportsRasterSelection, object["supportsRasterSelection"_L1].toBool());
    flags.setFlag(FilterFlag::Experimental, object["experimental"_L1].toBool());
    return flags;
}

std::optional<AutoAddFilter> autoAddFilterFrom(const QJsonObject &object)
{
    AutoAddFilter filter;
    filter.filterName = object["filterName"_L1].toString(object["name"_L1].toString());
    if (filter.filterName.isEmpty())
        return std::nullopt;
    filter.after = object["position"_L1].toString() != "before"_L1;
    filter.ifMissing = object["ifMissing"_L1].toBool();
    const QJsonObject parameters = object["params"_L1].toObject();
    for (auto it = parameters.begin(); it != parameters.end(); ++it) {
        if (it->isBool())
            filter.parameters.set(it.key(), it->toBool());
        else if (it->isDouble())
            filter.parameters.set(it.key(), it->toDouble());
        else if (it->isString())
            filter.parameters.set(it.key(), it->toString());
    }
    return filter;
}

AutoAddText autoAddTextFrom(const QJsonObject &object, const ControlTranslator &translator)
{
    const QJsonObject rect = object["rect"_L1].toObject();
    const QString text = object["text"_L1].toString(u"Text"_s);
    AutoAddText result;
    result.text = translator.translated(text);
    result.name = translator.translated(object["name"_L1].toString(text));
    result.font = object["font"_L1].toString(u"sans-serif"_s);
    result.size = object["size"_L1].toDouble(0.1);
    result.color = colorFromJson(object["color"_L1], Qt::black);
    result.align = object["align"_L1].toString(u"left"_s);
    result.letterSpacing = object["letterSpacing"_L1].toDouble();
    result.bold = object["bold"_L1].toBool();
    result.italic = object["italic"_L1].toBool();
    result.underline = object["underline"_L1].toBool();
    result.rect = QRectF(rect["x"_L1].toDouble(0.05), rect["y"_L1].toDouble(0.05), rect["w"_L1].toDouble(0.9),
                         rect["h"_L1].toDouble(0.9));
    if (const QJsonValue stroke = object["stroke"_L1]; stroke.isObject())
        result.stroke = Stroke{colorFromJson(stroke["color"_L1], Qt::black), stroke["width"_L1].toDouble()};
    return result;
}

} // namespace

QStringList searchWords(const QString &translated, const QString &english)
{
    QStringList words;
    const QStringList parts = translated.split(u',') + english.split(u',');
    for (const QString &part : parts) {
        if (const QString word = part.trimmed(); !word.isEmpty() && !words.contains(word))
            words.append(word);
    }
    return words;
}

FilterDefinition filterDefinitionFromJson(const QString &id, const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    FilterDefinition definition;
    if (id.isEmpty() || object["name"_L1].toString() != id)
        return definition;
    const ControlTranslator translator("LibraryFilter-"_ba + id.toUtf8());
    const auto labelOr = [&](QLatin1StringView key, const QString &fallback) {
        return object[key].isString() ? translator.translated(object[key].toString()) : fallback;
    };

    definition.id = id;
    definition.label = labelOr("label"_L1, {});
    definition.pickerLabel = labelOr("pickerLabel"_L1, definition.label);
    definition.inspectorLabel = labelOr("inspectorLabel"_L1, definition.pickerLabel);
    definition.category = categoryFrom(object["category"_L1].toString());
    definition.stage = stageFrom(object["stage"_L1].toString());
    definition.firstRenderLoading = loadingFrom(object["firstRenderLoading"_L1].toString());
    definition.flags = flagsFrom(object);
    definition.inputImageFormat =
        imageFormatFrom(object["inputImageFormat"_L1].toString(), definition.inputImageFormat);
    definition.outputImageFormat =
        imageFormatFrom(object["outputImageFormat"_L1].toString(), definition.outputImageFormat);

    const QString keywords = object["pickerKeywords"_L1].toString();
    definition.pickerKeywords = searchWords(translator.translated(keywords), keywords);
    const QJsonArray resources = object["resources"_L1].toArray();
    for (const QJsonValue &resource : resources)
        definition.resources.append(resource.toString());
    const QJsonArray controls = object["controls"_L1].toArray();
    for (const QJsonValue &control : controls) {
        if (const std::optional<ParameterDefinition> parameter = controlFromJson(control, translator))
            definition.controls.append(*parameter);
    }
    const QJsonArray filters = object["autoAddFilters"_L1].toArray();
    for (const QJsonValue &filter : filters) {
        if (const std::optional<AutoAddFilter> added = autoAddFilterFrom(filter.toObject()))
            definition.autoAddFilters.append(*added);
    }
    const QJsonArray texts = object["autoAddText"_L1].toArray();
    for (const QJsonValue &text : texts)
        definition.autoAddText.append(autoAddTextFrom(text.toObject(), translator));
    if (const QColor background = colorFromJson(object["preferredBackground"_L1], QColor()); background.isValid())
        definition.preferredBackground = background;
    return definition;
}

FilterDefinition loadFilterDefinition(const QString &id)
{
    QFile file(u":/zelmoraatelier/filters/%1.json"_s.arg(id));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return filterDefinitionFromJson(id, file.readAll());
}

} // namespace zm
