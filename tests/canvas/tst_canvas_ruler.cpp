#include "canvas/canvas_ruler_item.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

constexpr int kLength = 700;
constexpr int kThickness = 24;

enum Parts { Ticks = 1, Labels = 2 };

/// A ruler that paints only what a test looks at, in black.
class Ruler : public CanvasRulerItem
{
public:
    explicit Ruler(int parts, Orientation orientation = Horizontal, int length = kLength)
    {
        setOrientation(orientation);
        setSize(orientation == Horizontal ? QSizeF(length, kThickness) : QSizeF(kThickness, length));
        setBackgroundColor(Qt::white);
        setBorderColor(Qt::transparent);
        setTickColor(parts & Ticks ? Qt::black : Qt::transparent);
        setLabelColor(parts & Labels ? Qt::black : Qt::transparent);
    }

    QImage picture(int ratio = 1)
    {
        QImage image(size().toSize() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::green);
        QPainter painter(&image);
        paint(&painter);
        painter.end();
        image.setDevicePixelRatio(1);
        return image;
    }
};

/// Pixels of the tick in a column, counted from the lower edge.
int tickLength(const QImage &image, int x)
{
    int length = 0;
    while (length < image.height() && image.pixel(x, image.height() - 1 - length) == qRgb(0, 0, 0))
        ++length;
    return length;
}

/// The columns between which anything but background lies; (-1, -1) if nothing does.
std::pair<int, int> inkedColumns(const QImage &image)
{
    std::pair<int, int> columns(-1, -1);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                columns = {columns.first < 0 ? x : columns.first, x};
        }
    }
    return columns;
}

} // namespace

class TestCanvasRuler : public QObject
{
    Q_OBJECT

private slots:
    void ticksStandAtTheirSteps_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("major");
        QTest::addColumn<int>("middle");
        QTest::addColumn<int>("minor");
        QTest::newRow("5 %") << 0.05 << 2000 << 1000 << 200;
        QTest::newRow("exactly 1000") << 0.08 << 1000 << 500 << 100;
        QTest::newRow("37 %") << 0.37 << 500 << 250 << 50;
        QTest::newRow("100 %") << 1.0 << 100 << 50 << 10;
        QTest::newRow("exactly 10") << 8.0 << 10 << 5 << 1;
        QTest::newRow("no middle below 10") << 16.0 << 5 << 0 << 1;
        QTest::newRow("4800 %") << 48.0 << 2 << 0 << 1;
        QTest::newRow("never below a unit") << 200.0 << 1 << 0 << 1;
    }

    void ticksStandAtTheirSteps()
    {
        QFETCH(double, scale);
        QFETCH(int, major);
        QFETCH(int, middle);
        QFETCH(int, minor);
        for (int ratio : {1, 2}) {
            Ruler ruler(Ticks);
            ruler.setViewScale(scale);
            ruler.setViewOrigin({-3.0 * major, 17.0});
            QList<int> expected(kLength * ratio, 0);
            for (int value = -3 * major; (value + 3 * major) * scale < kLength; value += minor) {
                const int length = value % major == 0 ? 13 : middle && value % middle == 0 ? 9 : 5;
                const auto x = qRound((value + 3 * major) * scale * ratio);
                if (x < expected.size())
                    expected[x] = length * ratio + 1; // and its pixel of the border line
            }
            const QImage image = ruler.picture(ratio);
            QList<int> actual;
            for (int x = 0; x < image.width(); ++x)
                actual.append(tickLength(image, x));
            QCOMPARE(actual, expected);
        }
    }

    void everyEdgeIsTheSameRulerTurned()
    {
        Ruler top(Ticks);
        top.setViewOrigin({-33.25, 0.0});
        const QImage image = top.picture();
        top.setOppositeEdge(true);
        QCOMPARE(top.picture(), image.mirrored(false, true));

        Ruler left(Ticks, CanvasRulerItem::Vertical);
        left.setViewOrigin({0.0, -33.25});
        const QImage diagonal = image.transformed(QTransform(0, 1, 1, 0, 0, 0)).convertToFormat(image.format());
        QCOMPARE(left.picture(), diagonal);
        left.setOppositeEdge(true);
        QCOMPARE(left.picture(), diagonal.mirrored(true, false));
    }

    void labelsThatDoNotFitAreLeftOut()
    {
        // 100 units apart, each right of or below its tick, of which there is a second one at 100.
        for (CanvasRulerItem::Orientation orientation : {CanvasRulerItem::Horizontal, CanvasRulerItem::Vertical}) {
            const auto inked = [orientation](int length, double origin) {
                Ruler ruler(Labels, orientation, length);
                ruler.setViewOrigin({origin, origin});
                const QImage image = ruler.picture();
                return inkedColumns(ruler.orientation() == CanvasRulerItem::Horizontal
                                        ? image
                                        : image.transformed(QTransform(0, 1, 1, 0, 0, 0)));
            };
            const auto whole = inked(140, 0);
            QVERIFY(whole.first >= 2 && whole.first < 8);
            QVERIFY(whole.second > 110 && whole.second < 135);
            QCOMPARE(inked(whole.second + 3, 0), whole);
            QVERIFY(inked(whole.second - 1, 0).second < 20); // only the zero is left
            QVERIFY(inked(140, 5).first > 50);               // its tick is out of sight
        }
    }

    void badValuesPaintNothing()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const double infinity = std::numeric_limits<double>::infinity();
        const auto untouched = [](const QImage &image) {
            QImage empty(image.size(), image.format());
            empty.fill(Qt::green);
            return image == empty;
        };
        for (double scale : {0.0, -1.0, nan, infinity}) {
            Ruler ruler(Ticks | Labels);
            ruler.setViewScale(scale);
            QVERIFY2(untouched(ruler.picture()), qPrintable(QString::number(scale)));
        }
        for (double origin : {nan, infinity, -infinity}) {
            Ruler ruler(Ticks | Labels);
            ruler.setViewOrigin({origin, 0.0});
            QVERIFY2(untouched(ruler.picture()), qPrintable(QString::number(origin)));
        }
        // Finite, but beyond what can be counted: a bare ruler, at once.
        for (const auto &[scale, origin] : {std::pair(1e-310, 0.0), {1e-18, 0.0}, {1.0, -1e300}, {1e300, 1e17}}) {
            Ruler ruler(Ticks | Labels);
            ruler.setViewScale(scale);
            ruler.setViewOrigin({origin, 0.0});
            QCOMPARE(inkedColumns(ruler.picture()), std::pair(-1, -1));
        }
    }
};

QTEST_MAIN(TestCanvasRuler)

#include "tst_canvas_ruler.moc"
