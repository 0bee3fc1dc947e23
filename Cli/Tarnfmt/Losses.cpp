#include "Cli/Tarnfmt/Losses.h"

#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

using FactsBySubject = std::map<std::string, std::vector<const Fact*>>;

FactsBySubject bySubject(const Facts& facts) {
    FactsBySubject sorted;
    for (const Fact& fact : facts) sorted[fact.subject].push_back(&fact);
    return sorted;
}

std::size_t countOf(const FactsBySubject& facts, const std::string& subject) {
    const auto found = facts.find(subject);
    return found == facts.end() ? 0 : found->second.size();
}

/// Comments end with a line feed that nobody wants to read about.
std::string shown(const std::string& value) {
    return quote(trimmed(value));
}

void compareAspects(const Fact& before, const Fact& after, int line, std::vector<Loss>& losses) {
    for (const auto& [aspect, value] : before.aspects) {
        const auto found = after.aspects.find(aspect);
        const std::string now = found == after.aspects.end() ? "" : found->second;
        if (now == value) continue;
        if (now.empty()) {
            losses.push_back({line, "loses the " + aspect + " of " + before.subject + ": " + shown(value)});
        } else if (value.empty()) {
            losses.push_back({line, "gives " + before.subject + " the " + aspect + " " + shown(now)});
        } else {
            losses.push_back({line, "changes the " + aspect + " of " + before.subject + " from " + shown(value) +
                                        " to " + shown(now)});
        }
    }
}

}  // namespace

int SourceLines::lineOf(const std::string& subject, std::size_t n) const {
    const auto found = lines_.find(subject);
    return found == lines_.end() || n >= found->second.size() ? 0 : found->second[n];
}

std::vector<Loss> lossesBetween(const Facts& before, const Facts& after, const SourceLines& lines) {
    std::vector<Loss> losses;
    const FactsBySubject kept = bySubject(after);
    std::map<std::string, std::size_t> seen;
    for (const Fact& fact : before) {
        const std::size_t n = seen[fact.subject]++;
        const int line = fact.line != 0 ? fact.line : lines.lineOf(fact.subject, n);
        if (n < countOf(kept, fact.subject)) {
            compareAspects(fact, *kept.at(fact.subject)[n], line, losses);
        } else {
            losses.push_back({line, "loses " + fact.subject});
        }
    }
    const FactsBySubject known = bySubject(before);
    seen.clear();
    for (const Fact& fact : after) {
        if (seen[fact.subject]++ >= countOf(known, fact.subject)) losses.push_back({0, "adds " + fact.subject});
    }
    return losses;
}

}  // namespace tarnsim
