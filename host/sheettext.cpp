#include "sheettext.h"
#include "exchange/cellvalues.h"
#include "exchange/csvplan.h"
#include "format/dataformat.h"
#include <cmath>

namespace sheettext {

namespace {

constexpr double mostMoney = 1e15;

cellvalues::Cell cellOf(const QString &text)
{
    cellvalues::Cell cell;
    cell.text = text;
    return cell;
}

bool take(std::optional<double> read, double least, double most, double &value)
{
    value = read.value_or(0);
    return read && value >= least && value <= most;
}
}

bool parseMoney(const QString &text, double &amount)
{
    return take(cellvalues::number(cellOf(text), cellvalues::Comma::Decimal), -mostMoney, mostMoney, amount);
}

bool parseRate(const QString &text, Rate &rate)
{
    const auto read = cellvalues::rate(cellOf(text), cellvalues::Comma::Decimal);
    const auto unit = read && !read->unit.isEmpty()
                          ? cellvalues::costUnitCalled(read->unit.mid(1))
                          : std::optional<cellvalues::CostUnit>(cellvalues::CostUnit());
    if (!read || !unit)
        return false;
    rate.unit = unit->unit;
    return take(read->money / unit->parts, -mostMoney, mostMoney, rate.amount);
}

bool parseUnits(const QString &text, double &units)
{
    return take(cellvalues::fraction(cellOf(text), cellvalues::Comma::Decimal), 0, largestUnits, units);
}

bool parseType(const QString &text, int &type)
{
    type = cellvalues::resourceTypeCalled(text);
    return type >= 0;
}

QString numberText(double number)
{
    return csvplan::numberText(number);
}

QString moneyText(double amount)
{
    return DataFormat::formatNumber(amount, 3, 2, 1);
}

QString rateText(const Rate &rate)
{
    return csvplan::rateText(rate.amount, rate.unit);
}

QString unitsText(double units)
{
    return numberText(units * 100) + QLatin1Char('%');
}
}
