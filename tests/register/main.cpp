#include "operation_tests.h"
#include "record_tests.h"
#include "register_tests.h"
#include "support/run_all.h"

KURVO_TEST_MAIN(StudentCardTest, StudentListTest, NameSearchTest, RecordFormTest, RecordSavingTest, RenumberingTest,
                DeletionTest, TransferTest)
