#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace tarnsim {

/// Something that a file says and its normal form doesn't, or the other way round.
struct Loss {
    int line;          ///< in the file; 0 if it can't be told
    std::string text;  ///< what happens to it, as "loses unit 'u'"
};

/// Where a file speaks of something, by the subjects of facts.
class SourceLines {
public:
    void add(const std::string& subject, int line) { lines_[subject].push_back(line); }
    /// Where it does so for the nth time, from 0. 0 if it doesn't.
    int lineOf(const std::string& subject, std::size_t n) const;

private:
    std::map<std::string, std::vector<int>> lines_;
};

/// What a file says about one thing.
struct Fact {
    std::string subject;                         ///< "unit 'u1'"
    std::map<std::string, std::string> aspects;  ///< "type" is "And"; an empty text is the same as none
    int line = 0;                                ///< 0 if SourceLines is to be asked
};

using Facts = std::vector<Fact>;

/// What changes from a file to its normal form. Of facts with one subject the first is compared with the first, and so
/// on; else the order doesn't matter.
std::vector<Loss> lossesBetween(const Facts& before, const Facts& after, const SourceLines& lines);

}  // namespace tarnsim
