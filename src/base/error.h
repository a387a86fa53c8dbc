#pragma once

#include <QString>

#include <concepts>
#include <memory>
#include <optional>

namespace zm {

/// What a step that failed returns, whatever it would have returned: false, nothing, or a null pointer. It is no
/// number, and where an optional could also hold it as a value, such as a variant with a bool, it does not compile
/// instead of becoming one: return std::nullopt there.
struct Failure
{
    template<std::same_as<bool> Result>
    operator Result() &&
    {
        return false;
    }
    template<typename Value>
    operator std::optional<Value>() &&
    {
        return std::nullopt;
    }
    template<typename Value>
    operator std::unique_ptr<Value>() &&
    {
        return nullptr;
    }
};

/// Why something failed, in one sentence for people: the last parameter of functions that can tell. Only the first
/// failure is kept: what a caller says about it in general does not hide what went wrong in detail.
class Error
{
public:
    Failure fail(const QString &message)
    {
        if (m_message.isEmpty())
            m_message = message;
        m_isSet = true;
        return {};
    }
    /// Also true when a failure had nothing to say, as a device sometimes has.
    bool isSet() const { return m_isSet; }
    /// Empty while nothing failed.
    const QString &message() const { return m_message; }

private:
    QString m_message;
    bool m_isSet = false;
};

} // namespace zm
