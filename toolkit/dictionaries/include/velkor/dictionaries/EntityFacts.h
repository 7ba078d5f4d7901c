/// What a dictionary says about one entity, inherited attributes included, and which entity was probably meant.
///
///     const sdai::EntityDefinition* entity = schema.entity("IfcWall");
///     if (entity != nullptr) show(entityFacts(*entity));
///     else suggest(nearestEntities(schema, "IfcWall"));
#pragma once

#include "velkor/rules/RuleCatalogue.h"
#include "velkor/sdai/Dictionary.h"
#include "velkor/ToolkitExport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

/// Names are views into the dictionary and live as long as it.
struct EntityFacts {
    /// An attribute as instances hold it.
    struct Attribute {
        std::string_view name;
        /// The entity that declares it.
        std::string_view owner;
        /// As EXPRESS writes it, without OPTIONAL.
        std::string type;
        bool isOptional = false;
        bool isDerived = false;
        /// Place among the values of an instance, counted from 1; 0 when it has none there.
        std::size_t position = 0;
    };
    /// A UNIQUE rule of the entity.
    struct UniquenessRule {
        std::string label;
        std::vector<std::string_view> attributes;
    };

    std::string_view schema;
    std::string_view name;
    bool isAbstract = false;
    /// From the nearest to the root.
    std::vector<std::string_view> supertypes;
    /// One level down.
    std::vector<std::string_view> subtypes;
    /// In the order of an instance's values; behind them those that have no value there.
    std::vector<Attribute> attributes;
    /// Those that the dictionary carries.
    std::vector<UniquenessRule> uniquenessRules;
    /// All that instances have to keep, those of the root first.
    std::vector<RuleFacts> rules;
};

/// In proportion to the attributes of the entity and the depth of its tree.
VELKOR_TOOLKIT_API EntityFacts entityFacts(const sdai::EntityDefinition& entity);

/// Up to `most` entities whose names are likely meant by a name that is none, the likeliest first. "IFC" may be left
/// out. Compares with every entity of the schema.
VELKOR_TOOLKIT_API std::vector<std::string> nearestEntities(const sdai::SchemaDefinition& schema, std::string_view name,
                                                            std::size_t most = 5);

/// The dictionary that a person means: by its name, by what files write ("IFC2X3_TC1") or by a short form ("2x3",
/// "4x3"). Empty when there is none.
VELKOR_TOOLKIT_API std::string releaseMeant(std::string_view text);

} // namespace velkor
