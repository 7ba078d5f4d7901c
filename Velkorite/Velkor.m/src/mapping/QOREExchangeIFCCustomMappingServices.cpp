#include "mapping/QOREExchangeIFCCustomMappingServices.h"

#include "foundation/Results.h"
#include "QORHashTabCustoMappingElement.h"
#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCPSetQtoValidationService.h"
#include "ResourceNames.h"
#include "resources/ResourceDocument.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/knowledge/QORITypeDictionary.h"
#include "velkor/knowledge/QORVleTypeServices.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/text/QORToken.h"
#include "VelkorComponents.h"

#include <memory>

VELKOR_IMPLEMENT_CLASS(QOREExchangeIFCCustomMappingServices, QORIExchangeIFCCustomMappingServices, "QORNull",
                       "Velkorite")
VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeIFCCustomMappingServices, QOREExchangeIFCCustomMappingServices)

namespace {

using namespace velkor::library;
namespace names = velkor::names::custom;

constexpr unsigned int importRank = 1;

QORIDOMDocument_var customMappingDocument;
QORHashTabCustoMappingElement* customMappingTable = nullptr;
bool TableBuilt = false;

/// Whether scopes are names of types: the host's dictionary knows types of buildings.
bool scopesAreTypes() {
    const QORITypeDictionary_var dictionary = QORGlobalFunctions::GetTypeDictionary();
    if (dictionary.IsNull()) return false;
    QORListValQORUnicodeString names;
    dictionary->ListTypeNames(names);
    for (QORUnicodeString name : names) {
        name.ToLower();
        // Behind the first character: a name that begins with it does not count.
        if (name.SearchSubString("ifc") >= 1 || name.SearchSubString("aec") >= 1) return true;
    }
    return false;
}

/// Puts an element in place of one with the same hash. False when that one is of a smaller rank and stays.
bool replace(std::unique_ptr<CustoMappingElement> element, unsigned int rank) {
    CustoMappingElement* present = customMappingTable->Insert(element.get());
    if (present != element.get()) {
        if (present->GetInheritanceRank() < rank) return false;
        delete customMappingTable->Remove(present);
        customMappingTable->Insert(element.get());
    }
    static_cast<void>(element.release());
    return true;
}

void dropTable() {
    if (customMappingTable == nullptr) return;
    customMappingTable->ApplyDelete();
    delete customMappingTable;
    customMappingTable = nullptr;
}

/// A set that users map to is one that validation must let pass.
void announce(QORUnicodeString& toEntity) {
    QORIFCPSetQtoValidationService* validation = QORIFCPSetQtoValidationService::getInstance();
    if (validation == nullptr) return;
    unsigned char isValidating = 0;
    validation->GetIfcPsetQtoValidation(isValidating);
    if (toEntity.IsEmpty() || isValidating == 0) return;
    toEntity.ToUpper();
    validation->InitializeCustomPSetQtoList(toEntity);
}

} // namespace

HRESULT QOREExchangeIFCCustomMappingServices::LoadCustomMapping() {
    dropTable();
    RETURN_IF_FAILED(reported(readResource(velkor::customMappingResource, customMappingDocument)));
    TableBuilt = false;
    return S_OK;
}

HRESULT QOREExchangeIFCCustomMappingServices::GetCustomMapping(const QORUnicodeString& iEntity,
                                                               const QORUnicodeString& iProperty,
                                                               const QORUnicodeString& iScope,
                                                               QORUnicodeString& oEntity, QORUnicodeString& oProperty) {
    QORIFCOptionsFromXCAD* options = QORIFCOptionsFromXCAD::GetInstance();
    if (options != nullptr && options->GetValueIFCVersionMapping() == S_OK) return IFC_MAPPING_NONE;
    if (!TableBuilt) {
        BuildCustomMappingTable();
        TableBuilt = true;
    }
    if (customMappingTable == nullptr) return IFC_MAPPING_NONE;
    CustoMappingElement probe(iEntity, iProperty, oEntity, oProperty, iScope, importRank);
    CustoMappingElement* found = customMappingTable->Locate(&probe);
    if (found == nullptr) return IFC_MAPPING_NONE;
    oEntity = found->GetToEntity();
    oProperty = found->GetToProperty();
    return IFC_MAPPING_MAPPED;
}

