#include "RoleIndex.h"

#include "CodeScan.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace velkor::rules {

using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;

namespace {

/// A role as USEDIN names it, taken apart.
struct RoleName {
    std::string_view entity;
    std::string_view attribute;
};

/// Nothing when the text is not of the form ENTITY.ATTRIBUTE.
std::optional<RoleName> roleName(std::string_view text) noexcept {
    const std::size_t dot = text.find('.');
    if (dot == std::string_view::npos) return std::nullopt;
    return RoleName{text.substr(0, dot), text.substr(dot + 1)};
}

/// The text of the store that is equal to one; noText when none is.
TextId textNamed(const RuleStore& store, std::string_view wanted) noexcept {
    const std::size_t count = store.textPlaces.empty() ? 0 : store.textPlaces.size() - 1;
    for (std::size_t i = 0; i < count; ++i) {
        if (store.text(static_cast<TextId>(i)) == wanted) return static_cast<TextId>(i);
    }
    return noText;
}

constexpr std::uint64_t reference(std::uint32_t target, std::uint32_t user) noexcept {
    return std::uint64_t{target} << 32 | user;
}

} // namespace

/// Gathers the references of all roles in one pass.
struct RoleIndex::Builder {
    Builder(RoleIndex& index_, const RuleProgram& program_) : index(index_), program(program_) {}

    void chooseRoles();
    void planEntities();
    void pass();
    void scan(std::uint32_t number, std::span<const std::pair<std::uint16_t, std::uint16_t>> slots);
    void take(Part21Lexer& lexer, std::uint32_t user, std::vector<std::uint64_t>* found) const;

    RoleIndex& index;
    const RuleProgram& program;
    std::vector<std::vector<std::uint64_t>> references;
    /// By position of the entity: the places of its attributes() that roles ask for, with the role, ascending.
    std::vector<std::vector<std::pair<std::uint16_t, std::uint16_t>>> plans;
};

void RoleIndex::Builder::chooseRoles() {
    const RuleTables& tables = program.tables();
    const CodeNeeds needs = codeNeeds(program.store(), tables);
    std::vector<std::pair<TextId, TextId>> names;
    std::vector<bool> isHeld;
    for (const InverseAttribute& inverse : tables.inverseAttributes) {
        const bool hasBounds = !inverse.isAggregate || inverse.lower > 0 || inverse.upper >= 0;
        const bool isUnique = std::ranges::find(tables.uniqueAttributes, inverse.name) != tables.uniqueAttributes.end();
        isHeld.push_back(hasBounds || isUnique || needs.attributes[inverse.name]);
        if (isHeld.back()) names.emplace_back(inverse.user, inverse.attribute);
    }
    for (const TextId text : needs.roles) {
        const auto name = roleName(program.store().text(text));
        if (!name) continue;
        const TextId entity = textNamed(program.store(), name->entity);
        const TextId attribute = textNamed(program.store(), name->attribute);
        if (entity != noText && attribute != noText) names.emplace_back(entity, attribute);
    }
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    for (const auto& [entity, attribute] : names) {
        Role& role = index._roles.emplace_back();
        role.entity = entity;
        role.attribute = attribute;
    }
    for (std::size_t i = 0; i < isHeld.size(); ++i) {
        const InverseAttribute& inverse = tables.inverseAttributes[i];
        index._inverseRoles.push_back(isHeld[i] ? index.roleOf(inverse.user, inverse.attribute) : noRole);
    }
}

void RoleIndex::Builder::planEntities() {
    const sdai::SchemaDefinition& schema = program.model().schema();
    plans.resize(schema.entities().size());
    for (std::size_t i = 0; i < index._roles.size(); ++i) {
        const Role& role = index._roles[i];
        const sdai::EntityDefinition* user = program.entity(role.entity);
        if (user == nullptr) continue;
        for (const sdai::EntityDefinition* entity : schema.entities()) {
            const int slot =
                entity->isKindOf(*user) ? entity->attributeIndex(program.store().text(role.attribute)) : -1;
            if (slot >= 0)
                plans[entity->position()].emplace_back(static_cast<std::uint16_t>(slot), static_cast<std::uint16_t>(i));
        }
    }
    for (auto& plan : plans) std::ranges::sort(plan);
}

void RoleIndex::Builder::pass() {
    const sdai::Model& model = program.model();
    const std::uint32_t count = model.file().instanceCount();
    references.resize(index._roles.size());
    for (std::uint32_t number = 0; number < count; ++number) {
        const sdai::EntityDefinition* entity = model.entityAt(number);
        if (entity == nullptr || plans[entity->position()].empty()) continue;
        scan(number, plans[entity->position()]);
    }
    for (std::size_t i = 0; i < references.size(); ++i) {
        index._roles[i].fill(references[i], count);
        references[i] = {};
    }
}

