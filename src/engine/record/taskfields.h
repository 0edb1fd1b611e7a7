#pragma once
#include "engine/record/fieldtable.h"
#include "engine/record/taskrecord.h"

// The stored members of a task. Rows with the Xml bit stand in the order their attributes are written.
// By hand in every place: font, hyperlinks and assignments, and the highlight flag that no copy carries.
namespace fields {

constexpr unsigned int inFiles = Xml | Copy | Assign;
constexpr unsigned int inFilesAndCleared = inFiles | Reset;

inline constexpr auto taskFields = std::make_tuple(
    field("Resources", &TaskRecord::Resources, inFilesAndCleared),
    field("Name", &TaskRecord::Name, inFilesAndCleared),
    field("Priority", &TaskRecord::Priority, inFilesAndCleared),
    field("Progress", &TaskRecord::Progress, inFilesAndCleared),
    field("Percent", &TaskRecord::Percent, inFilesAndCleared),
    field("Start", &TaskRecord::Start, inFilesAndCleared),
    field("Finish", &TaskRecord::Finish, inFilesAndCleared),
    field("LateStart", &TaskRecord::LateStart, inFilesAndCleared),
    field("LateFinish", &TaskRecord::LateFinish, inFilesAndCleared),
    field("BaseStart", &TaskRecord::BaseStart, inFilesAndCleared),
    field("BaseFinish", &TaskRecord::BaseFinish, inFilesAndCleared),
    field("EarlySlack", &TaskRecord::EarlySlack, inFilesAndCleared),
    field("LateSlack", &TaskRecord::LateSlack, inFilesAndCleared),
    field("DurationSecs", &TaskRecord::DurationSecs, inFilesAndCleared),
    field("DurationUnits", &TaskRecord::DurationUnits, inFilesAndCleared, duration::Day),
    field("Work", &TaskRecord::Work, inFiles), field("Cost", &TaskRecord::Cost, inFiles),
    field("RemainingCost", &TaskRecord::RemainingCost, inFiles),
    field("BaselineCost", &TaskRecord::BaselineCost, inFiles), field("Notes", &TaskRecord::Notes, inFiles),
    field("CriticalPath", &TaskRecord::CriticalPath, inFiles),
    field("CountWidth", &TaskRecord::CountWidth, Xml | Copy | ScreenScaled),
    field("FirstWidth", &TaskRecord::FirstWidth, Xml | Copy | ScreenScaled),
    field("Milestone", &TaskRecord::Milestone, inFilesAndCleared),
    field("IsToggler", &TaskRecord::IsToggler, inFilesAndCleared),
    // Kept on purpose: a cleared task has level 0 where a new one has 1, which is how the two are told apart.
    field("Level", &TaskRecord::Level, inFilesAndCleared, 0), field("ID", &TaskRecord::ID, inFilesAndCleared),
    field("ParentID", &TaskRecord::ParentID, inFilesAndCleared),
    field("HideID", &TaskRecord::HideID, inFilesAndCleared),
    field("Depends", &TaskRecord::Depends, inFilesAndCleared | OmitEmpty),
    field("Predecessors", &TaskRecord::Predecessors, inFilesAndCleared | OmitEmpty),
    field("Childs", &TaskRecord::Childs, inFilesAndCleared), field("x1", &TaskRecord::x1, Copy),
    field("y1", &TaskRecord::y1, Copy), field("x2", &TaskRecord::x2, Copy),
    field("y2", &TaskRecord::y2, Copy),
    field("CriticalVisible", &TaskRecord::CriticalVisible, Copy | Assign));
}
