/// What changed from one schema to another.
///
///     const DictionaryDiff diff = compareDictionaries(*before, *after);
///     for (const auto& entity : diff.changedEntities) show(entity.name, entity.addedAttributes);
#pragma once

#include "velkor/rules/RuleCatalogue.h"
#include "velkor/sdai/Dictionary.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor {

struct DictionaryDiff {
    /// Something with a description that is another in the second schema.
    struct Change {
        std::string name;
        std::string before;
        std::string after;
    };
    /// Something that only one of the schemas has.
    struct Item {
        std::string name;
        std::string description;
    };
    /// What an entity declares itself; inherited changes stand with the supertype.
    struct Entity {
        std::string_view name;
        /// "supertype", "abstract", "uniqueness rules".
        std::vector<Change> properties;
        std::vector<Item> addedAttributes;
        std::vector<Item> removedAttributes;
        std::vector<Change> changedAttributes;
        /// The attributes in both stand in another order.
        bool reordered = false;
    };
    /// A type that changed.
    struct Type {
        std::string_view name;
        /// "enumeration", "select" or "type": what it is in the second schema.
        const char* kind = "type";
        /// Enumerators or select items.
        std::vector<std::string> added;
        std::vector<std::string> removed;
        /// The enumerators in both stand in another order: positions cannot be carried from one
        /// schema to the other. The order of a select's items means nothing.
        bool reordered = false;
        /// Set when neither is an enumeration or neither a select.
        std::vector<Change> definition;
    };

    /// A rule that stands under another label in the second schema.
    struct RenamedRule {
        std::string before;
        std::string after;
    };

    std::vector<std::string_view> addedEntities;
    std::vector<std::string_view> removedEntities;
    std::vector<Entity> changedEntities;
    std::vector<std::string_view> addedTypes;
    std::vector<std::string_view> removedTypes;
    std::vector<Type> changedTypes;
    /// Those of entities and types that only one schema has as well. Line breaks, letter case and the schema's name in
    /// qualified names make no difference between two rules.
    std::vector<RuleFacts> addedRules;
    std::vector<RuleFacts> removedRules;
    /// Of the same owner and label; before and after are EXPRESS texts.
    std::vector<Change> changedRules;
    std::vector<RenamedRule> renamedRules;
};

/// Everything in alphabetical order; names are views into the schemas' texts. In
/// proportion to the two schemas.
VELKOR_TOOLKIT_API DictionaryDiff compareDictionaries(const sdai::SchemaDefinition& before,
                                                      const sdai::SchemaDefinition& after);

/// An attribute as EXPRESS writes it behind its name: "OPTIONAL IFCLABEL"; a derived one begins
/// with "DERIVED".
VELKOR_TOOLKIT_API std::string attributeText(const sdai::Attribute& attribute);

} // namespace velkor
