#include "support/pictures.h"

#include <QColor>
#include <QRandomGenerator>

namespace zm::test {

QImage gradientPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y) {
        uchar *pixel = picture.scanLine(y);
        for (int x = 0; x < width; ++x, pixel += 4) {
            pixel[0] = uchar(width > 1 ? x * 255 / (width - 1) : 0);
            pixel[1] = uchar(height > 1 ? y * 255 / (height - 1) : 0);
            pixel[2] = uchar((x * 7 + y * 13) & 255);
            pixel[3] = 255;
        }
    }
    return picture;
}

QImage plainPicture(int width, int height, const QColor &color)
{
    QImage picture(width, height, QImage::Format_RGBA8888);
    picture.fill(color);
    return picture;
}

QImage noisePicture(int width, int height, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage picture(width, height, QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y) {
        uchar *pixel = picture.scanLine(y);
        for (int x = 0; x < width; ++x, pixel += 4) {
            for (int channel = 0; channel < 4; ++channel)
                pixel[channel] = uchar(random.bounded(256));
            if (random.bounded(4) == 0)
                pixel[3] = 0;
        }
    }
    return picture;
}

int maximumDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    const QImage first = a.convertToFormat(QImage::Format_RGBA8888);
    const QImage second = b.convertToFormat(QImage::Format_RGBA8888);
    int greatest = 0;
    for (int y = 0; y < first.height(); ++y) {
        const uchar *p = first.constScanLine(y);
        const uchar *q = second.constScanLine(y);
        for (int i = 0; i < first.width() * 4; ++i)
            greatest = std::max(greatest, std::abs(int(p[i]) - int(q[i])));
    }
    return greatest;
}

} // namespace zm::test
