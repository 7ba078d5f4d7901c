#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include "Names.h"
#include "RepositoryState.h"
#include "SchemaName.h"
#include "velkor/objectmodeler/CallRecorder.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <utility>

using velkor::files::OpenError;
using velkor::objectmodeler::isRecording;
using velkor::objectmodeler::recordCall;
using velkor::text::joined;
using velkor::text::quoted;

namespace {

// Made on first use, which may be in the static initialisers of another library, and
// released by this library's termination, which comes after every static object of those
// that depend on it, so that registrations can still be withdrawn there.
DXSdaiDictionaryRepo* theOne = nullptr;

tl::unexpected<OpenError> failure(OpenError::Code code, std::string message) {
    return tl::unexpected(OpenError{code, std::move(message)});
}

} // namespace

struct DXSdaiDictionaryRepo::Release {
    [[gnu::destructor]] static void atUnload() { delete std::exchange(theOne, nullptr); }
};

DXSdaiDictionaryRepo::DXSdaiDictionaryRepo() : _state(std::make_unique<State>()) {}
DXSdaiDictionaryRepo::~DXSdaiDictionaryRepo() = default;

DXSdaiDictionaryRepo& DXSdaiDictionaryRepo::TheOne() {
    static std::once_flag made;
    std::call_once(made, [] { theOne = new DXSdaiDictionaryRepo; });
    return *theOne;
}

std::uint64_t DXSdaiDictionaryRepo::AddPtr(Loader loader, const DXSdaiString& name) {
    if (isRecording()) recordCall("register schema: " + std::string(name.view()));
    State& state = *TheOne()._state;
    const std::lock_guard lock(state.mutex);
    if (loader == nullptr || name.length() == 0 || state.find(name.view())) return 0;
    auto entry = std::make_shared<State::Entry>();
    entry->name = name.view();
    entry->loader = loader;
    entry->handle = ++state.lastHandle;
    state.entries.push_back(std::move(entry));
    return state.lastHandle;
}

void DXSdaiDictionaryRepo::withdraw(std::uint64_t handle) {
    std::unique_lock lock(_state->mutex);
    const auto isMeant = [handle](const State::EntryPointer& entry) { return entry->handle == handle; };
    const auto found = std::ranges::find_if(_state->entries, isMeant);
    if (handle == 0 || found == _state->entries.end()) return;
    // A loader that runs elsewhere still needs the library whose registration this is.
    const State::EntryPointer entry = *found;
    if (isRecording()) recordCall("withdraw schema: " + entry->name);
    _state->waitForOtherThreads(entry, lock);
    std::erase(_state->entries, entry);
}

std::vector<std::string> DXSdaiDictionaryRepo::names() const {
    const std::lock_guard lock(_state->mutex);
    return _state->names();
}

std::string DXSdaiDictionaryRepo::match(std::string_view nameInFile) const {
    return velkor::sdai::matchSchemaName(names(), nameInFile);
}

tl::expected<DXSdaiDictionaryRepo::SchemaPointer, OpenError> DXSdaiDictionaryRepo::schema(std::string_view name) {
    std::unique_lock lock(_state->mutex);
    const State::EntryPointer entry = _state->find(name);
    if (!entry) {
        const std::string known = joined(_state->names());
        return failure(OpenError::Code::UnknownSchema,
                       "unknown schema " + quoted(name) + "; known: " + (known.empty() ? "none" : known));
    }
    _state->waitForOtherThreads(entry, lock);
    if (entry->phase == State::Phase::Waiting) _state->load(entry, lock);
    if (entry->phase == State::Phase::Restored) return entry->schema;
    const std::string reason = entry->phase == State::Phase::Loading ? " is asked for by its own loader"
                                                                     : " cannot be restored: " + entry->error;
    return failure(OpenError::Code::DamagedSchema, "the schema " + entry->name + reason);
}

bool DXSdaiDictionaryRepo::isRestored(std::string_view name) const {
    const std::lock_guard lock(_state->mutex);
    const State::EntryPointer entry = _state->find(name);
    return entry && entry->phase == State::Phase::Restored;
}

DXSdaiDictionaryRepo::Lists DXSdaiDictionaryRepo::lists(std::string_view name) const {
    const std::lock_guard lock(_state->mutex);
    const State::EntryPointer entry = _state->find(name);
    return entry ? entry->lists : Lists();
}

DXSdaiDictionaryRepo::State::EntryPointer DXSdaiDictionaryRepo::State::find(std::string_view name) const {
    const auto isMeant = [name](const EntryPointer& entry) { return velkor::sdai::names::equal(entry->name, name); };
    const auto found = std::ranges::find_if(entries, isMeant);
    return found == entries.end() ? nullptr : *found;
}

std::vector<std::string> DXSdaiDictionaryRepo::State::names() const {
    std::vector<std::string> result;
    for (const EntryPointer& entry : entries) result.push_back(entry->name);
    return result;
}

bool DXSdaiDictionaryRepo::State::loadsHere(const Entry& entry) const {
    return entry.phase == Phase::Loading && entry.loadingThread == std::this_thread::get_id();
}

void DXSdaiDictionaryRepo::State::waitForOtherThreads(const EntryPointer& entry, std::unique_lock<std::mutex>& lock) {
    loaded.wait(lock, [&] { return entry->phase != Phase::Loading || loadsHere(*entry); });
}

void DXSdaiDictionaryRepo::State::load(const EntryPointer& entry, std::unique_lock<std::mutex>& lock) {
    loading.push_back(entry);
    entry->phase = Phase::Loading;
    entry->loadingThread = std::this_thread::get_id();
    const auto finish = [&](Phase phase) {
        lock.lock();
        std::erase(loading, entry);
        entry->phase = phase;
        loaded.notify_all();
    };
    lock.unlock();
    try {
        entry->loader();
    } catch (...) {
        // Memory may suffice the next time.
        finish(Phase::Waiting);
        throw;
    }
    finish(Phase::Restored);
    if (entry->schema) return;
    entry->phase = Phase::Refused;
    if (entry->error.empty()) entry->error = "its loader handed over no lists";
}

void DXSdaiDictionaryRepo::State::enter(Restored restored, velkor::sdai::TextLists lists) {
    const std::lock_guard lock(mutex);
    const auto ours = std::find_if(loading.rbegin(), loading.rend(), [this](const auto& e) { return loadsHere(*e); });
    EntryPointer entry = ours == loading.rend() ? nullptr : *ours;
    if (!restored) {
        if (entry) entry->error = restored.error();
        return;
    }
    const std::string name((*restored)->name());
    if (entry && !velkor::sdai::names::equal(entry->name, name)) {
        entry->error = "its loader handed over the lists of " + name;
        return;
    }
    if (!entry) entry = find(name);
    if (!entry) {
        entry = entries.emplace_back(std::make_shared<Entry>());
        entry->name = name;
    }
    // The first dictionary of a name stays: models may use it already.
    if (entry->schema || (entry->phase == Phase::Loading && !loadsHere(*entry))) return;

    struct Kept {
        velkor::sdai::TextLists lists;
        SchemaPointer schema;
    };
    const auto kept = std::make_shared<Kept>(Kept{std::move(lists), std::move(*restored)});
    entry->lists = {kept->lists.declarations(), kept->lists.statements()};
    entry->schema = SchemaPointer(kept, kept->schema.get());
    if (entry->phase != Phase::Loading) entry->phase = Phase::Restored;
}
