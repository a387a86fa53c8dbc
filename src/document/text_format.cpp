#include "document/text_format.h"

#include <QFont>
#include <QGradient>
#include <QPen>
#include <QTextBlock>

#include <algorithm>

namespace zm {

namespace {

/// What travels with a format beyond the properties of Qt.
enum CarriedProperty {
    /// The fill of a run that is no plain colour, and the brush that it gave.
    CarriedFill = QTextFormat::UserProperty + 1,
    CarriedBrush,
    BrushHash = QTextFormat::UserProperty + 6,
    /// The run's font: Qt's formats take oblique for italic, and do not tell an asked for pitch from one left open.
    CarriedFont,
    /// The paragraph's factor, since its percentage is rounded.
    CarriedLineHeight,
};

/// Documents look formats up by a hash that knows a brush's colour and style alone: all gradients would share one.
int hashOf(const QBrush &brush)
{
    size_t hash = 0;
    if (const QGradient *gradient = brush.gradient()) {
        const QGradientStops stops = gradient->stops();
        for (const QGradientStop &stop : stops)
            hash = qHashMulti(hash, stop.first, quint64(stop.second.rgba64()));
    }
    return int(hash);
}

QPen outlinePen(const TextRun &run)
{
    return {run.outlineColor, run.outlineWidth, run.outlineWidth > 0.0 ? Qt::SolidLine : Qt::NoPen};
}

Fill fillFromFormat(const QTextCharFormat &format)
{
    const QVariant carried = format.property(CarriedFill);
    if (carried.canConvert<Fill>() && format.foreground() == format.brushProperty(CarriedBrush))
        return carried.value<Fill>();
    return Fill::fromBrush(format.foreground());
}

/// Whether the format still has each property that the font gave it. Its lines are the run's own.
bool hasPropertiesOf(const QTextCharFormat &format, const QFont &font)
{
    QTextCharFormat asMade;
    asMade.setFont(font);
    for (const int line : {QTextFormat::FontUnderline, QTextFormat::TextUnderlineStyle, QTextFormat::FontOverline,
                           QTextFormat::FontStrikeOut})
        asMade.clearProperty(line);
    const QMap<int, QVariant> properties = asMade.properties();
    return std::all_of(properties.keyValueBegin(), properties.keyValueEnd(),
                       [&format](const auto &entry) { return format.property(entry.first) == entry.second; });
}

QFont fontFromFormat(const QTextCharFormat &format)
{
    QFont font = format.font();
    const QVariant property = format.property(CarriedFont);
    if (!property.canConvert<QFont>())
        return font;
    const auto carried = property.value<QFont>();
    if (hasPropertiesOf(format, carried))
        return carried;
    if (font.italic() && carried.style() == QFont::StyleOblique)
        font.setStyle(QFont::StyleOblique);
    return font;
}

double lineHeightFromFormat(const QTextBlockFormat &format)
{
    if (format.lineHeightType() != QTextBlockFormat::ProportionalHeight)
        return TextParagraph().lineHeight;
    const double carried = format.doubleProperty(CarriedLineHeight);
    return format.lineHeight() == carried * 100.0 ? carried : format.lineHeight() / 100.0;
}

} // namespace

QTextBlockFormat blockFormat(const TextParagraph &paragraph)
{
    QTextBlockFormat format;
    format.setAlignment(paragraph.alignment);
    format.setLayoutDirection(paragraph.direction);
    format.setLineHeight(paragraph.lineHeight * 100.0, QTextBlockFormat::ProportionalHeight);
    format.setProperty(CarriedLineHeight, paragraph.lineHeight);
    return format;
}

RunFormats::RunFormats(const QSize &fillSize, TextLines lines)
    : m_fillSize(fillSize)
    , m_lines(lines)
{
}

const RunFormats::Painted &RunFormats::paintedWith(const Fill &fill)
{
    constexpr qsizetype remembered = 8;
    for (const Painted &painted : std::as_const(m_recent)) {
        if (painted.fill == fill)
            return painted;
    }
    if (m_recent.size() == remembered)
        m_recent.removeFirst();
    const QBrush brush = fill.brushFor(m_fillSize);
    m_recent.append({fill, brush, hashOf(brush)});
    return m_recent.constLast();
}

QTextCharFormat RunFormats::formatOf(const TextRun &run)
{
    QTextCharFormat format;
    format.setFont(run.font);
    format.setProperty(CarriedFont, run.font);
    if (run.fill.isSolid()) {
        format.setForeground(run.fill.brushFor(m_fillSize));
    } else {
        const Painted &painted = paintedWith(run.fill);
        format.setForeground(painted.brush);
        format.setProperty(CarriedBrush, painted.brush);
        format.setProperty(CarriedFill, QVariant::fromValue(run.fill));
        format.setProperty(BrushHash, painted.hash);
    }
    format.setUnderlineColor(run.underlineColor);
    format.setProperty(QTextFormat::TextBaselineOffset, run.baselineOffset);
    format.setTextOutline(outlinePen(run));
    const bool asFormats = m_lines == TextLines::AsFormats;
    format.setUnderlineStyle(asFormats && run.underline ? QTextCharFormat::SingleUnderline
                                                        : QTextCharFormat::NoUnderline);
    format.setFontOverline(asFormats && run.overline);
    format.setFontStrikeOut(asFormats && run.strikeOut);
    if (m_lines == TextLines::ByHand) {
        const auto mark = [&format](DrawnLineProperty property, bool flag) {
            if (flag)
                format.setProperty(property, true);
        };
        mark(DrawnUnderline, run.underline);
        mark(DrawnOverline, run.overline);
        mark(DrawnStrikeOut, run.strikeOut);
    }
    return format;
}

TextRun runFromFormat(const QTextCharFormat &format, const QString &text)
{
    TextRun run;
    run.text = text;
    run.font = fontFromFormat(format);
    run.fill = fillFromFormat(format);
    if (format.hasProperty(QTextFormat::TextOutline)) {
        const QPen outline = format.textOutline();
        run.outlineColor = outline.color();
        run.outlineWidth = outline.style() == Qt::NoPen ? 0.0 : outline.widthF();
    }
    run.underlineColor = format.underlineColor();
    run.baselineOffset = format.baselineOffset();
    run.underline = format.fontUnderline();
    run.overline = format.fontOverline();
    run.strikeOut = format.fontStrikeOut();
    return run;
}

TextParagraph paragraphFromBlock(const QTextBlock &block)
{
    TextParagraph paragraph;
    const QTextBlockFormat format = block.blockFormat();
    paragraph.alignment = format.alignment();
    if (format.hasProperty(QTextFormat::LayoutDirection))
        paragraph.direction = format.layoutDirection();
    paragraph.lineHeight = lineHeightFromFormat(format);
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
        paragraph.runs.append(runFromFormat(fragment.fragment().charFormat(), fragment.fragment().text()));
    if (paragraph.runs.isEmpty())
        paragraph.runs.append(runFromFormat(block.charFormat(), {}));
    return paragraph;
}

} // namespace zm
