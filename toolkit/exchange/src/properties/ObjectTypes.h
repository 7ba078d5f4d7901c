/// The types that mappings know objects by.
#pragma once

#include "velkor/configuration/PlatformSetup.h"
#include "velkor/model/Progress.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velkor::exchange {

/// What objects of a kind are called.
struct ObjectKind {
    /// Empty when there is none.
    std::string plmType;
    /// The nearest first: PLM type, neutral identifier, entity and its supertypes.
    std::vector<std::string> names;
};

/// Products are classified as the services do it, by the document that is configured; without one, and for other
/// objects, the entity counts alone. A type is of the kind of its occurrences when they have one PLM type.
class ObjectTypes {
public:
    ObjectTypes(const sdai::Model& model, const PlatformSetup& setup, const Progress& progress);

    /// False when the caller has ended the work.
    bool isComplete() const noexcept { return _isComplete; }
    /// Of an instance by its number, counted from 0.
    std::uint32_t kindOf(std::uint32_t number);
    const ObjectKind& kind(std::uint32_t kind) const { return _kinds[kind]; }

private:
    std::uint32_t kindOf(const sdai::EntityDefinition* entity, const std::string& plmType,
                         const std::string& neutralId);
    void addTypes();

    const sdai::Model& _model;
    bool _isComplete = true;
    std::vector<ObjectKind> _kinds;
    std::unordered_map<std::string, std::uint32_t> _known;
    // By number.
    std::unordered_map<std::uint32_t, std::uint32_t> _ofObject;
};

} // namespace velkor::exchange
