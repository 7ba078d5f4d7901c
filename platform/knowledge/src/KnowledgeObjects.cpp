#include "velkor/knowledge/KnowledgeObjects.h"

#include "velkor/knowledge/QORIExchangeObject.h"
#include "velkor/knowledge/QORIInstance.h"
#include "velkor/knowledge/QORIPLMNavOccurrence.h"
#include "velkor/knowledge/QORIVleObject.h"
#include "velkor/knowledge/TypeDictionary.h"

#include <memory>
#include <unordered_map>

namespace velkor::knowledge {

namespace {

QORUnicodeString unicode(const std::string& text) {
    return QORUnicodeString(std::string_view(text));
}

using AttributeTable = std::unordered_map<std::string, std::string>;

/// What stands behind the name of a type that the host has not made known.
QORIType_var typeOrStranger(const std::string& name);

/// Answers a query for an interface that an object offers through an extension.
HRESULT offer(QORBaseUnknown& object, const QORBaseUnknown_var& extension, const IID& interfaceId, void** interface) {
    IUnknown* offered =
        ToCreateBOA(&object, extension.get(), extension->GetMetaObject(), interfaceId, objectmodeler::createNothing);
    *interface = offered;
    return offered != nullptr ? S_OK : E_NOINTERFACE;
}

} // namespace

class StrangeType final : public QORIType {
    VELKOR_DECLARE_CLASS

public:
    explicit StrangeType(const std::string& name) : _name(unicode(name)) {}
    HRESULT GetName(QORUnicodeString& name) override {
        name = _name;
        return S_OK;
    }

private:
    QORUnicodeString _name;
};

VELKOR_IMPLEMENT_CLASS(StrangeType, QORIType, nullptr, "Knowledge")

class AttributeReader final : public QORIVleObject {
    VELKOR_DECLARE_CLASS

public:
    explicit AttributeReader(std::shared_ptr<const AttributeTable> attributes) : _attributes(std::move(attributes)) {}
    HRESULT GetAttributeText(const QORUnicodeString& name, QORUnicodeString& value) override {
        const auto found = _attributes->find(std::string(name.utf8()));
        if (found == _attributes->end()) return E_FAIL;
        value = unicode(found->second);
        return S_OK;
    }

private:
    std::shared_ptr<const AttributeTable> _attributes;
};

VELKOR_IMPLEMENT_CLASS(AttributeReader, QORIVleObject, nullptr, "Knowledge")

/// A component of one interface that offers its knowledge attributes as well.
template <class Interface>
class WithAttributes : public Interface {
public:
    using Interface::QueryInterface;

    explicit WithAttributes(std::shared_ptr<const AttributeTable> attributes) : _attributes(std::move(attributes)) {}
    HRESULT QueryInterface(const IID& interfaceId, void** interface) override {
        if (interface == nullptr || interfaceId != QORIVleObject::ClassId())
            return Interface::QueryInterface(interfaceId, interface);
        return offer(*this, QORBaseUnknown_var::adopt(objectmodeler::newComponent<AttributeReader>(_attributes)),
                     interfaceId, interface);
    }

private:
    std::shared_ptr<const AttributeTable> _attributes;
};

class PLMInstance final : public WithAttributes<QORIInstance> {
    VELKOR_DECLARE_CLASS

public:
    PLMInstance(std::string typeName, std::shared_ptr<const AttributeTable> attributes)
        : WithAttributes(std::move(attributes)), _typeName(std::move(typeName)) {}
    HRESULT GetType(QORIType_var& type) override {
        type = typeOrStranger(_typeName);
        return S_OK;
    }

private:
    std::string _typeName;
};

VELKOR_IMPLEMENT_CLASS(PLMInstance, QORIInstance, nullptr, "Knowledge")

class PLMOccurrence final : public WithAttributes<QORIPLMNavOccurrence> {
    VELKOR_DECLARE_CLASS

public:
    PLMOccurrence(QORBaseUnknown_var object, std::shared_ptr<const AttributeTable> attributes)
        : WithAttributes(std::move(attributes)), _object(std::move(object)) {}
    HRESULT GetRelatedObject(QORBaseUnknown_var& object) override {
        object = _object;
        return S_OK;
    }

private:
    QORBaseUnknown_var _object;
};

VELKOR_IMPLEMENT_CLASS(PLMOccurrence, QORIPLMNavOccurrence, nullptr, "Knowledge")

class UserProperties final : public QORIExchangeUserProperties {
    VELKOR_DECLARE_CLASS

public:
    explicit UserProperties(std::shared_ptr<const Attributes> properties) : _properties(std::move(properties)) {}
    HRESULT GetUserProperties(QORListValQORUnicodeString& names, QORListValQORUnicodeString& values,
                              QORListValQORUnicodeString& types, QORListValQORUnicodeString& units) override {
        for (const auto& [name, value] : *_properties) {
            QORUnicodeString upper = unicode(name);
            upper.ToUpper();
            names.Append(upper);
            values.Append(unicode(value));
            types.Append(QORUnicodeString());
            units.Append(QORUnicodeString());
        }
        return S_OK;
    }

private:
    std::shared_ptr<const Attributes> _properties;
};

VELKOR_IMPLEMENT_CLASS(UserProperties, QORIExchangeUserProperties, nullptr, "BuildingExchange")

class ExchangeObject final : public QORIExchangeObject {
    VELKOR_DECLARE_CLASS

public:
    using QORIExchangeObject::QueryInterface;

