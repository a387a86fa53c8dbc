// The wooded slopes, the house with its landing stage, and the boat.
#include "example-picture/noise.h"
#include "example-picture/scene.h"
#include "textures/random.h"

#include <QLinearGradient>
#include <QPainterPath>

namespace zm::example {

using textures::Random;

namespace {

QColor blend(const QColor &a, const QColor &b, double part)
{
    return QColor::fromRgbF(float(mix(a.redF(), b.redF(), part)), float(mix(a.greenF(), b.greenF(), part)),
                            float(mix(a.blueF(), b.blueF(), part)));
}

/// A spruce in twigs: dark inside, with warm tips on the side of the sun.
void drawSpruce(QPainter &painter, Random &random, double x, double foot, double height, double brightness)
{
    const double half = height * random.between(0.15, 0.22);
    const bool sunRight = x < sunX;
    painter.setBrush(QColor(38, 30, 24));
    painter.drawRect(QRectF(x - height * 0.012, foot - height * 0.16, height * 0.024, height * 0.16));
    const int tiers = std::clamp(int(height / 3.4), 6, 24);
    for (int tier = tiers; tier >= 0; --tier) {
        const double up = 1.0 - (tier + 0.4) / (tiers + 1.0);
        const double top = foot - height * (0.10 + 0.90 * up) - height * 0.09;
        const double reach = half * std::pow(1.0 - up, 0.82) + height * 0.008;
        for (int twig = 0; twig < 5; ++twig) {
            const double side = -1.0 + 0.5 * twig + random.between(-0.22, 0.22);
            const double tipX = x + side * reach * random.between(0.8, 1.2);
            const double tipY = top + height * (0.09 + 0.035 * std::abs(side)) * random.between(0.85, 1.2);
            const double sunny =
                std::clamp((sunRight ? side : -side) * 0.55 + 0.30 + random.between(-0.22, 0.22), 0.0, 1.0);
            painter.setBrush(blend(QColor(16, 27, 21), QColor(112, 104, 46), sunny * sunny * brightness));
            const double wide = reach * 0.34;
            const QPointF corners[] = {{x, top},
                                       {tipX + wide * 0.5, tipY - height * 0.012},
                                       {tipX, tipY},
                                       {tipX - wide * 0.8, tipY - height * 0.006}};
            painter.drawConvexPolygon(corners, 4);
        }
    }
}

/// A round tree: a heap of leaves, lighter towards the sun.
void drawBroadleaf(QPainter &painter, Random &random, double x, double foot, double height, double brightness)
{
    painter.setBrush(QColor(34, 28, 22));
    painter.drawRect(QRectF(x - height * 0.025, foot - height * 0.4, height * 0.05, height * 0.4));
    const double towards = x < sunX ? 1.0 : -1.0;
    const QColor tone = blend(QColor(58, 78, 28), QColor(120, 96, 30), random.unit());
    for (int i = 0; i < int(24 + height * 2.2); ++i) {
        const double angle = random.angle();
        const double away = std::sqrt(random.unit());
        const double dx = std::cos(angle) * away;
        const double dy = std::sin(angle) * away;
        const double sunny = std::clamp(0.34 + 0.42 * dx * towards - 0.45 * dy + random.between(-0.25, 0.25), 0.0, 1.0);
        painter.setBrush(blend(QColor(18, 28, 18), tone, sunny * brightness));
        const double size = height * random.between(0.03, 0.075);
        painter.drawEllipse(QPointF(x + dx * height * 0.36, foot - height * 0.60 + dy * height * 0.38), size,
                            size * 0.8);
    }
}

struct Slope
{
    double left, right; ///< where it is at its highest and where it ends
    double height;
    double waterline;
    double hazeShare;
    double tree; ///< height of a tree, pixels
    int trees;
    std::uint32_t seed;
};

const Slope slopes[] = {
    {1600, 1190, 62, 461, 0.46, 15, 1500, 301},
    {0, 900, 128, 466, 0.40, 17, 2600, 302},
    {0, 560, 150, 480, 0.20, 31, 1300, 303},
};

double slopeTop(const Slope &slope, double x)
{
    const double along = std::clamp((x - slope.left) / (slope.right - slope.left), 0.0, 1.0);
    const double fall = 0.5 + 0.5 * std::cos(along * 3.14159265);
    return slope.waterline - slope.height * fall * (1.0 + 0.30 * clouded(x / 170.0, slope.seed, 3, slope.seed))
        - 1.5 * fall;
}

void paintSlope(Scene &scene, const Slope &slope)
{
    QImage layer = sheet();
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double from = std::min(slope.left, slope.right);
    const double to = std::max(slope.left, slope.right);
    QPainterPath ground;
    ground.moveTo(from, slope.waterline);
    for (int x = int(from); x <= int(to); x += 2)
        ground.lineTo(x, slopeTop(slope, x));
    ground.lineTo(to, slope.waterline);
    painter.fillPath(ground, QColor(26, 36, 26));

    Random random(slope.seed);
    struct Tree
    {
        double x, foot, height;
    };
    std::vector<Tree> trees;
    for (int i = 0; i < slope.trees; ++i) {
        const double x = random.between(from - 10.0, to);
        const double top = slopeTop(slope, x);
        if (slope.waterline - top < 3.0)
            continue;
        // A few clearings show the meadow between the trees.
        const double foot = mix(top + 1.0, slope.waterline, std::pow(random.unit(), 0.8));
        if (clouded(x / 120.0, foot / 30.0, 3, slope.seed + 5) > 0.34)
            continue;
        trees.push_back({x, foot, slope.tree * random.between(0.6, 1.25)});
    }
    std::sort(trees.begin(), trees.end(), [](const Tree &a, const Tree &b) { return a.foot < b.foot; });
    for (const Tree &tree : trees) {
        const double brightness = random.between(0.5, 1.0);
        if (random.chance(0.22))
            drawBroadleaf(painter, random, tree.x, tree.foot, tree.height * 0.75, brightness);
        else
            drawSpruce(painter, random, tree.x, tree.foot, tree.height, brightness);
    }
    painter.end();
    stand(scene, layer, slope.hazeShare, slope.waterline);
}

/// Boards or shingles: rows of a colour that varies from one to the next.
void drawRows(QPainter &painter, Random &random, const QPolygonF &outline, const QColor &dark, const QColor &light,
              double step, double piece)
{
    QPainterPath clip;
    clip.addPolygon(outline);
    painter.save();
    painter.setClipPath(clip, Qt::IntersectClip);
    const QRectF box = outline.boundingRect();
    for (int row = 0; row < box.height() / step; ++row) {
        const double y = box.top() + row * step;
        const double start = box.left() - random.between(0.0, piece);
        for (int column = 0; column < (box.right() - start) / piece; ++column) {
            const double x = start + column * piece;
            painter.setBrush(blend(dark, light, random.unit()));
            painter.drawRect(QRectF(x, y, piece + 0.5, step + 0.5));
        }
        painter.setBrush(QColor(0, 0, 0, 90));
        painter.drawRect(QRectF(box.left(), y + step - 0.8, box.width(), 0.8));
    }
    painter.restore();
}

void drawWindow(QPainter &painter, const QRectF &box)
{
    painter.setBrush(QColor(232, 226, 212));
    painter.drawRect(box.adjusted(-2.0, -2.0, 2.0, 2.0));
    QLinearGradient glass(box.topLeft(), box.bottomLeft());
    glass.setColorAt(0.0, QColor(255, 196, 92));
    glass.setColorAt(1.0, QColor(255, 232, 166));
    painter.setBrush(glass);
    painter.drawRect(box);
    painter.setBrush(QColor(226, 218, 202));
    painter.drawRect(QRectF(box.center().x() - 0.7, box.top(), 1.4, box.height()));
    painter.drawRect(QRectF(box.left(), box.center().y() - 0.7, box.width(), 1.4));
}

constexpr double headland = 533.0; ///< the row where its bank meets the water

double headlandTop(double x)
{
    return headland - 34.0 * smoothStep(500.0, 250.0, x) - 3.0 + 2.5 * clouded(x / 40.0, 2.0, 3, 77);
}

void drawHeadland(QPainter &painter, Random &random)
{
    QPainterPath bank;
    bank.moveTo(-5, headland + 2);
    for (int x = -5; x <= 520; x += 3)
        bank.lineTo(x, headlandTop(x));
    bank.lineTo(530, headland + 1);
    painter.fillPath(bank, QColor(74, 84, 36));
    for (int i = 0; i < 6500; ++i) { // grass and reeds
        const double x = random.between(-5.0, 522.0);
        const double y = mix(headlandTop(x), headland + 2.0, random.unit());
        const double tall =
            random.between(2.0, 6.0) + (y > headland - 3.0 && random.chance(0.25) ? random.between(3.0, 13.0) : 0.0);
        const QColor tone = blend(QColor(40, 58, 24), QColor(186, 168, 74), random.skewed(0.0, 1.0, 1.7));
        painter.setPen(QPen(tone, 0.9));
        painter.drawLine(QPointF(x, y), QPointF(x + random.between(-1.5, 1.5), y - tall));
    }
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 90; ++i) {
        const double x = random.between(0.0, 520.0);
        const double size = random.between(1.5, 5.0);
        painter.setBrush(blend(QColor(52, 48, 46), QColor(150, 136, 118), random.unit()));
        painter.drawEllipse(QPointF(x, headland + random.between(-1.0, 2.0)), size, size * 0.55);
    }
}

void drawLandingStage(QPainter &painter, Random &random)
{
    for (double x : {452.0, 494.0, 536.0, 578.0, 618.0}) {
        painter.setBrush(QColor(44, 34, 28));
        painter.drawRect(QRectF(x - 3.0, 512.0, 6.0, 26.0));
        painter.setBrush(QColor(148, 112, 74));
        painter.drawRect(QRectF(x + 1.4, 512.0, 1.6, 25.0));
    }
    for (int plank = 0; plank < 28; ++plank) {
        const double x = 430.0 + 7.0 * plank;
        painter.setBrush(blend(QColor(122, 94, 68), QColor(214, 176, 124), random.unit()));
        painter.drawConvexPolygon(QPolygonF({{x, 518.0}, {x + 6.4, 518.0}, {x + 8.4, 523.5}, {x + 2.0, 523.5}}));
    }
    painter.setBrush(QColor(58, 43, 33));
    painter.drawRect(QRectF(432.0, 523.5, 197.0, 3.4));
}

} // namespace

