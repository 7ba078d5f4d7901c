#include "uses/BearerKinds.h"

#include "records/Record.h"
#include "records/SharedText.h"

#include <utility>

namespace velkor {

namespace {

// Those of materials are categories.
constexpr const char* objectTypeAttributes[] = {"OBJECTTYPE", "ELEMENTTYPE", "PROCESSTYPE", "RESOURCETYPE", "CATEGORY"};
constexpr std::string_view objectEntity = "IFCOBJECTDEFINITION";

std::string_view predefinedTypeOf(const Record& object) {
    const sdai::Primitive type = object.attribute("PREDEFINEDTYPE");
    // Transport elements of IFC2X3 call theirs otherwise.
    return (type.declaredType() != nullptr ? type : object.attribute("OPERATIONTYPE")).asEnumeration().text();
}

// Nothing where the predefined type says it. A text too long for a name is none.
std::string objectTypeOf(const Record& object, std::string_view predefinedType) {
    if (!predefinedType.empty() && predefinedType != "USERDEFINED") return {};
    for (const char* attribute : objectTypeAttributes) {
        if (const std::string_view text = object.text(attribute); !text.empty()) return nameText(text);
    }
    return {};
}

template <class Kind, class Hash, class KindOf>
std::vector<BearerKinds::Alike<Kind>> alike(SetUses::Objects objects, KindOf kindOf) {
    std::vector<BearerKinds::Alike<Kind>> result;
    if (objects.size() == 1) {
        result.push_back({kindOf(objects.front()), {objects.front(), 1}});
        return result;
    }
    std::unordered_map<Kind, std::size_t, Hash> places;
    for (const ObjectIndex object : objects) {
        const auto [place, isNew] = places.try_emplace(kindOf(object), result.size());
        if (isNew) result.push_back({place->first, {}});
        result[place->second].use.add({object, 1});
    }
    return result;
}

} // namespace

BearerDetail::BearerDetail(Record& record, const SetUses& uses, ObjectIndex object) : kind(uses.kindOf(object)) {
    record.read(uses.numberOf(object));
    predefinedType = predefinedTypeOf(record);
    objectType = objectTypeOf(record, predefinedType);
    isOpen = objectType.empty() && kind.first != nullptr && !kind.first->isKindOf(objectEntity);
    if (uses.typeOf(object) == SetUses::none) return;
    record.read(uses.typeOf(object));
    typePredefinedType = predefinedTypeOf(record);
    typeObjectType = objectTypeOf(record, typePredefinedType);
}

SetBearer BearerDetail::bearer() const noexcept {
    return {{kind.first, predefinedType, objectType}, {kind.second, typePredefinedType, typeObjectType}};
}

std::size_t BearerDetailHash::operator()(const BearerDetail& detail) const noexcept {
    const std::hash<std::string_view> hash;
    std::size_t result = ObjectKindHash()(detail.kind);
    for (const std::string_view text : {detail.predefinedType, std::string_view(detail.objectType),
                                        detail.typePredefinedType, std::string_view(detail.typeObjectType)})
        result = result * 31 + hash(text);
    return result;
}

std::span<const BearerKinds::Alike<ObjectKind>> BearerKinds::kindsOf(std::uint32_t number) {
    const auto kindOf = [&](ObjectIndex object) { return _uses.kindOf(object); };
    const SetUses::Objects objects = _uses.group(number);
    if (objects.size() == 1) return _kinds.single = alike<ObjectKind, ObjectKindHash>(objects, kindOf);
    auto [known, isNew] = _kinds.several.try_emplace(number);
    if (isNew) known->second = alike<ObjectKind, ObjectKindHash>(objects, kindOf);
    return known->second;
}

std::span<const BearerKinds::Alike<BearerDetail>> BearerKinds::detailsOf(std::uint32_t number) {
    const auto kindOf = [&](ObjectIndex object) { return BearerDetail(_record, _uses, object); };
    const SetUses::Objects objects = _uses.group(number);
    if (objects.size() == 1) return _details.single = alike<BearerDetail, BearerDetailHash>(objects, kindOf);
    auto [known, isNew] = _details.several.try_emplace(number);
    if (isNew) known->second = alike<BearerDetail, BearerDetailHash>(objects, kindOf);
    return known->second;
}

} // namespace velkor
