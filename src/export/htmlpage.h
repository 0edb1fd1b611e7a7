#pragma once
#include <QDateTime>
#include <QString>
#include <functional>

class KWDocument;
class KWExportOptions;
class QIODevice;

// A plan as one page for a browser: table and chart, which its script draws, folds, zooms and searches.
//
// The page holds everything that it needs and asks the network for nothing. All tasks are in it, those below
// a folded summary too. Its time axis is that of the calendar with a day as long as another: reading hours
// need no scale of the document's.
namespace htmlpage {

// The bytes of page, style and script beside the plan's own.
constexpr int maxFrameBytes = 40 * 1024;

enum class Result { Written, NoTask, Cancelled, Failed }; // failed: the device did not take all
// `progress` is told now and then how much is done, and gives up with false; it may be empty.
Result write(QIODevice &device, KWDocument &document, const KWExportOptions &options, const QString &title,
             const QDateTime &now, const std::function<bool(int done, int total)> &progress);
}