void paintForests(Scene &scene)
{
    for (const Slope &slope : slopes)
        paintSlope(scene, slope);
}

void paintHouse(Scene &scene)
{
    QImage layer = sheet();
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    Random random(411);
    for (double x : {62.0, 96.0, 128.0, 388.0, 30.0, 4.0})
        drawSpruce(painter, random, x, headlandTop(x) + 4.0, random.between(105.0, 165.0), 0.8);
    drawHeadland(painter, random);

    // The gable looks at us, the long side at the sun.
    const QPolygonF gable({{190, 508}, {190, 448}, {230, 405}, {270, 448}, {270, 510}});
    const QPolygonF side({{270, 510}, {270, 448}, {372, 446}, {372, 506}});
    const QPolygonF roof({{228, 399}, {344, 399}, {388, 452}, {274, 454}});
    const QPolygonF eave({{228, 399}, {234, 402}, {186, 456}, {179, 454}});
    drawRows(painter, random, gable, QColor(84, 30, 26), QColor(108, 40, 32), 5.0, 200.0);
    drawRows(painter, random, side, QColor(168, 64, 44), QColor(200, 84, 56), 5.0, 200.0);
    painter.setBrush(QColor(70, 56, 54));
    painter.drawRect(QRectF(312, 382, 17, 34));
    painter.setBrush(QColor(168, 104, 80));
    painter.drawRect(QRectF(322, 382, 7, 34));
    painter.setBrush(QColor(52, 44, 44));
    painter.drawRect(QRectF(309, 379, 23, 5));
    drawRows(painter, random, roof, QColor(66, 62, 70), QColor(146, 124, 112), 4.4, 7.0);
    painter.setBrush(QColor(228, 220, 206));
    painter.drawPolygon(eave);
    painter.drawPolygon(QPolygonF({{228, 399}, {233, 397}, {280, 452}, {274, 456}}));
    painter.drawRect(QRectF(187, 448, 3.5, 60));
    painter.drawRect(QRectF(268, 452, 3.5, 58));
    drawWindow(painter, QRectF(203, 462, 18, 22));
    drawWindow(painter, QRectF(290, 464, 20, 20));
    drawWindow(painter, QRectF(342, 463, 19, 20));
    drawWindow(painter, QRectF(223, 426, 13, 14));
    painter.setBrush(QColor(38, 70, 84)); // the door
    painter.drawRect(QRectF(237, 464, 20, 44));
    painter.setBrush(QColor(74, 118, 130));
    painter.drawRect(QRectF(240, 467, 14, 17));
    painter.setBrush(QColor(0, 0, 0, 70)); // the shadow of the roof
    painter.drawPolygon(QPolygonF({{270, 454}, {374, 452}, {374, 458}, {270, 461}}));
    drawLandingStage(painter, random);
    for (int i = 0; i < 260; ++i) { // grass at the walls
        const double x = random.between(180.0, 380.0);
        painter.setPen(QPen(blend(QColor(50, 64, 26), QColor(170, 160, 70), random.unit()), 1.0));
        painter.drawLine(QPointF(x, 512.0), QPointF(x + random.between(-2.0, 2.0), 512.0 - random.between(3.0, 9.0)));
    }
    painter.end();
    stand(scene, layer, 0.07, headland + 2.0, 0.80);
}

