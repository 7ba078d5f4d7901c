#include "units/UnitRewriter.h"

#include "RecordText.h"
#include "units/UnitRules.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <utility>

namespace velkor::exchange {

using sdai::EntityDefinition;
using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;
using Form = UnitPlan::Form;

namespace {

constexpr std::uint32_t progressStep = 1 << 14;

bool beginsNumber(char c) {
    return (c >= '0' && c <= '9') || c == '-' || c == '+';
}

bool continuesNumber(char c) {
    return beginsNumber(c) || c == '.' || c == 'E' || c == 'e';
}

/// Replaces each token of a value that `take` appends another text for; false, and the text is what it was, when it did
/// for none.
template <class Take>
bool eachToken(std::string_view value, std::string& text, Take take) {
    const std::size_t before = text.size();
    const char* copied = value.data();
    bool isChanged = false;
    Part21Lexer lexer(value);
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        text.append(copied, token.text.data());
        copied = token.text.data();
        const std::size_t end = text.size();
        if (take(token, text)) {
            copied += token.text.size();
            isChanged = true;
        } else {
            text.resize(end);
        }
    }
    text.append(copied, value.data() + value.size());
    if (!isChanged) text.resize(before);
    return isChanged;
}

} // namespace

UnitRewriter::UnitRewriter(const sdai::Model& model, MeasureRatios& ratios, const sdai::Part21Edit& edit,
                           ChangeList& changes, const Progress& progress)
    : _model(model), _ratios(ratios), _edit(edit), _changes(changes), _progress(progress) {
    // Coefficients of powers that no curve of these releases goes beyond.
    constexpr int largestPower = 32;
    for (int i = 0; i <= largestPower; ++i) _powers.push_back(_ratios.lengthPower(1 - i));
    _mapScale = _ratios[_ratios.lengthPower(-1)];
    _sourceScale = _ratios[_ratios.lengthPower(1)];
    keepOwnUnits();
    for (std::size_t i = 0; i < _model.file().keywords().size(); ++i)
        _isWanted.push_back(isWanted(static_cast<std::uint16_t>(i)) ? 1 : 0);
    for (const std::uint32_t number : _spaces.shared()) {
        const EntityDefinition* entity = _model.entityAt(number);
        if (entity == nullptr || !_plans.plan(*entity).hasAny) continue;
        _number = number;
        note(unitrule::parameterShared, "used elsewhere as well");
    }
}

void UnitRewriter::keepOwnUnits() {
    const sdai::Part21File& file = _model.file();
    const auto hasUnit = [&](std::uint32_t number, std::string_view attribute) {
        return !isUnset(parameterOf(_model, number, attribute));
    };
    for (const std::uint32_t number : _model.numbersOf("IFCPROPERTYENUMERATEDVALUE"))
        eachNumber(file, parameterOf(_model, number, "ENUMERATIONREFERENCE"), [&](std::uint32_t enumeration) {
            if (hasUnit(enumeration, "UNIT")) _withOwnUnit.insert(number);
        });
    for (const std::uint32_t number : _model.numbersOf("IFCTIMESERIES"))
        if (hasUnit(number, "UNIT"))
            eachNumber(file, parameterOf(_model, number, "VALUES"),
                       [&](std::uint32_t value) { _withOwnUnit.insert(value); });
    for (const std::uint32_t number : _model.numbersOf("IFCTABLE")) keepCells(number);
}

void UnitRewriter::keepCells(std::uint32_t table) {
    const sdai::Part21File& file = _model.file();
    std::vector<bool> kept;
    eachNumber(file, parameterOf(_model, table, "COLUMNS"),
               [&](std::uint32_t column) { kept.push_back(!isUnset(parameterOf(_model, column, "UNIT"))); });
    if (std::ranges::count(kept, true) == 0) return;
    eachNumber(file, parameterOf(_model, table, "ROWS"),
               [&](std::uint32_t row) { _tables.emplace(row, _keptColumns.size()); });
    _keptColumns.push_back(std::move(kept));
}

bool UnitRewriter::isWanted(std::uint16_t keyword) const {
    const EntityDefinition* entity = _model.schema().entity(_model.file().keywords()[keyword]);
    if (entity == nullptr) return false;
    const UnitPlan& plan = _plans.plan(*entity);
    return plan.hasAny || (!_spaces.isEmpty() && plan.kind == UnitPlan::Kind::Point);
}

bool UnitRewriter::wants(std::uint16_t keyword) const {
    return keyword < _isWanted.size() && _isWanted[keyword] != 0;
}

