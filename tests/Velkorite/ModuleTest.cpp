#include "Matchers.h"
#include "Variables.h"
#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"
#include "velkor/knowledge/KnowledgeObjects.h"
#include "velkor/objectmodeler/CallRecorder.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/sdai/QORDXSdaiSchemaRestore.h"
#include "velkor/xml/QORIDOMNodeFilter.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <dlfcn.h>
#include <elf.h>
#include <fstream>
#include <iterator>
#include <span>
#include <stdexcept>
#include <utility>

/// The library's entries get a reference to one and must not touch it.
struct LoxDictionary : std::array<unsigned char, 64> {};

namespace velkor::test {

using namespace velkor::objectmodeler;

using testing::ElementsAreArray;

namespace {

constexpr const char* Path = VELKOR_LIB_DIR "/libvelkor.so";
constexpr const char* ImportServices = "QORIIFCImportServices";
constexpr const char* ImportServicesId = "{2C7255B3-EC9B-4988-8136-1537A27D1FC7}";
constexpr const char* NodeFilter = "QORXCADNodeFilter";

/// What the creation names have in front of them in the names of interfaces, and of classes.
constexpr const char* InterfacePrefix = "QORI";
constexpr const char* ClassPrefix = "QORE";
/// In the order in which they have to be registered.
constexpr const char* Components[] = {"ExchangeAECServices", "ExchangeIFCCustomMappingServices",
                                      "ExchangeIFCMappingServices", "ExchangeIFCPLMAttributesMappingServices"};

struct Release {
    const char* name;
    int declarations;
    int statements;
};
/// In the order in which they have to be registered.
constexpr Release Releases[] = {{"IFC2X3", 2674, 3080},     {"IFC4", 3202, 3715},        {"IFC4X1", 3223, 3772},
                                {"IFC4X2", 3334, 3893},     {"IFC4X3_ADD2", 3546, 4162}, {"IFC4X3_RC1", 3536, 4139},
                                {"IFC4X3_RC3", 3536, 4131}, {"IFC4X4", 3660, 4288}};

using Calls = std::vector<std::string>;

/// What the platform was asked for while something is done.
template <typename Do>
Calls callsDuring(Do something) {
    startRecording();
    something();
    stopRecording();
    return recordedCalls();
}

Calls schemaCalls(const char* what) {
    Calls calls;
    for (const Release& release : Releases) calls.push_back(what + std::string(" schema: ") + release.name);
    return calls;
}

std::string restoreOf(const Release& release) {
    return "restore: " + std::to_string(release.declarations) + " declarations, " + std::to_string(release.statements) +
           " statements, 1, 417";
}

/// The size of a section of the library's file, 0 when there is none of the name.
std::size_t sectionSize(std::string_view name) {
    std::ifstream file(Path, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    const auto& header = *reinterpret_cast<const Elf64_Ehdr*>(bytes.data());
    const std::span sections(reinterpret_cast<const Elf64_Shdr*>(bytes.data() + header.e_shoff), header.e_shnum);
    for (const Elf64_Shdr& section : sections) {
        if (bytes.data() + sections[header.e_shstrndx].sh_offset + section.sh_name == name) return section.sh_size;
    }
    return 0;
}

/// Allocations since the dictionary repository was last asked for, and as many as there were when a restore began.
std::atomic<int> allocations, allocationsAtRestore;

/// What stands behind an entry of the program that stands in for the platform's.
template <class Entry>
Entry* next(const char* name) {
    return reinterpret_cast<Entry*>(dlsym(RTLD_NEXT, name));
}

class Module : public testing::Test {
protected:
    void SetUp() override {
        // The platform's own, not what a library asks for.
        QORBaseUnknown::MetaObject();
        QORIDOMNodeFilter::MetaObject();
        for (QORMetaClass* (*make)() :
             {QORIExchangeAECServices::MetaObject, QORIExchangeIFCCustomMappingServices::MetaObject,
              QORIExchangeIFCMappingServices::MetaObject, QORIExchangeIFCPLMAttributesMappingServices::MetaObject})
            make();
        ASSERT_FALSE(isLoaded());
        ASSERT_THAT(repository.names(), IsEmpty());
        ASSERT_THAT(registeredClasses(), IsEmpty());
    }
    void TearDown() override {
        if (_library != nullptr) unload();
        ASSERT_FALSE(isLoaded()) << "the library stays in the process";
    }

    void load() {
        _library = dlopen(Path, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(_library, nullptr) << dlerror();
    }
    void unload() { EXPECT_EQ(dlclose(std::exchange(_library, nullptr)), 0) << dlerror(); }
    static bool isLoaded() {
        void* loaded = dlopen(Path, RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD);
        if (loaded != nullptr) dlclose(loaded);
        return loaded != nullptr;
    }
    template <typename Entry>
    Entry& entry(const char* name) const {
        void* found = dlsym(_library, name);
        if (found == nullptr) throw std::runtime_error(dlerror());
        return *reinterpret_cast<Entry*>(found);
    }
    long restored() const {
        return std::ranges::count_if(Releases, [&](const Release& r) { return repository.isRestored(r.name); });
    }

    DXSdaiDictionaryRepo& repository = DXSdaiDictionaryRepo::TheOne();

private:
    void* _library = nullptr;
};

} // namespace

TEST_F(Module, LoadsWorksAndGoesAsOftenAsOneLikes) {
    Calls atLoad = schemaCalls("register");
    atLoad.insert(atLoad.begin(), "module built");
    Calls atUnload = schemaCalls("withdraw");
    std::ranges::reverse(atUnload);
    atUnload.emplace_back("module destroyed");
    const QORMetaClass* known = metaClass(ImportServices);

    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        EXPECT_THAT(callsDuring([&] { load(); }), ElementsAreArray(atLoad)) << "registrations and nothing more";
        EXPECT_EQ(metaClass(ImportServices), known);
        EXPECT_EQ(restored(), 0);

        const auto ask = [] { EXPECT_EQ(registeredClasses().size(), 10U); };
        const std::string described = known != nullptr ? "metaclass retrieved: " : "metaclass made: ";
        Calls registrations;
        for (const std::string component : Components) {
            registrations.push_back(described + ClassPrefix + component);
            registrations.push_back("register: " + (ClassPrefix + component) + " for " + InterfacePrefix + component +
                                    ", mode 1");
            registrations.push_back("register creation: " + component);
        }
        registrations.insert(registrations.end(),
                             {described + ImportServices,
                              "register interface: " + std::string(ImportServicesId) + " " + ImportServices,
                              described + NodeFilter, "register: QORXCADNodeFilter for QORIDOMNodeFilter, mode 1"});
        EXPECT_THAT(callsDuring(ask), ElementsAreArray(registrations));
        EXPECT_THAT(callsDuring(ask), IsEmpty());
        const auto& id = entry<const IID>("IID_QORIIFCImportServices");
        EXPECT_EQ(text(id), ImportServicesId);
        if (known == nullptr) known = metaClass(id);
        ASSERT_NE(known, nullptr);
        EXPECT_EQ(metaClass(ImportServices), known) << "one metaclass serves all loads";
        EXPECT_FALSE(createComponent(NodeFilter)) << "the filter has no creation name";
        EXPECT_FALSE(createComponent("XCADNodeFilter"));

        const auto restore = [&] {
            const auto schema = repository.schema("IFC4");
            ASSERT_TRUE(schema) << schema.error().message;
            EXPECT_NE((*schema)->entity("IFCWALL"), nullptr);
        };
        EXPECT_THAT(callsDuring(restore), ElementsAre(restoreOf(Releases[1])));
        EXPECT_THAT(callsDuring(restore), IsEmpty());
        EXPECT_EQ(restored(), 1);

        EXPECT_THAT(callsDuring([&] { unload(); }), ElementsAreArray(atUnload));
        ASSERT_FALSE(isLoaded());
        EXPECT_THAT(repository.names(), IsEmpty());
        EXPECT_THAT(registeredClasses(), IsEmpty());
        EXPECT_THAT(repository.schema("IFC4").error().message, testing::HasSubstr("known: none"));
    }
}

TEST_F(Module, KeepsItsRegistrationsInASectionOfTheirOwn) {
    EXPECT_EQ(sectionSize("velkor_registrations"), 12 * sizeof(void*)) << "ten functions between two null entries";
}

TEST_F(Module, ServesItsComponentsByNameAndByInterface) {
    load();
    for (const std::string name : Components) {
        SCOPED_TRACE(name);
        const QORBaseUnknown_var made = createComponent(name);
        ASSERT_FALSE(made.IsNull());
        EXPECT_EQ(made->IsA(), ClassPrefix + name);
        EXPECT_EQ(made->IsAKindOf((InterfacePrefix + name).c_str()), 1);
        EXPECT_EQ(made->GetMetaObject(), metaClass(ClassPrefix + name)) << "asked again, the same metaclass";
        EXPECT_EQ(made->GetMetaObject()->GetFrameworkName(), std::string("Velkorite"));
        EXPECT_EQ(made->GetMetaObject()->GetTypeOfClass(), TypeOfImplementation);
        EXPECT_EQ(made->GetMetaObject()->GetExtendedClassName(),
                  std::string(name == "ExchangeAECServices" ? "QORnull" : "QORNull"));

        const IID* id = interfaceIdOf(InterfacePrefix + name);
        ASSERT_NE(id, nullptr);
        const QORBaseUnknown_var object = velkor::knowledge::makeOccurrence("Wall", {});
        void* extension = nullptr;
        ASSERT_EQ(object->QueryInterface(*id, &extension), S_OK);
        const auto held = QORBaseUnknown_var::adopt(static_cast<QORBaseUnknown*>(extension));
        EXPECT_EQ(held->IsA(), ClassPrefix + name);
        using Factory = IUnknown*(QORBaseUnknown*, QORBaseUnknown*);
        const std::string factory = "CreateBOA" + (InterfacePrefix + name) + ClassPrefix + name;
        EXPECT_EQ(entry<Factory>(factory.c_str())(object.get(), nullptr), nullptr) << "nothing to extend with";
    }
    EXPECT_FALSE(createComponent("QOREExchangeAECServices"));
    registeredClasses();
    EXPECT_EQ(metaClass(NodeFilter)->GetExtendedClassName(), std::string("QORnull"));
}

TEST_F(Module, RestoresEachSchemaWhenItIsFirstWanted) {
    load();
    for (const Release& release : Releases) {
        EXPECT_THAT(callsDuring([&] { EXPECT_TRUE(repository.schema(release.name)); }),
                    ElementsAre(restoreOf(release)));
        EXPECT_EQ(allocationsAtRestore, 2) << "the two arrays and nothing else";
        EXPECT_EQ(restored(), &release - Releases + 1) << release.name;
    }
}

TEST_F(Module, EntriesThatForceALoadDoNothing) {
    load();
    LoxDictionary dictionary;
    dictionary.fill(0xA5);
    const Calls calls = callsDuring([&] {
        EXPECT_EQ(entry<int()>("QORDXForceLoadShemas")(), 0);
        for (const std::string name :
             {"QORDXSdaiIFC2X3", "QORDXSdaiIFC4", "QORDXSdaiIFC4X1", "QORDXSdaiIFC4X2", "QORDXSdaiIFC4X3_ADD2",
              "QORDXSdaiIFC4X4", "QORSdaiIFC4X3_RC1", "QORSdaiIFC4X3_RC3"}) {
            entry<void()>((name + "dummy").c_str())();
        }
        for (const Release& release : Releases) {
            entry<void(LoxDictionary&)>((std::string("LoxLoadDico") + release.name).c_str())(dictionary);
        }
    });
    EXPECT_THAT(calls, IsEmpty());
    EXPECT_EQ(restored(), 0);
    EXPECT_THAT(dictionary, testing::Each(0xA5));
}

TEST_F(Module, BuildsItsOptionsWhenTheyAreFirstWanted) {
    const Variables variables{"ProfilePrefered_FORCETST"};
    load();
    variables.set("ProfilePrefered_FORCETST", "2");
    EXPECT_EQ(entry<std::uint16_t(void*)>("_ZNK13QORIFCOptions18GetExchangeProfileEv")(
                  entry<void*()>("_ZN13QORIFCOptions11GetInstanceEv")()),
              2);
}

TEST_F(Module, TakesTheSingletonsThatWereMadeWithIt) {
    const Variables variables{"QORCollectionStandard", "QORDefaultCollectionStandard"};
    // Of each, what makes it and the order of its end; the last is what the mapping of PLM attributes is kept in.
    constexpr std::pair<const char*, char> singletons[] = {{"_ZN21QORIFCOptionsServices11getInstanceEv", '3'},
                                                           {"_ZN30QORIFCPSetQtoValidationService11getInstanceEv", '3'},
                                                           {"_ZN16IFCAttributeList11GetInstanceEv", '1'},
                                                           {nullptr, '1'}};
    QORIExchangeIFCPLMAttributesMappingServices_var mapping;
    for (std::size_t made = 0; made <= std::size(singletons); ++made) {
        SCOPED_TRACE(made);
        load();
        mapping = createComponent("ExchangeIFCPLMAttributesMappingServices");
        std::string orders;
        for (const auto& [getInstance, order] : std::span(singletons).first(made)) {
            const auto use = [&, name = getInstance] {
                for (int i = 0; i < 2; ++i) {
                    if (name != nullptr) entry<void*()>(name)();
                    if (name == nullptr) mapping->LoadMapping();
                }
            };
            EXPECT_THAT(callsDuring(use), ElementsAre(std::string("exit callback registered, order ") + order));
            orders += order;
        }
        std::ranges::sort(orders);
        Calls expected;
        for (const char order : orders) expected.push_back(std::string("exit callback runs, order ") + order);
        // Before the static objects go, and only then.
        mapping = {};
        Calls atUnload = callsDuring([&] { unload(); });
        ASSERT_GT(atUnload.size(), made);
        const auto objectsGo = atUnload.begin() + static_cast<std::ptrdiff_t>(made);
        EXPECT_EQ(Calls(atUnload.begin(), objectsGo), expected);
        EXPECT_EQ(std::count_if(objectsGo, atUnload.end(), [](auto& call) { return call.starts_with("exit"); }), 0);
    }
}

} // namespace velkor::test

// The program's own entries note and pass on what the library asks of those that stand behind them.
void* operator new(std::size_t size) {
    ++velkor::test::allocations;
    return velkor::test::next<void*(std::size_t)>("_Znwm")(size);
}
void* operator new[](std::size_t size) {
    // The one behind may call the one above.
    const int counted = ++velkor::test::allocations;
    void* made = velkor::test::next<void*(std::size_t)>("_Znam")(size);
    velkor::test::allocations = counted;
    return made;
}
DXSdaiDictionaryRepo& DXSdaiDictionaryRepo::TheOne() {
    velkor::test::allocations = 0;
    return velkor::test::next<DXSdaiDictionaryRepo&()>("_ZN20DXSdaiDictionaryRepo6TheOneEv")();
}
void QORDXSdaiSchemaRestore::Restore(DXSdaiDictionaryRepo& repository, int declarationCount, const char** declarations,
                                     int statementCount, const char** statements, int format, int level) {
    velkor::test::allocationsAtRestore = velkor::test::allocations.load();
    velkor::test::next<decltype(Restore)>("_ZN22QORDXSdaiSchemaRestore7RestoreER20DXSdaiDictionaryRepoiPPKciS4_ii")(
        repository, declarationCount, declarations, statementCount, statements, format, level);
}
