#pragma once

#include <iosfwd>
#include <string>

namespace tarnsim {

class TestSequence;

/// Writes a TestSequence as a signal file in a tidy layout: comments, options, assignments, then the table with its
/// columns aligned.
///
/// The file reads back to an equal sequence, but for: delta times that aren't written; the comment of the first record,
/// which a reader takes for one of the file; groups of four equal X, Z or U, which become one letter, and such letters
/// in front of whole groups, which become lower case; `~` on outputs beside a delta time (TestVector).
class TestSequenceFileWriter {
public:
    /// Gives the sequence the path as its file name, then writes the file, over one that is there. Raises an Error if
    /// it can't be opened for writing, and for a sequence without a header, before it touches the file; whether all of
    /// it can be written isn't checked.
    void write(TestSequence& sequence, const std::string& path, bool withDeltaTime) const;
    /// The same text into a stream, whose state says whether that went well. The file name stays as it is.
    void write(const TestSequence& sequence, std::ostream& stream, bool withDeltaTime) const;
};

}  // namespace tarnsim
