// A library the loader tests open for real; the project hides symbols by
// default, so the one entry point is exported explicitly.
extern "C" __attribute__((visibility("default"))) int orq_test_plugin_a_answer()
{
  return 42;
}
