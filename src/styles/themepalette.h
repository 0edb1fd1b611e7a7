#pragma once
#include "kwgantt_export.h"
#include <QColor>
#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

// One theme: a name and twelve named colours.
struct KWGANTT_EXPORT ThemePalette
{
    static constexpr int colorCount = 12;
    // Places of the colours that drawings refer to by name.
    enum Place {
        Dark1,
        Light1,
        Dark2,
        Light2,
        Accent1,
        Accent2,
        Accent3,
        Accent4,
        Accent5,
        Accent6,
        Link,
        VisitedLink
    };

    QString name;
    QList<QColor> colors; // in the order of colorNames()

    QColor color(int index) const { return colors.value(index); } // invalid outside the list
    static const QStringList &colorNames();
    // The order is stored in documents: their theme is an index into this list.
    static const QList<ThemePalette> &builtIn();

    // Appends a "Theme" element: a name, and each colour under its own.
    void saveTo(QDomElement &parent) const;
    // What is absent or no colour stays as it was, black where there was none.
    void parse(const QDomElement &element);
};
