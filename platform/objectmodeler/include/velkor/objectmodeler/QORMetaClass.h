/// Metaclasses: what the object modeler knows about a class. They belong to the object modeler, live
/// as long as the process, and hold copies of all texts, so that the library that described a class
/// may be unloaded and loaded again.
#pragma once

#include "velkor/objectmodeler/IID.h"
#include "velkor/PlatformExport.h"

#include <atomic>
#include <cstddef>
#include <string>
#include <string_view>

/// How a class takes part in the object modeler.
enum ENUMTypeOfClass : int {
    TypeOfInterface = 0,
    TypeOfImplementation = 1,
    TypeOfTie = 6,
};

class VELKOR_PLATFORM_API QORMetaClass {
public:
    QORMetaClass(const QORMetaClass&) = delete;
    QORMetaClass& operator=(const QORMetaClass&) = delete;

    const char* GetClassName() const noexcept { return _name.c_str(); }          ///< Name of the class.
    const char* GetFrameworkName() const noexcept { return _framework.c_str(); } ///< Name of the framework that has it.
    ENUMTypeOfClass GetTypeOfClass() const noexcept { return _kind; }            ///< What kind of class it is.
    const IID& GetClassId() const noexcept { return _id; }                       ///< Identifier of the class.
    /// The parent metaclass; of a TIE that of its interface; null for QORBaseUnknown's.
    QORMetaClass* GetParent() const noexcept { return _parent; }
    /// Of a TIE the implementation's metaclass, else null.
    QORMetaClass* GetImplementation() const noexcept { return _implementation; }
    /// Name of the class that this one extends, as the class spells it; empty when none was given.
    const char* GetExtendedClassName() const noexcept { return _extendedClass.c_str(); }
    /// Size of an instance in bytes; 0 when not stated.
    std::size_t GetInstanceSize() const noexcept { return _instanceSize; }

    /// 1 when the class or an ancestor has the name, letter case included; else 0.
    int IsAKindOf(const char* className) const noexcept;
    /// The same by identifier.
    bool isKindOf(const IID& id) const noexcept;
    /// True when the class may extend every object: it extends the null class.
    bool extendsEveryObject() const noexcept;

private:
    friend struct MetaClassMaker;
    QORMetaClass() = default;
    std::string _name;
    std::string _framework;
    std::string _extendedClass;
    IID _id;
    ENUMTypeOfClass _kind = TypeOfImplementation;
    QORMetaClass* _parent = nullptr;
    QORMetaClass* _implementation = nullptr;
    std::size_t _instanceSize = 0;
};

namespace vrn::internal {

/// The lock under which metaclasses are made. One thread may take it several times, since making a
/// class's metaclass asks for its parent's.
class VELKOR_PLATFORM_API om_guard {
public:
    om_guard();
    ~om_guard();
    om_guard(const om_guard&) = delete;
    om_guard& operator=(const om_guard&) = delete;
};

/// The metaclass of an implementation: the one already there for the class name, or a new one.
VELKOR_PLATFORM_API QORMetaClass* fct_RetrieveMetaObject(const char* className, ENUMTypeOfClass kind,
                                                         QORMetaClass* parent, const char* extendedClassName,
                                                         const char* frameworkName, std::size_t instanceSize);

/// The metaclass of an interface. To be followed by the epilog, which makes it known by identifier.
VELKOR_PLATFORM_API QORMetaClass* fct_InitMetaObjectItf(const IID& id, QORMetaClass* parent, const char* interfaceName,
                                                        const char* frameworkName);
VELKOR_PLATFORM_API void fct_InitMetaObjectItfEpilog(QORMetaClass* metaClass, const char* frameworkName, const IID& id);

/// The metaclass of the TIE of an interface on an implementation.
VELKOR_PLATFORM_API QORMetaClass* Tie_InitMetaObject(QORMetaClass* implementation, QORMetaClass* interface,
                                                     ENUMTypeOfClass kind);

} // namespace vrn::internal

namespace velkor::objectmodeler {

/// A metaclass by class name, or an interface's by identifier; null when none was made.
VELKOR_PLATFORM_API QORMetaClass* metaClass(std::string_view className);
VELKOR_PLATFORM_API QORMetaClass* metaClass(const IID& interfaceId);

/// The metaclass in `slot`, made by `make` under the object modeler's lock when there is none yet.
template <typename Make>
QORMetaClass* metaClassOnDemand(std::atomic<QORMetaClass*>& slot, Make make) {
    if (QORMetaClass* metaClass = slot.load(std::memory_order_acquire)) return metaClass;
    const vrn::internal::om_guard guard;
    QORMetaClass* metaClass = slot.load(std::memory_order_relaxed);
    if (metaClass == nullptr) {
        metaClass = make();
        slot.store(metaClass, std::memory_order_release);
    }
    return metaClass;
}

} // namespace velkor::objectmodeler
