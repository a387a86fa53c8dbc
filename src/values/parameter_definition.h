#pragma once

#include "values/parameter_values.h"

#include <QFlags>
#include <QStringList>

#include <optional>
#include <variant>

namespace zm {

enum class ParameterFlag : quint32 {
    /// Stores a fraction and shows a percentage.
    Percent = 1,
    /// Read and saved, but not shown.
    Hidden = 16,
    /// Not written to the document file.
    NotStored = 64,
};
Q_DECLARE_FLAGS(ParameterFlags, ParameterFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(ParameterFlags)

/// Shown in the label; does not change the value.
enum class ParameterUnit { None, Pixels, Degrees };

/// What all controls begin with.
struct ParameterHead
{
    /// The key of the value; may hold dots.
    QString id;
    /// For people, translated.
    QString label;
    ParameterFlags flags;
    ParameterUnit unit = ParameterUnit::None;
};

/// One row of a list to choose from.
struct ParameterOption
{
    /// A text or an integer.
    ParameterValue value;
    QString label;
    /// The resource of a small picture; empty where the row shows none.
    QString previewSource;
};

/// Colours and further values that one click applies.
struct ColorPreset
{
    QString label;
    QList<QColor> colors;
    ParameterValues parameters;
};

/// A number within limits. A step of 0 or less does not snap; an integer's step is at least 1.
template<typename Number>
struct NumericParameter : ParameterHead
{
    Number defaultValue = 0;
    Number minimum = 0;
    Number maximum = 0;
    Number step = 1;
};

// A range is set with a slider, a number in a field.
struct RealRangeParameter : NumericParameter<double>
{
};
struct IntegerRangeParameter : NumericParameter<qint64>
{
};
struct RealNumberParameter : NumericParameter<double>
{
};
struct IntegerNumberParameter : NumericParameter<qint64>
{
};

struct BooleanParameter : ParameterHead
{
    bool defaultValue = false;
};

struct ColorParameter : ParameterHead
{
    QColor defaultValue = Qt::black;
};

struct ChoiceParameter : ParameterHead
{
    /// The value of one of the options.
    ParameterValue defaultValue;
    QList<ParameterOption> options;
    /// Shown by label instead of in the given order.
    bool sortOptions = false;
};

struct TexturePickerParameter : ParameterHead
{
    ParameterValue defaultValue;
    QList<ParameterOption> options;
};

/// A control of the document or the panel, which no file keeps.
struct NotStoredParameter : ParameterHead
{
    NotStoredParameter() { flags = ParameterFlag::NotStored; }
};

/// A button without a value of its own.
struct ColorPresetParameter : NotStoredParameter
{
    QList<ColorPreset> presets;
    /// The i-th colour of a preset goes to the key made of this and i.
    QString target;
    QStringList resetKeys;
};

struct EnabledColorParameter : ParameterHead
{
    EnabledColor defaultValue;
};

/// The limits are those of the width.
struct StrokeParameter : ParameterHead
{
    Stroke defaultValue;
    double minimum = 0.0;
    double maximum = 100.0;
    double step = 1.0;
};

struct GradientPositionParameter : ParameterHead
{
    GradientPosition defaultValue;
    QString overlayMode;
    QString buttonLabel;
};

struct MaskTransformParameter : ParameterHead
{
    MaskTransform defaultValue;
    QString buttonLabel;
    bool hideRotation = false;
    bool uniformScaleOnly = false;
};

struct ShapeParameter : ParameterHead
{
    ShapeMask defaultValue;
};

/// A button that starts something, without a value.
struct FilterActionParameter : NotStoredParameter
{
    QString buttonLabel;
};

struct DocumentColorParameter : NotStoredParameter
{
    QColor defaultValue = Qt::white;
};

struct LightSourcesParameter : ParameterHead
{
    LightSources defaultValue;
    qsizetype maximumCount = kMaximumLightSources;
    QString buttonLabel;
};

struct AssetParameter : ParameterHead
{
    AssetName defaultValue;
};

/// One control of an effect or a generator: what it is called, what it holds and within which limits.
using ParameterDefinition =
    std::variant<RealRangeParameter, IntegerRangeParameter, RealNumberParameter, IntegerNumberParameter,
                 BooleanParameter, ColorParameter, ChoiceParameter, TexturePickerParameter, ColorPresetParameter,
                 EnabledColorParameter, StrokeParameter, GradientPositionParameter, MaskTransformParameter,
                 ShapeParameter, FilterActionParameter, DocumentColorParameter, LightSourcesParameter, AssetParameter>;

const ParameterHead &parameterHead(const ParameterDefinition &definition);

/// Nothing for a button.
std::optional<ParameterValue> defaultValue(const ParameterDefinition &definition);

/// The nearest value of the grid that starts at the minimum, within the limits; a number that is not finite becomes the
/// minimum, and a step of 0 or less does not snap. Limits the wrong way round are swapped.
double snapped(double value, double minimum, double maximum, double step);
/// Halves round away from zero; a step below 1 counts as 1.
qint64 snapped(qint64 value, qint64 minimum, qint64 maximum, qint64 step);

/// The value as the control stores it: of its own kind, numbers snapped, a shape as a mask, an option as the option's
/// own value. Nothing for a value of another kind, a text that is no option, too many lights, and for a button.
std::optional<ParameterValue> acceptedValue(const ParameterDefinition &definition, const ParameterValue &value);

/// Puts what a preset of the control sets into values: first the keys to reset go, then come the colours, and over them
/// the preset's further values.
void applyPreset(ParameterValues &values, const ColorPresetParameter &control, const ColorPreset &preset);

/// An option's value as text, by which options are compared: a stored text may name an integer option and the other way
/// round. Nothing for values that no option has.
std::optional<QString> optionText(const ParameterValue &value);

/// A control with a key and a label, for the rest to be set.
template<typename Control>
Control headed(const QString &id, const QString &label)
{
    Control control;
    control.id = id;
    control.label = label;
    return control;
}

/// Limits that are the wrong way round are swapped, and the default is snapped into them.
void setNumbers(NumericParameter<double> &parameter, double defaultValue, double minimum, double maximum, double step);

/// A real range. Limits that are the wrong way round are swapped, and the default is snapped into them.
ParameterDefinition realParameter(const QString &id, const QString &label, double defaultValue, double minimum,
                                  double maximum, double step, ParameterFlags flags = {},
                                  ParameterUnit unit = ParameterUnit::None);
/// An integer range with a step of 1, treated likewise.
ParameterDefinition integerParameter(const QString &id, const QString &label, qint64 defaultValue, qint64 minimum,
                                     qint64 maximum);

/// Null when no definition has this id.
const ParameterDefinition *findParameter(const QList<ParameterDefinition> &definitions, const QString &id);

/// The stored values, and the defaults of the keys that are absent. Values without a definition are kept.
ParameterValues completeParameters(const QList<ParameterDefinition> &definitions, const ParameterValues &values);

/// What renders from the values: the same, with the default in place of a stored value of another kind than the
/// control's. A number may be real or integer, an option a number or a text, a shape also the id of its generator.
ParameterValues readableParameters(const QList<ParameterDefinition> &definitions, const ParameterValues &values);

} // namespace zm
