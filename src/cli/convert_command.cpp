#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/jobs.h"
#include "cli/quiet_libraries.h"
#include "io/document_opening.h"
#include "io/file_names.h"

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

void convertFile(const Job &job, bool lossy, JobErrors &errors)
{
    const QuietLibraries quiet;
    Document document;
    if (openDocument(document, job.input, errors.input))
        ZelmoraDocumentIO::writeDocumentFile(document, job.output, lossy, errors.output);
}

} // namespace

ExitStatus runConvert(const QStringList &words, const QString &usage)
{
    Error error;
    const Arguments arguments(words, {{u"--lossy"_s}, {u"--into"_s, true}}, error);
    if (error.isSet())
        return wrongUsage(error.message(), usage);

    const QStringList &files = arguments.files();
    Console console;
    QList<Job> jobs;
    if (arguments.has(u"--into"_s)) {
        if (files.isEmpty())
            return wrongUsage(u"no input is named"_s, usage);
        // A document that is converted in its place stays whole whatever happens.
        jobs = jobsInto(arguments.value(u"--into"_s), kDocumentSuffix, files, OwnInput::Replaceable, console);
    } else {
        if (files.size() != 2)
            return wrongUsage(u"one input and one output are needed"_s, usage);
        if (!hasDocumentSuffix(files[1]))
            return wrongUsage(u"the output's name must end in .zelmora"_s, usage);
        jobs = {{files[0], files[1]}};
    }
    const bool lossy = arguments.has(u"--lossy"_s);
    runJobs(jobs, console, [lossy](const Job &job, JobErrors &errors) { convertFile(job, lossy, errors); });
    return console.finish();
}

} // namespace zm::cli
