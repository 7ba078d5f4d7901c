/// The components that the library serves, made as extensions of an object. A host need not call these: it asks
/// an object for the interface, or makes the component by its name ("ExchangeAECServices",
/// "ExchangeIFCCustomMappingServices", "ExchangeIFCMappingServices",
/// "ExchangeIFCPLMAttributesMappingServices"), and the object modeler does.
///
/// Each gets the object to extend and the component that the object modeler has made, and gives the interface with a
/// reference that the caller releases, or null.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/QORBaseUnknown.h"

extern "C" {
/// QORIExchangeAECServices.
VELKOR_API IUnknown* CreateBOAQORIExchangeAECServicesQOREExchangeAECServices(QORBaseUnknown* object,
                                                                             QORBaseUnknown* second);
/// QORIExchangeIFCCustomMappingServices.
VELKOR_API IUnknown*
CreateBOAQORIExchangeIFCCustomMappingServicesQOREExchangeIFCCustomMappingServices(QORBaseUnknown* object,
                                                                                  QORBaseUnknown* second);
/// QORIExchangeIFCMappingServices.
VELKOR_API IUnknown* CreateBOAQORIExchangeIFCMappingServicesQOREExchangeIFCMappingServices(QORBaseUnknown* object,
                                                                                           QORBaseUnknown* second);
/// QORIExchangeIFCPLMAttributesMappingServices.
VELKOR_API IUnknown*
CreateBOAQORIExchangeIFCPLMAttributesMappingServicesQOREExchangeIFCPLMAttributesMappingServices(QORBaseUnknown* object,
                                                                                                QORBaseUnknown* second);
}
