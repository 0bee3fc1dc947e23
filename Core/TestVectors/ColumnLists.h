#pragma once

#include <algorithm>
#include <vector>

#include "Core/TestVectors/TestColumn.h"

namespace tarnsim {

// What the header and the vectors of a signal file do alike to their two lists of columns.

using ColumnList = std::vector<TestColumn>;

inline bool hasPosition(const ColumnList& list, int i) {
    return i >= 0 && i < static_cast<int>(list.size());
}

/// Inserts in front of position `i`; the list's size stands for its end. Other positions are ignored.
inline void insertAt(ColumnList& list, int i, const TestColumn& column) {
    if (i >= 0 && i <= static_cast<int>(list.size())) list.insert(list.begin() + i, column);
}

inline void removeAt(ColumnList& list, int i) {
    if (hasPosition(list, i)) list.erase(list.begin() + i);
}

/// The column with this number: 1 to N are the inputs, then comes the separator, then the outputs.
struct ColumnPlace {
    ColumnList& list;
    int position;

    ColumnPlace(ColumnList& inputs, ColumnList& outputs, int index)
        : list(isInput(inputs, index) ? inputs : outputs),
          position(isInput(inputs, index) ? index - 1 : index - static_cast<int>(inputs.size()) - 2) {}

    /// Swaps the column with the one `step` further on, if both are there.
    void swapWithNeighbour(int step) const {
        if (!hasPosition(list, position) || !hasPosition(list, position + step)) return;
        std::iter_swap(list.begin() + position, list.begin() + position + step);
    }

private:
    /// Column numbers up to the separator belong to the inputs.
    static bool isInput(const ColumnList& inputs, int index) { return index <= static_cast<int>(inputs.size()) + 1; }
};

}  // namespace tarnsim
