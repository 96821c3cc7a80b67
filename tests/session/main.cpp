#include "session_tests.h"
#include "support/run_all.h"

KURVO_TEST_MAIN(HandOverTest, VersionCheckTest, UserOptionsTest, ParameterFilesTest, TermsTest, StartUpTest)
