#include "services/user_notification_center.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace zm {

UserNotificationCenter &UserNotificationCenter::instance()
{
    static UserNotificationCenter center;
    return center;
}

UserNotificationCenter::UserNotificationCenter()
{
    // The first caller may be a worker; toasts surface on the main thread all the same.
    if (const QCoreApplication *application = QCoreApplication::instance())
        moveToThread(application->thread());
}

void UserNotificationCenter::post(const QString &message, const QString &hint, int delayMs, int durationMs,
                                  bool persistent)
{
    UserNotificationCenter &center = instance();
    if (QThread::currentThread() == center.thread()) {
        center.showToast(message, hint, delayMs, durationMs, persistent);
        return;
    }
    QMetaObject::invokeMethod(
        &center,
        [&center, message, hint, delayMs, durationMs, persistent] {
            center.showToast(message, hint, delayMs, durationMs, persistent);
        },
        Qt::QueuedConnection);
}

void UserNotificationCenter::showToast(const QString &message, const QString &hint, int delayMs, int durationMs,
                                       bool persistent)
{
    if (message.trimmed().isEmpty())
        return;
    emit toastRequested(message, hint, std::max(delayMs, 0), std::max(durationMs, 1), persistent);
}

} // namespace zm
