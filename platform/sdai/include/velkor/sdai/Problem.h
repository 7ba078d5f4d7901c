/// One thing found wrong in a file, placed where a person can go and look.
#pragma once

#include <cstdint>
#include <string>

namespace velkor::sdai {

/// How grave a problem is.
enum class Severity : std::uint8_t { Warning, Error };

struct Problem {
    Severity severity = Severity::Error;
    /// Byte position in the file, counted from 0, and line, counted from 1.
    std::uint64_t offset = 0;
    std::uint64_t line = 0;
    /// Instance name without "#"; 0 when the problem lies outside an instance.
    std::uint64_t instance = 0;
    /// Short stable word for programs, for example "string-not-closed".
    std::string code;
    /// What was expected and what was found.
    std::string message;
    /// The rule of the schema that is broken, "IfcWall.CorrectPredefinedType"; empty when the problem is no broken
    /// rule.
    std::string rule = {};
};

} // namespace velkor::sdai
