#include "scene/scene_renderer.h"
#include "support/pictures.h"
#include "values/blend_modes.h"

#include <QtTest>

#include <array>

using namespace Qt::StringLiterals;
using namespace zm;
using namespace zm::test;

namespace {

const QColor kBackground(200, 60, 30);

ObjectTransform at(double x, double y, double rotation = 0.0, const QPointF &scale = {1.0, 1.0},
                   const QPointF &anchor = {0.5, 0.5})
{
    ObjectTransform transform;
    transform.setPosition({x, y});
    transform.setRotation(rotation);
    transform.setScale(scale);
    transform.setAnchor(anchor);
    return transform;
}

SceneRenderItem item(const QImage &image, const ObjectTransform &transform, const QString &blendMode = u"source-over"_s,
                     double opacity = 1.0)
{
    const QSizeF size(image.size());
    return {QUuid::createUuid(), transform, opacity, blendMode, image, size, QPointF(), size};
}

/// Red, green above blue, black.
QImage fourColors()
{
    static constexpr QRgb kPixels[]{0xffff0000, 0xff00ff00, 0xff0000ff, 0xff000000};
    const QImage image(reinterpret_cast<const uchar *>(kPixels), 2, 2, QImage::Format_ARGB32);
    return image.convertToFormat(QImage::Format_RGBA8888);
}

/// A letter for each pixel, rows parted by a bar; "-" is transparent, "?" is any other colour.
QString letters(const QImage &image)
{
    const QHash<QRgb, QChar> names{{0xffff0000, u'r'}, {0xff00ff00, u'g'}, {0xff0000ff, u'b'},
                                   {0xff000000, u'k'}, {0xffffffff, u'.'}, {0x00000000, u'-'}};
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x)
            row += names.value(image.pixel(x, y), u'?');
        rows += row;
    }
    return rows.join(u'|');
}

double hardLight(double b, double s)
{
    return s <= 0.5 ? 2.0 * b * s : 1.0 - 2.0 * (1.0 - b) * (1.0 - s);
}

double softLight(double b, double s)
{
    const double d = b <= 0.25 ? ((16.0 * b - 12.0) * b + 4.0) * b : std::sqrt(b);
    return s <= 0.5 ? b - (1.0 - 2.0 * s) * b * (1.0 - b) : b + (2.0 * s - 1.0) * (d - b);
}

} // namespace

class TestSceneRendering : public QObject
{
    Q_OBJECT

private slots:
    void blendsAsPublishedAndMixesByOpacity()
    {
        // The blend functions of the W3C recommendation "Compositing and Blending Level 1" for opaque colours: b is the
        // backdrop, s the source, both 0..1.
        using BlendFunction = double (*)(double b, double s);
        QList<std::pair<QString, BlendFunction>> modes{
            {u"multiply"_s, [](double b, double s) { return b * s; }},
            {u"screen"_s, [](double b, double s) { return b + s - b * s; }},
            {u"overlay"_s, [](double b, double s) { return hardLight(s, b); }},
            {u"darken"_s, [](double b, double s) { return std::min(b, s); }},
            {u"lighten"_s, [](double b, double s) { return std::max(b, s); }},
            {u"color-dodge"_s, [](double b, double s) { return std::min(1.0, b / (1.0 - s)); }},
            {u"color-burn"_s, [](double b, double s) { return 1.0 - std::min(1.0, (1.0 - b) / s); }},
            {u"hard-light"_s, hardLight},
            {u"soft-light"_s, softLight},
            {u"difference"_s, [](double b, double s) { return std::abs(b - s); }},
            {u"exclusion"_s, [](double b, double s) { return b + s - 2.0 * b * s; }},
        };
        for (const auto *key : {"source-over", "hue", "saturation", "color", "luminosity", "no such mode"})
            modes.append({QString::fromLatin1(key), [](double, double s) { return s; }});
        // The channels fall on both sides of every condition of the formulas.
        const std::array source{80, 180, 240};
        const std::array backdrop{kBackground.red(), kBackground.green(), kBackground.blue()};
        const QImage picture = plainPicture(1, 1, QColor(source[0], source[1], source[2]));
        for (const auto &[key, function] : modes) {
            const SceneSnapshot scene{{1.0, 1.0}, kBackground, {item(picture, at(-0.5, -0.5), key)}};
            const QColor result = renderDocumentImage(scene, 1.0).pixelColor(0, 0);
            QCOMPARE(result.alpha(), 255);
            const std::array channels{result.red(), result.green(), result.blue()};
            for (size_t i = 0; i < channels.size(); ++i) {
                const double expected = 255.0 * function(backdrop[i] / 255.0, source[i] / 255.0);
                // One level: rounded once in the formula and once when stored.
                QVERIFY2(std::abs(channels[i] - expected) <= 1.0, qPrintable(key));
            }
        }
        const SceneRenderItem quarter = item(plainPicture(1, 1, Qt::black), at(-0.5, -0.5), u"multiply"_s, 0.25);
        const int red = renderDocumentImage({{1.0, 1.0}, Qt::white, {quarter}}, 1.0).pixelColor(0, 0).red();
        QVERIFY(std::abs(red - 191) <= 1);
    }

