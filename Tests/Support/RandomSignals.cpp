#include "Tests/Support/RandomSignals.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <utility>
#include <vector>

#include "Core/Support/Text.h"
#include "Core/Values/Value.h"

namespace tarnsim {

namespace {

enum class Kind { Option, Assignment, Header, Vector };

struct Record {
    Kind kind;
    std::string text;
};

struct Column {
    std::uint32_t width;
    bool isInput;
    bool isReversed;
};

bool isUndefined(char letter) {
    return std::string_view("XZUxzu").find(letter) != std::string_view::npos;
}

class Generator {
public:
    Generator(Choices& choices, const RandomCircuit& circuit, const RandomSignalsStyle& style)
        : c_(choices), circuit_(circuit), style_(style) {}

    RandomSignals make() {
        records_.push_back({Kind::Header, header()});
        for (std::size_t left = c_.below(style_.maxVectors + 1), time = c_.below(20); left > 0; --left) {
            records_.push_back({Kind::Vector, vector(time)});
            time += c_.between(1, style_.maxStep);
        }
        for (std::size_t left = c_.onceIn(3) ? c_.between(1, 3) : 0; left > 0; --left) insert(Kind::Option, option());
        for (std::size_t left = c_.onceIn(3) ? c_.between(1, 3) : 0; left > 0; --left) {
            insert(Kind::Assignment, assignment());
        }
        write();
        return std::move(result_);
    }

private:
    void count(const std::string& what) { ++result_.made[what]; }

    std::string blank() { return !c_.onceIn(6) ? " " : c_.oneOf({"   ", "\t", " \t"}); }

    // The table.

    std::string header() {
        std::string text = "time";
        const std::string separator = c_.onceIn(3) ? "==(dT)=>" : "=>";
        hasDeltaTime_ = separator != "=>";
        const std::size_t first = c_.below(circuit_.inputs.size());
        for (std::size_t i = 0; i < circuit_.inputs.size() && columns_.size() < 12; ++i) {
            // All in front of the one that has to be there are up to chance.
            if (i != first && c_.onceIn(4)) continue;
            text += column(circuit_.inputs[i], true);
        }
        if (circuit_.outputs.empty() && c_.onceIn(2)) {
            hasDeltaTime_ = false;
            count("no outputs");
            return text;
        }
        text += blank();
        if (c_.onceIn(8)) text += "~";
        text += separator;
        if (hasDeltaTime_) count("delta time");
        for (std::size_t i = 0; i < circuit_.outputs.size() && i < 12; ++i) {
            if (c_.onceIn(4)) continue;
            text += column(circuit_.outputs[i], false);
            if (c_.onceIn(10)) text += blank() + "=>";
        }
        return text;
    }

    std::string column(const RandomPort& port, bool isInput) {
        const bool mayBeReversed = isInput || !hasDeltaTime_ || !style_.saveable;
        const bool isReversed = mayBeReversed && c_.onceIn(6);
        if (isReversed) count(isInput ? "reversed input" : "reversed output");
        columns_.push_back({port.width, isInput, isReversed});
        return blank() + (isReversed ? "~" : "") + port.path;
    }

    std::string vector(std::size_t time) {
        count("vector");
        std::string text = c_.onceIn(6) ? format("%06zu ", time) : format("%zu ", time);
        bool isDeltaTimeDone = !hasDeltaTime_;
        for (const Column& column : columns_) {
            if (!column.isInput && !std::exchange(isDeltaTimeDone, true)) text += deltaTime();
            text += blank();
            text += cell(column);
        }
        if (!isDeltaTimeDone) text += deltaTime();
        return text;
    }

    std::string deltaTime() {
        std::string text = blank();
        text += std::to_string(c_.below(style_.maxStep + 1));
        if (c_.onceIn(20)) text += "A";  // its digits count
        return text;
    }

    std::string cell(const Column& column) {
        const std::string mark = c_.onceIn(8) ? "~" : "";
        if (!mark.empty()) count("reversed cell");
        std::string text;
        do {
            text = mark + bits(column);
        } while (text.empty() || (style_.saveable && isLossy(text)));
        return text;
    }

    std::string digits(std::size_t number, std::string_view letters) {
        std::string text;
        for (; number > 0; --number) text += c_.letterOf(letters);
        return text;
    }

    std::string bits(const Column& column) {
        const std::size_t width = column.width;
        switch (c_.below(column.isInput ? 8 : 12)) {
            case 1: return digits(width, "LH");
            case 2: count("undefined letters"); return digits(width, style_.runnable ? "LHLHU" : "LHLHUZX");
            case 3: {
                count("letters and digits");
                std::string text = digits(width % 4, "LH");
                return text += digits(width / 4, "0123456789ABCDEF");
            }
            case 4: return digits(c_.between(1, width), "LH");
            case 5: return digits((width + 3) / 4 + c_.below(3), "01289abcdefABF");
            case 6:
                if (style_.runnable) return digits(width, "LLLH");
                if (c_.onceIn(6)) return "";  // a `~` alone is one, too
                return digits(c_.between(1, width + 4), "LHlhXxUuZz05aF");
            case 7: return column.isInput ? c_.oneOf({"Z", "U", "H", "L"}) : "X";
            case 8:
            case 9:
            case 10: return "X";
            default: return digits((width + 3) / 4, "0123456789ABCDEF");
        }
    }

