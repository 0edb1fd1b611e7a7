#pragma once
#include "engine/record/fieldtable.h"
#include "engine/record/resource.h"
#include "engine/record/resourceentry.h"

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
    field("ID", &ResourceEntry::ID, stored), field("Name", &ResourceEntry::name, stored),
    field("Unit", &ResourceEntry::unit, stored), field("Type", &ResourceEntry::type, stored),
    field("CostUnit", &ResourceEntry::costUnit, stored), field("Cost", &ResourceEntry::cost, stored),
    field("OvertimeUnit", &ResourceEntry::overtimeUnit, stored),
    field("OvertimeCost", &ResourceEntry::overtimeCost, stored),
    field("CostPer", &ResourceEntry::costPer, stored), field("Group", &ResourceEntry::group, stored),
    field("Email", &ResourceEntry::email, stored), field("Notes", &ResourceEntry::notes, stored));
}
