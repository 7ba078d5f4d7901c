/// Changes that lie over an exchange structure (ISO 10303-21), and the structure that they make of it.
///
///     Part21Edit edit(*file);
///     const auto wall = edit.add("IFCWALL('2O2Fr$t4X7Zf8NOew3FLOH',$,$,$,$,$,$,$,$)");
///     if (auto set = edit.setParameter(12, 2, "'north'"); !set) return report(set.error());
///     auto output = files::OutputFile::create("house.ifc");
///     if (output) edit.write(*output);
///
/// The file below stays as it is; what is held grows with the edits alone. What was not touched is written byte by
/// byte, comments and damage between statements included. No schema is asked here: what is judged is the syntax.
#pragma once

#include "velkor/files/OutputFile.h"
#include "velkor/sdai/Part21File.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::sdai {

/// A simple record as it is met while a structure is written.
struct RecordView {
    /// Of the instance, in file order.
    std::uint32_t number = 0;
    std::string_view keyword;
    /// As they stand in the file, white space and comments around them left out.
    std::span<const std::string_view> parameters;
};

/// Takes records apart.
class VELKOR_PLATFORM_API RecordReader {
public:
    /// The record of an instance as its file has it; null for a complex instance and a damaged statement. Valid until
    /// the next call.
    const RecordView* read(const Part21File& file, std::uint32_t number);
    /// Bytes of the record that was read, white space before it included.
    std::size_t length() const noexcept { return _length; }

private:
    RecordView _view;
    std::vector<std::string_view> _parameters;
    std::size_t _length = 0;
};

/// Where a rewriter puts what stands in place of a record.
class VELKOR_PLATFORM_API RecordOutput {
public:
    /// Empty when a record comes to be rewritten; what stands here takes its place. Nobody looks at its syntax.
    std::string record;

    /// One more instance beside that one, with the next id above all others. They stand behind it; very many, which are
    /// not held until it is known, before it.
    std::uint64_t add(std::string_view addition);
    /// The same with an id that Part21Edit::reserve() gave.
    void add(std::uint64_t id, std::string_view addition);

private:
    friend class Part21Edit;
    std::uint64_t _nextId = 0;
    std::string_view _lineEnd;
    // Statements, each behind a line end.
    std::string _additions;
    // Writes what there is.
    std::function<void()> _spill;
};

/// Makes other records of those of a structure while it is written, so that nothing is held for them.
class VELKOR_PLATFORM_API RecordRewriter {
public:
    /// What becomes of a statement.
    enum class Outcome : std::uint8_t { Keep, Replace, Drop };

    virtual ~RecordRewriter();
    /// Whether instances with this keyword number (Part21File.h) are to be seen; others are copied.
    virtual bool wants(std::uint16_t keyword) const = 0;
    /// Called in file order for what was neither edited nor dropped before. Complex instances and damaged
    /// statements are never seen: they are copied.
    virtual Outcome rewrite(const RecordView& record, RecordOutput& output) = 0;
};

/// Records are what stands between "#12=" and ";", simple or complex, in the encoding of the standard. An error is
/// one line that says why nothing was changed. Of several instances with one id the first is meant.
class VELKOR_PLATFORM_API Part21Edit {
public:
    template <class Value>
    using Result = tl::expected<Value, std::string>; ///< A value, or why there is none.

    /// The file must outlive the edit.
    explicit Part21Edit(const Part21File& file);
    ~Part21Edit();
    Part21Edit(Part21Edit&&) noexcept;
    Part21Edit& operator=(Part21Edit&&) noexcept;

    /// The record of an instance with the edits so far; valid until the next edit. An error for what the file does
    /// not have, for what was dropped, and for an instance whose statement is damaged.
    Result<std::string_view> record(std::uint64_t id) const;

    /// Whether an instance was replaced, changed or dropped here, or is one of those added.
    bool isEdited(std::uint64_t id) const;
    /// The first of so many ids in a row that no instance has and no other call gives.
    Result<std::uint64_t> reserve(std::uint64_t count);

    /// A new instance behind the last sound one of the file; its id is above all others.
    Result<std::uint64_t> add(std::string_view record);
    Result<void> replace(std::uint64_t id, std::string_view record); ///< Another record in place of the instance's.
    /// References to it stay what they are.
    Result<void> drop(std::uint64_t id);
    /// Puts one encoded value in the place of a parameter, counted from 0, of a simple record. The text of the
    /// others stays.
    Result<void> setParameter(std::uint64_t id, std::size_t position, std::string_view value);
    /// Writes the three entities of the header anew; its other statements and comments stay. An error when
    /// the file lacks one of the three.
    Result<void> setHeader(const FileHeader& header);

    /// Puts the whole structure behind what the output holds. That it arrived, OutputFile::commit() says.
    void write(files::OutputFile& output) const;
    /// The same; the rewriter sees the instances that were not edited.
    void write(files::OutputFile& output, RecordRewriter& rewriter) const;

    /// Bytes held beside the file.
    std::size_t memoryUse() const noexcept;

private:
    struct State;
    class StructureWriter;
    std::unique_ptr<State> _state;
};

} // namespace velkor::sdai
