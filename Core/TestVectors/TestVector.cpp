#include "Core/TestVectors/TestVector.h"

#include <algorithm>
#include <string_view>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Core/TestVectors/ColumnLists.h"
#include "Core/TestVectors/TestVectorHeader.h"
#include "Core/Values/Value.h"

namespace tarnsim {

namespace {

constexpr std::string_view kCellAlphabet = "0123456789abcdefABCDEFhHlLxXzZuU";

std::string cellText(const ColumnList& list, int i) {
    return hasPosition(list, i) ? list[static_cast<std::size_t>(i)].value : "";
}

void setCellText(ColumnList& list, int i, const std::string& text) {
    if (hasPosition(list, i)) list[static_cast<std::size_t>(i)].value = text;
}

}  // namespace

TestVector::TestVector(std::uint32_t time) : time_(static_cast<Time>(time)) {}

TestVector::TestVector(std::vector<std::string> words, int lineNumber, TestVectorHeader* header,
                       const std::string& comment)
    : CommentableObject(comment), lineNumber_(lineNumber), header_(header) {
    const int expected = header->fieldsPerVector();
    const int present = static_cast<int>(words.size()) - 1;
    if (present < expected) {
        throw Error("Error on line %d: Missing fields: %d in header, %d in vector.", lineNumber, expected, present);
    }
    if (present > expected) {
        throw Error("Error on line %d: Extraneous fields: %d in header, %d in vector.", lineNumber, expected, present);
    }
    const auto time = readLeadingInteger(words[0]);
    if (!time) {
        throw Error("Error on line %d: First column must be a number: '%s' is not.", lineNumber, words[0].c_str());
    }
    time_ = *time;

    for (int i = 1; i <= present; ++i) {
        const std::string& word = words[static_cast<std::size_t>(i)];
        const bool isInput = i <= header->inputCount();
        // Beside a delta time this number is one column too far, so that an output takes the `~` of its right
        // neighbour. Signal files are written with that in mind.
        const int column = isInput ? i : i + 1;
        TestColumn cell = parseCell(word, header->isReversed(column));
        if (isInput) {
            inputs_.push_back(std::move(cell));
        } else if (header->hasDeltaTime() && i == header->inputCount() + 1) {
            const auto deltaTime = readLeadingInteger(word);
            if (!deltaTime) {
                throw Error("Error on line %d: delta-time-specification not an integer: '%s'", lineNumber,
                            word.c_str());
            }
            deltaTime_ = *deltaTime;
            if (std::int64_t{time_} + deltaTime_ > kLatestTime) {
                throw Error("Error on line %d: %d + %d is beyond the latest time, %d.", lineNumber, time_, deltaTime_,
                            kLatestTime);
            }
        } else {
            outputs_.push_back(std::move(cell));
        }
    }
}

TestColumn TestVector::parseCell(const std::string& word, bool columnIsReversed) const {
    TestColumn cell{Value::hexToBits(word), word.starts_with('~'), ""};
    if (cell.reversed) {
        cell.value.erase(0, 1);
        std::ranges::reverse(cell.value);
    }
    if (columnIsReversed) std::ranges::reverse(cell.value);
    const std::size_t illegal = cell.value.find_first_not_of(kCellAlphabet);
    if (illegal != std::string::npos) {
        throw Error("Error on line %d: Illegal character in vector: '%c'.", lineNumber_, cell.value[illegal]);
    }
    return cell;
}

std::string TestVector::input(int i) const {
    return cellText(inputs_, i);
}

std::string TestVector::output(int i) const {
    return cellText(outputs_, i);
}

void TestVector::setInput(int i, const std::string& text) {
    setCellText(inputs_, i, text);
}

void TestVector::setOutput(int i, const std::string& text) {
    setCellText(outputs_, i, text);
}

void TestVector::addInput(const std::string& text) {
    inputs_.push_back({text, false, ""});
}

void TestVector::addOutput(const std::string& text) {
    outputs_.push_back({text, false, ""});
}

void TestVector::insertInput(int i, const std::string& text) {
    insertAt(inputs_, i, {text, false, ""});
}

void TestVector::insertOutput(int i, const std::string& text) {
    insertAt(outputs_, i, {text, false, ""});
}

void TestVector::removeInput(int i) {
    removeAt(inputs_, i);
}

void TestVector::removeOutput(int i) {
    removeAt(outputs_, i);
}

void TestVector::moveCellLeft(int index) {
    ColumnPlace(inputs_, outputs_, index).swapWithNeighbour(-1);
}

void TestVector::moveCellRight(int index) {
    ColumnPlace(inputs_, outputs_, index).swapWithNeighbour(+1);
}

}  // namespace tarnsim
