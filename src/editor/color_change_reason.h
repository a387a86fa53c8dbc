#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Why a colour picker reports a colour; QML names the values as ColorChange.DialogAccepted.
namespace zm::ColorChange {

Q_NAMESPACE
QML_ELEMENT

enum class ChangeReason {
    DialogSelection, ///< a live preview while the dialog is open
    DialogAccepted,  ///< the final colour
    DialogRejected,  ///< the dialog was cancelled; the colour is the one from before it
};
Q_ENUM_NS(ChangeReason)

} // namespace zm::ColorChange
