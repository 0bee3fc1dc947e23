#include "Cli/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <initializer_list>

namespace tarnsim {

void prepareStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) != -1 || errno != EBADF) continue;
        // Takes the lowest number that is free, which is this one. The wrong way round, so that its use still fails.
        open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

bool finishOutput() {
    const bool failedBefore = std::ferror(stdout) != 0;
    const bool failsNow = std::fclose(stdout) != 0;
    if (failsNow) {
        std::fprintf(stderr, "Error: cannot write to the standard output: %s.\n", std::strerror(errno));
    } else if (failedBefore) {
        std::fputs("Error: cannot write all of the standard output.\n", stderr);
    }
    return !failedBefore && !failsNow;
}

}  // namespace tarnsim
