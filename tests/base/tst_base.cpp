#include "base/fuzzy.h"
#include "base/pixel_limits.h"

#include <QImageReader>
#include <QTest>

#include <limits>

using namespace zm;

class TestBase : public QObject
{
    Q_OBJECT

private slots:
    void fuzzyEqualIsRelativeAndAbsoluteAtZero_data()
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<bool>("equal");
        QTest::newRow("zeros of both signs") << 0.0 << -0.0 << true;
        QTest::newRow("zero and the limit") << 0.0 << 1e-12 << true;
        QTest::newRow("zero and beyond the limit") << 1.1e-12 << 0.0 << false;
        QTest::newRow("two tiny numbers are relative") << 1e-13 << 2e-13 << false;
        QTest::newRow("one and within") << 1.0 << 1.0 + 0.9e-12 << true;
        QTest::newRow("one and beyond") << 1.0 << 1.0 + 1.2e-12 << false;
        QTest::newRow("large and within") << 1e6 << 1e6 + 0.9e-6 << true;
        QTest::newRow("large and beyond") << 1e6 << 1e6 + 1.2e-6 << false;
        QTest::newRow("negative and within") << -1.0 << -1.0 - 0.9e-12 << true;
        QTest::newRow("opposite signs") << 1e-6 << -1e-6 << false;
        QTest::newRow("not a number") << std::nan("") << std::nan("") << false;
        QTest::newRow("infinite and finite") << infinity << 1.0 << false;
    }

    void fuzzyEqualIsRelativeAndAbsoluteAtZero()
    {
        QFETCH(double, a);
        QFETCH(double, b);
        QFETCH(bool, equal);
        QCOMPARE(fuzzyEqual(a, b), equal);
        QCOMPARE(fuzzyEqual(b, a), equal);
        QCOMPARE(fuzzyEqual(QSizeF(1, a), QSizeF(1, b)), equal);
        QCOMPARE(fuzzyEqual(QPointF(a, 1), QPointF(b, 1)), equal);
        QCOMPARE(fuzzyEqual(QRectF(a, 0, 1, 1), QRectF(b, 0, 1, 1)), equal);
        QCOMPARE(fuzzyEqual(QRectF(0, 0, 1, a), QRectF(0, 0, 1, b)), equal);
    }

    void rasterSizesEndAtThePixelLimit_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("one pixel") << QSize(1, 1) << true;
        QTest::newRow("at the limit") << QSize(10'000, 10'000) << true;
        QTest::newRow("one column beyond") << QSize(10'001, 10'000) << false;
        QTest::newRow("long and thin") << QSize(100'000'000, 1) << true;
        QTest::newRow("product beyond 32 bits") << QSize(65'536, 65'536) << false;
        QTest::newRow("no width") << QSize(0, 10) << false;
        QTest::newRow("both negative") << QSize(-10, -10) << false;
        QTest::newRow("invalid") << QSize() << false;
    }

    void rasterSizesEndAtThePixelLimit()
    {
        QFETCH(QSize, size);
        QFETCH(bool, allowed);
        QCOMPARE(isAllocatableRasterSize(size), allowed);
    }

    void readersMayAllocateAPictureAtTheLimit()
    {
        raiseImageAllocationLimit();
        // Qt counts in mebibytes: 10,000 x 10,000 pixels of four bytes take 381.5.
        QVERIFY(QImageReader::allocationLimit() >= 382);
    }
};

QTEST_GUILESS_MAIN(TestBase)
#include "tst_base.moc"
