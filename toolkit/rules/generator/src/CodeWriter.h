/// The units of one piece of code while it is written.
#pragma once

#include "RuleCode.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace velkor::rulegen {

class CodeWriter {
public:
    /// Where a jump goes; its place may be set before or after jumps to it are written.
    class Target {
        friend class CodeWriter;
        int place = -1;
        std::vector<std::size_t> jumps;
    };

    void write(rules::Operation operation, std::initializer_list<std::uint16_t> operands = {}) {
        _units.push_back(static_cast<std::uint16_t>(operation));
        _units.insert(_units.end(), operands);
    }
    /// An operation whose last operand is a target.
    void jump(rules::Operation operation, Target& target, std::initializer_list<std::uint16_t> operands = {}) {
        write(operation, operands);
        target.jumps.push_back(_units.size());
        _units.push_back(static_cast<std::uint16_t>(target.place));
    }
    void writeUnits(const std::vector<std::uint16_t>& units) {
        _units.insert(_units.end(), units.begin(), units.end());
    }
    /// The target is here.
    void place(Target& target) {
        target.place = static_cast<int>(_units.size());
        for (const std::size_t jump : target.jumps) _units[jump] = static_cast<std::uint16_t>(target.place);
    }

    std::uint16_t newLocal() { return _units[0]++; }
    const std::vector<std::uint16_t>& units() const { return _units; }
    /// Targets have 16 bits.
    bool isTooLong() const { return _units.size() > 0xFFFF; }

private:
    // The number of local places comes first.
    std::vector<std::uint16_t> _units{0};
};

} // namespace velkor::rulegen
