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

using Change = std::function<void(TextRun &)>;

TextRun run(const QString &text, int pixelSize = 20, const Fill &fill = {}, const Change &change = {})
{
    TextRun run = defaultTextRun();
    run.text = text;
    run.font.setPixelSize(pixelSize);
    run.fill = fill;
    if (change)
        change(run);
    return run;
}

void underline(TextRun &run)
{
    run.underline = true;
}

/// As a file gives it: without its picture.
Fill texture(const QString &generatorId)
{
    TextureFill fill;
    fill.generatorId = generatorId;
    fill.mapping = 2;
    return fill;
}

TextLayerState state(const QList<TextRun> &runs, double width = 0.0, Qt::Alignment alignment = Qt::AlignLeft)
{
    return {{TextParagraph{runs, alignment}}, width};
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
    font.setFamilies(oneOf(QList<QStringList>{{u"DejaVu Sans"_s}, {u"None"_s, u"DejaVu Serif"_s}, {}}));
    font.setStyleName(oneOf(QStringList{{}, u"Condensed"_s}));
    font.setWeight(QFont::Weight(1 + random.bounded(1000)));
    font.setStyle(QFont::Style(random.bounded(3)));
    font.setStretch(random.bounded(4001));
    font.setCapitalization(QFont::Capitalization(random.bounded(5)));
    font.setLetterSpacing(QFont::SpacingType(random.bounded(2)), random.bounded(200) - 50.5);
    font.setWordSpacing(random.bounded(20) - 9.25);
    font.setHintingPreference(QFont::HintingPreference(random.bounded(4)));
    font.setStyleStrategy(oneOf(QList{QFont::PreferDefault, QFont::NoAntialias, QFont::NoFontMerging}));
    font.setKerning(random.bounded(2));
    font.setFixedPitch(random.bounded(2));
    const QColor color(random.bounded(256), 0, random.bounded(256), random.bounded(256));
    const double third = 1.0 / (1 + random.bounded(9));
    made.fill = oneOf(
        QList<Fill>{color, GradientFill{GradientType::Radial, {third, third}, {1, 0}, {{0, color}, {third, Qt::red}}},
                    GradientFill{}, texture(u"wood"_s), texture(u"rock"_s)});
    made.outlineColor = color;
    made.outlineWidth = random.bounded(2) * third;
    made.underlineColor = color.lighter();
    made.baselineOffset = random.bounded(3) * third - 0.3;
    for (const auto flag : {&TextRun::underline, &TextRun::overline, &TextRun::strikeOut})
        made.*flag = random.bounded(2);
    return made;
}

TextLayerState randomState(QRandomGenerator &random)
{
    constexpr Qt::AlignmentFlag alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};
    TextLayerState made{{}, random.bounded(2) * random.bounded(500.0)};
    for (int i = random.bounded(5); i >= 0; --i) {
        TextParagraph paragraph{
            {}, alignments[random.bounded(4)], Qt::LayoutDirection(random.bounded(3)), 0.5 + random.bounded(3.5)};
        for (int j = random.bounded(5); j > 0; --j)
            paragraph.runs.append(randomRun(random));
        made.blocks.append(paragraph);
    }
    return normalizedTextState(made);
}

} // namespace

