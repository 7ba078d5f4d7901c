/// What the tests of resources share: places for documents, and components as a host gets them.
#pragma once

#include "Cases.h"
#include "TemporaryFolder.h"
#include "Variables.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/knowledge/KnowledgeObjects.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/objectmodeler/ClassDictionary.h"

#include <array>
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <tuple>

namespace velkor::test {

/// The library, in the process as long as the object lives.
class Library {
public:
    Library() : _loaded(dlopen(VELKOR_LIB_DIR "/libvelkor.so", RTLD_NOW | RTLD_LOCAL)) {
        EXPECT_NE(_loaded, nullptr) << dlerror();
    }
    ~Library() {
        if (_loaded != nullptr) dlclose(_loaded);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

private:
    void* _loaded;
};

/// Nothing is found until a test says where.
class MappingFixture : public testing::Test {
protected:
    MappingFixture() { objectmodeler::clearAssertionReports(); }
    ~MappingFixture() override { files::setSetupDataFinder({}); }

    /// A finder that knows these paths for one key, and nothing of any other.
    static void setupData(const char* key, const std::vector<std::string>& paths) {
        QORListValQORUnicodeString list;
        for (const std::string& path : paths) list.Append(path.c_str());
        const auto data = QORInterface_var<files::SetupData>::adopt(new files::SetupData);
        data->set(key, list);
        files::setSetupDataFinder(data);
    }
    /// Search folders of the collection standard.
    void standard(const std::string& folders, const std::string& defaultFolders = {}) const {
        variables.set("QORCollectionStandard", folders.c_str());
        variables.set("QORDefaultCollectionStandard", defaultFolders.c_str());
    }
    template <class Interface>
    static QORInterface_var<Interface> component(const char* name) {
        const QORInterface_var<Interface> made = objectmodeler::createComponent(name);
        EXPECT_FALSE(made.IsNull()) << name;
        return made;
    }
    /// The same services, asked of an object that has nothing to do with them.
    template <class Interface>
    static QORInterface_var<Interface> extension() {
        const QORInterface_var<Interface> made = knowledge::makeExchangeObject({}, {});
        EXPECT_FALSE(made.IsNull());
        return made;
    }
    static std::vector<std::string> texts(const QORListValQORUnicodeString& list) {
        std::vector<std::string> result;
        for (const QORUnicodeString& item : list) result.emplace_back(item.utf8());
        return result;
    }
    /// Result, in hexadecimal, and outputs; "was" stands for one that was left alone.
    template <std::size_t count = 1, class Ask>
    static std::string answer(Ask ask) {
        std::array<QORUnicodeString, count> outputs;
        outputs.fill("was");
        std::ostringstream text;
        text << std::hex << static_cast<unsigned>(std::apply(ask, outputs));
        for (const QORUnicodeString& output : outputs) text << ' ' << output.utf8();
        return text.str();
    }

    const Variables variables{"QORCollectionStandard", "QORDefaultCollectionStandard"};
    const TemporaryFolder folder;
};

} // namespace velkor::test
