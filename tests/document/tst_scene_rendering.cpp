#include "document/blend_modes.h"
#include "document/scene_renderer.h"
#include "support/pictures.h"

#include <QtTest>

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
    QImage image(2, 2, QImage::Format_RGBA8888);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::green);
    image.setPixelColor(0, 1, Qt::blue);
    image.setPixelColor(1, 1, Qt::black);
    return image;
}

/// A letter for each pixel, rows parted by a bar; "-" is transparent, "?" is any other colour.
QString letters(const QImage &image)
{
    const QList<std::pair<QColor, QChar>> names{{Qt::red, u'r'},   {Qt::green, u'g'}, {Qt::blue, u'b'},
                                                {Qt::black, u'k'}, {Qt::white, u'.'}};
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const auto name = std::ranges::find_if(names, [&](const auto &n) { return n.first.rgba() == pixel.rgba(); });
            row += pixel.alpha() == 0 ? u'-' : name == names.end() ? u'?' : name->second;
        }
        rows += row;
    }
    return rows.join(u'|');
}

QImage joined(const QList<SceneTile> &tiles, const QSize &size, int maxTile)
{
    QImage whole(size, QImage::Format_RGBA8888);
    whole.fill(Qt::magenta);
    QPainter painter(&whole);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const int columns = (size.width() + maxTile - 1) / maxTile;
    for (int i = 0; i < tiles.size(); ++i)
        painter.drawImage(i % columns * maxTile, i / columns * maxTile, tiles[i].image);
    return whole;
}

// The blend functions of the W3C recommendation "Compositing and Blending Level 1" for opaque colours: b is the
// backdrop, s the source, both 0..1.
using BlendFunction = double (*)(double b, double s);
double multiply(double b, double s) { return b * s; }
double screen(double b, double s) { return b + s - b * s; }
double hardLight(double b, double s) { return s <= 0.5 ? multiply(b, 2.0 * s) : screen(b, 2.0 * s - 1.0); }
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
    void blendsAsPublished_data();
    void blendsAsPublished();
    void mixesByOpacity();
    void placesPictures_data();
    void placesPictures();
    void clipsToTheDocumentOrFillsTheView();
    void outlineLiesUnderTheLayers();
    void roundsContentBoundsOutward();
    void cutsTiles_data();
    void cutsTiles();
    void tilesJoinWithoutSeam_data();
    void tilesJoinWithoutSeam();
    void interpolatesUpToScaleOne();
};

void TestSceneRendering::blendsAsPublished_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<BlendFunction>("function");
    const auto row = [](const char *key, BlendFunction function) {
        QTest::newRow(key) << QString::fromLatin1(key) << function;
    };
    const BlendFunction normal = [](double, double s) { return s; };
    for (const char *key : {"source-over", "hue", "saturation", "color", "luminosity", "no such mode"})
        row(key, normal);
    row("multiply", multiply);
    row("screen", screen);
    row("overlay", [](double b, double s) { return hardLight(s, b); });
    row("darken", [](double b, double s) { return std::min(b, s); });
    row("lighten", [](double b, double s) { return std::max(b, s); });
    row("color-dodge", [](double b, double s) { return b == 0.0 ? 0.0 : s == 1.0 ? 1.0 : std::min(1.0, b / (1.0 - s)); });
    row("color-burn",
        [](double b, double s) { return b == 1.0 ? 1.0 : s == 0.0 ? 0.0 : 1.0 - std::min(1.0, (1.0 - b) / s); });
    row("hard-light", hardLight);
    row("soft-light", softLight);
    row("difference", [](double b, double s) { return std::abs(b - s); });
    row("exclusion", [](double b, double s) { return b + s - 2.0 * b * s; });
}

void TestSceneRendering::blendsAsPublished()
{
    QFETCH(QString, key);
    QFETCH(BlendFunction, function);
    // The channels fall on both sides of every condition of the formulas.
    const QColor source(80, 180, 240);
    SceneSnapshot scene{{1.0, 1.0}, kBackground, {item(plainPicture(1, 1, source), at(-0.5, -0.5), key)}};
    const QColor result = renderDocumentImage(scene, 1.0).pixelColor(0, 0);
    const int backdrops[]{kBackground.red(), kBackground.green(), kBackground.blue()};
    const int sources[]{source.red(), source.green(), source.blue()};
    const int results[]{result.red(), result.green(), result.blue()};
    for (int i = 0; i < 3; ++i) {
        const double expected = 255.0 * function(backdrops[i] / 255.0, sources[i] / 255.0);
        // One level: rounded once in the formula and once when stored.
        QVERIFY2(std::abs(results[i] - expected) <= 1.0, qPrintable(u"%1 for %2"_s.arg(results[i]).arg(expected)));
    }
    QCOMPARE(result.alpha(), 255);
}

