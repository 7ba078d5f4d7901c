/// A list of values whose positions count from 1.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

template <typename T>
class QORListVal {
public:
    int Size() const noexcept { return static_cast<int>(_items.size()); } ///< Number of items.
    void Append(T value) { _items.push_back(std::move(value)); }          ///< Adds an item at the end.

    /// The item at a position from 1 to Size(), which the caller must keep to.
    T& operator[](int position) { return _items[static_cast<std::size_t>(position - 1)]; }
    /// The item at a position from 1 on.
    const T& operator[](int position) const { return _items[static_cast<std::size_t>(position - 1)]; }

    /// First position at or behind `from` whose item is equal; 0 when there is none.
    int Locate(const T& value, int from = 1) const {
        for (int position = std::max(from, 1); position <= Size(); ++position) {
            if ((*this)[position] == value) return position;
        }
        return 0;
    }

    /// Removes the item at a position; nothing when there is none.
    void RemovePosition(int position) {
        if (position >= 1 && position <= Size()) _items.erase(_items.begin() + (position - 1));
    }
    void RemoveAll() noexcept { _items.clear(); } ///< Takes all items out.

    /// Sorts by a comparison that answers below 0, 0 or above 0. Items that compare as 0 keep their
    /// order.
    template <typename Compare>
    void QuickSort(Compare compare) {
        std::stable_sort(_items.begin(), _items.end(), [&](const T& a, const T& b) { return compare(a, b) < 0; });
    }

    auto begin() const noexcept { return _items.begin(); } ///< The items in their order, for loops.
    auto end() const noexcept { return _items.end(); }     ///< Behind the last item.

private:
    std::vector<T> _items;
};
