#include "fees_tests.h"
#include "support/run_all.h"

KURVO_TEST_MAIN(AmountInWordsTest, AutomaticPlanTest, InstalmentPlanTest, PromissoryNotesTest, ContractTest)
