#include "Core/Support/ParaMap.h"

#include <cstdlib>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

void ParaMap::parse(const std::string& text) {
    if (text.size() < 3) return;
    for (const std::string& field : split(std::string_view(text).substr(1, text.size() - 2), ',')) {
        if (field.empty()) throw Error("Parameters malformed: '%s'", text.c_str());
        // Only the first two pieces count: a second `=` and what follows it is dropped.
        const std::vector<std::string> pieces = split(field, '=');
        params_[trimmed(pieces[0])] = pieces.size() > 1 ? trimmed(pieces[1]) : "";
    }
}

void ParaMap::get(const std::string& key, float* out) const {
    const auto found = params_.find(key);
    if (found != params_.end()) *out = static_cast<float>(std::atof(found->second.c_str()));
}

void ParaMap::get(const std::string& key, std::uint32_t* out) const {
    const auto found = params_.find(key);
    if (found != params_.end()) *out = parseNumber(found->second);
}

void ParaMap::get(const std::string& key, bool* out) const {
    const auto found = params_.find(key);
    if (found == params_.end()) return;
    std::string word = trimmed(found->second);
    toLower(word);
    if (word == "yes" || word == "1" || word == "true") *out = true;
    if (word == "no" || word == "0" || word == "false") *out = false;
}

std::vector<std::string> ParaMap::keys() const {
    std::vector<std::string> keys;
    keys.reserve(params_.size());
    for (const auto& [key, value] : params_) keys.push_back(key);
    return keys;
}

std::string ParaMap::toString() const {
    return toStringExcept(ParaMap());
}

std::string ParaMap::toStringExcept(const ParaMap& defaults) const {
    std::string text;
    for (const auto& [key, value] : params_) {
        if (defaults.has(key) && defaults.at(key) == value) continue;
        text.append(text.empty() ? "(" : ",").append(key).append("=").append(value);
    }
    return text.empty() ? "" : text + ")";
}

}  // namespace tarnsim
