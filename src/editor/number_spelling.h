#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace zm {

/// Spells numbers for fields in which they are typed, and reads them back, in the language of the interface.
class NumberSpelling : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Rounded to so many digits after the point, less zeros at the end, and without marks between thousands.
    Q_INVOKABLE static QString spelled(double number, int decimals);
    /// Takes the language's point and minus and the plain ones. NaN for a text that is no number.
    Q_INVOKABLE static double read(const QString &text);
};

} // namespace zm
