#pragma once

#include "values/parameter_definition.h"

#include <QByteArray>
#include <QColor>
#include <QJsonValue>

#include <optional>

namespace zm {

/// Translates what people see of one filter.
class ControlTranslator
{
public:
    explicit ControlTranslator(const QByteArray &context)
        : m_context(context)
    {
    }

    /// An empty text stays empty.
    QString translated(const QString &text) const;

private:
    QByteArray m_context;
};

/// A colour's name, as QColor reads it; anything else gives the fallback.
QColor colorFromJson(const QJsonValue &value, const QColor &fallback);

/// One entry of a filter's "controls". Nothing for what is no object, has no key, or is of an unknown type. What is
/// missing takes the default of the type; numbers out of their limits are limited.
std::optional<ParameterDefinition> controlFromJson(const QJsonValue &value, const ControlTranslator &translator);

} // namespace zm
