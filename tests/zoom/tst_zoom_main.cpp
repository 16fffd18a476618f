#include "orq_test_support.h"

#include <orq_app.h>

ORQ_TEST_MAIN_ORQ_APP()
