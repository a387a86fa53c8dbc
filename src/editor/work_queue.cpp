#include "editor/work_queue.h"

namespace zm {

void WorkQueue::append(std::function<void()> work, bool slow)
{
    m_works.push_back({std::move(work), slow});
    emit changed();
}

void WorkQueue::carryOutNext()
{
    if (m_works.empty() || m_carryingOut)
        return;
    m_carryingOut = true;
    m_works.front().carryOut();
    m_carryingOut = false;
    m_works.pop_front();
    emit changed();
    if (m_works.empty())
        emit finished();
}

} // namespace zm
