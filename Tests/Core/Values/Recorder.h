#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "Core/Values/ValueHistory.h"

namespace tarnsim {

/// One change as a subscriber heard it.
struct HeardChange {
    std::string oldLetters;
    std::string newLetters;
    Time time;

    bool operator==(const HeardChange&) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const HeardChange& change) {
    return stream << change.oldLetters << " to " << change.newLetters << " at " << change.time;
}

/// A subscriber that keeps what it hears.
class Recorder : public ValueChangeSubscriber {
public:
    void valueChanged(ValueHistory* history, const ValueChange& change) override {
        source = history;
        heard.push_back({change.oldValue.c_str(), change.newValue.c_str(), change.time});
    }

    ValueHistory* source = nullptr;
    std::vector<HeardChange> heard;
};

}  // namespace tarnsim
