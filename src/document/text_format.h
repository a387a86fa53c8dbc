#pragma once

#include "document/text_state.h"

#include <QBrush>
#include <QSize>
#include <QTextFormat>

class QTextBlock;

namespace zm {

/// Who draws the underlines, overlines and strike-outs of a laid out text.
enum class TextLines {
    /// The document itself, as an editor shows them.
    AsFormats,
    /// The renderer, over the finished text: the document's own lines are off, and each run is marked.
    ByHand,
};

/// How a run is marked whose lines are drawn by hand.
enum DrawnLineProperty {
    DrawnUnderline = QTextFormat::UserProperty + 3,
    DrawnOverline,
    DrawnStrikeOut,
};

QTextBlockFormat blockFormat(const TextParagraph &paragraph);

/// Makes the formats of runs, with fills for a box of fillSize pixels.
class RunFormats
{
public:
    RunFormats(const QSize &fillSize, TextLines lines);
    QTextCharFormat formatOf(const TextRun &run);

private:
    struct Painted
    {
        Fill fill;
        QBrush brush;
        int hash = 0;
    };
    const Painted &paintedWith(const Fill &fill);

    QSize m_fillSize;
    TextLines m_lines;
    QList<Painted> m_recent; // a brush of many stops is dear, and runs tend to share it
};

/// The way back. What a format cannot tell, as a texture's generator, comes along in properties of our own and counts
/// for as long as the format was not given something else.
TextRun runFromFormat(const QTextCharFormat &format, const QString &text);
TextParagraph paragraphFromBlock(const QTextBlock &block);

} // namespace zm
