/// The custom mapping and the PLM attribute mapping, asked for many names.
///
///     const auto mapping = TypeMapping::load(setup, {.customMapping = true});
///     if (const auto target = mapping->custom("Building_Wall", true, "BaseQuantities", "NominalWidth")) use(*target);
#pragma once

#include "velkor/configuration/PlatformSetup.h"
#include "velkor/ToolkitExport.h"

#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor {

class VELKOR_TOOLKIT_API TypeMapping {
public:
    /// Which documents are read.
    struct Wanted {
        bool customMapping = false;
        bool plmAttributes = false;
    };
    /// Where a property goes.
    struct Target {
        std::string set;
        std::string property;
        bool operator==(const Target&) const = default;
    };

    /// Reads the documents that are wanted. An error is a line that says why there is none.
    static tl::expected<TypeMapping, std::string> load(const PlatformSetup& setup, Wanted wanted);

    /// What is used in place of a property of a set for a PLM type when a file is read or written. What the document
    /// leaves empty is what was asked for.
    std::optional<Target> custom(std::string_view plmType, bool isExport, std::string_view set,
                                 std::string_view property) const;
    /// The set and property as which an attribute of a PLM type is written.
    std::optional<Target> plmAttribute(std::string_view plmType, std::string_view attribute) const;

private:
    VELKOR_TOOLKIT_LOCAL TypeMapping() = default;
};

} // namespace velkor
