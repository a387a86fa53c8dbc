#pragma once

#include "values/compound_values.h"

#include <QMap>

#include <variant>

namespace zm {

/// One stored value of an effect's or generator's control. The order of the alternatives follows the type codes of the
/// document file.
using ParameterValue = std::variant<bool, qint64, double, QColor, QString, AssetName, EnabledColor, Stroke,
                                    GradientPosition, MaskTransform, ShapeMask, LightSources>;

/// True for a value that can be kept and saved: finite numbers, valid colours, widths that are not negative, a bare
/// file name, at most kMaximumLightSources lights with ids.
bool isStorable(const ParameterValue &value);

/// What was set on an effect or a generator, by control key, in key order. Implicitly shared. An absent key and a value
/// of another kind both read as the caller's fallback.
class ParameterValues
{
public:
    bool isEmpty() const { return m_values.isEmpty(); }
    qsizetype count() const { return m_values.size(); }
    bool contains(const QString &key) const { return m_values.contains(key); }
    const QMap<QString, ParameterValue> &entries() const { return m_values; }

    /// Returns false, and keeps what was there, for an empty key and a value that is not storable.
    bool set(const QString &key, const ParameterValue &value);
    /// Returns false when the key was absent.
    bool remove(const QString &key) { return m_values.remove(key) > 0; }

    /// A real or an integer value.
    double number(const QString &key, double fallback) const;
    bool boolean(const QString &key, bool fallback) const;
    QColor color(const QString &key, const QColor &fallback) const;
    /// A text, or the generator's id of a shape mask.
    QString string(const QString &key, const QString &fallback) const;
    EnabledColor enabledColor(const QString &key, const EnabledColor &fallback) const;
    Stroke stroke(const QString &key, const Stroke &fallback) const;
    GradientPosition gradientPosition(const QString &key, const GradientPosition &fallback) const;
    MaskTransform maskTransform(const QString &key, const MaskTransform &fallback) const;
    LightSources lightSources(const QString &key, const LightSources &fallback) const;

    friend bool operator==(const ParameterValues &a, const ParameterValues &b) = default;

private:
    QMap<QString, ParameterValue> m_values;
};

} // namespace zm
