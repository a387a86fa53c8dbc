#pragma once

#include "values/editable_path.h"
#include "values/parameter_definition.h"

#include <QColor>
#include <QCoreApplication>
#include <QSizeF>

namespace zm {

/// The stored values of a generator as it reads them: present and numeric, or the default.
class ShapeParameters
{
public:
    /// Keeps references: both outlive the reader.
    ShapeParameters(const QList<ParameterDefinition> &definitions, const ParameterValues &values);

    /// A fraction within its limits, where a stored number above 1 is a percentage, or a length in layer units, which
    /// may exceed the panel's limit.
    double real(const QString &id) const;
    /// Rounded, halves away from zero, within its limits.
    int integer(const QString &id) const;
    /// A value that is no control of the panel: rounded and at least minimum.
    int undeclaredInteger(const QString &id, int defaultValue, int minimum) const;

private:
    const QList<ParameterDefinition> &m_definitions;
    const ParameterValues &m_values;
};

/// Knows how to draw one kind of outline into a box. Without state, so that all layers share it. A layer keeps the id
/// and the values, and draws again at every size, so that corners stay true.
class ShapeGenerator
{
public:
    ShapeGenerator() = default;
    virtual ~ShapeGenerator();

    ShapeGenerator(const ShapeGenerator &) = delete;
    ShapeGenerator &operator=(const ShapeGenerator &) = delete;

    /// Stored in documents.
    virtual QString id() const = 0;
    /// For people, translated.
    virtual QString label() const = 0;
    /// Document units.
    virtual QSizeF defaultSize() const = 0;
    virtual QColor defaultFillColor() const = 0;
    /// Invalid for no stroke.
    virtual QColor defaultStrokeColor() const { return {}; }
    /// The controls in the panel's order.
    virtual QList<ParameterDefinition> parameters() const = 0;

    /// Values that the outline reads too, though the panel does not show them.
    virtual QList<ParameterDefinition> hiddenParameters() const { return {}; }

    /// The outline in the box from (0, 0) to size, in layer units. Never fails: a side that is not finite or below 1
    /// counts as 1, values that are not declared are ignored, and missing ones take their default.
    EditablePath generate(const QSizeF &size, const ParameterValues &values) const;

protected:
    /// Sides of at least 1.
    virtual EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const = 0;

    /// A fraction in steps of 0.01, shown as a percentage.
    static ParameterDefinition ratio(const QString &id, const QString &label, double defaultValue, double minimum = 0.0,
                                     double maximum = 1.0);
    /// A length of 0..100 layer units in steps of 1.
    static ParameterDefinition pixels(const QString &id, const QString &label, double defaultValue);
};

} // namespace zm
