#include "Core/Support/ParaMap.h"

#include <cstdlib>

#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

ParaMap::ParaMap(const ParaMap& other) : contents_(other.shareOrCopy()) {}

ParaMap& ParaMap::operator=(const ParaMap& other) {
    if (this != &other) contents_ = other.shareOrCopy();
    return *this;
}

std::shared_ptr<ParaMap::Contents> ParaMap::shareOrCopy() const {
    if (contents_ && contents_->isLent) return std::make_shared<Contents>(Contents{contents_->pairs});
    return contents_;
}

ParaMap::Contents& ParaMap::own() {
    if (!contents_) {
        contents_ = std::make_shared<Contents>();
    } else if (contents_.use_count() > 1) {
        contents_ = std::make_shared<Contents>(Contents{contents_->pairs});
    }
    return *contents_;
}

const std::map<std::string, std::string>& ParaMap::map() const {
    static const std::map<std::string, std::string> kNone;
    return contents_ ? contents_->pairs : kNone;
}

std::string& ParaMap::operator[](const std::string& key) {
    Contents& contents = own();
    contents.isLent = true;
    return contents.pairs[key];
}

void ParaMap::parse(const std::string& text) {
    if (text.size() < 3) return;
    for (const std::string& field : split(std::string_view(text).substr(1, text.size() - 2), ',')) {
        if (field.empty()) throw Error("Parameters malformed: '%s'", text.c_str());
        // Only the first two pieces count: a second `=` and what follows it is dropped.
        const std::vector<std::string> pieces = split(field, '=');
        own().pairs[trimmed(pieces[0])] = pieces.size() > 1 ? trimmed(pieces[1]) : "";
    }
}

void ParaMap::get(const std::string& key, float* out) const {
    const auto found = map().find(key);
    if (found != map().end()) *out = static_cast<float>(std::atof(found->second.c_str()));
}

void ParaMap::get(const std::string& key, std::uint32_t* out) const {
    const auto found = map().find(key);
    if (found != map().end()) *out = parseNumber(found->second);
}

void ParaMap::get(const std::string& key, bool* out) const {
    const auto found = map().find(key);
    if (found == map().end()) return;
    std::string word = trimmed(found->second);
    toLower(word);
    if (word == "yes" || word == "1" || word == "true") *out = true;
    if (word == "no" || word == "0" || word == "false") *out = false;
}

std::vector<std::string> ParaMap::keys() const {
    std::vector<std::string> keys;
    keys.reserve(size());
    for (const auto& [key, value] : map()) keys.push_back(key);
    return keys;
}

std::string ParaMap::toString() const {
    return toStringExcept(ParaMap());
}

std::string ParaMap::toStringExcept(const ParaMap& defaults) const {
    std::string text;
    for (const auto& [key, value] : map()) {
        if (defaults.has(key) && defaults.at(key) == value) continue;
        text.append(text.empty() ? "(" : ",").append(key).append("=").append(value);
    }
    return text.empty() ? "" : text + ")";
}

}  // namespace tarnsim
