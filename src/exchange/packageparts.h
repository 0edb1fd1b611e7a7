#pragma once
#include <QByteArray>

class PartWriter;

// Parts of a spreadsheet package that are the same in every workbook.
namespace packageparts {

// Colours, fonts and effects that a workbook refers to by number.
void writeTheme(PartWriter &part);
// A4, upright, as the record in which programs keep a printer's settings.
QByteArray printerSettings();
}
