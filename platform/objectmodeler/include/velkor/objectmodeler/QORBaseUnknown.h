/// The base of every component: reference counting, interface queries and the class it belongs to.
#pragma once

#include "velkor/objectmodeler/QORMetaClass.h"
#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/PlatformExport.h"

#include <atomic>
#include <cstddef>
#include <new>

/// The first three operations of every component.
class VELKOR_PLATFORM_API IUnknown {
public:
    /// The interface of an identifier, with a reference of its own that the caller releases. S_OK, or
    /// E_NOINTERFACE and a null pointer.
    virtual HRESULT QueryInterface(const IID& interfaceId, void** interface) = 0;
    /// The number of references afterwards.
    virtual unsigned long AddRef() = 0;
    /// The number of references afterwards; the object is gone when that is 0.
    virtual unsigned long Release() = 0;

protected:
    ~IUnknown() = default;
};

/// Late-bound calls, which no component of this platform offers: every operation gives E_NOTIMPL.
class VELKOR_PLATFORM_API IDispatch : public IUnknown {
public:
    virtual HRESULT GetTypeInfoCount(unsigned int* count) = 0; ///< How many descriptions of types there are.
    /// A description of the type.
    virtual HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** typeInfo) = 0;
    /// Numbers of operations by name.
    virtual HRESULT GetIDsOfNames(const IID& interfaceId, const char* const* names, unsigned int count,
                                  unsigned long locale, long* ids) = 0;
    /// Calls an operation by its number.
    virtual HRESULT Invoke(long member, const IID& interfaceId, unsigned long locale, unsigned short flags,
                           void* parameters, void* result, void* exception, unsigned int* badArgument) = 0;

protected:
    ~IDispatch() = default;
};

/// State of a component in the object modeler's view.
enum class ComponentState : int { Created, Initialized, Removed };

/// An object is made with one reference, which belongs to whoever made it. The order of the virtual
/// operations is part of the contract; operations of interfaces follow behind.
class VELKOR_PLATFORM_API QORBaseUnknown : public IDispatch {
public:
    QORBaseUnknown() noexcept = default;
    /// A copy is an object of its own: references are not copied.
    QORBaseUnknown(const QORBaseUnknown&) noexcept : QORBaseUnknown() {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): nothing is assigned
    QORBaseUnknown& operator=(const QORBaseUnknown&) noexcept { return *this; }

    HRESULT QueryInterface(const IID& interfaceId, void** interface) override;
    unsigned long AddRef() override;
    unsigned long Release() override;
    HRESULT GetTypeInfoCount(unsigned int* count) override;
    HRESULT GetTypeInfo(unsigned int index, unsigned long locale, void** typeInfo) override;
    HRESULT GetIDsOfNames(const IID& interfaceId, const char* const* names, unsigned int count, unsigned long locale,
                          long* ids) override;
    HRESULT Invoke(long member, const IID& interfaceId, unsigned long locale, unsigned short flags, void* parameters,
                   void* result, void* exception, unsigned int* badArgument) override;
    /// The same as QueryInterface by the interface's name.
    virtual HRESULT QueryInterface(const char* interfaceName, void** interface);
    virtual ~QORBaseUnknown();
    virtual QORMetaClass* GetMetaObject() const; ///< The class of the object.
    /// Name of the object's class.
    virtual const char* IsA() const;
    /// 1 when the class or an ancestor has the name.
    virtual int IsAKindOf(const char* className) const;
    /// The object that stands behind this interface: the extended object of an extension, the
    /// implementation of a TIE, else the object itself. No reference is added.
    virtual QORBaseUnknown* GetImpl() const;
    /// 1 when there is no object behind the interface.
    virtual int IsNull() const;
    /// 1 when both stand for the same object.
    virtual int IsEqual(const QORBaseUnknown* other) const;
    /// Components without states of their own accept every change: S_OK.
    virtual HRESULT ChangeComponentState(ComponentState from, ComponentState to, const void* context);

    static QORMetaClass* MetaObject(); ///< The class itself.
    static const char* ClassName();    ///< Name of the class.
    static const IID& ClassId();       ///< Identifier of the class.

    /// Components come from the object modeler's storage; null when there is none left.
    static void* operator new(std::size_t size) noexcept;
    static void operator delete(void* object) noexcept; ///< Gives the memory of an object back.

private:
    friend struct ComponentAccess;
    std::atomic<unsigned long> _references{1};
    // The extended object or the implementation, with a reference of its own; null for most.
    QORBaseUnknown* _behind = nullptr;
};
