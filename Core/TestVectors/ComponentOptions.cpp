#include "Core/TestVectors/ComponentOptions.h"

#include <vector>

#include "Core/Circuit/Circuit.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

ComponentOptions::ComponentOptions(const std::string& line, const std::string& comment) : CommentableObject(comment) {
    const std::size_t open = line.find('(');
    if (open == std::string::npos) throw Error("Parse error: component options must have an opening parenthesis");
    name_ = line.substr(0, open);
    const std::size_t close = line.rfind(')');
    if (close == std::string::npos) throw Error("Parse error: component options must have an closing parenthesis");
    if (close > open) parseOptions(line.substr(open + 1, close - open - 1));
}

std::string ComponentOptions::option(const std::string& key) const {
    const auto found = options_.find(key);
    return found == options_.end() ? "" : found->second;
}

void ComponentOptions::parseOptions(const std::string& text) {
    for (const std::string& item : split(text, ',')) {
        const std::vector<std::string> pieces = split(item, '=');
        if (pieces.empty()) throw Error("Empty item in options string: '%s'", text.c_str());
        if (pieces.size() > 2) throw Error("Too many equal signs in options string: '%s'", item.c_str());
        options_[trimmed(pieces[0])] = pieces.size() == 2 ? trimmed(pieces[1]) : "true";
    }
}

std::string ComponentOptions::toString() const {
    std::string text;
    for (const auto& [key, value] : options_) {
        text.append(text.empty() ? "" : ",").append(key).append("=").append(value);
    }
    return text;
}

void ComponentOptions::resolve(Circuit& circuit) {
    if (const Component* component = circuit.findComponent(name_)) objectId_ = component->getId();
}

}  // namespace tarnsim
