#include "Core/TestVectors/TestVector.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Core/TestVectors/ColumnLists.h"
#include "Core/TestVectors/TestVectorHeader.h"

namespace tarnsim {

namespace {

/// What a character of a cell stands for.
struct Expansion {
    std::array<char, 4> letters{};
    std::uint8_t length = 0;  ///< 0 for a character that no cell may have
};

constexpr auto kExpansions = [] {
    std::array<Expansion, 256> expansions{};
    for (const char letter : std::string_view("hHlLxXzZuU")) {
        expansions[static_cast<unsigned char>(letter)] = {{letter}, 1};
    }
    for (const char digit : std::string_view("0123456789abcdefABCDEF")) {
        const int number = isDigit(digit) ? digit - '0' : (digit | 0x20) - 'a' + 10;
        Expansion& expansion = expansions[static_cast<unsigned char>(digit)];
        for (const int bit : {8, 4, 2, 1}) {
            expansion.letters[expansion.length++] = (number & bit) != 0 ? 'H' : 'L';
        }
    }
    return expansions;
}();

const Expansion& expansionOf(char c) {
    return kExpansions[static_cast<unsigned char>(c)];
}

std::string_view textIn(const ColumnList& list, int i) {
    return hasPosition(list, i) ? list[static_cast<std::size_t>(i)].value : std::string_view();
}

void setCellText(ColumnList& list, int i, const std::string& text) {
    if (hasPosition(list, i)) list[static_cast<std::size_t>(i)].value = text;
}

}  // namespace

/// The number of inputs, that of all cells, and of each cell the end of its letters, shifted for a bit that says
/// whether it is reversed; then the letters of all cells, inputs first.
class TestVector::Block {
public:
    explicit Block(const std::uint32_t* words) : words_(words) {}

    int inputCount() const { return static_cast<int>(words_[0]); }
    int outputCount() const { return static_cast<int>(words_[1]) - inputCount(); }
    std::string_view inputText(int i) const { return i >= 0 && i < inputCount() ? text(i) : std::string_view(); }
    std::string_view outputText(int i) const {
        return i >= 0 && i < outputCount() ? text(inputCount() + i) : std::string_view();
    }
    ColumnList inputs() const { return list(0, inputCount()); }
    ColumnList outputs() const { return list(inputCount(), outputCount()); }

    /// Makes a block, cell by cell.
    class Maker {
    public:
        /// `words` are those of all cells, and may be more.
        Maker(int inputs, int outputs, std::span<const std::string_view> words) {
            const auto cells = static_cast<std::size_t>(inputs + outputs);
            std::size_t room = sizeof(Expansion::letters);  // more letters than a character has are copied
            for (const std::string_view word : words) {
                for (const char c : word) {
                    const std::uint8_t length = expansionOf(c).length;
                    room += length;
                    isPlain_ &= length > 0;
                }
            }
            const std::size_t letterWords = (room + sizeof(std::uint32_t) - 1) / sizeof(std::uint32_t);
            block_ = std::make_unique_for_overwrite<std::uint32_t[]>(kCounts + cells + letterWords);
            block_[0] = static_cast<std::uint32_t>(inputs);
            block_[1] = static_cast<std::uint32_t>(cells);
            nextEnd_ = block_.get() + kCounts;
            letters_ = end_ = reinterpret_cast<char*>(nextEnd_ + cells);
        }

        /// No word has anything but characters of cells, not even a `~`.
        bool isPlain() const { return isPlain_; }

        /// REQUIRES: what stands behind a `~` in front has none but characters of cells
        void add(std::string_view word, bool columnIsReversed) {
            const bool isReversed = word.starts_with('~');
            if (isReversed) word.remove_prefix(1);
            char* begin = end_;
            for (const char c : word) {
                const Expansion& expansion = expansionOf(c);
                std::ranges::copy(expansion.letters, end_);
                end_ += expansion.length;
            }
            if (isReversed != columnIsReversed) std::reverse(begin, end_);
            *nextEnd_++ = static_cast<std::uint32_t>((end_ - letters_) << 1U) | (isReversed ? 1U : 0U);
        }
        std::unique_ptr<std::uint32_t[]> take() { return std::move(block_); }

    private:
        std::unique_ptr<std::uint32_t[]> block_;
        std::uint32_t* nextEnd_ = nullptr;
        char* letters_ = nullptr;
        char* end_ = nullptr;
        bool isPlain_ = true;
    };

private:
    static constexpr std::size_t kCounts = 2;

    const std::uint32_t* ends() const { return words_ + kCounts; }
    std::string_view text(int i) const {
        const std::uint32_t begin = i == 0 ? 0 : ends()[i - 1] >> 1U;
        return {reinterpret_cast<const char*>(ends() + words_[1]) + begin, (ends()[i] >> 1U) - begin};
    }
    ColumnList list(int first, int count) const {
        ColumnList list;
        list.reserve(static_cast<std::size_t>(count));
        for (int i = first; i < first + count; ++i) {
            list.push_back({std::string(text(i)), (ends()[i] & 1U) != 0, ""});
        }
        return list;
    }

