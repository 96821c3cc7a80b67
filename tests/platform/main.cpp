#include "base_tests.h"
#include "control_tests.h"
#include "support/run_all.h"

KURVO_TEST_MAIN(PathsTest, TextFileTest, NumbersTest, TurkishTest, RichTextTest, PrintSurfaceTest, GridViewTest,
                GridSortTest, ControlEventsTest, ControlsTest, PromptTest)
