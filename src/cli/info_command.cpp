#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/document_info.h"
#include "cli/readable_info.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace zm::cli {

ExitStatus runInfo(const QStringList &words, const QString &usage)
{
    Error usageError;
    const Arguments arguments(words, {{u"--json"_s}, {u"--no-digest"_s}}, usageError);
    if (usageError.isSet())
        return wrongUsage(usageError.message(), usage);
    if (arguments.files().isEmpty())
        return wrongUsage(u"no file is named"_s, usage);

    const bool json = arguments.has(u"--json"_s);
    const bool withDigest = json && !arguments.has(u"--no-digest"_s);
    Console console;
    for (const QString &file : arguments.files()) {
        console.progress(file);
        Error error;
        const std::optional<DocumentRecords> records =
            readFileRecords(file, withDigest ? PixelReading::Decode : PixelReading::Skip, error);
        if (!records)
            console.report(file, error);
        else if (json)
            console.print(QString::fromUtf8(
                QJsonDocument(documentInfo(file, *records, withDigest)).toJson(QJsonDocument::Compact)));
        else
            console.print(readableInfo(file, *records));
    }
    return console.finish();
}

} // namespace zm::cli
