#include "Core/TestVectors/TestVectorHeader.h"

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Error.h"
#include "Core/TestVectors/ColumnLists.h"

namespace tarnsim {

namespace {

constexpr const char* kDeltaTimeSeparator = "==(dT)=>";

const TestColumn& columnAt(const ColumnList& list, int i) {
    static const TestColumn kNone;
    return hasPosition(list, i) ? list[static_cast<std::size_t>(i)] : kNone;
}

std::vector<std::string> namesOf(const ColumnList& list) {
    std::vector<std::string> names;
    names.reserve(list.size());
    for (const TestColumn& column : list) names.push_back(column.value);
    return names;
}

void rename(ColumnList& list, int i, const std::string& name) {
    if (hasPosition(list, i)) list[static_cast<std::size_t>(i)].value = name;
}

}  // namespace

TestVectorHeader::TestVectorHeader(std::vector<std::string> words, int lineNumber, const std::string& comment)
    : CommentableObject(comment), lineNumber_(lineNumber) {
    if (words.empty() || words.front() != "time") {
        throw Error("Error on line %d: The header must start with the keyword 'time'.", lineNumber);
    }
    words.erase(words.begin());

    ColumnList* columns = &inputColumns_;
    for (std::string& word : words) {
        const bool reversed = word.starts_with('~');
        if (reversed) word.erase(0, 1);
        if (word == kDeltaTimeSeparator) hasDeltaTime_ = true;
        if (word == kDeltaTimeSeparator || word == separator()) {
            columns = &outputColumns_;
        } else {
            columns->push_back({word, reversed, ""});
        }
    }
    if (lineNumber >= 0 && inputColumns_.empty()) throw Error("Error on line %d: No inputs defined.", lineNumber);
}

std::vector<std::string> TestVectorHeader::inputNames() const {
    return namesOf(inputColumns_);
}

std::vector<std::string> TestVectorHeader::outputNames() const {
    return namesOf(outputColumns_);
}

std::string TestVectorHeader::inputName(int i) const {
    return columnAt(inputColumns_, i).value;
}

std::string TestVectorHeader::outputName(int i) const {
    return columnAt(outputColumns_, i).value;
}

std::string TestVectorHeader::inputObjectId(int i) const {
    return columnAt(inputColumns_, i).objectId;
}

std::string TestVectorHeader::outputObjectId(int i) const {
    return columnAt(outputColumns_, i).objectId;
}

std::string TestVectorHeader::columnName(int index) const {
    if (isTimeColumn(index)) return "Time";
    if (index == separatorColumn()) return separator();
    return isInputColumn(index) ? inputName(inputIndex(index)) : outputName(outputIndex(index));
}

bool TestVectorHeader::isReversed(int index) const {
    if (isInputColumn(index)) return columnAt(inputColumns_, inputIndex(index)).reversed;
    return isOutputColumn(index) && columnAt(outputColumns_, outputIndex(index)).reversed;
}

void TestVectorHeader::setInputName(int i, const std::string& name) {
    rename(inputColumns_, i, name);
}

void TestVectorHeader::setOutputName(int i, const std::string& name) {
    rename(outputColumns_, i, name);
}

void TestVectorHeader::addInput(const std::string& name, const std::string& objectId) {
    inputColumns_.push_back({name, false, objectId});
}

void TestVectorHeader::addOutput(const std::string& name, const std::string& objectId) {
    outputColumns_.push_back({name, false, objectId});
}

void TestVectorHeader::insertInput(int i, const std::string& name, const std::string& objectId) {
    insertAt(inputColumns_, i, {name, false, objectId});
}

void TestVectorHeader::insertOutput(int i, const std::string& name, const std::string& objectId) {
    insertAt(outputColumns_, i, {name, false, objectId});
}

void TestVectorHeader::removeInput(int i) {
    removeAt(inputColumns_, i);
}

void TestVectorHeader::removeOutput(int i) {
    removeAt(outputColumns_, i);
}

void TestVectorHeader::moveColumnLeft(int index) {
    ColumnPlace(inputColumns_, outputColumns_, index).swapWithNeighbour(-1);
}

void TestVectorHeader::moveColumnRight(int index) {
    ColumnPlace(inputColumns_, outputColumns_, index).swapWithNeighbour(+1);
}

void TestVectorHeader::resolve(Circuit& circuit) {
    for (TestColumn& column : inputColumns_) {
        if (const Port* port = circuit.findPort(column.value)) column.objectId = port->getId();
    }
    for (TestColumn& column : outputColumns_) {
        if (const Port* port = circuit.findPort(column.value)) {
            column.objectId = port->getId();
        } else if (const Net* net = circuit.findNet(column.value)) {
            column.objectId = net->getId();
        }
    }
}

}  // namespace tarnsim
