#include "views/icons.h"
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace icons {

namespace {

constexpr double gridSize = 20;

// Lines on a grid of 20 x 20: M moves, L draws, C closes, O x y r a circle, R x y w h a filled bar.
struct Drawing
{
    const char *action;
    const char *lines;
};
constexpr Drawing drawings[] = {
    {"open", "M 2 16 L 2 4 L 7 4 L 9 6 L 16 6 L 16 8 M 2 16 L 5 8 L 19 8 L 16 16 C"},
    {"save", "M 3 3 L 14 3 L 17 6 L 17 17 L 3 17 C M 6 3 L 6 8 L 13 8 L 13 3 M 6 17 L 6 12 L 14 12 L 14 17"},
    {"undo", "M 8 3 L 3 7 L 8 11 M 3 7 L 12 7 L 16 9 L 16 13 L 12 16 L 7 16"},
    {"redo", "M 12 3 L 17 7 L 12 11 M 17 7 L 8 7 L 4 9 L 4 13 L 8 16 L 13 16"},
    {"insert-above", "M 10 2 L 10 10 M 6 6 L 14 6 M 3 14 L 17 14 M 3 17 L 17 17"},
    {"indent", "M 8 4 L 18 4 M 11 10 L 18 10 M 8 16 L 18 16 M 2 7 L 6 10 L 2 13"},
    {"outdent", "M 8 4 L 18 4 M 11 10 L 18 10 M 8 16 L 18 16 M 6 7 L 2 10 L 6 13"},
    {"link", "R 2 4 7 4 R 11 12 7 4 M 9 6 L 12 6 L 12 12 M 10 9.5 L 12 12 L 14 9.5"},
    {"unlink", "R 2 4 7 4 R 11 12 7 4 M 11 3 L 17 9 M 17 3 L 11 9"},
    {"zoom-in", "O 8 8 5 M 12 12 L 17 17 M 6 8 L 10 8 M 8 6 L 8 10"},
    {"zoom-out", "O 8 8 5 M 12 12 L 17 17 M 6 8 L 10 8"},
    {"fit", "M 2 4 L 2 16 M 18 4 L 18 16 M 4 10 L 16 10 M 7 7 L 4 10 L 7 13 M 13 7 L 16 10 L 13 13"},
    {"today",
     "M 3 5 L 17 5 L 17 17 L 3 17 C M 3 8.5 L 17 8.5 M 6.5 3 L 6.5 6 M 13.5 3 L 13.5 6 R 8.5 11 3 3"},
};

QPixmap drawn(const char *lines, const QColor &color, double ratio)
{
    QPixmap pixmap(int(gridSize * ratio), int(gridSize * ratio));
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath path;
    const QStringList words = QString::fromLatin1(lines).split(QLatin1Char(' '));
    int at = 0;
    const auto number = [&] { return words.value(at++).toDouble(); };
    while (at < words.size()) {
        const QChar sign = words.at(at++).at(0);
        const double x = sign == QLatin1Char('C') ? 0 : number(), y = sign == QLatin1Char('C') ? 0 : number();
        if (sign == QLatin1Char('M')) {
            path.moveTo(x, y);
        } else if (sign == QLatin1Char('L')) {
            path.lineTo(x, y);
        } else if (sign == QLatin1Char('C')) {
            path.closeSubpath();
        } else if (sign == QLatin1Char('O')) {
            const double radius = number();
            painter.drawEllipse(QPointF(x, y), radius, radius);
        } else {
            const double width = number(), height = number();
            painter.fillRect(QRectF(x, y, width, height), color);
        }
    }
    painter.drawPath(path);
    return pixmap;
}
}

QIcon of(const QString &action, const QPalette &palette)
{
    QIcon icon;
    for (const Drawing &drawing : drawings) {
        if (action != QLatin1String(drawing.action))
            continue;
        for (const double ratio : {1.0, 1.5, 2.0}) {
            icon.addPixmap(
                drawn(drawing.lines, palette.color(QPalette::Active, QPalette::WindowText), ratio));
            QColor quiet = palette.color(QPalette::Active, QPalette::WindowText);
            quiet.setAlphaF(0.3);
            icon.addPixmap(drawn(drawing.lines, quiet, ratio), QIcon::Disabled);
        }
    }
    return icon;
}

QIcon program()
{
    constexpr int size = 64;
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xf3, 0xf5, 0xf8));
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 10, 10);
    const struct
    {
        double x, y, width;
        QRgb color;
    } bars[] = {{10, 14, 26, 0x4472c4}, {22, 28, 24, 0xb35d22}, {34, 42, 20, 0x4472c4}};
    for (const auto &bar : bars) {
        painter.setBrush(QColor(bar.color));
        painter.drawRoundedRect(QRectF(bar.x, bar.y, bar.width, 9), 2, 2);
    }
    return QIcon(pixmap);
}
}
