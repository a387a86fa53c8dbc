#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/effects_rendering.h"
#include "cli/jobs.h"
#include "cli/quiet_libraries.h"
#include "io/document_opening.h"
#include "io/pictures/image_export.h"
#include "io/pictures/image_import.h"

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

std::optional<QByteArray> exportScene(const SceneSnapshot &snapshot, const ExportWish &wish, Error &error)
{
    const QSize size = wishedSize(exportRectangle(snapshot, wish.clipToDocument), wish.size);
    return exportImage(snapshot, {wish.formatKey, wish.quality, size, wish.clipToDocument}, error);
}

std::optional<QByteArray> exportDocument(const QString &path, const ExportWish &wish, EffectsRendering &rendering,
                                         Error &error)
{
    Document document;
    if (!openDocument(document, path, error))
        return std::nullopt;
    const std::optional<SceneSnapshot> snapshot = rendering.snapshot(document, error);
    return snapshot ? exportScene(*snapshot, wish, error) : std::nullopt;
}

/// A picture is a document of one layer, but need not become one when that changes nothing.
std::optional<QByteArray> exportPicture(const QString &path, const ExportWish &wish, Error &error)
{
    DecodedPicture picture = decodePicture(path);
    if (const auto *raster = std::get_if<RasterImageSource>(&picture.source)) {
        const QSize size = wishedSize(QRectF(QPointF(), raster->image.size()), wish.size);
        const ExportSettings settings{wish.formatKey, wish.quality, size, wish.clipToDocument};
        if (isExportedAsDecoded(raster->image, settings))
            return exportAsDecoded(raster->image, settings, error);
    }
    Document document;
    ImageImportResult imported = imageLayerFrom(std::move(picture), imageLayerName(path));
    if (imported.layer)
        imported.error = replaceWithImage(document, std::move(imported.layer));
    if (imported.error != ImageImportError::None)
        return error.fail(importErrorText(imported.error));
    return exportScene(buildSceneSnapshot(document, {}, nullptr), wish, error);
}

void exportFile(const Job &job, const ExportWish &wish, EffectsRendering &rendering, JobErrors &errors)
{
    const QuietLibraries quiet;
    const std::optional<QByteArray> bytes = hasDocumentSuffix(job.input)
        ? exportDocument(job.input, wish, rendering, errors.input)
        : exportPicture(job.input, wish, errors.input);
    if (bytes)
        writeExportedImage(job.output, *bytes, errors.output);
}

} // namespace

ExitStatus runExport(const QStringList &words, const QString &usage)
{
    Error error;
    const Arguments arguments(words,
                              {{u"--quality"_s, true},
                               {u"--width"_s, true},
                               {u"--height"_s, true},
                               {u"--max-side"_s, true},
                               {u"--transparent"_s},
                               {u"--unclipped"_s},
                               {u"--into"_s, true},
                               {u"--format"_s, true}},
                              error);
    const auto side = [&](const QString &option) {
        return arguments.number(option, 0, kMinimumExportSide, kMaximumExportSide, error);
    };
    ExportWish wish;
    wish.quality = arguments.number(u"--quality"_s, kDefaultExportQuality, 0, 100, error);
    wish.size = {side(u"--width"_s), side(u"--height"_s), side(u"--max-side"_s)};
    wish.clipToDocument = !arguments.has(u"--unclipped"_s);
    if (error.isSet())
        return wrongUsage(error.message(), usage);

    const bool transparent = arguments.has(u"--transparent"_s);
    const QStringList &files = arguments.files();
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
        jobs = jobsInto(arguments.value(u"--into"_s), exportFormat(wish.formatKey).suffix, files, OwnInput::Protected,
                        console);
    } else {
        if (files.size() != 2)
            return wrongUsage(u"one input and one output are needed"_s, usage);
        if (arguments.has(u"--format"_s))
            return wrongUsage(u"--format goes with --into; an output's suffix gives its format"_s, usage);
        wish.formatKey = exportFormatKeyForFile(files[1], transparent);
        if (wish.formatKey.isEmpty()) {
            return wrongUsage(transparent ? u"a transparent output's name must end in .webp or .png"_s
                                          : u"the output's name must end in .jpg, .jpeg, .webp or .png"_s,
                              usage);
        }
        jobs = {{files[0], files[1]}};
    }

    EffectsRendering rendering;
    runJobs(jobs, console, [&](const Job &job, JobErrors &errors) { exportFile(job, wish, rendering, errors); });
    return console.finish();
}

} // namespace zm::cli
