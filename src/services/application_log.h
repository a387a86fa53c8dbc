#pragma once

#include <QFile>
#include <QRecursiveMutex>
#include <QString>
#include <QTextStream>
#include <QtLogging>

namespace zm {

/// The folder of the log files. It needs not exist yet.
QString logFolder();

/// The file of the running process within logFolder().
QString logFilePath();

/// From here on every Qt message also goes to logFilePath(), whose previous content becomes "info.log.old".
void installApplicationLog();

/// Writes messages to "info.log" in a folder and passes each on to the handler that was there before, or to standard
/// error if there was none. Usable from any thread. Where the file cannot be opened or written, messages are passed
/// on all the same, and the first failure is told there.
class LogWriter
{
public:
    /// Makes the folder, and turns an existing "info.log" into "info.log.old".
    LogWriter(const QString &folder, QtMessageHandler previousHandler);

    void write(QtMsgType type, const QMessageLogContext &context, const QString &message);

private:
    bool writeLine(QtMsgType type, const QString &message);
    void passOn(QtMsgType type, const QMessageLogContext &context, const QString &message) const;

    QRecursiveMutex m_lock; // recursive: a message may be raised while one is being written
    QFile m_file;
    QTextStream m_stream;
    QtMessageHandler m_previousHandler;
    bool m_failureTold = false;
};

} // namespace zm
