#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QString>

#include <algorithm>

namespace zm::bench {

/// One line of the printed table.
struct BenchRow
{
    QString name;
    double medianMs = 0.0;
    /// Ratio to the floor measured in the same run, megapixels a second, the goal.
    QString note;
};

/// The median time of work(), in milliseconds, over runs calls after one that warms up.
template<typename Work>
double medianMilliseconds(int runs, Work &&work)
{
    work();
    QList<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.append(double(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[runs / 2];
}

} // namespace zm::bench
