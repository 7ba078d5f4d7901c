/// Access to the host's types by name, letter case included.
#pragma once

#include "velkor/knowledge/QORIType.h"
#include "velkor/PlatformExport.h"

/// Knowledge types by name.
class VELKOR_PLATFORM_API QORVlePLMNavPublicServices {
public:
    /// A knowledge type. E_FAIL, and an empty type, when there is none of the name.
    static HRESULT RetrieveKnowledgeType(const char* name, QORIType_var& type);
};

/// Specializations by name.
class VELKOR_PLATFORM_API QORVlePLMNavSpecializationAccessPublicServices {
public:
    /// A specialization of a knowledge type. E_FAIL, and an empty type, when there is none of the name.
    static HRESULT RetrieveSpecializationType(const char* name, QORIType_var& type);
};

/// What is known of a type.
class VELKOR_PLATFORM_API QORVleTypeProtectedServices {
public:
    /// 1 when the type has no objects of its own, else 0. E_FAIL, `isAbstract` untouched, for a type that
    /// the host has not made known.
    static HRESULT GetAbstractStatus(const QORIType_var& type, unsigned char& isAbstract);
};
