/// The definitions of property sets and quantity sets, as the validation service knows them, and what is needed
/// beside that to tell a person what was probably meant. What was asked once is remembered.
#pragma once

#include "velkor/sdai/Dictionary.h"
#include "velkor/text/QORUnicodeString.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class DXSdaiAppInstance;

namespace velkor {

class NamedDefinition {
public:
    enum class State : std::uint8_t {
        Undefined,  ///< there is no definition
        Defined,    ///< the service has read it
        Custom,     ///< one of the user's own sets
        Unreadable, ///< the definition's file cannot be read
    };

    /// `path` of the definition's file is empty without one.
    NamedDefinition(std::string_view name, std::string path, State state);

    const std::string& name() const noexcept { return _name; }
    State state() const noexcept { return _state; }

    /// Whether the set applies to an object: to its entity or to what a type object describes. An object of a release
    /// that has no entity of its own for a class, only a type (a pump of IFC2X3), counts as that class.
    bool appliesTo(DXSdaiAppInstance* object) const;

    /// Whether it has a property of this name, as the file of the model writes it.
    bool hasProperty(std::string_view propertyName) const;

    /// The classes and properties, as the definition writes them.
    const std::vector<std::string>& classes() const { return contents().classes; }
    const std::vector<std::string>& properties() const { return contents().properties; }

private:
    struct Contents {
        std::vector<std::string> classes;
        std::vector<std::string> properties;
    };
    const Contents& contents() const;
    bool namesClass(std::string_view className, DXSdaiAppInstance* object) const;
    bool standsForAType(const sdai::EntityDefinition& entity) const;

    std::string _name;
    QORUnicodeString _setName;
    std::string _path;
    State _state;
    mutable std::optional<Contents> _contents;
};

/// All definitions that the runtime view has. The validation service takes the first runtime view that it
/// sees for the life of the process.
class SetDefinitions {
public:
    SetDefinitions();

    bool empty() const noexcept { return _paths.empty(); }
    /// The definition of a name, which stays where it is.
    NamedDefinition& find(std::string_view setName);
    /// The one defined name that a standard name is probably meant to be: letter case or one letter differs.
    /// Empty when there is none, and for names that do not begin as those of the standard do.
    std::string likelyName(std::string_view setName) const;

private:
    // By name, which is that of the file without its ending.
    std::unordered_map<std::string, std::string> _paths;
    std::unordered_map<std::string, NamedDefinition> _asked;
};

} // namespace velkor
