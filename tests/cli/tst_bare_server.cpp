#include "cli/platform.h"
#include "rendering/opengl_texture_renderer.h"
#include "support/pictures.h"

#include <QGuiApplication>
#include <QTest>

using namespace zm;
using namespace Qt::StringLiterals;

/// Runs without any display, as on a server that nobody looks at.
class TestBareServer : public QObject
{
    Q_OBJECT

private slots:
    void effectsAreDrawnWithoutADisplay()
    {
        if (QGuiApplication::platformName() != "eglfs"_L1)
            QSKIP("built or running without a surfaceless EGL display");
        OpenGLTextureRenderer renderer;
        QVERIFY(renderer.maximumTextureSize() >= 2048);
        QImage half = test::plainPicture(64, 64, Qt::black);
        for (int y = 0; y < 64; ++y) {
            for (int x = 32; x < 64; ++x)
                half.setPixelColor(x, y, Qt::white);
        }
        const QImage blurred = renderer.gaussianBlur(half, 4.0);
        QCOMPARE(blurred.size(), half.size());
        // Far from the edge nothing changes; at the edge half of the weight lies on either side.
        QVERIFY(blurred.pixelColor(2, 32).red() <= 1 && blurred.pixelColor(61, 32).red() >= 254);
        const int atEdge = (blurred.pixelColor(31, 32).red() + blurred.pixelColor(32, 32).red()) / 2;
        QVERIFY2(std::abs(atEdge - 128) <= 2, qPrintable(QString::number(atEdge))); // one rounding a pass
    }
};

int main(int argc, char **argv)
{
    qunsetenv("DISPLAY");
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("QT_QPA_PLATFORM");
    zm::cli::choosePlatform(true);
    const QGuiApplication application(argc, argv);
    TestBareServer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_bare_server.moc"
