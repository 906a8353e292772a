// Options of the sanitizer that stand in every fuzz target. Runs allocate little and often: without a stack trace for
// each allocation, and with a small store of freed memory, they are twice as quick.

extern "C" const char* __asan_default_options(); // NOLINT(bugprone-reserved-identifier): the name is the sanitizer's

extern "C" const char* __asan_default_options() // NOLINT(bugprone-reserved-identifier)
{
    return "malloc_context_size=0:quarantine_size_mb=4:thread_local_quarantine_size_kb=256";
}
