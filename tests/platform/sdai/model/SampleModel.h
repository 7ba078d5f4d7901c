/// Models of the model schema, which is registered for as long as a test runs.
#pragma once

#include "Cases.h"
#include "ModelSchema.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/QORDXSdaiSchemaDecl.h"

#include <gmock/gmock.h>
#include <stdexcept>
#include <string>

namespace velkor::sdai::test {

using velkor::test::Case;
using velkor::test::casesOf;

class SampleModel : public testing::Test {
protected:
    /// The model of instances, which stand from line 8 on.
    const Model& open(const std::string& data) {
        _model.reset();
        _text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                "FILE_SCHEMA(('SAMPLE'));\nENDSEC;\nDATA;\n" +
                data + "ENDSEC;\nEND-ISO-10303-21;\n";
        auto model = Model::fromText(_text, "sample.ifc");
        if (!model) throw std::runtime_error(model.error().message);
        _model = std::move(*model);
        return *_model;
    }
    /// The model of a HOLDER #1 with the attribute that is the subject set, and of others.
    const Model& openHolder(const Case& value, const std::string& others) {
        std::string parameters;
        for (const AttributeSlot& slot : open("#1=HOLDER();\n").schema().entity("HOLDER")->attributes()) {
            parameters += "," + (slot.attribute->name() == value.subject ? value.text : "$");
        }
        return open("#1=HOLDER(" + parameters.substr(1) + ");\n" + others);
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