// What was not met of the instances that were to be, and what no dictionary explains.
void UnitRewriter::noteUnseen(std::uint32_t before) {
    const sdai::Part21File& file = _model.file();
    for (; _next < before && !_isEnded; ++_next) {
        const std::uint16_t keyword = file.keyword(_next);
        const bool isKnown = keyword < _isWanted.size() && _model.entityAt(_next) != nullptr;
        if ((isKnown && _isWanted[keyword] == 0) || _edit.isEdited(file.id(_next))) continue;
        _number = _next;
        note(unitrule::notUnderstood, isKnown                                       ? "damaged"
                                      : keyword == sdai::Part21File::complexKeyword ? "complex"
                                                                                    : "no entity of the release");
    }
}

sdai::RecordRewriter::Outcome UnitRewriter::rewrite(const sdai::RecordView& record, sdai::RecordOutput& output) {
    const sdai::Part21File& file = _model.file();
    if (record.number >= _nextProgress && !_isEnded) {
        _isEnded = !goesOn(_progress, {"Converting the values", file.offset(record.number), file.text().size()});
        _nextProgress = record.number + progressStep;
    }
    noteUnseen(record.number);
    _next = record.number + 1;
    _number = record.number;
    const EntityDefinition* entity = _isEnded ? nullptr : _model.entityAt(record.number);
    if (entity == nullptr) return Outcome::Keep;
    if (record.parameters.size() != entity->attributes().size()) {
        note(unitrule::notUnderstood, "another number of attributes");
        return Outcome::Keep;
    }
    if (_withOwnUnit.contains(record.number)) return Outcome::Keep;
    const bool isOperation = _plans.plan(*entity).kind == UnitPlan::Kind::CoordinateOperation;
    const bool isChanged = isOperation ? coordinateOperation(record, *entity, output.record)
                                       : convertRecord(record, *entity, output.record);
    if (!isChanged) return Outcome::Keep;
    ++_converted;
    return Outcome::Replace;
}

bool UnitRewriter::convertRecord(const sdai::RecordView& record, const EntityDefinition& entity, std::string& text) {
    bool isChanged = false;
    text += record.keyword;
    char separator = '(';
    for (std::size_t i = 0; i < record.parameters.size(); ++i) {
        text += separator;
        separator = ',';
        if (convert(record, entity, i, text))
            isChanged = true;
        else
            text += record.parameters[i];
    }
    text += ')';
    return isChanged;
}

bool UnitRewriter::convert(const sdai::RecordView& record, const EntityDefinition& entity, std::size_t place,
                           std::string& text) {
    const UnitPlan& plan = _plans.plan(entity);
    const Slot& slot = plan.slots[place];
    const std::string_view value = record.parameters[place];
    if (slot.form == Form::Other || isUnset(value)) return false;
    if (slot.ownUnit >= 0 && !isUnset(record.parameters[static_cast<std::size_t>(slot.ownUnit)])) return false;
    const std::string_view attribute = entity.attributes()[place].attribute->name();
    if (!_spaces.isEmpty())
        if (const auto space = _spaces.space(record.number); space && slot.form != Form::Parameters)
            return inSpace(record, slot, attribute, *space, value, text);
    if (slot.form == Form::Parameters) return parameter(record, entity, attribute, value, text);
    const auto table = plan.kind == UnitPlan::Kind::TableRow ? _tables.find(record.number) : _tables.end();
    const bool isChanged = table != _tables.end() ? typedValues(value, &_keptColumns[table->second], text)
                                                  : convertPlain(slot, value, text);
    if (isChanged) note(slot.isHidden ? unitrule::hiddenMeasure : unitrule::measure, attribute);
    return isChanged;
}

// Where both parameters of a surface are alike, what is measured by them is like lengths elsewhere.
bool UnitRewriter::inSpace(const sdai::RecordView& record, const Slot& slot, std::string_view attribute,
                           ParameterSpaces::Pair space, std::string_view value, std::string& text) {
    if (_plans.plan(*_model.entityAt(record.number)).kind == UnitPlan::Kind::Point) return pair(value, space, text);
    if (space.u != space.v || slot.form != Form::Numbers || (slot.ratio != _ratios.length() && space.u != stays)) {
        if (space != ParameterSpaces::Pair{}) note(unitrule::parameterShared, attribute);
        return false;
    }
    if (space.u == stays || !numbers(value, _ratios[space.u], text)) return false;
    note(unitrule::surfaceParameter, attribute);
    return true;
}

