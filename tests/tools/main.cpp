#include "support/run_all.h"
#include "tool_tests.h"

KURVO_TEST_MAIN(CsvTest, TableCopyTest, SchoolTest, LaunchTest, SampleTest, SampleMoneyTest, ProgramTest)
