#include "SchemaBuilder.h"

#include "Names.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>

namespace velkor::sdai {

namespace {

constexpr std::uint32_t Unset = 0xFFFFFFFF;
/// Every entity has a list of all its attributes. So many places in all are a hundred times what a
/// large schema needs; more come only from lists made to exhaust memory.
constexpr std::size_t MostPlaces = 1 << 20;
/// The same for the words of the selects' bit rows.
constexpr std::size_t MostSelectWords = 1 << 20;

void setBits(std::uint64_t* bits, std::size_t first, std::size_t count) {
    const std::size_t end = first + count;
    while (first < end) {
        const std::size_t offset = first % 64;
        const std::size_t here = std::min(end - first, 64 - offset);
        bits[first / 64] |= (~std::uint64_t{0} >> (64 - here)) << offset;
        first += here;
    }
}

} // namespace

SchemaBuilder::SchemaBuilder(std::span<const char* const> declarationTexts, const DeclarationList& declarations,
                             std::span<const char* const> statementTexts, const StatementList& statements)
    : _declarationTexts(declarationTexts), _statementTexts(statementTexts), _declarations(declarations),
      _statements(statements), _schema(std::make_shared<RestoredSchema>()), _types(declarations.declarations.size()),
      _attributes(declarations.declarations.size()), _isNamed(declarations.declarations.size()) {
    _schema->_name = declarations[1].name;
}

tl::expected<std::shared_ptr<const SchemaDefinition>, std::string> SchemaBuilder::build() {
    const bool done = makeTypes() && orderDefinedTypes() && orderEntities() && linkSupertypes() && checkStatements() &&
                      makeAttributes() && makeRules() && placeAttributes() && closeSelects();
    if (!done) return tl::unexpected(_error);
    count();
    return _schema;
}

bool SchemaBuilder::makeTypes() {
    const auto named = [](const Declaration& d) {
        return d.kind == DeclarationKind::DefinedType || d.kind == DeclarationKind::Entity;
    };
    const auto count = static_cast<std::size_t>(std::ranges::count_if(_declarations.declarations, named));
    _named.reserve(count);
    _names = _schema->arena.zeroed<std::uint16_t>(names::tableSize(count));

    for (std::size_t number = 1; number <= _declarations.last(); ++number) {
        bool done = true;
        switch (_declarations[number].kind) {
        case DeclarationKind::DefinedType:
            done = makeDefinedType(number);
            break;
        case DeclarationKind::EnumerationType:
            done = makeEnumeration(number);
            break;
        case DeclarationKind::SelectType:
            makeSelect(number);
            break;
        case DeclarationKind::ListType:
        case DeclarationKind::SetType:
        case DeclarationKind::ArrayType:
            makeAggregate(number);
            break;
        case DeclarationKind::Entity:
            makeEntity(number);
            done = enterName(number);
            break;
        default:
            break;
        }
        if (!done) return false;
    }
    auto* known = _schema->arena.allocate<const Type*>(_named.size());
    std::ranges::transform(_named, known, [this](std::uint16_t number) { return _types[number]; });
    _schema->_named = {known, _named.size()};
    _schema->_names = _names;

    for (std::size_t number = 1; number <= _declarations.last(); ++number) {
        const DeclarationKind kind = _declarations[number].kind;
        const bool needsName = kind == DeclarationKind::EnumerationType || kind == DeclarationKind::SelectType;
        if (needsName && !_isNamed[number]) {
            return declarationError(number, "expected a DefinedType that refers to it, found none");
        }
    }
    return true;
}

bool SchemaBuilder::makeDefinedType(std::size_t number) {
    const Declaration& declaration = _declarations[number];
    const std::size_t under = declaration.type.number;
    const DeclarationKind underKind = under == 0 ? DeclarationKind::Schema : _declarations[under].kind;
    const bool names = underKind == DeclarationKind::EnumerationType || underKind == DeclarationKind::SelectType;
    if (names && _isNamed[under]) {
        return declarationError(number,
                                "expected a type that no other DefinedType names, found #" + std::to_string(under));
    }
    _isNamed[under] = names;

    const std::size_t first = numberOf(declaration.name);
    if (first != 0 && isRepeatedSelect(*_types[first], number)) {
        // References to either declaration are to mean the same type.
        _types[number] = _types[first];
        return true;
    }
    DefinedType* result = make<DefinedType>();
    result->_position = Unset;
    result->_name = declaration.name;
    result->_underlying = type(declaration.type);
    result->_resolved = &result->_underlying->resolved();
    result->_schema = _schema.get();
    if (underKind == DeclarationKind::EnumerationType) {
        static_cast<EnumerationType*>(_types[under])->_definedType = result;
    } else if (underKind == DeclarationKind::SelectType) {
        static_cast<SelectType*>(_types[under])->_definedType = result;
    }
    _types[number] = result;
    return enterName(number);
}

// A select reached while its own items are being declared is declared a second time.
bool SchemaBuilder::isRepeatedSelect(const Type& first, std::size_t number) const {
    const std::size_t under = _declarations[number].type.number;
    if (under == 0 || first.asDefined() == nullptr) return false;
    const SelectType* earlier = first.asDefined()->underlying().asSelect();
    const SelectType* select = _types[under]->asSelect();
    return earlier != nullptr && select != nullptr && std::ranges::equal(earlier->items(), select->items());
}

bool SchemaBuilder::makeEnumeration(std::size_t number) {
    const std::size_t count = _declarations[number].members.count;
    std::string_view rest = _declarations[number].name;
    const auto values = _schema->arena.zeroed<std::string_view>(count);
    for (std::string_view& value : values) {
        value = rest.substr(0, rest.find(','));
        rest.remove_prefix(std::min(value.size() + 1, rest.size()));
    }
    auto* result = make<EnumerationType>();
    result->_values = values;
    result->_schema = _schema.get();

    const auto table = _schema->arena.zeroed<std::uint16_t>(names::tableSize(count));
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t hash = names::hash(values[i]);
        if (names::find(table, hash, values[i], [&](int k) { return values[std::size_t(k)]; }) >= 0) {
            return declarationError(number,
                                    "expected every enumerator once, found " + std::string(values[i]) + " again");
        }
        names::enter(table, hash, i);
    }
    result->_positions = table;
    _types[number] = result;
    return true;
}