bool UnitRewriter::convertPlain(const Slot& slot, std::string_view value, std::string& text) {
    switch (slot.form) {
    case Form::Numbers:
        return numbers(value, _ratios[slot.ratio], text);
    case Form::Whole:
        return wholes(value, _ratios[slot.ratio], text);
    case Form::Typed:
        return typedValues(value, nullptr, text);
    case Form::Powers:
        return powers(value, text);
    default:
        return false;
    }
}

bool UnitRewriter::number(std::string_view real, const Ratio& ratio, std::string& text) {
    const Ratio::Outcome outcome = ratio.append(text, real);
    if (outcome == Ratio::Outcome::Unreadable) note(unitrule::numberUnreadable, real);
    return outcome == Ratio::Outcome::Converted;
}

// The mass of a model: points and their like. Numbers, commas and brackets need no lexer.
bool UnitRewriter::numbers(std::string_view value, const Ratio& ratio, std::string& text) {
    const std::size_t before = text.size();
    const char* at = value.data();
    const char* const end = at + value.size();
    bool isChanged = false;
    while (at != end) {
        if (!beginsNumber(*at)) {
            const bool isPlain =
                *at == '(' || *at == ')' || *at == ',' || *at == ' ' || *at == '\n' || *at == '\r' || *at == '$';
            if (!isPlain) {
                text.resize(before);
                return eachToken(value, text, [&](const Token& token, std::string& out) {
                    const bool isNumber = token.kind == TokenKind::Real || token.kind == TokenKind::Integer;
                    return isNumber
                               ? number(token.text, ratio, out)
                               : token.kind == TokenKind::Bad && (note(unitrule::numberUnreadable, token.text), false);
                });
            }
            text += *at++;
            continue;
        }
        const char* behind = at + 1;
        while (behind != end && continuesNumber(*behind)) ++behind;
        const std::string_view real(at, static_cast<std::size_t>(behind - at));
        if (number(real, ratio, text))
            isChanged = true;
        else
            text += real;
        at = behind;
    }
    if (!isChanged) text.resize(before);
    return isChanged;
}

bool UnitRewriter::whole(std::string_view integer, const Ratio& ratio, std::string& text) {
    const std::size_t before = text.size();
    if (!number(integer, ratio, text)) return false;
    // "5." is 5.
    if (text.back() == '.') return text.pop_back(), true;
    text.resize(before);
    note(unitrule::notWhole, integer);
    return false;
}

bool UnitRewriter::wholes(std::string_view value, const Ratio& ratio, std::string& text) {
    return eachToken(value, text, [&](const Token& token, std::string& out) {
        return token.kind == TokenKind::Integer && whole(token.text, ratio, out);
    });
}

bool UnitRewriter::typedValues(std::string_view value, const std::vector<bool>* kept, std::string& text) {
    RatioNumber ratio = stays;
    bool isWhole = false;
    int depth = 0;
    std::size_t cell = 0;
    return eachToken(value, text, [&](const Token& token, std::string& out) {
        if (token.kind == TokenKind::Keyword) {
            ratio = _ratios.ofKeyword(token.text);
            const auto* type = ratio == stays ? nullptr : _model.schema().definedType(token.text);
            isWhole = type != nullptr && type->resolved().kind() == sdai::TypeKind::Integer;
        }
        if (token.kind == TokenKind::Open) ++depth;
        if (token.kind == TokenKind::Close) --depth;
        if (token.kind == TokenKind::Comma && depth == 1) ++cell;
        if (token.kind == TokenKind::Close) ratio = stays;
        if (kept != nullptr && cell < kept->size() && (*kept)[cell]) return false;
        if (ratio == stays || (token.kind != TokenKind::Real && token.kind != TokenKind::Integer)) return false;
        return isWhole ? whole(token.text, _ratios[ratio], out) : number(token.text, _ratios[ratio], out);
    });
}

bool UnitRewriter::powers(std::string_view value, std::string& text) {
    std::size_t power = 0;
    return eachToken(value, text, [&](const Token& token, std::string& out) {
        if (token.kind != TokenKind::Real && token.kind != TokenKind::Integer) return false;
        const std::size_t place = std::min(power++, _powers.size() - 1);
        return number(token.text, _ratios[_powers[place]], out);
    });
}

