/// A library as the object modeler sees it. Building the module object records where the library's
/// registration table lies and nothing more; the table is walked when the class dictionary is first
/// asked something. Destroying the module object takes every registration back.
#pragma once

#include "velkor/PlatformExport.h"

/// One entry of a registration table: makes one registration and gives the module object's address.
using QOROMRegistration = void* (*)();

/// The table lies between two null entries, whose addresses these are; the walk skips null entries.
struct QOROMModuleInfo {
    const QOROMRegistration* leadingEntry;
    const QOROMRegistration* trailingEntry;
};

class VELKOR_PLATFORM_API QOROMModule {
public:
    explicit QOROMModule(const QOROMModuleInfo& info); ///< A module of that description.
    ~QOROMModule();
    QOROMModule(const QOROMModule&) = delete;
    QOROMModule& operator=(const QOROMModule&) = delete;

    const QOROMModuleInfo& info() const noexcept { return _info; } ///< What it was made with.

private:
    QOROMModuleInfo _info;
};
