#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Core/TestVectors/ComponentOptions.h"
#include "Core/TestVectors/PortAssignment.h"
#include "Core/TestVectors/TestVector.h"
#include "Core/TestVectors/TestVectorHeader.h"

namespace tarnsim {

class Circuit;

/// The contents of one signal file: header, vectors in order of time, component options and port assignments each in
/// the order of the file, and the comments above the first of them all. Owns all of it; the pointers that it takes it
/// takes over, and those that it gives out stay its own.
class TestSequence {
public:
    /// The modes of the first constructor.
    static constexpr int kEmpty = 0;
    static constexpr int kNewFile = 1;

    /// kNewFile gives an example to start from: one input, one output and one vector at 0. Any other mode gives
    /// nothing.
    explicit TestSequence(int mode);
    /// Reads the file. Raises an Error.
    explicit TestSequence(const std::string& path);
    virtual ~TestSequence();
    TestSequence(const TestSequence&) = delete;
    TestSequence& operator=(const TestSequence&) = delete;

    /// Deletes everything but the file name.
    void clear();

    /// Null until there is one.
    TestVectorHeader* header() const { return header_.get(); }
    void setHeader(TestVectorHeader* header) { header_.reset(header); }
    /// REQUIRES: header() != nullptr
    bool hasDeltaTime() const { return header_->hasDeltaTime(); }

    // Positions are counted from 0 and must exist; an insertion may also go to the end.

    int vectorCount() const { return static_cast<int>(vectors_.size()); }
    TestVector* vector(int i) const { return vectors_[static_cast<std::size_t>(i)].get(); }
    const std::vector<std::unique_ptr<TestVector>>& vectors() const { return vectors_; }
    void addVector(TestVector* vector) { vectors_.emplace_back(vector); }
    /// Also gives the vector this sequence's header.
    void insertVector(int i, TestVector* vector);
    void removeVector(int i);
    /// Moves vector `i` and all behind it by `delta` ns. Raises an Error, and moves none, if one of them would leave
    /// the range of times.
    void shiftFrom(int i, Time delta);
    /// 0 without vectors.
    Time lastTime() const { return vectors_.empty() ? 0 : vectors_.back()->time(); }
    Time lastEndTime() const { return vectors_.empty() ? 0 : vectors_.back()->endTime(); }

    int optionCount() const { return static_cast<int>(componentOptions_.size()); }
    ComponentOptions* option(int i) const { return componentOptions_[static_cast<std::size_t>(i)].get(); }
    const std::vector<std::unique_ptr<ComponentOptions>>& options() const { return componentOptions_; }
    void addOption(ComponentOptions* option) { componentOptions_.emplace_back(option); }
    void insertOption(int i, ComponentOptions* option);
    /// Also deletes it.
    void removeOption(const ComponentOptions* option);

    int assignmentCount() const { return static_cast<int>(portAssignments_.size()); }
    PortAssignment* assignment(int i) const { return portAssignments_[static_cast<std::size_t>(i)].get(); }
    const std::vector<std::unique_ptr<PortAssignment>>& assignments() const { return portAssignments_; }
    void addAssignment(PortAssignment* assignment) { portAssignments_.emplace_back(assignment); }
    void insertAssignment(int i, PortAssignment* assignment);
    /// Also deletes it.
    void removeAssignment(const PortAssignment* assignment);

    const std::vector<std::string>& comments() const { return comments_; }
    void addComment(const std::string& text) { comments_.push_back(text); }
    void clearComments() { comments_.clear(); }

    const std::string& fileName() const { return fileName_; }
    void setFileName(const std::string& fileName) { fileName_ = fileName; }

    // Columns by their number in the header, changed in the header and in every vector. New cells hold "U".

    /// In front of column `index`. The separator's number stands for the end of the inputs, the number of columns for
    /// the end of the outputs.
    void insertColumn(int index, const std::string& name, const std::string& objectId);
    void removeColumn(int index);
    void moveColumnLeft(int index);
    void moveColumnRight(int index);

    /// Fills the object ids of columns, options and assignments.
    void resolve(Circuit& circuit);

    /// The cell that the first output column of that name should show at `time`: a vector's expectation holds from its
    /// end time up to the end time of the next one. "?" if there is no such column, "!" if nothing is expected at that
    /// time. REQUIRES: vectorCount() > 0
    std::string expectedOutput(const std::string& name, Time time) const;

private:
    std::unique_ptr<TestVectorHeader> header_;
    std::vector<std::unique_ptr<TestVector>> vectors_;
    std::vector<std::unique_ptr<ComponentOptions>> componentOptions_;
    std::vector<std::unique_ptr<PortAssignment>> portAssignments_;
    std::vector<std::string> comments_;
    std::string fileName_;
};

}  // namespace tarnsim
