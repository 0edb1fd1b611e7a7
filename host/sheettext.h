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
// "50/h"; without a unit for a material.
QString rateText(const Rate &rate, bool material);
// "100%", or the plain quantity of a material.
QString unitsText(double units, bool material);
}
