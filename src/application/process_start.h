#pragma once

#include <QByteArray>
#include <QStringList>
#include <QUrl>

namespace zm {

/// The value of QT_QPA_PLATFORM that lets the window frame follow the dark theme: the given one, completed when it is
/// empty or names the `windows` platform without saying so itself.
QByteArray completedPlatformName(const QByteArray &platformName);

/// The file to open: the first argument after the program's name that is neither blank nor an option. A local file
/// URL or a path, which becomes absolute. Empty if there is none.
QUrl fileArgument(const QStringList &arguments);

} // namespace zm
