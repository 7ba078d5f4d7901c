/// What the dictionary repository holds, guarded by one lock.
#pragma once

#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace velkor::sdai {

/// The two arrays of a schema, taken over from its loader.
class TextLists {
public:
    TextLists() = default;
    /// A count below 1 or a null array gives an empty list.
    TextLists(int declarationCount, const char** declarations, int statementCount, const char** statements)
        : _declarations(declarations), _statements(statements),
          _declarationCount(declarations && declarationCount > 0 ? static_cast<std::size_t>(declarationCount) : 0),
          _statementCount(statements && statementCount > 0 ? static_cast<std::size_t>(statementCount) : 0) {}

    std::span<const char* const> declarations() const noexcept { return {_declarations.get(), _declarationCount}; }
    std::span<const char* const> statements() const noexcept { return {_statements.get(), _statementCount}; }

private:
    std::unique_ptr<const char*[]> _declarations;
    std::unique_ptr<const char*[]> _statements;
    std::size_t _declarationCount = 0;
    std::size_t _statementCount = 0;
};

} // namespace velkor::sdai

struct DXSdaiDictionaryRepo::State {
    using Restored = tl::expected<SchemaPointer, std::string>;

    enum class Phase { Waiting, Loading, Restored, Refused };

    /// One registered name.
    struct Entry {
        std::string name;
        Loader loader = nullptr;
        std::uint64_t handle = 0;
        Phase phase = Phase::Waiting;
        std::thread::id loadingThread;
        /// Owns the text lists too.
        SchemaPointer schema;
        Lists lists;
        std::string error;
    };
    using EntryPointer = std::shared_ptr<Entry>;

    /// Takes what the restore service made for the loader that runs on this thread, or, outside
    /// a loader, for the schema's own name.
    void enter(Restored restored, velkor::sdai::TextLists lists);

    // These want the lock held.
    EntryPointer find(std::string_view name) const;
    std::vector<std::string> names() const;
    /// Runs the entry's loader with the lock released; other threads wait for it.
    void load(const EntryPointer& entry, std::unique_lock<std::mutex>& lock);
    bool loadsHere(const Entry& entry) const;
    void waitForOtherThreads(const EntryPointer& entry, std::unique_lock<std::mutex>& lock);

    mutable std::mutex mutex;
    std::condition_variable loaded;
    std::vector<EntryPointer> entries;
    /// Entries whose loaders run, the latest last.
    std::vector<EntryPointer> loading;
    std::uint64_t lastHandle = 0;
};
