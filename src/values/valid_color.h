#pragma once

#include <QColor>

namespace zm {

/// What a value that must have a colour keeps of a given one.
inline QColor validOrBlack(const QColor &color)
{
    return color.isValid() ? color : QColor(Qt::black);
}

} // namespace zm
