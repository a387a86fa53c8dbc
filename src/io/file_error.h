#pragma once

#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>

namespace zm {

/// What a step that failed returns, whatever it would have returned: false, nothing, or a null pointer.
struct Failure
{
    operator bool() const { return false; }
    template<typename Value>
    operator std::optional<Value>() const
    {
        return std::nullopt;
    }
    template<typename Value>
    operator std::unique_ptr<Value>() const
    {
        return nullptr;
    }
};

/// Why a document file could not be read or written, for people. Only the first failure is kept: what a caller says
/// about it in general does not hide what went wrong in detail.
class FileError
{
    Q_DECLARE_TR_FUNCTIONS(ZelmoraDocumentIO)

public:
    Failure fail(const QString &message)
    {
        if (m_message.isEmpty())
            m_message = message;
        return {};
    }
    bool isSet() const { return !m_message.isEmpty(); }
    /// Empty while nothing failed.
    const QString &message() const { return m_message; }

private:
    QString m_message;
};

} // namespace zm
