#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/quiet_libraries.h"
#include "document/document.h"
#include "io/image_export.h"
#include "io/image_import.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

/// Zero sides were not given.
struct SizeWish
{
    int width = 0;
    int height = 0;
    int maximumSide = 0;
};

struct ExportWish
{
    QString formatKey;
    int quality = kDefaultExportQuality;
    SizeWish size;
    bool clipToDocument = true;
};

struct Job
{
    QString input;
    QString output;
};

/// One given side keeps the proportions, two stretch, and a longest side only ever reduces.
QSize wishedSize(const QRectF &rectangle, const SizeWish &wish)
{
    const int limit = wish.maximumSide > 0 ? wish.maximumSide : kMaximumExportSide;
    if (wish.width > 0 && wish.height > 0)
        return defaultExportSize(QRectF(0, 0, wish.width, wish.height), limit);
    if (wish.width > 0)
        return exportSizeForWidth(rectangle, wish.width, limit);
    if (wish.height > 0)
        return exportSizeForHeight(rectangle, wish.height, limit);
    return defaultExportSize(rectangle, limit);
}

ExportResult exportDocument(const Document &document, const ExportWish &wish)
{
    const SceneSnapshot snapshot = buildSceneSnapshot(document, {}, nullptr);
    const QSize size = wishedSize(exportRectangle(snapshot, wish.clipToDocument), wish.size);
    return exportImage(snapshot, {wish.formatKey, wish.quality, size, wish.clipToDocument});
}

/// A picture is a document of one layer, but need not become one when that changes nothing.
ExportResult exportPicture(DecodedPicture picture, const QString &name, const ExportWish &wish)
{
    if (const auto *raster = std::get_if<RasterImageSource>(&picture.source)) {
        const QSize size = wishedSize(QRectF(QPointF(), raster->image.size()), wish.size);
        const ExportSettings settings{wish.formatKey, wish.quality, size, wish.clipToDocument};
        if (isExportedAsDecoded(raster->image, settings))
            return exportAsDecoded(raster->image, settings);
    }
    Document document;
    ImageImportResult imported = imageLayerFrom(std::move(picture), name);
    if (imported.layer)
        imported.error = replaceWithImage(document, std::move(imported.layer));
    if (imported.error != ImageImportError::None)
        return {{}, importErrorText(imported.error)};
    return exportDocument(document, wish);
}

Outcome exportFile(const Job &job, const ExportWish &wish)
{
    const QuietLibraries quiet;
    DecodedPicture picture = decodePicture(job.input);
    if (picture.error != ImageImportError::None)
        return {job.input, importErrorText(picture.error)};
    const ExportResult result = exportPicture(std::move(picture), imageLayerName(job.input), wish);
    if (!result.error.isEmpty())
        return {job.input, result.error};
    QString error;
    writeExportedImage(job.output, result.bytes, &error);
    return {job.output, error};
}

/// One output in the folder for each input. An output that is an input, or that an earlier input has taken, is a
/// failure of that input: a batch must not lose a picture.
QList<Job> jobsInto(const QString &folder, const QString &suffix, const QStringList &inputs, Console &console)
{
    QList<Job> jobs;
    QSet<QString> taken;
    for (const QString &input : inputs)
        taken.insert(QFileInfo(input).canonicalFilePath());
    for (const QString &input : inputs) {
        const QString name = QFileInfo(input).completeBaseName() + u'.' + suffix;
        const QString output = QDir(folder).filePath(name);
        const QFileInfo target(output);
        const QString identity = QDir(QFileInfo(folder).canonicalFilePath()).filePath(name);
        if (taken.contains(identity) || (target.exists() && taken.contains(target.canonicalFilePath())))
            console.fail(input, u"The output %1 would replace another file of this call."_s.arg(output));
        else
            jobs.append({input, output});
        taken.insert(identity);
    }
    return jobs;
}

} // namespace

ExitStatus runExport(const QStringList &words, const QString &usage)
{
    Arguments arguments(words,
                        {{u"--quality"_s, true},
                         {u"--width"_s, true},
                         {u"--height"_s, true},
                         {u"--max-side"_s, true},
                         {u"--transparent"_s},
                         {u"--unclipped"_s},
                         {u"--into"_s, true},
                         {u"--format"_s, true}});
    const auto side = [&](const QString &option) {
        return arguments.number(option, 0, kMinimumExportSide, kMaximumExportSide);
    };
    ExportWish wish;
    wish.quality = arguments.number(u"--quality"_s, kDefaultExportQuality, 0, 100);
    wish.size = {side(u"--width"_s), side(u"--height"_s), side(u"--max-side"_s)};
    wish.clipToDocument = !arguments.has(u"--unclipped"_s);
    if (!arguments.problem().isEmpty())
        return wrongUsage(arguments.problem(), usage);

    const bool transparent = arguments.has(u"--transparent"_s);
    const QStringList files = arguments.files();
    Console console;
    QList<Job> jobs;
    if (arguments.has(u"--into"_s)) {
        wish.formatKey = arguments.has(u"--format"_s) ? arguments.value(u"--format"_s) : u"jpeg"_s;
        if (!isExportFormatKey(wish.formatKey))
            return wrongUsage(u"--format takes jpeg, webp, webpTransparent, png or pngTransparent"_s, usage);
        if (transparent && !wish.formatKey.endsWith("Transparent"_L1))
            wish.formatKey += "Transparent"_L1;
        if (!isExportFormatKey(wish.formatKey))
            return wrongUsage(u"a JPEG picture cannot be transparent"_s, usage);
        if (files.isEmpty())
            return wrongUsage(u"no input is named"_s, usage);
        jobs = jobsInto(arguments.value(u"--into"_s), exportFormat(wish.formatKey).suffix, files, console);
    } else {
        if (files.size() != 2)
            return wrongUsage(u"one input and one output are needed"_s, usage);
        if (arguments.has(u"--format"_s))
            return wrongUsage(u"--format goes with --into; an output's suffix gives its format"_s, usage);
        wish.formatKey = exportFormatKeyForFile(files[1], transparent);
        if (wish.formatKey.isEmpty()) {
            return wrongUsage(transparent ? u"a transparent output's suffix is webp or png"_s
                                          : u"the output's suffix is jpg, jpeg, webp or png"_s,
                              usage);
        }
        jobs = {{files[0], files[1]}};
    }

    for (qsizetype i = 0; i < jobs.size(); ++i) {
        console.progress(u"%1 of %2: %3"_s.arg(i + 1).arg(jobs.size()).arg(jobs[i].input));
        const Outcome outcome = exportFile(jobs[i], wish);
        console.report(outcome);
    }
    return console.finish();
}

} // namespace zm::cli
