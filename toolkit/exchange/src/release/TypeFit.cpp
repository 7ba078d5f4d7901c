#include "release/TypeFit.h"

#include <algorithm>

namespace velkor::exchange {

using sdai::Type;
using sdai::TypeKind;

bool TypeFit::isRaw(const Type& from, const Type& to) {
    // A type that contains itself is what the rest of it is.
    const auto [found, isNew] = _known.try_emplace(std::pair(&from, &to), true);
    if (!isNew) return found->second;
    const bool isFit = findRaw(from, to);
    return _known[std::pair(&from, &to)] = isFit;
}

void TypeFit::lookAtReferences(bool isOn) {
    _known.clear();
    _looksAtReferences = isOn;
}

bool TypeFit::findRaw(const Type& fromType, const Type& toType) {
    const Type& from = fromType.resolved();
    const Type& to = toType.resolved();
    if (const auto* entity = from.asEntity()) return !_looksAtReferences && _plan.referencesFit(*entity, to);
    if (const auto* select = from.asSelect()) return isRawSelect(*select, to);
    if (const auto* aggregate = from.asAggregate()) {
        const auto* wanted = to.asAggregate();
        const auto isWithin = [](int upper, int limit) { return limit < 0 || (upper >= 0 && upper <= limit); };
        const auto isUnique = [](const sdai::AggregateType& type) {
            return type.kind() == TypeKind::Set || type.hasUniqueElements();
        };
        return wanted != nullptr && wanted->lowerBound() <= aggregate->lowerBound() &&
               (!isUnique(*wanted) || isUnique(*aggregate)) &&
               isWithin(aggregate->upperBound(), wanted->upperBound()) &&
               isRaw(aggregate->element(), wanted->element());
    }
    if (const auto* enumeration = from.asEnumeration()) {
        const auto* wanted = to.asEnumeration();
        return wanted != nullptr && std::ranges::all_of(enumeration->values(), [&](std::string_view value) {
                   return wanted->position(value) >= 0;
               });
    }
    if (from.kind() == TypeKind::Boolean && to.kind() == TypeKind::Logical) return true;
    if (from.kind() != to.kind()) return false;
    const int limit = to.asSimple()->width();
    const int width = from.asSimple()->width();
    return from.kind() == TypeKind::Real || limit == 0 || (width > 0 && width <= limit);
}

bool TypeFit::isRawSelect(const sdai::SelectType& from, const Type& to) {
    const auto* wanted = to.asSelect();
    if (wanted == nullptr) return false;
    return std::ranges::all_of(from.items(), [&](const Type* item) {
        if (const auto* defined = item->asDefined(); defined != nullptr && defined->resolved().asSelect() == nullptr) {
            const auto* same = _plan.releases().target.definition().definedType(defined->name());
            return same != nullptr && wanted->accepts(*same) && isRaw(defined->underlying(), same->underlying());
        }
        return isRaw(*item, to);
    });
}

} // namespace velkor::exchange
