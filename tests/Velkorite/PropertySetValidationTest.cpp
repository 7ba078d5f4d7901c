#include "QORIFCPSetQtoValidationService.h"

#include "ModelText.h"
#include "PrivateOperation.h"
#include "TemporaryFolder.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/sdai/Model.h"

#include <gmock/gmock.h>

namespace velkor::test {

namespace {

/// A service without any set before each test, and a runtime view of two folders.
class PropertySetValidation : public testing::Test {
protected:
    PropertySetValidation() { view({"first", "second"}); }
    ~PropertySetValidation() override {
        files::setRuntimeView({});
        // The second time, nothing is left.
        for (const int argument : {3, 7})
            EXPECT_EQ(privateOperation<int(int)>("_ZN30QORIFCPSetQtoValidationService6OnExitEi")(argument), 0);
    }

    void view(const std::vector<std::string>& names) const {
        QORListValQORUnicodeString folders;
        for (const std::string& name : names) folders.Append((folder / name).c_str());
        files::setRuntimeView(folders);
    }
    void define(const std::string& place, const std::string& name, const std::string& content) const {
        folder.file(place + "/resources/standard/IFCPsetQset/" + name, content);
    }
    static HRESULT initialize(const std::string& set) { return service().Initialize(set.c_str()); }
    static bool hasClass(const char* set, const char* name, DXSdaiAppInstance* instance = nullptr) {
        return service().IsClassSupported(set, name, instance);
    }
    static bool hasProperty(const char* set, const char* name) { return service().IsPropertySupported(set, name); }
    static QORIFCPSetQtoValidationService& service() { return *QORIFCPSetQtoValidationService::getInstance(); }

