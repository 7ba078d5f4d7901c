#include "velkor/objectmodeler/QORBaseUnknown.h"

#include "ComponentAccess.h"
#include "velkor/objectmodeler/ClassDictionary.h"

#include <new>

using namespace velkor::objectmodeler;

HRESULT QORBaseUnknown::QueryInterface(const IID& interfaceId, void** interface) {
    if (interface == nullptr) return E_INVALIDARG;
    *interface = nullptr;
    if (GetMetaObject()->isKindOf(interfaceId)) {
        AddRef();
        *interface = this;
        return S_OK;
    }
    // An extension answers for what the object behind it is, and for other extensions of it.
    QORBaseUnknown* object = GetImpl();
    if (object != this) return object->QueryInterface(interfaceId, interface);
    *interface = extendObject(*this, interfaceId);
    return *interface != nullptr ? S_OK : E_NOINTERFACE;
}

HRESULT QORBaseUnknown::QueryInterface(const char* interfaceName, void** interface) {
    if (interfaceName == nullptr || interface == nullptr) return E_INVALIDARG;
    *interface = nullptr;
    // What an object is by itself needs no registration.
    if (GetMetaObject()->IsAKindOf(interfaceName) == 1) {
        return QueryInterface(metaClass(interfaceName)->GetClassId(), interface);
    }
    QORBaseUnknown* object = GetImpl();
    if (object != this) return object->QueryInterface(interfaceName, interface);
    const IID* id = interfaceIdOf(interfaceName);
    return id != nullptr ? QueryInterface(*id, interface) : E_NOINTERFACE;
}

unsigned long QORBaseUnknown::AddRef() {
    return ++_references;
}

unsigned long QORBaseUnknown::Release() {
    const unsigned long left = --_references;
    if (left == 0) delete this;
    return left;
}

HRESULT QORBaseUnknown::GetTypeInfoCount(unsigned int* count) {
    if (count != nullptr) *count = 0;
    return E_NOTIMPL;
}

HRESULT QORBaseUnknown::GetTypeInfo(unsigned int, unsigned long, void** typeInfo) {
    if (typeInfo != nullptr) *typeInfo = nullptr;
    return E_NOTIMPL;
}

HRESULT QORBaseUnknown::GetIDsOfNames(const IID&, const char* const*, unsigned int, unsigned long, long*) {
    return E_NOTIMPL;
}

HRESULT QORBaseUnknown::Invoke(long, const IID&, unsigned long, unsigned short, void*, void*, void*, unsigned int*) {
    return E_NOTIMPL;
}

QORBaseUnknown::~QORBaseUnknown() {
    if (_behind != nullptr) _behind->Release();
}

QORMetaClass* QORBaseUnknown::GetMetaObject() const {
    return MetaObject();
}

const char* QORBaseUnknown::IsA() const {
    return ClassName();
}

int QORBaseUnknown::IsAKindOf(const char* className) const {
    return MetaObject()->IsAKindOf(className);
}

QORBaseUnknown* QORBaseUnknown::GetImpl() const {
    return _behind != nullptr ? _behind : const_cast<QORBaseUnknown*>(this);
}

int QORBaseUnknown::IsNull() const {
    return 0;
}

int QORBaseUnknown::IsEqual(const QORBaseUnknown* other) const {
    return other != nullptr && GetImpl() == other->GetImpl() ? 1 : 0;
}

HRESULT QORBaseUnknown::ChangeComponentState(ComponentState, ComponentState, const void*) {
    return S_OK;
}

QORMetaClass* QORBaseUnknown::MetaObject() {
    // Under the one lock of all metaclasses: who makes another class's asks for this one with the lock held.
    static constinit std::atomic<QORMetaClass*> slot = nullptr;
    return metaClassOnDemand(slot, [] {
        return vrn::internal::fct_RetrieveMetaObject("QORBaseUnknown", TypeOfImplementation, nullptr, nullptr,
                                                     "ObjectModeler", sizeof(QORBaseUnknown));
    });
}

const char* QORBaseUnknown::ClassName() {
    return MetaObject()->GetClassName();
}

const IID& QORBaseUnknown::ClassId() {
    return MetaObject()->GetClassId();
}

void* QORBaseUnknown::operator new(std::size_t size) noexcept {
    // What a host has installed as new-handler hears of it.
    return ::operator new(size, std::nothrow);
}

void QORBaseUnknown::operator delete(void* object) noexcept {
    ::operator delete(object);
}