    ExchangeObject(ExchangeDescription description, Attributes properties)
        : _description(std::move(description)), _properties(std::make_shared<Attributes>(std::move(properties))) {}

    HRESULT QueryInterface(const IID& interfaceId, void** interface) override {
        if (interface == nullptr || interfaceId != QORIExchangeUserProperties::ClassId())
            return QORIExchangeObject::QueryInterface(interfaceId, interface);
        return offer(*this, QORBaseUnknown_var::adopt(objectmodeler::newComponent<UserProperties>(_properties)),
                     interfaceId, interface);
    }
    HRESULT GetIdentifier(QORUnicodeString& identifier) override { return give(_description.identifier, identifier); }
    HRESULT GetName(QORUnicodeString& name) override { return give(_description.name, name); }
    HRESULT GetParent(QORBaseUnknown_var& parent) override {
        parent = {};
        return S_OK;
    }
    HRESULT GetFileName(QORUnicodeString& fileName) override { return give(_description.fileName, fileName); }
    HRESULT GetDescription(QORUnicodeString& identifier, QORUnicodeString& name, QORUnicodeString& ifcType,
                           QORUnicodeString& description, QORUnicodeString& fileName, int& number) override {
        give(_description.identifier, identifier);
        give(_description.name, name);
        give(_description.ifcType, ifcType);
        give(_description.description, description);
        give(_description.fileName, fileName);
        number = _description.number;
        return S_OK;
    }

private:
    static HRESULT give(const std::string& text, QORUnicodeString& output) {
        output = unicode(text);
        return S_OK;
    }

    ExchangeDescription _description;
    std::shared_ptr<const Attributes> _properties;
};

VELKOR_IMPLEMENT_CLASS(ExchangeObject, QORIExchangeObject, nullptr, "BuildingExchange")

namespace {

QORIType_var typeOrStranger(const std::string& name) {
    QORIType_var known = typeNamed(name);
    return known.IsNull() ? QORIType_var::adopt(objectmodeler::newComponent<StrangeType>(name)) : known;
}

} // namespace

QORBaseUnknown_var makeOccurrence(const std::string& typeName, Attributes attributes) {
    auto table = std::make_shared<AttributeTable>();
    for (auto& attribute : attributes) table->insert(std::move(attribute));
    auto object = QORBaseUnknown_var::adopt(objectmodeler::newComponent<PLMInstance>(typeName, table));
    return QORBaseUnknown_var::adopt(objectmodeler::newComponent<PLMOccurrence>(std::move(object), std::move(table)));
}

QORBaseUnknown_var makeExchangeObject(ExchangeDescription description, Attributes properties) {
    return QORBaseUnknown_var::adopt(
        objectmodeler::newComponent<ExchangeObject>(std::move(description), std::move(properties)));
}

} // namespace velkor::knowledge

HRESULT QORVleObjectAttrReadServices::GetValueAsString(const QORIVleObject_var& object, const QORUnicodeString& name,
                                                       QORUnicodeString& value) {
    return object.IsNull() ? E_UNEXPECTED : object->GetAttributeText(name, value);
}
