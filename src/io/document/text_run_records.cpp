#include "io/document/text_run_records.h"

#include "io/document/file_message.h"
#include "io/document/fill_records.h"

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 128;
constexpr qsizetype kLengthSize = 4;
constexpr quint32 kMaximumWeight = 1'000;
constexpr quint32 kMaximumStretch = 4'000;
/// The bits of QFont::StyleStrategy.
constexpr quint32 kStyleStrategies = 0xF9FF;
/// A little less than the fixed-point numbers hold that QFont keeps spacings in.
constexpr double kMaximumSpacing = 33'000'000.0;

enum RunFlag : quint32 { Underline = 1, Overline = 2, StrikeOut = 4, Kerning = 8, FixedPitch = 16 };

/// The numbers from 56 to 95 in order: spacing of letters and of words, points, baseline, outline width.
bool areRunNumbers(const double (&numbers)[5])
{
    return std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); }) && numbers[4] >= 0.0;
}

quint32 flagsOf(const TextRun &run)
{
    quint32 flags = 0;
    const auto set = [&flags](RunFlag flag, bool on) { flags |= on ? quint32(flag) : 0; };
    set(Underline, run.underline);
    set(Overline, run.overline);
    set(StrikeOut, run.strikeOut);
    set(Kerning, run.font.kerning());
    set(FixedPitch, run.font.fixedPitch());
    return flags;
}

std::optional<QByteArray> familyBlock(const QStringList &families, Error &error)
{
    QByteArray block;
    for (const QString &family : families) {
        const QByteArray name = family.toUtf8();
        if (name.size() > kMaximumFileTextSize)
            return error.fail(FileMessage::tr("A text run is too large."));
        QByteArray length(kLengthSize, '\0');
        setU32(length, 0, quint32(name.size()));
        block.append(length).append(name);
    }
    return block;
}

std::optional<QStringList> decodeFamilies(QByteArrayView block, quint32 count, Error &error)
{
    QStringList families;
    ByteReader reader(block);
    for (; count > 0; --count) {
        const std::optional<QByteArrayView> length = reader.take(kLengthSize);
        const std::optional<QByteArrayView> name =
            length && u32At(*length, 0) <= kMaximumFileTextSize ? reader.take(u32At(*length, 0)) : std::nullopt;
        if (!name)
            return error.fail(FileMessage::tr("A font family record is invalid."));
        families.append(QString::fromUtf8(*name));
    }
    if (!reader.atEnd())
        return error.fail(FileMessage::tr("A font family block has trailing data."));
    return families;
}

std::optional<QFont> decodeFont(QByteArrayView header, const QStringList &families, const QString &styleName,
                                Error &error)
{
    const auto style = enumAt<QFont::Style>(header, 36, 1, 3);
    if (!style)
        return error.fail(FileMessage::tr("A text run uses an unknown font style."));
    const auto capitalization = enumAt<QFont::Capitalization>(header, 40, 1, 5);
    if (!capitalization)
        return error.fail(FileMessage::tr("A text run uses an unknown capitalization mode."));
    const auto letterSpacingType = enumAt<QFont::SpacingType>(header, 44, 1, 2);
    if (!letterSpacingType)
        return error.fail(FileMessage::tr("A text run uses an unknown letter-spacing mode."));
    const auto hinting = enumAt<QFont::HintingPreference>(header, 48, 0, 3);
    if (!hinting)
        return error.fail(FileMessage::tr("A text run uses an unknown font hinting mode."));

    QFont font{QStringList()}; // QFont() would have what the application's own font has
    if (!families.isEmpty())
        font.setFamilies(families);
    if (!styleName.isEmpty())
        font.setStyleName(styleName);
    const auto pixelSize = numberAt<qint32>(header, 24);
    const double pointSize = f64At(header, 72);
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    else if (pointSize > 0.0)
        font.setPointSizeF(pointSize);
    else
        return error.fail(FileMessage::tr("A text run has no valid font size."));
    font.setWeight(QFont::Weight(u32At(header, 28)));
    font.setStretch(int(u32At(header, 32)));
    font.setStyle(*style);
    font.setCapitalization(*capitalization);
    font.setLetterSpacing(*letterSpacingType, std::clamp(f64At(header, 56), -kMaximumSpacing, kMaximumSpacing));
    font.setWordSpacing(std::clamp(f64At(header, 64), -kMaximumSpacing, kMaximumSpacing));
    font.setHintingPreference(*hinting);
    font.setStyleStrategy(QFont::StyleStrategy(u32At(header, 52)));
    font.setKerning(u32At(header, 0) & Kerning);
    if (u32At(header, 0) & FixedPitch) // told "false", a font is not what it was when nothing was told
        font.setFixedPitch(true);
    return font;
}

} // namespace

