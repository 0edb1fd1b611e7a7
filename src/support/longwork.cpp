#include "support/longwork.h"

namespace {

LongWork *&newest()
{
    thread_local LongWork *instance = nullptr;
    return instance;
}
}

LongWork::LongWork(const Hook &hook)
    : m_hook(hook)
    , m_outer(newest())
{
    newest() = this;
}

LongWork::~LongWork()
{
    newest() = m_outer;
}

bool LongWork::goesOn(Stage stage, qint64 done, qint64 total)
{
    LongWork *work = newest();
    if (!work || !work->m_hook)
        return true;
    if (!work->m_isGivenUp && !work->m_hook(stage, done, total))
        work->m_isGivenUp = true;
    return !work->m_isGivenUp;
}

bool LongWork::wasGivenUp()
{
    return newest() && newest()->m_isGivenUp;
}
