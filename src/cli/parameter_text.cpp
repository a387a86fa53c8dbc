#include "cli/parameter_text.h"

#include "generators/shape_generator.h"
#include "generators/shape_generator_registry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

std::optional<double> numberFromText(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

/// Numbers with commas between them; nothing unless there are this many.
std::optional<QList<double>> numbersFromText(const QString &text, qsizetype count)
{
    QList<double> numbers;
    const QStringList words = text.split(u',');
    for (const QString &word : words) {
        const std::optional<double> number = numberFromText(word);
        if (!number)
            return std::nullopt;
        numbers.append(*number);
    }
    return numbers.size() == count ? std::optional(numbers) : std::nullopt;
}

std::optional<QColor> colorFromText(const QString &text)
{
    if (!text.startsWith(u'#') || (text.size() != 7 && text.size() != 9))
        return std::nullopt;
    // Qt reads alpha first; the command line, like the web, writes it last.
    const QColor color = QColor::fromString(text.size() == 7 ? text : u'#' + text.last(2) + text.sliced(1, 6));
    return color.isValid() ? std::optional(color) : std::nullopt;
}

std::optional<Stroke> strokeFromText(const QString &text)
{
    const qsizetype at = text.indexOf(u'@');
    const std::optional<QColor> color = colorFromText(text.first(std::max<qsizetype>(at, 0)));
    const std::optional<double> width = numberFromText(text.sliced(at + 1));
    return color && width ? std::optional(Stroke{*color, *width}) : std::nullopt;
}

/// Absent members keep the default; an unknown one is a mistake in writing.
std::optional<LightSource> lightFromJson(const QJsonValue &value)
{
    LightSource light;
    const std::pair<QLatin1StringView, double *> numbers[] = {
        {"x"_L1, &light.x},
        {"y"_L1, &light.y},
        {"radius"_L1, &light.radius},
        {"angle"_L1, &light.angle},
        {"intensity"_L1, &light.intensity},
        {"softness"_L1, &light.softness},
    };
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString name = member.key();
        const auto number = std::ranges::find_if(numbers, [&](const auto &known) { return known.first == name; });
        const auto color = colorFromText(member->toString());
        const auto shape = lightShapeFromName(member->toString());
        if (number != std::end(numbers) && member->isDouble())
            *number->second = member->toDouble();
        else if (name == "tint"_L1 && color)
            light.tint = *color;
        else if (name == "shape"_L1 && shape)
            light.shape = *shape;
        else
            return std::nullopt;
    }
    return light;
}

std::optional<LightSources> lightsFromText(const QString &text, qsizetype maximumCount)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isArray() || document.array().size() > maximumCount)
        return std::nullopt;
    LightSources lights;
    const QJsonArray array = document.array();
    for (const QJsonValue &value : array) {
        const std::optional<LightSource> light = lightFromJson(value);
        if (!light)
            return std::nullopt;
        lights.append(*light);
    }
    return lights;
}

/// The text as a value of the control's kind, before the control's limits.
struct TextReader
{
    const QString &text;

    template<typename Number>
    std::optional<ParameterValue> operator()(const NumericParameter<Number> &) const
    {
        return numberFromText(text);
    }
    std::optional<ParameterValue> operator()(const BooleanParameter &) const
    {
        return text == "true"_L1 || text == "false"_L1 ? std::optional(text == "true"_L1) : std::nullopt;
    }
    std::optional<ParameterValue> operator()(const ColorParameter &) const { return colorFromText(text); }
    std::optional<ParameterValue> operator()(const DocumentColorParameter &) const { return colorFromText(text); }
    std::optional<ParameterValue> operator()(const EnabledColorParameter &control) const
    {
        if (text == "none"_L1)
            return EnabledColor{false, control.defaultValue.color};
        const std::optional<QColor> color = colorFromText(text);
        return color ? std::optional(EnabledColor{true, *color}) : std::nullopt;
    }
    std::optional<ParameterValue> operator()(const StrokeParameter &) const { return strokeFromText(text); }
    std::optional<ParameterValue> operator()(const GradientPositionParameter &) const
    {
        const auto numbers = numbersFromText(text, 4);
        return numbers ? std::optional(GradientPosition{numbers->at(0), numbers->at(1), numbers->at(2), numbers->at(3)})
                       : std::nullopt;
    }
    std::optional<ParameterValue> operator()(const MaskTransformParameter &control) const
    {
        const auto numbers = numbersFromText(text, 5);
        if (!numbers)
            return std::nullopt;
        MaskTransform mask = control.defaultValue;
        mask.x = numbers->at(0);
        mask.y = numbers->at(1);
        mask.scaleX = numbers->at(2);
        mask.scaleY = numbers->at(3);
        mask.rotation = numbers->at(4);
        return mask;
    }
    std::optional<ParameterValue> operator()(const LightSourcesParameter &control) const
    {
        return lightsFromText(text, control.maximumCount);
    }
    std::optional<ParameterValue> operator()(const AssetParameter &) const { return AssetName{text}; }
    /// Options and shapes are looked up by what they are called; a button takes nothing later.
    std::optional<ParameterValue> operator()(const ParameterHead &) const { return text; }
};

