/// A small schema with one of everything that the lists can say, for tests of the restore.
#pragma once

#include "velkor/sdai/QORDXSdaiSchemaRestore.h"

#include <algorithm>
#include <string>
#include <vector>

namespace velkor::sdai::test {

struct SampleSchema {
    std::vector<std::string> declarations{
        "Schema(SAMPLE)",                                // 1
        "DefinedType(LABEL,StringType(255))",            // 2
        "DefinedType(NICKNAME,#2)",                      // 3
        "ArrayType(RealType(8),1,2,DUPL,REQ)",           // 4
        "DefinedType(PAIR,#4)",                          // 5
        "EnumerationType(RED,GREEN,BLUE)",               // 6
        "DefinedType(COLOUR,#6)",                        // 7
        "Entity(ROOT,ABSTRACT,SIMPLE,INDEPENDENT)",      // 8
        "ExplicitAttr(NAME)",                            // 9
        "ExplicitAttr(SIZE)",                            // 10
        "Entity(PART,INSTANTIABLE,SIMPLE,INDEPENDENT)",  // 11
        "ExplicitAttr(LEFT)",                            // 12
        "SelectType(#11,#3)",                            // 13
        "DefinedType(OPERAND,#13)",                      // 14
        "DerivedAttr(SIZE)",                             // 15: redeclares that of ROOT
        "DerivedAttr(DIM)",                              // 16
        "SelectType(#11,#3)",                            // 17: OPERAND once more
        "DefinedType(OPERAND,#17)",                      // 18
        "SelectType(#18,#7)",                            // 19
        "DefinedType(ANYTHING,#19)",                     // 20
        "Entity(LEAF,INSTANTIABLE,SIMPLE,INDEPENDENT)",  // 21
        "ExplicitAttr(NAME)",                            // 22: redeclares that of ROOT
        "ExplicitAttr(PARTS)",                           // 23
        "ListType(#11,1,-1,UNIQ)",                       // 24
        "SetType(#24,0,5)",                              // 25
        "UniquenessRule(UR1)",                           // 26
        "Entity(OTHER,INSTANTIABLE,SIMPLE,INDEPENDENT)", // 27
        "Entity(TWIG,INSTANTIABLE,SIMPLE,INDEPENDENT)",  // 28: PART without attributes of its own
    };
    std::vector<std::string> statements{
        "#1.SchemaVersionRelease(1,1)",       // 1
        "#8.Composition(#8)",                 // 2
        "#9.ExplAttrInfos(#2,REQ)",           // 3
        "#10.ExplAttrInfos(IntegerType,OPT)", // 4
        "#8.Attributes(#9,#10)",              // 5
        "#11.Supertypes(#8)",                 // 6
        "#11.Composition(#11,#8)",            // 7
        "#12.ExplAttrInfos(#14,REQ)",         // 8
        "#15.DerivAttrInfos(IntegerType)",    // 9
        "#16.DerivAttrInfos(#5)",             // 10
        "#11.Attributes(#12,#15,#16)",        // 11
        "#1.DefTypes(#2,#3,#5,#7,#18,#20)",   // 12
        "#21.Supertypes(#8)",                 // 13
        "#21.Composition(#21,#8)",            // 14
        "#22.ExplAttrInfos(#3,REQ)",          // 15
        "#23.ExplAttrInfos(#25,REQ)",         // 16
        "#21.Attributes(#22,#23)",            // 17
        "#26.UniqRuleInfos(#23,#10)",         // 18
        "#21.Uniqueness_rules(#26)",          // 19
        "#27.Composition(#27)",               // 20
        "#28.Supertypes(#11)",                // 21
        "#28.Composition(#11,#8,#28)",        // 22
        "#1.Entities(#21,#27,#11,#8,#28)",    // 23
    };

    static std::vector<const char*> pointers(const std::vector<std::string>& texts) {
        std::vector<const char*> result;
        for (const std::string& text : texts) result.push_back(text.c_str());
        return result;
    }

    /// The texts must outlive the schema.
    auto restore() const { return restoreSchema(pointers(declarations), pointers(statements)); }
    /// Hands the lists to the repository, as a loader does.
    void handOver() const {
        const auto copy = [](const std::vector<std::string>& texts) {
            auto* array = new const char*[texts.size()];
            std::ranges::transform(texts, array, [](const std::string& text) { return text.c_str(); });
            return array;
        };
        QORDXSdaiSchemaRestore::Restore(DXSdaiDictionaryRepo::TheOne(), static_cast<int>(declarations.size()),
                                        copy(declarations), static_cast<int>(statements.size()), copy(statements), 1,
                                        417);
    }
};

} // namespace velkor::sdai::test
