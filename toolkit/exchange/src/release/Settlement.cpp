// What cannot stand in the target, until all that is left can.
#include "release/ReleaseRewriter.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <bit>

namespace velkor::exchange {

using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;

namespace {

/// The parameters of a record, as a rewriter sees them; false for a statement that is damaged.
bool split(std::string_view statement, std::string_view& keyword, std::vector<std::string_view>& parameters);

} // namespace

void ReleaseRewriter::settle() {
    _isDry = true;
    std::vector<std::uint32_t> lost = dropRisky();
    if (_plan.anyGone()) {
        for (std::uint32_t number = 0; number < _plan.model().file().instanceCount(); ++number)
            if (_plan.isGone(number)) lost.push_back(number);
        std::ranges::sort(lost);
        lost.erase(std::unique(lost.begin(), lost.end()), lost.end());
        _fit.lookAtReferences(true);
        _plans.forget();
        dropUsers(std::move(lost));
        dropLeftOvers();
    }
    _plan.settle();
    _fit.lookAtReferences(false);
    _plans.forget();
    _isDry = false;
}

} // namespace velkor::exchange
