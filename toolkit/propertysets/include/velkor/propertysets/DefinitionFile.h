/// Definition files: XML in the published format (PSD), a set in each. Read as any release publishes them, written as
/// the services and people want them: the facts alone, one way for every release.
///
///     const auto reading = readDefinition(bytes, "Pset_WallCommon.xml");
///     if (reading) use(reading->definition);
#pragma once

#include "velkor/propertysets/SetDefinition.h"
#include "velkor/sdai/Problem.h"
#include "velkor/ToolkitExport.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::xml {
class XmlEvents;
} // namespace velkor::xml

namespace velkor {

/// What is odd about a definition, and what is done about it.
struct DefinitionFault {
    /// In the definition file; 0 when the whole is meant.
    int line = 0;
    /// The kind: "class-with-schema", "type-missing", "enumerator-repeated" and so on.
    std::string kind;
    /// What is found and what becomes of it: `"IFCSHAREDBLDGELEMENTS/IfcBeam": read as IfcBeam`.
    std::string text;

    bool operator==(const DefinitionFault&) const = default;
};

/// A kind of fault and what it means, in one sentence.
struct DefinitionFaultKind {
    std::string_view name;
    std::string_view meaning;
    /// True when what was written does not count.
    bool isDropped = false;
};
/// All there are.
VELKOR_TOOLKIT_API std::span<const DefinitionFaultKind> definitionFaultKinds() noexcept;
/// Null when there is none of the name.
VELKOR_TOOLKIT_API const DefinitionFaultKind* definitionFaultKind(std::string_view name) noexcept;

/// Of a definition file, which says in a few kilobytes what it has to say. A larger one is refused.
inline constexpr std::size_t mostDefinitionBytes = std::size_t{4} << 20U;

/// A definition, and what is odd in its file.
struct DefinitionReading {
    SetDefinition definition;
    /// In the order of the file.
    std::vector<DefinitionFault> faults;
};

/// `path` is what errors name, with the line, and what a set without a name is named after. Fails for what is not
/// well-formed and for what is no definition of a set, with what was expected; oddities are faults.
VELKOR_TOOLKIT_API tl::expected<DefinitionReading, sdai::Problem> readDefinition(std::string_view bytes,
                                                                                 const std::string& path);

/// The same with a parser of one's own, which makes many definitions quicker to read.
VELKOR_TOOLKIT_API tl::expected<DefinitionReading, sdai::Problem>
readDefinition(xml::XmlEvents& events, std::string_view bytes, const std::string& path);

/// A file that reads back as the same definition, for a release ("IFC4"). Of enumerations the members are EnumItem
/// alone: the validation service takes every Name but the first for that of a property.
VELKOR_TOOLKIT_API std::string writtenDefinition(const SetDefinition& definition, std::string_view release);

/// What of a definition its release does not know or contradicts, against the dictionary: classes, predefined types,
/// value types, reference entities, unit types that do not fit. No line. What is to be left out or mended of it is
/// changed in `definition`, and the text says so.
VELKOR_TOOLKIT_API std::vector<DefinitionFault> mendDefinition(SetDefinition& definition, std::string_view release);

} // namespace velkor
