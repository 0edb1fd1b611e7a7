#pragma once
#include "engine/record/fieldtable.h"
#include "model/kwtaskinfo.h"

// The stored members of a task. Rows with the Xml bit stand in the order their attributes are written.
// By hand in every place: font, hyperlinks and assignments, and the highlight flag that no copy carries.
namespace fields {

constexpr unsigned int inFiles = Xml | Copy | Assign;
constexpr unsigned int inFilesAndCleared = inFiles | Reset;

inline constexpr auto taskFields = std::make_tuple(
    field("Resources", &KWTaskInfo::Resources, inFilesAndCleared),
    field("Name", &KWTaskInfo::Name, inFilesAndCleared),
    field("Priority", &KWTaskInfo::Priority, inFilesAndCleared),
    field("Progress", &KWTaskInfo::Progress, inFilesAndCleared),
    field("Percent", &KWTaskInfo::Percent, inFilesAndCleared),
    field("Start", &KWTaskInfo::Start, inFilesAndCleared),
    field("Finish", &KWTaskInfo::Finish, inFilesAndCleared),
    field("LateStart", &KWTaskInfo::LateStart, inFilesAndCleared),
    field("LateFinish", &KWTaskInfo::LateFinish, inFilesAndCleared),
    field("BaseStart", &KWTaskInfo::BaseStart, inFilesAndCleared),
    field("BaseFinish", &KWTaskInfo::BaseFinish, inFilesAndCleared),
    field("EarlySlack", &KWTaskInfo::EarlySlack, inFilesAndCleared),
    field("LateSlack", &KWTaskInfo::LateSlack, inFilesAndCleared),
    field("DurationSecs", &KWTaskInfo::DurationSecs, inFilesAndCleared),
    field("DurationUnits", &KWTaskInfo::DurationUnits, inFilesAndCleared, 4),
    field("Work", &KWTaskInfo::Work, inFiles), field("Cost", &KWTaskInfo::Cost, inFiles),
    field("RemainingCost", &KWTaskInfo::RemainingCost, inFiles),
    field("BaselineCost", &KWTaskInfo::BaselineCost, inFiles), field("Notes", &KWTaskInfo::Notes, inFiles),
    field("CriticalPath", &KWTaskInfo::CriticalPath, inFiles),
    field("CountWidth", &KWTaskInfo::CountWidth, Xml | Copy | ScreenScaled),
    field("FirstWidth", &KWTaskInfo::FirstWidth, Xml | Copy | ScreenScaled),
    field("Milestone", &KWTaskInfo::Milestone, inFilesAndCleared),
    field("IsToggler", &KWTaskInfo::IsToggler, inFilesAndCleared),
    // Kept on purpose: a cleared task has level 0 where a new one has 1, which is how the two are told apart.
    field("Level", &KWTaskInfo::Level, inFilesAndCleared, 0), field("ID", &KWTaskInfo::ID, inFilesAndCleared),
    field("ParentID", &KWTaskInfo::ParentID, inFilesAndCleared),
    field("HideID", &KWTaskInfo::HideID, inFilesAndCleared),
    field("Depends", &KWTaskInfo::Depends, inFilesAndCleared | OmitEmpty),
    field("Predecessors", &KWTaskInfo::Predecessors, inFilesAndCleared | OmitEmpty),
    field("Childs", &KWTaskInfo::Childs, inFilesAndCleared), field("x1", &KWTaskInfo::x1, Copy),
    field("y1", &KWTaskInfo::y1, Copy), field("x2", &KWTaskInfo::x2, Copy),
    field("y2", &KWTaskInfo::y2, Copy),
    field("CriticalVisible", &KWTaskInfo::CriticalVisible, Copy | Assign));
}
