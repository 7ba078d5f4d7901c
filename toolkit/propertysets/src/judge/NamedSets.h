/// What a model's sets of one name have in common, so that it is asked once.
#pragma once

#include "judge/JudgedProperty.h"
#include "judge/UnknownNames.h"
#include "uses/SetFits.h"
#include "velkor/propertysets/PropertySetCheck.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velkor {

struct NamedSet {
    enum class State : std::uint8_t {
        Undefined,  ///< there is no definition
        Misnamed,   ///< nor may a set without one have such a name
        Defined,    ///< by the release, or by a file of the user
        Custom,     ///< one of the user's own sets
        Unreadable, ///< the definition's file cannot be read
    };

    /// As findings repeat it.
    std::string name;
    /// False for sets that have no name, or what is too long for one.
    bool isName = false;
    State state = State::Undefined;
    /// Null unless it is defined.
    const SetDefinition* definition = nullptr;
    std::optional<UnknownName> unknown = {};
    std::optional<SetFits> fits = {};
    PropertyNames properties;
    SetSummary summary = {};

    NamedSet(std::string shownName, const SetDefinition* itsDefinition, const sdai::SchemaDefinition& schema);
};

class NamedSets {
public:
    NamedSets(const sdai::Model& model, const SetLibrary& library);

    const SetCatalogue& catalogue() const noexcept { return _catalogue; }
    /// By the name as it stands in the file. Stays where it is.
    NamedSet& of(std::string_view name);

    template <class Take>
    void each(Take take) {
        for (auto& [name, named] : _byName) take(*named);
    }

private:
    std::unique_ptr<NamedSet> made(const std::string& name, bool isName);

    const sdai::SchemaDefinition& _schema;
    const SetCatalogue& _catalogue;
    UnknownNames _unknownNames;
    std::unordered_map<std::string, std::unique_ptr<NamedSet>> _byName;
    // As the file writes it.
    std::unordered_map<std::string_view, NamedSet*> _byText;
};

} // namespace velkor
