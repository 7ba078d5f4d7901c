/// Entries that a host resolves by name to make sure that the library with the schemas is loaded. They
/// load nothing: a schema is restored when the SDAI runtime first needs it.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"

/// The host's knowledge dictionary; none of the entries touches it.
class LoxDictionary;

extern "C" {

/// S_OK.
VELKOR_API HRESULT QORDXForceLoadShemas();

/// One per schema. The two release candidates have the shorter prefix, as hosts look them up.
VELKOR_API void QORDXSdaiIFC2X3dummy();
VELKOR_API void QORDXSdaiIFC4dummy();
VELKOR_API void QORDXSdaiIFC4X1dummy();
VELKOR_API void QORDXSdaiIFC4X2dummy();
VELKOR_API void QORDXSdaiIFC4X3_ADD2dummy();
VELKOR_API void QORDXSdaiIFC4X4dummy();
VELKOR_API void QORSdaiIFC4X3_RC1dummy();
VELKOR_API void QORSdaiIFC4X3_RC3dummy();

/// One per schema, as hosts with such dictionaries look them up.
VELKOR_API void LoxLoadDicoIFC2X3(LoxDictionary& iDictionary);
VELKOR_API void LoxLoadDicoIFC4(LoxDictionary& iDictionary);
VELKOR_API void LoxLoadDicoIFC4X1(LoxDictionary& iDictionary);
VELKOR_API void LoxLoadDicoIFC4X2(LoxDictionary& iDictionary);
VELKOR_API void LoxLoadDicoIFC4X3_ADD2(LoxDictionary& iDictionary);
VELKOR_API void LoxLoadDicoIFC4X3_RC1(LoxDictionary& iDictionary);
VELKOR_API void LoxLoadDicoIFC4X3_RC3(LoxDictionary& iDictionary);
VELKOR_API void LoxLoadDicoIFC4X4(LoxDictionary& iDictionary);

} // extern "C"
