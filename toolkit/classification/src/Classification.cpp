#include "velkor/classification/Classification.h"

#include "ProductProperties.h"
#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/objectmodeler/ClassDictionary.h"

#include <map>
#include <set>
#include <tuple>

namespace velkor {

namespace {

constexpr std::uint64_t progressStep = 256;

constexpr std::string_view typeSuffix = "TYPE";

/// The names of properties that the document's conditions ask for.
std::set<std::string> conditionNames() {
    std::set<std::string> result;
    AECEntries entries;
    QORIFCAECEntries::GetEntries({}, AECSide::IFC, entries);
    for (const auto& [type, ofType] : entries) {
        for (const AECEntry& entry : ofType)
            if (entry.condition) result.insert(entry.condition->wantedName);
    }
    return result;
}

class Classifier {
public:
    explicit Classifier(const sdai::Model& model)
        : _model(model), _properties(model, conditionNames()),
          _services(objectmodeler::createComponent("ExchangeAECServices")) {}

    Classification run(const Progress& progress) {
        const std::vector<std::uint32_t> numbers = _model.numbersOf("IFCPRODUCT");
        _result.products.reserve(numbers.size());
        for (std::uint64_t i = 0; i < numbers.size(); ++i) {
            if (i % progressStep == 0 && !goesOn(progress, {"Classifying the products", i, numbers.size()})) {
                _result.isComplete = false;
                break;
            }
            const std::uint32_t decision = decide(*_model.instanceAt(numbers[i]));
            _result.products.push_back({numbers[i], decision});
            if (++_result.decisions[decision].count; _result.decisions[decision].neutralId.empty())
                ++_result.unclassified;
        }
        return std::move(_result);
    }

private:
    std::uint32_t decide(const DXSdaiAppInstance& product) {
        Classification::Decision decision;
        decision.entity = product.entity();
        const knowledge::Attributes properties = _properties.of(product);
        bool isKnown = false;
        for (const std::string& ifcType : typesOf(product)) {
            const AECEntry* entry = nullptr;
            const HRESULT result = decidingEntry(product, ifcType, properties, entry);
            isKnown = isKnown || result != S_FALSE;
            if (entry == nullptr || entry->neutralId.empty()) continue;
            decision.neutralId = entry->neutralId;
            decision.ifcType = ifcType;
            return place(std::move(decision), entry);
        }
        decision.reason = isKnown ? "no condition of its entries holds" : "no entry for it or its supertypes";
        return place(std::move(decision), nullptr);
    }

    // The names as which a product is presented, in that order.
    std::vector<std::string> typesOf(const DXSdaiAppInstance& product) const {
        std::vector<std::string> types;
        if (const DXSdaiAppInstance* type = _properties.typeOf(product); type != nullptr && type->entity() != nullptr) {
            std::string_view name = type->entity()->name();
            if (type->entity()->isKindOf("IFCELEMENTTYPE") && name.ends_with(typeSuffix)) {
                name.remove_suffix(typeSuffix.size());
                if (_model.schema().entity(name) == nullptr) types.emplace_back(name);
            }
        }
        for (const sdai::EntityDefinition* entity = product.entity(); entity != nullptr; entity = entity->supertype())
            types.emplace_back(entity->name());
        return types;
    }

    HRESULT decidingEntry(const DXSdaiAppInstance& product, const std::string& ifcType,
                          const knowledge::Attributes& properties, const AECEntry*& entry) const {
        const QORBaseUnknown_var object = knowledge::makeExchangeObject(
            {product.GetAttr("GLOBALID").asString(), product.GetAttr("NAME").asString(), ifcType,
             product.GetAttr("DESCRIPTION").asString(), _model.file().name(), static_cast<int>(product.id())},
            properties);
        return QORIFCAECEntries::GetDecidingEntry(object, entry);
    }

    std::string plmType(const std::string& neutralId) const {
        QORUnicodeString type;
        if (_services->GetPLMTypeFromNeutralID(QORString(std::string_view(neutralId)), type) != S_OK) return {};
        return std::string(type.utf8());
    }

    // Position of the decision, which is made known unless it is.
    std::uint32_t place(Classification::Decision decision, const AECEntry* entry) {
        const auto [known, isNew] = _places.try_emplace({decision.entity, entry, decision.ifcType, decision.reason},
                                                        static_cast<std::uint32_t>(_result.decisions.size()));
        if (!isNew) return known->second;
        if (entry != nullptr) {
            decision.entry = *entry;
            decision.plmType = plmType(decision.neutralId);
        }
        _result.decisions.push_back(std::move(decision));
        return known->second;
    }

    // The services keep their document as long as they are asked.
    using Key = std::tuple<const sdai::EntityDefinition*, const AECEntry*, std::string, std::string>;

    const sdai::Model& _model;
    ProductProperties _properties;
    QORIExchangeAECServices_var _services;
    std::map<Key, std::uint32_t> _places;
    Classification _result;
};

} // namespace

Classification classify(const sdai::Model& model, const Progress& progress) {
    return Classifier(model).run(progress);
}

} // namespace velkor