void RoleIndex::Builder::scan(std::uint32_t number, std::span<const std::pair<std::uint16_t, std::uint16_t>> slots) {
    Part21Lexer lexer(program.model().file().instanceText(number));
    lexer.next();
    if (lexer.next().kind != TokenKind::Open) return;
    for (std::size_t slot = 0; !slots.empty(); ++slot) {
        if (slots.front().first == slot) {
            std::vector<std::uint64_t>* first = &references[slots.front().second];
            const std::size_t before = first->size();
            take(lexer, number, first);
            // Several roles of one attribute, of an entity and a supertype, are rare.
            for (slots = slots.subspan(1); !slots.empty() && slots.front().first == slot; slots = slots.subspan(1)) {
                auto& other = references[slots.front().second];
                other.insert(other.end(), first->begin() + static_cast<std::ptrdiff_t>(before), first->end());
            }
        } else if (!lexer.skipParameter()) {
            return;
        }
        if (lexer.next().kind != TokenKind::Comma) return;
    }
}

/// Reads one parameter up to the "," or ")" behind it.
void RoleIndex::Builder::take(Part21Lexer& lexer, std::uint32_t user, std::vector<std::uint64_t>* found) const {
    for (std::size_t depth = 0;;) {
        const TokenKind kind = lexer.peek().kind;
        if (kind == TokenKind::End || kind == TokenKind::Semicolon) return;
        if (depth == 0 && (kind == TokenKind::Comma || kind == TokenKind::Close)) return;
        const Token token = lexer.next();
        if (kind == TokenKind::Open) ++depth;
        if (kind == TokenKind::Close) --depth;
        if (kind != TokenKind::InstanceName) continue;
        if (const auto target = program.model().file().find(sdai::decodeInstanceName(token.text)))
            found->push_back(reference(*target, user));
    }
}

RoleIndex::RoleIndex(const RuleProgram& program) : _store(program.store()) {
    Builder builder(*this, program);
    builder.chooseRoles();
    builder.planEntities();
    builder.pass();
}

void RoleIndex::Role::fill(std::vector<std::uint64_t>& references, std::uint32_t instanceCount) {
    if (references.empty()) return;
    std::ranges::sort(references);
    targets.reserve(references.size());
    users.reserve(references.size());
    for (const std::uint64_t pair : references) {
        targets.push_back(static_cast<std::uint32_t>(pair >> 32));
        users.push_back(static_cast<std::uint32_t>(pair));
    }
    // About eight targets a part: as many parts as add little to the memory.
    const std::size_t parts = std::max<std::size_t>(1, targets.size() / 8);
    shift = static_cast<unsigned>(std::bit_width(instanceCount / parts));
    begins.resize((instanceCount >> shift) + 2);
    for (std::size_t i = targets.size(); i-- > 0;) begins[targets[i] >> shift] = static_cast<std::uint32_t>(i);
    begins.back() = static_cast<std::uint32_t>(targets.size());
    // Parts without targets begin where the next one does.
    for (std::size_t i = begins.size() - 1; i-- > 0;) {
        const bool isEmpty = targets[begins[i]] >> shift != i;
        if (isEmpty) begins[i] = begins[i + 1];
    }
}

std::span<const std::uint32_t> RoleIndex::Role::usersOf(std::uint32_t number) const noexcept {
    const std::size_t part = number >> shift;
    if (part + 1 >= begins.size()) return {};
    const auto begin = targets.begin() + begins[part];
    const auto end = targets.begin() + begins[part + 1];
    const auto found = std::equal_range(begin, end, number);
    return {users.data() + (found.first - targets.begin()), static_cast<std::size_t>(found.second - found.first)};
}

std::uint16_t RoleIndex::roleOf(TextId entity, TextId attribute) const noexcept {
    const auto before = [](const Role& role, const std::pair<TextId, TextId>& name) {
        return std::pair(role.entity, role.attribute) < name;
    };
    const auto found = std::lower_bound(_roles.begin(), _roles.end(), std::pair(entity, attribute), before);
    const bool isFound = found != _roles.end() && found->entity == entity && found->attribute == attribute;
    return isFound ? static_cast<std::uint16_t>(found - _roles.begin()) : noRole;
}

std::span<const std::uint32_t> RoleIndex::users(std::uint16_t role, std::uint32_t number) const noexcept {
    const std::uint16_t held = _inverseRoles[role];
    return held != noRole ? _roles[held].usersOf(number) : std::span<const std::uint32_t>();
}

std::optional<std::span<const std::uint32_t>> RoleIndex::users(std::string_view role,
                                                               std::uint32_t number) const noexcept {
    const auto name = roleName(role);
    if (!name) return std::nullopt;
    for (const Role& held : _roles) {
        if (_store.text(held.entity) == name->entity && _store.text(held.attribute) == name->attribute)
            return held.usersOf(number);
    }
    return std::nullopt;
}

std::size_t RoleIndex::memoryUse() const noexcept {
    std::size_t bytes = sizeof(*this) + _roles.capacity() * sizeof(Role) + _inverseRoles.capacity() * 2;
    for (const Role& role : _roles)
        bytes += (role.targets.capacity() + role.users.capacity() + role.begins.capacity()) * sizeof(std::uint32_t);
    return bytes;
}

} // namespace velkor::rules
