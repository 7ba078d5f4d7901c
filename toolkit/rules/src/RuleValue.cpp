#include "RuleValue.h"

#include <cmath>
#include <limits>

namespace velkor::rules {

Value::Value(double value) noexcept : _integer(0) {
    if (!std::isfinite(value)) return;
    _kind = ValueKind::Real;
    _real = value;
}

Value Value::ofInstance(std::uint32_t number) noexcept {
    Value value;
    value._kind = ValueKind::Instance;
    value._length = number;
    return value;
}

Value Value::ofText(ValueKind kind, std::string_view text) noexcept {
    Value value;
    if (text.size() > std::numeric_limits<std::uint32_t>::max()) return value;
    value._kind = kind;
    value._length = static_cast<std::uint32_t>(text.size());
    value._text = text.data();
    return value;
}

Value Value::withType(std::uint16_t type) const noexcept {
    Value value = *this;
    value._type = type;
    return value;
}

void hold(const Value& value) noexcept {
    if (value.kind() == ValueKind::Aggregate) {
        hold(value.aggregate().holding);
    } else if (value.kind() == ValueKind::Entity) {
        hold(value.entity().holding);
    }
}

} // namespace velkor::rules
