#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <deque>
#include <functional>

namespace zm {

/// Work that holds the main thread, such as decoding a file, waiting until the window has told of it. Whoever shows the
/// queue calls carryOutNext() once what it shows is on the screen. Without anyone to show it nothing is carried out.
class WorkQueue : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The flow of documents owns the one queue of work.")
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
    Q_PROPERTY(bool slow READ isSlow NOTIFY changed)

public:
    using QObject::QObject;

    /// Appends work. Slow work is expected to take so long that the user should see that it runs.
    void append(std::function<void()> work, bool slow);

    /// Work waits or is being carried out.
    bool isRunning() const { return !m_works.empty(); }
    /// What comes next, or is being carried out, is slow.
    bool isSlow() const { return isRunning() && m_works.front().slow; }

    /// Carries out the oldest work, which may append more. Does nothing while work is being carried out.
    Q_INVOKABLE void carryOutNext();

signals:
    void changed();
    /// The last work has ended.
    void finished();

private:
    struct Work
    {
        std::function<void()> carryOut;
        bool slow = false;
    };

    std::deque<Work> m_works; // the first stays in its place while it is being carried out
    bool m_carryingOut = false;
};

} // namespace zm
