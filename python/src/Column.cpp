#include "Column.h"

#include "velkor/sdai/Model.h"

#include <array>
#include <charconv>
#include <limits>

namespace velkor::python {

namespace {

// Deeper than any type of a release.
constexpr int mostNested = 32;
constexpr double unsetReal = std::numeric_limits<double>::quiet_NaN();
constexpr std::int8_t unsetLogical = -1;
constexpr std::int32_t unsetCode = -1;

template <class Number>
std::string inDigits(Number number) {
    std::array<char, 32> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr};
}

std::string referenceTo(std::int64_t id) {
    return inDigits(id).insert(0, 1, '#');
}

} // namespace

Column::Column(bool isList) : _isList(isList), _known(0, Hash{this}, Equal{this}) {
    if (isList) _offsets.push_back(0);
}

void Column::reserve(std::size_t rows) {
    _valid.reserve(rows);
    if (_isList) _offsets.reserve(rows + 1);
}

std::string_view Column::text(std::size_t code) const noexcept {
    const auto begin = static_cast<std::size_t>(_textOffsets[code]);
    return std::string_view(_texts).substr(begin, static_cast<std::size_t>(_textOffsets[code + 1]) - begin);
}

void Column::addRow(const sdai::Primitive& value) {
    if (!value.isSet()) {
        if (!_isList) addUnset();
        return endRow(false);
    }
    const bool isGood = _isList ? addMembers(value) : addValue(value);
    if (!isGood) {
        ++_damaged;
        if (!_isList) addUnset();
    }
    endRow(isGood);
}

void Column::addReference(std::uint64_t id) {
    addInteger(static_cast<std::int64_t>(id), Kind::Reference);
    endRow(true);
}

void Column::addText(std::string_view text) {
    if (takes(Kind::Text)) _codes.push_back(codeOf(text));
    ++_valueCount;
    endRow(true);
}

void Column::endRow(bool isValid) {
    _valid.push_back(isValid);
    if (_isList) _offsets.push_back(static_cast<std::int64_t>(_valueCount));
}

bool Column::addMembers(const sdai::Primitive& value) {
    const sdai::Aggregate aggregate = value.asAggregate();
    if (aggregate.isNull()) return false;
    bool isGood = true;
    for (const sdai::Primitive member : aggregate) {
        if (member.isSet() && addValue(member)) continue;
        isGood = isGood && !member.isSet();
        addUnset();
    }
    return isGood;
}

bool Column::addValue(const sdai::Primitive& value, int depth) {
    const sdai::Type* declared = value.declaredType();
    if (declared == nullptr || depth > mostNested) return false;
    const std::string_view encoded = value.encoded();
    const auto addWhole = [&](const auto& given, auto add) {
        if (given) add(*given);
        return given.has_value();
    };
    switch (declared->resolved().kind()) {
    case sdai::TypeKind::Integer:
        return addWhole(value.asInteger(), [&](std::int64_t number) { addInteger(number, Kind::Integer); });
    case sdai::TypeKind::Real:
        return addWhole(value.asReal(), [&](double number) { addReal(number); });
    case sdai::TypeKind::Boolean:
    case sdai::TypeKind::Logical:
        return addWhole(value.asLogical(), [&](sdai::Logical logical) { addLogical(logical); });
    case sdai::TypeKind::Select:
        return addSelected(value, depth);
    case sdai::TypeKind::Entity: {
        const std::uint64_t id = encoded.starts_with('#') ? sdai::decodeInstanceName(encoded) : 0;
        if (id == 0 || value.asInstance() == nullptr) return false;
        addInteger(static_cast<std::int64_t>(id), Kind::Reference);
        return true;
    }
    default:
        break;
    }
    std::string text;
    switch (declared->resolved().kind()) {
    case sdai::TypeKind::String:
        text = value.asString();
        break;
    case sdai::TypeKind::Binary:
        text = value.asBinary();
        break;
    case sdai::TypeKind::Enumeration:
        text = value.asEnumeration().text();
        break;
    default:
        return false;
    }
    if (text.empty() && !encoded.starts_with('\'')) return false;
    if (takes(Kind::Text)) _codes.push_back(codeOf(text));
    ++_valueCount;
    return true;
}

