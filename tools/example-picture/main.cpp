// Paints the example picture: make_example_picture FILE.jpg
// It shows what effects do, so it has a full range of tones, soft and fine parts, straight edges and strong colours.
#include "example-picture/noise.h"
#include "example-picture/scene.h"

#include <QGuiApplication>
#include <QImageWriter>

#include <cstdio>

namespace zm::example {

QImage sheet()
{
    QImage image(pictureWidth, pictureHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

namespace {

Light seen(QRgb painted, double x, double y, double hazeShare, double strength)
{
    const double worn = 1.0 + 0.30 * clouded(x / 7.0, y / 5.0, 4, 660); // nothing is of one colour
    return mix(lightOf(qUnpremultiply(painted)) * (strength * worn), haze(x, y), hazeShare);
}

/// Light to what a film would show: a straight middle, a soft shoulder and a short toe.
double toned(double light)
{
    const double v = std::max(0.0, light);
    const double curve = v * (2.51 * v + 0.03) / (v * (2.43 * v + 0.59) + 0.14); // Narkowicz's fit of ACES, 2015
    return curve <= 0.0031308 ? 12.92 * curve : 1.055 * std::pow(curve, 1.0 / 2.4) - 0.055;
}

} // namespace

void lay(LightPicture &view, const QImage &painted, double hazeShare, double strength)
{
    view.fill(0, pictureHeight, [&](int x, int y) {
        const QRgb pixel = painted.pixel(x, y);
        return qAlpha(pixel) == 0 ? view.at(x, y)
                                  : mix(view.at(x, y), seen(pixel, x, y, hazeShare, strength), qAlpha(pixel) / 255.0);
    });
}

void stand(Scene &scene, const QImage &painted, double hazeShare, double waterline, double strength)
{
    scene.mirrored.fill(int(waterline), pictureHeight, [&](int x, int y) {
        const int row = int(2 * waterline) - y;
        const QRgb pixel = row >= 0 ? painted.pixel(x, row) : 0;
        return qAlpha(pixel) == 0
            ? scene.mirrored.at(x, y)
            : mix(scene.mirrored.at(x, y), seen(pixel, x, row, hazeShare, strength), qAlpha(pixel) / 255.0);
    });
    scene.standing.push_back({painted, hazeShare, strength});
}

QImage developed(const LightPicture &view)
{
    LightPicture bright(view.width(), view.height());
    bright.fill(0, view.height(), [&view](int x, int y) {
        const Light light = view.at(x, y);
        const double most = std::max({light.r, light.g, light.b});
        return light * (std::min(most, 9.0) / std::max(most, 1e-6) * smoothStep(0.7, 2.5, most));
    });
    const LightPicture tight = bright.blurred(5.0);
    const LightPicture wide = bright.blurred(60.0);

    QImage image(view.width(), view.height(), QImage::Format_RGB32);
    for (int y = 0; y < view.height(); ++y) {
        for (int x = 0; x < view.width(); ++x) {
            Light light = view.at(x, y) + tight.at(x, y) * 0.10 + wide.at(x, y) * 0.10;
            const double away = std::hypot(x - view.width() / 2.0, y - view.height() / 2.0) / (view.width() / 2.0);
            light = light * (1.0 * (1.0 - 0.26 * std::pow(away, 2.6)));
            const double grey = 0.2126 * light.r + 0.7152 * light.g + 0.0722 * light.b;
            light = mix(Light{float(grey), float(grey), float(grey)}, light, 1.14);
            const double grain = (cellValue(x, y, 1) + cellValue(x, y, 2) + cellValue(x, y, 3) - 1.5) * 2.6;
            const auto channel = [grain](double value) {
                return int(std::clamp(toned(value) * 255.0 + grain + 0.5, 0.0, 255.0));
            };
            image.setPixel(x, y, qRgb(channel(light.r), channel(light.g), channel(light.b)));
        }
    }
    return image;
}

} // namespace zm::example

int main(int argc, char **argv)
{
    using namespace zm::example;
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make_example_picture FILE.jpg\n", stderr);
        return 2;
    }
    Scene scene;
    paintSky(scene);
    paintMountains(scene);
    paintForests(scene);
    paintHouse(scene);
    paintBoat(scene);
    paintWater(scene);
    paintShore(scene);
    paintMeadow(scene);
    paintBranch(scene);

    QImageWriter writer(QString::fromLocal8Bit(argv[1]));
    writer.setQuality(84);
    writer.setOptimizedWrite(true);
    if (!writer.write(developed(scene.view))) {
        std::fprintf(stderr, "%s: %s\n", argv[1], qUtf8Printable(writer.errorString()));
        return 1;
    }
    return 0;
}
