/// What the work on several models wrote, put together.
#pragma once

#include "CommandContext.h"
#include "ModelProcess.h"
#include "models/ModelWork.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

class ModelResults {
public:
    /// Of so many models. Writes to the context, whose status becomes the worst. Context and work have to live as long
    /// as this object.
    ModelResults(CommandContext& context, const ModelWork& work, std::size_t models);

    /// What a process has left of its model.
    void add(const ModelInput& input, const ModelProcess& process);
    /// A model that nothing could be done with.
    void add(const ModelInput& input, const std::string& fault);
    /// Writes the summary, unless a single model stands for itself.
    void finish(bool isSingle);

private:
    void count(const ModelInput& input, int status, const Json& facts, const std::string& reason);
    void begin(const ModelInput& input);
    void writeOutput(const ModelInput& input, const MemoryFile& out);
    void writeError(const ModelInput& input, const std::string& reason);
    void beginItem();
    void endItem();
    std::string summaryText() const;
    Json summaryJson() const;

    CommandContext& _context;
    const ModelWork& _work;
    bool _isFirst = true;
    std::size_t _models;
    std::size_t _added = 0;
    // By status.
    std::array<std::uint64_t, Unreadable + 1> _counts{};
    std::vector<std::uint64_t> _totals;
};

} // namespace velkor::host
