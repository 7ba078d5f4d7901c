/// The class dictionary: which components the loaded libraries offer, and how to get one.
///
///     auto services = createComponent("ExchangeIFCMappingServices");
///     if (!services.IsNull()) …
#pragma once

#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::objectmodeler {

/// A new component by its creation name; empty when no loaded library has one of the name.
VELKOR_PLATFORM_API QORBaseUnknown_var createComponent(std::string_view creationName);

/// An extension of `object` that has the interface, with a reference that the caller releases; null
/// when no loaded library offers one. What QueryInterface answers with for interfaces that the
/// object does not have itself.
VELKOR_PLATFORM_API void* extendObject(QORBaseUnknown& object, const IID& interfaceId);

/// Identifier of an interface that a loaded library registered or gives objects; null for no such.
VELKOR_PLATFORM_API const IID* interfaceIdOf(std::string_view interfaceName);

/// One registration as it was made.
struct RegisteredClass {
    /// Empty for the registration of an interface alone, and of a creation function.
    std::string implementation;
    std::string interface;
    std::string creationName;
};
/// All registrations of the libraries loaded, in order.
VELKOR_PLATFORM_API std::vector<RegisteredClass> registeredClasses();

} // namespace velkor::objectmodeler
