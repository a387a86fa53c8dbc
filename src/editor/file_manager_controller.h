#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// Shows files in the system's file manager.
class FileManagerController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application owns it.")

public:
    using QObject::QObject;

    /// Shows the file marked in its folder, or at least the folder. Returns at once, before the file manager has
    /// answered. False when the URL is not local, the file is gone, or there is nothing to show a folder with.
    Q_INVOKABLE bool reveal(const QUrl &fileUrl);
};

} // namespace zm
