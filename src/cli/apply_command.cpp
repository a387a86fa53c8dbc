#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/effects_rendering.h"
#include "cli/jobs.h"
#include "cli/quiet_libraries.h"
#include "io/document_opening.h"
#include "io/pictures/image_export.h"

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

/// The stack that the words ask for: every --set belongs to the --effect before it.
std::optional<QList<FilterInstance>> effectsFrom(const Arguments &arguments, Error &error)
{
    QList<FilterInstance> effects;
    const auto &options = arguments.inOrder();
    for (qsizetype i = 0; i < options.size();) {
        if (options[i].first != "--effect"_L1)
            return error.fail(u"--set follows the --effect that it belongs to"_s);
        const QString filterId = options[i].second;
        QStringList assignments;
        for (++i; i < options.size() && options[i].first == "--set"_L1; ++i)
            assignments.append(options[i].second);
        const std::optional<FilterInstance> effect = effectFromText(filterId, assignments, error);
        if (!effect)
            return std::nullopt;
        effects.append(*effect);
    }
    if (effects.isEmpty())
        return error.fail(u"no effect is named"_s);
    return effects;
}

/// Null when every layer is hidden.
const Layer *topVisibleLayer(const Document &document)
{
    for (qsizetype i = document.objectCount() - 1; i >= 0; --i) {
        const auto *layer = dynamic_cast<const Layer *>(document.objectAt(i));
        if (layer && layer->isVisible())
            return layer;
    }
    return nullptr;
}

void writePicture(const Document &document, const Job &job, const QString &formatKey, JobErrors &errors)
{
    EffectsRendering rendering;
    const std::optional<SceneSnapshot> snapshot = rendering.snapshot(document, errors.input);
    if (!snapshot)
        return;
    // An effect may have grown a lone picture beyond its frame; what a document leaves outside was placed there.
    const bool clip = hasDocumentSuffix(job.input);
    const QSize size = defaultExportSize(exportRectangle(*snapshot, clip));
    const std::optional<QByteArray> bytes =
        exportImage(*snapshot, {formatKey, kDefaultExportQuality, size, clip}, errors.input);
    if (bytes)
        writeExportedImage(job.output, *bytes, errors.output);
}

/// The format key is empty for an output that is a document.
void applyEffects(const Job &job, const QList<FilterInstance> &effects, const QString &formatKey, JobErrors &errors)
{
    const QuietLibraries quiet;
    Document document;
    if (!openDocument(document, job.input, errors.input))
        return;
    const Layer *layer = topVisibleLayer(document);
    if (!layer) {
        errors.input.fail(u"The document has no visible layer to put an effect on."_s);
        return;
    }
    document.setLayerFilters(layer->id(), layer->filters() + effects);
    if (formatKey.isEmpty())
        ZelmoraDocumentIO::writeDocumentFile(document, job.output, false, errors.output);
    else
        writePicture(document, job, formatKey, errors);
}

} // namespace

ExitStatus runApply(const QStringList &words, const QString &usage)
{
    Error error;
    const Arguments arguments(words, {{u"--effect"_s, true}, {u"--set"_s, true}}, error);
    const std::optional<QList<FilterInstance>> effects = effectsFrom(arguments, error);
    const QStringList &files = arguments.files();
    if (files.size() != 2)
        error.fail(u"one input and one output are needed"_s);
    QString formatKey;
    if (!error.isSet() && !hasDocumentSuffix(files[1])) {
        formatKey = exportFormatKeyForFile(files[1], true);
        if (formatKey.isEmpty())
            formatKey = exportFormatKeyForFile(files[1], false);
        if (formatKey.isEmpty())
            error.fail(u"the output's name must end in .zelmora, .jpg, .jpeg, .webp or .png"_s);
    }
    if (error.isSet())
        return wrongUsage(error.message(), usage);

    Console console;
    runJobs({{files[0], files[1]}}, console,
            [&](const Job &job, JobErrors &errors) { applyEffects(job, *effects, formatKey, errors); });
    return console.finish();
}

} // namespace zm::cli
