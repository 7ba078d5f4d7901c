/// Takes down what a step does.
#pragma once

#include "velkor/exchange/ConversionReport.h"
#include "velkor/sdai/Model.h"

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velkor::exchange {

class ChangeList {
public:
    /// Of a rule so many changes are listed; all are counted.
    ChangeList(const sdai::Part21File& file, std::size_t limit) : _file(file), _limit(limit) {}

    /// `detail()` is asked for its text only when the change is listed.
    template <class Detail>
    void note(const ConversionRule& rule, std::uint32_t number, Detail detail) {
        if (RuleUse& use = count(rule); use.first.size() < _limit) add(use, number, detail());
    }
    /// Of the file as a whole.
    void noteFile(const ConversionRule& rule, std::string detail);

    /// In the order of the rules given; changes of one rule in file order. Rows of tables with the same name are one
    /// rule, told once.
    std::vector<RuleUse> uses(std::span<const ConversionRule* const> order) const;

private:
    RuleUse& count(const ConversionRule& rule);
    void add(RuleUse& use, std::uint32_t number, std::string detail);

    const sdai::Part21File& _file;
    std::size_t _limit;
    // By name: rows of a table that share a rule have copies of it.
    std::unordered_map<std::string_view, RuleUse> _uses;
};

} // namespace velkor::exchange
