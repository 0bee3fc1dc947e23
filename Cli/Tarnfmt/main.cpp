#include <csignal>
#include <string>
#include <vector>

#include "Cli/Tarnfmt/FormatCommand.h"

int main(int argc, char** argv) {
    // A file that grows beyond the limit of its user is refused like one on a full disk, and cleaned up after.
    std::signal(SIGXFSZ, SIG_IGN);
    return tarnsim::runTarnfmt(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
}
