#include "application/application_info_controller.h"

#include "services/application_log.h"

#include <QCoreApplication>
#include <QDate>
#include <QDesktopServices>

using namespace Qt::StringLiterals;

namespace zm {

QString ApplicationInfoController::version() const
{
    return QCoreApplication::applicationVersion();
}

QString ApplicationInfoController::copyrightNotice() const
{
    return tr("© %1 %2").arg(QDate::currentDate().year()).arg("Zelmora"_L1);
}

QUrl ApplicationInfoController::webSiteUrl() const
{
    return QUrl(QStringLiteral(ZELMORA_WEB_SITE));
}

bool ApplicationInfoController::openLogFolder() const
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(logFolder()));
}

} // namespace zm
