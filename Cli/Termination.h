#pragma once

namespace tarnsim {

/// An exception that nobody catches ends the process as the runtime does it, with its name and an abort. But what was
/// printed so far gets out, and a lack of memory is told in plain words, without asking for more.
void prepareTermination();

}  // namespace tarnsim
