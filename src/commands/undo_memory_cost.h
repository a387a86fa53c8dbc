#pragma once

#include <QtTypes>

namespace zm {

/// The second base of a command whose payload can be large. The history's budget counts what it reports.
class UndoMemoryCost
{
public:
    virtual ~UndoMemoryCost() = default;

    /// The bytes that the command itself holds now; may change whenever the command runs or merges.
    virtual qint64 undoMemoryBytes() const = 0;
};

} // namespace zm