void paintBoat(Scene &scene)
{
    QImage layer = sheet();
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.translate(752, 640);
    QPainterPath inside;
    inside.moveTo(-98, -27);
    inside.cubicTo(-60, -40, 50, -40, 104, -33);
    inside.cubicTo(60, -18, -50, -14, -98, -27);
    QLinearGradient wood(0, -38, 0, -16);
    wood.setColorAt(0.0, QColor(74, 48, 32));
    wood.setColorAt(1.0, QColor(176, 120, 70));
    painter.fillPath(inside, wood);
    for (double x : {-52.0, -4.0, 48.0}) { // thwarts
        painter.setBrush(QColor(206, 160, 100));
        painter.drawConvexPolygon(QPolygonF({{x, -35}, {x + 15, -36}, {x + 12, -17}, {x - 4, -17}}));
        painter.setBrush(QColor(70, 44, 28));
        painter.drawConvexPolygon(QPolygonF({{x - 4, -17}, {x + 12, -17}, {x + 11, -14}, {x - 4, -14}}));
    }
    QPainterPath hull;
    hull.moveTo(-98, -27);
    hull.cubicTo(-50, -13, 60, -17, 104, -33);
    hull.cubicTo(98, -12, 86, 0, 74, 3);
    hull.lineTo(-76, 4);
    hull.cubicTo(-88, -4, -95, -14, -98, -27);
    QLinearGradient paint(0, -30, 0, 4);
    paint.setColorAt(0.0, QColor(46, 142, 156));
    paint.setColorAt(0.55, QColor(22, 92, 110));
    paint.setColorAt(1.0, QColor(8, 38, 50));
    painter.fillPath(hull, paint);
    painter.setClipPath(hull);
    painter.setBrush(Qt::NoBrush);
    for (int plank = 1; plank < 4; ++plank) {
        painter.setPen(QPen(QColor(4, 30, 40, 150), 1.2));
        QPainterPath seam;
        seam.moveTo(-100, -27 + plank * 8.0);
        seam.cubicTo(-50, -12 + plank * 6.5, 60, -16 + plank * 7.0, 106, -33 + plank * 9.5);
        painter.drawPath(seam);
    }
    painter.setClipping(false);
    painter.setPen(QPen(QColor(244, 232, 208), 3.2, Qt::SolidLine, Qt::RoundCap)); // the gunwale
    QPainterPath edge;
    edge.moveTo(-98, -27);
    edge.cubicTo(-50, -13, 60, -17, 104, -33);
    painter.drawPath(edge);
    painter.setPen(QPen(QColor(190, 174, 148), 1.6));
    edge.clear();
    edge.moveTo(-98, -27);
    edge.cubicTo(-60, -40, 50, -40, 104, -33);
    painter.drawPath(edge);
    painter.setPen(QPen(QColor(226, 186, 124), 3.0, Qt::SolidLine, Qt::RoundCap)); // an oar
    painter.drawLine(QPointF(-70, -40), QPointF(66, -28));
    painter.end();
    stand(scene, layer, 0.02, 643.0, 0.72);
}

} // namespace zm::example
