#pragma once
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <map>
#include <string>

// Timing, and a line of the report for each operation.

// What the processor spent on this program so far: the clock on the wall would measure the machine's other
// users too.
inline double processorSeconds()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

inline double secondsOf(const std::function<void()> &work)
{
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

class Report
{
public:
    void line(const std::string &name, int tasks, double seconds, double kernelSeconds = 0)
    {
        const double before = m_last.count(name) ? m_last[name].seconds : 0;
        std::printf("%-34s %8d %11.6f s %9.3f us/task", name.c_str(), tasks, seconds, seconds * 1e6 / tasks);
        if (before > 0)
            std::printf("  growth %6.1fx", seconds / before);
        if (kernelSeconds > 0)
            std::printf("  %5.2fx the kernel", seconds / kernelSeconds);
        std::printf("\n");
        std::fflush(stdout);
        m_last[name].seconds = seconds;
    }

private:
    struct Entry
    {
        double seconds = 0;
    };
    std::map<std::string, Entry> m_last;
};

// Best of the runs; `prepare` is not timed.
inline double best(int runs, const std::function<void()> &prepare, const std::function<void()> &work)
{
    double least = 1e9;
    for (int run = 0; run < runs; ++run) {
        prepare();
        least = std::min(least, secondsOf(work));
    }
    return least;
}
