#include "register_tests.h"
#include "support/run_all.h"

KURVO_TEST_MAIN(StudentCardTest, StudentListTest, NameSearchTest)
