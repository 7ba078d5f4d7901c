#include "velkor/sdai/QORDXSdaiSchemaRestore.h"

#include "DeclarationList.h"
#include "RepositoryState.h"
#include "SchemaBuilder.h"
#include "StatementList.h"
#include "velkor/objectmodeler/CallRecorder.h"

#include <string>

namespace velkor::sdai {

tl::expected<std::shared_ptr<const SchemaDefinition>, std::string>
restoreSchema(std::span<const char* const> declarations, std::span<const char* const> statements) {
    const auto declared = readDeclarations(declarations);
    if (!declared) return tl::unexpected(declared.error());
    const auto stated = readStatements(statements, *declared);
    if (!stated) return tl::unexpected(stated.error());
    return SchemaBuilder(declarations, *declared, statements, *stated).build();
}

} // namespace velkor::sdai

void QORDXSdaiSchemaRestore::Restore(DXSdaiDictionaryRepo& repo, int declarationCount, const char** declarations,
                                     int statementCount, const char** statements, int format, int level) {
    if (velkor::objectmodeler::isRecording()) {
        velkor::objectmodeler::recordCall("restore: " + std::to_string(declarationCount) + " declarations, " +
                                          std::to_string(statementCount) + " statements, " + std::to_string(format) +
                                          ", " + std::to_string(level));
    }
    velkor::sdai::TextLists lists(declarationCount, declarations, statementCount, statements);
    auto schema = velkor::sdai::restoreSchema(lists.declarations(), lists.statements());
    repo._state->enter(std::move(schema), std::move(lists));
}
