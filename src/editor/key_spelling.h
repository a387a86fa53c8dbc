#pragma once

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// Spells keys for menus and tool tips.
class KeySpelling : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// As the platform writes it; of a standard key that has several, the first. Takes what an action's shortcut may
    /// be: a StandardKey or a text such as "Ctrl+D". Empty for anything else.
    Q_INVOKABLE static QString spelled(const QVariant &shortcut);
};

} // namespace zm
