#include <string>
#include <vector>

#include "Cli/StandardStreams.h"
#include "Cli/Tarnfmt/FormatCommand.h"
#include "Cli/Termination.h"

int main(int argc, char** argv) {
    tarnsim::prepareTermination();
    tarnsim::prepareStandardStreams();
    return tarnsim::runTarnfmt(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
}