    static bool isLossy(const std::string& cell) {
        const std::string bits = Value::hexToBits(cell.starts_with('~') ? cell.substr(1) : cell);
        std::size_t left = bits.size();
        for (; left >= 4; left -= 4) {
            const std::string group = bits.substr(left - 4, 4);
            if (isUndefined(group[0]) && group.find_first_not_of(group[0]) == std::string::npos) return true;
        }
        return bits.size() >= 4 &&
               std::any_of(bits.begin(), bits.begin() + static_cast<std::ptrdiff_t>(left), isUndefined);
    }

    // The other records.

    std::string option() {
        const bool isKnown = style_.runnable || c_.onceIn(2);
        if (isKnown && circuit_.delayedUnits.empty()) return "";
        std::string text = isKnown ? c_.oneOf(circuit_.delayedUnits) : c_.oneOf({"U5", "7", "_x_"});
        text += "(";
        const std::size_t pairs = c_.below(4);
        for (std::size_t i = 0; i < pairs; ++i) {
            if (i > 0) text += c_.oneOf({",", ", ", " ,\t"});
            switch (c_.below(style_.saveable ? 4 : 5)) {
                case 0: text += "fast"; break;
                case 1: text += " note = a (short) one "; break;
                case 4: text += "empty= "; break;
                default: text += "delay=" + std::to_string(c_.between(1, 50)); break;
            }
        }
        if (pairs > 0 && c_.onceIn(6)) text += ",";
        return text + ")" + c_.oneOf({"", "", " words behind it"});
    }

    std::string assignment() {
        const RandomPort& port = c_.oneOf(circuit_.inputs);
        const auto isPlain = [](char c) { return isWordCharacter(c) || c == '.'; };
        if (!std::ranges::all_of(port.path, isPlain)) return "";
        const std::string value = port.width < 4 || c_.onceIn(2) ? digits(c_.between(1, port.width), "LH")
                                                                 : digits(port.width / 4, "0123456789ABCDEF");
        return port.path + c_.oneOf({"=", " = ", "\t= "}) + value;
    }

    /// Anywhere among the other records.
    void insert(Kind kind, const std::string& text) {
        if (text.empty()) return;
        count(kind == Kind::Option ? "option" : "assignment");
        std::size_t place = c_.onceIn(2) ? 0 : c_.below(records_.size() + 1);
        records_.insert(records_.begin() + static_cast<std::ptrdiff_t>(place), {kind, text});
    }

    // The text.

    std::string comment() {
        std::string text = blank();
        return text += c_.oneOf({"# first check", "#", "#  reset = L", "## time a => b", "#\tcaf\xC3\xA9"});
    }

    void writeComments() {
        for (std::size_t left = c_.onceIn(5) ? c_.between(1, 3) : 0; left > 0; --left) {
            result_.text += comment() + "\n";
            if (c_.onceIn(6)) result_.text += "\n";
            count("comment");
        }
    }

    /// The one that a saved file begins with.
    std::size_t firstSaved() const {
        for (const Kind kind : {Kind::Option, Kind::Assignment}) {
            const auto found = std::ranges::find(records_, kind, &Record::kind);
            if (found != records_.end()) return static_cast<std::size_t>(found - records_.begin());
        }
        return static_cast<std::size_t>(std::ranges::find(records_, Kind::Header, &Record::kind) - records_.begin());
    }

    void write() {
        // A header stands in front of the vectors, an option or assignment anywhere.
        const std::size_t bare = style_.saveable ? firstSaved() : records_.size();
        for (std::size_t i = 0; i < records_.size(); ++i) {
            // What stands in front of and behind the first record of the file is the file's.
            const bool mayHaveComment = i != bare || i == 0;
            if (mayHaveComment) writeComments();
            if (c_.onceIn(8)) result_.text += "\n";
            result_.text += (c_.onceIn(10) ? " " : "") + records_[i].text;
            if (mayHaveComment && c_.onceIn(8)) {
                result_.text += comment();
                count("comment behind a record");
            }
            result_.text += "\n";
        }
        if (!style_.saveable) writeComments();
        if (c_.onceIn(8) && result_.text.ends_with('\n')) result_.text.pop_back();
    }

    Choices& c_;
    const RandomCircuit& circuit_;
    RandomSignalsStyle style_;
    RandomSignals result_;
    std::vector<Record> records_;
    std::vector<Column> columns_;
    bool hasDeltaTime_ = false;
};

}  // namespace

RandomSignals makeRandomSignals(Choices& choices, const RandomCircuit& circuit, const RandomSignalsStyle& style) {
    return Generator(choices, circuit, style).make();
}

}  // namespace tarnsim