    void placesPictures()
    {
        const QImage image = fourColors();
        SceneRenderItem grown = item(image, at(-2, -2, 180)); // turns about the layer's own middle
        grown.imageOrigin = {-1, -1};
        const std::pair<SceneRenderItem, QString> cases[] = {
            {item(image, at(-2, -2, 0, {-1, 1})), u"gr..|kb..|....|...."_s},
            {item(image, at(-2, -2, 90)), u"br..|kg..|....|...."_s},
            {item(image, at(0, 0, 180, {1, 1}, {0, 0})), u"kb..|gr..|....|...."_s},
            {item(image, at(0, 0, 0, {2, 2}, {1, 1})), u"rrgg|rrgg|bbkk|bbkk"_s},
            {grown, u"....|.kb.|.gr.|...."_s},
        };
        for (const auto &[placed, drawn] : cases)
            QCOMPARE(letters(renderSceneTile({{4.0, 4.0}, Qt::white, {placed}}, {}, true, 1.0, false, false)), drawn);
    }

    void clipsToTheDocumentOrFillsTheView()
    {
        const SceneSnapshot scene{{2.0, 2.0}, Qt::white, {item(fourColors(), at(0.0, 0.0))}};
        const QRectF view(-2.0, -2.0, 4.0, 4.0);
        QCOMPARE(letters(renderSceneTile(scene, view, true, 1.0, true, false)), u"----|-..-|-.r-|----"_s);
        QCOMPARE(letters(renderSceneRegion(scene, view, 1.0)), u"....|....|..rg|..bk"_s);
        QCOMPARE(letters(renderSceneTile(scene, {}, false, 1.0, true, false)), u"..|.r"_s);
    }

    void outlineLiesUnderTheLayers()
    {
        SceneSnapshot scene{{40.0, 40.0}, Qt::white, {}};
        const QRectF view(-30.0, -30.0, 60.0, 60.0);
        // A row of pixels just outside the document's upper edge, from its corner: 12 drawn, 8 left out.
        const QImage outlined = renderSceneTile(scene, view, false, 1.0, true, true);
        QVERIFY(maximumDifference(outlined.copy(11, 9, 10, 1), plainPicture(10, 1, {189, 193, 198})) <= 1);
        QCOMPARE(letters(outlined.copy(26, 9, 1, 1)), u"."_s);
        // Twice as large the line is as thin.
        const QImage larger = renderSceneTile(scene, view, false, 2.0, true, true);
        QCOMPARE(letters(larger.copy(24, 18, 1, 3)), u".|?|."_s);
        scene.items = {item(plainPicture(60, 60, Qt::red), at(-30.0, -30.0))};
        QCOMPARE(renderSceneTile(scene, view, false, 1.0, true, true), plainPicture(60, 60, Qt::red));
    }

