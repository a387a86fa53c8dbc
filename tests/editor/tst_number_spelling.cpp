#include "editor/number_spelling.h"

#include <QLocale>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace zm;

class TestNumberSpelling : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void numbersAreSpelled_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<double>("number");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("text");
        QTest::newRow("rounded") << u"en_US"_s << 12.46 << 1 << u"12.5"_s;
        QTest::newRow("no zeros after the point") << u"en_US"_s << 12.0 << 3 << u"12"_s;
        QTest::newRow("zeros before the point stay") << u"en_US"_s << 100.0 << 0 << u"100"_s;
        QTest::newRow("no mark between thousands") << u"en_US"_s << 1234567.25 << 2 << u"1234567.25"_s;
        QTest::newRow("comma") << u"de_DE"_s << -1234.5 << 1 << u"-1234,5"_s;
        QTest::newRow("minus of its own") << u"sv_SE"_s << -2.5 << 1 << u"\u22122,5"_s;
    }

    void numbersAreSpelled()
    {
        QFETCH(QString, locale);
        QFETCH(double, number);
        QFETCH(int, decimals);
        QLocale::setDefault(QLocale(locale));
        QTEST(NumberSpelling::spelled(number, decimals), "text");
    }

    void textsAreRead_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number"); // NaN for no number
        const double none = std::nan("");
        QTest::newRow("spaces around") << u"en_US"_s << u" 12.5 "_s << 12.5;
        QTest::newRow("comma") << u"de_DE"_s << u"12,5"_s << 12.5;
        QTest::newRow("plain point where a comma is usual") << u"de_DE"_s << u"12.5"_s << 12.5;
        QTest::newRow("minus of its own") << u"sv_SE"_s << u"\u22122,5"_s << -2.5;
        QTest::newRow("plain minus there") << u"sv_SE"_s << u"-2,5"_s << -2.5;
        QTest::newRow("without digits before the point") << u"en_US"_s << u".5"_s << 0.5;
        QTest::newRow("nothing") << u"en_US"_s << u"  "_s << none;
        QTest::newRow("word") << u"en_US"_s << u"wide"_s << none;
        QTest::newRow("two points") << u"de_DE"_s << u"1.234,5"_s << none;
        QTest::newRow("hexadecimal") << u"en_US"_s << u"0x10"_s << none;
        QTest::newRow("endless") << u"en_US"_s << u"inf"_s << none;
        QTest::newRow("too large") << u"en_US"_s << u"1e999"_s << none;
    }

    void textsAreRead()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(double, number);
        QLocale::setDefault(QLocale(locale));
        const double found = NumberSpelling::read(text);
        QVERIFY2(std::isnan(number) ? std::isnan(found) : found == number, qPrintable(QString::number(found)));
    }

    void whatIsSpelledIsReadBackInEveryLanguage()
    {
        const QList<QLocale> locales =
            QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
        QVERIFY(locales.size() > 100);
        for (const QLocale &locale : locales) {
            if (locale.zeroDigit() != u"0"_s)
                continue; // digits of other scripts, which none of the interface's languages writes by default
            QLocale::setDefault(locale);
            for (const double number : {-1234567.5, -0.25, 0.0, 7.0, 1e6})
                QVERIFY2(NumberSpelling::read(NumberSpelling::spelled(number, 2)) == number, qPrintable(locale.name()));
        }
    }
};

QTEST_APPLESS_MAIN(TestNumberSpelling)

#include "tst_number_spelling.moc"
