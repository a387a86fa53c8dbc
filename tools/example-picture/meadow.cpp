// What grows at our feet: grass, flowers and the branch above.
#include "example-picture/noise.h"
#include "example-picture/scene.h"
#include "textures/random.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

namespace zm::example {

using textures::Random;

namespace {

QColor tone(Random &random, const QColor &a, const QColor &b)
{
    const double part = random.unit();
    return QColor::fromRgbF(float(mix(a.redF(), b.redF(), part)), float(mix(a.greenF(), b.greenF(), part)),
                            float(mix(a.blueF(), b.blueF(), part)));
}

void drawBlade(QPainter &painter, Random &random, QPointF foot, double tall)
{
    const double lean = random.bell() * 0.28 + 0.10;
    const QPointF tip = foot + QPointF(tall * lean, -tall * random.between(0.85, 1.0));
    const QPointF bend = foot + QPointF(tall * lean * 0.15, -tall * 0.62);
    const double half = std::max(0.55, tall * random.between(0.011, 0.021));
    QPainterPath blade(foot - QPointF(half, 0));
    blade.quadTo(bend - QPointF(half, 0), tip);
    blade.quadTo(bend + QPointF(half, 0), foot + QPointF(half, 0));
    const bool dry = random.chance(0.14);
    QLinearGradient gradient(foot, tip);
    gradient.setColorAt(0.0, tone(random, QColor(16, 30, 14), QColor(30, 44, 18)));
    gradient.setColorAt(0.5,
                        dry ? tone(random, QColor(120, 98, 48), QColor(168, 136, 70))
                            : tone(random, QColor(40, 62, 24), QColor(86, 100, 38)));
    gradient.setColorAt(1.0,
                        dry ? tone(random, QColor(214, 180, 104), QColor(250, 222, 150))
                            : tone(random, QColor(112, 128, 48), QColor(222, 204, 106)));
    painter.fillPath(blade, gradient);
}

void drawStem(QPainter &painter, QPointF foot, QPointF head, double width)
{
    QLinearGradient gradient(foot, head);
    gradient.setColorAt(0.0, QColor(26, 44, 20));
    gradient.setColorAt(1.0, QColor(124, 140, 60));
    painter.setPen(QPen(gradient, width, Qt::SolidLine, Qt::RoundCap));
    QPainterPath stem(foot);
    stem.quadTo(QPointF(foot.x() + (head.x() - foot.x()) * 0.2, mix(foot.y(), head.y(), 0.6)), head);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(stem);
    painter.setPen(Qt::NoPen);
}

/// A petal from the origin outwards, with a wavy rim.
QPainterPath petal(Random &random, double angle, double length, double width)
{
    const auto at = [&](double along, double across) {
        return QPointF(std::cos(angle) * along - std::sin(angle) * across,
                       std::sin(angle) * along + std::cos(angle) * across);
    };
    QPainterPath path;
    path.moveTo(at(0, 0));
    path.cubicTo(at(length * 0.2, -width * 0.7), at(length * 0.65, -width * random.between(0.9, 1.15)),
                 at(length * random.between(0.92, 1.02), -width * 0.45));
    path.quadTo(at(length * random.between(1.0, 1.12), -width * 0.2), at(length * random.between(0.95, 1.03), 0));
    path.quadTo(at(length * random.between(1.0, 1.12), width * 0.25),
                at(length * random.between(0.92, 1.02), width * 0.45));
    path.cubicTo(at(length * 0.65, width * random.between(0.9, 1.15)), at(length * 0.2, width * 0.7), at(0, 0));
    return path;
}

/// The sun shines through the petals, so that they glow towards their rims.
void drawPoppy(QPainter &painter, Random &random, QPointF head, double size)
{
    painter.save();
    painter.translate(head);
    painter.rotate(random.between(-18.0, 18.0));
    // Seen from the side, a cup; else open towards us.
    const bool cup = random.chance(0.5);
    painter.scale(1.0, cup ? 1.0 : random.between(0.62, 0.85));
    for (int i = 0; i < (cup ? 3 : 5); ++i) {
        const double angle = cup
            ? -1.5708 + (i == 2 ? 0.0 : (i - 0.5) * 1.5) + random.between(-0.15, 0.15)
            : -1.5708 + (i < 3 ? (i - 1) * 1.25 : (i == 3 ? 2.45 : -2.45)) + random.between(-0.2, 0.2);
        const QPainterPath shape = petal(random, angle, size * random.between(0.92, 1.1), size * 0.72);
        QRadialGradient gradient(QPointF(0, 0), size * 1.1);
        gradient.setColorAt(0.0, QColor(92, 6, 8));
        gradient.setColorAt(0.35, tone(random, QColor(176, 16, 12), QColor(206, 28, 14)));
        gradient.setColorAt(0.8, tone(random, QColor(206, 34, 18), QColor(240, 66, 30)));
        gradient.setColorAt(1.0, tone(random, QColor(252, 112, 52), QColor(255, 148, 84)));
        painter.fillPath(shape, gradient);
        painter.save();
        painter.setClipPath(shape);
        for (int fold = 0; fold < 9; ++fold) {
            const double turn = angle + random.between(-0.75, 0.75);
            painter.setPen(QPen(random.chance(0.5) ? QColor(120, 6, 6, 60) : QColor(255, 170, 110, 60),
                                std::max(0.5, size * 0.035)));
            painter.drawLine(QPointF(0, 0), QPointF(std::cos(turn), std::sin(turn)) * size * 1.1);
        }
        painter.restore();
        painter.setPen(Qt::NoPen);
    }
    if (cup) {
        painter.setBrush(QColor(96, 112, 50));
        painter.drawEllipse(QPointF(0, size * 0.03), size * 0.10, size * 0.07);
        painter.restore();
        return;
    }
    painter.setBrush(QColor(24, 14, 20));
    painter.drawEllipse(QPointF(0, 0), size * 0.20, size * 0.17);
    painter.setBrush(QColor(120, 136, 70));
    painter.drawEllipse(QPointF(0, -size * 0.03), size * 0.09, size * 0.08);
    painter.restore();
}

void drawDaisy(QPainter &painter, Random &random, QPointF head, double size)
{
    painter.save();
    painter.translate(head);
    painter.rotate(random.between(-25.0, 25.0));
    painter.scale(1.0, random.between(0.55, 0.8));
    for (int i = 0; i < 17; ++i) {
        const double angle = i * 6.2832 / 17 + random.between(-0.1, 0.1);
        QRadialGradient gradient(QPointF(0, 0), size);
        gradient.setColorAt(0.2, QColor(196, 196, 186));
        gradient.setColorAt(1.0, std::sin(angle) < 0.0 ? QColor(255, 250, 236) : QColor(206, 208, 220));
        painter.fillPath(petal(random, angle, size, size * 0.17), gradient);
    }
    QRadialGradient heart(QPointF(size * 0.06, -size * 0.1), size * 0.3);
    heart.setColorAt(0.0, QColor(255, 222, 70));
    heart.setColorAt(1.0, QColor(206, 130, 14));
    painter.setBrush(heart);
    painter.drawEllipse(QPointF(0, 0), size * 0.29, size * 0.27);
    painter.restore();
}

void drawCornflower(QPainter &painter, Random &random, QPointF head, double size)
{
    painter.save();
    painter.translate(head);
    painter.setBrush(QColor(52, 66, 38));
    painter.drawEllipse(QPointF(0, size * 0.42), size * 0.24, size * 0.34);
    for (int i = 0; i < 15; ++i) {
        const double angle = random.between(-3.5, 0.4);
        const double length = size * random.between(0.6, 1.05);
        painter.fillPath(petal(random, angle, length, length * 0.26),
                         tone(random, QColor(28, 44, 190), QColor(110, 130, 255)));
    }
    painter.setBrush(QColor(86, 38, 150));
    painter.drawEllipse(QPointF(0, -size * 0.1), size * 0.22, size * 0.18);
    painter.restore();
}

/// A spike of small bells, denser and paler towards its tip.
void drawLupin(QPainter &painter, Random &random, QPointF foot, QPointF tip)
{
    const double tall = foot.y() - tip.y();
    const bool pink = random.chance(0.35);
    const int bells = 90;
    for (int i = 0; i < bells; ++i) {
        const double up = i / double(bells);
        const double half = tall * mix(0.085, 0.014, std::pow(up, 1.3));
        const QPointF at(mix(foot.x(), tip.x(), mix(0.45, 1.0, up)) + random.between(-1.0, 1.0) * half,
                         mix(foot.y(), tip.y(), mix(0.45, 1.0, up)));
        const QColor dark = pink ? QColor(150, 22, 104) : QColor(58, 24, 146);
        const QColor light = pink ? QColor(255, 150, 206) : QColor(186, 146, 255);
        const double lit = std::clamp(0.3 + 0.5 * up + 0.35 * (at.x() - mix(foot.x(), tip.x(), up)) / half, 0.0, 1.0);
        QColor colour =
            QColor::fromRgbF(float(mix(dark.redF(), light.redF(), lit)), float(mix(dark.greenF(), light.greenF(), lit)),
                             float(mix(dark.blueF(), light.blueF(), lit)));
        painter.setBrush(colour);
        const double size = tall * mix(0.024, 0.010, up) * random.between(0.8, 1.2);
        painter.drawEllipse(at, size, size * 0.8);
        painter.setBrush(QColor(255, 240, 250, 90));
        painter.drawEllipse(at + QPointF(size * 0.2, -size * 0.3), size * 0.4, size * 0.25);
    }
}

void drawButtercup(QPainter &painter, Random &random, QPointF head, double size)
{
    for (int i = 0; i < 5; ++i) {
        painter.setBrush(tone(random, QColor(230, 160, 0), QColor(255, 226, 40)));
        const double angle = i * 1.2566 + random.between(-0.3, 0.3);
        painter.drawEllipse(head + QPointF(std::cos(angle), std::sin(angle) * 0.6) * size * 0.5, size * 0.5,
                            size * 0.36);
    }
    painter.setBrush(QColor(190, 120, 0));
    painter.drawEllipse(head, size * 0.22, size * 0.16);
}

/// All plants whose feet lie between two rows, from the farthest to the nearest.
QImage growth(std::uint32_t seed, int firstRow, int endRow, double density, double size)
{
    QImage layer = sheet();
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    Random random(seed);
    for (int row = firstRow; row < endRow; ++row) {
        const double near = std::clamp((row - 840.0) / 250.0, 0.0, 1.4);
        const double tall = size * mix(26.0, 118.0, near);
        const int blades = int(density * mix(150.0, 46.0, std::min(1.0, near)));
        for (int i = 0; i < blades; ++i) {
            const double x = random.between(-20.0, pictureWidth + 20.0);
            const double inside = row - grassLine(x);
            if (inside < random.between(0.0, 22.0))
                continue;
            drawBlade(painter, random, {x, double(row)},
                      tall * random.between(0.5, 1.1) * mix(0.6, 1.0, smoothStep(0.0, 40.0, inside)));
        }
        for (int i = 0; i < 3; ++i) {
            const double x = random.between(0.0, pictureWidth);
            const double kind = clouded(x / 230.0, row / 90.0, 3, 733);
            const double inside = row - grassLine(x);
            if (inside < 12.0 || !random.chance(mix(0.62, 0.20, std::min(1.0, near)) * density))
                continue;
            const double stem = tall * random.between(0.75, 1.25);
            const QPointF foot(x, row);
            const QPointF head(x + stem * random.between(-0.12, 0.2), row - stem);
            if (kind > 0.20 && x > 150.0) {
                const QPointF tip(head.x(), row - stem * 1.35);
                drawStem(painter, foot, tip, tall * 0.02);
                drawLupin(painter, random, foot, tip);
                continue;
            }
            drawStem(painter, foot, head, std::max(0.8, tall * 0.016));
            if (kind > -0.08 || random.chance(0.2))
                drawPoppy(painter, random, head, tall * random.between(0.13, 0.19));
            else if (random.chance(0.5))
                drawDaisy(painter, random, head, tall * random.between(0.085, 0.12));
            else if (random.chance(0.5))
                drawCornflower(painter, random, head, tall * random.between(0.09, 0.12));
            else
                drawButtercup(painter, random, head, tall * random.between(0.05, 0.08));
        }
    }
    return layer;
}

/// Softens what lies before the plane of focus, together with its edge.
QImage outOfFocus(const QImage &layer, double sigma)
{
    // Half as large and back is a soft kernel that keeps alpha and colour together.
    const QSize small(int(layer.width() / sigma), int(layer.height() / sigma));
    return layer.scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(layer.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void drawLeaf(QPainter &painter, Random &random, QPointF at, double angle, double length)
{
    painter.save();
    painter.translate(at);
    painter.rotate(angle * 57.29578);
    painter.scale(1.0, random.between(0.45, 1.0));
    QPainterPath leaf;
    leaf.moveTo(0, 0);
    leaf.cubicTo(length * 0.25, -length * 0.34, length * 0.7, -length * 0.26, length, 0);
    leaf.cubicTo(length * 0.7, length * 0.26, length * 0.25, length * 0.34, 0, 0);
    // Some have the sun behind them and glow.
    const bool glowing = random.chance(0.45);
    QLinearGradient gradient(0, -length * 0.3, 0, length * 0.3);
    gradient.setColorAt(0.0, glowing ? tone(random, QColor(134, 142, 30), QColor(216, 176, 56)) : QColor(34, 52, 20));
    gradient.setColorAt(1.0, glowing ? tone(random, QColor(76, 96, 22), QColor(128, 126, 32)) : QColor(14, 24, 12));
    painter.fillPath(leaf, gradient);
    painter.setPen(QPen(glowing ? QColor(84, 96, 20, 200) : QColor(70, 88, 40, 160), 1.0));
    painter.drawLine(QPointF(0, 0), QPointF(length * 0.95, 0));
    for (int vein = 1; vein < 5; ++vein) {
        const double x = length * vein / 5.5;
        painter.drawLine(QPointF(x, 0), QPointF(x + length * 0.16, -length * 0.16));
        painter.drawLine(QPointF(x, 0), QPointF(x + length * 0.16, length * 0.16));
    }
    painter.restore();
}

void drawTwig(QPainter &painter, Random &random, QPointF at, double angle, double length, double width)
{
    QPointF last = at;
    for (int piece = 0; piece < 12; ++piece) {
        angle += random.bell() * 0.10 + 0.012;
        const QPointF next = last + textures::direction(angle) * (length / 12);
        painter.setPen(
            QPen(QColor(30, 22, 18), std::max(1.0, width * (1.0 - piece / 13.0)), Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(last, next);
        painter.setPen(QPen(QColor(150, 110, 70, 120), std::max(0.5, width * 0.18 * (1.0 - piece / 13.0))));
        painter.drawLine(last + QPointF(width * 0.2, -width * 0.2), next + QPointF(width * 0.2, -width * 0.2));
        painter.setPen(Qt::NoPen);
        if (width > 3.0 && piece > 1 && random.chance(0.75))
            drawTwig(painter, random, next, angle + (random.chance(0.5) ? 0.7 : -0.55),
                     length * random.between(0.28, 0.5), width * 0.42);
        if (width < 6.0) {
            for (int leaf = 0; leaf < 2; ++leaf)
                drawLeaf(painter, random, next, angle + random.between(-1.3, 1.5), random.between(20.0, 36.0));
        }
        last = next;
    }
}

} // namespace

void paintMeadow(Scene &scene)
{
    LightPicture &view = scene.view;
    lay(view, growth(31, 850, 1085, 1.0, 1.0), 0.0, 1.0);
    // Trees behind us leave sun only here and there, and less of it on the left.
    view.fill(700, pictureHeight, [&view](int x, int y) {
        const double inside = smoothStep(-70.0, 50.0, y - grassLine(x));
        const double open = 0.30 * (x - 800.0) / 800.0 - 0.16 * smoothStep(960.0, 1067.0, y);
        const double sunny = smoothStep(-0.40, 0.42, open + 0.9 * clouded(x / 330.0, y / 120.0, 3, 62));
        return view.at(x, y)
            * mix(Light{1.0f, 1.0f, 1.0f}, mix(Light{0.20f, 0.25f, 0.33f}, Light{1.30f, 1.0f, 0.66f}, sunny), inside);
    });
    lay(view, outOfFocus(growth(32, 1100, 1190, 0.22, 1.45), 3.6), 0.0, 0.42);
}

void paintBranch(Scene &scene)
{
    QImage layer = sheet();
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    Random random(93);
    drawTwig(painter, random, {-30, 30}, 0.10, 560.0, 15.0);
    drawTwig(painter, random, {-30, 150}, 0.22, 260.0, 8.0);
    drawTwig(painter, random, {150, -30}, 0.55, 280.0, 7.0);
    painter.end();
    lay(scene.view, outOfFocus(layer, 1.5), 0.03, 0.85);
}

} // namespace zm::example
