/// Access to the host's types by name, letter case included.
#pragma once

#include "velkor/knowledge/QORIType.h"

class QORVlePLMNavPublicServices {
public:
    /// A knowledge type. E_FAIL, and an empty type, when there is none of the name.
    static HRESULT RetrieveKnowledgeType(const char* name, QORIType_var& type);
};

class QORVlePLMNavSpecializationAccessPublicServices {
public:
    /// A specialization of a knowledge type. E_FAIL, and an empty type, when there is none of the name.
    static HRESULT RetrieveSpecializationType(const char* name, QORIType_var& type);
};

class QORVleTypeProtectedServices {
public:
    /// 1 when the type has no objects of its own, else 0. E_FAIL, `isAbstract` untouched, for a type that
    /// the host has not made known.
    static HRESULT GetAbstractStatus(const QORIType_var& type, unsigned char& isAbstract);
};
