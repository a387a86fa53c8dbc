#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// What the interface tells about the program itself.
class ApplicationInfoController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QString copyrightNotice READ copyrightNotice CONSTANT)
    Q_PROPERTY(QUrl webSiteUrl READ webSiteUrl CONSTANT)

public:
    using QObject::QObject;

    QString version() const;

    /// One line in the current language.
    QString copyrightNotice() const;

    QUrl webSiteUrl() const;

    /// Shows the folder of the log files in the system's file manager; false if there is none to show it.
    Q_INVOKABLE bool openLogFolder() const;
};

} // namespace zm
