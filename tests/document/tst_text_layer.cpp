#include "base/pixel_limits.h"
#include "document/text_layer.h"
#include "document/text_layout.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPalette>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
// Text layouts count in sixty-fourths of a pixel.
constexpr double kLayoutStep = 1.0 / 32.0;

TextRun run(const QString &text, int pixelSize = 20, const Fill &fill = {})
{
    TextRun run = defaultTextRun();
    run.text = text;
    run.font.setPixelSize(pixelSize);
    run.fill = fill;
    return run;
}

TextRun underlined(TextRun run)
{
    run.underline = true;
    return run;
}

TextLayerState state(const QList<TextRun> &runs, double width = 0.0, Qt::Alignment alignment = Qt::AlignLeft,
                     double lineHeight = TextParagraph().lineHeight)
{
    return {{TextParagraph{runs, alignment, Qt::LayoutDirectionAuto, lineHeight}}, width};
}

std::unique_ptr<QTextDocument> layoutOf(const TextLayerState &state)
{
    return fittedTextDocument(normalizedTextState(state), TextLines::AsFormats);
}

QImage imageOf(const TextLayerState &state)
{
    return renderText(normalizedTextState(state)).image;
}

/// Where ink lies: the middle of each band of inked rows, in pixels from the top.
QList<double> inkedBands(const QImage &image)
{
    QList<double> middles;
    double weight = 0.0;
    double moment = 0.0;
    for (int y = 0; y <= image.height(); ++y) {
        double ink = 0.0;
        for (int x = 0; y < image.height() && x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y));
        if (ink == 0.0 && weight > 0.0)
            middles.append(std::exchange(moment, 0.0) / std::exchange(weight, 0.0));
        weight += ink;
        moment += ink * (y + 0.5);
    }
    return middles;
}

TextRun randomRun(QRandomGenerator &random)
{
    static const QStringList texts{
        {}, u"plain"_s, u"two\u2028lines"_s, u"שלום"_s, u"😀 e\u0301"_s, u"a\ufffc\tb"_s, QString(2, QChar(0))};
    const auto oneOf = [&random](const auto &list) { return list[random.bounded(int(std::size(list)))]; };
    TextRun made = run(oneOf(texts), 1 + random.bounded(300));
    QFont &font = made.font;
    if (random.bounded(2))
        font.setPointSizeF(0.5 + random.bounded(90.0));
    font.setFamilies(oneOf(QList<QStringList>{{u"None"_s, u"DejaVu Serif"_s}, {}}));
    font.setWeight(QFont::Weight(1 + random.bounded(1000)));
    font.setStyle(QFont::Style(random.bounded(3)));
    font.setStretch(random.bounded(4001));
    font.setLetterSpacing(QFont::SpacingType(random.bounded(2)), random.bounded(200) - 50.5);
    font.setKerning(random.bounded(2));
    font.setFixedPitch(random.bounded(2));
    const QColor color(random.bounded(256), 0, random.bounded(256), random.bounded(256));
    const double third = 1.0 / (1 + random.bounded(9));
    const GradientFill gradient{GradientType::Radial, {third, third}, {1, 0}, {{0, color}, {third, Qt::red}}};
    made.fill = oneOf(QList<Fill>{color, gradient, TextureFill{u"wood"_s, {}, {}, {}, 2}});
    made.outlineColor = color;
    made.outlineWidth = random.bounded(2) * third;
    made.underlineColor = color.lighter();
    made.baselineOffset = random.bounded(3) * third - 0.3;
    for (const auto flag : {&TextRun::underline, &TextRun::overline, &TextRun::strikeOut})
        made.*flag = random.bounded(2);
    return made;
}

} // namespace

