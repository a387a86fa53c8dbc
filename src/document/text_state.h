#pragma once

#include "values/fill.h"

#include <QFont>
#include <QList>
#include <QString>

namespace zm {

/// A piece of text in one format. Lengths are layer units.
struct TextRun
{
    QString text;
    QFont font;
    Fill fill;
    QColor outlineColor = Qt::black;
    /// 0 draws no outline.
    double outlineWidth = 0.0;
    QColor underlineColor = Qt::black;
    double baselineOffset = 0.0;
    bool underline = false;
    bool overline = false;
    bool strikeOut = false;

    friend bool operator==(const TextRun &a, const TextRun &b) = default;
};

struct TextParagraph
{
    QList<TextRun> runs;
    Qt::Alignment alignment = Qt::AlignLeft;
    Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    /// A multiple of the font's own line height, 0.5..4.
    double lineHeight = 1.18;

    friend bool operator==(const TextParagraph &a, const TextParagraph &b) = default;
};

/// The widest text box, in layer units: a little less than 8,388,607, where Qt's layouts end a line in any case.
inline constexpr double kMaximumTextWidth = 8'000'000.0;

/// All that a text layer shows: a plain value that the history and the file carry.
struct TextLayerState
{
    QList<TextParagraph> blocks;
    /// Lines break at this width, in layer units; 0 makes the box follow the text.
    double textWidth = 0.0;

    friend bool operator==(const TextLayerState &a, const TextLayerState &b) = default;
};

/// A run without text: "Arial" at 56 pixels, filled and outlined in black, no outline and no lines.
TextRun defaultTextRun();

/// The state as a layer keeps it: numbers, texts and fonts cleaned, runs of one format joined, and at least one
/// paragraph with at least one run, which may be empty. Fonts have at most 10,000 pixels or 7,500 points, spacings of
/// letters and words at most 10,000, and the width at most 16,777,216.
TextLayerState normalizedTextState(const TextLayerState &state);

/// One paragraph for each line of the text, however its lines end, in the format of the given run, whose own text does
/// not count.
TextLayerState textStateFromPlainText(const QString &text, const TextRun &format, double textWidth = 0.0);

/// The bytes that an undo step holding the state answers for.
qint64 memoryBytes(const TextLayerState &state);

} // namespace zm
