#include "generators/shape_generator.h"

#include "base/sanitize.h"

#include <algorithm>
#include <cmath>

namespace zm {

ShapeParameters::ShapeParameters(const QList<ParameterDefinition> &definitions, const ParameterValues &values)
    : m_definitions(definitions)
    , m_values(values)
{
}

double ShapeParameters::real(const QString &id) const
{
    const ParameterDefinition *definition = findParameter(m_definitions, id);
    const auto *range = definition ? std::get_if<RealRangeParameter>(definition) : nullptr;
    Q_ASSERT(range);
    const double stored = m_values.number(id, range->defaultValue);
    if (!range->flags.testFlag(ParameterFlag::Percent))
        return std::max(stored, range->minimum); // the outline itself limits a length
    return std::clamp(stored > 1.0 ? stored / 100.0 : stored, range->minimum, range->maximum);
}

int ShapeParameters::integer(const QString &id) const
{
    const ParameterDefinition *definition = findParameter(m_definitions, id);
    const auto *range = definition ? std::get_if<IntegerRangeParameter>(definition) : nullptr;
    Q_ASSERT(range);
    const double stored = m_values.number(id, double(range->defaultValue));
    return int(std::round(std::clamp(stored, double(range->minimum), double(range->maximum))));
}

int ShapeParameters::undeclaredInteger(const QString &id, int defaultValue, int minimum) const
{
    constexpr double largest = 1'000'000.0;
    return int(std::round(std::clamp(m_values.number(id, defaultValue), double(minimum), largest)));
}

ShapeGenerator::~ShapeGenerator() = default;

EditablePath ShapeGenerator::generate(const QSizeF &size, const ParameterValues &values) const
{
    const QList<ParameterDefinition> definitions = parameters();
    return outline(sizeOfAtLeastOne(size), ShapeParameters(definitions, values));
}

ParameterDefinition ShapeGenerator::ratio(const QString &id, const QString &label, double defaultValue, double minimum,
                                          double maximum)
{
    return realParameter(id, label, defaultValue, minimum, maximum, 0.01, ParameterFlag::Percent);
}

ParameterDefinition ShapeGenerator::pixels(const QString &id, const QString &label, double defaultValue)
{
    return realParameter(id, label, defaultValue, 0.0, 100.0, 1.0, {}, ParameterUnit::Pixels);
}

} // namespace zm