void SchemaBuilder::makeSelect(std::size_t number) {
    const auto numbers = _declarations.itemsOf(_declarations[number]);
    auto* items = _schema->arena.allocate<const Type*>(numbers.size());
    std::ranges::transform(numbers, items, [this](std::uint16_t item) { return _types[item]; });
    auto* result = make<SelectType>();
    result->_items = {items, numbers.size()};
    _types[number] = result;
}

void SchemaBuilder::makeAggregate(std::size_t number) {
    const Declaration& declaration = _declarations[number];
    const TypeKind kind = declaration.kind == DeclarationKind::ListType  ? TypeKind::List
                          : declaration.kind == DeclarationKind::SetType ? TypeKind::Set
                                                                         : TypeKind::Array;
    auto* result = ::new (_schema->arena.allocate<AggregateType>(1)) AggregateType(kind);
    result->_unique = declaration.unique;
    result->_optional = declaration.optional;
    result->_lower = declaration.lower;
    result->_upper = declaration.upper;
    result->_element = type(declaration.type);
    _types[number] = result;
}

void SchemaBuilder::makeEntity(std::size_t number) {
    auto* result = make<EntityDefinition>();
    result->_abstract = _declarations[number].isAbstract;
    result->_position = Unset;
    result->_first = Unset;
    result->_name = _declarations[number].name;
    result->_schema = _schema.get();
    _types[number] = result;
}

std::size_t SchemaBuilder::numberOf(std::string_view name) const {
    const auto nameAt = [this](int i) { return _declarations[_named[static_cast<std::size_t>(i)]].name; };
    const int position = names::find(_names, name, nameAt);
    return position < 0 ? 0 : _named[static_cast<std::size_t>(position)];
}

