#include "units/UnitUsers.h"

#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <unordered_set>

namespace velkor::exchange {

using sdai::EntityDefinition;
using sdai::Part21File;
using sdai::Type;

namespace {

// A unit is made of a handful of instances; what leads further is kept.
constexpr std::size_t mostParts = 256;

/// The numbers of the instances that a statement refers to.
template <class Take>
void eachReferred(const Part21File& file, std::uint32_t number, Take take) {
    sdai::Part21Lexer lexer(file.instanceText(number));
    for (sdai::Token token = lexer.nextReference(); token.kind != sdai::TokenKind::End; token = lexer.nextReference())
        if (const auto referred = file.find(sdai::decodeInstanceName(token.text))) take(*referred);
}

bool mayHold(const Type& type, const EntityDefinition& entity) {
    const Type& resolved = type.resolved();
    if (const auto* aggregate = resolved.asAggregate()) return mayHold(aggregate->element(), entity);
    if (const auto* select = resolved.asSelect()) return select->accepts(entity);
    const EntityDefinition* held = resolved.asEntity();
    return held != nullptr && entity.isKindOf(*held);
}

} // namespace

UnitUsers::UnitUsers(const sdai::Model& model, std::span<const std::uint32_t> units,
                     std::span<const std::uint32_t> assignments)
    : _model(model) {
    takeParts(units);
    findUsers(assignments);
    keepUsed();
}

void UnitUsers::takeParts(std::span<const std::uint32_t> units) {
    const auto take = [this](std::uint32_t number) {
        if (_parts.size() < mostParts && _places.try_emplace(number, _parts.size()).second)
            _parts.push_back({number, false});
    };
    for (const std::uint32_t unit : units) take(unit);
    for (std::size_t i = 0; i < _parts.size(); ++i) eachReferred(_model.file(), _parts[i].number, take);
}

std::vector<char> UnitUsers::readKeywords() const {
    // What the schema does not know may refer to anything.
    std::vector<char> isRead(Part21File::unlistedKeyword + 1, 1);
    const auto keywords = _model.file().keywords();
    const bool areKnown =
        std::ranges::all_of(_parts, [this](const Part& part) { return _model.entityAt(part.number) != nullptr; });
    for (std::size_t i = 0; i < keywords.size(); ++i) {
        const EntityDefinition* entity = _model.schema().entity(keywords[i]);
        if (entity == nullptr || !areKnown) continue;
        isRead[i] = std::ranges::any_of(entity->attributes(), [this](const sdai::AttributeSlot& slot) {
            return std::ranges::any_of(_parts, [&](const Part& part) {
                return mayHold(slot.attribute->type(), *_model.entityAt(part.number));
            });
        });
    }
    return isRead;
}

void UnitUsers::findUsers(std::span<const std::uint32_t> assignments) {
    const Part21File& file = _model.file();
    const std::vector<char> isRead = readKeywords();
    const auto keywords = file.keywordNumbers();
    const std::unordered_set<std::uint32_t> passed(assignments.begin(), assignments.end());
    for (std::uint32_t number = 0; number < keywords.size(); ++number) {
        if (isRead[keywords[number]] == 0 || passed.contains(number)) continue;
        const auto user = _places.find(number);
        eachReferred(file, number, [&](std::uint32_t used) {
            const auto part = _places.find(used);
            if (part == _places.end()) return;
            if (user == _places.end())
                _parts[part->second].isUsed = true;
            else
                _uses.emplace_back(user->second, part->second);
        });
    }
}

void UnitUsers::keepUsed() {
    bool isChanged = true;
    while (isChanged) {
        isChanged = false;
        for (const auto& [user, part] : _uses) {
            if (!_parts[user].isUsed || _parts[part].isUsed) continue;
            _parts[part].isUsed = isChanged = true;
        }
    }
}

bool UnitUsers::isLeft(std::uint32_t number) const {
    const auto part = _places.find(number);
    return part != _places.end() && !_parts[part->second].isUsed;
}

std::vector<std::uint32_t> UnitUsers::left() const {
    std::vector<std::uint32_t> numbers;
    for (const Part& part : _parts)
        if (!part.isUsed) numbers.push_back(part.number);
    return numbers;
}

} // namespace velkor::exchange
