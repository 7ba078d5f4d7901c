/// Tables of cases as text.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::test {

struct Case {
    std::string subject;
    std::string text;
    std::string expected;
};

/// The cases of lines "subject: text -> expected | text -> expected".
inline std::vector<Case> casesOf(std::string_view table) {
    const auto take = [](std::string_view& from, std::string_view separator) {
        const std::size_t end = std::min(from.find(separator), from.size());
        const std::string_view taken = from.substr(0, end);
        from.remove_prefix(std::min(from.size(), end + separator.size()));
        return taken;
    };
    std::vector<Case> cases;
    while (!table.empty()) {
        std::string_view line = take(table, "\n");
        std::string_view subject = take(line, ": ");
        subject.remove_prefix(std::min(subject.find_first_not_of(' '), subject.size()));
        while (!line.empty()) {
            std::string_view one = take(line, " | ");
            const std::string_view text = take(one, " -> ");
            cases.push_back({std::string(subject), std::string(text), std::string(one)});
        }
    }
    return cases;
}

} // namespace velkor::test
