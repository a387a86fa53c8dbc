#pragma once

#include "example-picture/light.h"

#include <QPainter>

#include <cstdint>

namespace zm::example {

// The place: a lake at the end of a summer's day, looked at against the light. Coordinates are pixels of the picture.
constexpr int pictureWidth = 1600;
constexpr int pictureHeight = 1067;
constexpr double horizon = 452.0;
constexpr double sunX = 1085.0;
constexpr double sunY = 338.0;

/// The picture on its way: what stands in the air, and the same turned over at each thing's own waterline.
struct Scene
{
    LightPicture view{pictureWidth, pictureHeight, 220};
    LightPicture mirrored{pictureWidth, pictureHeight, 220};

    /// What stands in or behind the water, painted already into `mirrored` and still missing in `view`.
    struct Standing
    {
        QImage painted;
        double hazeShare;
        double strength;
    };
    std::vector<Standing> standing;
};

/// How much of the sun's glow lies in the direction of a place, from 0 to 1.
double sunGlow(double x, double y);

/// What the air puts before far things.
Light haze(double x, double y);

/// Lays what was painted over the view, with `hazeShare` of haze before it; `strength` scales its light.
void lay(LightPicture &view, const QImage &painted, double hazeShare, double strength = 1.0);

/// Lays what was painted over the reflection, turned over at `waterline`, and keeps it for the view.
void stand(Scene &scene, const QImage &painted, double hazeShare, double waterline, double strength = 1.0);

/// An empty sheet to paint on, with a painter's smooth edges.
QImage sheet();

void paintSky(Scene &scene);
void paintMountains(Scene &scene);
void paintForests(Scene &scene);
void paintHouse(Scene &scene);
void paintWater(Scene &scene);
void paintBoat(Scene &scene);
void paintShore(Scene &scene);
void paintMeadow(Scene &scene);
void paintBranch(Scene &scene);

/// The row at which the water meets the pebbles.
double shoreLine(double x);

/// The row at which the grass begins.
double grassLine(double x);

/// Glow, tone curve, corners and grain.
QImage developed(const LightPicture &view);

} // namespace zm::example
