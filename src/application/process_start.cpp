#include "application/process_start.h"

#include <QFileInfo>

namespace zm {

QByteArray completedPlatformName(const QByteArray &platformName)
{
    if (platformName.isEmpty())
        return "windows:darkmode=1";
    if (platformName.startsWith("windows") && !platformName.contains("darkmode="))
        return platformName + ":darkmode=1";
    return platformName;
}

QUrl fileArgument(const QStringList &arguments)
{
    for (const QString &untrimmed : arguments.mid(1)) {
        const QString argument = untrimmed.trimmed();
        if (argument.isEmpty() || argument.startsWith(u'-'))
            continue;
        const QUrl url(argument, QUrl::TolerantMode);
        return url.isLocalFile() ? url : QUrl::fromLocalFile(QFileInfo(argument).absoluteFilePath());
    }
    return {};
}

} // namespace zm
