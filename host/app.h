#pragma once

class Console;

// The commands. Returns the process's exit code, see Console::Code.
int runCommand(Console &console);
