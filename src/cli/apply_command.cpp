#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/effects_rendering.h"
#include "cli/quiet_libraries.h"
#include "document/document.h"
#include "io/image_export.h"
#include "io/image_import.h"

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

Outcome apply(const QList<FilterInstance> &effects, const QString &input, const QString &output,
              const QString &formatKey)
{
    const QuietLibraries quiet;
    Document document;
    ImageImportResult imported = importImageLayer(input);
    const QUuid layerId = imported.layer ? imported.layer->id() : QUuid();
    if (imported.layer)
        imported.error = replaceWithImage(document, std::move(imported.layer));
    if (imported.error != ImageImportError::None)
        return {input, importErrorText(imported.error)};

    document.setLayerFilters(layerId, effects);
    EffectsRendering rendering;
    const SceneSnapshot snapshot = buildSceneSnapshot(document, {}, rendering.services());
    if (const QString problem = rendering.problem(); !problem.isEmpty())
        return {input, problem};
    constexpr bool clip = false; // an effect may have grown the picture beyond the document
    const QSize size = defaultExportSize(exportRectangle(snapshot, clip));
    const ExportResult result = exportImage(snapshot, {formatKey, kDefaultExportQuality, size, clip});
    if (!result.error.isEmpty())
        return {input, result.error};
    QString error;
    writeExportedImage(output, result.bytes, &error);
    return {output, error};
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
    if (problem.isEmpty()) {
        formatKey = exportFormatKeyForFile(files[1], true);
        if (formatKey.isEmpty())
            formatKey = exportFormatKeyForFile(files[1], false);
        if (formatKey.isEmpty())
            problem = u"the output's suffix is jpg, jpeg, webp or png"_s;
    }
    if (!problem.isEmpty())
        return wrongUsage(problem, usage);

    Console console;
    console.report(apply(effects, files[0], files[1], formatKey));
    return console.finish();
}

} // namespace zm::cli
