#pragma once

// The folder for everything temporary of this run, removed with it: at the end, and when Ctrl-C or TERM ends
// it.
class Scratch
{
public:
    // Before the first thread and the first temporary file.
    Scratch();
    ~Scratch();
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;
};
