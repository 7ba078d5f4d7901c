/// The restore service: builds a schema's dictionary from its two text lists.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <memory>
#include <span>
#include <string>
#include <tl/expected.hpp>

class VELKOR_PLATFORM_API QORDXSdaiSchemaRestore {
public:
    /// Builds the schema and enters it in the repository. The service takes over the two
    /// arrays, which must come from `new const char*[]`, and releases them with the schema; the
    /// texts must outlive it. A faulty list enters nothing; the reason becomes the error of
    /// DXSdaiDictionaryRepo::schema. `format` and `level` state how the lists were written
    /// and are only recorded.
    static void Restore(DXSdaiDictionaryRepo& repo, int declarationCount, const char** declarations, int statementCount,
                        const char** statements, int format, int level);
};

namespace velkor::sdai {

/// The pure part of the service: a checked dictionary, or a message that names the list
/// ("declaration" or "statement"), the position counted from 1, and what was expected.
VELKOR_PLATFORM_API tl::expected<std::shared_ptr<const SchemaDefinition>, std::string>
restoreSchema(std::span<const char* const> declarations, std::span<const char* const> statements);

} // namespace velkor::sdai