bool SchemaBuilder::enterName(std::size_t number) {
    const std::string_view name = _declarations[number].name;
    if (const std::size_t first = numberOf(name); first != 0) {
        return declarationError(number, "expected a name of its own, found that of #" + std::to_string(first));
    }
    names::enter(_names, names::hash(name), _named.size());
    _named.push_back(static_cast<std::uint16_t>(number));
    return true;
}

bool SchemaBuilder::orderDefinedTypes() {
    std::vector<const DefinedType*> order;
    for (const std::uint16_t number : _statements.of(_statements.definedTypes)) {
        auto& definedType = static_cast<DefinedType&>(*_types[number]);
        if (definedType._position != Unset) {
            return statementError(_statements.definedTypes,
                                  "expected every defined type once, found " + declared(number) + " again");
        }
        definedType._position = static_cast<std::uint32_t>(order.size());
        order.push_back(&definedType);
    }
    for (const Type* type : _schema->_named) {
        const DefinedType* definedType = type->asDefined();
        if (definedType != nullptr && definedType->_position == Unset) {
            return statementError(_statements.definedTypes, "expected every defined type in the DefTypes statement, " +
                                                                std::string(definedType->name()) + " is missing");
        }
    }
    _schema->_definedTypes = kept(order);
    return true;
}

bool SchemaBuilder::orderEntities() {
    const Relation last{{}, _statements.entitiesStatement};
    std::vector<const EntityDefinition*> order;
    for (const std::uint16_t number : _statements.entities) {
        EntityDefinition& definition = entity(number);
        if (definition._position != Unset) {
            return statementError(last, "expected every entity once in the Entities statements, found " +
                                            declared(number) + " again");
        }
        definition._position = static_cast<std::uint32_t>(order.size());
        order.push_back(&definition);
    }
    for (const Type* type : _schema->_named) {
        const EntityDefinition* definition = type->asEntity();
        if (definition != nullptr && definition->_position == Unset) {
            return statementError(last, "expected every entity in the Entities statements, " +
                                            std::string(definition->name()) + " is missing");
        }
    }
    _schema->_entities = kept(order);
    return true;
}

bool SchemaBuilder::linkSupertypes() {
    const std::size_t entities = _schema->_entities.size();
    std::vector<std::uint32_t> children(entities);
    for (const std::uint16_t number : _statements.entities) {
        const auto supertypes = _statements.of(aboutEntity(number).supertypes);
        if (supertypes.empty()) continue;
        const EntityDefinition& supertype = entity(supertypes.front());
        entity(number)._supertype = &supertype;
        ++children[supertype._position];
    }
    // Every entity's subtypes are a stretch of one array, each in base order.
    auto* next = _schema->arena.allocate<const EntityDefinition*>(entities);
    std::vector<const EntityDefinition**> ends(entities);
    for (const std::uint16_t number : _statements.entities) {
        EntityDefinition& definition = entity(number);
        definition._subtypes = {next, children[definition._position]};
        ends[definition._position] = next;
        next += children[definition._position];
    }
    for (const EntityDefinition* definition : _schema->_entities) {
        if (definition->_supertype != nullptr) *ends[definition->_supertype->_position]++ = definition;
    }
    return walkEntities();
}

bool SchemaBuilder::walkEntities() {
    const auto entities = _schema->_entities;
    std::vector<const EntityDefinition*> open;
    const auto isRoot = [](const EntityDefinition* e) { return e->supertype() == nullptr; };
    std::copy_if(entities.rbegin(), entities.rend(), std::back_inserter(open), isRoot);
    _preorder.reserve(entities.size());
    _depths.resize(entities.size());
    while (!open.empty()) {
        EntityDefinition& definition = at(open.back()->_position);
        open.pop_back();
        definition._first = static_cast<std::uint32_t>(_preorder.size());
        _preorder.push_back(&definition);
        const EntityDefinition* supertype = definition._supertype;
        _depths[definition._position] = supertype ? _depths[supertype->_position] + 1 : 0;
        open.insert(open.end(), definition._subtypes.rbegin(), definition._subtypes.rend());
    }
    for (std::size_t i = _preorder.size(); i-- > 0;) {
        const EntityDefinition* supertype = _preorder[i]->_supertype;
        if (supertype != nullptr) at(supertype->_position)._count += _preorder[i]->_count;
    }
    if (_preorder.size() == entities.size()) return true;
    const auto isLost = [](const EntityDefinition* e) { return e->_first == Unset; };
    const EntityDefinition* lost = *std::ranges::find_if(entities, isLost);
    return statementError(aboutEntity(numberOf(*lost)).supertypes,
                          "expected supertypes that end in a root, found a circle");
}

