// What the library declares to the object modeler when it is loaded: the module object with the table
// of registration functions, and the list of exit callbacks.

#include "ExitCallbacks.h"
#include "QOREExchangeAECServices.h"
#include "QOREExchangeIFCCustomMappingServices.h"
#include "QOREExchangeIFCMappingServices.h"
#include "QOREExchangeIFCPLMAttributesMappingServices.h"
#include "QORIIFCImportServices.h"
#include "QORXCADNodeFilter.h"
#include "velkor/objectmodeler/QORFillDictionary.h"
#include "velkor/objectmodeler/QOROMModule.h"
#include "VelkorComponents.h"

#include <cxxabi.h>
#include <iterator>
#include <string_view>

// The ABI's name for the library that a unit is linked into.
extern "C" [[gnu::visibility("hidden")]] void* __dso_handle;

namespace {

void* moduleAddress();

template <class Implementation, class Interface, QORExtensionFactory factory>
void* registerExtension() {
    QORFillDictionary::Register(Implementation::MetaObject(), Interface::MetaObject(), factory, nullptr, 1);
    return moduleAddress();
}

// The creation name is the class name without its prefix.
template <class Implementation>
void* registerCreation() {
    constexpr std::string_view prefix = "QORE";
    QORFillDictionary::RegisterFunctionCreation(Implementation::ClassName() + prefix.size(),
                                                velkor::objectmodeler::createInstance<Implementation>);
    return moduleAddress();
}

template <class Interface>
void* registerInterface() {
    QORFillDictionary::Register(Interface::ClassId(), Interface::MetaObject());
    return moduleAddress();
}

// A section of its own, so that the table can be found in the file; the null entries bound it.
[[gnu::section("velkor_registrations"), gnu::used]] const QOROMRegistration registrations[] = {
    nullptr,
    registerExtension<QOREExchangeAECServices, QORIExchangeAECServices,
                      CreateBOAQORIExchangeAECServicesQOREExchangeAECServices>,
    registerCreation<QOREExchangeAECServices>,
    registerExtension<QOREExchangeIFCCustomMappingServices, QORIExchangeIFCCustomMappingServices,
                      CreateBOAQORIExchangeIFCCustomMappingServicesQOREExchangeIFCCustomMappingServices>,
    registerCreation<QOREExchangeIFCCustomMappingServices>,
    registerExtension<QOREExchangeIFCMappingServices, QORIExchangeIFCMappingServices,
                      CreateBOAQORIExchangeIFCMappingServicesQOREExchangeIFCMappingServices>,
    registerCreation<QOREExchangeIFCMappingServices>,
    registerExtension<QOREExchangeIFCPLMAttributesMappingServices, QORIExchangeIFCPLMAttributesMappingServices,
                      CreateBOAQORIExchangeIFCPLMAttributesMappingServicesQOREExchangeIFCPLMAttributesMappingServices>,
    registerCreation<QOREExchangeIFCPLMAttributesMappingServices>,
    registerInterface<QORIIFCImportServices>,
    registerExtension<QORXCADNodeFilter, QORIDOMNodeFilter, CreateTIEQORIDOMNodeFilterQORXCADNodeFilter>,
    nullptr,
};

QOROMModule module({std::begin(registrations), std::end(registrations) - 1});

void* moduleAddress() {
    return &module;
}

vrn::internal::v1::exit_callback::list exitCallbacks;

} // namespace

void velkor::library::callAtUnload(vrn::internal::v1::exit_callback::callback callback, int order) {
    namespace exit_callback = vrn::internal::v1::exit_callback;
    // As for a static object of this library, so that unloading runs it: std::atexit leaves to the C library, or to
    // what stands in for it, whose call it is.
    const auto registrar = [] {
        abi::__cxa_atexit([](void*) { exit_callback::call(exitCallbacks); }, nullptr, &__dso_handle);
    };
    exit_callback::do_register(callback, order, registrar, exitCallbacks);
}
