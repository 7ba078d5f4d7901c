/// How extensions and TIEs are put together. Components reach these through ComponentMacros.h.
#pragma once

#include "velkor/objectmodeler/QORFillDictionary.h"
#include "velkor/PlatformExport.h"

/// Turns an implementation into an extension of `object`. `second` is the implementation that the
/// object modeler has made; when it is null, `create` may make one. Gives the interface with a
/// reference that the caller releases, or null.
VELKOR_PLATFORM_API IUnknown* ToCreateBOA(QORBaseUnknown* object, QORBaseUnknown* second, QORMetaClass* implementation,
                                          const IID& interfaceId, QORCreationFunction create);

/// Binds a TIE to the object whose operations it offers, and holds a reference to that. `slot` is the
/// TIE class's own and remembers its metaclass; `second` stands in when `object` is null, and
/// `create` when both are. An object of another class than the implementation's is not bound.
VELKOR_PLATFORM_API void Tie_Construct(QORBaseUnknown* tie, QORMetaClass* tieMetaClass, QORBaseUnknown* object,
                                       const IID& implementationId, ENUMTypeOfClass implementationKind, void*& slot,
                                       QORCreationFunction create, QORBaseUnknown* second);
VELKOR_PLATFORM_API void Tie_Destruct(QORBaseUnknown* tie);
/// The number of references afterwards.
VELKOR_PLATFORM_API unsigned long Tie_AddRef(QORBaseUnknown* tie, ENUMTypeOfClass tieKind);
/// The number of references afterwards; at 0 the TIE must go.
VELKOR_PLATFORM_API unsigned long Tie_Release(QORBaseUnknown* tie, ENUMTypeOfClass tieKind);
/// The TIE itself for its own interface; everything else is asked of the object behind.
VELKOR_PLATFORM_API HRESULT Tie_Query(QORBaseUnknown* tie, QORMetaClass* tieMetaClass, const IID& interfaceId,
                                      void** interface);
