/// What conversions make of models of a few lines.
#pragma once

#include "ModelText.h"
#include "velkor/check/ModelCheck.h"
#include "velkor/exchange/Conversion.h"
#include "velkor/files/ScratchFile.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace velkor::test {

/// An owner history #94, and whom it names.
inline const std::string owner = "#90=IFCPERSON('p','Doe',$,$,$,$,$,$);#91=IFCORGANIZATION('o','O',$,$,$);"
                                 "#92=IFCPERSONANDORGANIZATION(#90,#91,$);#93=IFCAPPLICATION(#91,'1','A','a');"
                                 "#94=IFCOWNERHISTORY(#92,#93,$,.NOCHANGE.,$,$,$,0);";

/// The beginning of a rooted instance: an identifier that ends with the letter, and the history.
inline std::string root(char letter) {
    std::string text = "'000000000000000000000";
    return (text += letter) += "',#94";
}

struct ConvertedModel {
    std::string text;
    StepReport report;
    /// Empty when the model was converted.
    std::string error;

    /// Statement of an instance without its id: "IFCWALL(…)"; empty when the result lacks it.
    std::string record(std::uint64_t id) const {
        const std::string start = "#" + std::to_string(id) + "=";
        for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1)) {
            const char before = at == 0 ? '\n' : text[at - 1];
            if (before != '\n' && before != ';') continue;
            const std::size_t begin = at + start.size();
            return text.substr(begin, text.find(';', begin) - begin);
        }
        return {};
    }
    /// Records of an entity, in file order.
    std::vector<std::string> records(const std::string& keyword) const {
        std::vector<std::string> found;
        const std::string start = "=" + keyword + "(";
        for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at + 1))
            found.push_back(text.substr(at + 1, text.find(';', at) - at - 1));
        return found;
    }
    /// How often a rule was followed.
    std::uint64_t count(std::string_view rule) const {
        for (const RuleUse& use : report.uses)
            if (use.rule->name == rule) return use.count;
        return 0;
    }
    /// What the dictionary finds in the result, "code #id".
    std::vector<std::string> problems(CheckScope scope = CheckScope::Dictionary) const {
        std::vector<std::string> lines;
        const auto model = sdai::Model::fromText(text, "result");
        if (!model) return {model.error().message};
        ModelCheckOptions options;
        options.scope = scope;
        for (const sdai::Problem& problem : checkModel(**model, options).problems)
            lines.push_back(problem.code + " #" + std::to_string(problem.instance) + " " + problem.message);
        return lines;
    }
};

/// Runs a step over text: step(model, output).
template <class Step>
ConvertedModel convertText(const std::string& text, Step step) {
    ConvertedModel result;
    const auto model = sdai::Model::fromText(text, "source");
    if (!model) {
        result.error = model.error().message;
        return result;
    }
    auto scratch = files::ScratchFile::create();
    EXPECT_TRUE(scratch);
    auto report = step(**model, scratch->output());
    if (!report) {
        result.error = report.error();
        return result;
    }
    EXPECT_TRUE(scratch->output().commit());
    result.report = *report;
    result.text = *scratch->text();
    return result;
}

/// The instances of a model of one release in another.
inline ConvertedModel toRelease(const std::string& from, const std::string& instances, const std::string& to,
                                const PlatformSetup* setup = nullptr) {
    return convertText(modelText(from, instances), [&](const sdai::Model& model, files::OutputFile& output) {
        ReleaseOptions options;
        options.release = to;
        options.setup = setup;
        return convertRelease(model, options, output);
    });
}

} // namespace velkor::test
