#pragma once
#include <QIcon>

class QPalette;

// The signs of the tool bar, drawn in the colour of texts so that they suit light and dark.
namespace icons {

// By the name of the action; empty for one that has none.
QIcon of(const QString &action, const QPalette &palette);
QIcon program();
}
