#include "velkor/model/Progress.h"

#include "ConfiguredTest.h"
#include "TemporaryModel.h"
#include "velkor/check/ModelCheck.h"
#include "velkor/classification/ProductClasses.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/identifiers/GuidCheck.h"
#include "velkor/propertysets/DefinitionSearch.h"
#include "velkor/propertysets/PropertySetCheck.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace velkor {

namespace {

/// What a work found, and whether it says that this is all.
struct Answer {
    bool isComplete;
    std::vector<std::string> findings;
};

std::string place(const sdai::Problem& problem) {
    return std::to_string(problem.instance) + ' ' + problem.code;
}

Answer answerOf(const CheckResult& result) {
    Answer answer{result.isComplete, {}};
    for (const sdai::Problem& problem : result.problems) answer.findings.push_back(place(problem));
    return answer;
}

Answer answerOf(const PropertySetCheck& check) {
    Answer answer{check.isComplete, {}};
    for (const SetFinding& finding : check.findings) answer.findings.push_back(place(finding.problem));
    EXPECT_EQ(check.sets, check.checkedSets + check.customSets + check.uncheckedSets() + check.findings.size());
    return answer;
}

Answer answerOf(const Classification& classification) {
    Answer answer{classification.isComplete, {}};
    for (const auto& [number, decision] : classification.products)
        answer.findings.push_back(std::to_string(number) + ' ' + classification.decisions[decision].neutralId);
    return answer;
}

class ProgressTest : public test::ConfiguredTest {};

} // namespace

TEST_F(ProgressTest, AnEndedWorkKeepsWhatItHasFound) {
    // Every work finds something in each instance that it looks at.
    const std::string filler = '\'' + std::string(200, 'x') + '\'';
    std::string data;
    for (int i = 1; i <= 40'000; ++i)
        data += '#' + std::to_string(i) + "=IFCWALL('\xFF',$,$," + filler + ",$,$,$,$,7);\n";
    for (int i = 50'001; i <= 51'000; ++i)
        data += '#' + std::to_string(i) + "=IFCPROPERTYSET('',$,'Pset_walCommon',$,());\n";
    const test::TemporaryModel file("IFC4", data);
    const auto model = sdai::Model::open(file.path());
    ASSERT_TRUE(model);
    Configuration configuration;
    configuration.shippedResources = VELKOR_RESOURCE_DIR;
    const PlatformSetup setup(configuration);
    const SetLibrary library(definitionViews(setup));
    const struct {
        std::string_view step;
        std::function<Answer(const CheckOptions&)> work;
    } cases[] = {
        {"Checking the exchange structure",
         [&](const auto& options) { return answerOf(checkModel(**model, options)); }},
        {"Checking the instances", [&](const auto& options) { return answerOf(checkModel(**model, options)); }},
        {"Checking the identifiers",
         [&](const auto& options) { return answerOf(guid::checkGuids(**model, options).result); }},
        {"Checking the property sets",
         [&](const auto& options) { return answerOf(checkPropertySets(**model, library, options)); }},
        {"Classifying the products",
         [&](const auto& options) {
             return answerOf(classifyAsConfigured(**model, setup, options.progress).value().classification);
         }},
    };
    for (const auto& [step, work] : cases) {
        SCOPED_TRACE(step);
        const Answer whole = work({1'000'000, {}});
        EXPECT_TRUE(whole.isComplete);
        int calls = 0;
        std::uint64_t before = 0;
        const Answer ended = work({1'000'000, [&, wanted = step](const ProgressStep& now) {
                                       if (now.work != wanted) return true;
                                       EXPECT_LE(before, now.done);
                                       EXPECT_LE(now.done, now.total);
                                       before = now.done;
                                       return ++calls < 2;
                                   }});
        EXPECT_EQ(calls, 2) << "never after the end";
        EXPECT_FALSE(ended.isComplete);
        EXPECT_FALSE(ended.findings.empty());
        EXPECT_LT(ended.findings.size(), whole.findings.size());
        // In the order of the whole.
        auto from = whole.findings.begin();
        for (const std::string& finding : ended.findings) {
            from = std::find(from, whole.findings.end(), finding);
            ASSERT_NE(from, whole.findings.end()) << finding;
            ++from;
        }
    }
}

} // namespace velkor
