#include "MappingFixture.h"
#include "Matchers.h"
#include "QORIFCDXDataSetupServices.h"
#include "QORIFCDXFileServices.h"

#include <optional>

namespace velkor::test {

using Texts = std::vector<std::string>;

/// A sub-item without a path.
class BrokenItem final : public QORIKweAppResourceSubItem {
    VELKOR_DECLARE_CLASS
public:
    HRESULT GetPath(QORUnicodeString&) override { return E_FAIL; }
};
/// Succeeds with an empty path, and with items of which one is none and one is broken.
class FaultyFinder final : public QORISetupDataFinder {
    VELKOR_DECLARE_CLASS
public:
    HRESULT GetResourcePath(const QORUnicodeString&, QORUnicodeString& path) override {
        path = "";
        return S_OK;
    }
    HRESULT GetResourceSubItems(const QORUnicodeString&, QORListValQORIKweAppResourceSubItem_var& items, int) override {
        items.Append({});
        items.Append(QORIKweAppResourceSubItem_var::adopt(new BrokenItem));
        return S_OK;
    }
};
VELKOR_IMPLEMENT_CLASS(BrokenItem, QORIKweAppResourceSubItem, nullptr, "Host")
VELKOR_IMPLEMENT_CLASS(FaultyFinder, QORISetupDataFinder, nullptr, "Host")

namespace {

class ResourceLocation : public MappingFixture {
protected:
    HRESULT find(const char* nameText) { return QORIFCDXFileServices::FindResourceFiles("sub", nameText, found); }
    HRESULT path(const char* subFolder) {
        return QORIFCDXDataSetupServices::GetResourcePath("Set", "Category", subFolder, onePath);
    }
    HRESULT paths(const char* subFolder) {
        return QORIFCDXDataSetupServices::GetResourcePaths("Set", "Category", subFolder, found);
    }
    /// Source units of the assertions since it was last asked.
    static Texts assertions() {
        Texts units;
        for (const auto& report : objectmodeler::assertionReports()) {
            units.push_back(std::filesystem::path(report.sourceUnit).stem());
        }
        objectmodeler::clearAssertionReports();
        return units;
    }

