#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// Makes the pointer that of a busy program, in all windows and at once, while it is active. Needs no frame, so it also
/// tells of work that begins right away and holds the thread.
class BusyPointer : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)

public:
    using QObject::QObject;
    ~BusyPointer() override { setActive(false); }

    bool isActive() const { return m_active; }
    void setActive(bool active);

signals:
    void activeChanged();

private:
    bool m_active = false;
};

} // namespace zm
