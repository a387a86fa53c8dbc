#include "base/error.h"
#include "base/fuzzy.h"
#include "base/pixel_limits.h"

#include <QTest>

#include <limits>

using namespace zm;
using namespace Qt::StringLiterals;

class TestBase : public QObject
{
    Q_OBJECT

private slots:
    void fuzzyEqualIsRelativeAndAbsoluteAtZero_data()
    {
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<bool>("equal");
        QTest::newRow("zero and the limit") << 0.0 << 1e-12 << true;
        QTest::newRow("zero and beyond the limit") << 1.1e-12 << 0.0 << false;
        QTest::newRow("two tiny numbers are relative") << 1e-13 << 2e-13 << false;
        QTest::newRow("large and within") << 1e6 << 1e6 + 0.9e-6 << true;
        QTest::newRow("negative and beyond") << -1.0 << -1.0 - 1.2e-12 << false;
        QTest::newRow("not a number") << std::nan("") << std::nan("") << false;
        QTest::newRow("infinite and finite") << std::numeric_limits<double>::infinity() << 1.0 << false;
    }

    void fuzzyEqualIsRelativeAndAbsoluteAtZero()
    {
        QFETCH(double, a);
        QFETCH(double, b);
        QFETCH(bool, equal);
        QCOMPARE(fuzzyEqual(a, b), equal);
        QCOMPARE(fuzzyEqual(b, a), equal);
        QCOMPARE(fuzzyEqual(QPointF(a, 1), QPointF(b, 1)), equal);
        QCOMPARE(fuzzyEqual(QRectF(0, 0, 1, a), QRectF(0, 0, 1, b)), equal);
    }

    void errorsKeepTheFirstSentenceAndEveryFailure()
    {
        Error error;
        QVERIFY(!error.isSet());
        const bool failed = error.fail(QString());
        QVERIFY(!failed && error.isSet());
        const std::optional<int> nothing = error.fail(u"in detail"_s);
        QVERIFY(!nothing);
        const std::unique_ptr<int> null = error.fail(u"in general"_s);
        QVERIFY(!null);
        QCOMPARE(error.message(), u"in detail"_s);
    }

    void picturesEndAtThePixelLimit()
    {
        QVERIFY(isAllocatableRasterSize({100'000'000, 1}));
        QVERIFY(!isAllocatableRasterSize({10'001, 10'000}));
        QVERIFY(!isAllocatableRasterSize({65'536, 65'536})); // the product is 0 in 32 bits
        QVERIFY(!isAllocatableRasterSize({0, 10}));
        QVERIFY(!isAllocatableRasterSize({-10, -10}));
        QCOMPARE(coveringPixels({0.2, 99.5}), QSize(1, 100));
        QCOMPARE(coveringPixels({1e300, -5.0}), QSize(std::numeric_limits<int>::max(), 1));
    }
};

QTEST_GUILESS_MAIN(TestBase)
#include "tst_base.moc"
