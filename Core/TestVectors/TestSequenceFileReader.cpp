#include "Core/TestVectors/TestSequenceFileReader.h"

#include <utility>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"
#include "Core/Support/TextFile.h"
#include "Core/TestVectors/LineKind.h"
#include "Core/TestVectors/TestSequence.h"

namespace tarnsim {

void TestSequenceFileReader::read(const std::string& path, TestSequence& sequence) {
    TextFile file(path);
    readLines(file, path, sequence);
}

void TestSequenceFileReader::read(const std::string& path, const std::string& contents, TestSequence& sequence) {
    TextFile file(path, contents);
    readLines(file, path, sequence);
}

void TestSequenceFileReader::readLines(TextFile& file, const std::string& path, TestSequence& sequence) {
    lineNumber_ = 0;
    fileName_ = path;
    sequence_ = &sequence;
    beforeFirstRecord_ = true;
    sequence.clear();
    sequence.setFileName(path);

    if (!file.isOpen()) throw Error("File '%s'not found.", path.c_str());
    std::string line;
    while (file.readLine(line)) {
        ++lineNumber_;
        prepareLine(line);
        handleLine(line);
    }
    validate();
}

void TestSequenceFileReader::addCommentLine(const std::string& text) {
    if (beforeFirstRecord_) {
        sequence_->addComment(text);
        pendingComment_.clear();
    } else {
        pendingComment_ += text + "\n";
    }
}

std::string TestSequenceFileReader::takeComment() {
    return std::exchange(pendingComment_, "");
}

void TestSequenceFileReader::handleLine(const std::string& line) {
    const LineKind kind = lineKindOf(line);
    if (kind == LineKind::Empty) return;
    if (kind == LineKind::NoMatch) {
        throw Error("Syntax error on line %d in test file '%s': '%s'", lineNumber_, fileName_.c_str(), line.c_str());
    }
    if (kind == LineKind::Header) return addHeader(line);
    beforeFirstRecord_ = false;
    if (kind == LineKind::TestVector) return addVector(line);
    if (kind == LineKind::ComponentOptions) sequence_->addOption(new ComponentOptions(line, takeComment()));
    if (kind == LineKind::PortAssignment) sequence_->addAssignment(new PortAssignment(line, takeComment()));
}

void TestSequenceFileReader::addHeader(const std::string& line) {
    if (sequence_->header() != nullptr) {
        throw Error("A second header line was discovered in line %d in test file '%s'. There can only be one.",
                    lineNumber_, fileName_.c_str());
    }
    beforeFirstRecord_ = false;
    sequence_->setHeader(new TestVectorHeader(splitWords(line), lineNumber_, takeComment()));
}

void TestSequenceFileReader::addVector(const std::string& line) {
    if (sequence_->header() == nullptr) {
        throw Error("Test vector parse error on line %d in file '%s': a header must precede the test vectors",
                    lineNumber_, fileName_.c_str());
    }
    words_.clear();
    std::string_view rest(line);
    for (auto word = takeWord(rest); !word.empty(); word = takeWord(rest)) words_.push_back(word);
    sequence_->addVector(new TestVector(words_, lineNumber_, sequence_->header(), takeComment()));
}

void TestSequenceFileReader::validate() const {
    if (sequence_->header() == nullptr) {
        throw Error("Test vector file ('%s') must at least contain a header.\n", fileName_.c_str());
    }
    for (int i = 1; i < sequence_->vectorCount(); ++i) {
        const Time before = sequence_->vector(i - 1)->time();
        const Time time = sequence_->vector(i)->time();
        if (time > before) continue;
        throw Error("Time must move strictly forward in test file. In file '%s': %d cannot come after %d.",
                    fileName_.c_str(), time, before);
    }
}

}  // namespace tarnsim
