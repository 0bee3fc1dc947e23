#include "Core/TestVectors/TestSequenceFileWriter.h"

#include <algorithm>
#include <fstream>
#include <ostream>
#include <vector>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Core/TestVectors/TestSequence.h"
#include "Core/Values/Value.h"

namespace tarnsim {

namespace {

constexpr std::string_view kTimeWord = "time";

void requireHeader(const TestSequence& sequence) {
    if (sequence.header() == nullptr) throw Error("A test sequence without a header cannot be written.");
}

void writeCommentBlock(std::ostream& stream, const CommentableObject& record) {
    for (const std::string& line : split(record.getCommentText(), '\n')) stream << "# " << line << '\n';
}

void writeFileComments(std::ostream& stream, const TestSequence& sequence) {
    for (const std::string& comment : sequence.comments()) {
        stream << '#' << (comment.empty() ? "" : " ") << comment << '\n';
    }
    if (!sequence.comments().empty()) stream << '\n';
}

void writeOptions(std::ostream& stream, const TestSequence& sequence) {
    for (const auto& record : sequence.options()) {
        writeCommentBlock(stream, *record);
        stream << record->name() << '(';
        const char* separator = "";
        for (const auto& [key, value] : record->options()) {
            stream << separator << key << '=' << value;
            separator = ", ";
        }
        stream << ")\n";
    }
    if (sequence.optionCount() > 0) stream << '\n';
}

void writeAssignments(std::ostream& stream, const TestSequence& sequence) {
    for (const auto& record : sequence.assignments()) {
        writeCommentBlock(stream, *record);
        stream << record->name() << '=' << record->value() << '\n';
    }
    if (sequence.assignmentCount() > 0) stream << '\n';
}

/// The table: header and vectors, in columns that are as wide as their widest cell.
class TableWriter {
public:
    TableWriter(std::ostream& stream, const TestSequence& sequence, bool withDeltaTime)
        : stream_(stream), sequence_(sequence), header_(*sequence.header()), withDeltaTime_(withDeltaTime) {
        for (const auto& vector : sequence.vectors()) timeWidth_ = std::max(timeWidth_, timeWidthOf(*vector));
        for (int i = 0; i < header_.inputCount(); ++i) {
            inputs_.emplace_back(header_.inputName(i), header_.isReversed(1 + i));
            for (const auto& vector : sequence.vectors()) inputs_.back().makeRoomFor(vector->inputs(), i);
        }
        for (int i = 0; i < header_.outputCount(); ++i) {
            outputs_.emplace_back(header_.outputName(i), header_.isReversed(header_.separatorColumn() + 1 + i));
            for (const auto& vector : sequence.vectors()) outputs_.back().makeRoomFor(vector->outputs(), i);
        }
    }

    void write() const {
        writeCommentBlock(stream_, header_);
        stream_ << kTimeWord << std::string(timeWidth_ - kTimeWord.size() + 1, ' ');
        for (const Column& column : inputs_) writeAligned(column.title(), column);
        stream_ << (withDeltaTime_ ? "==(dT)=> " : "=> ");
        for (const Column& column : outputs_) writeAligned(column.title(), column);
        stream_ << '\n';
        for (const auto& vector : sequence_.vectors()) writeVector(*vector);
    }

private:
    struct Column {
        std::string name;
        bool reversed;
        std::size_t width;

        Column(const std::string& columnName, bool isReversed)
            : name(columnName), reversed(isReversed), width(title().size()) {}

        std::string title() const { return (reversed ? "~" : "") + name; }

        /// Room for the bits of the cell as they are stored, however few digits they are written with.
        void makeRoomFor(const std::vector<TestColumn>& cells, int i) {
            if (i >= static_cast<int>(cells.size())) return;
            const TestColumn& cell = cells[static_cast<std::size_t>(i)];
            width = std::max(width, cell.value.size() + (cell.reversed ? 1 : 0));
        }
    };

    static std::size_t timeWidthOf(const TestVector& vector) { return std::to_string(vector.time()).size(); }

    void writeAligned(const std::string& text, const Column& column) const {
        stream_ << format("%*s ", static_cast<int>(column.width), text.c_str());
    }

    void writeCells(const std::vector<TestColumn>& cells, const std::vector<Column>& columns) const {
        for (std::size_t i = 0; i < std::min(columns.size(), cells.size()); ++i) {
            const TestColumn& cell = cells[i];
            std::string bits = cell.value;
            if (cell.reversed != columns[i].reversed) std::ranges::reverse(bits);
            std::string text = Value::bitsToHex(bits, false);
            if (cell.reversed) text.insert(text.begin(), '~');
            writeAligned(text, columns[i]);
        }
    }

    void writeVector(const TestVector& vector) const {
        writeCommentBlock(stream_, vector);
        stream_ << format("%0*d ", static_cast<int>(timeWidth_), vector.time());
        writeCells(vector.inputs(), inputs_);
        stream_ << (withDeltaTime_ ? format("%5d    ", vector.deltaTime()) : "   ");
        writeCells(vector.outputs(), outputs_);
        stream_ << '\n';
    }

    std::ostream& stream_;
    const TestSequence& sequence_;
    const TestVectorHeader& header_;
    bool withDeltaTime_;
    std::size_t timeWidth_ = kTimeWord.size();
    std::vector<Column> inputs_;
    std::vector<Column> outputs_;
};

}  // namespace

void TestSequenceFileWriter::write(TestSequence& sequence, const std::string& path, bool withDeltaTime) const {
    sequence.setFileName(path);
    requireHeader(sequence);
    std::ofstream file(path);
    if (!file.is_open()) throw Error("File '%s' cannot be created.", path.c_str());
    write(sequence, file, withDeltaTime);
}

void TestSequenceFileWriter::write(const TestSequence& sequence, std::ostream& stream, bool withDeltaTime) const {
    requireHeader(sequence);
    writeFileComments(stream, sequence);
    writeOptions(stream, sequence);
    writeAssignments(stream, sequence);
    TableWriter(stream, sequence, withDeltaTime).write();
}

}  // namespace tarnsim
