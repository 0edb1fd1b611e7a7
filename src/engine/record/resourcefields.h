#pragma once
#include "engine/record/fieldtable.h"
#include "engine/record/resource.h"
#include "resources/resourceinfodata.h"

// The stored members of an assignment and of an entry of the resource sheet, in the order of their
// attributes.
namespace fields {

constexpr unsigned int stored = Xml | Copy;

inline constexpr auto resourceFields = std::make_tuple(
    field("ID", &Resource::ID, stored), field("Name", &Resource::name, stored),
    field("Percent", &Resource::percent, stored), field("WorkSecs", &Resource::workSecs, stored),
    field("Type", &Resource::type, stored), field("CostUnit", &Resource::costUnit, stored),
    field("Cost", &Resource::cost, stored), field("OvertimeUnit", &Resource::overtimeUnit, stored),
    field("OvertimeCost", &Resource::overtimeCost, stored), field("CostPer", &Resource::costPer, stored));

inline constexpr auto resourceInfoFields = std::make_tuple(
    field("ID", &ResourceInfo::ID, stored), field("Name", &ResourceInfo::name, stored),
    field("Unit", &ResourceInfo::unit, stored), field("Type", &ResourceInfo::type, stored),
    field("CostUnit", &ResourceInfo::costUnit, stored), field("Cost", &ResourceInfo::cost, stored),
    field("OvertimeUnit", &ResourceInfo::overtimeUnit, stored),
    field("OvertimeCost", &ResourceInfo::overtimeCost, stored),
    field("CostPer", &ResourceInfo::costPer, stored), field("Group", &ResourceInfo::group, stored),
    field("Email", &ResourceInfo::email, stored), field("Notes", &ResourceInfo::notes, stored));
}
