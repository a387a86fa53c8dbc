#include "base/pixel_limits.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/parameter_text.h"
#include "generators/outline_stroke.h"
#include "generators/shape_generator.h"
#include "generators/shape_generator_registry.h"
#include "generators/shape_preview.h"
#include "io/pictures/image_export.h"
#include "values/editable_path.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QRegularExpression>
#include <QXmlStreamWriter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

// Of the sheet, in pixels.
constexpr int kSheetColumns = 7;
constexpr int kCellWidth = 190;
constexpr int kCellHeight = 206;
constexpr int kSheetMargin = 16;
constexpr int kCaptionHeight = 34;
constexpr double kSheetScale = 1.25; // a unit of the document; the largest shapes have 120
constexpr QColor kSheetColor(0xee, 0xee, 0xec);
constexpr QColor kCaptionColor(0x55, 0x57, 0x53);

/// Pixels for a unit of one shape at its own size.
constexpr double kShapeScale = 4.0;

struct SheetCell
{
    const ShapeGenerator *generator;
    ParameterValues values;
    QString caption;
};

/// The controls of the panel, and what a document may hold besides.
QList<ParameterDefinition> settableParameters(const ShapeGenerator &generator)
{
    return generator.parameters() + generator.hiddenParameters();
}

/// A cell for each shape, and for each form of a shape that comes in several.
QList<SheetCell> sheetCells()
{
    QList<SheetCell> cells;
    for (const auto &generator : ShapeGeneratorRegistry::instance().generators()) {
        const QList<ParameterDefinition> parameters = settableParameters(*generator);
        const ParameterDefinition *definition = findParameter(parameters, u"form"_s);
        const auto *form = definition ? std::get_if<IntegerRangeParameter>(definition) : nullptr;
        if (!form) {
            cells.append({generator.get(), {}, generator->label()});
            continue;
        }
        for (qint64 i = form->minimum; i <= form->maximum; ++i) {
            ParameterValues values;
            values.set(form->id, i);
            cells.append({generator.get(), values, u"%1 %2"_s.arg(generator->label()).arg(i)});
        }
    }
    return cells;
}

QImage sheet()
{
    const QList<SheetCell> cells = sheetCells();
    const int rows = int(cells.size() + kSheetColumns - 1) / kSheetColumns;
    QImage image(kSheetColumns * kCellWidth + 2 * kSheetMargin, rows * kCellHeight + 2 * kSheetMargin,
                 QImage::Format_RGB32);
    image.fill(kSheetColor);
    QPainter painter(&image);
    QFont font;
    font.setPixelSize(14);
    painter.setFont(font);
    painter.setPen(kCaptionColor);
    for (int i = 0; i < cells.size(); ++i) {
        const QRect cell(kSheetMargin + i % kSheetColumns * kCellWidth, kSheetMargin + i / kSheetColumns * kCellHeight,
                         kCellWidth, kCellHeight);
        const QRect field = cell.adjusted(0, 0, 0, -kCaptionHeight);
        const QSizeF size = cells[i].generator->defaultSize();
        const QImage shape =
            shapePreview(*cells[i].generator, cells[i].values, size, coveringPixels(size * kSheetScale));
        QRect place(QPoint(), shape.size());
        place.moveCenter(field.center());
        painter.drawImage(place.topLeft(), shape);
        painter.drawText(QRect(cell.left(), field.bottom() + 1, cell.width(), kCaptionHeight),
                         Qt::AlignHCenter | Qt::AlignTop, cells[i].caption);
    }
    return image;
}

QByteArray pngBytes(const QImage &image)
{
    QBuffer buffer;
    return image.save(&buffer, "png") ? buffer.data() : QByteArray();
}

