#include "text_bench.h"

#include "document/text_layer.h"

#include <QPainter>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr int kParagraphs = 40;
constexpr int kRuns = 500;
constexpr int kCharacters = 10'000;
constexpr double kWidth = 1200.0;

enum class Mix { Colors, Gradients, Outlines };

TextRun mixedRun(int number, Mix mix)
{
    static const QStringList families{u"DejaVu Sans"_s, u"DejaVu Serif"_s, u"DejaVu Sans Mono"_s};
    static const QString words = u"every good picture begins with a plain word and a pale line "_s;
    TextRun run;
    for (int i = 0; i < kCharacters / kRuns; ++i)
        run.text += words[(number * 7 + i) % words.size()];
    run.font = QFont(families[number % families.size()]);
    run.font.setPixelSize(12 + number * 5 % 23);
    run.font.setBold(number % 5 == 0);
    run.font.setItalic(number % 7 == 0);
    run.fill = QColor::fromHsv(number * 37 % 360, 200, 160);
    if (number % 10 == 0) {
        if (mix == Mix::Gradients)
            run.fill = GradientFill{number % 20 == 0 ? GradientType::Linear : GradientType::Radial};
        run.outlineWidth = mix == Mix::Outlines ? 1.0 : 0.0;
    }
    run.underline = number % 3 == 0;
    run.overline = number % 11 == 0;
    run.strikeOut = number % 13 == 0;
    return run;
}

TextLayer mixedText(Mix mix)
{
    constexpr Qt::AlignmentFlag alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};
    QList<TextParagraph> blocks(kParagraphs);
    for (int i = 0; i < kRuns; ++i)
        blocks[i * kParagraphs / kRuns].runs.append(mixedRun(i, mix));
    for (int i = 0; i < kParagraphs; ++i)
        blocks[i].alignment = alignments[i % 4];
    return {blocks, kWidth, u"text"_s};
}

/// The same text in one layout of one plain format, drawn into an image of the same size.
double bareTextMilliseconds(const TextLayer &layer)
{
    QString text;
    for (const TextParagraph &paragraph : layer.state().blocks) {
        for (const TextRun &run : paragraph.runs)
            text += run.text;
        text += u'\n';
    }
    const QSize size = layer.renderedContent(nullptr).image.size();
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(23); // the mean of the sizes
    return medianMilliseconds(9, [&] {
        QTextDocument document;
        document.setDefaultFont(font);
        document.setTextWidth(kWidth);
        document.setPlainText(text);
        QImage image(size, QImage::Format_RGBA8888);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        document.drawContents(&painter);
    });
}

} // namespace

QList<BenchRow> benchText()
{
    QList<BenchRow> rows;
    const std::pair<Mix, QString> mixes[] = {{Mix::Colors, u"colours and lines"_s},
                                             {Mix::Gradients, u"every tenth a gradient"_s},
                                             {Mix::Outlines, u"every tenth outlined"_s}};
    for (const auto &[mix, name] : mixes) {
        const TextLayer layer = mixedText(mix);
        const double ms = medianMilliseconds(9, [&] { layer.renderContent(nullptr); });
        const double floor = bareTextMilliseconds(layer);
        const QSize size = layer.renderedContent(nullptr).image.size();
        rows.append({u"10,000 characters in 500 runs, "_s + name, ms,
                     u"%1 x %2 pixels, %3 x the plain text; goal 120 ms"_s.arg(size.width())
                         .arg(size.height())
                         .arg(ms / floor, 0, 'f', 2)});
        rows.append({u"  floor: the same in one plain format"_s, floor, {}});
    }
    return rows;
}

} // namespace zm::bench