    const std::uint32_t* words_;
};

TestVector::TestVector(std::uint32_t time) : time_(static_cast<Time>(std::min<std::uint32_t>(time, kLatestTime))) {}

TestVector::TestVector(const std::vector<std::string>& words, int lineNumber, TestVectorHeader* header,
                       const std::string& comment)
    : TestVector(std::vector<std::string_view>(words.begin(), words.end()), lineNumber, header, comment) {}

TestVector::TestVector(std::span<const std::string_view> words, int lineNumber, TestVectorHeader* header,
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
        throw Error("Error on line %d: First column must be a number: '%s' is not.", lineNumber,
                    std::string(words[0]).c_str());
    }
    time_ = *time;

    Block::Maker cells(header->inputCount(), header->outputCount(), words.subspan(1));
    for (int i = 1; i <= present; ++i) {
        const std::string_view word = words[static_cast<std::size_t>(i)];
        const bool isInput = i <= header->inputCount();
        // Beside a delta time this number is one column too far, so that an output takes the `~` of its right
        // neighbour. Signal files are written with that in mind.
        const bool columnIsReversed = header->isReversed(isInput ? i : i + 1);
        if (!cells.isPlain()) requireCell(word, columnIsReversed);
        if (isInput || !header->hasDeltaTime() || i != header->inputCount() + 1) {
            cells.add(word, columnIsReversed);
            continue;
        }
        const auto deltaTime = readLeadingInteger(word);
        if (!deltaTime) {
            throw Error("Error on line %d: delta-time-specification not an integer: '%s'", lineNumber,
                        std::string(word).c_str());
        }
        deltaTime_ = *deltaTime;
        if (std::int64_t{time_} + deltaTime_ > kLatestTime) {
            throw Error("Error on line %d: %d + %d is beyond the latest time, %d.", lineNumber, time_, deltaTime_,
                        kLatestTime);
        }
    }
    block_ = cells.take();
}

void TestVector::requireCell(std::string_view word, bool columnIsReversed) const {
    const bool isReversed = word.starts_with('~');
    if (isReversed) word.remove_prefix(1);
    const auto isLegal = [](char c) { return expansionOf(c).length > 0; };
    if (std::ranges::all_of(word, isLegal)) return;
    // The first one as the cell reads, not as it is written.
    const char illegal = isReversed == columnIsReversed ? *std::ranges::find_if_not(word, isLegal)
                                                        : *std::find_if_not(word.rbegin(), word.rend(), isLegal);
    throw Error("Error on line %d: Illegal character in vector: '%c'.", lineNumber_, illegal);
}

TestVector::Lists& TestVector::lists() const {
    if (!lists_) lists_ = std::make_unique<Lists>();
    if (block_) {
        *lists_ = {Block(block_.get()).inputs(), Block(block_.get()).outputs()};
        block_.reset();
    }
    return *lists_;
}

int TestVector::inputCount() const {
    return block_ ? Block(block_.get()).inputCount() : static_cast<int>(inputs().size());
}

int TestVector::outputCount() const {
    return block_ ? Block(block_.get()).outputCount() : static_cast<int>(outputs().size());
}

std::string_view TestVector::inputText(int i) const {
    return block_ ? Block(block_.get()).inputText(i) : textIn(inputs(), i);
}

std::string_view TestVector::outputText(int i) const {
    return block_ ? Block(block_.get()).outputText(i) : textIn(outputs(), i);
}

void TestVector::setInput(int i, const std::string& text) {
    setCellText(lists().inputs, i, text);
}

void TestVector::setOutput(int i, const std::string& text) {
    setCellText(lists().outputs, i, text);
}

void TestVector::addInput(const std::string& text) {
    lists().inputs.push_back({text, false, ""});
}

void TestVector::addOutput(const std::string& text) {
    lists().outputs.push_back({text, false, ""});
}

void TestVector::insertInput(int i, const std::string& text) {
    insertAt(lists().inputs, i, {text, false, ""});
}

void TestVector::insertOutput(int i, const std::string& text) {
    insertAt(lists().outputs, i, {text, false, ""});
}

void TestVector::removeInput(int i) {
    removeAt(lists().inputs, i);
}

void TestVector::removeOutput(int i) {
    removeAt(lists().outputs, i);
}

void TestVector::moveCellLeft(int index) {
    ColumnPlace(lists().inputs, lists().outputs, index).swapWithNeighbour(-1);
}

void TestVector::moveCellRight(int index) {
    ColumnPlace(lists().inputs, lists().outputs, index).swapWithNeighbour(+1);
}

}  // namespace tarnsim
