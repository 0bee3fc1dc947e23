#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tarnsim {

/// The parameters of one unit: the pairs of a text `(delay=10,value=$ff)`, sorted by key (bytes), keys and values
/// trimmed.
///
/// Values stay text until a getter is asked for a type. A getter leaves its target alone when the key is absent, so
/// whatever the target held before is the default. There is no quoting: a value holds neither `,` nor `=`.
///
/// Copies have their pairs in common until one of them is changed: most units of a board have the same parameters.
class ParaMap {
public:
    ParaMap() = default;
    explicit ParaMap(const std::string& text) { parse(text); }
    virtual ~ParaMap() = default;
    ParaMap(const ParaMap& other);
    ParaMap& operator=(const ParaMap& other);

    /// Adds the pairs of a parenthesised list; a key that is there already takes the new value. The first and last
    /// character are taken for the parentheses whatever they are. Raises an Error for an empty field ("(a=1,,b=2)");
    /// the pairs in front of it stay.
    void parse(const std::string& text);

    bool has(const std::string& key) const { return map().contains(key); }
    /// Raises std::out_of_range for a missing key.
    const std::string& at(const std::string& key) const { return map().at(key); }
    std::string& operator[](const std::string& key);

    /// As the C library's atof reads it, text that is no number as 0.
    void get(const std::string& key, float* out) const;
    /// As parseNumber reads it, with its message for text that is no number and std::out_of_range beyond 32 bits.
    void get(const std::string& key, std::uint32_t* out) const;
    /// yes, 1, true and no, 0, false in any case. Any other text leaves the target alone.
    void get(const std::string& key, bool* out) const;

    std::size_t size() const { return map().size(); }
    void clear() { contents_.reset(); }
    std::vector<std::string> keys() const;
    const std::map<std::string, std::string>& map() const;

    /// `(a=1,b=2)`, or "" for an empty map. Nothing is escaped.
    std::string toString() const;
    /// The same of those pairs alone that `defaults` lacks or holds with another text.
    std::string toStringExcept(const ParaMap& defaults) const;

private:
    struct Contents {
        std::map<std::string, std::string> pairs;
        bool isLent = false;  ///< somebody may hold a value that they can write to, so copies get pairs of their own
    };

    /// The pairs, to be changed.
    Contents& own();
    std::shared_ptr<Contents> shareOrCopy() const;

    std::shared_ptr<Contents> contents_;  ///< null while there are none
};

}  // namespace tarnsim