bool Column::addSelected(const sdai::Primitive& value, int depth) {
    if (value.encoded().starts_with('#')) {
        const DXSdaiAppInstance* instance = value.asInstance();
        if (instance == nullptr) return false;
        addInteger(static_cast<std::int64_t>(instance->id()), Kind::Reference);
        return true;
    }
    const sdai::Select select = value.asSelect();
    return !select.isNull() && select.chosenType() != nullptr && select.underlyingValue().isSet() &&
           addValue(select.underlyingValue(), depth + 1);
}

void Column::addUnset() {
    switch (_kind) {
    case Kind::Empty:
        break;
    case Kind::Real:
        _reals.push_back(unsetReal);
        break;
    case Kind::Integer:
    case Kind::Reference:
        _integers.push_back(0);
        break;
    case Kind::Logical:
        _logicals.push_back(unsetLogical);
        break;
    case Kind::Text:
        _codes.push_back(unsetCode);
        break;
    }
    ++_valueCount;
}

void Column::addReal(double value) {
    if (takes(Kind::Real))
        _reals.push_back(value);
    else
        _codes.push_back(codeOf(inDigits(value)));
    ++_valueCount;
}

void Column::addInteger(std::int64_t value, Kind kind) {
    if (takes(kind))
        _integers.push_back(value);
    else if (_kind == Kind::Real)
        _reals.push_back(static_cast<double>(value));
    else
        _codes.push_back(codeOf(kind == Kind::Reference ? referenceTo(value) : inDigits(value)));
    ++_valueCount;
}

void Column::addLogical(sdai::Logical value) {
    const auto number = static_cast<std::int8_t>(value);
    if (takes(Kind::Logical))
        _logicals.push_back(number);
    else
        _codes.push_back(codeOf(number == 0 ? "FALSE" : number == 1 ? "TRUE" : "UNKNOWN"));
    ++_valueCount;
}

/// Whether values of a kind are kept as they are, once the column has become what can hold them.
bool Column::takes(Kind kind) {
    if (_kind == kind) return true;
    if (_kind == Kind::Empty || (_kind == Kind::Integer && kind == Kind::Real))
        become(kind);
    else if (!(_kind == Kind::Real && kind == Kind::Integer) && _kind != Kind::Text)
        become(Kind::Text);
    return _kind == kind;
}

void Column::become(Kind kind) {
    const std::size_t count = _valueCount;
    if (_kind == Kind::Empty) {
        _kind = kind;
        _valueCount = 0;
        while (_valueCount < count) addUnset();
        return;
    }
    // An integer that is unset is told by its row alone; of lists nothing else is mixed.
    const auto isUnset = [&](std::size_t place) {
        return _kind == Kind::Real      ? _reals[place] != _reals[place]
               : _kind == Kind::Logical ? _logicals[place] == unsetLogical
                                        : !_isList && _valid[place] == 0;
    };
    for (std::size_t place = 0; place < count; ++place) {
        if (kind == Kind::Real)
            _reals.push_back(isUnset(place) ? unsetReal : static_cast<double>(_integers[place]));
        else
            _codes.push_back(isUnset(place) ? unsetCode : codeOf(written(place)));
    }
    _kind = kind;
    if (kind == Kind::Text) std::vector<double>().swap(_reals);
    std::vector<std::int64_t>().swap(_integers);
    std::vector<std::int8_t>().swap(_logicals);
}

std::string Column::written(std::size_t place) const {
    switch (_kind) {
    case Kind::Real:
        return inDigits(_reals[place]);
    case Kind::Integer:
        return inDigits(_integers[place]);
    case Kind::Reference:
        return referenceTo(_integers[place]);
    case Kind::Logical:
        return _logicals[place] == 0 ? "FALSE" : _logicals[place] == 1 ? "TRUE" : "UNKNOWN";
    default:
        return {};
    }
}

std::int32_t Column::codeOf(std::string_view text) {
    if (const auto known = _known.find(text); known != _known.end()) return *known;
    const auto code = static_cast<std::int32_t>(textCount());
    _texts += text;
    _textOffsets.push_back(static_cast<std::int64_t>(_texts.size()));
    _known.insert(code);
    return code;
}

void Column::finish() {
    if (_kind == Kind::Empty) become(Kind::Real);
    decltype(_known)(0, Hash{this}, Equal{this}).swap(_known);
}

} // namespace velkor::python
