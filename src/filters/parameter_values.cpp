#include "filters/parameter_values.h"

namespace zm {

namespace {

template<typename T>
T valueOr(const QMap<QString, ParameterValue> &values, const QString &key, const T &fallback)
{
    const auto found = values.constFind(key);
    if (found == values.cend())
        return fallback;
    const T *value = std::get_if<T>(&*found);
    return value ? *value : fallback;
}

} // namespace

double ParameterValues::number(const QString &key, double fallback) const
{
    const auto found = m_values.constFind(key);
    if (found != m_values.cend()) {
        if (const qint64 *integer = std::get_if<qint64>(&*found))
            return double(*integer);
    }
    return valueOr(m_values, key, fallback);
}

bool ParameterValues::boolean(const QString &key, bool fallback) const
{
    return valueOr(m_values, key, fallback);
}

QColor ParameterValues::color(const QString &key, const QColor &fallback) const
{
    return valueOr(m_values, key, fallback);
}

QString ParameterValues::string(const QString &key, const QString &fallback) const
{
    return valueOr(m_values, key, fallback);
}

} // namespace zm
