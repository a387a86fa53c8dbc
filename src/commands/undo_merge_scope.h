#pragma once

#include <QtTypes>

namespace zm {

/// Gives the commands of one gesture a common key, by which they merge into one undo step. Whoever turns gestures into
/// commands keeps one as a member.
class UndoMergeScope
{
public:
    /// Starts a gesture; keeps the key of one that is running.
    void begin()
    {
        if (m_currentKey != 0)
            return;
        if (++m_counter == 0) // 0 says that nothing merges
            ++m_counter;
        m_currentKey = m_counter;
    }

    void end() { m_currentKey = 0; }

    /// 0 while no gesture runs.
    quint64 currentKey() const { return m_currentKey; }

private:
    quint64 m_counter = 0;
    quint64 m_currentKey = 0;
};

} // namespace zm
