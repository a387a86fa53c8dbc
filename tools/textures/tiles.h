#pragma once

#include <QImage>
#include <QList>

namespace zm::textures {

/// A texture of a family, and how it is drawn.
struct TextureRecipe
{
    const char *family;
    const char *file;
    QImage (*draw)();
};

// Masks: white, the pattern is the alpha.
QImage drawFineScratches();
QImage drawHairsAndDust();
QImage drawBrushScrapes();
QImage drawCrossScratches();
QImage drawWornFilm();

QImage drawStarfield();
QImage drawSparkles();
QImage drawConfettiStars();
QImage drawTwinkleClusters();
QImage drawMilkyWay();

/// Grey: how light a tone may be that still gets graphite here. Every grey is equally frequent.
QImage drawGraphiteHatching();

/// Every texture that ships.
inline const QList<TextureRecipe> &allTextures()
{
    static const QList<TextureRecipe> recipes = {
        {"scratch-mask", "fine-scratches.png", drawFineScratches},
        {"scratch-mask", "hairs-and-dust.png", drawHairsAndDust},
        {"scratch-mask", "brush-scrapes.png", drawBrushScrapes},
        {"scratch-mask", "cross-scratches.png", drawCrossScratches},
        {"scratch-mask", "worn-film.png", drawWornFilm},
        {"star-mask", "starfield.png", drawStarfield},
        {"star-mask", "sparkles.png", drawSparkles},
        {"star-mask", "confetti-stars.png", drawConfettiStars},
        {"star-mask", "twinkle-clusters.png", drawTwinkleClusters},
        {"star-mask", "milky-way.png", drawMilkyWay},
        {"pencil", "graphite-hatching.png", drawGraphiteHatching},
    };
    return recipes;
}

} // namespace zm::textures