HRESULT QOREExchangeIFCCustomMappingServices::BuildCustomMappingTable() {
    const QORIDOMDocument_var document = customMappingDocument;
    if (document.IsNull()) return reported(E_UNEXPECTED);
    const NodeRange standard = select(document, {names::root, names::standard});
    RETURN_IF_FAILED(standard.result());
    const NodeRange custom = select(document, {names::root, names::mapping});
    RETURN_IF_FAILED(custom.result());
    const unsigned int count = standard.length() + custom.length();
    if (count == 0) return reported(E_UNEXPECTED);
    customMappingTable = new QORHashTabCustoMappingElement(QORHTAB_ComputeKeyCustoMappingElement,
                                                           QORHTAB_CompareCustoMappingElement, static_cast<int>(count));
    try {
        const bool isResolving = scopesAreTypes();
        addMappings(standard, names::standard, isResolving);
        addMappings(custom, names::mapping, isResolving);
    } catch (...) {
        // Without memory there is no table rather than a part of it.
        dropTable();
        throw;
    }
    return S_OK;
}

void QOREExchangeIFCCustomMappingServices::addMappings(const NodeRange& nodes, const char* section, bool isResolving) {
    for (const ListedNode& listed : nodes) {
        CurrentSection = section;
        QORIDOMElement_var element;
        QORUnicodeString fromEntity, toEntity, fromProperty, toProperty, scope;
        const auto read = [&](const char* name, QORUnicodeString& value) {
            return SUCCEEDED(attribute(element, name, value));
        };
        const bool isRead = SUCCEEDED(asElement(listed.node, element)) && read(names::fromEntity, fromEntity) &&
                            read(names::toEntity, toEntity) && read(names::fromProperty, fromProperty) &&
                            read(names::toProperty, toProperty) && read(names::scope, scope);
        if (!isRead) continue;
        if (CurrentSection == names::mapping) announce(toEntity);
        addScopes(scope, isResolving, fromEntity, toEntity, fromProperty, toProperty);
    }
}

void QOREExchangeIFCCustomMappingServices::addScopes(const QORUnicodeString& scopes, bool isResolving,
                                                     const QORUnicodeString& fromEntity,
                                                     const QORUnicodeString& toEntity,
                                                     const QORUnicodeString& fromProperty,
                                                     const QORUnicodeString& toProperty) {
    QORToken tokens(scopes);
    QORUnicodeString token = tokens.GetNextToken(names::typeSeparator);
    while (!token.IsEmpty()) {
        QORUnicodeString scope = token;
        bool isWanted = true;
        if (isResolving) {
            QORIType_var type;
            isWanted = SUCCEEDED(QORVlePLMNavPublicServices::RetrieveKnowledgeType(token.ConvertToChar(), type)) ||
                       SUCCEEDED(QORVlePLMNavSpecializationAccessPublicServices::RetrieveSpecializationType(
                           token.ConvertToChar(), type));
            unsigned char isAbstract = 1;
            if (isWanted && FAILED(QORVleTypeProtectedServices::GetAbstractStatus(type, isAbstract))) {
                // The same name is asked for again: only a success or a skip consumes it.
                VELKOR_ASSERTION_FAILED();
                continue;
            }
            isWanted = isWanted && isAbstract == 0;
            if (isWanted) type->GetName(scope);
        }
        if (isWanted) AddCustomMappingElement(scope, fromEntity, toEntity, fromProperty, toProperty, importRank);
        token = tokens.GetNextToken(names::typeSeparator);
    }
}

int QOREExchangeIFCCustomMappingServices::AddCustomMappingElement(
    const QORUnicodeString& iScopeName, const QORUnicodeString& iFromEntity, const QORUnicodeString& iToEntity,
    const QORUnicodeString& iFromProperty, const QORUnicodeString& iToProperty, unsigned int iRank) {
    auto imported = std::make_unique<CustoMappingElement>(iFromEntity, iFromProperty, iToEntity, iToProperty,
                                                          iScopeName + names::importEnding, importRank);
    if (!replace(std::move(imported), iRank)) return 1;
    if (CurrentSection.Compare(names::mapping) == 0) return 0;
    auto exported = std::make_unique<CustoMappingElement>(iToEntity, iToProperty, iFromEntity, iFromProperty,
                                                          iScopeName + names::exportEnding, iRank);
    return replace(std::move(exported), iRank) ? 0 : 1;
}
