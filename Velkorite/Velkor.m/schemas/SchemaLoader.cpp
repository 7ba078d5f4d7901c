#include "SchemaLoader.h"

#include "velkor/sdai/QORDXSdaiSchemaRestore.h"

#include <memory>

namespace velkor::schemas {

namespace {

using TextArray = std::unique_ptr<const char*[]>;
using Stores = std::array<const char*, 8>;

// Asked for at run time: a constant table of addresses would be relocated at every load.
Stores stores() noexcept {
    return {tablesOfIFC2X3().texts,     tablesOfIFC4().texts,        tablesOfIFC4X1().texts,
            tablesOfIFC4X2().texts,     tablesOfIFC4X3_ADD2().texts, tablesOfIFC4X3_RC1().texts,
            tablesOfIFC4X3_RC3().texts, tablesOfIFC4X4().texts};
}

TextArray texts(std::span<const std::uint32_t> places, const Stores& stores) {
    TextArray result(new const char*[places.size()]);
    for (std::size_t i = 0; i < places.size(); ++i) result[i] = stores[places[i] >> 24] + (places[i] & 0xFFFFFF);
    return result;
}

} // namespace

void build(DXSdaiDictionaryRepo& repository, const SchemaTables& tables) {
    const Stores all = stores();
    TextArray declarations = texts(tables.declarations, all);
    TextArray statements = texts(tables.statements, all);
    QORDXSdaiSchemaRestore::Restore(repository, static_cast<int>(tables.declarations.size()), declarations.release(),
                                    static_cast<int>(tables.statements.size()), statements.release(), 1, 417);
}

} // namespace velkor::schemas