/// What a control takes where that is a list of names; empty for the others.
QStringList namesOf(const ParameterDefinition &definition)
{
    QStringList names;
    const auto addOptions = [&names](const QList<ParameterOption> &options) {
        for (const ParameterOption &option : options)
            names.append(optionText(option.value).value_or(QString()));
    };
    if (const auto *choice = std::get_if<ChoiceParameter>(&definition)) {
        addOptions(choice->options);
    } else if (const auto *textures = std::get_if<TexturePickerParameter>(&definition)) {
        addOptions(textures->options);
    } else if (const auto *button = std::get_if<ColorPresetParameter>(&definition)) {
        for (const ColorPreset &preset : button->presets)
            names.append(preset.label);
    } else if (std::holds_alternative<ShapeParameter>(definition)) {
        for (const auto &generator : ShapeGeneratorRegistry::instance().generators())
            names.append(generator->id());
    }
    return names;
}

/// False for a control without presets and for a preset that it does not have.
bool setPreset(ParameterValues &values, const ParameterDefinition &definition, const QString &label)
{
    const auto *control = std::get_if<ColorPresetParameter>(&definition);
    if (!control)
        return false;
    const auto preset = std::ranges::find(control->presets, label, &ColorPreset::label);
    if (preset == control->presets.end())
        return false;
    applyPreset(values, *control, *preset);
    return true;
}

} // namespace

std::optional<ParameterValue> parameterValueFromText(const ParameterDefinition &definition, const QString &text)
{
    const std::optional<ParameterValue> written = std::visit(TextReader{text}, definition);
    const bool isUnknownShape =
        std::holds_alternative<ShapeParameter>(definition) && !ShapeGeneratorRegistry::instance().find(text);
    if (!written || isUnknownShape)
        return std::nullopt;
    const std::optional<ParameterValue> accepted = acceptedValue(definition, *written);
    return accepted && isStorable(*accepted) ? accepted : std::nullopt;
}

bool setParameterFromText(ParameterValues &values, const QList<ParameterDefinition> &definitions,
                          const QString &assignment, Error &error)
{
    const qsizetype equals = assignment.indexOf(u'=');
    if (equals < 0)
        return error.fail(u"--set takes KEY=VALUE"_s);
    const QString key = assignment.first(equals);
    const QString text = assignment.sliced(equals + 1);
    const ParameterDefinition *definition = findParameter(definitions, key);
    if (!definition) {
        QStringList keys;
        for (const ParameterDefinition &known : definitions)
            keys.append(parameterHead(known).id);
        return error.fail(u"unknown key %1; the keys are %2"_s.arg(key, keys.join(", "_L1)));
    }
    const std::optional<ParameterValue> value = parameterValueFromText(*definition, text);
    if ((value && values.set(key, *value)) || setPreset(values, *definition, text))
        return true;
    const QString refusal = u"%1 cannot be \"%2\""_s.arg(key, text);
    const QStringList names = namesOf(*definition);
    return error.fail(names.isEmpty() ? refusal : u"%1; it takes %2"_s.arg(refusal, names.join(", "_L1)));
}

} // namespace zm::cli
