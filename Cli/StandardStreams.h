#pragma once

namespace tarnsim {

/// To be called before anything is opened. Where the standard output or another of the three streams is closed, no
/// file takes its number: what is printed is lost, and doesn't land in a file. Neither a reader that has gone nor a
/// limit on the size of files ends the process: writing fails, as on a full disk.
void prepareStandardStreams();

/// Closes the standard output; nothing may be printed any more. False if something that was printed is lost: the error
/// stream says so then.
bool finishOutput();

}  // namespace tarnsim
