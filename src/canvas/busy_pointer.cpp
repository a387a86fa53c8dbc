#include "canvas/busy_pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace zm {

void BusyPointer::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    if (active)
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QGuiApplication::restoreOverrideCursor();
    emit activeChanged();
}

} // namespace zm
