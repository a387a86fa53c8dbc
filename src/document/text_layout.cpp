#include "document/text_layout.h"

#include "base/pixel_limits.h"
#include "base/sanitize.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

/// Whether a line may break nowhere within thousands of characters.
bool hasEndlessWord(const TextParagraph &paragraph)
{
    constexpr qsizetype longestWord = 5'000;
    qsizetype length = 0;
    for (const TextRun &run : paragraph.runs)
        length += run.text.size();
    if (length <= longestWord)
        return false;
    QString text;
    text.reserve(length);
    for (const TextRun &run : paragraph.runs)
        text += run.text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    qsizetype wordStart = 0;
    for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        if (end - wordStart > longestWord)
            return true;
        wordStart = end;
    }
    return false;
}

QTextOption::WrapMode wrapMode(const TextLayerState &state)
{
    // Without a width the box follows the longest line; QTextDocument::adjustSize() alone would break lines to make a
    // pleasing shape.
    if (state.textWidth <= 0.0)
        return QTextOption::NoWrap;
    // The mode that prefers to break between words looks through the rest of the word for each line, so that an endless
    // one takes a time that grows with the square of its length.
    if (std::ranges::any_of(state.blocks, hasEndlessWord))
        return QTextOption::WrapAnywhere;
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

void insertRuns(QTextCursor &cursor, const TextParagraph &paragraph, RunFormats &formats)
{
    for (const TextRun &run : paragraph.runs) {
        if (!run.text.isEmpty())
            cursor.insertText(run.text, formats.formatOf(run));
    }
}

bool isSolid(const TextLayerState &state)
{
    return std::ranges::all_of(state.blocks, [](const TextParagraph &paragraph) {
        return std::ranges::all_of(paragraph.runs, [](const TextRun &run) { return run.fill.isSolid(); });
    });
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

/// Where a fragment and a line of its block meet, in characters of the block.
struct Stretch
{
    int start = 0;
    int end = 0;
};

void drawStretchDecorations(QPainter &painter, const QTextCharFormat &format, const QTextLine &line,
                            const Stretch &stretch, const QPointF &origin)
{
    const QFontMetricsF metrics(format.font());
    const double startX = origin.x() + line.cursorToX(stretch.start);
    const double endX = origin.x() + line.cursorToX(stretch.end);
    const double baseline = origin.y() + line.y() + line.ascent();
    const auto draw = [&](DrawnLineProperty property, double position) {
        const double y = baseline + position + metrics.lineWidth() / 2.0;
        if (format.boolProperty(property))
            drawDecoration(painter, startX, endX, y, format.foreground(), metrics.lineWidth());
    };
    // All three add their distance to the baseline: documents are drawn alike everywhere.
    draw(DrawnUnderline, metrics.underlinePos());
    draw(DrawnOverline, metrics.overlinePos());
    draw(DrawnStrikeOut, metrics.strikeOutPos());
}

void drawBlockDecorations(QPainter &painter, const QTextBlock &block, const QPointF &origin)
{
    const QTextLayout &layout = *block.layout();
    const auto endOf = [&layout](int i) { return layout.lineAt(i).textStart() + layout.lineAt(i).textLength(); };
    int first = 0; // fragments follow each other as the lines do: the first line that reaches into this one
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextCharFormat format = fragment.charFormat();
        if (!format.hasProperty(DrawnUnderline) && !format.hasProperty(DrawnOverline)
            && !format.hasProperty(DrawnStrikeOut))
            continue;
        const int start = fragment.position() - block.position();
        const int end = start + fragment.length();
        while (first < layout.lineCount() && endOf(first) <= start)
            ++first;
        for (int i = first; i < layout.lineCount() && layout.lineAt(i).textStart() < end; ++i) {
            const QTextLine line = layout.lineAt(i);
            const Stretch stretch{std::max(start, line.textStart()), std::min(end, endOf(i))};
            if (stretch.start < stretch.end)
                drawStretchDecorations(painter, format, line, stretch, origin);
        }
    }
}

void drawDecorations(QPainter &painter, const QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        drawBlockDecorations(painter, block, document.documentLayout()->blockBoundingRect(block).topLeft());
}

} // namespace

std::unique_ptr<QTextDocument> textDocument(const TextLayerState &state, const QSize &fillSize, TextLines lines)
{
    auto document = std::make_unique<QTextDocument>();
    document->setDocumentMargin(0.0);
    document->setUndoRedoEnabled(false);
    QTextOption option = document->defaultTextOption();
    option.setWrapMode(wrapMode(state));
    document->setDefaultTextOption(option);

    RunFormats formats(fillSize, lines);
    QTextCursor cursor(document.get());
    cursor.beginEditBlock();
    bool isFirst = true;
    for (const TextParagraph &paragraph : state.blocks) {
        // An empty run gives its height to the block by the block's own format.
        const QTextCharFormat format = formats.formatOf(paragraph.runs.first());
        if (isFirst) {
            cursor.setBlockFormat(blockFormat(paragraph));
            cursor.setBlockCharFormat(format);
        } else {
            cursor.insertBlock(blockFormat(paragraph), format);
        }
        isFirst = false;
        insertRuns(cursor, paragraph, formats);
    }
    cursor.endEditBlock();
    // What adjustSize() comes to where lines do not wrap, without the layouts it tries on the way.
    document->setTextWidth(state.textWidth > 0.0 ? state.textWidth : document->idealWidth());
    return document;
}

std::unique_ptr<QTextDocument> fittedTextDocument(const TextLayerState &state, TextLines lines)
{
    std::unique_ptr<QTextDocument> document = textDocument(state, {}, lines);
    const QSize box = coveringPixels(document->size());
    // Colours look the same in every box, and nothing is painted into a box that is too large.
    return isSolid(state) || !isAllocatableRasterSize(box) ? std::move(document) : textDocument(state, box, lines);
}

TextLayerState textStateFromDocument(const QTextDocument &document, double textWidth)
{
    TextLayerState state{{}, textWidth};
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        state.blocks.append(paragraphFromBlock(block));
    return normalizedTextState(state);
}

RenderedContent renderText(const TextLayerState &state)
{
    const std::unique_ptr<QTextDocument> document = fittedTextDocument(state, TextLines::ByHand);
    const QSizeF size = sizeOfAtLeastOne(document->size());
    QImage image = transparentContentImage(size);
    if (image.isNull())
        return {image, size};
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    document->drawContents(&painter, QRectF(QPointF(), size));
    drawDecorations(painter, *document);
    return {image, size};
}

} // namespace zm
