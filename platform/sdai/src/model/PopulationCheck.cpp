#include "velkor/sdai/PopulationCheck.h"

#include "ComplexInstance.h"
#include "PopulationChecker.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <array>

namespace velkor::sdai {

std::vector<Problem> checkPopulation(const Model& model, const PopulationCheckOptions& options, std::uint64_t* total) {
    model::PopulationChecker checker(model, options);
    checker.check();
    if (total != nullptr) *total = checker.problems().total();
    return std::move(checker.problems().problems());
}

namespace model {

namespace {

constexpr std::uint32_t progressStep = 1 << 14;

/// The beginning of a token, fit for a message.
std::string excerpt(const Token& token) {
    constexpr std::size_t longest = 40;
    if (token.kind == TokenKind::End) return "the end of the instance";
    return text::excerpt(token.text, longest);
}

bool isValue(const Token& token) {
    return token.kind != TokenKind::End && token.kind != TokenKind::Close && token.kind != TokenKind::Comma &&
           token.kind != TokenKind::Semicolon;
}

std::string boundsText(const AggregateType& type) {
    return '[' + std::to_string(type.lowerBound()) + ":" +
           (type.upperBound() < 0 ? "?" : std::to_string(type.upperBound())) + "]";
}

/// Characters of a String token.
std::size_t characters(const Token& token) {
    const std::string_view body = token.text.substr(1, token.text.size() - 2);
    const bool isPlain =
        std::ranges::all_of(body, [](char c) { return c >= ' ' && c <= '~' && c != '\'' && c != '\\'; });
    return isPlain ? body.size() : text::characterCount(decodeString(token.text));
}

/// Bits of a Binary token: four a digit, less those that the first digit says are unused.
std::size_t bits(const Token& token) {
    const std::size_t digits = token.text.size() - 2;
    return digits <= 1 ? 0 : 4 * (digits - 1) - static_cast<std::size_t>(token.text[1] - '0');
}

} // namespace

PopulationChecker::PopulationChecker(const Model& model, const PopulationCheckOptions& options)
    : _model(model), _options(options), _problems(options.limit, options.choice) {
    for (const DerivedSlot& derived : options.derivedSlots) takeDerived(derived);
    std::ranges::sort(_derivedElsewhere);
}

void PopulationChecker::check() {
    const std::uint32_t count = _model.file().instanceCount();
    for (std::uint32_t number = 0; number < count; ++number) {
        if (_options.progress && number % progressStep == 0 &&
            !_options.progress(_model.file().offset(number), _model.file().text().size()))
            break;
        checkInstance(number);
    }
    std::ranges::stable_sort(_problems.problems(), {}, &Problem::offset);
    for (Problem& problem : _problems.problems()) problem.line = _model.file().line(problem.offset);
}

std::optional<std::string> PopulationChecker::judge(const EntityDefinition& entity, std::size_t slot,
                                                    std::string_view value,
                                                    std::function<const EntityDefinition*(std::uint64_t id)> find) {
    _find = std::move(find);
    _entity = &entity;
    _lexer = Part21Lexer(value);
    _problems.problems().clear();
    checkAttribute(entity.attributes()[slot]);
    if (_problems.problems().empty()) return std::nullopt;
    return std::move(_problems.problems().front().message);
}

void PopulationChecker::checkInstance(std::uint32_t number) {
    _instance = _model.file().id(number);
    _attribute = nullptr;
    const std::string_view text = _model.file().instanceText(number);
    if (_model.file().keyword(number) == Part21File::complexKeyword) return checkComplex(text);
    _lexer = Part21Lexer(text);
    const Token keyword = _lexer.next();
    if (_lexer.next().kind != TokenKind::Open) return;
    _entity = _model.entityAt(number);
    if (_entity == nullptr || _entity->isAbstract()) _entity = checkEntity(keyword.text, false);
    if (_entity != nullptr) checkAttributes(*_entity);
}

// IFC describes no instance of several entities at once, so the parts are judged by name alone.
void PopulationChecker::checkComplex(std::string_view text) {
    anyPartialEntity(text, [&](std::string_view keyword, auto) {
        _entity = checkEntity(keyword, true);
        return false;
    });
}

const EntityDefinition* PopulationChecker::checkEntity(std::string_view keyword, bool isPart) {
    const EntityDefinition* entity = _model.schema().entity(keyword);
    const std::string schema(_model.schema().name());
    if (entity == nullptr) {
        report(Severity::Error, keyword.data(), "unknown-entity",
               "expected an entity of " + schema + ", found " + std::string(keyword));
    } else if (entity->isAbstract() && !isPart) {
        report(Severity::Error, keyword.data(), "abstract-entity",
               "expected a subtype of " + std::string(keyword) + ", which is abstract");
    }
    return entity;
}

void PopulationChecker::checkAttributes(const EntityDefinition& entity) {
    const auto slots = entity.attributes();
    std::size_t found = 0;
    const char* const begin = _lexer.position();
    while (isValue(_lexer.peek())) {
        if (found < slots.size()) checkAttribute(slots[found]);
        ++found;
        // Whatever the value left unread.
        if (!_lexer.skipParameter()) break;
        if (_lexer.peek().kind == TokenKind::Comma) _lexer.next();
    }
    if (found == slots.size()) return;
    _attribute = nullptr;
    report(Severity::Error, begin, "attribute-count",
           "expected " + std::to_string(slots.size()) + (slots.size() == 1 ? " attribute" : " attributes") + " of " +
               std::string(entity.name()) + ", found " + std::to_string(found));
}

void PopulationChecker::checkAttribute(const AttributeSlot& slot) {
    _attribute = slot.attribute;
    const Token token = _lexer.peek();
    if (isDerived(slot)) {
        if (token.kind == TokenKind::Derived) return;
        report(Severity::Error, token.text.data(), "value-of-derived",
               "expected * for a derived attribute, found " + excerpt(token));
    } else if (token.kind == TokenKind::Derived) {
        unexpected(slot.attribute->type(), token);
    } else if (token.kind != TokenKind::Omitted) {
        checkValue(slot.attribute->type());
    } else if (!slot.attribute->isOptional()) {
        report(Severity::Error, token.text.data(), "missing-value",
               "expected " + slot.attribute->type().expressText() + ", found $; the attribute is required");
    }
}

void PopulationChecker::takeDerived(const DerivedSlot& derived) {
    const EntityDefinition* owner = _model.schema().entity(derived.entity);
    const int index = owner == nullptr ? -1 : owner->attributeIndex(derived.attribute);
    if (index < 0) return;
    // Inherited attributes come first, so that subtypes have it at the same place.
    for (const EntityDefinition* entity : _model.schema().entities()) {
        if (entity->isKindOf(*owner))
            _derivedElsewhere.emplace_back(entity->position(), static_cast<std::size_t>(index));
    }
}

bool PopulationChecker::isDerived(const AttributeSlot& slot) const {
    return derives(*_entity, static_cast<std::size_t>(&slot - _entity->attributes().data()));
}

// An entity without attributes of its own may have those of its supertype, so a slot does not say whose it is.
bool PopulationChecker::derives(const EntityDefinition& entity, std::size_t slot) const {
    if (entity.attributes()[slot].isDerived || _derivedElsewhere.empty()) return entity.attributes()[slot].isDerived;
    return std::ranges::binary_search(_derivedElsewhere, std::pair(entity.position(), slot));
}

// Nesting of values is that of the type, so recursion ends where the dictionary does.
void PopulationChecker::checkValue(const Type& type) {
    const Token token = _lexer.peek();
    if (token.kind == TokenKind::Bad) return;
    const Type& resolved = type.resolved();
    if (const auto* simple = resolved.asSimple()) return checkSimple(*simple, type, token);
    if (const auto* enumeration = resolved.asEnumeration()) return checkEnumeration(*enumeration, token);
    if (const auto* entity = resolved.asEntity()) return checkReference(*entity, token);
    if (const auto* select = resolved.asSelect()) return checkSelect(*select, type, token);
    if (const auto* aggregate = resolved.asAggregate()) return checkAggregate(*aggregate, type, token);
}

bool PopulationChecker::isNumber(const Type& declared) const {
    const DefinedType* type = declared.asDefined();
    return type != nullptr && std::ranges::find(_options.numberTypes, type->name()) != _options.numberTypes.end();
}

void PopulationChecker::checkSimple(const SimpleType& type, const Type& declared, const Token& token) {
    const auto isOneOf = [&](std::string_view words) {
        return token.kind == TokenKind::Enumeration && token.text.size() == 3 &&
               words.find(token.text[1]) != std::string_view::npos;
    };
    bool fits = false;
    switch (type.kind()) {
    case TypeKind::Integer:
        fits = token.kind == TokenKind::Integer;
        break;
    case TypeKind::Real:
        fits = token.kind == TokenKind::Real || token.kind == TokenKind::Integer;
        break;
    case TypeKind::Boolean:
        fits = isOneOf("TF");
        break;
    case TypeKind::Logical:
        fits = isOneOf("TFU");
        break;
    case TypeKind::String:
        fits = token.kind == TokenKind::String;
        break;
    default:
        fits = token.kind == TokenKind::Binary;
        break;
    }
    if (!fits) return unexpected(declared, token);
    if (type.kind() == TypeKind::String || type.kind() == TypeKind::Binary) checkText(type, declared, token);
    if (type.kind() == TypeKind::Real && token.kind == TokenKind::Integer && !isNumber(declared)) {
        report(Severity::Warning, token.text.data(), "integer-for-real",
               "expected " + declared.expressText() + " with a decimal point, found " + excerpt(token));
    }
}

void PopulationChecker::checkText(const SimpleType& type, const Type& declared, const Token& token) {
    if (type.width() == 0) return;
    const auto width = static_cast<std::size_t>(type.width());
    const bool isString = type.kind() == TypeKind::String;
    // A text cannot have more characters than bytes.
    if (isString && !type.isFixed() && token.text.size() <= width) return;
    const std::size_t length = isString ? characters(token) : bits(token);
    if (type.isFixed() ? length == width : length <= width) return;
    report(Severity::Error, token.text.data(), "text-length",
           "expected " + declared.expressText() + " of " + (type.isFixed() ? "" : "at most ") + std::to_string(width) +
               (isString ? " characters" : " bits") + ", found " + std::to_string(length));
}

void PopulationChecker::checkEnumeration(const EnumerationType& type, const Token& token) {
    if (token.kind != TokenKind::Enumeration) return unexpected(type.definedType(), token);
    if (type.position(token.text.substr(1, token.text.size() - 2)) >= 0) return;
    report(Severity::Error, token.text.data(), "unknown-enumerator",
           "expected a value of " + std::string(type.definedType().name()) + ", found " + excerpt(token));
}

/// The entity referred to; null after reporting a dangling reference, and for an instance of an entity that
/// is unknown, which is reported where it stands.
const EntityDefinition* PopulationChecker::referred(const Token& token) {
    const std::uint64_t id = decodeInstanceName(token.text);
    if (_find) {
        if (const EntityDefinition* entity = _find(id)) return entity;
    } else if (const auto number = _model.file().find(id)) {
        return _model.entityAt(*number);
    }
    report(Severity::Error, token.text.data(), "dangling-reference",
           "expected an instance of the file, found " + excerpt(token) + ", which the file does not have");
    return nullptr;
}

void PopulationChecker::checkReference(const EntityDefinition& type, const Token& token) {
    if (token.kind != TokenKind::InstanceName) return unexpected(type, token);
    const EntityDefinition* entity = referred(token);
    if (entity == nullptr || entity->isKindOf(type)) return;
    report(Severity::Error, token.text.data(), "wrong-reference",
           "expected " + std::string(type.name()) + ", found " + excerpt(token) + ", an " +
               std::string(entity->name()));
}

void PopulationChecker::checkSelect(const SelectType& type, const Type& declared, const Token& token) {
    if (token.kind == TokenKind::InstanceName) {
        const EntityDefinition* entity = referred(token);
        if (entity != nullptr && !type.accepts(*entity)) {
            report(Severity::Error, token.text.data(), "wrong-reference",
                   "expected " + declared.expressText() + ", found " + excerpt(token) + ", an " +
                       std::string(entity->name()));
        }
        return;
    }
    if (token.kind != TokenKind::Keyword) {
        report(Severity::Error, token.text.data(), "untyped-value",
               "expected " + declared.expressText() + " with its type, found " + excerpt(token));
        return;
    }
    const DefinedType* chosen = _model.schema().definedType(token.text);
    if (chosen == nullptr || !type.accepts(*chosen)) {
        report(Severity::Error, token.text.data(), "wrong-type",
               "expected a type of " + declared.expressText() + ", found " + excerpt(token));
        return;
    }
    _lexer.next();
    if (_lexer.next().kind != TokenKind::Open) return;
    // A select chosen by name would be another select in the value.
    if (chosen->resolved().asSelect() == nullptr) checkValue(*chosen);
    while (_lexer.skipParameter() && _lexer.peek().kind == TokenKind::Comma) _lexer.next();
    _lexer.next();
}

void PopulationChecker::checkAggregate(const AggregateType& type, const Type& declared, const Token& token) {
    if (token.kind != TokenKind::Open) return unexpected(declared, token);
    _lexer.next();
    std::size_t count = 0;
    while (isValue(_lexer.peek())) {
        ++count;
        const bool isOmitted = _lexer.peek().kind == TokenKind::Omitted;
        if (!(isOmitted && type.hasOptionalElements())) checkValue(type.element());
        if (!_lexer.skipParameter()) return;
        if (_lexer.peek().kind == TokenKind::Comma) _lexer.next();
    }
    _lexer.next();

    const bool hasBounds = type.kind() != TypeKind::Array || type.upperBound() > type.lowerBound();
    if (!hasBounds) return;
    const auto lower = static_cast<std::size_t>(std::max(type.lowerBound(), 0));
    const auto upper = static_cast<std::size_t>(std::max(type.upperBound(), 0));
    const bool fits = type.kind() == TypeKind::Array ? count == upper - lower + 1
                                                     : count >= lower && (type.upperBound() < 0 || count <= upper);
    if (fits) return;
    report(Severity::Error, token.text.data(), "aggregate-size",
           "expected " + boundsText(type) + " members, found " + std::to_string(count));
}

void PopulationChecker::unexpected(const Type& declared, const Token& token) {
    report(Severity::Error, token.text.data(), "wrong-type",
           "expected " + declared.expressText() + ", found " + excerpt(token));
}

void PopulationChecker::report(Severity severity, const char* at, ProblemCode code, const std::string& message) {
    // A value that is judged alone stands nowhere.
    const auto offset = _find ? 0 : static_cast<std::uint64_t>(at - _model.file().text().data());
    std::string place;
    if (_entity != nullptr && _attribute != nullptr) {
        place.append(_entity->name()).append(".").append(_attribute->name()).append(": ");
    }
    _problems.add(severity, offset, _instance, code, place + message);
}

} // namespace model

} // namespace velkor::sdai
