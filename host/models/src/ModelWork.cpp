#include "models/ModelWork.h"

#include "ModelList.h"
#include "ModelProcess.h"
#include "ModelResults.h"
#include "terminal/ProgressBar.h"
#include "velkor/files/OpenError.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <deque>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sys/wait.h>
#include <thread>

namespace velkor::host {

namespace {

// How many models may be ahead of the one whose turn it is, for each process. Their results wait in memory.
constexpr std::size_t aheadPerProcess = 8;

/// Who ignores the ends of processes is not told of them, and a program begins with what the one before it ignored.
class ChildrenHeeded {
public:
    ChildrenHeeded() { sigaction(SIGCHLD, nullptr, &_before), std::signal(SIGCHLD, SIG_DFL); }
    ~ChildrenHeeded() { sigaction(SIGCHLD, &_before, nullptr); }
    ChildrenHeeded(const ChildrenHeeded&) = delete;
    ChildrenHeeded& operator=(const ChildrenHeeded&) = delete;

private:
    struct sigaction _before {};
};

class ModelRuns {
public:
    ModelRuns(CommandContext& context, const ModelWork& work, std::vector<ModelInput> list, std::size_t jobs)
        : _context(context), _work(work), _list(std::move(list)), _bar(context.err, context.interactive),
          _results(context, work, _list.size()) {
        const std::size_t cores = jobs > 0 ? jobs : std::max(1U, std::thread::hardware_concurrency());
        _mostProcesses = std::max<std::size_t>(1, std::min(cores, _list.size()));
        for (ModelInput& input : _list) input.jobs = static_cast<unsigned>(cores / _mostProcesses);
    }

    void run(bool isSingle) {
        while (_written < _list.size() && _context.out.isWritable()) {
            startProcesses();
            if (isHeadReady())
                writeHead();
            else
                awaitOne();
        }
        _bar.hide();
        if (_context.out.isWritable()) _results.finish(isSingle);
    }

private:
    // A model for which there is no process has its reason in place of one.
    struct Run {
        std::optional<ModelProcess> process;
        std::string fault;
    };

    void startProcesses() {
        while (_begun < _list.size() && _running < _mostProcesses && _runs.size() < aheadPerProcess * _mostProcesses) {
            const ModelInput& input = _list[_begun];
            if (!input.fault().empty()) {
                _runs.push_back({std::nullopt, input.fault()});
            } else if (auto process = start(input); process) {
                _runs.push_back({std::move(*process), {}});
                ++_running;
            } else if (!_runs.empty()) {
                // There will be more to be had when others have ended.
                return;
            } else {
                _runs.push_back({std::nullopt, input.name() + ": there is no process for it: " +
                                                   files::systemError(process.error()).message});
            }
            ++_begun;
        }
    }

    tl::expected<ModelProcess, int> start(const ModelInput& input) {
        _context.out.flush();
        _context.err.flush();
        std::cout.flush();
        return ModelProcess::start([&](std::string& facts) {
            for (Run& run : _runs)
                if (run.process) run.process->leave();
            _runs.clear();
            // Whatever the streams of the context are, they lead to those of this process now.
            _context.out.redirect(std::cout.rdbuf());
            _context.err.redirect(std::cerr.rdbuf());
            CommandContext context = _context;
            context.interactive = false;
            context.in = nullptr;
            context.status = Done;
            Json known = Json::object();
            context.guard([&] { _work.run(context, input, known); });
            context.out.flush();
            if (!context.out.isWritable()) context.reportUnreadable(input.name() + ": the results cannot be kept");
            context.err.flush();
            facts = known.dump(-1, ' ', false, Json::error_handler_t::replace);
            return context.status;
        });
    }

    bool isHeadReady() const { return !_runs.empty() && (!_runs.front().process || _runs.front().process->hasEnded()); }

    void writeHead() {
        _bar.hide();
        const Run& run = _runs.front();
        if (run.process)
            _results.add(_list[_written], *run.process);
        else
            _results.add(_list[_written], run.fault);
        _runs.pop_front();
        ++_written;
        _context.out.flush();
        _bar.show("Models", _written, _list.size());
    }

    void awaitOne() {
        int ending = 0;
        const pid_t id = waitpid(-1, &ending, 0);
        if (id < 0 && errno == EINTR) return;
        for (Run& run : _runs) {
            if (!run.process || run.process->hasEnded()) continue;
            // Without any process left to wait for, none of them runs.
            if (id >= 0 && run.process->id() != id) continue;
            run.process->end(ending);
            --_running;
        }
    }

    CommandContext& _context;
    const ModelWork& _work;
    std::vector<ModelInput> _list;
    ProgressBar _bar;
    ModelResults _results;
    std::size_t _mostProcesses = 1;
    std::size_t _begun = 0, _running = 0, _written = 0;
    // From the model that is written next to the one begun last.
    std::deque<Run> _runs;
};

void workOnOne(CommandContext& context, const ModelWork& work, ModelInput input, std::size_t jobs) {
    input.jobs = static_cast<unsigned>(jobs);
    Json facts = Json::object();
    work.run(context, input, facts);
    if (work.take) work.take(input, facts, {});
}

} // namespace

void workOnModels(CommandContext& context, const ModelArguments& arguments, const ModelWork& work) {
    const bool isSingle = arguments.isSingle();
    auto list = listModels(context, arguments);
    if (!list) return;
    if (const std::string fault = work.fault ? work.fault(*list) : std::string(); !fault.empty())
        return context.reportBadUsage(fault);
    // A line of JSON says of a model that cannot be read why, and what a process of its own ended by.
    if (isSingle && !context.jsonLines()) return workOnOne(context, work, std::move(list->front()), arguments.jobs);
    const ChildrenHeeded heeded;
    ModelRuns(context, work, std::move(*list), arguments.jobs).run(isSingle);
}

void writeModelJson(const CommandContext& context, const Json& json) {
    writeJson(context.out, json, context.jsonLines() ? JsonLayout::Line : JsonLayout::Indented);
}

} // namespace velkor::host
