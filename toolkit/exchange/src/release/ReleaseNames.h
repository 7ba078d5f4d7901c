/// What entities and attributes of the source are called in the target: the version mapping document is asked first,
/// then the dictionary, then what the change logs of the releases name.
#pragma once

#include "release/Rebuilding.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/mapping/VersionMapping.h"

#include <optional>
#include <string>
#include <string_view>

namespace velkor::exchange {

class ReleaseNames {
public:
    ReleaseNames(const Releases& releases, const PlatformSetup* setup);

    /// `rule` is null for what keeps its name.
    struct Entity {
        const sdai::EntityDefinition* entity = nullptr;
        const ConversionRule* rule = nullptr;
    };
    /// Nothing of the target when it has no entity of the meaning, or none that can be instantiated.
    Entity entity(const sdai::EntityDefinition& source) const;
    /// Of supertypes the nearest that can be instantiated, for elements also a building element proxy.
    Entity supertype(const sdai::EntityDefinition& source) const;

    struct Slot {
        int index = -1;
        const ConversionRule* rule = nullptr;
    };
    /// Which explicit attribute of an instance of the source has the value of one of the target.
    Slot slot(const sdai::EntityDefinition& source, std::string_view attribute) const;
    /// The value that the document introduces for an attribute; empty for none.
    std::string introduced(const sdai::EntityDefinition& target, std::string_view attribute) const;

private:
    Entity plainElement(const sdai::EntityDefinition& source) const;
    Slot renamedSlot(const sdai::EntityDefinition& source, std::string_view attribute) const;

    const Releases& _releases;
    std::optional<VersionMapping> _document;
};

} // namespace velkor::exchange
