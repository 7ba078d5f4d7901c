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
    /// The object, or its type.
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

/// Whether a set may be on an object.
enum class SetFit : std::uint8_t {
    Applies,
    WrongClass,          ///< of an entity that the set does not apply to
    WrongPredefinedType, ///< of the right entity, but not of the predefined type
    WrongTemplate,       ///< on a type where occurrences are meant, and the other way round
};

/// The definition and the schema must outlive it.
class VELKOR_TOOLKIT_API SetApplicability {
public:
    /// Of a definition, by the dictionary of a release.
    SetApplicability(const SetDefinition& definition, const sdai::SchemaDefinition& schema);

    /// By the object's own entity or its type's; a complex instance, whose entity is null, is not judged. A class goes
    /// for its subtypes and for the types of its objects; an object of a release that has no entity of its own for a
    /// class, only a type (a pump of IFC2X3), counts as that class. A predefined type counts on the object or on its
    /// type.
    SetFit fit(const SetBearer& bearer) const;
    /// Of objects of an entity, whatever predefined type they have.
    bool mayApplyTo(const sdai::EntityDefinition& entity) const;

private:
    /// A class as the dictionary has it; what is null matches nothing.
    struct Class {
        std::string_view predefinedType;
        /// Its objects.
        const sdai::EntityDefinition* entity = nullptr;
        /// The types that describe them.
        std::vector<const sdai::EntityDefinition*> types;
        /// What stands for its objects in a release that knows the class by its type alone; without its subtypes.
        const sdai::EntityDefinition* standIn = nullptr;
    };
    VELKOR_TOOLKIT_LOCAL void addClass(const ApplicableClass& named);
    VELKOR_TOOLKIT_LOCAL bool isType(const sdai::EntityDefinition& entity) const;
    VELKOR_TOOLKIT_LOCAL bool matches(const Class& applicable, const SetBearer& bearer) const;
    VELKOR_TOOLKIT_LOCAL bool describes(const Class& applicable, const sdai::EntityDefinition& type) const;
    VELKOR_TOOLKIT_LOCAL bool fitsTemplate(const sdai::EntityDefinition& entity) const;

    TemplateType _templateType;
    const sdai::SchemaDefinition& _schema;
    std::vector<Class> _classes;
    const sdai::EntityDefinition* _typeObject;
    const sdai::EntityDefinition* _performanceHistory;
};

} // namespace velkor