bool SchemaBuilder::checkStatements() {
    if (_statements.version.statement == 0) {
        return statementError(_statements.version, "expected #1.SchemaVersionRelease(1,1), found none");
    }
    for (std::size_t number = 1; number <= _declarations.last(); ++number) {
        const DeclarationKind kind = _declarations[number].kind;
        if (kind == DeclarationKind::Entity) {
            if (!checkComposition(entity(number), number)) return false;
        } else if (places::owned.fits(kind)) {
            const bool isRule = kind == DeclarationKind::UniquenessRule;
            const OwnedStatements& about = aboutOwned(number);
            if (about.infos.statement == 0) {
                const char* keyword = isRule                                  ? "a UniqRuleInfos"
                                      : kind == DeclarationKind::ExplicitAttr ? "an ExplAttrInfos"
                                                                              : "a DerivAttrInfos";
                return declarationError(number, "expected " + std::string(keyword) + " statement about it, found none");
            }
            if (about.owner == 0) {
                const char* keyword = isRule ? "a Uniqueness_rules" : "an Attributes";
                return declarationError(number,
                                        "expected " + std::string(keyword) + " statement that names it, found none");
            }
        }
    }
    return true;
}

bool SchemaBuilder::checkComposition(const EntityDefinition& definition, std::size_t number) {
    const Relation& composition = aboutEntity(number).composition;
    if (composition.statement == 0) {
        return declarationError(number, "expected a Composition statement about it, found none");
    }
    const auto numbers = _statements.of(composition);
    const EntityDefinition* previous = nullptr;
    for (const std::uint16_t part : numbers) {
        const EntityDefinition& partial = entity(part);
        if (!definition.isKindOf(partial)) {
            return statementError(composition, "expected the entity and its supertypes, found " + declared(part));
        }
        if (previous != nullptr && previous->name() >= partial.name()) {
            return statementError(composition, "expected entities sorted by their names, found " + declared(part) +
                                                   " behind " + std::string(previous->name()));
        }
        previous = &partial;
    }
    const std::size_t expected = _depths[definition._position] + 1;
    if (numbers.size() == expected) return true;
    return statementError(composition, "expected the entity and all its supertypes, " + std::to_string(expected) +
                                           " in all, found " + std::to_string(numbers.size()));
}

bool SchemaBuilder::makeAttributes() {
    for (const std::uint16_t number : _statements.entities) {
        const auto numbers = _statements.of(aboutEntity(number).attributes);
        auto* own = _schema->arena.allocate<Attribute>(numbers.size());
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const Declaration& declaration = _declarations[numbers[i]];
            const OwnedStatements& about = aboutOwned(numbers[i]);
            Attribute* attribute = ::new (&own[i]) Attribute();
            attribute->_name = declaration.name;
            attribute->_hash = names::hash(declaration.name);
            attribute->_owner = &entity(number);
            attribute->_type = type(about.type);
            attribute->_optional = about.optional;
            attribute->_derived = declaration.kind == DeclarationKind::DerivedAttr;
            _attributes[numbers[i]] = attribute;
        }
        entity(number)._own = {own, numbers.size()};
    }
    return true;
}

