#pragma once

#include <iosfwd>
#include <string>

namespace tarnsim {

class Circuit;

/// Writes a circuit as a circuit file. The result isn't a copy of the file that the circuit came from: statements stand
/// in groups, meta data, free comments, import paths, declarations, pins, ports, units, nets, each group with a blank
/// line behind it; pins and ports are sorted by direction, units by type. What has a comment stands alone, in front of
/// the others of its group.
///
/// Some things aren't in the file: declarations that no unit uses; the comments, parameters, differing types and
/// missing indices of array units; the options of ports, and ports of width 0; what was changed in a unit of a declared
/// type and not in the declaration; the contents of circuits that have a file of their own, which is named. Imported
/// files are written out. Meta data that holds quotes, backslashes or bytes that aren't printable ASCII is escaped, but
/// the reader knows no escapes.
class CircuitFileWriter {
public:
    /// `circuit` isn't owned.
    explicit CircuitFileWriter(const Circuit* circuit) : circuit_(circuit) {}
    virtual ~CircuitFileWriter() = default;
    CircuitFileWriter(const CircuitFileWriter&) = delete;
    CircuitFileWriter& operator=(const CircuitFileWriter&) = delete;

    /// Writes the file, over one that is there. The header is a comment with the present time. Raises an Error if the
    /// file can't be opened for writing; whether all of it can be written isn't checked.
    void save(const std::string& fileName, bool withHeader) const;
    /// The same text into a stream, whose state says whether that went well.
    void write(std::ostream& stream, bool withHeader) const;

private:
    const Circuit* circuit_;
};

}  // namespace tarnsim
