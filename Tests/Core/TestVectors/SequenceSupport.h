#pragma once

#include <memory>
#include <string>

#include "Core/TestVectors/TestSequence.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {

/// The sequence in a signal file with these contents.
inline std::unique_ptr<TestSequence> sequenceFrom(const std::string& text) {
    const TemporaryFolder folder;
    return std::make_unique<TestSequence>(folder.write("test.sig", text));
}

}  // namespace tarnsim
