/// A schema with an attribute of every kind, for models of tests.
#pragma once

#include "../dictionary/SampleSchema.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace velkor::sdai::test {

/// The sample schema and an entity HOLDER.
inline SampleSchema modelSchema() {
    SampleSchema schema;
    std::istringstream attributes(
        "WEIGHT RealType(8) COUNT IntegerType FLAG BooleanType TRUTH LogicalType BITS BinaryType(8) "
        "CODE StringType(3,FIXED) TINT #7 VALUE #30 EXTENT #5 TARGET #27 TINTS #31 GRID #33");
    schema.declarations.insert(schema.declarations.end(),
                               {"SelectType(#11,#3,#5,#7)", "DefinedType(CHOICE,#29)", "ListType(#7,2,3,DUPL)",
                                "ListType(IntegerType,1,-1,DUPL)", "ListType(#32,0,-1,DUPL)",
                                "Entity(HOLDER,INSTANTIABLE,SIMPLE,INDEPENDENT)"}); // 29 to 34
    schema.statements.pop_back();
    schema.statements.emplace_back("#34.Composition(#34)");
    std::string own;
    for (std::string name, type; attributes >> name >> type;) {
        schema.declarations.push_back("ExplicitAttr(" + name + ")");
        const std::string number = "#" + std::to_string(schema.declarations.size());
        schema.statements.push_back(number + ".ExplAttrInfos(" + type + ",OPT)");
        own += (own.empty() ? "" : ",") + number;
    }
    schema.statements.push_back("#34.Attributes(" + own + ")");
    std::ranges::replace(schema.statements, "#1.DefTypes(#2,#3,#5,#7,#18,#20)", "#1.DefTypes(#2,#3,#5,#7,#18,#20,#30)");
    schema.statements.push_back("#1.Entities(#21,#27,#11,#8,#28,#34)");
    return schema;
}

/// Hands the schema to the repository, as the loader that is registered for it.
inline void loadModelSchema() {
    static const SampleSchema schema = modelSchema();
    schema.handOver();
}

} // namespace velkor::sdai::test
