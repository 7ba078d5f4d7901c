#include "RuleChecker.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <thread>

namespace velkor::rules {

namespace {

constexpr std::chrono::milliseconds waitStep{20};

} // namespace

RuleChecker::RuleChecker(const sdai::Model& model, const RuleTables& tables, const RuleCheckOptions& options)
    : _model(model), _options(options), _program(ruleStore(), tables, model),
      _selection(_program.store(), tables, options), _plan(_program, _selection), _roles(_program),
      _globalCount(_plan.globalRules().size()),
      _rangeCount(_globalCount + (model.file().instanceCount() + rangeSize - 1) / rangeSize), _findings(_rangeCount),
      _isDone(_rangeCount, false) {}

RuleCheckResult RuleChecker::check() {
    const auto begin = std::chrono::steady_clock::now();
    _judges.resize(threadCount());
    std::vector<std::thread> threads;
    try {
        _judges.front() = std::make_unique<InstanceJudge>(_plan, _roles, _options.codes);
        for (std::size_t i = 1; i < _judges.size(); ++i) threads.emplace_back([this, i] { workInThread(_judges[i]); });
    } catch (const std::system_error&) {
        // Those that there are do all the work.
    } catch (...) {
        stop(std::current_exception());
    }
    try {
        if (!_isStopped) work(*_judges.front(), true);
        awaitRanges();
    } catch (...) {
        stop(std::current_exception());
    }
    for (std::thread& thread : threads) thread.join();
    if (_exception) std::rethrow_exception(_exception);
    RuleCheckResult result = putTogether();
    result.coverage.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    return result;
}

unsigned RuleChecker::threadCount() const {
    // A thread takes longer to start than some ranges take to judge.
    constexpr std::size_t rangesWorthAThread = 4;
    if (_options.jobs != 0) return static_cast<unsigned>(std::clamp<std::size_t>(_rangeCount, 1, _options.jobs));
    const unsigned cores = std::max(std::thread::hardware_concurrency(), 1U);
    return static_cast<unsigned>(std::clamp<std::size_t>(_rangeCount / rangesWorthAThread, 1, cores));
}

void RuleChecker::workInThread(std::unique_ptr<InstanceJudge>& judge) noexcept {
    try {
        judge = std::make_unique<InstanceJudge>(_plan, _roles, _options.codes);
        work(*judge, false);
    } catch (...) {
        stop(std::current_exception());
    }
}

void RuleChecker::work(InstanceJudge& judge, bool isCaller) {
    while (!_isStopped) {
        const std::size_t range = _nextRange++;
        if (range >= _rangeCount) return;
        judge.begin(_isFull ? 0 : _options.limit);
        judgeRange(range, judge);
        finishRange(range, judge.take());
        if (isCaller && !goesOn()) return;
    }
}

void RuleChecker::judgeRange(std::size_t range, InstanceJudge& judge) {
    if (range < _globalCount) return judge.judgeGlobal(_plan.globalRules()[range]);
    const auto first = static_cast<std::uint32_t>((range - _globalCount) * rangeSize);
    const std::uint32_t count = std::min(rangeSize, _model.file().instanceCount() - first);
    for (std::uint32_t i = 0; i < count && !_isStopped.load(std::memory_order_relaxed); ++i) judge.judge(first + i);
    _instancesDone += count;
}

void RuleChecker::finishRange(std::size_t range, RangeFindings findings) {
    const std::scoped_lock lock(_mutex);
    _findings[range] = std::move(findings);
    _isDone[range] = true;
    ++_doneCount;
    for (; _doneBefore < _rangeCount && _isDone[_doneBefore]; ++_doneBefore)
        _keptBefore += _findings[_doneBefore].problems.size();
    if (_keptBefore >= _options.limit) _isFull = true;
    _oneIsDone.notify_one();
}

void RuleChecker::awaitRanges() {
    std::unique_lock lock(_mutex);
    while (!_isStopped && _doneCount < _rangeCount) {
        _oneIsDone.wait_for(lock, waitStep);
        lock.unlock();
        const bool isWanted = goesOn();
        lock.lock();
        if (!isWanted) return;
    }
}

/// Ends the work of all threads, with the exception of the first that had one.
void RuleChecker::stop(std::exception_ptr exception) noexcept {
    const std::scoped_lock lock(_mutex);
    _isStopped = true;
    if (!_exception) _exception = std::move(exception);
    _oneIsDone.notify_one();
}

/// For the calling thread.
bool RuleChecker::goesOn() {
    if (_isStopped) return false;
    if (velkor::goesOn(_options.progress, {"Checking the rules", _instancesDone, _model.file().instanceCount()}))
        return true;
    _isStopped = true;
    return false;
}

RuleCheckResult RuleChecker::putTogether() {
    RuleCheckResult result;
    std::vector<sdai::Problem> problems;
    std::uint64_t total = 0;
    for (RangeFindings& range : _findings) {
        total += range.total;
        const std::size_t room = std::min(range.problems.size(), _options.limit - problems.size());
        std::move(range.problems.begin(), range.problems.begin() + static_cast<std::ptrdiff_t>(room),
                  std::back_inserter(problems));
        range.problems = {};
    }
    result.add(problems, total, _options.limit);
    addRepetitions(result);
    for (sdai::Problem& problem : result.problems) problem.line = _model.file().line(problem.offset);
    result.isComplete = !_isStopped;
    result.coverage = coverage();
    return result;
}

/// What UNIQUE rules find is known when all instances have been seen.
void RuleChecker::addRepetitions(CheckResult& result) {
    struct Finding {
        Repetition repetition;
        std::uint16_t rule;
    };
    std::vector<Finding> findings;
    const auto rules = _program.tables().uniqueRules;
    for (std::size_t rule = 0; rule < rules.size(); ++rule) {
        std::vector<UniqueEntry> entries;
        for (const auto& judge : _judges) {
            if (!judge) continue;
            auto& own = judge->uniqueEntries()[rule];
            entries.insert(entries.end(), own.begin(), own.end());
            own = {};
        }
        for (const Repetition& repetition : repetitions(entries, _plan.uniqueAttributes(rules[rule]),
                                                        _judges.front()->machine(), [this] { return goesOn(); }))
            findings.push_back({repetition, static_cast<std::uint16_t>(rule)});
    }
    std::ranges::stable_sort(findings, {}, [](const Finding& finding) { return finding.repetition.number; });
    InstanceJudge& judge = *_judges.front();
    judge.begin(_options.limit);
    for (const Finding& finding : findings) judge.reportRepetition(finding.rule, finding.repetition);
    const RangeFindings found = judge.take();
    result.add(found.problems, found.total, _options.limit);
}

RuleCoverage RuleChecker::coverage() const {
    RuleCoverage coverage;
    const RuleTables& tables = _program.tables();
    coverage.rules = allPlaces(tables).size();
    coverage.judgedRules = _selection.count();
    std::array<std::vector<std::uint64_t>, 3> unknown{std::vector<std::uint64_t>(tables.entityRules.size()),
                                                      std::vector<std::uint64_t>(tables.typeRules.size()),
                                                      std::vector<std::uint64_t>(tables.globalRules.size())};
    for (const auto& judge : _judges) {
        if (!judge) continue;
        const InstanceJudge::Counts& counts = judge->counts();
        coverage.instances += counts.instances;
        coverage.judgements += counts.judgements;
        for (std::size_t kind = 0; kind < unknown.size(); ++kind)
            std::ranges::transform(unknown[kind], counts.unknown[kind], unknown[kind].begin(), std::plus());
    }
    for (const RangeFindings& range : _findings) coverage.undecided += range.undecided;
    for (std::size_t kind = 0; kind < unknown.size(); ++kind) {
        for (std::size_t i = 0; i < unknown[kind].size(); ++i) {
            if (unknown[kind][i] == 0) continue;
            coverage.unknown += unknown[kind][i];
            const RulePlace place{static_cast<RuleKind>(kind), static_cast<std::uint16_t>(i)};
            coverage.unknownByRule.push_back({nameOf(_program.store(), tables, place), unknown[kind][i]});
        }
    }
    std::ranges::stable_sort(coverage.unknownByRule, std::greater(), &RuleCoverage::Unknown::count);
    return coverage;
}

} // namespace velkor::rules
