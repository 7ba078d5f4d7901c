/// Where the definitions of a set-up are looked for.
///
///     const PlatformSetup setup(configuration);
///     const SetLibrary library(definitionViews(setup));
#pragma once

#include "velkor/configuration/PlatformSetup.h"
#include "velkor/propertysets/SetCatalogue.h"
#include "velkor/ToolkitExport.h"

namespace velkor {

/// The user's own runtime views, and the folder with a view for each release that is in force.
VELKOR_TOOLKIT_API DefinitionViews definitionViews(const PlatformSetup& setup);

} // namespace velkor
