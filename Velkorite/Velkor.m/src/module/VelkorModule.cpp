// What the library declares to the object modeler when it is loaded: the module object with the table of registration
// functions.

#include "mapping/QOREExchangeAECServices.h"
#include "mapping/QOREExchangeIFCCustomMappingServices.h"
#include "mapping/QOREExchangeIFCMappingServices.h"
#include "mapping/QOREExchangeIFCPLMAttributesMappingServices.h"
#include "QORIIFCImportServices.h"
#include "QORXCADNodeFilter.h"
#include "velkor/objectmodeler/QORFillDictionary.h"
#include "velkor/objectmodeler/QOROMModule.h"
#include "VelkorComponents.h"

#include <iterator>
#include <string_view>

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

} // namespace
