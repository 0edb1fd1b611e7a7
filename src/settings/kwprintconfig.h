#pragma once
#include "kwgantt_export.h"
#include <QDomElement>
#include <QString>

// Page setup of a document.
class KWGANTT_EXPORT KWPrintConfig
{
public:
    bool Portrait = false;  // false: landscape
    bool FittoSheet = true; // fit to HSheet x VSheet sheets instead of zooming
    bool Background = true; // print the background
    bool Toggle = false;
    qint32 Zoom = 100;  // percent, used when not fitting to sheets
    qint16 HSheet = 1;  // sheets across
    qint16 VSheet = 1;  // sheets down
    double Left = 20.0; // page measures, all in Unit
    double Top = 20.0;
    double Width = 210.0;
    double Height = 297.0;
    quint32 Unit = 1; // unit code; 1 = millimetre

    // Appends a "PrintSetup" element. A flag that is false is left out; so are the sheets when zooming and
    // the zoom when fitting to sheets.
    void saveTo(QDomElement &parent) const;
    // Reads the element, or its "PrintSetup" child when it has one. An absent flag is false, an absent number
    // and a unit of no known name stay as they were.
    void parse(const QDomElement &element);

    QString paperSize() const; // "210 mm x 297 mm"
};
