#include "document/text_state.h"

#include "base/sanitize.h"
#include "values/valid_color.h"

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kDefaultPixelSize = 56;
constexpr double kMinimumLineHeight = 0.5;
constexpr double kMaximumLineHeight = 4.0;

// Text layouts count in 32-bit fixed-point numbers; beyond these limits a single glyph may overflow them. Glyphs above
// some 16,000 pixels are not drawn at all.
constexpr int kMaximumPixelSize = 10'000;
constexpr double kMaximumPointSize = kMaximumPixelSize * 72.0 / 96.0;
constexpr double kMaximumSpacing = 10'000.0;

QFont cleanFont(QFont font)
{
    const bool isInPoints = font.pixelSize() < 1;
    if (isInPoints && !(font.pointSizeF() > 0.0))
        font.setPixelSize(kDefaultPixelSize);
    else if (isInPoints && font.pointSizeF() > kMaximumPointSize)
        font.setPointSizeF(kMaximumPointSize);
    else if (font.pixelSize() > kMaximumPixelSize)
        font.setPixelSize(kMaximumPixelSize);
    if (std::abs(font.letterSpacing()) > kMaximumSpacing)
        font.setLetterSpacing(font.letterSpacingType(), std::copysign(kMaximumSpacing, font.letterSpacing()));
    if (std::abs(font.wordSpacing()) > kMaximumSpacing)
        font.setWordSpacing(std::copysign(kMaximumSpacing, font.wordSpacing()));
    // The lines are flags of the run alone.
    font.setUnderline(false);
    font.setOverline(false);
    font.setStrikeOut(false);
    return font;
}

/// What a paragraph can hold. An end of line within it becomes the separator that Shift+Return makes; the characters
/// that QTextDocument keeps for its frames and half a surrogate pair become the replacement character.
QString cleanText(QString text)
{
    text.replace("\r\n"_L1, "\n"_L1);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator)
            text[i] = QChar::LineSeparator;
        else if (c == 0xfdd0 || c == 0xfdd1)
            text[i] = QChar::ReplacementCharacter;
        else if (QChar::isHighSurrogate(c) && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (QChar::isSurrogate(c))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

/// One of the four alignments that a paragraph can have.
Qt::Alignment cleanAlignment(Qt::Alignment alignment)
{
    for (const Qt::AlignmentFlag known : {Qt::AlignJustify, Qt::AlignHCenter, Qt::AlignRight}) {
        if (alignment.testFlag(known))
            return known;
    }
    return Qt::AlignLeft;
}

TextRun cleanRun(TextRun run)
{
    run.font = cleanFont(run.font);
    run.outlineColor = validOrBlack(run.outlineColor);
    run.outlineWidth = std::max(finiteOr(run.outlineWidth, 0.0), 0.0);
    run.underlineColor = validOrBlack(run.underlineColor);
    run.baselineOffset = finiteOr(run.baselineOffset, 0.0);
    return run;
}

bool hasSameFormat(const TextRun &a, TextRun b)
{
    b.text = a.text;
    return a == b;
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
    for (TextRun &run : joined) // joined first: two runs may have held one surrogate pair
        run.text = cleanText(run.text);
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

TextLayerState normalizedTextState(const TextLayerState &state)
{
    TextLayerState result = state;
    result.textWidth = std::clamp(finiteOr(state.textWidth, 0.0), 0.0, kMaximumTextWidth);
    if (result.blocks.isEmpty())
        result.blocks.append(TextParagraph());
    for (TextParagraph &paragraph : result.blocks) {
        paragraph.alignment = cleanAlignment(paragraph.alignment);
        if (paragraph.direction != Qt::LeftToRight && paragraph.direction != Qt::RightToLeft)
            paragraph.direction = Qt::LayoutDirectionAuto;
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