class TestTextLayer : public QObject
{
    Q_OBJECT

private slots:
    void statesAreNormalized()
    {
        const auto height = [](double lineHeight) {
            TextLayerState made = state({run(u"a"_s)});
            made.blocks[0].lineHeight = lineHeight;
            return made;
        };
        const auto changed = [](const Change &change) { return state({run(u"a"_s, 20, {}, change)}); };
        const auto numbers = [&changed](double outline, double offset) {
            return changed([=](TextRun &r) { r.outlineWidth = outline, r.baselineOffset = offset; });
        };
        const auto points = [&changed](double size) {
            return changed([size](TextRun &r) { r.font = QFont(u"Arial"_s), r.font.setPointSizeF(size); });
        };
        const TextLayerState plain = state({run(u"a"_s)});
        const auto &runs = plain.blocks[0].runs;
        const struct Row
        {
            const char *name;
            TextLayerState given, expected;
        } rows[] = {
            {"no paragraphs", {}, state({defaultTextRun()})},
            {"no runs", state({}, 90.0), state({defaultTextRun()}, 90.0)},
            {"line height 9", height(9.0), height(4.0)},
            {"line height NaN", height(kNaN), height(1.18)},
            {"line height 0.1", height(0.1), height(0.5)},
            {"equal runs", state({run(u"a"_s), run({}, 9), run(u"b"_s), run(u"c"_s, 21)}),
             state({run(u"ab"_s), run(u"c"_s, 21)})},
            {"only empty runs", state({run({}, 9), run({}, 8)}), state({run({}, 9)})},
            {"no font size", points(kNaN), state({run(u"a"_s, 56)})},
            {"endless font size", points(kInfinity), points(7500.0)},
            {"huge pixels", state({run(u"a"_s, std::numeric_limits<int>::max())}), state({run(u"a"_s, 10'000)})},
            {"negative outline, offset NaN", numbers(-1.0, kNaN), plain},
            {"outline NaN, offset endless", numbers(kNaN, kInfinity), plain},
            {"negative width", state(runs, -1.0), plain},
            {"width NaN", state(runs, kNaN), plain},
            {"no alignment", state(runs, 0.0, Qt::AlignVCenter), plain},
            {"invalid colours", changed([](TextRun &r) { r.outlineColor = r.underlineColor = QColor(); }), plain},
            {"lines of the font", changed([](TextRun &r) { r.font.setUnderline(true), r.font.setStrikeOut(true); }),
             plain},
            {"ends of lines within", state({run(u"a\r\nb\rc\nd\u2029e"_s)}),
             state({run(u"a\u2028b\u2028c\u2028d\u2028e"_s)})},
            {"half a surrogate", state({run(u"a"_s + QChar(0xd83d)), run(u"b"_s, 21)}),
             state({run(u"a\ufffd"_s), run(u"b"_s, 21)})},
            {"a pair in two runs", state({run(QChar(0xd83d)), run(QChar(0xde00))}), state({run(u"😀"_s)})},
        };
        for (const auto &row : rows) {
            const TextLayer layer(row.given.blocks, row.given.textWidth, u"text"_s);
            QVERIFY2(layer.state() == row.expected, row.name);
            QVERIFY2(normalizedTextState(row.expected) == row.expected, row.name);
        }
    }

    void plainTextIsSplitAtEveryEndOfLine()
    {
        const TextLayerState split = textStateFromPlainText(u"a\r\nb\rc\u2029\nd"_s, run({}, 33), 70.0);
        QStringList lines;
        for (const TextParagraph &paragraph : split.blocks)
            lines += paragraph.runs.constFirst().text;
        QCOMPARE(lines, (QStringList{u"a"_s, u"b"_s, u"c"_s, {}, u"d"_s}));
        QCOMPARE(split.blocks[3].runs, QList{run({}, 33)});
        QCOMPARE(split.textWidth, 70.0);
    }

    void theBoxFollowsTheLongestLineOrTheWidth()
    {
        const QString words = u"plenty of words "_s.repeated(60);
        TextLayerState text = state({run(words)});
        text.blocks.append(TextParagraph{{run(u"short"_s)}});
        const auto loose = layoutOf(text);
        QCOMPARE(loose->firstBlock().layout()->lineCount(), 1);
        const double longest = loose->firstBlock().layout()->lineAt(0).naturalTextWidth();
        QVERIFY(longest > QFontMetricsF(loose->firstBlock().charFormat().font()).averageCharWidth() * 600.0);
        QVERIFY(std::abs(loose->size().width() - longest) <= kLayoutStep);
        QCOMPARE(imageOf(text).size(), coveringPixels(loose->size()));

        text.textWidth = 200.0;
        const auto boxed = layoutOf(text);
        QVERIFY(boxed->firstBlock().layout()->lineCount() > 10);
        QCOMPARE(boxed->size().width(), 200.0);
        QCOMPARE(imageOf(text).width(), 200);
    }

    void linesLieAsTheirParagraphSays()
    {
        const struct Row
        {
            QString text;
            Qt::Alignment alignment;
            Qt::LayoutDirection direction;
            double share; // of the free width that lies to the left
        } rows[] = {
            {u"word"_s, Qt::AlignLeft, Qt::LayoutDirectionAuto, 0.0},
            {u"word"_s, Qt::AlignHCenter, Qt::LayoutDirectionAuto, 0.5},
            {u"word"_s, Qt::AlignRight, Qt::LayoutDirectionAuto, 1.0},
            {u"שלום"_s, Qt::AlignLeft, Qt::LayoutDirectionAuto, 1.0},
            {u"שלום"_s, Qt::AlignLeft, Qt::LeftToRight, 0.0},
            {u"word"_s, Qt::AlignLeft, Qt::RightToLeft, 1.0},
        };
        const TextParagraph longer{{run(u"a much longer line"_s)}};
        for (const double width : {0.0, 500.0}) {
            for (const Row &row : rows) {
                const auto document = layoutOf({{{{run(row.text)}, row.alignment, row.direction}, longer}, width});
                const QRectF line = document->firstBlock().layout()->lineAt(0).naturalTextRect();
                const double free = document->size().width() - line.width();
                QVERIFY(free > 50.0);
                QVERIFY2(std::abs(line.left() - free * row.share) <= 2.0 * kLayoutStep,
                         qPrintable(u"row %1, width %2"_s.arg(&row - rows).arg(width)));
            }
        }
    }

    void heightsFollowLineHeightAndEmptyRuns()
    {
        const auto heightOf = [](const TextRun &run, double lineHeight) {
            return layoutOf({{TextParagraph{{run}, Qt::AlignLeft, Qt::LayoutDirectionAuto, lineHeight}}, 0.0})
                ->size()
                .height();
        };
        const double plain = heightOf(run(u"a"_s, 40), 1.0);
        QVERIFY(std::abs(heightOf(run(u"a"_s, 40), 4.0) - 4.0 * plain) <= 1.0); // line tops are whole pixels
        QVERIFY(std::abs(heightOf(run(u"a"_s, 40), 0.5) - 0.5 * plain) <= 1.0);
        QCOMPARE(heightOf(run({}, 40), 1.0), plain);
        QVERIFY(heightOf(run({}, 80), 1.0) > 1.9 * plain);
    }

    void linesAreDrawnAtTheirDistanceFromTheBaseline()
    {
        // Blanks have no ink of their own, and the second paragraph makes room for what comes to lie below the first.
        const QList<std::pair<bool TextRun::*, double (*)(const QFontMetricsF &)>> kinds{
            {&TextRun::underline, [](const QFontMetricsF &m) { return m.underlinePos(); }},
            {&TextRun::overline, [](const QFontMetricsF &m) { return m.overlinePos(); }},
            {&TextRun::strikeOut, [](const QFontMetricsF &m) { return m.strikeOutPos(); }}};
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
                const double expected = line.y() + line.ascent() + distance(metrics) + metrics.lineWidth() / 2.0;
                // Antialiasing counts coverage in a raster of sixteenths.
                QVERIFY2(std::abs(bands[i] - expected) < 0.1, qPrintable(u"%1 for %2"_s.arg(bands[i]).arg(expected)));
            }
        }
    }

    void anUnderlineOverTwoRunsTakesTheFillOfEach()
    {
        const TextLayerState text = state({run(u" "_s.repeated(10), 40, QColor(Qt::red), underline),
                                           run(u" "_s.repeated(10), 40, QColor(Qt::blue), underline)});
        const auto document = layoutOf(text);
        const int border = int(document->firstBlock().layout()->lineAt(0).cursorToX(10));
        const QImage image = imageOf(text);
        const int row = int(inkedBands(image).value(0));
        for (int x = 0; x < image.width(); ++x) {
            if (std::abs(x - border) > 3) // the caps of both reach over the border
                QCOMPARE(image.pixelColor(x, row).rgb(), QColor(x < border ? Qt::red : Qt::blue).rgb());
        }
    }

    void gradientsStretchOverTheBoxOfTheText()
    {
        const GradientFill gradient{GradientType::Linear, {0.0, 0.0}, {1.0, 0.0}, {{0.0, Qt::red}, {1.0, Qt::blue}}};
        TextLayerState text = state({run(QString(10, u' '), 40, gradient, underline)});
        text.blocks.append(TextParagraph{{run(QString(20, u' '), 40)}});
        const QImage image = imageOf(text);
        const int row = int(inkedBands(image).value(0));
        for (const double at : {0.1, 0.25, 0.4}) {
            const QColor color = image.pixelColor(int(image.width() * at), row);
            QVERIFY2(std::abs(color.blueF() - at) < 0.03, qPrintable(color.name())); // half a pixel, and rounding
            QVERIFY2(std::abs(color.redF() + at - 1.0) < 0.03, qPrintable(color.name()));
        }
    }

    void onlyTheFillGivesColour()
    {
        const TextLayerState textured = state({run(u"text"_s, 40, texture(u"wood"_s), underline)});
        QCOMPARE(inkedBands(imageOf(textured)), QList<double>());
        const QImage before = imageOf(state({run(u"text"_s)}));
        const QPalette palette = QGuiApplication::palette();
        const auto restore = qScopeGuard([&] { QGuiApplication::setPalette(palette); });
        QGuiApplication::setPalette(
            QPalette(Qt::white, Qt::black, Qt::white, Qt::white, Qt::white, Qt::white, Qt::black));
        QCOMPARE(imageOf(state({run(u"text"_s)})), before);
    }

    void contentIsDrawnAgainOnlyForAnotherState()
    {
        TextLayer layer({TextParagraph{{run(u"text"_s)}}}, 0.0, u"text"_s);
        const quint64 revision = layer.contentRevision();
        const qint64 pixels = layer.renderedContent(nullptr).image.cacheKey();
        QVERIFY(!layer.setState(state({run(u"te"_s), run({}, 7), run(u"xt"_s)})));
        QCOMPARE(layer.contentRevision(), revision);
        QCOMPARE(layer.renderedContent(nullptr).image.cacheKey(), pixels);
        QVERIFY(layer.setState(state({run(u"other"_s)})));
        QVERIFY(layer.contentRevision() > revision);
        QVERIFY(layer.renderedContent(nullptr).image.cacheKey() != pixels);
    }

    void memoryFollowsTheCapacityOfTheLists()
    {
        TextLayerState text;
        text.blocks.reserve(4);
        text.blocks.append(TextParagraph());
        text.blocks[0].runs.reserve(3);
        text.blocks[0].runs.append(run(u"abcde"_s));
        QCOMPARE(text.blocks.capacity(), 4);
        QCOMPARE(memoryBytes(text), 24 + 4 * 40 + 3 * 248 + 5 * 2);
    }

    void documentsGiveBackEveryState()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        for (int i = 0; i < 200; ++i) {
            const TextLayerState text = randomState(random);
            const TextLayerState back = textStateFromDocument(*layoutOf(text), text.textWidth);
            QCOMPARE(back.blocks.size(), text.blocks.size());
            for (qsizetype j = 0; j < text.blocks.size(); ++j)
                QVERIFY2(back.blocks[j] == text.blocks[j],
                         qPrintable(u"seed %1, state %2, paragraph %3"_s.arg(seed).arg(i).arg(j)));
            QCOMPARE(back, text);
        }
    }

    void editsOfADocumentKeepSensibleFormats()
    {
        const TextRun gradient = run(u"one"_s, 30, GradientFill());
        const TextRun blue = run(u"two"_s, 20, QColor(Qt::blue));
        TextLayerState text = state({gradient, blue}, 300.0);
        text.blocks.append(TextParagraph{{run({}, 44, texture(u"wood"_s))}});
        const auto document = layoutOf(text);
        const auto runs = [&](int block) { return textStateFromDocument(*document, 300.0).blocks.value(block).runs; };
        const auto withText = [](TextRun run, const QString &text) { return run.text = text, run; };
        QTextCursor cursor(document.get());

        cursor.setPosition(3); // typing between two formats goes on with the one before
        cursor.insertText(u"!\u2028"_s);
        QCOMPARE(runs(0), (QList{withText(gradient, u"one!\u2028"_s), blue}));
        cursor.movePosition(QTextCursor::End); // typing into an empty paragraph takes the format that it keeps
        cursor.insertText(u"a\nb"_s);
        QCOMPARE(runs(1), QList{withText(text.blocks[1].runs[0], u"a"_s)});
        QCOMPARE(runs(2), QList{withText(text.blocks[1].runs[0], u"b"_s)});

        QTextCharFormat green;
        green.setForeground(Qt::green);
        green.setFontWeight(QFont::Black);
        cursor.select(QTextCursor::Document);
        cursor.mergeCharFormat(green);
        QCOMPARE(runs(0).constFirst().fill, Fill(QColor(Qt::green)));
        QFont blackFont = gradient.font;
        blackFont.setWeight(QFont::Black);
        QCOMPARE(runs(0).constFirst().font, blackFont);
        QCOMPARE(runs(2).constFirst().fill, Fill(QColor(Qt::green)));
        QTextBlockFormat taller;
        taller.setLineHeight(200.0, QTextBlockFormat::ProportionalHeight);
        cursor.mergeBlockFormat(taller);
        QCOMPARE(textStateFromDocument(*document, 300.0).blocks[0].lineHeight, 2.0);
    }

    void absurdTextsNeverPassTheLimits_data()
    {
        QTest::addColumn<TextLayerState>("text");
        for (const double n : {1e300, -1e300, 1e6}) {
            const Change changes[] = {
                [n](TextRun &r) { r.font.setLetterSpacing(QFont::AbsoluteSpacing, n); },
                [n](TextRun &r) { r.font.setLetterSpacing(QFont::PercentageSpacing, n); },
                [n](TextRun &r) { r.baselineOffset = n; },
                [n](TextRun &r) { r.outlineWidth = n; },
            };
            const char *names[] = {"letter spacing", "letter spacing in percent", "baseline offset", "outline"};
            for (int i = 0; i < 4; ++i)
                QTest::addRow("%s %g", names[i], n) << state({run(u"Hg word"_s, 20, {}, changes[i])}, 300.0);
            QTest::addRow("width %g", n) << state({run(u"Hg word"_s)}, n, Qt::AlignRight);
        }
        for (const int size : {10'000, 1'000'000, std::numeric_limits<int>::max()})
            QTest::addRow("font of %d pixels", size) << state({run(u"Hg"_s, size, {}, underline)});
        for (const double width : {0.0, 1.0, 1200.0})
            QTest::addRow("a word of 200,000 letters, width %g", width) << state({run(QString(200'000, u'a'))}, width);
        QTest::newRow("longer than layouts can count") << state({run(QString(4'000, u'W'), 10'000)});
        QTest::newRow("long, but not longer") << state({run(QString(300'000, u'i'), 10)});
        const QString odd = QString(QChar(0)) + QChar(0xdc00) + u"\u2028\ufffc\ufdd0\ufdd1\u202e\uffff"_s;
        QTest::newRow("odd characters") << state({run(odd, 20, {}, underline)});
        QList<TextRun> runs;
        for (int i = 0; i < 3000; ++i)
            runs.append(run(u"run "_s, 4, gradientFrom(QColor(i % 255, i / 255, 0), GradientType::Linear), underline));
        QTest::newRow("thousands of gradients") << state(runs, 40.0);
        GradientFill many;
        many.stops.assign(kMaximumGradientStops, GradientStop{0.5, Qt::red});
        QTest::newRow("a million stops") << state(QList<TextRun>(3, run(u"text"_s, 20, many)));
    }
    void absurdTextsNeverPassTheLimits()
    {
        QFETCH(TextLayerState, text);
        const RenderedContent content = TextLayer(text.blocks, text.textWidth, u"text"_s).renderContent(nullptr);
        QVERIFY(std::isfinite(content.size.width()) && content.size.width() >= 1.0);
        if (text.textWidth == 0.0 && text.blocks[0].runs[0].text.size() > 1000)
            QVERIFY(content.size.width() > 100'000.0);
        QVERIFY(std::isfinite(content.size.height()) && content.size.height() >= 1.0);
        const QSize pixels = coveringPixels(content.size);
        QCOMPARE(content.image.size(), isAllocatableRasterSize(pixels) ? pixels : QImage().size());
    }
};

QTEST_MAIN(TestTextLayer)
#include "tst_text_layer.moc"