QByteArray svgBytes(const ShapeGenerator &generator, const ParameterValues &values, const QSizeF &size)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(u"svg"_s);
    xml.writeDefaultNamespace(u"http://www.w3.org/2000/svg"_s);
    xml.writeAttribute(u"width"_s, svgNumber(size.width()));
    xml.writeAttribute(u"height"_s, svgNumber(size.height()));
    xml.writeAttribute(u"viewBox"_s, u"0 0 %1 %2"_s.arg(svgNumber(size.width()), svgNumber(size.height())));
    xml.writeTextElement(u"title"_s, generator.label());
    xml.writeEmptyElement(u"path"_s);
    xml.writeAttribute(u"fill"_s, generator.defaultFillColor().name());
    if (const Stroke stroke = defaultShapeStroke(generator); stroke.width > 0.0) {
        xml.writeAttribute(u"stroke"_s, stroke.color.name());
        xml.writeAttribute(u"stroke-width"_s, svgNumber(stroke.width));
        xml.writeAttribute(u"stroke-linecap"_s, u"square"_s);
        xml.writeAttribute(u"stroke-linejoin"_s, u"miter"_s);
        // SVG compares the whole length of the corner, from the inner to the outer edge, instead.
        xml.writeAttribute(u"stroke-miterlimit"_s, svgNumber(std::hypot(1.0, 2.0 * kOutlineMiterLimit)));
    }
    const QPainterPath outline = shapePreviewOutline(generator, values, size);
    xml.writeAttribute(u"fill-rule"_s, outline.fillRule() == Qt::OddEvenFill ? u"evenodd"_s : u"nonzero"_s);
    // Every contour of a shape is closed; said so, its line has a corner where it began.
    xml.writeAttribute(u"d"_s, svgPathText(outline).replace(" M "_L1, " Z M "_L1) + " Z"_L1);
    xml.writeEndDocument();
    return bytes;
}

/// "WxH"; nothing for a side below 1 or too long for a picture.
std::optional<QSize> sizeFromText(const QString &text)
{
    static const QRegularExpression pattern(u"^([0-9]{1,5})x([0-9]{1,5})$"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool fits = size.boundedTo({kMaximumExportSide, kMaximumExportSide}) == size;
    return fits && !size.isEmpty() ? std::optional(size) : std::nullopt;
}

ExitStatus write(const QString &file, const QByteArray &bytes)
{
    Console console;
    Error error;
    if (bytes.isEmpty())
        error.fail(u"Could not render the image."_s);
    else
        writeExportedImage(file, bytes, error);
    console.report(file, error);
    return console.finish();
}

} // namespace

ExitStatus runShapes(const QStringList &words, const QString &usage)
{
    Error error;
    const Arguments arguments(words, {{u"--generator"_s, true}, {u"--set"_s, true}, {u"--size"_s, true}}, error);
    if (error.isSet())
        return wrongUsage(error.message(), usage);
    if (arguments.files().size() != 1)
        return wrongUsage(u"one output is needed"_s, usage);
    const QString output = arguments.files().first();
    const QString suffix = QFileInfo(output).suffix().toLower();

    if (!arguments.has(u"--generator"_s)) {
        if (arguments.has(u"--set"_s) || arguments.has(u"--size"_s))
            return wrongUsage(u"--set and --size go with --generator"_s, usage);
        if (suffix != "png"_L1)
            return wrongUsage(u"the sheet's suffix is png"_s, usage);
        return write(output, pngBytes(sheet()));
    }

    if (suffix != "png"_L1 && suffix != "svg"_L1)
        return wrongUsage(u"the output's suffix is svg or png"_s, usage);
    const ShapeGeneratorRegistry &registry = ShapeGeneratorRegistry::instance();
    const ShapeGenerator *generator = registry.find(arguments.value(u"--generator"_s));
    if (!generator) {
        QStringList ids;
        for (const auto &known : registry.generators())
            ids.append(known->id());
        return wrongUsage(
            u"unknown generator %1; the generators are %2"_s.arg(arguments.value(u"--generator"_s), ids.join(", "_L1)),
            usage);
    }
    ParameterValues values;
    const QStringList assignments = arguments.values(u"--set"_s);
    for (const QString &assignment : assignments) {
        if (!setParameterFromText(values, settableParameters(*generator), assignment, error))
            return wrongUsage(error.message(), usage);
    }
    QSizeF size = generator->defaultSize();
    QSize pixels = coveringPixels(size * kShapeScale);
    if (arguments.has(u"--size"_s)) {
        const std::optional<QSize> wished = sizeFromText(arguments.value(u"--size"_s));
        if (!wished)
            return wrongUsage(u"--size takes WxH with sides from 1 to %1"_s.arg(kMaximumExportSide), usage);
        size = *wished;
        pixels = *wished;
    }
    return write(output,
                 suffix == "svg"_L1 ? svgBytes(*generator, values, size)
                                    : pngBytes(shapePreview(*generator, values, size, pixels)));
}

} // namespace zm::cli