bool SchemaBuilder::makeRules() {
    for (const std::uint16_t number : _statements.entities) {
        const auto numbers = _statements.of(aboutEntity(number).rules);
        if (numbers.empty()) continue;
        auto* rules = _schema->arena.allocate<UniquenessRule>(numbers.size());
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const Relation& infos = aboutOwned(numbers[i]).infos;
            std::vector<const Attribute*> attributes;
            for (const std::uint16_t named : _statements.of(infos)) {
                attributes.push_back(_attributes[named]);
                if (entity(number).isKindOf(attributes.back()->owner())) continue;
                return statementError(infos, "expected attributes of " + declared(number) +
                                                 " or its supertypes, found " + declared(named));
            }
            ::new (&rules[i]) UniquenessRule{_declarations[numbers[i]].name, kept(attributes)};
        }
        entity(number)._rules = {rules, numbers.size()};
    }
    return true;
}

bool SchemaBuilder::placeAttributes() {
    // Supertypes come first in this order.
    for (EntityDefinition* definition : _preorder) {
        if (definition->_own.empty()) {
            if (const EntityDefinition* supertype = definition->_supertype) {
                definition->_slots = supertype->_slots;
                definition->_derived = supertype->_derived;
                definition->_names = supertype->_names;
            }
        } else if (!placeOwnAttributes(*definition)) {
            return false;
        }
    }
    return true;
}

bool SchemaBuilder::placeOwnAttributes(EntityDefinition& definition) {
    std::vector<AttributeSlot>& slots = _slots;
    std::vector<const Attribute*>& derived = _derived;
    slots.clear();
    derived.clear();
    if (const EntityDefinition* supertype = definition._supertype) {
        slots.assign(supertype->_slots.begin(), supertype->_slots.end());
        derived.assign(supertype->_derived.begin(), supertype->_derived.end());
    }
    const auto numbers = _statements.of(aboutEntity(numberOf(definition)).attributes);
    for (const std::uint16_t number : numbers) {
        Attribute& own = *_attributes[number];
        const Attribute** place = nullptr;
        bool wasDerived = false;
        if (const EntityDefinition* supertype = definition._supertype) {
            const int index = supertype->place(own._name, own._hash);
            const auto inherited = static_cast<std::size_t>(index);
            const std::size_t inheritedSlots = supertype->_slots.size();
            if (index >= 0 && inherited < inheritedSlots) {
                place = &slots[inherited].attribute;
                wasDerived = slots[inherited].isDerived;
                slots[inherited].isDerived = own._derived;
            } else if (index >= 0) {
                place = &derived[inherited - inheritedSlots];
                wasDerived = true;
            }
        }
        if (place == nullptr) {
            if (own._derived)
                derived.push_back(&own);
            else
                slots.push_back({&own, false});
            continue;
        }
        if (&(*place)->owner() == &definition) {
            return declarationError(number, "expected a name that no other attribute of the entity has");
        }
        if (wasDerived && !own._derived) {
            return declarationError(number, "expected a derived attribute, as the one that it redeclares is derived");
        }
        own._redeclared = *place;
        *place = &own;
    }
    return keepPlaces(definition);
}

bool SchemaBuilder::keepPlaces(EntityDefinition& definition) {
    const std::size_t size = _slots.size() + _derived.size();
    _places += size;
    if (_places > MostPlaces) {
        return declarationError(numberOf(definition), "expected at most " + std::to_string(MostPlaces) +
                                                          " attributes in all entities, inherited ones included");
    }
    definition._slots = kept(_slots);
    definition._derived = kept(_derived);
    const auto table = _schema->arena.zeroed<std::uint16_t>(names::tableSize(size));
    definition._names = table;
    for (std::size_t i = 0; i < size; ++i) {
        const Attribute& attribute = *(i < _slots.size() ? _slots[i].attribute : _derived[i - _slots.size()]);
        if (definition.place(attribute._name, attribute._hash) >= 0) {
            return declarationError(numberOf(definition), "expected attributes of different names, found " +
                                                              std::string(attribute._name) + " again");
        }
        names::enter(table, attribute._hash, i);
    }
    return true;
}

