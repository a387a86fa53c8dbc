#include "cli/text_info.h"

#include "cli/content_info.h"
#include "cli/info_values.h"

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

QString alignmentName(Qt::Alignment alignment)
{
    if (alignment.testFlag(Qt::AlignJustify))
        return u"justify"_s;
    if (alignment.testFlag(Qt::AlignHCenter))
        return u"center"_s;
    return alignment.testFlag(Qt::AlignRight) ? u"right"_s : u"left"_s;
}

QString directionName(Qt::LayoutDirection direction)
{
    if (direction == Qt::LayoutDirectionAuto)
        return u"auto"_s;
    return direction == Qt::RightToLeft ? u"rtl"_s : u"ltr"_s;
}

QString styleName(QFont::Style style)
{
    if (style == QFont::StyleNormal)
        return u"normal"_s;
    return style == QFont::StyleItalic ? u"italic"_s : u"oblique"_s;
}

/// Capitalization and the type of the letter spacing are counted from 1, as files do.
QJsonObject runInfo(const TextRun &run)
{
    const QFont &font = run.font;
    return {{u"text"_s, run.text},
            {u"families"_s, QJsonArray::fromStringList(font.families())},
            {u"styleName"_s, font.styleName()},
            {u"pixelSize"_s, font.pixelSize()},
            {u"pointSize"_s, font.pointSizeF()},
            {u"weight"_s, int(font.weight())},
            {u"stretch"_s, font.stretch()},
            {u"style"_s, styleName(font.style())},
            {u"capitalization"_s, int(font.capitalization()) + 1},
            {u"letterSpacing"_s, QJsonArray{int(font.letterSpacingType()) + 1, font.letterSpacing()}},
            {u"wordSpacing"_s, font.wordSpacing()},
            {u"hinting"_s, int(font.hintingPreference())},
            {u"styleStrategy"_s, int(font.styleStrategy())},
            {u"kerning"_s, font.kerning()},
            {u"fixedPitch"_s, font.fixedPitch()},
            {u"underline"_s, run.underline},
            {u"overline"_s, run.overline},
            {u"strikeOut"_s, run.strikeOut},
            {u"fill"_s, fillInfo(run.fill)},
            {u"outline"_s, strokeInfo({run.outlineColor, run.outlineWidth})},
            {u"underlineColor"_s, colorInfo(run.underlineColor)},
            {u"baselineOffset"_s, run.baselineOffset}};
}

} // namespace

QJsonObject textInfo(const TextLayerState &text)
{
    QJsonArray paragraphs;
    for (const TextParagraph &paragraph : text.blocks) {
        QJsonArray runs;
        for (const TextRun &run : paragraph.runs)
            runs.append(runInfo(run));
        paragraphs.append(QJsonObject{{u"alignment"_s, alignmentName(paragraph.alignment)},
                                      {u"direction"_s, directionName(paragraph.direction)},
                                      {u"lineHeight"_s, paragraph.lineHeight},
                                      {u"runs"_s, runs}});
    }
    return {{u"width"_s, text.textWidth}, {u"paragraphs"_s, paragraphs}};
}

} // namespace zm::cli
