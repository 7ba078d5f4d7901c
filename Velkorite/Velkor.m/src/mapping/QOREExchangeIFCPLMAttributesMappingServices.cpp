#include "mapping/QOREExchangeIFCPLMAttributesMappingServices.h"

#include "foundation/ExitCallbacks.h"
#include "PLMAttributesMappingStore.h"
#include "QORIFCDXDataSetupServices.h"
#include "ResourceKinds.h"
#include "VelkorComponents.h"

#include <memory>
#include <new>
#include <utility>

VELKOR_IMPLEMENT_CLASS(QOREExchangeIFCPLMAttributesMappingServices, QORIExchangeIFCPLMAttributesMappingServices,
                       "QORNull", "Velkorite")
VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeIFCPLMAttributesMappingServices,
                     QOREExchangeIFCPLMAttributesMappingServices)

namespace {

using velkor::library::PLMAttributesMappingStore;

PLMAttributesMappingStore* mappingStore = nullptr;

int ReleaseMappingStore(int) {
    delete std::exchange(mappingStore, nullptr);
    return 0;
}

PLMAttributesMappingStore* GetMappingStore() {
    if (mappingStore != nullptr) return mappingStore;
    auto store = std::make_unique<PLMAttributesMappingStore>();
    const velkor::ResourceKind& kind = velkor::plmAttributesMappingResource;
    QORListValQORUnicodeString paths;
    // Of a failure the paths found so far are kept.
    QORIFCDXDataSetupServices::GetResourcePaths(kind.resourceSet, kind.category, kind.subFolder, paths);
    for (const QORUnicodeString& path : paths) store->load(path);
    velkor::library::callAtUnload(ReleaseMappingStore, 1);
    mappingStore = store.release();
    return mappingStore;
}

} // namespace

// No exception leaves these operations. What has not been loaded for want of memory is loaded by the next of them.

HRESULT QOREExchangeIFCPLMAttributesMappingServices::LoadMapping() try {
    GetMappingStore();
    return S_OK;
} catch (const std::bad_alloc&) {
    return S_OK;
}

HRESULT QOREExchangeIFCPLMAttributesMappingServices::GetIFCPropertyFromPLMAttribute(
    const QORUnicodeString& iPLMType, const QORUnicodeString& iPLMAttribute, QORUnicodeString& oPropertySetName,
    QORUnicodeString& oIFCProperty) try {
    const PLMAttributesMappingStore* store = GetMappingStore();
    if (store == nullptr) return E_FAIL;
    if (const auto* record = store->find(iPLMType, iPLMAttribute)) {
        oPropertySetName = record->PropertySetName;
        oIFCProperty = record->IFCProperty;
        return S_OK;
    }
    // Built in, for hosts without a mapping of their pipes.
    if (iPLMAttribute == "V_WallThickness" && (iPLMType == "Piping_FlexibleType" || iPLMType == "Piping_RigidPipe")) {
        oPropertySetName = "Pset_PipeSegmentTypeCommon";
        oIFCProperty = "InnerDiameter";
        return S_OK;
    }
    return E_FAIL;
} catch (const std::bad_alloc&) {
    return E_FAIL;
}