    const TemporaryFolder folder;
};

} // namespace

TEST_F(PropertySetValidation, KnowsClassesAndPropertiesOfASet) {
    define("first", "Pset_Wall.xml",
           "<PropertySetDef><Name>Pset_Wall</Name><ApplicableClasses><ClassName>IfcWall/SHEAR</ClassName>"
           "<ClassName>/IfcOdd/x</ClassName><ClassName/><ClassName>IfcBeam<!-- -->Rest</ClassName>"
           "<ClassName><!--IfcComment-->IfcHidden</ClassName><ClassName><![CDATA[IfcDoor/]]></ClassName>"
           "<classname>IfcSlab</classname><p:ClassName xmlns:p='x'>IfcRoof</p:ClassName></ApplicableClasses>"
           "<PropertyDef><Name>FireRating</Name><Deep><Name>straße</Name></Deep><Name></Name>"
           "<Name> Spaced </Name><Name>FireRating</Name><Name><b>Markup</b></Name></PropertyDef></PropertySetDef>");
    EXPECT_FALSE(hasClass("Pset_Wall", "IfcWall")) << "not read yet";
    EXPECT_FALSE(hasProperty("Pset_Wall", "FireRating"));
    ASSERT_EQ(initialize("Pset_Wall"), S_OK);

    for (const char* name : {"IfcWall", "IFCWALL", "ifcwall", "/IFCODD/X", "IfcBeam", "ifcCOMMENT", "IfcDoor"})
        EXPECT_TRUE(hasClass("Pset_Wall", name)) << name;
    for (const char* name : {"IfcWall/SHEAR", "SHEAR", "", "IfcOdd", "IfcBeamRest", "IfcHidden", "IfcSlab", "IfcRoof"})
        EXPECT_FALSE(hasClass("Pset_Wall", name)) << name;
    for (const char* name : {"FireRating", "FIRERATING", "firerating", "straße", "STRAßE", " spaced "})
        EXPECT_TRUE(hasProperty("Pset_Wall", name)) << name;
    for (const char* name : {"Pset_Wall", "", "spaced", "Markup", "IfcWall"})
        EXPECT_FALSE(hasProperty("Pset_Wall", name)) << name;
    EXPECT_FALSE(hasClass("PSET_WALL", "IfcWall")) << "names of sets are told apart by letter case";
    EXPECT_FALSE(hasProperty("Pset_wall", "FireRating"));

    EXPECT_EQ(initialize("Pset_Wall"), E_FAIL) << "known already";
    EXPECT_TRUE(hasProperty("Pset_Wall", "FireRating")) << "and it stays";
}

TEST_F(PropertySetValidation, TakesSubtypesOfAClass) {
    define("first", "Pset_Some.xml", "<D><ClassName>NoEntity</ClassName><ClassName>IfcBuildingElement</ClassName></D>");
    define("first", "Pset_None.xml", "<D><Name>Pset_None</Name></D>");
    for (const char* set : {"Pset_Some", "Pset_None"}) ASSERT_EQ(initialize(set), S_OK);
    const std::string text = modelText("IFC4", "#1=IFCWALLSTANDARDCASE('0',$,$,$,$,$,$,$,$);#2=IFCSITE('1',$,$,$,$,$,$,"
                                               "$,$,$,$,$,$,$);#3=IFCNOSUCH();");
    const auto model = sdai::Model::fromText(text, "model.ifc");
    ASSERT_TRUE(model) << model.error().message;
    for (const std::uint64_t id : {1U, 2U, 3U}) {
        DXSdaiAppInstance* instance = (*model)->instance(id);
        ASSERT_NE(instance, nullptr) << id;
        EXPECT_EQ(hasClass("Pset_Some", "IfcOther", instance), id == 1) << id;
        EXPECT_TRUE(hasClass("Pset_Some", "IfcBuildingElement", instance)) << "the name is enough";
        EXPECT_FALSE(hasClass("Pset_None", "IfcWall", instance));
        EXPECT_FALSE(hasClass("Pset_Unread", "IfcBuildingElement", instance));
    }
}

TEST_F(PropertySetValidation, LooksForFilesUntilThereAreSome) {
    for (int time = 0; time < 2; ++time) EXPECT_EQ(initialize("Pset_Early"), S_OK) << "no files at all";
    define("first", "other.txt", "");
    EXPECT_EQ(initialize("Pset_Early2"), S_OK);
    define("first", "Pset_Early.xml", "<D><ClassName>IfcWall</ClassName></D>");
    define("first", "Pset_A.xml", "<D><ClassName>IfcWall</ClassName><Name>One</Name></D>");
    EXPECT_EQ(initialize("Pset_Early2"), S_OK) << "a set known already, but the files are new";
    EXPECT_EQ(initialize("Pset_Early2"), E_FAIL);
    EXPECT_EQ(initialize("Pset_Early"), E_FAIL);
    EXPECT_FALSE(hasClass("Pset_Early", "IfcWall")) << "it was without classes when there were no files";
    EXPECT_EQ(initialize("Pset_A"), S_OK);
    EXPECT_FALSE(hasProperty("Pset_A", "One")) << "a single name is that of the set";

    for (const char* unknown : {"Pset_B", "pset_A", "Pset_A.xml", "", "../IFCPsetQset/Pset_A"})
        EXPECT_EQ(initialize(unknown), E_FAIL) << unknown;
    define("first", "Pset_B.xml", "<D/>");
    EXPECT_EQ(initialize("Pset_B"), E_FAIL) << "the files are looked for once";
}

TEST_F(PropertySetValidation, DropsWhatCannotBeRead) {
    EXPECT_EQ(initialize("Pset_None"), S_OK);
    define("first", "Pset_Bad.xml", "<D><ClassName>IfcWall</ClassName><Name>a</Name><Name>b</Name>");
    EXPECT_EQ(initialize("Pset_Last"), S_OK) << "with the call that finds files";
    for (const char* known : {"Pset_None", "Pset_Last", "Pset_Other"}) EXPECT_EQ(initialize(known), E_FAIL) << known;
    EXPECT_LT(initialize("Pset_Bad"), 0);
    EXPECT_FALSE(hasClass("Pset_Bad", "IfcWall") || hasProperty("Pset_Bad", "b"));
    define("first", "Pset_Bad.xml", "<D><ClassName>IfcWall</ClassName></D>");
    EXPECT_EQ(initialize("Pset_Bad"), S_OK) << "read again when it is asked for again";
    EXPECT_TRUE(hasClass("Pset_Bad", "IfcWall"));
    EXPECT_FALSE(hasClass("Pset_None", "IfcWall"));
}

TEST_F(PropertySetValidation, ReadsFromTheFolderOfTheLastFile) {
    for (const char* place : {"first", "second"}) {
        define(place, std::string("Pset_") + place + ".xml", "<D/>");
        define(place, "Pset_Both.xml", std::string("<D><ClassName>") + place + "</ClassName></D>");
    }
    EXPECT_EQ(initialize("Pset_second"), S_OK);
    EXPECT_LT(initialize("Pset_first"), 0) << "it is sought where it is not";
    EXPECT_EQ(initialize("Pset_Both"), S_OK);
    EXPECT_TRUE(hasClass("Pset_Both", "second")) << "not the file that the runtime view prefers";
}

TEST_F(PropertySetValidation, OfSeveralReleasesReadsTheFolderThatTheWalkEndsIn) {
    // Sets of three releases: one that all have, and some that not all have.
    const std::vector<std::pair<std::string, std::vector<std::string>>> releases = {
        {"IFC2X3", {"Pset_Common", "Pset_Early"}},
        {"IFC4", {"Pset_Common", "Pset_Early", "Pset_Middle"}},
        {"IFC4X3_ADD2", {"Pset_Common", "Pset_Middle", "Pset_Late"}},
    };
    for (const auto& [release, sets] : releases)
        for (const std::string& set : sets)
            define("views/" + release, set + ".xml",
                   "<D><ClassName>" + release + "</ClassName><Name>" + set + "</Name><Name>Of" + release +
                       "</Name></D>");

    const struct {
        std::vector<const char*> order;
        /// The one whose files are read; none: no files are found.
        std::string read;
        std::vector<const char*> known;
        /// Those too whose name is found in another folder than they are sought in.
        std::vector<const char*> unknown;
    } cases[] = {
        {{"IFC2X3"}, "IFC2X3", {"Pset_Common", "Pset_Early"}, {"Pset_Middle", "Pset_Late"}},
        {{"IFC2X3", "IFC4X3_ADD2"}, "IFC4X3_ADD2", {"Pset_Common", "Pset_Middle", "Pset_Late"}, {"Pset_Early"}},
        // All that the last folder has is hidden by earlier ones, so the walk does not end there.
        {{"IFC4X3_ADD2", "IFC4", "IFC2X3"}, "IFC4", {"Pset_Common", "Pset_Early", "Pset_Middle"}, {"Pset_Late"}},
        {{"IFC4", "IFC2X3"}, "IFC4", {"Pset_Common", "Pset_Early", "Pset_Middle"}, {"Pset_Late"}},
        {{"", "IFC2X3", "none"}, "IFC2X3", {"Pset_Common", "Pset_Early"}, {"Pset_Middle", "Pset_Late"}},
        // The folder that holds the views is none itself: as if there were no definitions.
        {{""}, "", {"Pset_Common", "Pset_Late", "Pset_Nowhere"}, {}},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(testing::PrintToString(expected.order));
        std::vector<std::string> views;
        for (const std::string name : expected.order) views.push_back("views/" + name);
        view(views);
        for (const char* set : expected.known) {
            EXPECT_EQ(initialize(set), S_OK) << set;
            for (const auto& [release, sets] : releases) {
                EXPECT_EQ(hasClass(set, release.c_str()), release == expected.read) << set;
                EXPECT_EQ(hasProperty(set, ("Of" + release).c_str()), release == expected.read) << set;
            }
        }
        for (const char* set : expected.unknown) EXPECT_EQ(initialize(set), E_FAIL) << set;
        privateOperation<int(int)>("_ZN30QORIFCPSetQtoValidationService6OnExitEi")(0);
    }
}

TEST_F(PropertySetValidation, KeepsCustomSetsAndTheSwitch) {
    EXPECT_EQ(&service(), &service());
    for (const char* name : {"ACME_SET", "acme_lower"}) EXPECT_EQ(service().InitializeCustomPSetQtoList(name), S_OK);
    for (const char* name : {"ACME_SET", "Acme_Set"}) EXPECT_TRUE(service().IsCustomPsetQto(name)) << name;
    for (const char* name : {"acme_lower", "ACME_LOWER", "ACME"}) EXPECT_FALSE(service().IsCustomPsetQto(name)) << name;
    EXPECT_FALSE(hasClass("ACME_SET", "IfcWall"));

    unsigned char value = 7;
    EXPECT_EQ(service().GetIfcPsetQtoValidation(value), S_OK);
    EXPECT_EQ(value, 0);
    for (unsigned char set : std::initializer_list<unsigned char>{1, 255, 0}) {
        EXPECT_EQ(service().SetIfcPsetQtoValidation(set), S_OK);
        EXPECT_EQ(service().GetIfcPsetQtoValidation(value), S_OK);
        EXPECT_EQ(value, set);
    }
}

} // namespace velkor::test
