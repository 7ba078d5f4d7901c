/// Steps of a conversion over models as text.
#pragma once

#include "TemporaryFolder.h"
#include "velkor/exchange/Conversion.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <string>

namespace velkor::test {

inline std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

/// What a step makes of a model.
template <class Report>
struct ConvertedText {
    Report report;
    std::string text;

    /// How often rules were followed, by their names.
    std::map<std::string, std::uint64_t> uses() const {
        std::map<std::string, std::uint64_t> result;
        for (const RuleUse& use : report.uses) result.emplace(use.rule->name, use.count);
        return result;
    }
    /// The first change by a rule; empty when it was not followed.
    std::string detail(std::string_view rule) const {
        for (const RuleUse& use : report.uses)
            if (use.rule->name == rule && !use.first.empty()) return use.first.front().detail;
        return {};
    }
    /// The record of an instance; empty when there is none.
    std::string record(std::uint64_t id) const {
        const std::string name = "#" + std::to_string(id) + "=";
        std::size_t begin = text.find(name);
        while (begin != std::string::npos && begin > 0 && text[begin - 1] != '\n' && text[begin - 1] != ';')
            begin = text.find(name, begin + 1);
        if (begin == std::string::npos) return {};
        begin += name.size();
        return text.substr(begin, text.find(';', begin) - begin);
    }
};

template <class Report, class Options>
ConvertedText<Report> convertText(Converted<Report> (*convert)(const sdai::Model&, const Options&, files::OutputFile&),
                                  const std::string& source, const Options& options) {
    const auto model = sdai::Model::fromText(source, "source");
    EXPECT_TRUE(model) << (model ? std::string() : model.error().message);
    if (!model) return {};
    const TemporaryFolder folder;
    auto output = files::OutputFile::create((folder / "result.ifc").c_str());
    EXPECT_TRUE(output);
    auto report = convert(**model, options, *output);
    EXPECT_TRUE(report) << (report ? std::string() : report.error());
    EXPECT_TRUE(output->commit());
    if (!report) return {};
    return {std::move(*report), contents(folder / "result.ifc")};
}

} // namespace velkor::test
