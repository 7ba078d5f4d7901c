#include "velkor/objectmodeler/QORMetaClass.h"

#include "velkor/objectmodeler/CallRecorder.h"
#include "velkor/text/Unicode.h"

#include <map>
#include <memory>
#include <mutex>

using namespace velkor;

struct MetaClassMaker {
    static std::unique_ptr<QORMetaClass> make(std::string name, ENUMTypeOfClass kind, QORMetaClass* parent,
                                              const char* framework) {
        std::unique_ptr<QORMetaClass> result(new QORMetaClass);
        result->_id = objectmodeler::idFromName(name);
        result->_name = std::move(name);
        result->_kind = kind;
        result->_parent = parent;
        result->_framework = framework ? framework : "";
        return result;
    }
    static void setId(QORMetaClass& metaClass, const IID& id) { metaClass._id = id; }
    static void setExtension(QORMetaClass& metaClass, const char* extendedClass, std::size_t instanceSize) {
        metaClass._extendedClass = extendedClass ? extendedClass : "";
        metaClass._instanceSize = instanceSize;
    }
    static void setImplementation(QORMetaClass& metaClass, QORMetaClass* implementation) {
        metaClass._implementation = implementation;
    }
};

namespace {

struct MetaClasses {
    std::recursive_mutex mutex;
    std::map<std::string, std::unique_ptr<QORMetaClass>, std::less<>> byName;
    std::map<IID, QORMetaClass*> interfaces;
};

// Never destroyed: metaclasses live as long as the process.
MetaClasses& metaClasses() {
    static MetaClasses& instance = *new MetaClasses;
    return instance;
}

/// The metaclass of a name; made by `complete` when there is none.
template <typename Complete>
QORMetaClass* retrieve(std::string name, ENUMTypeOfClass kind, QORMetaClass* parent, const char* framework,
                       Complete complete) {
    const vrn::internal::om_guard guard;
    std::unique_ptr<QORMetaClass>& entry = metaClasses().byName[name];
    const bool isNew = !entry;
    if (isNew) {
        auto made = MetaClassMaker::make(std::move(name), kind, parent, framework);
        complete(*made);
        entry = std::move(made);
    }
    if (objectmodeler::isRecording()) {
        objectmodeler::recordCall(std::string(isNew ? "metaclass made: " : "metaclass retrieved: ") +
                                  entry->GetClassName());
    }
    return entry.get();
}

} // namespace

int QORMetaClass::IsAKindOf(const char* className) const noexcept {
    if (className == nullptr) return 0;
    for (const QORMetaClass* ancestor = this; ancestor != nullptr; ancestor = ancestor->_parent) {
        if (ancestor->_name == className) return 1;
    }
    return 0;
}

bool QORMetaClass::isKindOf(const IID& id) const noexcept {
    for (const QORMetaClass* ancestor = this; ancestor != nullptr; ancestor = ancestor->_parent) {
        if (ancestor->_id == id) return true;
    }
    return false;
}

// Source units spell the null class in two ways.
bool QORMetaClass::extendsEveryObject() const noexcept {
    return text::equalIgnoringCase(_extendedClass, "QORNull");
}

namespace vrn::internal {

om_guard::om_guard() {
    metaClasses().mutex.lock();
}

om_guard::~om_guard() {
    metaClasses().mutex.unlock();
}

QORMetaClass* fct_RetrieveMetaObject(const char* className, ENUMTypeOfClass kind, QORMetaClass* parent,
                                     const char* extendedClassName, const char* frameworkName,
                                     std::size_t instanceSize) {
    return retrieve(className, kind, parent, frameworkName, [&](QORMetaClass& metaClass) {
        MetaClassMaker::setExtension(metaClass, extendedClassName, instanceSize);
    });
}

QORMetaClass* fct_InitMetaObjectItf(const IID& id, QORMetaClass* parent, const char* interfaceName,
                                    const char* frameworkName) {
    return retrieve(interfaceName, TypeOfInterface, parent, frameworkName,
                    [&](QORMetaClass& metaClass) { MetaClassMaker::setId(metaClass, id); });
}

void fct_InitMetaObjectItfEpilog(QORMetaClass* metaClass, const char*, const IID& id) {
    const om_guard guard;
    metaClasses().interfaces[id] = metaClass;
}

QORMetaClass* Tie_InitMetaObject(QORMetaClass* implementation, QORMetaClass* interface, ENUMTypeOfClass kind) {
    const std::string name = std::string("TIE") + interface->GetClassName() + implementation->GetClassName();
    return retrieve(name, kind, interface, implementation->GetFrameworkName(),
                    [&](QORMetaClass& metaClass) { MetaClassMaker::setImplementation(metaClass, implementation); });
}

} // namespace vrn::internal

namespace velkor::objectmodeler {

QORMetaClass* metaClass(std::string_view className) {
    const vrn::internal::om_guard guard;
    const auto& byName = metaClasses().byName;
    const auto found = byName.find(className);
    return found == byName.end() ? nullptr : found->second.get();
}

QORMetaClass* metaClass(const IID& interfaceId) {
    const vrn::internal::om_guard guard;
    const auto& interfaces = metaClasses().interfaces;
    const auto found = interfaces.find(interfaceId);
    return found == interfaces.end() ? nullptr : found->second;
}

} // namespace velkor::objectmodeler
