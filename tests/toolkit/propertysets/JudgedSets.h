/// Sets in models by names, judged by what is shipped and by definitions of the test's own.
#pragma once

#include "ConfiguredTest.h"
#include "NamedModel.h"
#include "TemporaryFolder.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/propertysets/PropertySetCheck.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace velkor::test {

inline const std::string shippedDefinitions = VELKOR_RESOURCE_DIR "/runtime";

/// Codes of what no agreement calls a fault; nor does one speak of sets of one's own.
inline const std::set<std::string> warnings{"set-repeated", "property-repeated", "value-unit"};

class JudgedSets : public ConfiguredTest {
protected:
    JudgedSets() : _setup(configuration()) {}

    static const SetLibrary& shipped() {
        static const SetLibrary library({{}, shippedDefinitions});
        return library;
    }
    // A name that the user has.
    static Configuration configuration() {
        Configuration result;
        result.customPropertySets = {"Pset_OfThisTest"};
        return result;
    }

    /// Findings as text, in file order: "set-unknown #wall ~Pset_WallCommon, warning value-unit Length". Without
    /// "warning" it is an error, except for codes that are never one. Of what is about a property the object is left
    /// out, and the property too when it is `unnamed`.
    static std::string told(const NamedModel& named, const SetLibrary& library, const CheckOptions& options = {},
                            const std::string& unnamed = "") {
        const PropertySetCheck check = checkPropertySets(named.model(), library, options);
        EXPECT_TRUE(check.hasDefinitions) << "nothing is judged without";
        EXPECT_EQ(check.total, check.findings.size());
        std::string text;
        for (const SetFinding& finding : check.findings) {
            EXPECT_NE(finding.problem.message, "");
            if (!text.empty()) text += ", ";
            const bool isWarning = finding.problem.severity == sdai::Severity::Warning;
            if (isWarning != warnings.contains(finding.problem.code)) text += isWarning ? "warning " : "error ";
            text += finding.problem.code;
            if (!finding.property.empty())
                text += finding.property == unnamed ? "" : ' ' + finding.property;
            else if (finding.object != 0)
                text += ' ' + named.nameOf(finding.object);
            if (!finding.nearest.empty()) text += " ~" + finding.nearest;
        }
        return text;
    }

    /// Lines "text -> findings" under headings, which begin without a blank and hold for what is indented below them;
    /// those without an arrow have no findings. `judge` tells what a text has under each release of its heading.
    template <typename Judge>
    static void expectEach(const std::string& table, const Judge& judge) {
        std::vector<std::string> releases;
        std::string rest;
        std::istringstream lines(table);
        for (std::string line; std::getline(lines, line);) {
            const std::size_t start = line.find_first_not_of(' ');
            if (start == std::string::npos) continue;
            if (start == 0) {
                std::istringstream words(line);
                releases.clear();
                rest.clear();
                for (std::string word; words >> word;) {
                    if (rest.empty() && (word == "IFC2X3" || word.starts_with("IFC4")))
                        releases.push_back(word);
                    else
                        rest += (rest.empty() ? "" : " ") + word;
                }
                continue;
            }
            const std::size_t arrow = std::min(line.find(" -> "), line.size());
            const std::string text = line.substr(start, arrow - start);
            const std::string expected = arrow == line.size() ? "" : line.substr(arrow + 4);
            for (const std::string& release : releases)
                EXPECT_EQ(judge(release, rest, text), expected) << release << ' ' << rest << '\n' << text;
        }
    }

    /// A definition of the user's own in _own: a definition file's elements for properties, the class it applies to.
    void define(const std::string& name, const std::string& content, const std::string& applicable,
                const std::string& templateType = "", const std::string& methods = "") const {
        const bool isQuantitySet = name.starts_with("Qto");
        const std::string root = isQuantitySet ? "QtoSetDef" : "PropertySetDef";
        const std::string members = isQuantitySet ? "QtoDefs" : "PropertyDefs";
        _own.file("resources/standard/IFCPsetQset/" + name + ".xml",
                  '<' + root + " templatetype=\"" + templateType + "\"><Name>" + name + "</Name>" + methods +
                      "<ApplicableClasses><ClassName>" + applicable + "</ClassName></ApplicableClasses><" + members +
                      '>' + content + "</" + members + "></" + root + '>');
    }

    const TemporaryFolder _own;

private:
    PlatformSetup _setup;
};

/// Text of one instance after another.
inline std::string attached(const std::string& objects, const std::string& sets) {
    return "IFCRELDEFINESBYPROPERTIES('',$,$,$,(" + objects + ")," + sets + ");";
}

} // namespace velkor::test
