/// Models of the model schema, which is registered for as long as a test runs.
#pragma once

#include "ModelSchema.h"
#include "sdai/Model.h"
#include "sdai/QORDXSdaiSchemaDecl.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai::test {

/// A value of HOLDER and what is expected of it.
struct ValueCase {
    std::string attribute;
    std::string text;
    std::string expected;
};

/// The cases of lines "ATTRIBUTE: text -> expected | text -> expected".
inline std::vector<ValueCase> valueCases(std::string_view table) {
    const auto take = [](std::string_view& from, std::string_view separator) {
        const std::size_t end = std::min(from.find(separator), from.size());
        const std::string_view taken = from.substr(0, end);
        from.remove_prefix(std::min(from.size(), end + separator.size()));
        return taken;
    };
    std::vector<ValueCase> cases;
    while (!table.empty()) {
        std::string_view line = take(table, "\n");
        std::string_view attribute = take(line, ": ");
        attribute.remove_prefix(std::min(attribute.find_first_not_of(' '), attribute.size()));
        while (!line.empty()) {
            std::string_view one = take(line, " | ");
            const std::string_view text = take(one, " -> ");
            cases.push_back({std::string(attribute), std::string(text), std::string(one)});
        }
    }
    return cases;
}

class SampleModel : public testing::Test {
protected:
    /// The model of instances, which stand from line 8 on.
    const Model& open(const std::string& data) {
        _model.reset();
        _text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                "FILE_SCHEMA(('SAMPLE'));\nENDSEC;\nDATA;\n" +
                data + "ENDSEC;\nEND-ISO-10303-21;\n";
        auto model = Model::fromText(_text, "sample.ifc");
        if (!model) throw std::runtime_error(model.error());
        _model = std::move(*model);
        return *_model;
    }
    /// The model of a HOLDER #1 with one value set, and of others.
    const Model& openHolder(const ValueCase& value, const std::string& others) {
        std::string parameters;
        for (const AttributeSlot& slot : open("#1=HOLDER();\n").schema().entity("HOLDER")->attributes()) {
            parameters +=
                (parameters.empty() ? "" : ",") + (slot.attribute->name() == value.attribute ? value.text : "$");
        }
        return open("#1=HOLDER(" + parameters + ");\n" + others);
    }
    const DXSdaiAppInstance& instance(std::uint64_t id) const { return *_model->instance(id); }
    /// An attribute of instance #1.
    Primitive value(std::string_view attribute) const { return instance(1).GetAttr(attribute); }

private:
    QORDXSdaiSchemaDecl _declaration{
        DXSdaiDictionaryRepo::AddPtr(&loadModelSchema, DXSdaiString("SAMPLE", DXSdaiString::ZeroTerminated))};
    std::string _text;
    std::unique_ptr<Model> _model;
};

} // namespace velkor::sdai::test
