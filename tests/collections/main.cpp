#include "collections_tests.h"
#include "support/run_all.h"

KURVO_TEST_MAIN(StatementTest, CollectionScreenTest, PostingTest, ReceiptTest, InvoiceTest)
