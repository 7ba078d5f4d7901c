#include "Matchers.h"
#include "TemporaryFolder.h"
#include "velkor/files/Paths.h"
#include "velkor/files/QORDirectory.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/files/QORSysRTVWalker.h"

#include <array>

namespace velkor::files::test {

using velkor::test::TemporaryFolder;
using Texts = std::vector<std::string>;

namespace {

QORListValQORUnicodeString list(const Texts& items) {
    QORListValQORUnicodeString result;
    for (const std::string& item : items) result.Append(item.c_str());
    return result;
}

} // namespace

TEST(Paths, AreSplitAtTheLastSeparatorOfEitherKind) {
    using Case = std::array<const char*, 3>;
    for (const auto& [path, directory, file] :
         {Case{"a/b.xml", "a", "b.xml"}, Case{"a\\b.xml", "a", "b.xml"}, Case{"C:\\a/b\\ä.b.xml", "C:\\a/b", "ä.b.xml"},
          Case{"a\\b/c", "a\\b", "c"}, Case{"/b", "", "b"}, Case{"b.xml", "", "b.xml"}, Case{"a//b", "a/", "b"},
          Case{"", "", ""}, Case{"/", "", ""}, Case{"a\\b\\", "", ""}}) {
        QORUnicodeString name = "before", folder = path; // an output may be the input
        EXPECT_EQ(QORSplitPath(folder, folder, name), *file != '\0' ? S_OK : E_FAIL) << path;
        EXPECT_EQ(folder.utf8(), directory) << path;
        EXPECT_EQ(name.utf8(), file) << path;
    }
}

TEST(Directory, GivesItsEntriesSortedByTheirBytes) {
    const TemporaryFolder folder;
    folder.add("in/side", {"ä.xml", "b.xml", "壁", "B.xml", "a", "a.xml", "10", "9", ".hidden", "~", "a b"});
    folder.add("in/side/under", {"file"});
    folder.add("in\\side", {"not this one"});
    for (const char* path : {"/in/side", "\\in\\side", "/in\\side\\"}) {
        QORDirectory* directory = nullptr;
        ASSERT_EQ(QOROpenDirectory((folder.path + path).c_str(), directory), S_OK);
        Texts read;
        QORUnicodeString name;
        while (QORReadDirectory(directory, name) == S_OK) read.emplace_back(name.utf8());
        EXPECT_THAT(read, ElementsAre(".hidden", "10", "9", "B.xml", "a", "a b", "a.xml", "b.xml", "under", "~",
                                      "ä.xml", "壁"));
        name = "before";
        EXPECT_EQ(QORReadDirectory(directory, name), S_FALSE) << "the end stays the end";
        EXPECT_TRUE(name.IsEmpty());
        EXPECT_EQ(QORCloseDirectory(directory), S_OK);
        EXPECT_EQ(directory, nullptr);
    }
    for (const std::string& path : {std::string(), folder.path + "/none", folder.path + "\\in/side\\a"}) {
        auto* directory = reinterpret_cast<QORDirectory*>(1);
        EXPECT_EQ(QOROpenDirectory(path.c_str(), directory), E_FAIL) << path;
        EXPECT_EQ(directory, nullptr) << path;
        QORUnicodeString name;
        EXPECT_EQ(QORReadDirectory(directory, name), E_FAIL);
        EXPECT_EQ(QORCloseDirectory(directory), E_FAIL);
    }
}

TEST(RuntimeView, IsWalkedFolderByFolderWithoutHiddenEntries) {
    const TemporaryFolder first, second;
    first.add("x/y", {"b.xml", "a.xml", "a.XML", "a.xml.bak", "xml"});
    second.add("x/y", {"c.xml", "b.xml", "0.xml"});
    second.add("x/y/folder.xml", {"a.xml"});
    second.add("x", {"d.xml"});
    const auto walk = [](const char* ending, std::initializer_list<const char*> subDirs) {
        QORSysRTVWalker walker;
        for (const char* name : subDirs) walker.AppendRTVSubDir(name);
        walker.SetPattern(ending);
        Texts paths;
        QORUnicodeString path;
        while (SUCCEEDED(walker.GetNext(path))) paths.emplace_back(path.utf8());
        EXPECT_TRUE(path.IsEmpty());
        EXPECT_EQ(walker.GetNext(path), E_FAIL);
        return paths;
    };
    EXPECT_THAT(walk("", {}), IsEmpty()) << "no runtime view";
    setRuntimeView(list({first.path, first.path + "/none", second.path, first.path}));
    EXPECT_EQ(runtimeView().Size(), 4);
    const std::string one = first.path + "/x/y/", two = second.path + "/x/y/";
    const auto expected = ElementsAre(one + "a.xml", one + "b.xml", two + "0.xml", two + "c.xml", two + "folder.xml");
    EXPECT_THAT(walk(".xml", {"x", "y"}), expected);
    EXPECT_THAT(walk(".xml", {"x/y"}), expected);
    EXPECT_THAT(walk("", {"x"}), ElementsAre(first.path + "/x/y", second.path + "/x/d.xml"));
    EXPECT_THAT(walk("", {"none"}), IsEmpty());
    setRuntimeView({});
    EXPECT_THAT(walk("", {"x"}), IsEmpty());
}

TEST(SetupData, LeadFromAKeyToItsPathsWhileTheHostOffersThem) {
    const auto data = QORInterface_var<SetupData>::adopt(new SetupData);
    data->set("Set|One", list({"/old", "/older"}));
    data->set("Set|One", list({"C:\\ä.xml"}));
    data->set("Set|Two", list({"/b", "/a"}));
    data->set("Set|None", {});
    const QORISetupDataFinder_var finder = data;
    using Case = std::pair<const char*, Texts>;
    for (const auto& [key, paths] : {Case{"Set|One", {"C:\\ä.xml"}}, Case{"Set|Two", {"/b", "/a"}},
                                     Case{"Set|None", {}}, Case{"set|one", {}}, Case{"", {}}}) {
        QORUnicodeString path = "before";
        EXPECT_EQ(SUCCEEDED(finder->GetResourcePath(key, path)), paths.size() == 1) << key;
        EXPECT_EQ(path.utf8(), paths.size() == 1 ? paths[0] : "before") << key;
        for (const int limit : {-1, 0, 1, 2, 3}) {
            QORListValQORIKweAppResourceSubItem_var items;
            EXPECT_EQ(SUCCEEDED(finder->GetResourceSubItems(key, items, limit)), !paths.empty()) << key;
            Texts expected = paths, found;
            if (limit >= 0 && expected.size() > static_cast<std::size_t>(limit))
                expected.resize(static_cast<std::size_t>(limit));
            for (const QORBaseUnknown_var& item : items) {
                EXPECT_EQ(QORIKweAppResourceSubItem_var(item)->GetPath(path), S_OK) << "by query";
                found.emplace_back(path.utf8());
            }
            EXPECT_EQ(found, expected) << key << ", at most " << limit;
        }
    }
    for (const auto& next : {QORISetupDataFinder_var::adopt(new SetupData), QORISetupDataFinder_var()}) {
        setSetupDataFinder(finder);
        EXPECT_EQ(QORSetupDataGlobalFunctions::GetSetupDataFinder(), finder);
        EXPECT_EQ(data->AddRef(), 4U) << "it is held";
        setSetupDataFinder(next);
        EXPECT_EQ(QORSetupDataGlobalFunctions::GetSetupDataFinder(), next);
        EXPECT_EQ(data->Release(), 2U) << "until it is taken away";
    }
}

} // namespace velkor::files::test
