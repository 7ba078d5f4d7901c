#include "units/UnitRewriter.h"

#include "RecordText.h"
#include "units/UnitRules.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <cmath>

namespace velkor::exchange {

using sdai::EntityDefinition;
using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;
using Form = UnitPlan::Form;

namespace {

constexpr std::uint32_t progressStep = 1 << 14;

bool isUnset(std::string_view value) {
    return value.empty() || value == sdai::omittedValue || value == sdai::derivedValue;
}

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

UnitRewriter::UnitRewriter(const sdai::Model& model, MeasureRatios& ratios, ChangeList& changes,
                           const Progress& progress)
    : _model(model), _ratios(ratios), _changes(changes), _progress(progress) {
    // Coefficients of powers that no curve of these releases goes beyond.
    constexpr int largestPower = 32;
    for (int i = 0; i <= largestPower; ++i) _powers.push_back(_ratios.lengthPower(1 - i));
    _mapScale = _ratios[_ratios.lengthPower(-1)];
    keepOwnUnits();
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
    for (const std::uint32_t number : _model.numbersOf("IFCTABLE")) {
        bool hasColumnUnit = false;
        eachNumber(file, parameterOf(_model, number, "COLUMNS"),
                   [&](std::uint32_t column) { hasColumnUnit = hasColumnUnit || hasUnit(column, "UNIT"); });
        if (hasColumnUnit)
            eachNumber(file, parameterOf(_model, number, "ROWS"), [&](std::uint32_t row) { _withOwnUnit.insert(row); });
    }
}

bool UnitRewriter::wants(std::uint16_t keyword) const {
    const auto keywords = _model.file().keywords();
    const EntityDefinition* entity = keyword < keywords.size() ? _model.schema().entity(keywords[keyword]) : nullptr;
    if (entity == nullptr) return false;
    const UnitPlan& plan = _plans.plan(*entity);
    return plan.hasAny || (!_spaces.isEmpty() && plan.kind == UnitPlan::Kind::Point);
}

sdai::RecordRewriter::Outcome UnitRewriter::rewrite(const sdai::RecordView& record, sdai::RecordOutput& output) {
    const sdai::Part21File& file = _model.file();
    if (record.number % progressStep == 0 && !_isEnded)
        _isEnded = !goesOn(_progress, {"Converting the values", file.offset(record.number), file.text().size()});
    _number = record.number;
    const EntityDefinition* entity = _isEnded ? nullptr : _model.entityAt(record.number);
    if (entity == nullptr) return Outcome::Keep;
    if (record.parameters.size() != entity->attributes().size()) {
        note(unitrule::notUnderstood, {});
        return Outcome::Keep;
    }
    if (_withOwnUnit.contains(record.number)) return Outcome::Keep;
    std::string& text = output.record;
    const UnitPlan& plan = _plans.plan(*entity);
    bool isChanged = false;
    if (plan.kind == UnitPlan::Kind::MapConversion) {
        isChanged = mapConversion(record, *entity, text);
    } else {
        text += record.keyword;
        char separator = '(';
        for (std::size_t i = 0; i < record.parameters.size(); ++i) {
            text += separator;
            separator = ',';
            if (convert(record, *entity, i, text))
                isChanged = true;
            else
                text += record.parameters[i];
        }
        text += ')';
    }
    if (!isChanged) return Outcome::Keep;
    ++_converted;
    return Outcome::Replace;
}

bool UnitRewriter::convert(const sdai::RecordView& record, const EntityDefinition& entity, std::size_t place,
                           std::string& text) {
    const UnitPlan& plan = _plans.plan(entity);
    const Slot& slot = plan.slots[place];
    const std::string_view value = record.parameters[place];
    if (slot.form == Form::Other || isUnset(value)) return false;
    if (slot.ownUnit >= 0 && !isUnset(record.parameters[static_cast<std::size_t>(slot.ownUnit)])) return false;
    if (!_spaces.isEmpty())
        if (const auto space = _spaces.space(record.number)) {
            if (plan.kind == UnitPlan::Kind::Point) return pair(value, *space, text);
            if (*space != ParameterSpaces::Pair{})
                note(unitrule::parameterShared, entity.attributes()[place].attribute->name());
            return false;
        }
    if (slot.form == Form::Parameters)
        return parameter(record, entity, entity.attributes()[place].attribute->name(), value, text);
    if (!convertPlain(slot, value, text)) return false;
    note(slot.isHidden ? unitrule::hiddenMeasure : unitrule::measure, entity.attributes()[place].attribute->name());
    return true;
}

bool UnitRewriter::convertPlain(const Slot& slot, std::string_view value, std::string& text) {
    switch (slot.form) {
    case Form::Numbers:
        return numbers(value, _ratios[slot.ratio], text);
    case Form::Whole:
        return wholes(value, _ratios[slot.ratio], text);
    case Form::Typed:
        return typedValues(value, text);
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

bool UnitRewriter::typedValues(std::string_view value, std::string& text) {
    RatioNumber ratio = stays;
    bool isWhole = false;
    return eachToken(value, text, [&](const Token& token, std::string& out) {
        if (token.kind == TokenKind::Keyword) {
            ratio = _ratios.ofKeyword(token.text);
            const auto* type = ratio == stays ? nullptr : _model.schema().definedType(token.text);
            isWhole = type != nullptr && type->resolved().kind() == sdai::TypeKind::Integer;
        }
        if (token.kind == TokenKind::Close) ratio = stays;
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
    for (const char* basis : {"BASISCURVE", "DIRECTRIX", "BASISSURFACE"}) {
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

bool UnitRewriter::hasMapUnit(std::string_view targetSystem) const {
    bool has = false;
    eachNumber(_model.file(), targetSystem,
               [&](std::uint32_t number) { has = !isUnset(parameterOf(_model, number, "MAPUNIT")); });
    return has;
}

bool UnitRewriter::mapConversion(const sdai::RecordView& record, const EntityDefinition& entity, std::string& text) {
    const int target = entity.attributeIndex("TARGETCRS");
    const bool isInMapUnit = target >= 0 && hasMapUnit(record.parameters[static_cast<std::size_t>(target)]);
    const int scale = entity.attributeIndex("SCALE");
    bool isChanged = false;
    text += record.keyword;
    for (std::size_t i = 0; i < record.parameters.size(); ++i) {
        text += i == 0 ? '(' : ',';
        const std::string_view value = record.parameters[i];
        bool isConverted = false;
        if (!isInMapUnit) {
            isConverted = convert(record, entity, i, text);
        } else if (static_cast<int>(i) == scale) {
            // Unset it is 1.
            isConverted = number(isUnset(value) ? "1." : value, _mapScale, text);
            if (isConverted) note(unitrule::mapScale, "SCALE");
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
