#pragma once
#include <QString>

class ResourceInfo;
class ResourceInfoData;

// A resource's values as texts, for the sheet on the screen and for workbooks.
namespace resourcetext {

// The fields by the keys of their titles.
enum Key { Id, Name, MaxUnits, Type, Rate, OvertimeRate, CostPerUse, Group, Email, Notes };
constexpr int keyCount = Notes + 1;

// Empty for a key that there is not.
QString ofField(const ResourceInfoData &sheet, const ResourceInfo &resource, int key);
}
