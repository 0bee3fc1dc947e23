#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
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
///
/// A file may have hundreds of thousands of vectors, and most are read and never changed. So the cells of a file's
/// vector stand in one block of letters, until somebody asks for the lists or changes them.
class TestVector : public CommentableObject {
public:
    /// For tables made by code: no cells and no header yet. Beyond kLatestTime there is only that.
    explicit TestVector(std::uint32_t time);
    /// Parses the words of a line. `header` isn't owned. Raises an Error that names the line.
    TestVector(std::span<const std::string_view> words, int lineNumber, TestVectorHeader* header,
               const std::string& comment);
    TestVector(const std::vector<std::string>& words, int lineNumber, TestVectorHeader* header,
               const std::string& comment);

    Time time() const { return time_; }
    void setTime(Time time) { time_ = time; }
    Time deltaTime() const { return deltaTime_; }
    void setDeltaTime(Time deltaTime) { deltaTime_ = deltaTime; }
    /// Never beyond kLatestTime, whatever code has set the two to.
    Time endTime() const {
        return static_cast<Time>(
            std::clamp<std::int64_t>(std::int64_t{time_} + deltaTime_, kEarliestTime, kLatestTime));
    }
    int getLineNumber() const { return lineNumber_; }
    TestVectorHeader* getHeader() const { return header_; }
    void setHeader(TestVectorHeader* header) { header_ = header; }

    int inputCount() const;
    int outputCount() const;
    const std::vector<TestColumn>& inputs() const { return lists().inputs; }
    const std::vector<TestColumn>& outputs() const { return lists().outputs; }

    // By position, from 0. Empty where there is no cell; writing there has no effect.

    std::string input(int i) const { return std::string(inputText(i)); }
    std::string output(int i) const { return std::string(outputText(i)); }
    /// The same without a copy, valid until the lists are asked for or a cell changes.
    std::string_view inputText(int i) const;
    std::string_view outputText(int i) const;
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
    struct Lists {
        std::vector<TestColumn> inputs;
        std::vector<TestColumn> outputs;
    };
    /// Reads and makes a block of cells.
    class Block;

    void requireCell(std::string_view word, bool columnIsReversed) const;
    /// Lays the cells out as lists, if they aren't yet.
    Lists& lists() const;

    mutable std::unique_ptr<std::uint32_t[]> block_;  ///< null if the cells are in lists
    mutable std::unique_ptr<Lists> lists_;            ///< null if they are in a block, or if there are none
    Time time_ = 0;
    Time deltaTime_ = 0;
    int lineNumber_ = 0;
    TestVectorHeader* header_ = nullptr;  ///< the sequence's; not owned
};

}  // namespace tarnsim
