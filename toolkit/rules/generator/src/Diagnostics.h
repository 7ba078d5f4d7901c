/// What is wrong with a source, and what is odd but can be compiled.
#pragma once

#include <string>
#include <vector>

namespace velkor::rulegen {

class Diagnostics {
public:
    explicit Diagnostics(std::string source) : _source(std::move(source)) {}

    /// "SOURCE:LINE: message"
    void error(int line, const std::string& message) { errors.push_back(placed(line, message)); }
    void note(int line, const std::string& message) { notes.push_back(placed(line, message)); }

    std::vector<std::string> errors;
    std::vector<std::string> notes;

private:
    std::string placed(int line, const std::string& message) const {
        return _source + ':' + std::to_string(line) + ": " + message;
    }
    std::string _source;
};

} // namespace velkor::rulegen
