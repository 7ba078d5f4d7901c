#include "velkor/knowledge/TypeDictionary.h"

#include "velkor/knowledge/QORITypeDictionary.h"
#include "velkor/knowledge/QORVleTypeServices.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace velkor::knowledge {

class KnownType final : public QORIType {
    VELKOR_DECLARE_CLASS

public:
    explicit KnownType(TypeDescription description) : _description(std::move(description)) {}

    HRESULT GetName(QORUnicodeString& name) override {
        name = QORUnicodeString(std::string_view(_description.name));
        return S_OK;
    }
    const TypeDescription& description() const noexcept { return _description; }

private:
    TypeDescription _description;
};

VELKOR_IMPLEMENT_CLASS(KnownType, QORIType, nullptr, "Knowledge")

namespace {

struct Types {
    std::unordered_map<std::string, QORInterface_var<KnownType>> byName;
    std::vector<std::string> names;
};

// Never destroyed: a library that is unloaded late may still ask.
Types& types() {
    static Types& instance = *new Types;
    return instance;
}

const KnownType* find(std::string_view name) {
    const auto found = types().byName.find(std::string(name));
    return found != types().byName.end() ? found->second.get() : nullptr;
}

HRESULT retrieve(const char* name, TypeKind kind, QORIType_var& type) {
    type = {};
    const KnownType* found = find(name != nullptr ? name : "");
    if (found == nullptr || found->description().kind != kind) return E_FAIL;
    type = QORIType_var(const_cast<KnownType*>(found));
    return S_OK;
}

} // namespace

class KnownTypes final : public QORITypeDictionary {
    VELKOR_DECLARE_CLASS

public:
    HRESULT ListTypeNames(QORListValQORUnicodeString& names) override {
        for (const std::string& name : types().names) names.Append(QORUnicodeString(std::string_view(name)));
        return S_OK;
    }
};

VELKOR_IMPLEMENT_CLASS(KnownTypes, QORITypeDictionary, nullptr, "Knowledge")

bool addType(const TypeDescription& type) {
    Types& known = types();
    if (known.byName.contains(type.name)) return false;
    auto made = QORInterface_var<KnownType>::adopt(objectmodeler::newComponent<KnownType>(type));
    known.names.push_back(type.name);
    try {
        known.byName.emplace(type.name, std::move(made));
    } catch (...) {
        known.names.pop_back();
        throw;
    }
    return true;
}

void removeTypes() {
    types() = {};
}

QORIType_var typeNamed(std::string_view name) {
    return QORIType_var(const_cast<KnownType*>(find(name)));
}

bool isDerivedFrom(std::string_view type, std::string_view ancestor) {
    // A host may make a circle known; no chain is longer than there are types.
    std::size_t steps = types().names.size() + 1;
    for (const KnownType* at = find(type); at != nullptr && steps > 0; at = find(at->description().parent), --steps) {
        if (at->description().name == ancestor) return true;
    }
    return false;
}

} // namespace velkor::knowledge

using namespace velkor::knowledge;

QORITypeDictionary_var QORGlobalFunctions::GetTypeDictionary() {
    return types().names.empty() ? QORITypeDictionary_var()
                                 : QORITypeDictionary_var::adopt(velkor::objectmodeler::newComponent<KnownTypes>());
}

HRESULT QORVlePLMNavPublicServices::RetrieveKnowledgeType(const char* name, QORIType_var& type) {
    return retrieve(name, TypeKind::Knowledge, type);
}

HRESULT QORVlePLMNavSpecializationAccessPublicServices::RetrieveSpecializationType(const char* name,
                                                                                   QORIType_var& type) {
    return retrieve(name, TypeKind::Specialization, type);
}

HRESULT QORVleTypeProtectedServices::GetAbstractStatus(const QORIType_var& type, unsigned char& isAbstract) {
    QORUnicodeString name;
    if (type.IsNull() || FAILED(type->GetName(name))) return E_FAIL;
    const KnownType* known = find(name.utf8());
    if (known == nullptr) return E_FAIL;
    isAbstract = known->description().isAbstract ? 1 : 0;
    return S_OK;
}
