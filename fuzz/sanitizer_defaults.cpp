// Settings of the address sanitizer for millions of short executions; ASAN_OPTIONS overrides them.
// Short stacks of allocations and a small quarantine save a fifth of the time.

extern "C" const char* __asan_default_options() {
  return "malloc_context_size=6:quarantine_size_mb=32:detect_stack_use_after_return=0";
}
