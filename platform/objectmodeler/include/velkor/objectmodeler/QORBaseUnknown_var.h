/// Smart pointers to components: they hold one reference and release it on destruction.
#pragma once

#include "velkor/containers/QORListVal.h"
#include "velkor/objectmodeler/QORBaseUnknown.h"
#include "velkor/PlatformExport.h"

#include <stdexcept>
#include <utility>

/// What dereferencing an empty smart pointer throws.
class VELKOR_PLATFORM_API QORNullVarError : public std::logic_error {
public:
    QORNullVarError() : std::logic_error("an empty component pointer was dereferenced") {}
};

class VELKOR_PLATFORM_API QORBaseUnknown_var {
public:
    QORBaseUnknown_var() noexcept = default;
    /// Adds a reference to `object`, which may be null.
    QORBaseUnknown_var(QORBaseUnknown* object) noexcept : _object(object) {
        if (_object != nullptr) _object->AddRef();
    }
    QORBaseUnknown_var(const QORBaseUnknown_var& other) noexcept : QORBaseUnknown_var(other._object) {}
    QORBaseUnknown_var(QORBaseUnknown_var&& other) noexcept : _object(std::exchange(other._object, nullptr)) {}
    QORBaseUnknown_var& operator=(QORBaseUnknown_var other) noexcept {
        std::swap(_object, other._object);
        return *this;
    }
    ~QORBaseUnknown_var() {
        if (_object != nullptr) _object->Release();
    }

    /// Takes over the caller's reference.
    static QORBaseUnknown_var adopt(QORBaseUnknown* object) noexcept {
        QORBaseUnknown_var result;
        result._object = object;
        return result;
    }

    /// The object, without a reference of its own; null for none.
    QORBaseUnknown* get() const noexcept { return _object; }
    bool IsNull() const noexcept { return _object == nullptr; }            ///< True without an object.
    explicit operator bool() const noexcept { return _object != nullptr; } ///< True with an object.
    /// The object; without one it throws.
    QORBaseUnknown* operator->() const {
        if (_object == nullptr) ThrowErrorNullVar();
        return _object;
    }
    /// True when both stand for the same object, or both for none.
    friend bool operator==(const QORBaseUnknown_var& a, const QORBaseUnknown_var& b) noexcept {
        return a._object == b._object || (a._object != nullptr && a._object->IsEqual(b._object) == 1);
    }

    /// The interface of an identifier with a reference of its own; null when the pointer is empty or
    /// the object lacks it.
    void* CastTo(const IID& interfaceId) const;
    [[noreturn]] static void ThrowErrorNullVar(); ///< Throws, for a call through an empty handle.

private:
    QORBaseUnknown* _object = nullptr;
};

/// The smart pointer of one interface, which has a static ClassId(). A conversion from another smart
/// pointer queries the interface; it is empty when the object lacks it.
template <class Interface>
class QORInterface_var : public QORBaseUnknown_var {
public:
    QORInterface_var() noexcept = default;
    QORInterface_var(Interface* object) noexcept : QORBaseUnknown_var(object) {} ///< Takes a reference to the object.
    /// The interface of another handle's object; null when it has none.
    QORInterface_var(const QORBaseUnknown_var& other)
        : QORBaseUnknown_var(QORBaseUnknown_var::adopt(__CastTo(other))) {}

    /// Takes over the caller's reference.
    static QORInterface_var adopt(Interface* object) noexcept {
        QORInterface_var result;
        static_cast<QORBaseUnknown_var&>(result) = QORBaseUnknown_var::adopt(object);
        return result;
    }

    /// The interface with a reference that the caller releases; null when the object lacks it.
    static Interface* __CastTo(const QORBaseUnknown_var& other) {
        return static_cast<Interface*>(other.CastTo(Interface::ClassId()));
    }

    /// The object, without a reference of its own; null for none.
    Interface* get() const noexcept { return static_cast<Interface*>(QORBaseUnknown_var::get()); }
    /// The object; without one it throws.
    Interface* operator->() const { return static_cast<Interface*>(QORBaseUnknown_var::operator->()); }
};

/// A list of objects.
using QORListValQORBaseUnknown_var = QORListVal<QORBaseUnknown_var>;
