#pragma once

#include <memory>
#include <string>

#include "Core/Support/TextFile.h"
#include "Core/TestVectors/TestSequence.h"
#include "Core/TestVectors/TestSequenceFileWriter.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {

/// The sequence in a signal file with these contents.
inline std::unique_ptr<TestSequence> sequenceFrom(const std::string& text) {
    const TemporaryFolder folder;
    return std::make_unique<TestSequence>(folder.write("test.sig", text));
}

/// The signal file that the sequence is written to.
inline std::string writtenText(TestSequence& sequence, bool withDeltaTime = false) {
    const TemporaryFolder folder;
    TestSequenceFileWriter().write(sequence, folder.path("written.sig"), withDeltaTime);
    return readBytes(folder.path("written.sig")).value();
}

/// A signal file with these contents, read and written.
inline std::string writtenFrom(const std::string& text, bool withDeltaTime = false) {
    return writtenText(*sequenceFrom(text), withDeltaTime);
}

}  // namespace tarnsim
