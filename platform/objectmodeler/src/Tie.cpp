#include "velkor/objectmodeler/Tie.h"

#include "ComponentAccess.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"

IUnknown* ToCreateBOA(QORBaseUnknown* object, QORBaseUnknown* second, QORMetaClass* implementation,
                      const IID& interfaceId, QORCreationFunction create) {
    const QORBaseUnknown_var component =
        second != nullptr ? QORBaseUnknown_var(second) : QORBaseUnknown_var::adopt(create());
    if (component.IsNull()) return nullptr;
    if (!implementation->isKindOf(interfaceId) || component->IsAKindOf(implementation->GetClassName()) == 0) {
        VELKOR_ASSERTION_FAILED();
        return nullptr;
    }
    // An object that is its own implementation would hold itself for ever.
    if (object != component.get()) ComponentAccess::setBehind(*component.get(), object);
    component->AddRef();
    return component.get();
}

void Tie_Construct(QORBaseUnknown* tie, QORMetaClass* tieMetaClass, QORBaseUnknown* object, const IID& implementationId,
                   ENUMTypeOfClass implementationKind, void*& slot, QORCreationFunction create,
                   QORBaseUnknown* second) {
    slot = tieMetaClass;
    QORBaseUnknown_var behind(object != nullptr ? object : second);
    if (behind.IsNull() && create != nullptr) behind = QORBaseUnknown_var::adopt(create());
    if (behind.IsNull() || implementationKind != TypeOfImplementation ||
        !behind->GetMetaObject()->isKindOf(implementationId)) {
        // Nothing is bound: the TIE would forward to operations that the object does not have.
        VELKOR_ASSERTION_FAILED();
        return;
    }
    ComponentAccess::setBehind(*tie, behind.get());
}

void Tie_Destruct(QORBaseUnknown* tie) {
    ComponentAccess::setBehind(*tie, nullptr);
}

unsigned long Tie_AddRef(QORBaseUnknown* tie, ENUMTypeOfClass) {
    return ComponentAccess::addReference(*tie);
}

unsigned long Tie_Release(QORBaseUnknown* tie, ENUMTypeOfClass) {
    return ComponentAccess::dropReference(*tie);
}

HRESULT Tie_Query(QORBaseUnknown* tie, QORMetaClass* tieMetaClass, const IID& interfaceId, void** interface) {
    if (interface == nullptr) return E_INVALIDARG;
    *interface = nullptr;
    if (tieMetaClass->isKindOf(interfaceId) && interfaceId != QORBaseUnknown::ClassId()) {
        tie->AddRef();
        *interface = tie;
        return S_OK;
    }
    QORBaseUnknown* object = ComponentAccess::behind(*tie);
    return object != nullptr ? object->QueryInterface(interfaceId, interface) : E_NOINTERFACE;
}
