/// An object that takes part in an exchange: how a host presents a product of a model to the services.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORIExchangeObject : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT GetIdentifier(QORUnicodeString& identifier) = 0; ///< The object's identifier.
    virtual HRESULT GetName(QORUnicodeString& name) = 0;             ///< The object's name.
    /// The object that this one is a part of; empty for none.
    virtual HRESULT GetParent(QORBaseUnknown_var& parent) = 0;
    virtual HRESULT GetFileName(QORUnicodeString& fileName) = 0; ///< Name of the file that it comes from.
    /// Identifier, name, IFC type name, description, file name, and the number of the instance in the file.
    virtual HRESULT GetDescription(QORUnicodeString& identifier, QORUnicodeString& name, QORUnicodeString& ifcType,
                                   QORUnicodeString& description, QORUnicodeString& fileName, int& number) = 0;
};
using QORIExchangeObject_var = QORInterface_var<QORIExchangeObject>;

/// The properties that an exchange object carries.
class VELKOR_PLATFORM_API QORIExchangeUserProperties : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Appends names, values, types and units to parallel lists. Names are in upper case.
    virtual HRESULT GetUserProperties(QORListValQORUnicodeString& names, QORListValQORUnicodeString& values,
                                      QORListValQORUnicodeString& types, QORListValQORUnicodeString& units) = 0;
};
using QORIExchangeUserProperties_var = QORInterface_var<QORIExchangeUserProperties>;
