/// What a definition wants of properties, made ready to hold many of them to it.
#pragma once

#include "velkor/propertysets/SetDefinition.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace velkor {

/// The type that a definition wants values to be of. Any will do when it names none, none that the release has, or an
/// entity for values and the other way round.
class WantedType {
public:
    WantedType(std::string_view name, const sdai::SchemaDefinition& schema);

    /// As the definition writes it.
    std::string_view name() const noexcept { return _name; }
    /// Whether a typed value may stand there, by its keyword in the file: the type itself, what is defined by it, an
    /// item of a select. A keyword that the schema does not know is no fault of the set.
    bool fits(std::string_view keyword);
    /// Whether an instance may be referred to.
    bool fits(const sdai::EntityDefinition& entity) const;

private:
    bool fits(const sdai::DefinedType& type) const;

    std::string_view _name;
    const sdai::SchemaDefinition& _schema;
    const sdai::Type* _type;
    // The keyword that fitted last, a view into the file.
    std::string_view _fitting;
};

/// The members of an enumeration; without any, everything is one.
class Enumerators {
public:
    explicit Enumerators(const std::vector<std::string>& members);

    /// Whether a String token of the file is one of them, letter by letter.
    bool contain(std::string_view token) const;
    /// The one that is probably meant; empty without one.
    const std::string& meant(std::string_view token, std::string_view text);

private:
    const std::vector<std::string>& _members;
    std::unordered_set<std::string_view> _texts;
    // The texts as the file writes them.
    std::vector<std::string> _written;
    std::unordered_set<std::string_view> _tokens;
    // By token.
    std::unordered_map<std::string_view, std::string> _meant;
};

struct JudgedProperty;

/// The properties that a set or a complex property has by its definition, by the names that a file writes.
class PropertyNames {
public:
    /// What is known of a name.
    struct Entry {
        /// Null when the definition has no property of the name.
        JudgedProperty* property = nullptr;
        /// The set that has been counted last, and the number of what had the name there first.
        std::uint64_t set = 0;
        std::uint32_t member = 0;
        bool isRepeated = false;
        bool isFilled = false;
        /// The name that is probably meant, once it has been asked for.
        std::optional<std::string> meant = {};
    };

    /// Without definitions no name is known. They must outlive it.
    PropertyNames(const std::vector<PropertyDefinition>* definitions, const sdai::SchemaDefinition& schema);
    PropertyNames(const PropertyNames&) = delete;
    PropertyNames& operator=(const PropertyNames&) = delete;
    ~PropertyNames();

    /// By the name as it stands in the file; null for what is no name. An entry stays where it is.
    Entry* find(std::string_view name);
    /// The name that is probably meant by one that is not known; empty without one.
    const std::string& meant(Entry& entry, std::string_view name) const;

private:
    const std::vector<PropertyDefinition>* _definitions;
    const sdai::SchemaDefinition& _schema;
    std::unordered_map<const PropertyDefinition*, std::unique_ptr<JudgedProperty>> _properties;
    std::unordered_map<std::string, Entry> _entries;
    // As the file writes the names, some of them in several ways.
    std::unordered_map<std::string_view, Entry*> _written;
};

struct JudgedProperty {
    JudgedProperty(const PropertyDefinition& wanted, const sdai::SchemaDefinition& schema);

    const PropertyDefinition& definition;
    WantedType value;
    /// Of a table.
    WantedType defining;
    Enumerators enumerators;
    /// Of a complex property.
    PropertyNames members;
    /// Sets that have been counted last as those that have it filled, and wrong.
    std::uint64_t filledIn = 0;
    std::uint64_t wrongIn = 0;
};

} // namespace velkor
