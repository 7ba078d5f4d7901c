/// A schema's registration as an object: it lasts as long as the library that holds the
/// schema's texts, and takes the registration back when the library goes.
///
///     static QORDXSdaiSchemaDecl declaration(DXSdaiDictionaryRepo::AddPtr(&load, name));
#pragma once

#include "velkor/PlatformExport.h"

#include <cstdint>

class VELKOR_PLATFORM_API QORDXSdaiSchemaDecl {
public:
    /// Takes over a handle of DXSdaiDictionaryRepo::AddPtr; 0 stands for no registration.
    explicit QORDXSdaiSchemaDecl(std::uint64_t handle) noexcept : _handle(handle) {}
    /// Withdraws the registration.
    ~QORDXSdaiSchemaDecl();

    QORDXSdaiSchemaDecl(const QORDXSdaiSchemaDecl&) = delete;
    QORDXSdaiSchemaDecl& operator=(const QORDXSdaiSchemaDecl&) = delete;

    std::uint64_t handle() const noexcept { return _handle; } ///< Number of the registration.

private:
    std::uint64_t _handle;
};
