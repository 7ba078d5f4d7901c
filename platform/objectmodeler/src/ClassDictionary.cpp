#include "velkor/objectmodeler/ClassDictionary.h"

#include "velkor/objectmodeler/CallRecorder.h"
#include "velkor/objectmodeler/QORFillDictionary.h"
#include "velkor/objectmodeler/QOROMModule.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace velkor::objectmodeler {

namespace {

struct Registration {
    const QOROMModule* module = nullptr;
    QORMetaClass* implementation = nullptr;
    QORMetaClass* interface = nullptr;
    QORExtensionFactory factory = nullptr;
    std::string creationName;
    QORCreationFunction create = nullptr;
};

struct Dictionary {
    // Registration functions and factories come back with questions of their own.
    std::recursive_mutex mutex;
    std::vector<const QOROMModule*> unread;
    const QOROMModule* current = nullptr;
    std::vector<Registration> registrations;

    void read() {
        while (!unread.empty()) {
            const QOROMModule* module = unread.front();
            unread.erase(unread.begin());
            // A registration function that asks a question may have another module read meanwhile.
            const QOROMModule* outer = std::exchange(current, module);
            try {
                read(*module);
            } catch (...) {
                // The next question has it read anew. The room for it is still there.
                current = outer;
                forget(module);
                unread.insert(unread.begin(), module);
                throw;
            }
            current = outer;
        }
    }

    void forget(const QOROMModule* module) {
        std::erase_if(registrations, [module](const Registration& r) { return r.module == module; });
    }

    static void read(const QOROMModule& module) {
        const QOROMModuleInfo& info = module.info();
        for (const QOROMRegistration* entry = info.leadingEntry; entry <= info.trailingEntry; ++entry) {
            if (*entry != nullptr && (*entry)() != &module) recordCall("registration without its module's address");
        }
        if (*info.leadingEntry != nullptr || *info.trailingEntry != nullptr) recordCall("unbounded table");
    }

    template <typename Fits>
    const Registration* find(Fits fits) {
        read();
        const auto found = std::ranges::find_if(registrations, fits);
        return found == registrations.end() ? nullptr : &*found;
    }
};

// Never destroyed: libraries are unloaded after this one's statics are gone.
Dictionary& dictionary() {
    static Dictionary& instance = *new Dictionary;
    return instance;
}

void add(Registration registration, const std::string& call) {
    const std::scoped_lock lock(dictionary().mutex);
    recordCall(call);
    registration.module = dictionary().current;
    dictionary().registrations.push_back(std::move(registration));
}

/// Whether the interface may be put on the object.
bool mayExtend(const Registration& registration, const QORBaseUnknown& object) {
    const QORMetaClass& implementation = *registration.implementation;
    // A TIE forwards to operations that only its implementation has.
    if (!implementation.isKindOf(registration.interface->GetClassId())) {
        return object.IsAKindOf(implementation.GetClassName()) == 1;
    }
    return implementation.extendsEveryObject() || object.IsAKindOf(implementation.GetExtendedClassName()) == 1;
}

} // namespace

QORBaseUnknown_var createComponent(std::string_view creationName) {
    const std::scoped_lock lock(dictionary().mutex);
    const Registration* found =
        dictionary().find([&](const Registration& r) { return r.create != nullptr && r.creationName == creationName; });
    return found ? QORBaseUnknown_var::adopt(found->create()) : QORBaseUnknown_var();
}

void* extendObject(QORBaseUnknown& object, const IID& interfaceId) {
    const std::scoped_lock lock(dictionary().mutex);
    const Registration* found = dictionary().find([&](const Registration& r) {
        return r.factory != nullptr && r.interface->isKindOf(interfaceId) && mayExtend(r, object);
    });
    if (found == nullptr) return nullptr;

    // The second object is the implementation, where the library says how to make one by name.
    std::string_view name = found->implementation->GetClassName();
    if (name.starts_with("QORE")) name.remove_prefix(4);
    const QORExtensionFactory factory = found->factory;
    const QORBaseUnknown_var implementation = createComponent(name);
    return factory(&object, implementation.get());
}

const IID* interfaceIdOf(std::string_view interfaceName) {
    const std::scoped_lock lock(dictionary().mutex);
    const Registration* found = dictionary().find(
        [&](const Registration& r) { return r.interface != nullptr && r.interface->GetClassName() == interfaceName; });
    return found ? &found->interface->GetClassId() : nullptr;
}

std::vector<RegisteredClass> registeredClasses() {
    const std::scoped_lock lock(dictionary().mutex);
    dictionary().read();
    std::vector<RegisteredClass> result;
    for (const Registration& r : dictionary().registrations) {
        result.push_back({r.implementation ? r.implementation->GetClassName() : "",
                          r.interface ? r.interface->GetClassName() : "", r.creationName});
    }
    return result;
}

} // namespace velkor::objectmodeler

using namespace velkor::objectmodeler;

void QORFillDictionary::Register(QORMetaClass* implementation, QORMetaClass* interface, QORExtensionFactory factory,
                                 QORExtensionFactory secondFunction, int mode) {
    add({nullptr, implementation, interface, factory, {}, nullptr},
        std::string("register: ") + implementation->GetClassName() + " for " + interface->GetClassName() + ", mode " +
            std::to_string(mode) + (secondFunction != nullptr ? " and a second function" : ""));
}

void QORFillDictionary::Register(const IID& interfaceId, QORMetaClass* interface) {
    add({nullptr, nullptr, interface, nullptr, {}, nullptr},
        "register interface: " + text(interfaceId) + " " + interface->GetClassName());
}

void QORFillDictionary::RegisterFunctionCreation(const char* creationName, QORCreationFunction create) {
    add({nullptr, nullptr, nullptr, nullptr, creationName, create}, std::string("register creation: ") + creationName);
}

QOROMModule::QOROMModule(const QOROMModuleInfo& info) : _info(info) {
    const std::scoped_lock lock(dictionary().mutex);
    recordCall("module built");
    dictionary().unread.push_back(this);
}

QOROMModule::~QOROMModule() {
    const std::scoped_lock lock(dictionary().mutex);
    recordCall("module destroyed");
    std::erase(dictionary().unread, this);
    dictionary().forget(this);
}
