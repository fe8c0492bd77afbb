// Asked by the leak sanitizer at the end of a program: the font library keeps its caches until
// then.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }
