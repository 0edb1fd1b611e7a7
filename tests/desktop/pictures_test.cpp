// Pictures of the window, to be looked at: KW_DESKTOP_PICTURES names the folder, and
// test_desktop --gtest_also_run_disabled_tests --gtest_filter=*pictures* makes them (QT_SCALE_FACTOR=2 for
// other screens).
#include "desktop/hands.h"
#include "dialogs/calendardialog.h"
#include "support/kwclock.h"
#include "views/reasonspanel.h"
#include <QDir>
#include <QSplitter>
#include <gtest/gtest.h>

TEST(Window, DISABLED_pictures)
{
    const QDir out(qEnvironmentVariable("KW_DESKTOP_PICTURES"));
    const QDir demo(qEnvironmentVariable("KW_TEST_DATA") + QLatin1String("/../../demo"));
    KWClock::set(QDateTime(QDate(2026, 1, 8), QTime(10, 0)));
    const auto picture = [&](QWidget &window, const char *name) {
        QApplication::processEvents();
        ASSERT_TRUE(window.grab().save(out.filePath(QLatin1String(name) + QLatin1String(".png"))));
    };
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    Hands hands;
    MainWindow &window = *hands.window;
    window.findChild<QSplitter *>()->setSizes({620, 380});
    picture(window, "first");
    ASSERT_TRUE(window.openFile(demo.filePath(QStringLiteral("pump.csv"))));
    window.reasons()->explainNow();
    picture(window, "pump");
    const QPointF bar = window.chart()->barRect(hands.id(2)).center();
    hands.drag(bar, bar + QPointF(2 * window.chart()->pixelsOfDay(), 1), false);
    window.reasons()->explainNow();
    picture(window, "drag");
    hands.mouse(QEvent::MouseButtonRelease, bar + QPointF(2 * window.chart()->pixelsOfDay(), 1));
    picture(window, "dragged");
    hands.enter(2, 4, QStringLiteral("3 blinks"));
    picture(window, "refused");
    hands.key(Qt::Key_Escape);
    CalendarDialog calendar(window.session(), &window);
    calendar.show();
    picture(calendar, "calendar");
    ASSERT_TRUE(window.openFile(demo.filePath(QStringLiteral("website-relaunch.csv"))));
    window.resize(1400, 800);
    hands.go(29, 1);
    window.chart()->zoomAtCentre(3);
    window.chart()->showBar(hands.id(29));
    window.reasons()->explainNow();
    picture(window, "website");
    QPalette dark;
    for (const auto &[role, colour] : {std::make_pair(QPalette::Window, "#2a2f38"),
                                       {QPalette::Base, "#1e232b"},
                                       {QPalette::AlternateBase, "#252b34"},
                                       {QPalette::Button, "#353b46"},
                                       {QPalette::Text, "#e6eaf0"},
                                       {QPalette::WindowText, "#e6eaf0"},
                                       {QPalette::ButtonText, "#e6eaf0"},
                                       {QPalette::Highlight, "#4a7ec8"},
                                       {QPalette::Link, "#7fb0f0"}})
        dark.setColor(role, QColor(QLatin1String(colour)));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    window.reasons()->explainNow();
    picture(window, "dark");
}