    static constexpr const char* key = "Set|Category";
    const TemporaryFolder folderA, folderB, folderC;
    const std::string A = folderA.path, B = folderB.path, C = folderC.path;
    QORListValQORUnicodeString found;
    QORUnicodeString onePath;
};

const Texts byFileServices = {"QORIFCDXFileServices"};
const Texts byDataSetup = {"QORIFCDXDataSetupServices"};
const Texts byBoth = {"QORIFCDXFileServices", "QORIFCDXDataSetupServices"};

} // namespace

TEST_F(ResourceLocation, FindsWhatNoEarlierFolderHides) {
    folderA.add("sub", {"b.xml", "a.xml.bak", "xmlnotes.txt", "A.XML", "a.txt"});
    folderB.add("sub", {"a.xml", "b.xml"});
    folderB.add("sub/xml", {"c.xml"});
    folderC.add(".", {"d.xml"});
    found.Append("before");
    standard(';' + A + ";;" + C + "/none;" + B + '\\', C + ';' + A);
    EXPECT_EQ(find("xml"), S_OK);
    EXPECT_THAT(texts(found), ElementsAre(A + "\\sub\\a.xml.bak", A + "\\sub\\b.xml", A + "\\sub\\xmlnotes.txt",
                                          B + "\\\\sub\\a.xml", B + "\\\\sub\\xml"));
    EXPECT_EQ(assertions(), Texts());

    Texts folders;
    for (const auto& searched : QORIFCDXFileServices::SearchFolders("sub", ".xml")) {
        std::string line =
            searched.variable + (' ' + std::string(searched.path.utf8())) + (searched.isReadable ? ":" : " -");
        for (const std::string& name : texts(searched.names)) line += ' ' + name;
        for (const std::string& name : texts(searched.hiddenNames)) line += " hidden " + name;
        folders.push_back(line);
    }
    EXPECT_THAT(folders, ElementsAre("QORCollectionStandard " + A + "\\sub: a.xml.bak b.xml",
                                     "QORCollectionStandard " + C + "/none\\sub -",
                                     "QORCollectionStandard " + B + "\\\\sub: a.xml hidden b.xml",
                                     "QORDefaultCollectionStandard " + C + "\\sub -",
                                     "QORDefaultCollectionStandard " + A + "\\sub: hidden a.xml.bak hidden b.xml"));

    variables.removeAll();
    for (const std::string& list : {std::string(), std::string(";;"), C, B + "/sub"}) {
        if (!list.empty()) standard(list);
        EXPECT_EQ(find("xml"), E_UNEXPECTED) << list;
        EXPECT_EQ(found.Size(), 0) << list;
        EXPECT_EQ(assertions(), byFileServices) << list;
    }
}

TEST_F(ResourceLocation, OfOneFileAsksTheSetupDataFirst) {
    struct Expected {
        std::optional<Texts> setup; ///< none: no finder
        int files;
        const char* subFolder;
        std::string path; ///< empty: a failure
        Texts assertions;
    };
    const std::string only = A + "\\sub\\0.xml";
    const Texts none, one = {"/set.xml"}, two = {"0.xml", "1.xml"};
    for (const Expected& c :
         {Expected{one, 1, "sub", "/set.xml", {}}, Expected{one, 0, "", "/set.xml", {}},
          Expected{{}, 1, "sub", only, {}}, Expected{none, 1, "sub", only, {}}, Expected{two, 1, "sub", only, {}},
          Expected{{}, 1, "", "before", {}}, Expected{two, 1, "", "before", {}}, Expected{none, 0, "sub", "", byBoth},
          Expected{{}, 0, "sub", "", byBoth}, Expected{{}, 2, "sub", "", byDataSetup},
          Expected{two, 2, "sub", "", byDataSetup}}) {
        SCOPED_TRACE(c.path + ' ' + c.subFolder + ' ' + std::to_string(c.files));
        std::filesystem::remove_all(A + "/sub");
        for (int i = 0; i < c.files; ++i) folderA.add("sub", {std::to_string(i) + ".xml"});
        standard(A);
        files::setSetupDataFinder({});
        if (c.setup) setupData(key, *c.setup);
        onePath = "before";
        EXPECT_EQ(path(c.subFolder), c.path.empty() ? E_UNEXPECTED : S_OK);
        EXPECT_EQ(onePath.utf8(), c.path.empty() ? "before" : c.path);
        EXPECT_EQ(assertions(), c.assertions);
    }
}

TEST_F(ResourceLocation, OfAllFilesPutsThoseOfTheSetupDataFirst) {
    folderA.add("sub", {"map.xml"});
    standard(A);
    const std::string file = A + "\\sub\\map.xml";
    found.Append("before");
    EXPECT_EQ(paths("sub"), E_UNEXPECTED) << "no finder, no fallback";
    EXPECT_EQ(found.Size(), 0);
    EXPECT_EQ(assertions(), byDataSetup);

    setupData(key, {"/b", file, "/a"});
    EXPECT_EQ(paths("sub"), S_OK);
    EXPECT_THAT(texts(found), ElementsAre("/b", file, "/a", file));
    EXPECT_EQ(paths(""), S_OK);
    EXPECT_THAT(texts(found), ElementsAre("/b", file, "/a"));
    EXPECT_EQ(assertions(), Texts());
    EXPECT_EQ(paths("none"), E_UNEXPECTED);
    EXPECT_THAT(texts(found), ElementsAre("/b", file, "/a")) << "kept";
    EXPECT_EQ(assertions(), byBoth);
    setupData(key, {});
    EXPECT_EQ(paths("sub"), S_OK);
    EXPECT_THAT(texts(found), ElementsAre(file));
    EXPECT_EQ(assertions(), Texts());

    files::setSetupDataFinder(QORISetupDataFinder_var::adopt(new FaultyFinder));
    EXPECT_EQ(paths("sub"), S_OK);
    EXPECT_THAT(texts(found), ElementsAre(file));
    EXPECT_EQ(assertions(), byDataSetup) << "one, for the item that is none";
    EXPECT_EQ(path("sub"), S_OK);
    EXPECT_EQ(onePath.utf8(), file) << "an empty path counts as none";
}

// A folder of definitions for each release, of which many have the same names.
TEST_F(ResourceLocation, OfSeveralReleasesTakesEachNameFromTheFirst) {
    const std::string place = "resources/standard/IFCPsetQset";
    folderA.add("IFC2X3/" + place, {"Pset_Common.xml", "Pset_Early.xml"});
    folderA.add("IFC4/" + place, {"Pset_Common.xml", "Pset_Early.xml", "Pset_Late.xml", "Qto_Base.xml.bak"});
    folderA.add("ifc", {"VersionMapping.xml"});
    const auto findIn = [&](const std::vector<std::string>& releases, const char* nameText = "xml") {
        std::string folders;
        for (const std::string& release : releases) folders.append(A).append("/").append(release).append(";");
        standard(folders);
        return QORIFCDXFileServices::FindResourceFiles(place.c_str(), nameText, found);
    };
    const std::string early = A + "/IFC2X3\\" + place + '\\', late = A + "/IFC4\\" + place + '\\';
    EXPECT_EQ(findIn({"IFC2X3", "IFC4"}), S_OK);
    EXPECT_THAT(texts(found), ElementsAre(early + "Pset_Common.xml", early + "Pset_Early.xml", late + "Pset_Late.xml",
                                          late + "Qto_Base.xml.bak"));
    EXPECT_EQ(findIn({"IFC4", "IFC2X3"}), S_OK);
    EXPECT_THAT(texts(found), ElementsAre(late + "Pset_Common.xml", late + "Pset_Early.xml", late + "Pset_Late.xml",
                                          late + "Qto_Base.xml.bak"));
    EXPECT_EQ(findIn({"IFC2X3", "IFC4"}, "Late"), S_OK) << "a text anywhere in the name";
    EXPECT_THAT(texts(found), ElementsAre(late + "Pset_Late.xml"));
    EXPECT_EQ(findIn({"", "IFC4X4"}), E_UNEXPECTED) << "sub-folders of releases are not looked into";
    EXPECT_EQ(assertions(), byFileServices);

    // Beside them, the other kinds of resources are found as ever: one file alone where one is expected.
    standard(A + ';' + A + "/IFC4;" + A + "/IFC2X3");
    EXPECT_EQ(path("ifc"), S_OK);
    EXPECT_EQ(onePath.utf8(), A + "\\ifc\\VersionMapping.xml");
    EXPECT_EQ(path(place.c_str()), E_UNEXPECTED);
    EXPECT_EQ(assertions(), byDataSetup);
}

} // namespace velkor::test
