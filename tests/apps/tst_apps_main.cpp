#include "orq_test_support.h"

#include <QApplication>

ORQ_TEST_MAIN_PLAIN()
