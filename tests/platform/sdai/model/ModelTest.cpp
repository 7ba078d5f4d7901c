#include "Matchers.h"
#include "SampleModel.h"

namespace velkor::sdai::test {

namespace {

using ModelOfSample = SampleModel;

std::string withSchemas(const std::string& header, const std::string& data = "DATA;\nENDSEC;\n") {
    return "ISO-10303-21;\nHEADER;\n" + header + "ENDSEC;\n" + data + "END-ISO-10303-21;\n";
}

} // namespace

TEST_F(ModelOfSample, OpensWithTheSchemaThatTheFileNames) {
    for (const std::string& text :
         {withSchemas("FILE_SCHEMA(('SAMPLE'));\n"), withSchemas("FILE_SCHEMA(('sample_FINAL { iso }'));\n"),
          withSchemas("FILE_SCHEMA(('OTHER','SAMPLE'));\n"),
          withSchemas("", "DATA('a',('SAMPLE'));\n#1=OTHER();\nENDSEC;\n")}) {
        const auto model = Model::fromText(text, "x.ifc");
        ASSERT_TRUE(model) << model.error().message;
        EXPECT_EQ((*model)->schema().name(), "SAMPLE");
        EXPECT_EQ(Model::schemaProblem((*model)->file()), std::nullopt);
    }
}

TEST_F(ModelOfSample, SaysWhyAFileIsNoModel) {
    const std::string unknown = withSchemas("FILE_NAME('');\nFILE_SCHEMA(('IFC9','X'));\n");
    const auto unsupported = Model::fromText(unknown, "dir/x.ifc").error();
    EXPECT_EQ(unsupported.code, files::OpenError::Code::UnknownSchema);
    EXPECT_THAT(unsupported.message,
                AllOf(StartsWith("dir/x.ifc:4: "), HasSubstr("found \"IFC9\", \"X\""), HasSubstr("supported: SAMPLE")));
    EXPECT_THAT(Model::fromText(withSchemas(""), "x.ifc").error().message, HasSubstr("found none; supported: SAMPLE"));
    EXPECT_THAT(Model::fromText("<xml/>", "x.ifc").error().message, AllOf(StartsWith("x.ifc: "), HasSubstr("XML")));
    EXPECT_THAT(Model::open("/no\n\x1Bne.ifc").error().message, StartsWith("/no\\u000a\\u001bne.ifc: cannot be read"));
    EXPECT_THAT(
        Model::fromText(withSchemas("FILE_SCHEMA(('\\X\\1B\\X\\0AEVIL" + std::string(300, 'x') + "'));\n"), "x\n.ifc")
            .error()
            .message,
        AllOf(StartsWith("x\\u000a.ifc:"), HasSubstr("found \"\\u001b\\u000aEVILxx"), HasSubstr("xx…\"")));
}

TEST_F(ModelOfSample, AnInstanceHasOneAddressAndItsEntity) {
    std::string data;
    for (int id = 200; id > 0; --id) data += '#' + std::to_string(id) + "=OTHER();\n";
    const Model& model = open(data + "#300=UNKNOWN();\n#301=(PART()OTHER());\n#302=twig();\n");
    const std::size_t closed = model.memoryUse();
    for (std::uint32_t number = 0; number < 200; ++number) {
        const DXSdaiAppInstance* instance = model.instanceAt(number);
        EXPECT_EQ(instance->id(), 200 - number);
        EXPECT_EQ(model.instance(200 - number), instance);
        EXPECT_EQ(instance->entity(), model.schema().entity("OTHER"));
        EXPECT_EQ(&instance->model(), &model);
    }
    EXPECT_GT(model.memoryUse(), closed + 200 * sizeof(DXSdaiAppInstance));
    EXPECT_EQ(model.instance(250), nullptr);
    EXPECT_EQ(instance(300).entity(), nullptr);
    EXPECT_EQ(instance(301).entity(), nullptr);
    EXPECT_EQ(instance(302).entity(), model.schema().entity("TWIG"));
}

TEST_F(ModelOfSample, FindsTheInstancesOfAnEntityAndItsSubtypes) {
    const Model& model = open("#1=TWIG();\n#2=OTHER();\n#3=LEAF();\n#4=PART();\n#5=(ROOT('n',$)OTHER());\n"
                              "#6=UNKNOWN();\n#7=LEAF();\n#8=(UNKNOWN()TWIG());\n#9=(OTHER(;\n");
    const auto found = [&model](std::string_view name) {
        std::vector<std::uint64_t> ids;
        for (const DXSdaiAppInstance* instance : model.instancesOf(name)) {
            EXPECT_TRUE(instance->IsKindOf(name));
            ids.push_back(instance->id());
        }
        EXPECT_EQ(model.numbersOf(name).size(), ids.size());
        return ids;
    };
    EXPECT_THAT(found("ROOT"), ElementsAre(1, 3, 4, 5, 7, 8));
    EXPECT_THAT(found("PART"), ElementsAre(1, 4, 8));
    EXPECT_THAT(found("TWIG"), ElementsAre(1, 8));
    EXPECT_THAT(found("OTHER"), ElementsAre(2, 5));
    EXPECT_THAT(found("HOLDER"), IsEmpty());
    EXPECT_THAT(found("UNKNOWN"), IsEmpty());
    EXPECT_TRUE(instance(1).IsKindOf("part") && instance(1).IsInstanceOf("TWIG"));
    EXPECT_FALSE(instance(1).IsInstanceOf("PART") || instance(1).IsKindOf("LEAF") || instance(8).IsInstanceOf("TWIG"));

    std::string counts;
    for (const auto& [keyword, entity, count] : model.keywordCounts()) {
        counts += std::string(keyword) + (entity != nullptr ? "" : "?") + std::to_string(count) + ' ';
    }
    EXPECT_EQ(counts, "(…)?3 LEAF2 TWIG1 OTHER1 PART1 UNKNOWN?1 ");
}

TEST_F(ModelOfSample, InstancesBeyondTheKeywordNumbersKeepTheirEntity) {
    std::string data;
    for (int i = 1; i <= 65534; ++i) data += '#' + std::to_string(i) + "=K" + std::to_string(i) + "();";
    const Model& model = open(data + "#70000=TWIG('n');\n#70001=NONE();\n");
    EXPECT_THAT(model.numbersOf("PART"), ElementsAre(65534));
    EXPECT_EQ(instance(70000).GetAttr("NAME").asString(), "n");
    EXPECT_EQ(instance(70001).entity(), nullptr);
    EXPECT_EQ(model.keywordCounts().front().count, 2u) << "those without a number count together";
}

TEST_F(ModelOfSample, AttributesAreFoundByNameAndPlace) {
    open("#1=PART('p',*,NICKNAME('l'));\n#2=LEAF('f',5);\n#3=TWIG ( 't' /* , */ , * , #2 , 'extra' ) ;\n"
         "#4=Part('lower',*,#2);\n#5=UNKNOWN('x');\n#6=OTHER;\n#7=LEAF\n#8=PART();\n#9=LEAF('cut,5,$);\n");
    // What an instance leaves out is unset, what it has too much of has no place.
    for (const auto& [id, name, text] : {std::tuple(1, "NAME", "'p'"),
                                         {1, "size", "*"},
                                         {1, "LEFT", "NICKNAME('l')"},
                                         {2, "SIZE", "5"},
                                         {2, "PARTS", ""},
                                         {3, "LEFT", "#2"},
                                         {4, "NAME", "'lower'"},
                                         {5, "NAME", ""},
                                         {6, "NAME", ""},
                                         {7, "NAME", ""},
                                         {8, "NAME", ""},
                                         {9, "SIZE", ""}}) {
        const auto number = static_cast<std::uint64_t>(id);
        EXPECT_EQ(instance(number).GetAttr(name).encoded(), text) << id << name;
        EXPECT_EQ(instance(number).TestAttr(name), *text != '\0' && *text != '*') << id << name;
    }
    EXPECT_EQ(instance(1).attribute(2).encoded(), "NICKNAME('l')");
    EXPECT_EQ(instance(3).GetAttr("LEFT").asInstance(), &instance(2));
    // Nor has a derived attribute.
    for (const Primitive& none : {instance(1).GetAttr("DIM"), instance(1).GetAttr("NONE"), instance(1).attribute(3),
                                  instance(5).attribute(0)}) {
        EXPECT_EQ(none.declaredType(), nullptr);
    }
    EXPECT_NE(instance(8).GetAttr("NAME").declaredType(), nullptr);
}

TEST_F(ModelOfSample, OfAComplexInstanceEachPartHoldsItsOwnAttributes) {
    open("#1=(LEAF('redeclared',((#2)))ROOT('n',7));\n#2 = ( PART ( #1 ) /* */ ROOT ( 'm' , $ ) ) "
         ";\n#3=(PART(#1,ROOT('x',1));\n");
    EXPECT_EQ(value("SIZE").asInteger(), 7);
    EXPECT_EQ(value("PARTS").asAggregate().memberCount(), 1u);
    EXPECT_EQ(instance(2).GetAttr("LEFT").asInstance(), &instance(1));
    EXPECT_EQ(instance(2).GetAttr("NAME").asString(), "m");
    EXPECT_TRUE(instance(2).IsKindOf("PART") && !instance(2).IsKindOf("LEAF"));
    EXPECT_FALSE(instance(2).TestAttr("SIZE"));
    for (const char* name : {"PARTS", "DIM", "NONE"})
        EXPECT_EQ(instance(2).GetAttr(name).declaredType(), nullptr) << name;
    EXPECT_FALSE(instance(3).TestAttr("NAME"));
}

} // namespace velkor::sdai::test
