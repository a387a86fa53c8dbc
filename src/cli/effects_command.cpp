#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/effect_description.h"
#include "cli/effects_rendering.h"
#include "cli/jobs.h"
#include "cli/quiet_libraries.h"
#include "filters/description/filter_catalog.h"
#include "filters/filter_registry.h"
#include "filters/filter_stack.h"
#include "io/pictures/image_export.h"
#include "io/pictures/image_import.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

// Of the sheet, in pixels.
constexpr int kSheetColumns = 6;
constexpr int kCellWidth = 320;
constexpr int kPictureHeight = 240;
constexpr int kCaptionHeight = 30;
constexpr int kCellMargin = 8;
constexpr QColor kSheetColor(0x2b, 0x2b, 0x2d);
constexpr QColor kCaptionColor(0xe6, 0xe6, 0xe6);

/// The longer side of the picture of one effect, in pixels; the effect sees the whole picture's logical size.
constexpr int kEffectPictureSide = 1600;
constexpr int kEffectPictureQuality = 92;

struct OfferedEffect
{
    const Filter *filter;
    QString group;
};

/// In the picker's order; those that it does not offer come last.
QList<OfferedEffect> allEffects()
{
    QList<OfferedEffect> effects;
    const auto isListed = [&effects](const Filter *filter) {
        return std::ranges::find(effects, filter, &OfferedEffect::filter) != effects.end();
    };
    const auto addGroups = [&](const QList<FilterCategoryGroup> &groups) {
        for (const FilterCategoryGroup &group : groups) {
            const QList<const Filter *> filters = FilterCatalog::offeredFilters(group);
            for (const Filter *filter : filters) {
                if (!isListed(filter))
                    effects.append({filter, FilterCatalog::groupTitle(group)});
            }
        }
    };
    addGroups(FilterCatalog::imageGroups());
    addGroups(FilterCatalog::textGroups());
    for (const auto &filter : FilterRegistry::instance().filters()) {
        if (!isListed(filter.get()))
            effects.append(OfferedEffect{filter.get(), {}});
    }
    return effects;
}

QString readableList(const QList<OfferedEffect> &effects)
{
    QStringList lines;
    QString group;
    for (const OfferedEffect &effect : effects) {
        if (lines.isEmpty() || effect.group != group)
            lines.append(effect.group.isEmpty() ? u"Not offered"_s : effect.group);
        group = effect.group;
        lines.append(u"  %1  %2"_s.arg(effect.filter->id(), -26).arg(effect.filter->label()));
    }
    return lines.join(u'\n');
}

