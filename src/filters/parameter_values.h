#pragma once

#include <QColor>
#include <QMap>
#include <QString>

#include <variant>

namespace zm {

/// One stored value of a filter's or generator's control.
using ParameterValue = std::variant<bool, qint64, double, QColor, QString>;

/// What was set on an effect or a generator, by control key, in key order. Implicitly shared. An absent key and a value
/// of another kind both read as the caller's fallback.
class ParameterValues
{
public:
    bool isEmpty() const { return m_values.isEmpty(); }
    bool contains(const QString &key) const { return m_values.contains(key); }
    const QMap<QString, ParameterValue> &entries() const { return m_values; }

    void set(const QString &key, const ParameterValue &value) { m_values.insert(key, value); }
    /// Returns false when the key was absent.
    bool remove(const QString &key) { return m_values.remove(key) > 0; }

    /// A real or an integer value.
    double number(const QString &key, double fallback) const;
    bool boolean(const QString &key, bool fallback) const;
    QColor color(const QString &key, const QColor &fallback) const;
    QString string(const QString &key, const QString &fallback) const;

    friend bool operator==(const ParameterValues &a, const ParameterValues &b) = default;

private:
    QMap<QString, ParameterValue> m_values;
};

} // namespace zm
