#pragma once
#include <QApplication>
#include <QLabel>
#include <QPalette>

// Colours that go with the window's own, light or dark.
namespace look {

inline bool isDark()
{
    constexpr int middleLightness = 128;
    return QApplication::palette().window().color().lightness() < middleLightness;
}

// Of two colours, so much of the second.
inline QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto part = [share](int a, int b) { return int(a + (b - a) * share); };
    return QColor(part(one.red(), other.red()), part(one.green(), other.green()),
                  part(one.blue(), other.blue()));
}

// What is wrong with what stands beside it.
inline void complains(QLabel &label)
{
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    label.setStyleSheet(isDark() ? QStringLiteral("color:#ffa566") : QStringLiteral("color:#b3541e"));
}
}