/// The picture centred in a cell of the sheet, with its caption.
void drawCell(QPainter &painter, const QPoint &corner, const QImage &picture, const QString &caption)
{
    const QRect field =
        QRect(corner, QSize(kCellWidth, kPictureHeight)).adjusted(kCellMargin, kCellMargin, -kCellMargin, -kCellMargin);
    const QImage scaled = picture.scaled(field.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QRect place(QPoint(), scaled.size());
    place.moveCenter(field.center());
    painter.drawImage(place.topLeft(), scaled);
    painter.drawText(QRect(corner.x(), corner.y() + kPictureHeight, kCellWidth, kCaptionHeight), Qt::AlignCenter,
                     caption);
}

QByteArray encoded(const QImage &image, const char *format)
{
    QBuffer buffer;
    return image.save(&buffer, format, kEffectPictureQuality) ? buffer.data() : QByteArray();
}

bool write(const QString &path, const QByteArray &bytes, Error &error)
{
    return bytes.isEmpty() ? error.fail(u"Could not encode the image."_s) : writeExportedImage(path, bytes, error);
}

/// The layer's pixels, no larger than the picture of one effect.
QImage reducedPicture(const QImage &image)
{
    const QSize bound = image.size().boundedTo({kEffectPictureSide, kEffectPictureSide});
    return bound == image.size()
        ? image
        : image.scaled(bound, Qt::KeepAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGBA8888);
}

/// Each effect's picture as DIR/<id>.webp, with its transparency, and all of them on DIR/sheet.png. Ends with the first
/// failure, which the console tells.
void renderSheet(const QString &folder, const QString &input, Console &console)
{
    std::optional<QuietLibraries> quiet(std::in_place);
    const auto fail = [&](const QString &subject, const Error &error) {
        quiet.reset();
        console.report(subject, error);
    };
    const auto writeInFolder = [&](const QString &name, const QByteArray &bytes) {
        const QString path = QDir(folder).filePath(name);
        Error error;
        if (!write(path, bytes, error))
            fail(path, error);
        return !error.isSet();
    };
    Error error;
    const ImageImportResult imported = importImageLayer(input);
    if (!imported.layer) {
        error.fail(importErrorText(imported.error));
        return fail(input, error);
    }
    if (!makeFolder(folder, error))
        return fail(folder, error);
    const RenderedContent content = imported.layer->renderedContent(nullptr);
    const QImage picture = reducedPicture(content.image);

    const QList<OfferedEffect> effects = allEffects();
    const int rows = int(effects.size() + kSheetColumns) / kSheetColumns; // with the original
    QImage sheet(kSheetColumns * kCellWidth, rows * (kPictureHeight + kCaptionHeight), QImage::Format_RGB32);
    sheet.fill(kSheetColor);
    QPainter painter(&sheet);
    painter.setPen(kCaptionColor);
    QFont font;
    font.setPixelSize(15);
    painter.setFont(font);
    const auto corner = [](qsizetype cell) {
        return QPoint(int(cell) % kSheetColumns * kCellWidth,
                      int(cell) / kSheetColumns * (kPictureHeight + kCaptionHeight));
    };
    drawCell(painter, corner(0), picture, u"Original"_s);

    EffectsRendering rendering;
    for (qsizetype i = 0; i < effects.size(); ++i) {
        const Filter &filter = *effects[i].filter;
        quiet.reset(); // for the progress
        console.progress(u"%1 of %2: %3"_s.arg(i + 1).arg(effects.size()).arg(filter.id()));
        quiet.emplace();
        const FilterInstance instance{{}, filter.id(), {}, true, false};
        const FilterRenderResult result =
            evaluateFilterStack(picture, content.size, {instance}, rendering.services(), std::nullopt, 0);
        if (!rendering.hasRenderedAll(error))
            return fail(filter.id(), error);
        drawCell(painter, corner(i + 1), result.image, filter.label());
        if (!writeInFolder(filter.id() + u".webp"_s, encoded(result.image, "webp")))
            return;
    }
    painter.end();
    writeInFolder(u"sheet.png"_s, encoded(sheet, "png"));
}

} // namespace

ExitStatus runEffects(const QStringList &words, const QString &usage)
{
    Error error;
    const Arguments arguments(words, {{u"--json"_s}, {u"--sheet"_s, true}}, error);
    if (error.isSet())
        return wrongUsage(error.message(), usage);
    if (arguments.has(u"--sheet"_s)) {
        if (arguments.has(u"--json"_s) || arguments.files().size() != 1)
            return wrongUsage(u"--sheet takes a folder and one input"_s, usage);
        Console console;
        renderSheet(arguments.value(u"--sheet"_s), arguments.files().first(), console);
        return console.finish();
    }
    if (!arguments.files().isEmpty())
        return wrongUsage(u"an input goes with --sheet"_s, usage);

    const QList<OfferedEffect> effects = allEffects();
    Console console;
    if (arguments.has(u"--json"_s)) {
        QJsonArray list;
        for (const OfferedEffect &effect : effects)
            list.append(effectDescription(*effect.filter, effect.group));
        console.print(QString::fromUtf8(QJsonDocument(list).toJson()));
    } else {
        console.print(readableList(effects));
    }
    return console.finish();
}

} // namespace zm::cli
