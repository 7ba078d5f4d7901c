#include "models/ModelInput.h"

#include "velkor/files/ScratchFile.h"
#include "velkor/sdai/Model.h"

#include <istream>
#include <vector>

namespace velkor::host {

namespace {

constexpr std::size_t chunkSize = 1 << 16;
constexpr const char* cannotBeRead = ": cannot be read: ";

// Why it cannot be copied; empty for nothing.
std::string copyInto(files::OutputFile& output, std::istream* stream) {
    std::vector<char> chunk(chunkSize);
    while (stream != nullptr && *stream) {
        stream->read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
        output.write({chunk.data(), static_cast<std::size_t>(stream->gcount())});
    }
    if (stream != nullptr && stream->bad()) return "reading failed";
    const auto done = output.commit();
    return done ? std::string() : done.error().message;
}

} // namespace

ModelInput ModelInput::standardInput(std::istream* stream) {
    ModelInput input("standard input");
    input._isStandardInput = true;
    auto scratch = files::ScratchFile::create();
    if (!scratch) {
        input._fault = input._name + cannotBeRead + scratch.error().message;
        return input;
    }
    input._bytes = std::make_shared<files::ScratchFile>(std::move(*scratch));
    if (const std::string reason = copyInto(input._bytes->output(), stream); !reason.empty()) {
        input._fault = input._name + cannotBeRead + reason;
        return input;
    }
    if (const auto text = input._bytes->text(); text)
        input._text = *text;
    else
        input._fault = input._name + cannotBeRead + text.error().message;
    return input;
}

ModelInput ModelInput::unreadable(std::string name, std::string reason) {
    ModelInput input(std::move(name));
    input._fault = std::move(reason);
    return input;
}

tl::expected<std::unique_ptr<sdai::Part21File>, files::OpenError> ModelInput::openFile() const {
    if (!_fault.empty()) {
        files::OpenError error;
        error.message = _fault;
        return tl::unexpected(error);
    }
    return _isStandardInput ? sdai::Part21File::fromText(_text, _name) : sdai::Part21File::open(_name);
}

std::unique_ptr<sdai::Model> ModelInput::openModel(CommandContext& context) const {
    auto model =
        openFile().and_then([](std::unique_ptr<sdai::Part21File> file) { return sdai::Model::over(std::move(file)); });
    if (model) return std::move(*model);
    context.reportUnreadable(model.error().message);
    return nullptr;
}

} // namespace velkor::host
