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

/// Whether words are so long that to break between them would take seconds: Qt looks through the rest of a word for
/// each of its lines, a time that grows with the square of its length.
bool hasEndlessWords(const TextLayerState &state)
{
    constexpr double longestWait = 5e8; // squared characters; half a second
    double wait = 0.0;
    for (const TextParagraph &paragraph : state.blocks) {
        QString text;
        for (const TextRun &run : paragraph.runs)
            text += run.text;
        if (double(text.size()) * double(text.size()) <= longestWait / 100.0)
            continue; // no need to look for its words
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
        qsizetype wordStart = 0;
        for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
            const double length = double(end - wordStart);
            wait += length * length;
            wordStart = end;
        }
    }
    return wait > longestWait;
}

/// Whether a line that is not broken could be longer than layouts can count.
bool mayBeTooWide(const TextLayerState &state)
{
    return std::ranges::any_of(state.blocks, [](const TextParagraph &paragraph) {
        double width = 0.0;
        for (const TextRun &run : paragraph.runs) {
            const QFont &font = run.font;
            const bool isFactor = font.letterSpacingType() == QFont::PercentageSpacing;
            const double spacing = std::abs(font.letterSpacing());
            const double glyph = QFontMetricsF(font).maxWidth() * (isFactor ? std::max(spacing / 100.0, 1.0) : 1.0)
                + (isFactor ? 0.0 : spacing) + std::abs(font.wordSpacing());
            width += glyph * double(run.text.size());
        }
        return width > kMaximumTextWidth;
    });
}

QTextOption::WrapMode wrapMode(const TextLayerState &state)
{
    // Without a width the box follows the longest line; QTextDocument::adjustSize() alone would break lines to make a
    // pleasing shape.
    if (state.textWidth <= 0.0)
        return QTextOption::NoWrap;
    // A document has one mode for all its paragraphs.
    return hasEndlessWords(state) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere;
}

void setWrapMode(QTextDocument &document, QTextOption::WrapMode mode)
{
    QTextOption option = document.defaultTextOption();
    option.setWrapMode(mode);
    document.setDefaultTextOption(option);
}

/// Makes the box as wide as the longest line: what QTextDocument::adjustSize() comes to where lines do not wrap,
/// without the layouts that it tries on the way.
void fitWidth(QTextDocument &document, const TextLayerState &state)
{
    if (mayBeTooWide(state)) {
        setWrapMode(document, QTextOption::WrapAnywhere);
        document.setTextWidth(kMaximumTextWidth);
        if (document.idealWidth() > kMaximumTextWidth / 2.0)
            return; // most likely broken, and too large to be drawn in any case
        setWrapMode(document, QTextOption::NoWrap);
    }
    document.setTextWidth(document.idealWidth());
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

void drawStretchDecorations(QPainter &painter, const QTextCharFormat &format, const QFontMetricsF &metrics,
                            const QTextLine &line, const Stretch &stretch, const QPointF &origin)
{
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
        const QFontMetricsF metrics(format.font());
        const int start = fragment.position() - block.position();
        const int end = start + fragment.length();
        while (first < layout.lineCount() && endOf(first) <= start)
            ++first;
        for (int i = first; i < layout.lineCount() && layout.lineAt(i).textStart() < end; ++i) {
            const QTextLine line = layout.lineAt(i);
            const Stretch stretch{std::max(start, line.textStart()), std::min(end, endOf(i))};
            if (stretch.start < stretch.end)
                drawStretchDecorations(painter, format, metrics, line, stretch, origin);
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
    setWrapMode(*document, wrapMode(state));

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
    if (state.textWidth > 0.0)
        document->setTextWidth(state.textWidth);
    else
        fitWidth(*document, state);
    return document;
}

std::unique_ptr<QTextDocument> fittedTextDocument(const TextLayerState &state, TextLines lines)
{
    std::unique_ptr<QTextDocument> document = textDocument(state, {}, lines);
    const QSize box = coveringPixels(document->size());
    // Colours look the same in every box.
    return isSolid(state) ? std::move(document) : textDocument(state, box, lines);
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
