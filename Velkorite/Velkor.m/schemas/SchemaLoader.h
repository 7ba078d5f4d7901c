/// Hands a release's lists to the SDAI runtime.
#pragma once

#include "SchemaTables.h"

class DXSdaiDictionaryRepo;

namespace velkor::schemas {

/// Builds the two arrays of texts, which the restore service takes over, and restores the schema.
void build(DXSdaiDictionaryRepo& repository, const SchemaTables& tables);

} // namespace velkor::schemas
