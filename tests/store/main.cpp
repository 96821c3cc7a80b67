#include "support/run_all.h"
#include "workstation.h"

// With a role on the command line this program is the second workstation of a test.
int main(int argc, char** argv) {
    if (argc > 3 && argv[1] == std::string_view("--workstation")) return run_workstation(argc, argv);
    return run_all(argc, argv);
}