void TestSceneRendering::mixesByOpacity()
{
    SceneSnapshot scene{{1.0, 1.0}, Qt::white, {item(plainPicture(1, 1, Qt::black), at(-0.5, -0.5), u"multiply"_s, 0.25)}};
    QVERIFY(std::abs(renderDocumentImage(scene, 1.0).pixelColor(0, 0).red() - 191) <= 1);
    scene.items[0].opacity = 0.0;
    QCOMPARE(letters(renderDocumentImage(scene, 1.0)), u"."_s);
}

void TestSceneRendering::placesPictures_data()
{
    QTest::addColumn<ObjectTransform>("transform");
    QTest::addColumn<QPointF>("origin");
    QTest::addColumn<QString>("expected");
    const QPointF none;
    QTest::newRow("as it is") << at(-2, -2) << none << u"rg..|bk..|....|...."_s;
    QTest::newRow("shifted") << at(0, -1) << none << u"....|..rg|..bk|...."_s;
    QTest::newRow("mirrored across") << at(-2, -2, 0, {-1, 1}) << none << u"gr..|kb..|....|...."_s;
    QTest::newRow("mirrored down") << at(-2, -2, 0, {1, -1}) << none << u"bk..|rg..|....|...."_s;
    QTest::newRow("turned right") << at(-2, -2, 90) << none << u"br..|kg..|....|...."_s;
    QTest::newRow("turned about its corner") << at(0, 0, 180, {1, 1}, {0, 0}) << none << u"kb..|gr..|....|...."_s;
    QTest::newRow("enlarged from its far corner")
        << at(0, 0, 0, {2, 2}, {1, 1}) << none << u"rrgg|rrgg|bbkk|bbkk"_s;
    QTest::newRow("grown picture turns about the layer's own middle")
        << at(-2, -2, 180) << QPointF(-1, -1) << u"....|.kb.|.gr.|...."_s;
}

void TestSceneRendering::placesPictures()
{
    QFETCH(ObjectTransform, transform);
    QFETCH(QPointF, origin);
    QFETCH(QString, expected);
    SceneSnapshot scene{{4.0, 4.0}, Qt::white, {item(fourColors(), transform)}};
    scene.items[0].imageOrigin = origin;
    QCOMPARE(letters(renderSceneTile(scene, {}, true, 1.0, false, false)), expected);
}

void TestSceneRendering::clipsToTheDocumentOrFillsTheView()
{
    const SceneSnapshot scene{{2.0, 2.0}, Qt::white, {item(fourColors(), at(0.0, 0.0))}};
    const QRectF view(-2.0, -2.0, 4.0, 4.0);
    QCOMPARE(letters(renderSceneTile(scene, view, true, 1.0, true, false)), u"----|-..-|-.r-|----"_s);
    QCOMPARE(letters(renderSceneRegion(scene, view, 1.0)), u"....|....|..rg|..bk"_s);
    QCOMPARE(letters(renderSceneTile(scene, {}, false, 1.0, true, false)), u"..|.r"_s);
}

void TestSceneRendering::outlineLiesUnderTheLayers()
{
    SceneSnapshot scene{{40.0, 40.0}, Qt::white, {}};
    const QRectF view(-30.0, -30.0, 60.0, 60.0);
    // A row of pixels just outside the document's upper edge, from its corner: 12 drawn, 8 left out.
    const QImage outlined = renderSceneTile(scene, view, false, 1.0, true, true);
    QVERIFY(maximumDifference(outlined.copy(11, 9, 10, 1), plainPicture(10, 1, {189, 193, 198})) <= 1);
    QCOMPARE(outlined.pixelColor(26, 9), QColor(Qt::white));
    QCOMPARE(outlined.pixelColor(15, 10), QColor(Qt::white));
    // Twice as large the line is as thin.
    const QImage larger = renderSceneTile(scene, view, false, 2.0, true, true);
    QCOMPARE(larger.pixelColor(24, 18), QColor(Qt::white));
    QVERIFY(maximumDifference(larger.copy(24, 19, 1, 1), plainPicture(1, 1, {189, 193, 198})) <= 1);
    QCOMPARE(larger.pixelColor(24, 20), QColor(Qt::white));

    scene.items = {item(plainPicture(60, 60, Qt::red), at(-30.0, -30.0))};
    QCOMPARE(renderSceneTile(scene, view, false, 1.0, true, true), plainPicture(60, 60, Qt::red));
}

void TestSceneRendering::roundsContentBoundsOutward()
{
    SceneSnapshot scene{{5.0, 3.0}, Qt::white, {}};
    QCOMPARE(contentBounds(scene), QRectF(-3.0, -2.0, 6.0, 4.0));
    scene.items = {item(fourColors(), at(0.25, 7.5)), item(fourColors(), at(-4.0, 1.0, 0.0, {2.0, 2.0})),
                   item(QImage(), at(99.0, 99.0))};
    QCOMPARE(objectBounds(scene, scene.items[1].objectId), QRectF(-5.0, 0.0, 4.0, 4.0));
    QCOMPARE(objectBounds(scene, QUuid::createUuid()), QRectF());
    QCOMPARE(contentBounds(scene), QRectF(-5.0, 0.0, 8.0, 10.0));
}