    void roundsContentBoundsOutward()
    {
        SceneSnapshot scene{{5.0, 3.0}, Qt::white, {}};
        QCOMPARE(contentBounds(scene), QRectF(-3.0, -2.0, 6.0, 4.0));
        scene.items = {item(fourColors(), at(0.25, 7.5)), item(fourColors(), at(-4.0, 1.0, 0.0, {2.0, 2.0})),
                       item(QImage(), at(99.0, 99.0))};
        QCOMPARE(objectBounds(scene, scene.items[1].objectId), QRectF(-5.0, 0.0, 4.0, 4.0));
        QCOMPARE(objectBounds(scene, QUuid::createUuid()), QRectF());
        QCOMPARE(contentBounds(scene), QRectF(-5.0, 0.0, 8.0, 10.0));
    }

    void cutsTiles()
    {
        using Case = std::tuple<QRectF, double, int, QList<QSize>, QRectF>;
        const SceneSnapshot scene{{150.0, 150.0}, Qt::white, {}};
        for (const auto &[rect, scale, maxTile, expectedSizes, covered] : {
                 // Rows and columns, given from right to left.
                 Case{{5, 2, -10, -7}, 1.0, 4, {{4, 4}, {4, 4}, {2, 4}, {4, 3}, {4, 3}, {2, 3}}, {-5, -5, 10, 7}},
                 Case{{-2.5, 1.1, 4, 3}, 0.5, 8, {{3, 3}}, {-4, 0, 6, 6}}, // grown to whole pixels
                 Case{{0, 0, 30, 3}, 1.0 / 3.0, 4, {{4, 1}, {4, 1}, {2, 1}}, {0, 0, 30, 3}},
                 Case{{}, 0.0, 0, {{1, 1}, {1, 1}, {1, 1}, {1, 1}}, {-100, -100, 200, 200}}, // nothing given
             }) {
            QList<QSize> sizes;
            QRectF united;
            for (const SceneTile &tile : renderSceneTiles(scene, rect, false, scale, maxTile, false)) {
                sizes += tile.image.size();
                united |= tile.sceneRect;
                QCOMPARE(QSizeF(tile.image.size()) / tile.scale, tile.sceneRect.size());
            }
            QCOMPARE(sizes, expectedSizes);
            QCOMPARE(united, covered);
        }
    }

    void tilesJoinWithoutSeam()
    {
        const SceneRenderItem lower = item(gradientPicture(60, 50), at(-31, -23));
        const SceneRenderItem upper = item(gradientPicture(40, 40), at(-20, -10), u"screen"_s, 0.6);
        const SceneSnapshot scene{{64.0, 48.0}, kBackground, {lower, upper}};
        const QRectF view(-40.0, -30.0, 80.0, 60.0);
        // Where a pixel is a power of two of units: elsewhere QPainter steps through a picture in rounded steps from
        // the left edge of the tile.
        for (const double scale : {0.25, 1.0, 2.0}) {
            const QImage whole = renderSceneTiles(scene, view, true, scale, 8192, true).constFirst().image;
            const QList<SceneTile> tiles = renderSceneTiles(scene, view, true, scale, 7, true);
            QImage joined(whole.size(), QImage::Format_RGBA8888);
            joined.fill(Qt::magenta);
            QPainter painter(&joined);
            painter.setCompositionMode(QPainter::CompositionMode_Source);
            const int columns = (whole.width() + 6) / 7;
            for (int i = 0; i < tiles.size(); ++i)
                painter.drawImage(i % columns * 7, i / columns * 7, tiles[i].image);
            painter.end();
            QCOMPARE(joined, whole);
        }
    }

    void interpolatesUpToScaleOne()
    {
        // The picture lies half a pixel off the grid: interpolated, its middle is neither of its colours.
        const SceneSnapshot scene{{2.0, 2.0}, Qt::white, {item(fourColors(), at(-0.5, -0.5, 0.0, {8.0, 8.0}))}};
        const auto others = [&](double scale) {
            const auto tiles = renderSceneTiles(scene, {-4.0, -4.0, 8.0, 8.0}, false, scale, 64, false);
            return letters(tiles.constFirst().image).count(u'?');
        };
        QCOMPARE_GT(others(1.0), 0);
        QCOMPARE(others(2.0), 0);
    }
};

QTEST_GUILESS_MAIN(TestSceneRendering)
#include "tst_scene_rendering.moc"
