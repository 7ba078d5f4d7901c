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
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::sdai {

/// Records are what stands between "#12=" and ";", simple or complex, in the encoding of the standard. An error is
/// one line that says why nothing was changed. Of several instances with one id the first is meant.
class VELKOR_PLATFORM_API Part21Edit {
public:
    template <class Value>
    using Result = tl::expected<Value, std::string>;

    /// The file must outlive the edit.
    explicit Part21Edit(const Part21File& file);
    ~Part21Edit();
    Part21Edit(Part21Edit&&) noexcept;
    Part21Edit& operator=(Part21Edit&&) noexcept;

    /// The record of an instance with the edits so far; valid until the next edit. An error for what the file does
    /// not have, for what was dropped, and for an instance whose statement is damaged.
    Result<std::string_view> record(std::uint64_t id) const;

    /// A new instance behind the last sound one of the file; its id is above all others.
    Result<std::uint64_t> add(std::string_view record);
    Result<void> replace(std::uint64_t id, std::string_view record);
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

    /// Bytes held beside the file.
    std::size_t memoryUse() const noexcept;

private:
    struct State;
    std::unique_ptr<State> _state;
};

} // namespace velkor::sdai
