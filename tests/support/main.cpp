// Linked where a folder's test program has no main routine of its own.
#include "support/run_all.h"

int main(int argc, char** argv) {
    return run_all(argc, argv);
}
