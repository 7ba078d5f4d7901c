#include "output/ProblemText.h"

#include "terminal/DisplayText.h"
#include "velkor/check/ProblemSummary.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

void writeProblem(TextSink out, const std::string& file, const sdai::Problem& problem) {
    out << file << ':' << problem.line << ": " << name(problem.severity) << ": ";
    if (problem.instance != 0) out << '#' << problem.instance << ": ";
    out << shortenedOn(out, problem.message, longestMessage) << " [" << problem.code << "]\n";
}

Json problemJson(const sdai::Problem& problem) {
    return {{"severity", name(problem.severity)},
            {"line", problem.line},
            {"offset", problem.offset},
            {"instance", problem.instance == 0 ? Json() : Json(problem.instance)},
            {"code", problem.code},
            {"message", problem.message}};
}

Json problemsJson(const std::vector<sdai::Problem>& problems) {
    Json result = Json::array();
    for (const sdai::Problem& problem : problems) result.push_back(problemJson(problem));
    return result;
}

} // namespace velkor::host
