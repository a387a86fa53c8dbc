#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/document_info.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

QString numberPair(const QJsonValue &pair)
{
    const auto number = [](const QJsonValue &value) { return QString::number(value.toDouble(), 'g', 12); };
    return u"%1 x %2"_s.arg(number(pair[0]), number(pair[1]));
}

/// The same facts for a reader's eyes.
QString readableInfo(const QJsonObject &info)
{
    QStringList lines{info["file"_L1].toString()};
    lines.append(u"  size: %1"_s.arg(numberPair(info["size"_L1])));
    const QJsonArray layers = info["layers"_L1].toArray();
    for (const QJsonValue &layer : layers) {
        const QJsonValue image = layer["image"_L1];
        lines.append(u"  layer: \"%1\", %2 %3"_s.arg(layer["name"_L1].toString(), image["encoding"_L1].toString(),
                                                     numberPair(image["size"_L1])));
        if (const QString digest = image["sha256"_L1].toString(); !digest.isEmpty())
            lines.append(u"    sha256: %1"_s.arg(digest));
    }
    return lines.join(u'\n');
}

} // namespace

ExitStatus runInfo(const QStringList &words, const QString &usage)
{
    const Arguments arguments(words, {{u"--json"_s}, {u"--no-digest"_s}});
    if (!arguments.problem().isEmpty())
        return wrongUsage(arguments.problem(), usage);
    if (arguments.files().isEmpty())
        return wrongUsage(u"no file is named"_s, usage);

    Console console;
    for (const QString &file : arguments.files()) {
        console.progress(file);
        QString error;
        const std::optional<QJsonObject> info = documentInfo(file, !arguments.has(u"--no-digest"_s), &error);
        if (!info)
            console.fail(file, error);
        else if (arguments.has(u"--json"_s))
            console.print(QString::fromUtf8(QJsonDocument(*info).toJson(QJsonDocument::Compact)));
        else
            console.print(readableInfo(*info));
    }
    return console.finish();
}

} // namespace zm::cli
