// The font and drawing libraries keep what they read of their configuration and of fonts until the process
// ends; the leak check asks for this list by its name.
extern "C" __attribute__((visibility("default"))) const char *__lsan_default_suppressions();
const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\n"
           "leak:libcairo\n";
}
