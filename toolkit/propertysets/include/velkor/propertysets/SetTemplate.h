/// Definitions as an IFC file with their templates (IfcPropertySetTemplate), for programs that take those.
///
///     const auto file = setTemplates({set}, "IFC4", {"wall.ifc", "2026-01-31T12:00:00"});
///     if (file) output.write(file->text);
#pragma once

#include "velkor/propertysets/SetDefinition.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor {

/// A file with templates.
struct SetTemplateFile {
    /// ISO 10303-21: a project that declares a template for each set.
    std::string text;
    /// Of the schema: that of the definitions, IFC4 for those of IFC2X3, which has no templates.
    std::string release;
    /// What templates cannot say, such as methods of measurement: a line each, which begins with the name of the set.
    std::vector<std::string> notes;
};

/// What the header says.
struct SetTemplateHeader {
    std::string name;
    /// ISO 8601.
    std::string timeStamp;
};

/// `release` is that of the definitions. Identifiers are the same on every run: they are made of the release and the
/// names of sets and properties. Units are left to the project that uses a template: definitions tell the types of
/// units alone. An error for a release that is none, and for a set without properties, which no template has; names
/// that the schema has no room for are none.
VELKOR_TOOLKIT_API tl::expected<SetTemplateFile, std::string>
setTemplates(const std::vector<const SetDefinition*>& definitions, std::string_view release,
             const SetTemplateHeader& header);

} // namespace velkor
