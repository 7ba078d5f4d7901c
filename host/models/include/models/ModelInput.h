/// One model that a command works on: a file, or what comes from standard input.
#pragma once

#include "CommandContext.h"
#include "velkor/files/OpenError.h"
#include "velkor/sdai/Part21File.h"

#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::sdai {
class Model;
}
namespace velkor::files {
class ScratchFile;
}

namespace velkor::host {

inline constexpr const char* standardStream = "-";

class ModelInput {
public:
    /// A file, which need not be there.
    explicit ModelInput(std::string path) : _name(std::move(path)) {}
    /// All that is still to be read from a stream, null for nothing. Copies share it.
    static ModelInput standardInput(std::istream* stream);
    /// What is no model, and why.
    static ModelInput unreadable(std::string name, std::string reason);

    /// What results and messages call it: its path, or "standard input".
    const std::string& name() const noexcept { return _name; }
    bool isStandardInput() const noexcept { return _isStandardInput; }
    /// Why it cannot be read, as far as that is known beforehand; empty for nothing.
    const std::string& fault() const noexcept { return _fault; }

    tl::expected<std::unique_ptr<sdai::Part21File>, files::OpenError> openFile() const;
    /// Null after reporting why it cannot be read.
    std::unique_ptr<sdai::Model> openModel(CommandContext& context) const;

    /// Its place among the models, counted from 0.
    std::size_t place = 0;
    /// Cores that work on it, 0 for all.
    unsigned jobs = 0;

private:
    std::string _name;
    bool _isStandardInput = false;
    std::string _fault = {};
    std::shared_ptr<files::ScratchFile> _bytes = nullptr;
    std::string_view _text = {};
};

} // namespace velkor::host
