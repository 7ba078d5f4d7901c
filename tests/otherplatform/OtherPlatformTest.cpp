// The services on a platform that is not ours: no file of these tests is on any disk.
#include "Memory.h"
#include "ModelText.h"
#include "QORIFCDXDataSetupServices.h"
#include "QORIFCDXFileServices.h"
#include "QORIFCDXXMLServices.h"
#include "QORIFCMsgLoggingServices.h"
#include "QORIFCPSetQtoValidationService.h"
#include "Variables.h"
#include "velkor/exchangelog/MessageLog.h"
#include "velkor/exchangelog/QORMsgCatalog.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/sdai/Model.h"

#include <dlfcn.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <link.h>

namespace velkor::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;
using testing::StartsWith;

class OtherPlatform : public testing::Test {
protected:
    OtherPlatform() {
        otherplatform::logCounts() = {};
        exchangelog::setExchangeErr(&log);
        QORIFCMsgLoggingServices::SetLogError();
    }
    ~OtherPlatform() override {
        exchangelog::setExchangeErr(nullptr);
        QORIFCMsgLoggingServices::SetLogError();
        QORMsgCatalog::RemoveAll();
        files::setSetupDataFinder({});
        files::setRuntimeView({});
        otherplatform::removeAllFiles();
    }

    static void setupData(const char* key, const std::vector<const char*>& paths) {
        QORListValQORUnicodeString list;
        for (const char* path : paths) list.Append(path);
        const auto data = QORInterface_var<files::SetupData>::adopt(new files::SetupData);
        data->set(key, list);
        files::setSetupDataFinder(data);
    }
    static std::vector<std::string> texts(const QORListValQORUnicodeString& list) {
        std::vector<std::string> result;
        for (const QORUnicodeString& item : list) result.emplace_back(item.utf8());
        return result;
    }

    exchangelog::MessageLog log{2};
    const Variables variables{"QORCollectionStandard", "QORDefaultCollectionStandard"};
};

std::vector<std::string> platformLibraries() {
    std::vector<std::string> names;
    dl_iterate_phdr(
        [](dl_phdr_info* loaded, std::size_t, void* found) {
            const std::filesystem::path path = loaded->dlpi_name;
            if (path.filename().string().starts_with("libvelkorplatform."))
                static_cast<std::vector<std::string>*>(found)->push_back(std::filesystem::canonical(path));
            return 0;
        },
        &names);
    return names;
}

} // namespace

TEST_F(OtherPlatform, IsTheOnlyOneAndLacksNothingThatTheLibrariesTake) {
    // With all functions bound at once.
    for (const char* library : {"/libvelkor.so", "/libvelkortoolkit.so"})
        EXPECT_NE(dlopen((VELKOR_LIB_DIR + std::string(library)).c_str(), RTLD_NOW), nullptr) << dlerror();
    EXPECT_THAT(platformLibraries(), ElementsAre(StartsWith(VELKOR_LIB_DIR "/otherplatform/")));
}

TEST_F(OtherPlatform, GivesTheFoldersThatResourceFilesAreFoundIn) {
    for (const char* path : {"/memory/site/ifc/b.xml", "/memory/site/ifc/a.xml", "/memory/site/ifc/note.txt",
                             "/memory/site/ifc/sub/deep.xml", "/memory/firm/ifc/a.xml", "/memory/firm/ifc/c.xml"})
        otherplatform::putFile(path, "<R/>");
    variables.set("QORCollectionStandard", "/memory/site;/memory/gone");
    variables.set("QORDefaultCollectionStandard", "/memory/firm");
    QORListValQORUnicodeString files;
    ASSERT_EQ(QORIFCDXFileServices::FindResourceFiles("ifc", ".xml", files), S_OK);
    EXPECT_THAT(texts(files),
                ElementsAre("/memory/site\\ifc\\a.xml", "/memory/site\\ifc\\b.xml", "/memory/firm\\ifc\\c.xml"));

    std::vector<bool> readable;
    for (const auto& folder : QORIFCDXFileServices::SearchFolders("ifc", ".xml")) readable.push_back(folder.isReadable);
    EXPECT_THAT(readable, ElementsAre(true, false, true));

    setupData("Set|Kind", {"/memory/one.xml", "/memory/two.xml"});
    ASSERT_EQ(QORIFCDXDataSetupServices::GetResourcePaths("Set", "Kind", "", files), S_OK);
    EXPECT_THAT(texts(files), ElementsAre("/memory/one.xml", "/memory/two.xml"));
}

