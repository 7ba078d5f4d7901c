/// A list of strings whose positions count from 1.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <utility>
#include <vector>

class VELKOR_PLATFORM_API QORListValQORUnicodeString {
public:
    int Size() const noexcept { return static_cast<int>(_items.size()); }         ///< Number of texts.
    void Append(const QORUnicodeString& value) { _items.push_back(value); }       ///< Adds a text at the end.
    void Append(QORUnicodeString&& value) { _items.push_back(std::move(value)); } ///< Adds a text at the end.
    void Append(const QORListValQORUnicodeString& other); ///< Adds all texts of another list at the end.

    /// The item at a position from 1 to Size(); a position outside is a fault of the caller and
    /// gives an empty text that is not part of the list.
    QORUnicodeString& operator[](int position) noexcept;
    /// The text at a position from 1 on; an empty one when there is none.
    const QORUnicodeString& operator[](int position) const noexcept;

    /// First position at or behind `from` whose item is exactly equal; 0 when there is none.
    int Locate(const QORUnicodeString& value, int from = 1) const noexcept;
    /// Keeps the first of exactly equal items, in their order. Linear in the number of items.
    void RemoveDuplicates();
    /// Removes the item at a position; nothing when there is none.
    void RemovePosition(int position);
    void RemoveAll() noexcept { _items.clear(); } ///< Takes all texts out.

    auto begin() const noexcept { return _items.begin(); } ///< The texts in their order, for loops.
    auto end() const noexcept { return _items.end(); }     ///< Behind the last text.

private:
    bool has(int position) const noexcept { return position >= 1 && position <= Size(); }
    std::vector<QORUnicodeString> _items;
};
