#include "document/text_layout.h"

#include "base/pixel_limits.h"
#include "base/sanitize.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

/// Properties of a run's format beyond those of QTextCharFormat.
enum FormatProperty {
    /// The run's fill as it is, since a brush no longer tells the generator or the fractions of a gradient.
    RunFill = QTextFormat::UserProperty + 1,
    DrawnUnderline = QTextFormat::UserProperty + 3,
    DrawnOverline,
    DrawnStrikeOut,
};

QTextBlockFormat blockFormat(const TextParagraph &paragraph)
{
    QTextBlockFormat format;
    format.setAlignment(paragraph.alignment);
    format.setLayoutDirection(paragraph.direction);
    format.setLineHeight(paragraph.lineHeight * 100.0, QTextBlockFormat::ProportionalHeight);
    return format;
}

QTextCharFormat charFormat(const TextRun &run, const QSize &fillSize, TextLines lines)
{
    QTextCharFormat format;
    format.setFont(run.font);
    format.setForeground(run.fill.brushFor(fillSize));
    format.setProperty(RunFill, QVariant::fromValue(run.fill));
    format.setUnderlineColor(run.underlineColor);
    format.setProperty(QTextFormat::TextBaselineOffset, run.baselineOffset);
    format.setTextOutline(run.outlineWidth > 0.0 ? QPen(run.outlineColor, run.outlineWidth) : QPen(Qt::NoPen));
    const bool asFormats = lines == TextLines::AsFormats;
    format.setUnderlineStyle(asFormats && run.underline ? QTextCharFormat::SingleUnderline
                                                        : QTextCharFormat::NoUnderline);
    format.setFontOverline(asFormats && run.overline);
    format.setFontStrikeOut(asFormats && run.strikeOut);
    if (lines == TextLines::ByHand) {
        const auto mark = [&format](FormatProperty property, bool flag) {
            if (flag)
                format.setProperty(property, true);
        };
        mark(DrawnUnderline, run.underline);
        mark(DrawnOverline, run.overline);
        mark(DrawnStrikeOut, run.strikeOut);
    }
    return format;
}

void insertRuns(QTextCursor &cursor, const TextParagraph &paragraph, const QSize &fillSize, TextLines lines)
{
    for (const TextRun &run : paragraph.runs) {
        const QTextCharFormat format = charFormat(run, fillSize, lines);
        if (run.text.isEmpty())
            cursor.setBlockCharFormat(format);
        else
            cursor.insertText(run.text, format);
    }
}

/// One decoration under or through a stretch of a line, in the document's coordinates.
void drawDecoration(QPainter &painter, double startX, double endX, double y, const QBrush &brush, double lineWidth)
{
    if (!std::isfinite(startX) || !std::isfinite(endX) || !std::isfinite(y))
        return;
    const auto [left, right] = std::minmax(startX, endX);
    if (right - left <= 1e-12)
        return;
    painter.setPen(QPen(brush, std::max(lineWidth, 1.0), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawLine(QPointF(left, y), QPointF(right, y));
}

void drawFragmentDecorations(QPainter &painter, const QTextFragment &fragment, const QTextBlock &block,
                             const QPointF &origin)
{
    const QTextCharFormat format = fragment.charFormat();
    const bool hasUnderline = format.boolProperty(DrawnUnderline);
    const bool hasOverline = format.boolProperty(DrawnOverline);
    const bool hasStrikeOut = format.boolProperty(DrawnStrikeOut);
    if (!hasUnderline && !hasOverline && !hasStrikeOut)
        return;
    const QFontMetricsF metrics(format.font());
    const int fragmentStart = fragment.position() - block.position();
    const QTextLayout &layout = *block.layout();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const int start = std::max(fragmentStart, line.textStart());
        const int end = std::min(fragmentStart + fragment.length(), line.textStart() + line.textLength());
        if (start >= end)
            continue;
        const double startX = origin.x() + line.cursorToX(start);
        const double endX = origin.x() + line.cursorToX(end);
        const double baseline = origin.y() + line.y() + line.ascent();
        const auto draw = [&](bool wanted, double position) {
            const double y = baseline + position + metrics.lineWidth() / 2.0;
            if (wanted)
                drawDecoration(painter, startX, endX, y, format.foreground(), metrics.lineWidth());
        };
        // All three add their distance to the baseline: documents are drawn alike everywhere.
        draw(hasUnderline, metrics.underlinePos());
        draw(hasOverline, metrics.overlinePos());
        draw(hasStrikeOut, metrics.strikeOutPos());
    }
}

void drawDecorations(QPainter &painter, const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QPointF origin = document.documentLayout()->blockBoundingRect(block).topLeft();
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
            drawFragmentDecorations(painter, fragment.fragment(), block, origin);
    }
}

