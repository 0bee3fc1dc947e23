#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Core/Support/Comment.h"
#include "Core/TestVectors/TestColumn.h"
#include "Core/Values/Time.h"

namespace tarnsim {

class TestVectorHeader;

/// One line of the table of a signal file: what the inputs become at `time`, and what the outputs should be at
/// `endTime`, which is `deltaTime` later (both in ns).
///
/// Cells hold bits, most significant first: hexadecimal digits of the file are written out, a `~` has been carried out.
/// They are fitted to the width of a port only when they are used.
class TestVector : public CommentableObject {
public:
    /// For tables made by code: no cells and no header yet.
    explicit TestVector(std::uint32_t time);
    /// Parses the words of a line. `header` isn't owned. Raises an Error that names the line.
    TestVector(std::vector<std::string> words, int lineNumber, TestVectorHeader* header, const std::string& comment);

    Time time() const { return time_; }
    void setTime(Time time) { time_ = time; }
    Time deltaTime() const { return deltaTime_; }
    void setDeltaTime(Time deltaTime) { deltaTime_ = deltaTime; }
    Time endTime() const { return time_ + deltaTime_; }
    int getLineNumber() const { return lineNumber_; }
    TestVectorHeader* getHeader() const { return header_; }
    void setHeader(TestVectorHeader* header) { header_ = header; }

    int inputCount() const { return static_cast<int>(inputs_.size()); }
    int outputCount() const { return static_cast<int>(outputs_.size()); }
    const std::vector<TestColumn>& inputs() const { return inputs_; }
    const std::vector<TestColumn>& outputs() const { return outputs_; }

    // By position, from 0. Empty where there is no cell; writing there has no effect.

    std::string input(int i) const;
    std::string output(int i) const;
    void setInput(int i, const std::string& text);
    void setOutput(int i, const std::string& text);
    void addInput(const std::string& text);
    void addOutput(const std::string& text);

    // Used by TestSequence together with the same change of the header.

    void insertInput(int i, const std::string& text);
    void insertOutput(int i, const std::string& text);
    void removeInput(int i);
    void removeOutput(int i);
    /// By column number, as the header's moves.
    void moveCellLeft(int index);
    void moveCellRight(int index);

private:
    TestColumn parseCell(const std::string& word, bool columnIsReversed) const;

    Time time_ = 0;
    Time deltaTime_ = 0;
    std::vector<TestColumn> inputs_;
    std::vector<TestColumn> outputs_;
    int lineNumber_ = 0;
    TestVectorHeader* header_ = nullptr;  ///< the sequence's; not owned
};

}  // namespace tarnsim
