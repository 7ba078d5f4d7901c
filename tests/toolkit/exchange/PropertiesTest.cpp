// Properties under the sets and names that the shipped mappings give.
#include "ConfiguredTest.h"
#include "ConvertedModel.h"

#include <gmock/gmock.h>

namespace velkor {

namespace {

using test::ConvertedModel;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::string guid(int number) {
    std::string text = "'000000000000000000000";
    return (text += static_cast<char>('A' + number)) += "'";
}

const std::string objects = "#1=IFCWALL(" + guid(1) + ",$,'wall',$,$,$,$,$,$);#2=IFCSLAB(" + guid(2) +
                            ",$,'slab',$,$,$,$,$,.FLOOR.);#3=IFCFURNITURE(" + guid(3) + ",$,$,$,$,$,$,$,$);";

class Properties : public test::ConfiguredTest {
protected:
    ConvertedModel mapped(const std::string& instances, PropertyOptions options) {
        Configuration configuration;
        configuration.shippedResources = VELKOR_RESOURCE_DIR;
        const PlatformSetup setup(configuration);
        options.setup = &setup;
        return test::convertText(test::modelText("IFC4", objects + instances),
                                 [&](const sdai::Model& model, files::OutputFile& output) {
                                     return convertProperties(model, options, output);
                                 });
    }
    ConvertedModel imported(const std::string& instances) {
        PropertyOptions options;
        options.customMapping = MappingDirection::Import;
        return mapped(instances, options);
    }
};

const std::string widths = "#11=IFCQUANTITYLENGTH('NominalWidth',$,$,0.3,$);";

} // namespace

TEST_F(Properties, RenamesASetAndItsPropertiesInPlace) {
    const auto result = imported(widths + "#10=IFCELEMENTQUANTITY(" + guid(10) + ",$,'BaseQuantities',$,$,(#11));" +
                                 "#12=IFCRELDEFINESBYPROPERTIES(" + guid(12) + ",$,$,$,(#1),#10);");
    EXPECT_EQ(result.record(10), "IFCELEMENTQUANTITY(" + guid(10) + ",$,'Qto_WallBaseQuantities',$,$,(#11))");
    EXPECT_EQ(result.record(11), "IFCQUANTITYLENGTH('Width',$,$,0.3,$)");
    EXPECT_EQ(result.report.converted, 2u);
    EXPECT_EQ(result.report.added, 0u);
    EXPECT_THAT(result.problems(), IsEmpty());
}

TEST_F(Properties, LeavesWhatTheMappingDoesNotNameAndWhatHasNoType) {
    const std::string other = "#13=IFCQUANTITYLENGTH('Mine',$,$,1.,$);";
    const auto result =
        imported(widths + other + "#10=IFCELEMENTQUANTITY(" + guid(10) + ",$,'BaseQuantities',$,$,(#11,#13));" +
                 "#12=IFCRELDEFINESBYPROPERTIES(" + guid(12) + ",$,$,$,(#1),#10);");
    EXPECT_EQ(result.record(10), "IFCELEMENTQUANTITY(" + guid(10) + ",$,'BaseQuantities',$,$,(#13))");
    EXPECT_THAT(result.records("IFCELEMENTQUANTITY"),
                ElementsAre(HasSubstr("'BaseQuantities'"), HasSubstr("'Qto_WallBaseQuantities',$,$,(#11)")));
    EXPECT_EQ(result.records("IFCRELDEFINESBYPROPERTIES").size(), 2u);
    EXPECT_THAT(result.problems(), IsEmpty());

    const std::string furniture = widths + "#10=IFCELEMENTQUANTITY(" + guid(10) + ",$,'BaseQuantities',$,$,(#11));" +
                                  "#12=IFCRELDEFINESBYPROPERTIES(" + guid(12) + ",$,$,$,(#3),#10);";
    EXPECT_THAT(imported(furniture).text, HasSubstr(objects + furniture));
}

TEST_F(Properties, GivesObjectsOfEachTypeTheirOwn) {
    const auto result = imported(widths + "#10=IFCELEMENTQUANTITY(" + guid(10) + ",$,'BaseQuantities',$,$,(#11));" +
                                 "#12=IFCRELDEFINESBYPROPERTIES(" + guid(12) + ",$,$,$,(#1,#2,#3),#10);");
    // The furniture keeps the set, the wall and the slab have copies.
    EXPECT_EQ(result.record(10), "IFCELEMENTQUANTITY(" + guid(10) + ",$,'BaseQuantities',$,$,(#11))");
    EXPECT_EQ(result.record(11), "IFCQUANTITYLENGTH('NominalWidth',$,$,0.3,$)");
    EXPECT_EQ(result.record(12), "IFCRELDEFINESBYPROPERTIES(" + guid(12) + ",$,$,$,(#3),#10)");
    EXPECT_THAT(result.records("IFCELEMENTQUANTITY"),
                ElementsAre(HasSubstr("'BaseQuantities'"), HasSubstr("'Qto_WallBaseQuantities'"),
                            HasSubstr("'Qto_SlabBaseQuantities'")));
    EXPECT_THAT(result.records("IFCRELDEFINESBYPROPERTIES"),
                ElementsAre(HasSubstr("(#3)"), HasSubstr("(#1)"), HasSubstr("(#2)")));
    EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty());
    EXPECT_EQ(imported(widths).text, imported(widths).text);
}

TEST_F(Properties, PutsPlmAttributesWhereTheirMappingSays) {
    PropertyOptions options;
    options.plmAttributes = true;
    const auto result = mapped(
        "#11=IFCPROPERTYSINGLEVALUE('V_FireRating',$,IFCLABEL('F30'),$);#10=IFCPROPERTYSET(" + guid(10) +
            ",$,'Mine',$,(#11));" + "#12=IFCRELDEFINESBYPROPERTIES(" + guid(12) +
            ",$,$,$,(#1),#10);#20=IFCPROPERTYSINGLEVALUE('IsExternal',$,IFCBOOLEAN(.T.),$);" + "#21=IFCPROPERTYSET(" +
            guid(11) + ",$,'Pset_WallCommon',$,(#20));#22=IFCRELDEFINESBYPROPERTIES(" + guid(13) + ",$,$,$,(#1),#21);",
        options);
    EXPECT_EQ(result.record(11), "IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F30'),$)");
    EXPECT_EQ(result.record(21), "IFCPROPERTYSET(" + guid(11) + ",$,'Pset_WallCommon',$,(#20,#11))");
    EXPECT_EQ(result.record(10) + result.record(12), "");
    EXPECT_THAT(result.problems(), IsEmpty());
}

TEST_F(Properties, WantsDocuments) {
    Configuration configuration;
    const PlatformSetup setup(configuration);
    PropertyOptions options;
    options.customMapping = MappingDirection::Export;
    options.setup = &setup;
    const auto result =
        test::convertText(test::modelText("IFC4", objects), [&](const sdai::Model& model, files::OutputFile& output) {
            return convertProperties(model, options, output);
        });
    EXPECT_NE(result.error, "");
}

} // namespace velkor
