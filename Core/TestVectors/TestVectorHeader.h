#pragma once

#include <string>
#include <vector>

#include "Core/Support/Comment.h"
#include "Core/TestVectors/TestColumn.h"

namespace tarnsim {

class Circuit;

/// The columns of a signal file: `time <input>... => <output>...`, with `==(dT)=>` in place of `=>` if every vector
/// states a time of its own from its inputs to its outputs. A `~` in front of a name reverses the bits of the column.
///
/// Columns have numbers: 0 is the time, 1 to N the inputs, N + 1 the separator, N + 2 to N + M + 1 the outputs. Names
/// are looked up in the circuit later, when they are used.
class TestVectorHeader : public CommentableObject {
public:
    /// Parses the words of the line. A header made by code has the line number -1, and then may lack inputs. Raises an
    /// Error if the first word isn't `time`, or without inputs.
    TestVectorHeader(std::vector<std::string> words, int lineNumber, const std::string& comment);

    static std::string separator() { return "=>"; }

    int inputCount() const { return static_cast<int>(inputColumns_.size()); }
    int outputCount() const { return static_cast<int>(outputColumns_.size()); }
    bool hasDeltaTime() const { return hasDeltaTime_; }
    int getLineNumber() const { return lineNumber_; }
    /// How many words a vector has behind its time.
    int fieldsPerVector() const { return inputCount() + outputCount() + (hasDeltaTime_ ? 1 : 0); }

    std::vector<std::string> inputNames() const;
    std::vector<std::string> outputNames() const;

    // By position among the inputs or outputs, from 0. Empty where there is no such column.

    std::string inputName(int i) const;
    std::string outputName(int i) const;
    std::string inputObjectId(int i) const;
    std::string outputObjectId(int i) const;

    // By column number.

    int columnCount() const { return inputCount() + outputCount() + 2; }
    int separatorColumn() const { return inputCount() + 1; }
    std::string columnName(int index) const;
    bool isTimeColumn(int index) const { return index == 0; }
    bool isInputColumn(int index) const { return index >= 1 && index <= inputCount(); }
    bool isOutputColumn(int index) const { return index > separatorColumn() && index < columnCount(); }
    int inputIndex(int index) const { return index - 1; }
    int outputIndex(int index) const { return index - inputCount() - 2; }
    /// False for everything that is no input and no output.
    bool isReversed(int index) const;

    // Editing, by position. Positions that aren't there are ignored, but an insertion may also go to the end.

    void setInputName(int i, const std::string& name);
    void setOutputName(int i, const std::string& name);
    void addInput(const std::string& name, const std::string& objectId);
    void addOutput(const std::string& name, const std::string& objectId);
    void insertInput(int i, const std::string& name, const std::string& objectId);
    void insertOutput(int i, const std::string& name, const std::string& objectId);
    void removeInput(int i);
    void removeOutput(int i);
    /// By column number: swaps a column with its neighbour among the inputs or among the outputs.
    void moveColumnLeft(int index);
    void moveColumnRight(int index);

    /// Fills the object ids: of ports for inputs, of ports or else nets for outputs. Names that `circuit` doesn't have
    /// leave their column as it was.
    void resolve(Circuit& circuit);

private:
    std::vector<TestColumn> inputColumns_;
    std::vector<TestColumn> outputColumns_;
    bool hasDeltaTime_ = false;
    int lineNumber_;
};

}  // namespace tarnsim
