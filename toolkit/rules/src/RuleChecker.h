/// Judges a whole model: ranges of instances shared out to threads, and what they find put together in file order.
#pragma once

#include "InstanceJudge.h"
#include "UniqueJudge.h"
#include "velkor/rules/RuleCheck.h"

#include <atomic>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

namespace velkor::rules {

class RuleChecker {
public:
    RuleChecker(const sdai::Model& model, const RuleTables& tables, const RuleCheckOptions& options);

    RuleCheckResult check();

private:
    // Small enough that threads end together, large enough that sharing out costs nothing. The findings do not depend
    // on it.
    static constexpr std::uint32_t rangeSize = 1024;

    unsigned threadCount() const;
    void work(InstanceJudge& judge, bool isCaller);
    void workInThread(std::unique_ptr<InstanceJudge>& judge) noexcept;
    void judgeRange(std::size_t range, InstanceJudge& judge);
    void finishRange(std::size_t range, RangeFindings findings);
    void awaitRanges();
    void stop(std::exception_ptr exception) noexcept;
    bool goesOn();

    RuleCheckResult putTogether();
    void addRepetitions(CheckResult& result);
    RuleCoverage coverage() const;

    const sdai::Model& _model;
    const RuleCheckOptions& _options;
    RuleProgram _program;
    RuleSelection _selection;
    JudgementPlan _plan;
    RoleIndex _roles;
    // One a thread; the first is the caller's.
    std::vector<std::unique_ptr<InstanceJudge>> _judges;

    // Global rules first, each a range of its own, then ranges of instances.
    std::size_t _globalCount;
    std::size_t _rangeCount;
    std::vector<RangeFindings> _findings;
    std::atomic<std::size_t> _nextRange = 0;
    std::atomic<std::uint64_t> _instancesDone = 0;
    std::atomic<bool> _isStopped = false;
    // The ranges that are done hold as many findings as are listed: of later ones they are only counted.
    std::atomic<bool> _isFull = false;

    std::mutex _mutex;
    std::condition_variable _oneIsDone;
    std::vector<bool> _isDone;
    std::size_t _doneCount = 0;
    // All ranges before this one are done, and keep so many findings.
    std::size_t _doneBefore = 0;
    std::size_t _keptBefore = 0;
    std::exception_ptr _exception;
};

} // namespace velkor::rules
