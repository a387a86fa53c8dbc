#include "editor/number_spelling.h"

#include <QLocale>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace zm {

QString NumberSpelling::spelled(double number, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    QString text = locale.toString(number, 'f', decimals);
    const QString point = locale.decimalPoint();
    if (!text.contains(point))
        return text;
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(point))
        text.chop(point.size());
    return text;
}

double NumberSpelling::read(const QString &text)
{
    const QLocale locale;
    QString plain = text.trimmed();
    plain.replace(locale.negativeSign(), u"-"_s);
    plain.replace(locale.decimalPoint(), u"."_s);
    bool ok = false;
    const double number = plain.toDouble(&ok);
    return ok && std::isfinite(number) ? number : std::numeric_limits<double>::quiet_NaN();
}

} // namespace zm
