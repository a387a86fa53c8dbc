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
QList<FilterInstance> effectsFrom(const Arguments &arguments, QString *problem)
{
    QList<FilterInstance> effects;
    const auto &options = arguments.inOrder();
    for (qsizetype i = 0; i < options.size();) {
        if (options[i].first != "--effect"_L1) {
            *problem = u"--set follows the --effect that it belongs to"_s;
            return {};
        }
        const QString filterId = options[i].second;
        QStringList assignments;
        for (++i; i < options.size() && options[i].first == "--set"_L1; ++i)
            assignments.append(options[i].second);
        const std::optional<FilterInstance> effect = effectFromText(filterId, assignments, problem);
        if (!effect)
            return {};
        effects.append(*effect);
    }
    if (effects.isEmpty())
        *problem = u"no effect is named"_s;
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

Outcome writePicture(const Document &document, const Job &job, const QString &formatKey)
{
    EffectsRendering rendering;
    QString error;
    const std::optional<SceneSnapshot> snapshot = rendering.snapshot(document, &error);
    if (!snapshot)
        return {job.input, error};
    // An effect may have grown a lone picture beyond its frame; what a document leaves outside was placed there.
    const bool clip = hasDocumentSuffix(job.input);
    const QSize size = defaultExportSize(exportRectangle(*snapshot, clip));
    const ExportResult result = exportImage(*snapshot, {formatKey, kDefaultExportQuality, size, clip});
    if (!result.error.isEmpty())
        return {job.input, result.error};
    writeExportedImage(job.output, result.bytes, &error);
    return {job.output, error};
}

/// The format key is empty for an output that is a document.
Outcome applyEffects(const Job &job, const QList<FilterInstance> &effects, const QString &formatKey)
{
    const QuietLibraries quiet;
    Document document;
    QString error = openDocument(document, job.input);
    if (!error.isEmpty())
        return {job.input, error};
    const Layer *layer = topVisibleLayer(document);
    if (!layer)
        return {job.input, u"The document has no visible layer to put an effect on."_s};
    document.setLayerFilters(layer->id(), layer->filters() + effects);
    if (!formatKey.isEmpty())
        return writePicture(document, job, formatKey);
    ZelmoraDocumentIO::writeDocumentFile(document, job.output, false, &error);
    return {job.output, error};
}

} // namespace

ExitStatus runApply(const QStringList &words, const QString &usage)
{
    const Arguments arguments(words, {{u"--effect"_s, true}, {u"--set"_s, true}});
    QString problem = arguments.problem();
    const QList<FilterInstance> effects =
        problem.isEmpty() ? effectsFrom(arguments, &problem) : QList<FilterInstance>();
    const QStringList files = arguments.files();
    if (problem.isEmpty() && files.size() != 2)
        problem = u"one input and one output are needed"_s;
    QString formatKey;
    if (problem.isEmpty() && !hasDocumentSuffix(files[1])) {
        formatKey = exportFormatKeyForFile(files[1], true);
        if (formatKey.isEmpty())
            formatKey = exportFormatKeyForFile(files[1], false);
        if (formatKey.isEmpty())
            problem = u"the output's name must end in .zelmora, .jpg, .jpeg, .webp or .png"_s;
    }
    if (!problem.isEmpty())
        return wrongUsage(problem, usage);

    Console console;
    runJobs({{files[0], files[1]}}, console, [&](const Job &job) { return applyEffects(job, effects, formatKey); });
    return console.finish();
}

} // namespace zm::cli
