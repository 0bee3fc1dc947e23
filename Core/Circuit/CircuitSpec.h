#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Core/Circuit/FileParser.h"
#include "Core/Circuit/Lines.h"
#include "Core/Support/TextFile.h"

namespace tarnsim {

/// What a circuit file says: the statements of one circuit body, and the nested bodies. Constructing the top-level
/// object reads the file with all that it imports; a circuit is then built from it (Circuit::setSpec). Nothing but
/// files is looked up here.
///
/// The grammar is told in Docs/Formats.md, how deep files and bodies may be nested in Docs/Limits.md. All refusals are
/// Errors, out of the constructor.
class CircuitSpec : public FileParser {
public:
    /// Reads the file; its path is also the circuit's name.
    explicit CircuitSpec(const std::string& fileName);
    /// The same as if the file held `contents`. What it names is read from the disk.
    CircuitSpec(const std::string& fileName, const std::string& contents);
    /// An empty body inside `parent`, which isn't owned and lives longer.
    CircuitSpec(CircuitSpec* parent, const std::string& name);
    CircuitSpec(const CircuitSpec&) = delete;
    CircuitSpec& operator=(const CircuitSpec&) = delete;
    ~CircuitSpec() override = default;

    /// Keeps a comment line until a statement takes it.
    void addCommentLine(const std::string& text) override;

    const std::string& getName() const { return name_; }
    void setName(const std::string& name) { name_ = name; }
    /// The file of this body, or of the nearest one around it that has a file.
    std::string getFileName() const;
    /// The path at which the file was found that the text of this body stands in, as seen from the working directory.
    const std::string& getSourceFile() const { return sourceFile_; }
    /// The body stands in braces, in somebody else's file.
    bool isInline() const { return fileName_.empty(); }
    std::size_t countUnits() const;
    std::size_t countNets() const { return netLines.size(); }
    /// Whether there are comment lines that no statement has taken yet.
    bool hasPendingComment() const;
    void clearPendingComment() { current_->pendingComment_.clear(); }

    /// Lets go of all statements, here and in the nested bodies: they have been built. Names and files stay.
    void forgetStatements();
    /// Of the units of this body alone.
    void forgetUnits();

    /// For those who keep a pointer to this object: it's empty as soon as the object is gone.
    std::weak_ptr<const CircuitSpec> watch() const { return lifetime_; }

    // The statements, each kind in the order of the file.

    std::vector<UnitLine> unitLines;
    std::vector<NetLine> netLines;
    std::vector<PortLine> portLines;
    std::vector<PinLine> pinLines;
    std::vector<std::unique_ptr<CircuitSpec>> subSpecs;
    std::vector<MetaDataLine> metaDataLines;
    std::vector<std::string> importPaths;   ///< of the whole load; kept by the top-level object
    std::vector<std::string> freeComments;  ///< comments that belong to no statement

private:
    using Fields = std::vector<std::string>;

    // Only the top-level object reads; the bodies inside it are filled by it.

    void parseFile(const std::string& path);
    void parseLines(TextFile& file, const std::string& found);
    /// Changes the line.
    void handleLine(std::string& line);
    void handleStatement(const std::string& line);
    void handleCircuit(const Fields& fields, const std::string& line);
    void handleClosingBrace(const Fields& fields);
    template <class Record>
    void addRecord(std::vector<Record> CircuitSpec::*records, const Fields& fields);
    void flushComment();
    void pushBody(const std::string& name, const std::string& file);
    /// Before the statement that names the file does anything.
    void checkImport(const std::string& path) const;
    void includeFile(const std::string& path);
    std::string quotedValue(const std::string& line) const;
    std::string relativeToCurrent(const std::string& name) const;
    std::string resolveFile(const std::string& path) const;
    /// Two nets of a body mustn't name the same port.
    void checkSharedPorts();

    std::string name_;
    std::string fileName_;  ///< the file being read into this body; empty for an inline body
    std::string sourceFile_;
    int lineNumber_ = 0;  ///< an inline body counts on from where it opens; the body around it doesn't count meanwhile
    CircuitSpec* current_;     ///< of the top-level object: the body that statements go to
    CircuitSpec* parentSpec_;  ///< not owned; null at the top level
    int depth_ = 0;            ///< how many bodies are around it
    std::string pendingComment_;
    std::vector<FileIdentity> filesBeingRead_;  ///< of the top-level object, outermost first
    std::string fileBeingRead_;                 ///< of the top-level object: where the innermost of them was found
    bool isReadingOwnFile_ = false;  ///< a body in a file of its own, which ends with the file and not with a brace

    /// A port that a net names, found by the hash of its text.
    struct NamedPort {
        std::uint32_t hash;
        std::uint32_t net;   ///< the first net that names it, counted from 1; 0 in a free place
        std::uint32_t port;  ///< of that net
    };
    /// The place of a port in `namedPorts_`, a free one if no net names it.
    NamedPort& placeOf(const std::string& port, std::uint32_t hash);
    void makeRoomForPorts(std::size_t count);
    /// The files are read: no further check comes.
    void forgetPorts();

    // For checkSharedPorts.
    std::vector<NamedPort> namedPorts_;  ///< an open hash table: of a board's names, a map of texts would be its double
    std::size_t namedPortCount_ = 0;
    std::size_t checkedNets_ = 0;  ///< how many nets are in there

    /// Points here without owning.
    std::shared_ptr<const CircuitSpec> lifetime_{this, [](const CircuitSpec*) {}};
};

}  // namespace tarnsim