std::optional<QByteArray> encodeTextRun(const TextRun &run, Error &error)
{
    const QFont &font = run.font;
    QStringList families = font.families();
    if (families.isEmpty() && !font.family().isEmpty())
        families.append(font.family());
    if (families.size() > kMaximumFileCount)
        return error.fail(FileMessage::tr("A text run has too many font families."));
    const double numbers[] = {font.letterSpacing(), font.wordSpacing(), font.pointSizeF(), run.baselineOffset,
                              run.outlineWidth};
    if (!areRunNumbers(numbers))
        return error.fail(FileMessage::tr("A text run has invalid numeric font properties."));
    const QByteArray text = run.text.toUtf8();
    const QByteArray styleName = font.styleName().toUtf8();
    if (text.size() > kMaximumFileTextSize || styleName.size() > kMaximumFileTextSize)
        return error.fail(FileMessage::tr("A text run is too large."));
    const std::optional<QByteArray> familyRecords = familyBlock(families, error);
    if (!familyRecords)
        return Failure();
    const std::optional<QByteArray> fill = encodeFill(run.fill, error);
    if (!fill)
        return Failure();

    QByteArray record(kHeaderSize, '\0');
    setU32(record, 0, flagsOf(run));
    setU32(record, 4, quint32(text.size()));
    setU32(record, 12, quint32(styleName.size()));
    if (!setSize(record, 8, familyRecords->size(), error) || !setSize(record, 16, fill->size(), error))
        return Failure();
    setU32(record, 20, quint32(families.size()));
    setNumber(record, 24, qint32(font.pixelSize()));
    setU32(record, 28, quint32(font.weight()));
    setU32(record, 32, quint32(font.stretch()));
    setU32(record, 36, quint32(font.style()) + 1);
    setU32(record, 40, quint32(font.capitalization()) + 1);
    setU32(record, 44, quint32(font.letterSpacingType()) + 1);
    setU32(record, 48, quint32(font.hintingPreference()));
    setU32(record, 52, quint32(font.styleStrategy()) & kStyleStrategies);
    qsizetype offset = 56;
    for (const double number : numbers) {
        setF64(record, offset, number);
        offset += qsizetype(sizeof(double));
    }
    setColor(record, 96, run.outlineColor);
    setColor(record, 112, run.underlineColor);
    return record + text + *familyRecords + styleName + *fill;
}

std::optional<TextRun> decodeTextRun(ByteReader &reader, Error &error)
{
    const auto invalid = [&error] { return error.fail(FileMessage::tr("A text run record is invalid.")); };
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    if (!header)
        return invalid();
    const std::optional<QColor> outlineColor = colorAt(*header, 96, error);
    const std::optional<QColor> underlineColor = colorAt(*header, 112, error);
    const double numbers[] = {f64At(*header, 56), f64At(*header, 64), f64At(*header, 72), f64At(*header, 80),
                              f64At(*header, 88)};
    const quint32 weight = u32At(*header, 28);
    if (!outlineColor || !underlineColor || weight < 1 || weight > kMaximumWeight
        || u32At(*header, 32) > kMaximumStretch || u32At(*header, 52) & ~kStyleStrategies
        || u32At(*header, 20) > kMaximumFileCount || !areRunNumbers(numbers))
        return invalid();
    const std::optional<QByteArrayView> text = reader.take(u32At(*header, 4));
    const std::optional<QByteArrayView> familyRecords = reader.take(u32At(*header, 8));
    const std::optional<QByteArrayView> styleName = reader.take(u32At(*header, 12));
    const std::optional<QByteArrayView> fillRecord = reader.take(u32At(*header, 16));
    if (!text || !familyRecords || !styleName || !fillRecord)
        return error.fail(FileMessage::tr("A text run is truncated."));
    const std::optional<QStringList> families = decodeFamilies(*familyRecords, u32At(*header, 20), error);
    if (!families)
        return Failure();
    const std::optional<QFont> font = decodeFont(*header, *families, QString::fromUtf8(*styleName), error);
    if (!font)
        return Failure();
    const std::optional<Fill> fill = decodeFill(*fillRecord, error);
    if (!fill)
        return Failure();
    const quint32 flags = u32At(*header, 0);
    TextRun run{QString::fromUtf8(*text), *font, *fill, *outlineColor, numbers[4], *underlineColor, numbers[3]};
    run.underline = flags & Underline;
    run.overline = flags & Overline;
    run.strikeOut = flags & StrikeOut;
    return run;
}

} // namespace zm
