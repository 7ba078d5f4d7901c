#include "velkor/text/QORListValQORUnicodeString.h"

#include <algorithm>
#include <cstddef>
#include <unordered_set>

void QORListValQORUnicodeString::Append(const QORListValQORUnicodeString& other) {
    // By position, since a list may be appended to itself.
    const std::size_t count = other._items.size();
    _items.reserve(_items.size() + count);
    for (std::size_t i = 0; i < count; ++i) _items.push_back(other._items[i]);
}

QORUnicodeString& QORListValQORUnicodeString::operator[](int position) noexcept {
    if (has(position)) return _items[static_cast<std::size_t>(position - 1)];
    // Behind the usual way: making it in a thread takes memory, and without that the process ends.
    static thread_local QORUnicodeString outside;
    outside = QORUnicodeString();
    return outside;
}

const QORUnicodeString& QORListValQORUnicodeString::operator[](int position) const noexcept {
    static const QORUnicodeString outside;
    return has(position) ? _items[static_cast<std::size_t>(position - 1)] : outside;
}

int QORListValQORUnicodeString::Locate(const QORUnicodeString& value, int from) const noexcept {
    const int first = std::max(from, 1);
    if (first > Size()) return 0;
    const auto found = std::find(_items.begin() + (first - 1), _items.end(), value);
    return found == _items.end() ? 0 : static_cast<int>(found - _items.begin()) + 1;
}

void QORListValQORUnicodeString::RemoveDuplicates() {
    std::unordered_set<QORUnicodeString> seen;
    std::erase_if(_items, [&](const QORUnicodeString& item) { return !seen.insert(item).second; });
}

void QORListValQORUnicodeString::RemovePosition(int position) {
    if (has(position)) _items.erase(_items.begin() + (position - 1));
}
