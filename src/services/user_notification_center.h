#pragma once

#include <QObject>

namespace zm {

/// The one place where code on any thread asks the interface for a toast. Lives on the main thread for the whole
/// process; the interface listens to toastRequested.
class UserNotificationCenter : public QObject
{
    Q_OBJECT

public:
    static constexpr int kDefaultDurationMs = 2500;

    static UserNotificationCenter &instance();

    /// showToast from any thread: at once on the centre's own thread, by a queued call from another.
    static void post(const QString &message, const QString &hint = {}, int delayMs = 0,
                     int durationMs = kDefaultDurationMs, bool persistent = false);

public slots:
    /// Ignores a blank message; raises delayMs to at least 0 and durationMs to at least 1.
    void showToast(const QString &message, const QString &hint = {}, int delayMs = 0,
                   int durationMs = kDefaultDurationMs, bool persistent = false);

signals:
    void toastRequested(const QString &message, const QString &hint, int delayMs, int durationMs, bool persistent);

private:
    UserNotificationCenter();
};

} // namespace zm
