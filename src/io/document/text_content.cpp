#include "io/document/file_message.h"
#include "io/document/layer_content.h"
#include "io/document/text_run_records.h"

#include <array>
#include <cmath>

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 32;
constexpr qsizetype kParagraphHeaderSize = 32;

/// By their codes.
constexpr std::array kDirections{Qt::LayoutDirectionAuto, Qt::LeftToRight, Qt::RightToLeft};

bool isTextWidth(double width)
{
    return std::isfinite(width) && width >= 0.0;
}

bool isLineHeight(double height)
{
    return std::isfinite(height) && height > 0.0;
}

struct AlignmentCode
{
    Qt::AlignmentFlag flag;
    quint32 code;
};

/// In the order in which the flags of a paragraph are looked at.
constexpr std::array kAlignments{AlignmentCode{Qt::AlignJustify, 4}, AlignmentCode{Qt::AlignHCenter, 2},
                                 AlignmentCode{Qt::AlignRight, 3}, AlignmentCode{Qt::AlignLeft, 1}};

bool appendParagraph(QByteArray &record, const TextParagraph &paragraph, Error &error)
{
    if (paragraph.runs.size() > kMaximumFileCount || !isLineHeight(paragraph.lineHeight))
        return error.fail(FileMessage::tr("A text paragraph is invalid."));
    const auto alignment = std::ranges::find_if(
        kAlignments, [&](const AlignmentCode &known) { return paragraph.alignment.testFlag(known.flag); });
    if (alignment == kAlignments.end())
        return error.fail(FileMessage::tr("A text paragraph uses an unsupported alignment."));
    const auto direction = std::ranges::find(kDirections, paragraph.direction);
    if (direction == kDirections.end())
        return error.fail(FileMessage::tr("A text paragraph uses an unsupported direction."));
    const qsizetype start = record.size();
    record.resize(start + kParagraphHeaderSize, '\0');
    setU32(record, start, alignment->code);
    setU32(record, start + 4, quint32(direction - kDirections.begin()));
    setU32(record, start + 8, quint32(paragraph.runs.size()));
    setF64(record, start + 16, paragraph.lineHeight);
    for (const TextRun &run : paragraph.runs) {
        const std::optional<QByteArray> bytes = encodeTextRun(run, error);
        if (!bytes)
            return false;
        record.append(*bytes);
    }
    return setSize(record, start + 12, record.size() - start - kParagraphHeaderSize, error);
}

std::optional<TextParagraph> takeParagraph(ByteReader &reader, Error &error)
{
    const auto invalid = [&error] { return error.fail(FileMessage::tr("A text paragraph record is invalid.")); };
    const std::optional<QByteArrayView> header = reader.take(kParagraphHeaderSize);
    if (!header || u32At(*header, 8) > kMaximumFileCount || !isLineHeight(f64At(*header, 16)))
        return invalid();
    const std::optional<QByteArrayView> body = reader.take(u32At(*header, 12));
    if (!body)
        return invalid();
    const auto alignment = std::ranges::find(kAlignments, u32At(*header, 0), &AlignmentCode::code);
    if (alignment == kAlignments.end())
        return error.fail(FileMessage::tr("A text paragraph uses an unknown alignment."));
    if (u32At(*header, 4) >= kDirections.size())
        return error.fail(FileMessage::tr("A text paragraph uses an unknown direction."));
    TextParagraph paragraph{{}, alignment->flag, kDirections[u32At(*header, 4)], f64At(*header, 16)};
    ByteReader runs(*body);
    for (quint32 count = u32At(*header, 8); count > 0; --count) {
        std::optional<TextRun> run = decodeTextRun(runs, error);
        if (!run)
            return Failure();
        paragraph.runs.append(std::move(*run));
    }
    if (!runs.atEnd())
        return error.fail(FileMessage::tr("A text paragraph has trailing data."));
    return paragraph;
}

} // namespace

std::optional<QByteArray> encodeTextContent(const TextLayer &layer, Error &error)
{
    const TextLayerState &state = layer.state();
    if (state.blocks.size() > kMaximumFileCount || !isTextWidth(state.textWidth))
        return error.fail(FileMessage::tr("A text layer has invalid dimensions or too many paragraphs."));
    QByteArray record(kHeaderSize, '\0');
    setU32(record, 0, 1);
    setU32(record, 4, quint32(state.blocks.size()));
    setF64(record, 8, state.textWidth);
    for (const TextParagraph &paragraph : state.blocks) {
        if (!appendParagraph(record, paragraph, error))
            return Failure();
    }
    if (!setSize(record, 16, record.size() - kHeaderSize, error))
        return Failure();
    return record;
}

std::optional<TextLayerState> decodeTextContent(QByteArrayView record, Error &error)
{
    ByteReader reader(record);
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    if (!header || u32At(*header, 0) != 1 || u32At(*header, 4) > kMaximumFileCount || !isTextWidth(f64At(*header, 8))
        || u32At(*header, 16) != quint64(reader.remaining()))
        return error.fail(FileMessage::tr("A text layer payload is invalid."));
    TextLayerState state{{}, f64At(*header, 8)};
    for (quint32 count = u32At(*header, 4); count > 0; --count) {
        std::optional<TextParagraph> paragraph = takeParagraph(reader, error);
        if (!paragraph)
            return Failure();
        state.blocks.append(std::move(*paragraph));
    }
    if (!reader.atEnd())
        return error.fail(FileMessage::tr("A text layer has trailing data."));
    return state;
}

} // namespace zm
