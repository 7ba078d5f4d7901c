/// A small schema of a test, from EXPRESS to a dictionary and rules, and models of it.
#pragma once

#include "DictionaryLists.h"
#include "ExpressReader.h"
#include "ModelText.h"
#include "RuleCompiler.h"
#include "velkor/sdai/Model.h"
#include "velkor/sdai/QORDXSdaiSchemaDecl.h"
#include "velkor/sdai/QORDXSdaiSchemaRestore.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace velkor::test {

/// One at a time: the repository knows it as SAMPLE for as long as it is there.
class RuleSchema {
public:
    /// Declarations as they stand within a SCHEMA. Throws with the compiler's words when they cannot be compiled.
    explicit RuleSchema(const std::string& declarations) {
        rulegen::RuleSource source{"sample.exp", {}};
        source.schema.name = "SAMPLE";
        if (auto read = express::readExpress(declarations, source.name, source.schema); !read) {
            throw std::runtime_error(read.error());
        }
        auto lists = dictgen::numberSchema("SAMPLE", source.schema);
        if (!lists) throw std::runtime_error(lists.error());
        dictionary() = std::move(*lists);
        _compiler = std::make_unique<rulegen::RuleCompiler>(std::vector{std::move(source)});
        if (!_compiler->errors().empty()) throw std::runtime_error(_compiler->errors().front());
        _store = _compiler->store();
        _tables = _compiler->tables(0);
    }

    const rules::RuleStore& store() const { return _store; }
    const rules::RuleTables& tables() const { return _tables; }
    const std::vector<std::string>& notes() const { return _compiler->notes(); }

    /// The model of instances; the text must outlive it.
    static std::unique_ptr<sdai::Model> model(const std::string& text) {
        auto model = sdai::Model::fromText(text, "sample.ifc");
        if (!model) throw std::runtime_error(model.error().message);
        return std::move(*model);
    }
    static std::string text(const std::string& instances) { return modelText("SAMPLE", instances); }

private:
    static dictgen::DictionaryLists& dictionary() {
        static dictgen::DictionaryLists lists;
        return lists;
    }
    static void load() {
        const auto copy = [](const std::vector<std::string>& texts) {
            auto* array = new const char*[texts.size()];
            std::ranges::transform(texts, array, [](const std::string& text) { return text.c_str(); });
            return array;
        };
        const dictgen::DictionaryLists& lists = dictionary();
        QORDXSdaiSchemaRestore::Restore(DXSdaiDictionaryRepo::TheOne(), static_cast<int>(lists.declarations.size()),
                                        copy(lists.declarations), static_cast<int>(lists.statements.size()),
                                        copy(lists.statements), 1, 417);
    }

    QORDXSdaiSchemaDecl _declaration{
        DXSdaiDictionaryRepo::AddPtr(&load, DXSdaiString("SAMPLE", DXSdaiString::ZeroTerminated))};
    std::unique_ptr<rulegen::RuleCompiler> _compiler;
    rules::RuleStore _store;
    rules::RuleTables _tables;
};

} // namespace velkor::test
