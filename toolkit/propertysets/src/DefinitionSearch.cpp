#include "velkor/propertysets/DefinitionSearch.h"

namespace velkor {

DefinitionViews definitionViews(const PlatformSetup& setup) {
    return {setup.ownRuntimeViews(), setup.runtimeViewsByRelease()};
}

} // namespace velkor
