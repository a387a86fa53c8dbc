#include "editor/file_manager_controller.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
#include "services/user_notification_center.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#endif

using namespace Qt::StringLiterals;

namespace zm {

namespace {

bool openFolder(const QFileInfo &file)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absolutePath()));
}

#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)

constexpr int kBusTimeoutMs = 300;      // the bus itself answers, without any other program
constexpr int kStartTimeoutMs = 10'000; // the file manager may have to be started first

/// The interface by which desktops' file managers mark files, see the freedesktop.org specification of its name.
constexpr auto kFileManager = "org.freedesktop.FileManager1"_L1;

bool busLists(const QDBusConnection &bus, const QString &method)
{
    const QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                                                 u"org.freedesktop.DBus"_s, method);
    const QDBusReply<QStringList> names = bus.call(question, QDBus::Block, kBusTimeoutMs);
    return names.isValid() && names.value().contains(kFileManager);
}

/// False if no file manager on the session bus can be asked; one that refuses later is replaced by openFolder.
bool askFileManager(const QFileInfo &file, QObject *context)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !(busLists(bus, u"ListNames"_s) || busLists(bus, u"ListActivatableNames"_s)))
        return false;

    QDBusMessage request =
        QDBusMessage::createMethodCall(kFileManager, u"/org/freedesktop/FileManager1"_s, kFileManager, u"ShowItems"_s);
    const QString url = QString::fromLatin1(QUrl::fromLocalFile(file.absoluteFilePath()).toEncoded());
    request << QStringList(url) << QString();
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(request, kStartTimeoutMs), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [watcher, file] {
        watcher->deleteLater();
        if (watcher->isError() && !openFolder(file)) {
            UserNotificationCenter::post(FileManagerController::tr("Could not open the folder containing the image."));
        }
    });
    return true;
}

#endif

} // namespace

bool FileManagerController::reveal(const QUrl &fileUrl)
{
    const QFileInfo file(fileUrl.toLocalFile());
    if (!fileUrl.isLocalFile() || !file.exists())
        return false;
#if defined(Q_OS_WIN)
    const QStringList arguments{u"/select,"_s, QDir::toNativeSeparators(file.absoluteFilePath())};
    return QProcess::startDetached(u"explorer.exe"_s, arguments) || openFolder(file);
#elif defined(Q_OS_MACOS)
    return QProcess::startDetached(u"/usr/bin/open"_s, {u"-R"_s, file.absoluteFilePath()}) || openFolder(file);
#else
    return askFileManager(file, this) || openFolder(file);
#endif
}

} // namespace zm
