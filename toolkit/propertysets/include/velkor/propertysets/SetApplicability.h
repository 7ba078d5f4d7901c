/// What a set applies to, against the dictionary of a release.
#pragma once

#include "velkor/propertysets/SetDefinition.h"
#include "velkor/sdai/Dictionary.h"
#include "velkor/ToolkitExport.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace velkor {

/// What has a set, as far as it matters here.
struct SetBearer {
    struct Part {
        /// Null when there is none.
        const sdai::EntityDefinition* entity = nullptr;
        /// The enumerator, "USERDEFINED" included; empty when it is unset or the entity has no such attribute.
        std::string_view predefinedType = {};
        /// ObjectType of an occurrence, ElementType (or ProcessType, ResourceType) of a type; empty when unset.
        std::string_view objectType = {};
    };
    Part object;
    /// That of the object, where it has one.
    Part type = {};
};

enum class SetFit : std::uint8_t {
    Applies,
    WrongClass,          ///< of an entity that the set does not apply to
    WrongPredefinedType, ///< of the right entity, but not of the predefined type
    WrongTemplate,       ///< on a type where occurrences are meant, and the other way round
};

/// The definition must outlive it.
class VELKOR_TOOLKIT_API SetApplicability {
public:
    SetApplicability(const SetDefinition& definition, const sdai::SchemaDefinition& schema);

    /// By the object's own entity or its type's. A class goes for its subtypes and for the types of its objects; an
    /// object of a release that has no entity of its own for a class, only a type (a pump of IFC2X3), counts as that
    /// class. A predefined type counts on the object or on its type.
    SetFit fit(const SetBearer& bearer) const;
    /// Of objects of an entity, whatever predefined type they have.
    bool mayApplyTo(const sdai::EntityDefinition& entity) const;

private:
    struct Class {
        const ApplicableClass* named;
        const sdai::EntityDefinition* entity;
        /// What describes its objects: IFCWALLTYPE for IFCWALL, or what it describes itself.
        const sdai::EntityDefinition* type;
        /// The supertype that stands for it in a release that knows it by its type alone.
        const sdai::EntityDefinition* occurrence;
    };
    VELKOR_TOOLKIT_LOCAL SetFit fitTo(const Class& applicable, const SetBearer& bearer) const;

    const SetDefinition& _definition;
    std::vector<Class> _classes;
    const sdai::EntityDefinition* _typeObject;
    const sdai::EntityDefinition* _performanceHistory;
};

} // namespace velkor
