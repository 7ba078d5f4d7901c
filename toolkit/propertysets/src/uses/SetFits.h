/// Which objects have a set that is not for them, of the sets of one name.
#pragma once

#include "uses/BearerKinds.h"

#include <array>
#include <unordered_map>

namespace velkor {

struct Misfits {
    SetUse notApplicable;
    /// The first of them is of the right class, but not of the predefined type.
    bool isPredefinedType = false;
    SetUse wrongTemplate;

    void add(const Misfits& more) noexcept;
};

class SetFits {
public:
    /// Both must outlive it.
    SetFits(const SetDefinition& definition, const sdai::SchemaDefinition& schema);

    /// Of the objects of a group.
    Misfits misfits(std::uint32_t group, BearerKinds& bearers);

private:
    Misfits found(std::uint32_t group, BearerKinds& bearers);
    SetFit fitOf(const ObjectKind& kind, ObjectIndex object, const SetUses& uses);
    SetFit fitOfGenericType(std::uint32_t type, const SetUses& uses) const;
    SetFit fitOf(const BearerDetail& detail);

    SetApplicability _applicability;
    TemplateType _templateType;
    // Entities of types that say nothing about the class of their objects.
    std::array<const sdai::EntityDefinition*, 2> _genericTypes;
    // Whatever their predefined types are.
    std::unordered_map<ObjectKind, SetFit, ObjectKindHash> _kinds;
    // Of kinds for which those count.
    std::unordered_map<BearerDetail, SetFit, BearerDetailHash> _details;
    // Of those with several objects, by the number of the group: it may have many sets of the name.
    std::unordered_map<std::uint32_t, Misfits> _groups;
};

} // namespace velkor
