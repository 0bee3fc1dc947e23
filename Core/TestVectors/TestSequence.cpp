#include "Core/TestVectors/TestSequence.h"

#include <cstdint>
#include <span>
#include <utility>

#include "Core/Support/Error.h"
#include "Core/TestVectors/ExpectedOutputs.h"
#include "Core/TestVectors/TestSequenceFileReader.h"

namespace tarnsim {

namespace {

constexpr const char* kNewCell = "U";

template <class List, class Item>
void removeItem(List& list, const Item* item) {
    std::erase_if(list, [&](const auto& each) { return each.get() == item; });
}

}  // namespace

TestSequence::TestSequence(int mode) {
    if (mode != kNewFile) return;
    const std::vector<std::string> words = {"time", "<example>", TestVectorHeader::separator(), "<example>"};
    header_ = std::make_unique<TestVectorHeader>(words, -1, "New test sequence");
    auto vector = std::make_unique<TestVector>(0U);
    vector->setHeader(header_.get());
    vector->addInput(kNewCell);
    vector->addOutput(kNewCell);
    vectors_.push_back(std::move(vector));
}

TestSequence::TestSequence(const std::string& path) {
    TestSequenceFileReader().read(path, *this);
}

TestSequence::~TestSequence() = default;

void TestSequence::clear() {
    header_.reset();
    vectors_.clear();
    componentOptions_.clear();
    portAssignments_.clear();
    comments_.clear();
}

void TestSequence::insertVector(int i, TestVector* vector) {
    vector->setHeader(header_.get());
    vectors_.emplace(vectors_.begin() + i, vector);
}

void TestSequence::removeVector(int i) {
    vectors_.erase(vectors_.begin() + i);
}

void TestSequence::shiftFrom(int i, Time delta) {
    const auto moved = [delta](const std::unique_ptr<TestVector>& vector) {
        return std::int64_t{vector->time()} + delta;
    };
    const std::span shifted(vectors_.begin() + i, vectors_.end());
    for (const auto& vector : shifted) {
        if (std::in_range<Time>(moved(vector))) continue;
        throw Error("Error: the vector at %d can't be shifted by %d: there is no such time.", vector->time(), delta);
    }
    for (const auto& vector : shifted) vector->setTime(static_cast<Time>(moved(vector)));
}

void TestSequence::insertOption(int i, ComponentOptions* option) {
    componentOptions_.emplace(componentOptions_.begin() + i, option);
}

void TestSequence::removeOption(const ComponentOptions* option) {
    removeItem(componentOptions_, option);
}

void TestSequence::insertAssignment(int i, PortAssignment* assignment) {
    portAssignments_.emplace(portAssignments_.begin() + i, assignment);
}

void TestSequence::removeAssignment(const PortAssignment* assignment) {
    removeItem(portAssignments_, assignment);
}

void TestSequence::insertColumn(int index, const std::string& name, const std::string& objectId) {
    if (header_->isInputColumn(index) || index == header_->separatorColumn()) {
        const int position = header_->inputIndex(index);
        header_->insertInput(position, name, objectId);
        for (const auto& vector : vectors_) vector->insertInput(position, kNewCell);
    } else if (header_->isOutputColumn(index) || index == header_->columnCount()) {
        const int position = header_->outputIndex(index);
        header_->insertOutput(position, name, objectId);
        for (const auto& vector : vectors_) vector->insertOutput(position, kNewCell);
    }
}

void TestSequence::removeColumn(int index) {
    if (header_->isInputColumn(index)) {
        const int position = header_->inputIndex(index);
        header_->removeInput(position);
        for (const auto& vector : vectors_) vector->removeInput(position);
    } else if (header_->isOutputColumn(index)) {
        const int position = header_->outputIndex(index);
        header_->removeOutput(position);
        for (const auto& vector : vectors_) vector->removeOutput(position);
    }
}

void TestSequence::moveColumnLeft(int index) {
    header_->moveColumnLeft(index);
    for (const auto& vector : vectors_) vector->moveCellLeft(index);
}

void TestSequence::moveColumnRight(int index) {
    header_->moveColumnRight(index);
    for (const auto& vector : vectors_) vector->moveCellRight(index);
}

void TestSequence::resolve(Circuit& circuit) {
    if (header_) header_->resolve(circuit);
    for (const auto& option : componentOptions_) option->resolve(circuit);
    for (const auto& assignment : portAssignments_) assignment->resolve(circuit);
}

std::string TestSequence::expectedOutput(const std::string& name, Time time) const {
    return ExpectedOutputs(*this).at(name, time);
}

}  // namespace tarnsim