TEST_F(OtherPlatform, HoldsDefinitionsOfPropertySetsAndModels) {
    const std::string place = "/resources/standard/IFCPsetQset/";
    const auto definition = [](const std::string& property) {
        return "<PropertySetDef><Name>Pset_Wall</Name><ClassName>IfcWall</ClassName><PropertyDef><Name>" + property +
               "</Name></PropertyDef></PropertySetDef>";
    };
    otherplatform::putFile("/memory/view" + place + "Pset_Wall.xml", definition("FireRating"));
    // Hidden by the one before.
    otherplatform::putFile("/memory/base" + place + "Pset_Wall.xml", definition("Colour"));
    QORListValQORUnicodeString view;
    for (const char* folder : {"/memory/view", "/memory/base"}) view.Append(folder);
    files::setRuntimeView(view);
    QORIFCPSetQtoValidationService& service = *QORIFCPSetQtoValidationService::getInstance();
    ASSERT_EQ(service.Initialize("Pset_Wall"), S_OK);
    EXPECT_TRUE(service.IsPropertySupported("Pset_Wall", "FireRating"));
    EXPECT_FALSE(service.IsPropertySupported("Pset_Wall", "Colour"));

    // One that is read and one that is long enough to be mapped.
    for (const std::size_t padding : {std::size_t{0}, std::size_t{2} << 20}) {
        const std::string instances = "/*" + std::string(padding, '-') +
                                      "*/#1=IFCWALLSTANDARDCASE('','',$,$,$,$,$,$);"
                                      "#2=IFCBEAM('','',$,$,$,$,$,$);";
        otherplatform::putFile("/memory/house.ifc", modelText("IFC2X3", instances));
        const auto model = sdai::Model::open("/memory/house.ifc");
        ASSERT_TRUE(model) << model.error().message;
        ASSERT_EQ((*model)->instancesOf("IFCWALL").size(), 1U);
        DXSdaiAppInstance* wall = (*model)->instancesOf("IFCWALL").front();
        DXSdaiAppInstance* beam = (*model)->instancesOf("IFCBEAM").front();
        EXPECT_TRUE(service.IsClassSupported("Pset_Wall", "IfcWallStandardCase", wall));
        EXPECT_FALSE(service.IsClassSupported("Pset_Wall", "IfcBeam", beam));
    }
    EXPECT_EQ(sdai::Model::open("/memory/gone.ifc").error().code, files::OpenError::Code::Missing);
    EXPECT_EQ(sdai::Model::open("/memory").error().code, files::OpenError::Code::Folder);
}

TEST_F(OtherPlatform, HoldsTheDocumentOfVersionMapping) {
    const QORIExchangeIFCMappingServices_var services = objectmodeler::createComponent("ExchangeIFCMappingServices");
    ASSERT_FALSE(services.IsNull());
    otherplatform::putFile(
        "/memory/site/ifc/map.xml",
        "<V><Version from='2x3' to='4'> <Deprecation entity='IfcGone'/>"
        "<Mapping fromEntity='IfcOld' fromProperty='P' toEntity='IfcNew' toProperty='Q'/></Version></V>");
    variables.set("QORCollectionStandard", "/memory/site");
    ASSERT_EQ(services->LoadVersionMappingDocument(), S_OK);
    services->ResetVersionMappingTable();
    QORUnicodeString entity, property;
    EXPECT_EQ(services->GetVersionMapping(3, 4, "IfcOld", "P", entity, property), IFC_MAPPING_MAPPED);
    EXPECT_EQ(entity, "IfcNew");
    EXPECT_EQ(property, "Q");
    EXPECT_EQ(services->GetVersionMapping(3, 4, "IfcGone", "", entity, property), IFC_MAPPING_DEPRECATED_ENTITY);
}

TEST_F(OtherPlatform, CountsTheMessagesOfTheServices) {
    EXPECT_EQ(otherplatform::logCounts().lookups, 1);
    QORMsgCatalog::SetText("IFC", "Lost", "one wall was lost");
    EXPECT_EQ(QORIFCMsgLoggingServices::PutUnicodeMessage("begun", 1, 0), S_OK);
    EXPECT_EQ(QORIFCMsgLoggingServices::PutUnicodeMessage("a detail", 3, 0), E_FAIL) << "above the log's level";
    EXPECT_EQ(QORIFCMsgLoggingServices::PutUnicodeMessage("Lost", "IFC", 2, 0, "lost"), S_OK);
    EXPECT_EQ(QORIFCMsgLoggingServices::PutUnicodeMessage("Found", "IFC", 2, 0, "found"), S_OK);
    EXPECT_THAT(otherplatform::logCounts().messages, ElementsAre(Pair(1, 1), Pair(2, 2)));
    EXPECT_EQ(log.messages().at(1).text, "one wall was lost");
    EXPECT_EQ(log.messages().at(2).text, "found");
    EXPECT_EQ(otherplatform::logCounts().lookups, 1) << "the log is looked up once";

    // XML is Velkor's own area, and writes to this log all the same.
    otherplatform::putFile("/memory/broken.xml", "<a>\n<b></a>");
    QORIDOMDocument_var document;
    EXPECT_LT(QORIFCDXXMLServices::GetDOMDocument("/memory/broken.xml", document), 0);
    EXPECT_GT(log.messages().size(), 3U);
    EXPECT_THAT(log.messages().back().text, HasSubstr("/memory/broken.xml:2:"));
}

TEST_F(OtherPlatform, TakesTheDocumentsThatServicesWrite) {
    QORIDOMDocument_var document;
    ASSERT_EQ(QORIFCDXXMLServices::CreateDOMDocument("Written", document), S_OK);
    ASSERT_EQ(QORIFCDXXMLServices::WriteDOMDocument(document, "\\memory\\out.xml"), S_OK);
    ASSERT_NE(otherplatform::fileAt("/memory/out.xml"), nullptr);
    EXPECT_THAT(*otherplatform::fileAt("/memory/out.xml"), HasSubstr("<Written/>"));
    EXPECT_FALSE(std::filesystem::exists("/memory"));
    ASSERT_EQ(QORIFCDXXMLServices::GetDOMDocument("/memory/out.xml", document), S_OK);
    QORIDOMNode_var root;
    EXPECT_EQ(QORIFCDXXMLServices::GetNode(document, "/Written", root), S_OK);
}

} // namespace velkor::test
