#include "velkor/sdai/ModelEdit.h"

#include "EditText.h"
#include "PopulationChecker.h"
#include "RecordSyntax.h"
#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/sdai/ReferenceIndex.h"

#include <algorithm>
#include <unordered_map>

namespace velkor::sdai {

using part21::named;
using part21::refused;

namespace {

std::vector<std::uint64_t> referencesOf(std::string_view record) {
    std::vector<std::uint64_t> ids;
    Part21Lexer lexer(record);
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        if (token.kind != TokenKind::InstanceName) continue;
        const std::uint64_t id = decodeInstanceName(token.text);
        if (std::ranges::find(ids, id) == ids.end()) ids.push_back(id);
    }
    return ids;
}

bool refersTo(std::string_view record, std::uint64_t id) {
    Part21Lexer lexer(record);
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next())
        if (token.kind == TokenKind::InstanceName && decodeInstanceName(token.text) == id) return true;
    return false;
}

} // namespace

struct ModelEdit::State {
    State(const Model& model_, std::span<const DerivedSlot> derivedSlots)
        : model(model_), edit(model_.file()), options{.limit = 1,
                                                      .derivedSlots = derivedSlots,
                                                      .numberTypes = {},
                                                      .progress = {},
                                                      .choice = {}},
          checker(model_, options) {}

    const Model& model;
    Part21Edit edit;
    const PopulationCheckOptions options;
    model::PopulationChecker checker;
    // Instances that have come to refer to one; some may do so no longer.
    std::unordered_map<std::uint64_t, std::vector<std::uint64_t>> newUsers;
    std::unique_ptr<ReferenceIndex> index;

    const EntityDefinition* entity(std::uint64_t id) const {
        const auto record = edit.record(id);
        if (!record) return nullptr;
        const Token token = Part21Lexer(*record).next();
        return token.kind == TokenKind::Keyword ? model.schema().entity(token.text) : nullptr;
    }

    struct Place {
        const EntityDefinition* entity;
        std::size_t slot;
    };
    Result<Place> place(std::uint64_t id, std::string_view attribute) const {
        if (const auto record = edit.record(id); !record) return refused(record.error());
        const EntityDefinition* of = entity(id);
        if (of == nullptr)
            return refused(named(id) + " is no instance of an entity of " + std::string(model.schema().name()));
        const int slot = of->attributeIndex(attribute);
        if (slot < 0) return refused(std::string(of->name()) + " has no attribute " + std::string(attribute));
        return Place{of, static_cast<std::size_t>(slot)};
    }

    std::optional<std::string> fault(const Place& at, std::string_view value) {
        if (!part21::isParameter(value)) return "expected a value as ISO 10303-21 writes it";
        return checker.judge(*at.entity, at.slot, value, [this](std::uint64_t id) { return entity(id); });
    }

    void takeReferences(std::uint64_t id, std::string_view text) {
        for (const std::uint64_t used : referencesOf(text)) {
            std::vector<std::uint64_t>& users = newUsers[used];
            if (users.empty() || users.back() != id) users.push_back(id);
        }
    }
};

ModelEdit::ModelEdit(const Model& model, std::span<const DerivedSlot> derivedSlots)
    : _state(std::make_unique<State>(model, derivedSlots)) {}
ModelEdit::~ModelEdit() = default;
ModelEdit::ModelEdit(ModelEdit&&) noexcept = default;
ModelEdit& ModelEdit::operator=(ModelEdit&&) noexcept = default;

const EntityDefinition* ModelEdit::entity(std::uint64_t id) const {
    return _state->entity(id);
}

ModelEdit::Result<std::string> ModelEdit::value(std::uint64_t id, std::string_view attribute) const {
    const auto place = _state->place(id, attribute);
    if (!place) return refused(place.error());
    std::string_view keyword;
    std::vector<std::string_view> parameters;
    const std::string statement = std::string(*_state->edit.record(id)) + ";";
    part21::splitRecord(statement, keyword, parameters);
    if (place->slot >= parameters.size()) return refused(named(id) + " has fewer values than its entity attributes");
    return std::string(parameters[place->slot]);
}

ModelEdit::Result<void> ModelEdit::set(std::uint64_t id, std::string_view attribute, std::string_view value) {
    const auto place = _state->place(id, attribute);
    if (!place) return refused(place.error());
    if (auto fault = _state->fault(*place, value)) return refused(std::move(*fault));
    if (auto done = _state->edit.setParameter(id, place->slot, value); !done) return done;
    _state->takeReferences(id, value);
    return {};
}

ModelEdit::Result<std::uint64_t> ModelEdit::create(std::string_view entityName, const NamedValues& values) {
    const EntityDefinition* entity = _state->model.schema().entity(entityName);
    if (entity == nullptr)
        return refused(std::string(_state->model.schema().name()) + " has no entity " + std::string(entityName));
    if (entity->isAbstract()) return refused(std::string(entity->name()) + " is abstract");
    std::vector<std::string_view> parameters;
    for (std::size_t i = 0; i < entity->attributes().size(); ++i)
        parameters.push_back(_state->checker.derives(*entity, i) ? derivedValue : omittedValue);
    for (const auto& [attribute, value] : values) {
        const int slot = entity->attributeIndex(attribute);
        if (slot < 0) return refused(std::string(entity->name()) + " has no attribute " + attribute);
        parameters[static_cast<std::size_t>(slot)] = value;
    }
    std::string record(entity->name());
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (auto fault = _state->fault({entity, i}, parameters[i])) return refused(std::move(*fault));
        (record += i == 0 ? '(' : ',') += parameters[i];
    }
    record += parameters.empty() ? "()" : ")";
    const auto id = _state->edit.add(record);
    if (id) _state->takeReferences(*id, record);
    return id;
}

ModelEdit::Result<void> ModelEdit::drop(std::uint64_t id) {
    return _state->edit.drop(id);
}

std::vector<std::uint64_t> ModelEdit::references(std::uint64_t id) const {
    const auto record = _state->edit.record(id);
    return record ? referencesOf(*record) : std::vector<std::uint64_t>();
}

std::vector<std::uint64_t> ModelEdit::users(std::uint64_t id) const {
    State& state = *_state;
    const Part21File& file = state.model.file();
    if (state.index == nullptr) state.index = std::make_unique<ReferenceIndex>(file);
    std::vector<std::uint64_t> ids;
    if (const auto number = file.find(id))
        for (const std::uint32_t user : state.index->users(*number))
            // Of several instances with one id the first is meant.
            if (const std::uint64_t userId = file.id(user); file.find(userId) == user) ids.push_back(userId);
    if (const auto more = state.newUsers.find(id); more != state.newUsers.end())
        ids.insert(ids.end(), more->second.begin(), more->second.end());
    std::ranges::sort(ids);
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    std::erase_if(ids, [&](std::uint64_t user) {
        if (!state.edit.isEdited(user)) return false;
        const auto record = state.edit.record(user);
        return !record || !refersTo(*record, id);
    });
    return ids;
}

Part21Edit& ModelEdit::structure() {
    return _state->edit;
}

void ModelEdit::write(files::OutputFile& output) const {
    _state->edit.write(output);
}

std::size_t ModelEdit::memoryUse() const noexcept {
    std::size_t bytes = sizeof(State) + _state->edit.memoryUse() + (_state->index ? _state->index->memoryUse() : 0);
    for (const auto& [id, users] : _state->newUsers)
        bytes += sizeof(id) + sizeof(users) + 2 * sizeof(void*) + users.capacity() * sizeof(std::uint64_t);
    return bytes;
}

} // namespace velkor::sdai
