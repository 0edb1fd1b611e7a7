// The font library keeps what it reads of its configuration; the leak check asks for this list by its name.
extern "C" __attribute__((visibility("default"))) const char *__lsan_default_suppressions();
const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\n";
}