TextRun runFrom(const QTextCharFormat &format, const QString &text)
{
    TextRun run;
    run.text = text;
    run.font = format.font();
    const QVariant fill = format.property(RunFill);
    run.fill = fill.canConvert<Fill>() ? fill.value<Fill>() : Fill::fromBrush(format.foreground());
    const QPen outline = format.textOutline();
    if (outline.style() != Qt::NoPen) {
        run.outlineColor = outline.color();
        run.outlineWidth = outline.widthF();
    }
    run.underlineColor = format.underlineColor();
    run.baselineOffset = format.baselineOffset();
    run.underline = format.fontUnderline() || format.underlineStyle() == QTextCharFormat::SingleUnderline;
    run.overline = format.fontOverline();
    run.strikeOut = format.fontStrikeOut();
    return run;
}

TextParagraph paragraphFrom(const QTextBlock &block)
{
    TextParagraph paragraph;
    const QTextBlockFormat format = block.blockFormat();
    paragraph.alignment = format.alignment();
    if (format.hasProperty(QTextFormat::LayoutDirection))
        paragraph.direction = format.layoutDirection();
    if (format.lineHeightType() == QTextBlockFormat::ProportionalHeight)
        paragraph.lineHeight = format.lineHeight() / 100.0;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
        paragraph.runs.append(runFrom(fragment.fragment().charFormat(), fragment.fragment().text()));
    if (paragraph.runs.isEmpty())
        paragraph.runs.append(runFrom(block.charFormat(), {}));
    return paragraph;
}

} // namespace

std::unique_ptr<QTextDocument> textDocument(const TextLayerState &state, const QSize &fillSize, TextLines lines)
{
    auto document = std::make_unique<QTextDocument>();
    document->setDocumentMargin(0.0);
    document->setUndoRedoEnabled(false);
    if (state.textWidth <= 0.0) {
        // Without a width the box follows the longest line; adjustSize() alone would break lines to a pleasing shape.
        QTextOption option = document->defaultTextOption();
        option.setWrapMode(QTextOption::NoWrap);
        document->setDefaultTextOption(option);
    }
    QTextCursor cursor(document.get());
    cursor.beginEditBlock();
    bool isFirst = true;
    for (const TextParagraph &paragraph : state.blocks) {
        const QTextCharFormat format = charFormat(paragraph.runs.first(), fillSize, lines);
        if (isFirst) {
            cursor.setBlockFormat(blockFormat(paragraph));
            cursor.setBlockCharFormat(format);
        } else {
            cursor.insertBlock(blockFormat(paragraph), format);
        }
        isFirst = false;
        insertRuns(cursor, paragraph, fillSize, lines);
    }
    cursor.endEditBlock();
    if (state.textWidth > 0.0)
        document->setTextWidth(state.textWidth);
    else
        document->adjustSize();
    return document;
}

std::unique_ptr<QTextDocument> fittedTextDocument(const TextLayerState &state, TextLines lines)
{
    const QSizeF size = textDocument(state, {}, TextLines::AsFormats)->size();
    return textDocument(state, coveringPixels(size), lines);
}

TextLayerState textStateFromDocument(const QTextDocument &document, double textWidth)
{
    TextLayerState state{{}, textWidth};
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        state.blocks.append(paragraphFrom(block));
    return normalizedTextState(state);
}

RenderedContent renderText(const TextLayerState &state)
{
    const std::unique_ptr<QTextDocument> document = fittedTextDocument(state, TextLines::ByHand);
    const QSizeF size = sizeOfAtLeastOne(document->size());
    const QSize pixelSize = coveringPixels(size);
    QImage image;
    if (isAllocatableRasterSize(pixelSize))
        image = QImage(pixelSize, QImage::Format_RGBA8888);
    if (image.isNull())
        return {image, size};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    document->drawContents(&painter, QRectF(QPointF(), size));
    drawDecorations(painter, *document);
    return {image, size};
}

} // namespace zm
