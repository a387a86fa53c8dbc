#include "editor/key_spelling.h"

#include <QKeySequence>

namespace zm {

QString KeySpelling::spelled(const QVariant &shortcut)
{
    switch (shortcut.typeId()) {
    case QMetaType::Int:
        return QKeySequence(QKeySequence::StandardKey(shortcut.toInt())).toString(QKeySequence::NativeText);
    case QMetaType::QString:
        return QKeySequence(shortcut.toString()).toString(QKeySequence::NativeText);
    case QMetaType::QKeySequence:
        return shortcut.value<QKeySequence>().toString(QKeySequence::NativeText);
    default:
        return {};
    }
}

} // namespace zm
