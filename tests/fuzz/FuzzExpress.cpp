// The reader of the dictionary generator on any bytes. A schema that can be numbered must make a
// dictionary that has what the schema declares.

#include "DictionaryLists.h"
#include "ExpressReader.h"
#include "velkor/sdai/QORDXSdaiSchemaRestore.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

void require(bool condition, const std::string& reason) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::abort();
}

std::vector<const char*> pointers(const std::vector<std::string>& texts) {
    std::vector<const char*> result;
    for (const std::string& text : texts) result.push_back(text.c_str());
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velkor::dictgen;
    using namespace velkor::express;
    ExpressSchema schema;
    const auto read = readExpress({reinterpret_cast<const char*>(data), size}, "input", schema);
    if (!read) {
        require(read.error().starts_with("input:") && read.error().find(": expected ") != std::string::npos,
                read.error());
        return 0;
    }
    const auto lists = numberSchema("FUZZ", schema);
    if (!lists) return 0;
    const auto declarations = pointers(lists->declarations);
    const auto statements = pointers(lists->statements);
    const auto restored = velkor::sdai::restoreSchema(declarations, statements);
    require(restored.has_value(), restored ? "" : restored.error());
    require((*restored)->entities().size() == schema.entities.size(), "entities were lost");
    require((*restored)->definedTypes().size() == schema.types.size(), "types were lost");
    for (const ExpressEntity& entity : schema.entities) {
        const auto* found = (*restored)->entity(entity.name);
        require(found != nullptr && found->isAbstract() == entity.isAbstract &&
                    found->ownAttributes().size() ==
                        entity.explicitAttributes.size() + entity.derivedAttributes.size() &&
                    found->uniquenessRules().size() == entity.uniquenessRules.size(),
                entity.name + " is not what it was");
    }
    return 0;
}