void TestSceneRendering::cutsTiles_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("maxTile");
    QTest::addColumn<QList<QSize>>("sizes");
    QTest::addColumn<QRectF>("covered");
    using Sizes = QList<QSize>;
    QTest::newRow("one tile") << QRectF(0, 0, 10, 20) << 1.0 << 32 << Sizes{{10, 20}} << QRectF(0, 0, 10, 20);
    QTest::newRow("wider than a texture")
        << QRectF(0, 0, 9000, 100) << 1.0 << 8192 << Sizes{{8192, 100}, {808, 100}} << QRectF(0, 0, 9000, 100);
    QTest::newRow("rows and columns") << QRectF(-5, -5, 10, 7) << 1.0 << 4
                                      << Sizes{{4, 4}, {4, 4}, {2, 4}, {4, 3}, {4, 3}, {2, 3}} << QRectF(-5, -5, 10, 7);
    QTest::newRow("grows to whole pixels at half size")
        << QRectF(-2.5, 1.1, 4, 3) << 0.5 << 8 << Sizes{{3, 3}} << QRectF(-4, 0, 6, 6);
    QTest::newRow("grows to whole pixels at 4")
        << QRectF(0.3, 0.25, 1, 1) << 4.0 << 8 << Sizes{{5, 4}} << QRectF(0.25, 0.25, 1.25, 1);
    QTest::newRow("a third, several tiles")
        << QRectF(0, 0, 30, 3) << 1.0 / 3.0 << 4 << Sizes{{4, 1}, {4, 1}, {2, 1}} << QRectF(0, 0, 30, 3);
    QTest::newRow("drawn from right to left")
        << QRectF(3, 3, -3, -3) << 1.0 << 8 << Sizes{{3, 3}} << QRectF(0, 0, 3, 3);
    QTest::newRow("no rectangle, no scale, no tile size")
        << QRectF() << 0.0 << 0 << Sizes{{1, 1}, {1, 1}, {1, 1}, {1, 1}} << QRectF(-100, -100, 200, 200);
}

void TestSceneRendering::cutsTiles()
{
    QFETCH(QRectF, rect);
    QFETCH(double, scale);
    QFETCH(int, maxTile);
    QFETCH(QList<QSize>, sizes);
    QFETCH(QRectF, covered);
    const QList<SceneTile> tiles = renderSceneTiles({{150.0, 150.0}, Qt::white, {}}, rect, false, scale, maxTile, false);
    QList<QSize> actual;
    QRectF united;
    for (const SceneTile &tile : tiles) {
        actual += tile.image.size();
        united |= tile.sceneRect;
        QCOMPARE(QSizeF(tile.image.size()) / tile.scale, tile.sceneRect.size());
    }
    QCOMPARE(actual, sizes);
    QCOMPARE(united, covered);
}

void TestSceneRendering::tilesJoinWithoutSeam_data()
{
    QTest::addColumn<double>("scale");
    // Where a pixel is a power of two of units: elsewhere QPainter steps through a picture in rounded steps from the
    // left edge of the tile.
    for (const double scale : {0.25, 0.5, 1.0, 2.0})
        QTest::addRow("scale %g", scale) << scale;
}

void TestSceneRendering::tilesJoinWithoutSeam()
{
    QFETCH(double, scale);
    SceneSnapshot scene{{64.0, 48.0}, kBackground, {item(gradientPicture(60, 50), at(-31.0, -23.0)),
                                                    item(gradientPicture(40, 40), at(-20, -10), u"screen"_s, 0.6)}};
    const QRectF view(-40.0, -30.0, 80.0, 60.0);
    const SceneTile whole = renderSceneTiles(scene, view, true, scale, 8192, true).constFirst();
    const QList<SceneTile> tiles = renderSceneTiles(scene, view, true, scale, 7, true);
    QCOMPARE_GT(tiles.size(), 1);
    QCOMPARE(joined(tiles, whole.image.size(), 7), whole.image);
}

void TestSceneRendering::interpolatesUpToScaleOne()
{
    // The picture lies half a pixel off the grid: interpolated, its middle is neither of its colours.
    const SceneSnapshot scene{{2.0, 2.0}, Qt::white, {item(fourColors(), at(-0.5, -0.5, 0.0, {8.0, 8.0}))}};
    const QRectF view(-4.0, -4.0, 8.0, 8.0);
    const auto others = [&](double scale) {
        return letters(renderSceneTiles(scene, view, false, scale, 64, false).constFirst().image).count(u'?');
    };
    QCOMPARE_GT(others(1.0), 0);
    QCOMPARE(others(2.0), 0);
}

QTEST_GUILESS_MAIN(TestSceneRendering)
#include "tst_scene_rendering.moc"
