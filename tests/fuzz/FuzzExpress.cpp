// The reader of EXPRESS on any bytes. A schema that can be numbered must make a dictionary that has what the schema
// declares, and one that can be compiled tables that have all its rules.

#include "DictionaryLists.h"
#include "ExpressReader.h"
#include "RuleCompiler.h"
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

template <class Declarations>
std::size_t whereRules(const Declarations& declarations) {
    std::size_t count = 0;
    for (const auto& declaration : declarations) count += declaration.whereRules.size();
    return count;
}

void compileRules(const velkor::express::ExpressSchema& schema) {
    velkor::rulegen::RuleSource source{"input", schema};
    source.schema.name = "FUZZ";
    velkor::rulegen::RuleCompiler compiler({source});
    for (const std::string& error : compiler.errors()) require(error.starts_with("input:"), error);
    if (!compiler.errors().empty()) return;
    const auto tables = compiler.tables(0);
    require(tables.entityRules.size() == whereRules(schema.entities), "rules of entities were lost");
    require(tables.typeRules.size() == whereRules(schema.types), "rules of types were lost");
    require(tables.globalRules.size() == whereRules(schema.globalRules), "global rules were lost");
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
    compileRules(schema);
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
