#include "document/text_state.h"

#include "base/sanitize.h"
#include "document/valid_color.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kDefaultPixelSize = 56;
constexpr double kMinimumLineHeight = 0.5;
constexpr double kMaximumLineHeight = 4.0;

TextRun cleanRun(TextRun run)
{
    if (run.font.pixelSize() < 1 && !(run.font.pointSizeF() > 0.0))
        run.font.setPixelSize(kDefaultPixelSize);
    // The lines are flags of the run alone.
    run.font.setUnderline(false);
    run.font.setOverline(false);
    run.font.setStrikeOut(false);
    run.outlineColor = validOrBlack(run.outlineColor);
    run.outlineWidth = std::max(finiteOr(run.outlineWidth, 0.0), 0.0);
    run.underlineColor = validOrBlack(run.underlineColor);
    run.baselineOffset = finiteOr(run.baselineOffset, 0.0);
    return run;
}

QList<TextRun> joinedRuns(const QList<TextRun> &runs)
{
    QList<TextRun> joined;
    std::optional<TextRun> format;
    for (const TextRun &given : runs) {
        TextRun run = cleanRun(given);
        if (run.text.isEmpty()) {
            if (!format)
                format = run;
        } else if (!joined.isEmpty() && hasSameFormat(joined.last(), run)) {
            joined.last().text += run.text;
        } else {
            joined.append(run);
        }
    }
    if (joined.isEmpty())
        joined.append(format.value_or(defaultTextRun()));
    return joined;
}

} // namespace

TextRun defaultTextRun()
{
    TextRun run;
    run.font = QFont(u"Arial"_s);
    run.font.setPixelSize(kDefaultPixelSize);
    return run;
}

bool hasSameFormat(const TextRun &a, const TextRun &b)
{
    return a.font == b.font && a.fill == b.fill && a.outlineColor == b.outlineColor && a.outlineWidth == b.outlineWidth
        && a.underlineColor == b.underlineColor && a.baselineOffset == b.baselineOffset && a.underline == b.underline
        && a.overline == b.overline && a.strikeOut == b.strikeOut;
}

TextLayerState normalizedTextState(const TextLayerState &state)
{
    TextLayerState result = state;
    result.textWidth = std::max(finiteOr(state.textWidth, 0.0), 0.0);
    if (result.blocks.isEmpty())
        result.blocks.append(TextParagraph());
    for (TextParagraph &paragraph : result.blocks) {
        paragraph.lineHeight = std::clamp(finiteOr(paragraph.lineHeight, TextParagraph().lineHeight),
                                          kMinimumLineHeight, kMaximumLineHeight);
        paragraph.runs = joinedRuns(paragraph.runs);
    }
    return result;
}

TextLayerState textStateFromPlainText(const QString &text, const TextRun &format, double textWidth)
{
    QString unified = text;
    unified.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').replace(QChar::ParagraphSeparator, u'\n');
    TextLayerState state{{}, textWidth};
    const QStringList lines = unified.split(u'\n');
    for (const QString &line : lines) {
        TextRun run = format;
        run.text = line;
        TextParagraph paragraph;
        paragraph.runs.append(run);
        state.blocks.append(paragraph);
    }
    return normalizedTextState(state);
}

qint64 memoryBytes(const TextLayerState &state)
{
    // Estimates of what the state, a paragraph and a run cost, rounded.
    constexpr qint64 bytesOfState = 24;
    constexpr qint64 bytesOfParagraph = 40;
    constexpr qint64 bytesOfRun = 248;
    qint64 bytes = bytesOfState + bytesOfParagraph * state.blocks.capacity();
    for (const TextParagraph &paragraph : state.blocks) {
        bytes += bytesOfRun * paragraph.runs.capacity();
        for (const TextRun &run : paragraph.runs)
            bytes += run.text.size() * qint64(sizeof(QChar));
    }
    return bytes;
}

} // namespace zm
