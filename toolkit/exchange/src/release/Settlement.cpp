// What cannot stand in the target, until all that is left can.
#include "release/ReleaseRewriter.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <map>

namespace velkor::exchange {

namespace {

/// Users wait the longer the more often they were looked at, so that one with a million members is not read for each
/// member that goes.
class WaitingUsers {
public:
    explicit WaitingUsers(std::size_t instances) : _waits(instances, false) {}

    void add(std::uint32_t user) {
        if (_waits[user]) return;
        _waits[user] = true;
        const auto looks = _looks.find(user);
        _byRound.emplace(looks == _looks.end() ? _round : _round + (std::uint64_t{1} << std::min(looks->second, 40U)),
                         user);
    }
    /// Those whose time has come; when it has for none, those whose comes first. Empty when nobody waits.
    std::vector<std::uint32_t> next() {
        std::vector<std::uint32_t> users;
        if (_byRound.empty()) return users;
        _round = std::max(_round + 1, _byRound.begin()->first);
        while (!_byRound.empty() && _byRound.begin()->first <= _round) {
            users.push_back(_byRound.begin()->second);
            _byRound.erase(_byRound.begin());
            _waits[users.back()] = false;
            ++_looks[users.back()];
        }
        return users;
    }

private:
    std::uint64_t _round = 0;
    std::multimap<std::uint64_t, std::uint32_t> _byRound;
    std::vector<bool> _waits;
    std::unordered_map<std::uint32_t, unsigned> _looks;
};

/// What means something without any user.
bool standsAlone(const sdai::EntityDefinition& entity) {
    return entity.isKindOf("IFCROOT") || entity.isKindOf("IFCREPRESENTATIONCONTEXT");
}

bool isLayer(const Outcome& outcome) {
    return outcome.source != nullptr && outcome.source->isKindOf("IFCPRESENTATIONLAYERASSIGNMENT");
}

/// The instances that a record refers to, each once.
std::vector<std::uint32_t> references(const sdai::Part21File& file, const sdai::RecordView& record) {
    std::vector<std::uint32_t> numbers;
    for (const std::string_view parameter : record.parameters) {
        sdai::Part21Lexer lexer(parameter);
        for (sdai::Token token = lexer.next(); token.kind != sdai::TokenKind::End; token = lexer.next())
            if (token.kind == sdai::TokenKind::InstanceName)
                if (const auto number = file.find(sdai::decodeInstanceName(token.text))) numbers.push_back(*number);
    }
    std::ranges::sort(numbers);
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace

void ReleaseRewriter::settle() {
    _isDry = true;
    dropRisky();
    _plan.settle();
    if (_plan.anyGone()) {
        _fit.lookAtReferences(true);
        _plans.forget();
        std::vector<std::uint32_t> gone;
        for (std::uint32_t number = 0; number < _plan.model().file().instanceCount(); ++number)
            if (_plan.isGone(number)) gone.push_back(number);
        dropUsers(std::move(gone));
        dropUsers(dropLeftOvers());
        _plan.settle();
    }
    _fit.lookAtReferences(false);
    _plans.forget();
    _isDry = false;
}

void ReleaseRewriter::dropRisky() {
    const auto keywords = _plan.model().file().keywordNumbers();
    std::vector<char> isRisky(_plan.model().file().keywords().size(), 0);
    for (std::size_t keyword = 0; keyword < isRisky.size(); ++keyword) {
        const exchange::Outcome* common = _plan.common(static_cast<std::uint16_t>(keyword));
        if (common != nullptr && (common->kind != Successor::Kind::Entity)) continue;
        isRisky[keyword] =
            common == nullptr || common->rule != nullptr || _plans.plan(*common->source, *common->target).isRisky;
    }
    for (std::uint32_t number = 0; number < keywords.size(); ++number)
        if (keywords[number] < isRisky.size() && isRisky[keywords[number]] && !_plan.isGone(number) &&
            !canStand(number))
            loseOrMakePlainer(number);
}

/// An element rather becomes a plainer one than that it goes. False when it goes.
bool ReleaseRewriter::loseOrMakePlainer(std::uint32_t number) {
    const Missing missing = _missing;
    const sdai::EntityDefinition& source = *_plan.outcome(number).source;
    const ReleaseNames::Entity plainer = _plan.names().supertype(source);
    if ((source.isKindOf("IFCELEMENT") || source.isKindOf("IFCELEMENTTYPE")) && plainer.entity != nullptr &&
        plainer.entity != _plan.outcome(number).target) {
        _plan.become(number, {plainer.entity, &rules::plainElement});
        if (canStand(number)) return true;
    }
    _plan.lose(number, *missing.rule, missing.attribute);
    return false;
}

bool ReleaseRewriter::canStand(std::uint32_t number) {
    const sdai::RecordView* record = _reader.read(_plan.model().file(), number);
    if (record == nullptr || !begin(*record) || _outcome->isGone()) return true;
    makeRecord();
    return _missing.rule == nullptr;
}

void ReleaseRewriter::dropUsers(std::vector<std::uint32_t> gone) {
    WaitingUsers waiting(_plan.model().file().instanceCount());
    while (!gone.empty()) {
        for (const std::uint32_t number : gone)
            for (const std::uint32_t user : _plan.index().users(number))
                if (!_plan.isGone(user)) waiting.add(user);
        gone.clear();
        do {
            const std::vector<std::uint32_t> users = waiting.next();
            if (users.empty()) return;
            for (const std::uint32_t user : users) {
                if (canStand(user) || loseOrMakePlainer(user)) continue;
                gone.push_back(user);
            }
        } while (gone.empty());
    }
}

std::vector<std::uint32_t> ReleaseRewriter::dropLeftOvers() {
    const sdai::Part21File& file = _plan.model().file();
    std::vector<std::uint32_t> lost;
    for (std::uint32_t number = 0; number < file.instanceCount(); ++number)
        if (_plan.outcome(number).kind == Successor::Kind::Lost) lost.push_back(number);
    std::vector<std::uint32_t> leftOver;
    std::unordered_map<std::uint32_t, std::size_t> lostUsers;
    while (!lost.empty()) {
        const std::uint32_t number = lost.back();
        lost.pop_back();
        const sdai::RecordView* record = _reader.read(file, number);
        if (record == nullptr || isLayer(_plan.outcome(number))) continue;
        for (const std::uint32_t used : references(file, *record)) {
            const exchange::Outcome& outcome = _plan.outcome(used);
            if (outcome.kind == Successor::Kind::Lost || outcome.source == nullptr || standsAlone(*outcome.source))
                continue;
            if (isNeeded(used, ++lostUsers[used])) continue;
            _plan.lose(used, rules::noUse, {});
            lost.push_back(used);
            leftOver.push_back(used);
        }
    }
    return leftOver;
}

bool ReleaseRewriter::isNeeded(std::uint32_t number, std::size_t lostUsers) const {
    const auto users = _plan.index().users(number);
    // Layers show what others need. Few instances stand in more of them than this.
    constexpr std::size_t mostLayers = 8;
    if (lostUsers + mostLayers < users.size()) return true;
    const auto layers =
        std::ranges::count_if(users, [this](std::uint32_t user) { return isLayer(_plan.outcome(user)); });
    return lostUsers + static_cast<std::size_t>(layers) < users.size();
}

} // namespace velkor::exchange
