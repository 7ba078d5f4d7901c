/// The few lines that every class with a metaclass repeats.
///
///     class QOREExchangeAECServices : public QORIExchangeAECServices {
///         VELKOR_DECLARE_CLASS
///         …
///     };
///     // in the source unit:
///     VELKOR_IMPLEMENT_CLASS(QOREExchangeAECServices, QORIExchangeAECServices, "QORnull", "Velkorite")
///     VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeAECServices, QOREExchangeAECServices)
#pragma once

#include "velkor/objectmodeler/Tie.h"
#include "velkor/PlatformExport.h"

#include <atomic>
#include <new>
#include <utility>

namespace velkor::objectmodeler {

/// A component with one reference. The object modeler's storage gives null when there is no memory left; this
/// throws std::bad_alloc, as everything else does.
template <class Implementation, class... Arguments>
Implementation* newComponent(Arguments&&... arguments) {
    auto* made = new Implementation(std::forward<Arguments>(arguments)...);
    if (made == nullptr) throw std::bad_alloc();
    return made;
}

/// What a factory makes; null when there is no memory left.
template <class Make>
auto madeOrNull(Make make) -> decltype(make()) {
    try {
        return make();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

/// Makes a component in the object modeler's storage; null when there is no memory left.
template <class Implementation>
QORBaseUnknown* createInstance() {
    return madeOrNull([]() -> QORBaseUnknown* { return new Implementation; });
}

/// The creation function of classes that are not made this way.
inline QORBaseUnknown* createNothing() {
    return nullptr;
}

} // namespace velkor::objectmodeler

/// Inside a class: its class operations.
#define VELKOR_DECLARE_CLASS                                                                                           \
public:                                                                                                                \
    static QORMetaClass* MetaObject();                                                                                 \
    static const char* ClassName();                                                                                    \
    [[maybe_unused]] static const IID& ClassId();                                                                      \
    QORMetaClass* GetMetaObject() const override;                                                                      \
    const char* IsA() const override;                                                                                  \
    int IsAKindOf(const char* className) const override;                                                               \
                                                                                                                       \
private:                                                                                                               \
    VELKOR_PLATFORM_LOCAL static std::atomic<QORMetaClass*> _metaClass;

/// What all classes of the object modeler have.
#define VELKOR_IMPLEMENT_CLASS_OPERATIONS(Class)                                                                       \
    std::atomic<QORMetaClass*> Class::_metaClass = nullptr;                                                            \
    const char* Class::ClassName() {                                                                                   \
        return MetaObject()->GetClassName();                                                                           \
    }                                                                                                                  \
    const IID& Class::ClassId() {                                                                                      \
        return MetaObject()->GetClassId();                                                                             \
    }                                                                                                                  \
    QORMetaClass* Class::GetMetaObject() const {                                                                       \
        return MetaObject();                                                                                           \
    }                                                                                                                  \
    const char* Class::IsA() const {                                                                                   \
        return ClassName();                                                                                            \
    }                                                                                                                  \
    int Class::IsAKindOf(const char* className) const {                                                                \
        return MetaObject()->IsAKindOf(className);                                                                     \
    }

/// In the source unit of an implementation class. `ParentClass` is its interface for a BOA component,
/// QORBaseUnknown otherwise; `extendedClass` is spelled as the class spells it.
#define VELKOR_IMPLEMENT_CLASS(Class, ParentClass, extendedClass, framework)                                           \
    VELKOR_IMPLEMENT_CLASS_OPERATIONS(Class)                                                                           \
    QORMetaClass* Class::MetaObject() {                                                                                \
        return velkor::objectmodeler::metaClassOnDemand(_metaClass, [] {                                               \
            return vrn::internal::fct_RetrieveMetaObject(#Class, TypeOfImplementation, ParentClass::MetaObject(),      \
                                                         extendedClass, framework, sizeof(Class));                     \
        });                                                                                                            \
    }

/// In the source unit of an interface with the identifier `id`.
#define VELKOR_IMPLEMENT_INTERFACE(Interface, ParentInterface, id, framework)                                          \
    VELKOR_IMPLEMENT_CLASS_OPERATIONS(Interface)                                                                       \
    QORMetaClass* Interface::MetaObject() {                                                                            \
        return velkor::objectmodeler::metaClassOnDemand(_metaClass, [] {                                               \
            QORMetaClass* made =                                                                                       \
                vrn::internal::fct_InitMetaObjectItf(id, ParentInterface::MetaObject(), #Interface, framework);        \
            vrn::internal::fct_InitMetaObjectItfEpilog(made, framework, id);                                           \
            return made;                                                                                               \
        });                                                                                                            \
    }

/// The factory of an extension whose class derives from its interface. `visibility` marks exports.
#define VELKOR_IMPLEMENT_BOA(visibility, Interface, Implementation)                                                    \
    extern "C" visibility IUnknown* CreateBOA##Interface##Implementation(QORBaseUnknown* object,                       \
                                                                         QORBaseUnknown* second) {                     \
        return velkor::objectmodeler::madeOrNull([&] {                                                                 \
            return ToCreateBOA(object, second, Implementation::MetaObject(), Interface::ClassId(),                     \
                               velkor::objectmodeler::createNothing);                                                  \
        });                                                                                                            \
    }

/// Opens the TIE class of an interface on an implementation that derives from QORBaseUnknown. The
/// interface's operations follow, each forwarded with `implementation()->`; VELKOR_TIE_END closes it.
#define VELKOR_TIE_BEGIN(Interface, Implementation)                                                                    \
    namespace {                                                                                                        \
    class TIE##Interface##Implementation final : public Interface {                                                    \
    public:                                                                                                            \
        using ImplementationClass = Implementation;                                                                    \
        TIE##Interface##Implementation(QORBaseUnknown* object, QORBaseUnknown* second) {                               \
            static void* slot = nullptr;                                                                               \
            Tie_Construct(this, TieMetaObject(), object, Implementation::ClassId(),                                    \
                          Implementation::MetaObject()->GetTypeOfClass(), slot, velkor::objectmodeler::createNothing,  \
                          second);                                                                                     \
        }                                                                                                              \
        ~TIE##Interface##Implementation() override { Tie_Destruct(this); }                                             \
        static QORMetaClass* TieMetaObject() {                                                                         \
            static std::atomic<QORMetaClass*> tieMetaClass = nullptr;                                                  \
            return velkor::objectmodeler::metaClassOnDemand(tieMetaClass, [] {                                         \
                QORMetaClass* implementationClass = Implementation::MetaObject();                                      \
                return vrn::internal::Tie_InitMetaObject(implementationClass, Interface::MetaObject(), TypeOfTie);     \
            });                                                                                                        \
        }                                                                                                              \
        using Interface::QueryInterface;                                                                               \
        HRESULT QueryInterface(const IID& id, void** itf) override {                                                   \
            return Tie_Query(this, TieMetaObject(), id, itf);                                                          \
        }                                                                                                              \
        unsigned long AddRef() override { return Tie_AddRef(this, TieMetaObject()->GetTypeOfClass()); }                \
        unsigned long Release() override {                                                                             \
            const unsigned long left = Tie_Release(this, TieMetaObject()->GetTypeOfClass());                           \
            if (left == 0) delete this;                                                                                \
            return left;                                                                                               \
        }                                                                                                              \
        QORMetaClass* GetMetaObject() const override { return TieMetaObject(); }                                       \
        Implementation* implementation() const { return static_cast<Implementation*>(GetImpl()); }

/// Ends what VELKOR_TIE_BEGIN began.
#define VELKOR_TIE_END(visibility, Interface, Implementation)                                                          \
    }                                                                                                                  \
    ;                                                                                                                  \
    }                                                                                                                  \
    extern "C" visibility IUnknown* CreateTIE##Interface##Implementation(QORBaseUnknown* object,                       \
                                                                         QORBaseUnknown* second) {                     \
        return velkor::objectmodeler::madeOrNull([&]() -> IUnknown* {                                                  \
            auto* tie = new TIE##Interface##Implementation(object, second);                                            \
            if (tie == nullptr || tie->GetImpl() != tie) return tie;                                                   \
            tie->Release();                                                                                            \
            return nullptr;                                                                                            \
        });                                                                                                            \
    }
