#include "form_tests.h"
#include "support/run_all.h"
#include "window_rules_tests.h"

KURVO_TEST_MAIN(WindowRulesTest, FormTest)
