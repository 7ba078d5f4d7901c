/// Values of one attribute of many instances, side by side in memory.
#pragma once

#include "velkor/sdai/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace velkor::python {

/// What the values are is what the first of them is. Whole numbers among others become numbers; when anything else is
/// mixed, all of them become texts.
class Column {
public:
    enum class Kind : std::uint8_t {
        /// Nothing but what is unset.
        Empty,
        Real,
        Integer,
        /// 0, 1, and 2 for UNKNOWN.
        Logical,
        /// Ids.
        Reference,
        /// Strings, enumerators, binaries: places in a dictionary of different texts.
        Text,
    };

    /// Of lists each row has any number of values.
    explicit Column(bool isList);
    Column(const Column&) = delete;
    Column& operator=(const Column&) = delete;

    void reserve(std::size_t rows);
    /// A row with a value, an unset one, or one that is not of its declared type, which counts as unset.
    void addRow(const sdai::Primitive& value);
    void addReference(std::uint64_t id);
    void addText(std::string_view text);
    /// To be called once behind the last row; nothing is added then.
    void finish();

    Kind kind() const noexcept { return _kind; }
    bool isList() const noexcept { return _isList; }
    std::size_t rowCount() const noexcept { return _valid.size(); }
    /// A byte a row, 1 where there is a value.
    const std::vector<std::uint8_t>& valid() const noexcept { return _valid; }
    /// Of lists where the values of each row begin, and where one behind the last would.
    const std::vector<std::int64_t>& offsets() const noexcept { return _offsets; }
    /// What is unset is NaN.
    const std::vector<double>& reals() const noexcept { return _reals; }
    /// Integers and references; what is unset is 0.
    const std::vector<std::int64_t>& integers() const noexcept { return _integers; }
    /// What is unset is -1.
    const std::vector<std::int8_t>& logicals() const noexcept { return _logicals; }
    /// What is unset is -1.
    const std::vector<std::int32_t>& codes() const noexcept { return _codes; }
    /// The dictionary in UTF-8, in the order of first appearance, and where each text begins and the last ends.
    const std::string& texts() const noexcept { return _texts; }
    const std::vector<std::int64_t>& textOffsets() const noexcept { return _textOffsets; }
    std::size_t textCount() const noexcept { return _textOffsets.size() - 1; }
    std::string_view text(std::size_t code) const noexcept;
    /// Values that are not of their declared type.
    std::uint64_t damagedCount() const noexcept { return _damaged; }

private:
    struct Hash {
        using is_transparent = void;
        const Column* column;
        std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>()(text); }
        std::size_t operator()(std::int32_t code) const noexcept {
            return (*this)(column->text(static_cast<std::size_t>(code)));
        }
    };
    struct Equal {
        using is_transparent = void;
        const Column* column;
        std::string_view of(std::string_view text) const noexcept { return text; }
        std::string_view of(std::int32_t code) const noexcept { return column->text(static_cast<std::size_t>(code)); }
        template <class Left, class Right>
        bool operator()(const Left& left, const Right& right) const noexcept {
            return of(left) == of(right);
        }
    };

    bool addValue(const sdai::Primitive& value, int depth = 0);
    bool addSelected(const sdai::Primitive& value, int depth);
    bool addMembers(const sdai::Primitive& value);
    void addUnset();
    void addReal(double value);
    void addInteger(std::int64_t value, Kind kind);
    void addLogical(sdai::Logical value);
    void endRow(bool isValid);
    bool takes(Kind kind);
    void become(Kind kind);
    std::string written(std::size_t place) const;
    std::int32_t codeOf(std::string_view text);

    Kind _kind = Kind::Empty;
    bool _isList;
    std::size_t _valueCount = 0;
    std::uint64_t _damaged = 0;
    std::vector<std::uint8_t> _valid;
    std::vector<std::int64_t> _offsets;
    std::vector<double> _reals;
    std::vector<std::int64_t> _integers;
    std::vector<std::int8_t> _logicals;
    std::vector<std::int32_t> _codes;
    std::string _texts;
    std::vector<std::int64_t> _textOffsets{0};
    std::unordered_set<std::int32_t, Hash, Equal> _known;
};

} // namespace velkor::python
