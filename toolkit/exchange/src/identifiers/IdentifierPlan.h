/// Which identifiers change to what, before anything is written.
#pragma once

#include "PlmIdentifiers.h"
#include "RootList.h"
#include "velkor/exchange/ConversionReport.h"
#include "velkor/model/Progress.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace velkor::exchange {

class IdentifierPlan {
public:
    IdentifierPlan(RootList& roots, const Progress& progress) : _roots(roots), _progress(progress) {}

    /// False when the caller has ended the work.
    [[nodiscard]] bool takeFromPlm(std::string_view attribute);
    [[nodiscard]] bool repair();

    /// A rule that was followed at an instance.
    struct Step {
        std::uint32_t place;
        const ConversionRule* rule;
    };
    /// In file order, to be asked for once everything has been planned.
    std::vector<Step> steps();
    std::string detail(const Step& step);

private:
    using Texts = std::vector<std::pair<std::uint32_t, std::string>>;
    using Owners = std::unordered_map<std::string_view, std::uint32_t>;

    /// By text, the instance that gets it; nobody gets what another one keeps.
    Owners ownersOf(const Texts& made);
    /// Takes an identifier down as one that is used; the rule for it when it is none or used before.
    const ConversionRule* fault(std::uint32_t place);
    bool goesOn(std::string_view work, std::uint32_t place) const;

    RootList& _roots;
    const Progress& _progress;
    std::optional<PlmIdentifiers> _plm;
    std::string _attribute;
    // Places with an identifier made of that of the PLM.
    std::vector<std::uint32_t> _fromPlm;
    // The well-formed ones, and those of them that no text holds.
    std::unordered_set<std::string_view> _taken;
    std::deque<std::string> _made;
    std::vector<Step> _steps;
};

} // namespace velkor::exchange