class TestTextLayer : public QObject
{
    Q_OBJECT

private slots:
    void statesAreNormalized()
    {
        const auto damaged = [](double number, double offset) {
            TextRun made = run(u"a"_s);
            made.outlineWidth = number;
            made.baselineOffset = offset;
            made.outlineColor = made.underlineColor = QColor();
            made.font.setPointSizeF(kNaN);
            made.font.setUnderline(true);
            made.font.setStrikeOut(true);
            return state({made}, number, Qt::AlignVCenter, kNaN);
        };
        TextRun endless = run(u"a"_s);
        endless.font.setPointSizeF(kInfinity);
        TextRun largest = endless;
        largest.font.setPointSizeF(7500.0);
        const TextLayerState plain = state({run(u"a"_s, 56)}, 0.0, Qt::AlignLeft, 1.18);
        const std::pair<TextLayerState, TextLayerState> rows[] = {
            {{}, state({defaultTextRun()})},
            {state({}, 90.0), state({defaultTextRun()}, 90.0)},
            {state({}, 0.0, Qt::AlignRight, 9.0), state({defaultTextRun()}, 0.0, Qt::AlignRight, 4.0)},
            {state({}, 0.0, Qt::AlignHCenter, 0.1), state({defaultTextRun()}, 0.0, Qt::AlignHCenter, 0.5)},
            {state({run(u"a"_s), run({}, 9), run(u"b"_s), run(u"c"_s, 21)}), state({run(u"ab"_s), run(u"c"_s, 21)})},
            {state({run({}, 9), run({}, 8)}), state({run({}, 9)})},
            {state({endless}), state({largest})},
            {state({run(u"a"_s, std::numeric_limits<int>::max())}), state({run(u"a"_s, 10'000)})},
            {damaged(-1.0, kNaN), plain},
            {damaged(kNaN, kInfinity), plain},
            {state({run(u"a\r\nb\rc\nd\u2029e"_s)}), state({run(u"a\u2028b\u2028c\u2028d\u2028e"_s)})},
            {state({run(QChar(0xd83d)), run(u"b"_s, 21)}), state({run(u"\ufffd"_s), run(u"b"_s, 21)})},
            {state({run(QChar(0xd83d)), run(QChar(0xde00))}), state({run(u"😀"_s)})},
        };
        for (const auto &row : rows) {
            const TextLayer layer(row.first.blocks, row.first.textWidth, u"text"_s);
            QVERIFY2(layer.state() == row.second, qPrintable(u"row %1"_s.arg(&row - rows)));
            QCOMPARE(normalizedTextState(row.second), row.second);
        }
    }

    void plainTextIsSplitAtEveryEndOfLine()
    {
        TextLayerState expected{{}, 70.0};
        for (const QString &line : {u"a"_s, u"b"_s, u"c"_s, QString(), u"d"_s})
            expected.blocks.append(TextParagraph{{run(line, 33)}});
        QCOMPARE(textStateFromPlainText(u"a\r\nb\rc\u2029\nd"_s, run(u"format"_s, 33), 70.0), expected);
    }

    void linesBreakAtTheWidth()
    {
        const TextLayerState text = state({run(u"plenty of words "_s.repeated(60))}, 200.0);
        const auto document = layoutOf(text);
        QVERIFY(document->firstBlock().layout()->lineCount() > 10);
        QCOMPARE(document->size().width(), 200.0);
        QCOMPARE(imageOf(text).size(), coveringPixels(document->size()));
    }

    void linesLieAsTheirParagraphSaysInABoxOfTheLongestLineOrTheWidth()
    {
        // The last number is the share of the free width that lies to the left.
        const std::tuple<QString, Qt::Alignment, Qt::LayoutDirection, double> rows[] = {
            {u"word"_s, Qt::AlignLeft, Qt::LayoutDirectionAuto, 0.0},
            {u"word"_s, Qt::AlignHCenter, Qt::LayoutDirectionAuto, 0.5},
            {u"word"_s, Qt::AlignRight, Qt::LayoutDirectionAuto, 1.0},
            {u"שלום"_s, Qt::AlignLeft, Qt::LayoutDirectionAuto, 1.0},
            {u"שלום"_s, Qt::AlignLeft, Qt::LeftToRight, 0.0},
            {u"word"_s, Qt::AlignLeft, Qt::RightToLeft, 1.0},
        };
        const TextParagraph longer{{run(u"a much longer line"_s)}};
        for (const double width : {0.0, 500.0}) {
            for (const auto &[text, alignment, direction, share] : rows) {
                const auto document = layoutOf({{{{run(text)}, alignment, direction}, longer}, width});
                const QRectF line = document->firstBlock().layout()->lineAt(0).naturalTextRect();
                const double longest = document->lastBlock().layout()->lineAt(0).naturalTextWidth();
                QCOMPARE_LE(std::abs(document->size().width() - std::max(width, longest)), kLayoutStep);
                const double free = document->size().width() - line.width();
                QVERIFY(free > 50.0);
                QCOMPARE_LE(std::abs(line.left() - free * share), 2.0 * kLayoutStep);
            }
        }
    }

    void heightsFollowLineHeightAndEmptyRuns()
    {
        const auto heightOf = [](const QString &text, double lineHeight) {
            return layoutOf(state({run(text, 40)}, 0.0, Qt::AlignLeft, lineHeight))->size().height();
        };
        const double plain = heightOf(u"a"_s, 1.0);
        for (const double lineHeight : {0.5, 4.0}) // line tops are whole pixels
            QCOMPARE_LE(std::abs(heightOf(u"a"_s, lineHeight) - lineHeight * plain), 1.0);
        QCOMPARE(heightOf({}, 1.0), plain);
    }

    void linesAreDrawnAtTheirDistanceFromTheBaseline()
    {
        // Blanks have no ink of their own, and the second paragraph makes room for what comes to lie below the first.
        const std::pair<bool TextRun::*, qreal (QFontMetricsF::*)() const> kinds[] = {
            {&TextRun::underline, &QFontMetricsF::underlinePos},
            {&TextRun::overline, &QFontMetricsF::overlinePos},
            {&TextRun::strikeOut, &QFontMetricsF::strikeOutPos}};
        for (const auto &[flag, distance] : kinds) {
            TextRun blanks = run(u"     \u2028  "_s, 48);
            blanks.*flag = true;
            TextLayerState text = state({blanks});
            text.blocks.append(TextParagraph{{run(u" "_s, 200)}});
            const auto document = layoutOf(text);
            const QTextBlock block = document->firstBlock();
            const QFontMetricsF metrics(block.charFormat().font());
            const QList<double> bands = inkedBands(imageOf(text));
            QCOMPARE(bands.size(), 2); // one for each line
            for (int i = 0; i < 2; ++i) {
                const QTextLine line = block.layout()->lineAt(i);
                const double expected = line.y() + line.ascent() + (metrics.*distance)() + metrics.lineWidth() / 2.0;
                // Antialiasing counts coverage in a raster of sixteenths.
                QCOMPARE_LT(std::abs(bands[i] - expected), 0.1);
            }
        }
    }

    void anUnderlineTakesTheFillOfEachRunAndGradientsStretchOverTheBox()
    {
        const GradientFill gradient{GradientType::Linear, {0.0, 0.0}, {1.0, 0.0}, {{0.0, Qt::red}, {1.0, Qt::blue}}};
        const QString blanks(10, u' ');
        const TextLayerState text =
            state({underlined(run(blanks, 40, gradient)), underlined(run(blanks, 40, QColor(Qt::green)))});
        const int border = int(layoutOf(text)->firstBlock().layout()->lineAt(0).cursorToX(10));
        const QImage image = imageOf(text);
        const int row = int(inkedBands(image).value(0));
        for (int x = 0; x < image.width(); ++x) {
            const double at = (x + 0.5) / image.width();
            const QColor color = image.pixelColor(x, row);
            if (x < border - 3) {
                QVERIFY2(std::abs(color.blueF() - at) < 0.03, qPrintable(color.name())); // half a pixel, and rounding
                QVERIFY2(std::abs(color.redF() + at - 1.0) < 0.03, qPrintable(color.name()));
            } else if (x > border + 3) { // the caps of both reach over the border
                QCOMPARE(color.rgb(), QColor(Qt::green).rgb());
            }
        }
    }

    void onlyTheFillGivesColour()
    {
        const TextureFill wood{u"wood"_s, {}, {}, {}, 2}; // as a file gives it: without its picture
        const TextLayerState textured = state({underlined(run(u"text"_s, 40, wood))});
        QCOMPARE(inkedBands(imageOf(textured)), QList<double>());
        const QImage before = imageOf(state({run(u"text"_s)}));
        const QPalette palette = QGuiApplication::palette();
        const auto restore = qScopeGuard([&] { QGuiApplication::setPalette(palette); });
        QGuiApplication::setPalette(QPalette(Qt::black)); // with white text
        QCOMPARE(imageOf(state({run(u"text"_s)})), before);
    }

    void contentIsDrawnAgainOnlyForAnotherState()
    {
        TextLayer layer({TextParagraph{{run(u"text"_s)}}}, 0.0, u"text"_s);
        const qint64 pixels = layer.renderedContent(nullptr).image.cacheKey();
        QVERIFY(!layer.setState(state({run(u"te"_s), run({}, 7), run(u"xt"_s)})));
        QCOMPARE(layer.renderedContent(nullptr).image.cacheKey(), pixels);
        QVERIFY(layer.setState(state({run(u"other"_s)})));
        QVERIFY(layer.renderedContent(nullptr).image.cacheKey() != pixels);
    }

    void memoryFollowsTheCapacityOfTheLists()
    {
        TextLayerState text{{TextParagraph()}};
        text.blocks.reserve(4);
        text.blocks[0].runs.reserve(3);
        text.blocks[0].runs.append(run(u"abcde"_s));
        QCOMPARE(memoryBytes(text), 24 + 4 * 40 + 3 * 248 + 5 * 2);
    }

    void documentsGiveBackEveryState()
    {
        constexpr Qt::AlignmentFlag alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        for (int i = 0; i < 200; ++i) {
            TextLayerState text{{}, random.bounded(2) * random.bounded(500.0)};
            for (int j = random.bounded(5); j >= 0; --j) {
                const auto direction = Qt::LayoutDirection(random.bounded(3));
                TextParagraph made{{}, alignments[random.bounded(4)], direction, 0.5 + random.bounded(3.5)};
                for (int k = random.bounded(5); k > 0; --k)
                    made.runs.append(randomRun(random));
                text.blocks.append(made);
            }
            text = normalizedTextState(text);
            QVERIFY2(textStateFromDocument(*layoutOf(text), text.textWidth) == text,
                     qPrintable(u"seed %1, state %2"_s.arg(seed).arg(i)));
        }
    }

    void editsOfADocumentKeepSensibleFormats()
    {
        TextLayerState text = state({run(u"one"_s, 30, GradientFill()), run(u"two"_s, 20, QColor(Qt::blue))}, 300.0);
        text.blocks.append(TextParagraph{{run({}, 44, TextureFill{u"wood"_s, {}, {}, {}, 2})}});
        const auto document = layoutOf(text);
        QTextCursor cursor(document.get());
        cursor.setPosition(3); // typing between two formats goes on with the one before
        cursor.insertText(u"!\u2028"_s);
        cursor.movePosition(QTextCursor::End); // typing into an empty paragraph takes the format that it keeps
        cursor.insertText(u"a\nb"_s);
        text.blocks.append(text.blocks[1]);
        text.blocks[0].runs[0].text = u"one!\u2028"_s;
        text.blocks[1].runs[0].text = u"a"_s;
        text.blocks[2].runs[0].text = u"b"_s;
        QCOMPARE(textStateFromDocument(*document, 300.0), text);

        QTextCharFormat green;
        green.setForeground(Qt::green);
        green.setFontWeight(QFont::Black);
        cursor.select(QTextCursor::LineUnderCursor);
        cursor.mergeCharFormat(green);
        text.blocks[2].runs[0].fill = QColor(Qt::green);
        text.blocks[2].runs[0].font.setWeight(QFont::Black);
        QCOMPARE(textStateFromDocument(*document, 300.0), text);
    }

    void absurdTextsNeverPassTheLimits()
    {
        const QString odd = QString(QChar(0)) + QChar(0xdc00) + u"\u2028\ufffc\ufdd0\ufdd1\u202e\uffff"_s;
        QList<TextLayerState> texts{
            state({underlined(run(odd))}), state({underlined(run(u"Hg"_s, std::numeric_limits<int>::max()))}),
            state({run(QString(4'000, u'W'), 10'000)}), // longer than layouts can count
            state({run(QString(300'000, u'i'), 10)}), // could be, and is not
        };
        for (const double width : {0.0, 1.0, 1200.0})
            texts.append(state({run(QString(200'000, u'a'))}, width));
        for (const double n : {1e300, -1e300, 1e6}) {
            QList<TextRun> runs(4, run(u"Hg word"_s));
            runs[0].font.setLetterSpacing(QFont::AbsoluteSpacing, n);
            runs[1].font.setLetterSpacing(QFont::PercentageSpacing, n);
            runs[2].baselineOffset = n;
            runs[3].outlineWidth = n;
            for (const TextRun &run : runs)
                texts.append(state({run}, 300.0));
            texts.append(state({run(u"Hg word"_s)}, n, Qt::AlignRight));
        }
        QList<TextRun> runs;
        for (int i = 0; i < 3000; ++i)
            runs.append(underlined(run(u"run "_s, 4, gradientFrom(QColor(i % 255, i / 255, 0), GradientType::Linear))));
        texts.append(state(runs, 40.0));
        GradientFill many;
        many.stops.assign(kMaximumGradientStops, GradientStop{0.5, Qt::red});
        texts.append(state(QList<TextRun>(3, run(u"text"_s, 20, many))));
        for (const TextLayerState &text : texts) {
            const RenderedContent content = TextLayer(text.blocks, text.textWidth, u"text"_s).renderContent(nullptr);
            const auto [width, height] = std::pair(content.size.width(), content.size.height());
            const bool unbroken = text.textWidth == 0.0 && text.blocks[0].runs[0].text.size() > 1000;
            QVERIFY2(width >= (unbroken ? 100'000.0 : 1.0) && height >= 1.0 && qIsFinite(width) && qIsFinite(height),
                     qPrintable(u"text %1: %2 x %3"_s.arg(&text - texts.data()).arg(width).arg(height)));
            const QSize pixels = coveringPixels(content.size);
            QCOMPARE(content.image.size(), isAllocatableRasterSize(pixels) ? pixels : QImage().size());
        }
    }
};

QTEST_MAIN(TestTextLayer)
#include "tst_text_layer.moc"
