#pragma once
#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QWidget>

// Windows that stand whole on a small screen, whatever they would like to be.
namespace fitting {

// As large as wanted, where there is room for it and the frame around it.
inline void resize(QWidget &window, const QSize &wanted)
{
    const QWidget *above = window.parentWidget();
    const QScreen *screen = above ? above->screen() : QGuiApplication::primaryScreen();
    constexpr int frame = 40;
    window.resize(wanted.boundedTo(screen->availableSize() - QSize(frame / 4, frame)));
}

// Scrolls what has not enough room, so that the buttons beside it are seen.
inline QScrollArea *scrolled(QWidget *contents)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(contents);
    return area;
}
}
