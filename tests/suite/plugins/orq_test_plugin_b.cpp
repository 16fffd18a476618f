// A second library with a different answer, so that a test can tell which
// of the two a name resolved to. It lives in its own directory, away from the
// loader child, so that only the library search path can find it.
extern "C" __attribute__((visibility("default"))) int orq_test_plugin_b_answer()
{
  return 7;
}