bool UnitRewriter::pair(std::string_view value, ParameterSpaces::Pair space, std::string& text) {
    int coordinate = 0;
    const bool isChanged = eachToken(value, text, [&](const Token& token, std::string& out) {
        if (token.kind != TokenKind::Real && token.kind != TokenKind::Integer) return false;
        const RatioNumber ratio = coordinate == 0 ? space.u : coordinate == 1 ? space.v : stays;
        ++coordinate;
        return ratio != stays && number(token.text, _ratios[ratio], out);
    });
    if (isChanged) note(unitrule::surfaceParameter, "COORDINATES");
    return isChanged;
}

bool UnitRewriter::parameter(const sdai::RecordView& record, const EntityDefinition& entity, std::string_view attribute,
                             std::string_view value, std::string& text) {
    RatioNumber ratio = stays;
    bool isSurface = false;
    for (const char* basis : {"BASISCURVE", "PARENTCURVE", "DIRECTRIX", "BASISSURFACE"}) {
        const int place = entity.attributeIndex(basis);
        if (place < 0) continue;
        isSurface = basis == std::string_view("BASISSURFACE");
        const bool isFirst = attribute.ends_with('U') || attribute.starts_with('U');
        eachNumber(_model.file(), record.parameters[static_cast<std::size_t>(place)], [&](std::uint32_t number) {
            const ParameterSpaces::Pair pair = isSurface ? _spaces.ofSurface(number) : ParameterSpaces::Pair{};
            ratio = !isSurface ? _spaces.ofCurve(number) : isFirst ? pair.u : pair.v;
        });
    }
    bool isTyped = false;
    RatioNumber typedAs = stays;
    const bool isChanged = eachToken(value, text, [&](const Token& token, std::string& out) {
        if (token.kind == TokenKind::Keyword) {
            isTyped = token.text != "IFCPARAMETERVALUE";
            typedAs = isTyped ? _ratios.ofKeyword(token.text) : stays;
        }
        const RatioNumber wanted = isTyped ? typedAs : ratio;
        return wanted != stays && (token.kind == TokenKind::Real || token.kind == TokenKind::Integer) &&
               number(token.text, _ratios[wanted], out);
    });
    if (isChanged)
        note(isTyped     ? unitrule::measure
             : isSurface ? unitrule::surfaceParameter
                         : unitrule::curveParameter,
             attribute);
    return isChanged;
}

bool UnitRewriter::hasUnit(std::string_view system, std::string_view attribute) const {
    bool has = false;
    eachNumber(_model.file(), system,
               [&](std::uint32_t number) { has = !isUnset(parameterOf(_model, number, attribute)); });
    return has;
}

/// Whether an attribute of an operation is in a unit that the target system has of its own.
bool UnitRewriter::isInUnitOf(std::string_view system, std::string_view attribute) const {
    if (attribute == "HEIGHT" || attribute == "ORTHOGONALHEIGHT")
        return hasUnit(system, "MAPUNIT") || hasUnit(system, "HEIGHTUNIT");
    return hasUnit(system, "MAPUNIT") || hasUnit(system, "ANGLEUNIT");
}

bool UnitRewriter::coordinateOperation(const sdai::RecordView& record, const EntityDefinition& entity,
                                       std::string& text) {
    const auto parameter = [&](std::string_view attribute) {
        const int place = entity.attributeIndex(attribute);
        return place < 0 ? std::string_view() : record.parameters[static_cast<std::size_t>(place)];
    };
    const std::string_view target = parameter("TARGETCRS");
    const bool isMapScaled = hasUnit(target, "MAPUNIT");
    const bool isSourceScaled = hasUnit(parameter("SOURCECRS"), "MAPUNIT");
    bool isChanged = false;
    text += record.keyword;
    for (std::size_t i = 0; i < record.parameters.size(); ++i) {
        text += i == 0 ? '(' : ',';
        const std::string_view value = record.parameters[i];
        const std::string_view attribute = entity.attributes()[i].attribute->name();
        bool isConverted = false;
        if (attribute == "SCALE" && isMapScaled != isSourceScaled) {
            // Unset it is 1.
            isConverted = number(isUnset(value) ? "1." : value, isMapScaled ? _mapScale : _sourceScale, text);
            if (isConverted) note(unitrule::mapScale, attribute);
        } else if (!isInUnitOf(target, attribute)) {
            isConverted = convert(record, entity, i, text);
        }
        if (!isConverted) text += value;
        isChanged = isChanged || isConverted;
    }
    text += ')';
    return isChanged;
}

void UnitRewriter::note(const ConversionRule& rule, std::string_view detail) {
    _changes.note(rule, _number, [&] { return std::string(detail); });
}

} // namespace velkor::exchange
