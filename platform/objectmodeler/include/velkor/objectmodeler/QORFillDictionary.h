/// What registration functions call to fill the class dictionary. A registration belongs to the
/// module whose table is being walked and goes with it.
#pragma once

#include "velkor/objectmodeler/QORBaseUnknown.h"
#include "velkor/PlatformExport.h"

/// Makes an extension: gets the object to extend and a second object that the object modeler
/// supplies, gives the interface with a reference that the caller releases, or null.
using QORExtensionFactory = IUnknown* (*)(QORBaseUnknown* object, QORBaseUnknown* second);
/// Makes a new component with one reference; null when there is no storage.
using QORCreationFunction = QORBaseUnknown* (*)();

class VELKOR_PLATFORM_API QORFillDictionary {
public:
    /// `factory` makes `implementation`, which gives objects the interface. The second function is
    /// unused by components of this kind (null), `mode` is 1 for an extension made on demand.
    static void Register(QORMetaClass* implementation, QORMetaClass* interface, QORExtensionFactory factory,
                         QORExtensionFactory secondFunction, int mode);
    /// An interface that a library declares and others implement.
    static void Register(const IID& interfaceId, QORMetaClass* interface);
    /// The function that makes a component by its creation name.
    static void RegisterFunctionCreation(const char* creationName, QORCreationFunction create);
};
