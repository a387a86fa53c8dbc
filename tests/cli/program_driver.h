#pragma once

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace zm::test {

/// What the program has said and how it ended.
struct Run
{
    int status = -1;
    QString output = {};
    QString errors = {};

    friend bool operator==(const Run &a, const Run &b) = default;
    friend char *toString(const Run &run)
    {
        return qstrdup(qPrintable(QStringLiteral("status %1, '%2', '%3'").arg(run.status).arg(run.output, run.errors)));
    }
};

/// Drives the real program in a folder of its own.
class ProgramDriver
{
public:
    QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    bool makeFolder(const char *name) const { return QDir(m_folder.path()).mkdir(QString::fromUtf8(name)); }

    void write(const QByteArray &name, const QByteArray &bytes) const
    {
        QFile file(path(name.constData()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    QByteArray read(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList listing() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    /// The arguments are separated by spaces.
    Run run(const QByteArray &arguments)
    {
        m_process.setWorkingDirectory(m_folder.path());
        m_process.start(QStringLiteral(ZELMORA_PROGRAM), QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts));
        if (!m_process.waitForFinished() || m_process.exitStatus() != QProcess::NormalExit)
            return {};
        return {m_process.exitCode(), QString::fromUtf8(m_process.readAllStandardOutput()),
                QString::fromUtf8(m_process.readAllStandardError())};
    }

    /// What "info --json" with these further arguments tells about one file.
    QJsonObject info(const QByteArray &arguments)
    {
        return QJsonDocument::fromJson(run("info --json " + arguments).output.toUtf8()).object();
    }

    QProcess &process() { return m_process; }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
};

} // namespace zm::test
