#include "table/resourcetext.h"
#include "format/dataformat.h"
#include "resources/resourceinfodata.h"

namespace {

constexpr int groupSize = 3;

QString percentText(double fraction)
{
    constexpr int decimals = 1;
    return DataFormat::formatNumber(fraction * 100, groupSize, decimals, 1) + QLatin1Char('%');
}

QString moneyText(double value)
{
    constexpr int decimals = 2;
    return DataFormat::currencyText(DataFormat::formatNumber(value, groupSize, decimals, 1));
}
}

QString resourcetext::ofField(const ResourceInfoData &sheet, const ResourceInfo &resource, int key)
{
    switch (key) {
    case Id:
        return QString::number(resource.ID);
    case Name:
        return resource.name;
    case MaxUnits:
        return percentText(resource.unit);
    case Type:
        return sheet.getTypeTextByIndex(resource.type);
    case Rate:
        return moneyText(resource.cost) + sheet.getCostUintText(resource.costUnit);
    case OvertimeRate:
        return moneyText(resource.overtimeCost) + sheet.getCostUintText(resource.overtimeUnit);
    case CostPerUse:
        return moneyText(resource.costPer);
    case Group:
        return resource.group;
    case Email:
        return resource.email;
    case Notes:
        return resource.notes;
    default:
        return QString();
    }
}
