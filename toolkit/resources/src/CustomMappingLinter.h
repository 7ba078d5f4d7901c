/// Judges custom mappings: under which names the objects of a type are read and written.
#pragma once

#include "Linter.h"

#include <map>
#include <tuple>
#include <unordered_map>

namespace velkor::lint {

class CustomMappingLinter : public Linter {
public:
    explicit CustomMappingLinter(Dictionaries& dictionaries);

private:
    /// Which mapping has a key, and the key.
    struct Holder {
        std::size_t mapping;
        std::string text;
    };
    /// A mapping, the one that takes a key from it, the direction, and whether the keys differ.
    using Loss = std::tuple<std::size_t, std::size_t, std::string, bool>;

    void judgeEntries(const XmlElement& root) override;
    void judgeMapping(const XmlElement& mapping);
    void judgeName(int line, const std::string& entity, const std::string& property);
    /// Of the last mapping.
    void addKey(const char* entity, const char* property, const std::string& type, const char* direction);
    void tellLosses();

    /// In the order in which they are read.
    std::vector<const XmlElement*> _mappings;
    std::unordered_map<unsigned int, Holder> _keys;
    std::map<Loss, std::vector<std::string>> _losses;
};

} // namespace velkor::lint
