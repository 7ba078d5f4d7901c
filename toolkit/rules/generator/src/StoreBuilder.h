/// Collects what all releases share: texts, numbers and code, each once.
#pragma once

#include "ExpressSchema.h"
#include "RuleCode.h"
#include "RuleTables.h"

#include <map>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace velkor::rulegen {

using rules::TextId;

std::string upperCase(std::string text);

class StoreBuilder {
public:
    /// Takes the names of types and attributes of all releases, which come first among the texts.
    explicit StoreBuilder(std::span<const express::ExpressSchema> schemas);

    /// Of a name of the schemas, letter case ignored; noName when there is none.
    TextId type(const std::string& name) const { return find(_types, name); }
    TextId attribute(const std::string& name) const { return find(_attributes, name); }
    /// Any other text, as it is.
    TextId text(const std::string& text);
    std::uint16_t integer(std::int64_t value);
    std::uint16_t real(double value);
    /// Where the code begins; the same for the same code.
    std::uint32_t code(const std::vector<std::uint16_t>& units);

    /// Valid as long as the builder is there and nothing is added.
    rules::RuleStore store();
    /// There are more texts or numbers than positions for them.
    bool isFull() const noexcept {
        return _texts.size() >= rules::noName || _integers.size() + _reals.size() >= rules::noName;
    }

private:
    using Ids = std::map<std::string, TextId>;
    static TextId find(const Ids& ids, const std::string& name);
    void add(Ids& ids, const std::vector<std::string>& names);

    std::vector<std::string> _texts;
    Ids _types;
    Ids _attributes;
    std::unordered_map<std::string, TextId> _others;
    std::vector<std::int64_t> _integers;
    std::vector<double> _reals;
    std::vector<std::uint16_t> _code;
    std::map<std::vector<std::uint16_t>, std::uint32_t> _pieces;
    // What store() gives views of.
    std::string _joined;
    std::vector<std::uint32_t> _places;
};

} // namespace velkor::rulegen
