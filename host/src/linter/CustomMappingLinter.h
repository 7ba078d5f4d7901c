/// Judges custom mappings: under which names the objects of a type are read and written.
#pragma once

#include "linter/Linter.h"

#include <map>
#include <tuple>
#include <unordered_map>

namespace velkor::host::lint {

class CustomMappingLinter : public Linter {
public:
    explicit CustomMappingLinter(Dictionaries& dictionaries);

private:
    /// Who has a key, and the key.
    struct Holder {
        const XmlElement* mapping;
        std::string text;
    };
    /// A mapping, the one that takes a key from it, the direction, and whether the keys differ.
    using Loss = std::tuple<const XmlElement*, const XmlElement*, std::string, bool>;

    void judgeEntries(const XmlElement& root) override;
    void judgeMapping(const XmlElement& mapping);
    void judgeName(int line, const std::string& entity, const std::string& property);
    void addKey(const XmlElement& mapping, const char* entity, const char* property, const std::string& type,
                const char* direction);
    void tellLosses();

    std::unordered_map<unsigned int, Holder> _keys;
    std::map<Loss, std::vector<std::string>> _losses;
};

} // namespace velkor::host::lint
