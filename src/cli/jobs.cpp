#include "cli/jobs.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace zm::cli {

bool makeFolder(const QString &folder, Error &error)
{
    // Qt would not tell why it failed.
    std::error_code code;
    std::filesystem::create_directories(QFileInfo(folder).filesystemFilePath(), code);
    return QFileInfo(folder).isDir()
        || error.fail(u"Could not make the folder: %1"_s.arg(QString::fromStdString(code.message())));
}

QList<Job> jobsInto(const QString &folder, const QString &suffix, const QStringList &inputs, OwnInput ownInput,
                    Console &console)
{
    if (Error error; !makeFolder(folder, error)) {
        console.report(folder, error);
        return {};
    }
    QSet<QString> inputFiles;
    for (const QString &input : inputs)
        inputFiles.insert(QFileInfo(input).canonicalFilePath());
    QSet<QString> taken;
    QList<Job> jobs;
    for (const QString &input : inputs) {
        const QFileInfo source(input);
        const QString name = source.completeBaseName() + u'.' + suffix;
        const QString output = QDir(folder).filePath(name);
        // A target that exists may be a link, and one that does not is told by its folder.
        const QFileInfo target(output);
        const QString identity =
            target.exists() ? target.canonicalFilePath() : QDir(QFileInfo(folder).canonicalFilePath()).filePath(name);
        const bool isOwnInput = ownInput == OwnInput::Replaceable && identity == source.canonicalFilePath();
        if (taken.contains(identity) || (inputFiles.contains(identity) && !isOwnInput))
            console.fail(input, u"The output %1 would replace another file of this call."_s.arg(output));
        else
            jobs.append({input, output});
        taken.insert(identity);
    }
    return jobs;
}

void runJobs(const QList<Job> &jobs, Console &console, const std::function<void(const Job &, JobErrors &)> &run)
{
    for (qsizetype i = 0; i < jobs.size(); ++i) {
        console.progress(u"%1 of %2: %3"_s.arg(i + 1).arg(jobs.size()).arg(jobs[i].input));
        JobErrors errors;
        run(jobs[i], errors);
        console.report(jobs[i].input, errors.input);
        console.report(jobs[i].output, errors.output);
    }
}

} // namespace zm::cli
