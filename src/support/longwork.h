#pragma once
#include "kwgantt_export.h"
#include <QtGlobal>
#include <functional>

// Lets a host show how far long work has come, and give it up: loading, imports and the scheduling of a plan.
//
//     LongWork work([&](LongWork::Stage, qint64 done, qint64 total) {
//         return !dialog.wasCancelled(done, total);
//     });
//     document.loadFromKWGT(path);
//
// The hook is called on the thread that works, between steps that take some milliseconds each in plans of
// usual size. It may process events, but must not touch the document that is worked on. Work that is given up
// ends as after a failure: false, or EditRefusal::GivenUp, and the document is as it was. Only
// settling::settle, called by itself, stops half way: the document is to be settled again, or thrown away.
class KWGANTT_EXPORT LongWork
{
public:
    enum Stage { Reading, Scheduling };
    // How much is done of how much; a total of 0 is not known. False gives up.
    using Hook = std::function<bool(Stage stage, qint64 done, qint64 total)>;

    // Hears of all work of this thread while it lives; of several, the newest does. One without a hook keeps
    // what must not end half way from those around it.
    explicit LongWork(const Hook &hook = Hook());
    ~LongWork();
    LongWork(const LongWork &) = delete;
    LongWork &operator=(const LongWork &) = delete;
    bool isGivenUp() const { return m_isGivenUp; }

    // ---- For those who work -------------------------------------------------------------------------------
    // False: stop as soon as that leaves everything whole. Stays false until the watcher is gone.
    static bool goesOn(Stage stage, qint64 done, qint64 total);
    static bool wasGivenUp();

private:
    const Hook m_hook;
    LongWork *const m_outer;
    bool m_isGivenUp = false;
};