bool SchemaBuilder::closeSelects() {
    const std::size_t entities = _schema->_entities.size();
    const std::size_t words = (entities + _schema->_definedTypes.size() + 63) / 64;
    std::size_t used = 0;
    // Selects refer backwards, so those among the items are done already.
    for (std::size_t number = 1; number <= _declarations.last(); ++number) {
        if (_declarations[number].kind != DeclarationKind::SelectType) continue;
        auto& select = static_cast<SelectType&>(*_types[number]);
        if (select._definedType == nullptr) continue;
        used += words;
        if (used > MostSelectWords) return declarationError(number, "expected fewer selects in a schema of this size");
        const auto bits = _schema->arena.zeroed<std::uint64_t>(words);
        for (const Type* item : select._items) {
            if (const EntityDefinition* definition = item->asEntity()) {
                setBits(bits.data(), definition->_first, definition->_count);
                continue;
            }
            setBits(bits.data(), entities + item->asDefined()->_position, 1);
            const SelectType* nested = item->resolved().asSelect();
            for (std::size_t i = 0; nested != nullptr && i < words; ++i) bits[i] |= nested->_accepted[i];
        }
        select._accepted = bits.data();
    }
    return true;
}

void SchemaBuilder::count() {
    SchemaCounts& counts = _schema->_counts;
    std::array<int, 11> kinds{};
    for (std::size_t number = 1; number <= _declarations.last(); ++number) {
        ++kinds[static_cast<std::size_t>(_declarations[number].kind)];
    }
    const auto of = [&](DeclarationKind kind) { return kinds[static_cast<std::size_t>(kind)]; };
    counts.declarations = static_cast<int>(_declarationTexts.size());
    counts.statements = static_cast<int>(_statementTexts.size());
    counts.entities = of(DeclarationKind::Entity);
    counts.definedTypes = of(DeclarationKind::DefinedType);
    counts.enumerationTypes = of(DeclarationKind::EnumerationType);
    counts.selectTypes = of(DeclarationKind::SelectType);
    counts.aggregateTypes =
        of(DeclarationKind::ListType) + of(DeclarationKind::SetType) + of(DeclarationKind::ArrayType);
    counts.explicitAttributes = of(DeclarationKind::ExplicitAttr);
    counts.derivedAttributes = of(DeclarationKind::DerivedAttr);
    counts.uniquenessRules = of(DeclarationKind::UniquenessRule);
    counts.entitiesStatements = _statements.entitiesStatements;
    _schema->_memoryUse = sizeof *_schema + _schema->arena.size();
}

template <class T>
T* SchemaBuilder::make() {
    return ::new (_schema->arena.allocate<T>(1)) T();
}

template <class T>
std::span<const T> SchemaBuilder::kept(const std::vector<T>& values) {
    T* copy = _schema->arena.allocate<T>(values.size());
    std::ranges::uninitialized_copy(values, std::span(copy, values.size()));
    return {copy, values.size()};
}

const Type* SchemaBuilder::type(const TypeReference& reference) {
    return reference.number != 0 ? _types[reference.number] : simpleType(reference);
}

const SimpleType* SchemaBuilder::simpleType(const TypeReference& reference) {
    const std::uint64_t key = static_cast<std::uint64_t>(reference.width) << 16 |
                              static_cast<std::uint64_t>(reference.simple) << 1 | (reference.fixed ? 1 : 0);
    const SimpleType*& result = _simpleTypes[key];
    if (result == nullptr) {
        auto* made = ::new (_schema->arena.allocate<SimpleType>(1)) SimpleType(reference.simple);
        made->_fixed = reference.fixed;
        made->_width = reference.width;
        result = made;
    }
    return result;
}

std::string SchemaBuilder::declared(std::size_t number) const {
    std::string result = "#";
    result += std::to_string(number);
    return result.append(" ").append(_declarations[number].name);
}

bool SchemaBuilder::declarationError(std::size_t number, const std::string& message) {
    _error = listError("declaration", number, _declarationTexts[number - 1], message);
    return false;
}

bool SchemaBuilder::statementError(const Relation& relation, const std::string& message) {
    if (relation.statement == 0) {
        _error = "the statement list: " + message;
    } else {
        _error = listError("statement", relation.statement, _statementTexts[relation.statement - 1], message);
    }
    return false;
}

} // namespace velkor::sdai
