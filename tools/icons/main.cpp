// Draws an SVG file at a number of pixels a side, with alpha: render_icon FILE.svg SIZE FILE.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const int size = argc == 4 ? QByteArray(argv[2]).toInt() : 0;
    if (size <= 0) {
        std::fputs("usage: render_icon FILE.svg SIZE FILE.png\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, icon.rect());
    painter.end();
    if (!drawing.isValid() || !icon.save(QString::fromLocal8Bit(argv[3]), "PNG")) {
        std::fprintf(stderr, "render_icon: %s cannot be drawn to %s\n", argv[1], argv[3]);
        return 1;
    }
    return 0;
}
