#include "sheettext.h"
#include "format/dataformat.h"
#include <cmath>

namespace sheettext {

namespace {

constexpr const char *unitTexts[] = {"min", "h", "d", "w", "m"};
constexpr double mostMoney = 1e15;
}

bool parseMoney(const QString &text, double &amount)
{
    bool ok = false;
    amount = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(amount) && std::abs(amount) <= mostMoney;
}

bool parseRate(const QString &text, Rate &rate)
{
    rate.unit = 1;
    const int slash = text.indexOf(QLatin1Char('/'));
    if (slash >= 0) {
        QString unit = text.mid(slash + 1).trimmed().toLower();
        if (unit == QLatin1String("mon"))
            unit = QStringLiteral("m");
        rate.unit = -1;
        for (int i = 0; i < int(std::size(unitTexts)); ++i)
            if (unit == QLatin1String(unitTexts[i]))
                rate.unit = i;
    }
    return rate.unit >= 0 && parseMoney(text.left(slash), rate.amount);
}

bool parseUnits(const QString &text, double &units)
{
    QString number = text.trimmed();
    const bool percent = number.endsWith(QLatin1Char('%'));
    if (percent)
        number.chop(1);
    bool ok = false;
    units = number.toDouble(&ok) / (percent ? 100 : 1);
    return ok && units >= 0 && units <= largestUnits;
}

bool parseType(const QString &text, int &type)
{
    const QString word = text.trimmed().toLower();
    type = word == QLatin1String("material") ? 1 : 0;
    return type == 1 || word == QLatin1String("work");
}

QString numberText(double number)
{
    constexpr int digits = 12;
    return QString::number(std::isfinite(number) ? number : 0, 'g', digits);
}

QString moneyText(double amount)
{
    return DataFormat::formatNumber(amount, 3, 2, 1);
}

QString rateText(const Rate &rate)
{
    const bool known = rate.unit >= 0 && rate.unit < int(std::size(unitTexts));
    return numberText(rate.amount) +
           (known ? QLatin1Char('/') + QLatin1String(unitTexts[rate.unit]) : QString());
}

QString unitsText(double units)
{
    return numberText(units * 100) + QLatin1Char('%');
}
}
