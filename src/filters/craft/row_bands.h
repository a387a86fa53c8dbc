#pragma once

#include <QList>
#include <QtConcurrentMap>

#include <algorithm>

namespace zm {

/// Calls work(first, count) for bands of rows that together are `rows` rows, on all cores, and returns when all are
/// done. The bands are the same on every machine.
template<typename Work>
void forRowBands(int rows, Work work)
{
    constexpr int rowsOfBand = 128;
    QList<int> firstRows;
    for (int first = 0; first < rows; first += rowsOfBand)
        firstRows.append(first);
    QtConcurrent::blockingMap(firstRows, [&](int first) { work(first, std::min(rowsOfBand, rows - first)); });
}

} // namespace zm
