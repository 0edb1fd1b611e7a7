#pragma once
#include <QString>

// Values of the resource sheet as people and files write them.
namespace sheettext {

struct Rate
{
    double amount = 0;
    int unit = 1; // 0 minute, 1 hour, 2 day, 3 week, 4 month
};

constexpr double largestUnits = 1e6;

// "50/h", "400/d", "2.5" (an hour's, or one unit of a material).
bool parseRate(const QString &text, Rate &rate);
// "50%" is 0.5, "0.5" too; a plain number is the quantity of a material.
bool parseUnits(const QString &text, double &units);
// "work", "material": 0 or 1.
bool parseType(const QString &text, int &type);
bool parseMoney(const QString &text, double &amount);
// The shortest text of the number, up to 12 digits.
QString numberText(double number);
QString moneyText(double amount);   // "8,020.5"
QString rateText(const Rate &rate); // "50/h"
QString unitsText(double units);    // "50%"
}
