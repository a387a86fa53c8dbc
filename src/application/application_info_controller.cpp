#include "application/application_info_controller.h"

#include "application/application_log.h"

#include <QCoreApplication>
#include <QDate>
#include <QDesktopServices>
#include <QUrl>

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

bool ApplicationInfoController::openLogFolder() const
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(logFolder()));
}

} // namespace zm
