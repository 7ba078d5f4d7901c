/// An instance's record, made parameter by parameter.
///
///     TemplateRecord("IFCPROJECT").text(identifier).unset().text(name).unset(6).end()
#pragma once

#include "velkor/sdai/Part21Encoding.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

class TemplateRecord {
public:
    explicit TemplateRecord(std::string_view entity) : _text(entity) { _text += '('; }

    TemplateRecord& unset(int count = 1) {
        for (int i = 0; i < count; ++i) next().append(sdai::omittedValue);
        return *this;
    }
    /// Unset when it is empty.
    TemplateRecord& text(std::string_view utf8) {
        if (utf8.empty()) return unset();
        sdai::appendString(next(), utf8);
        return *this;
    }
    TemplateRecord& enumerator(std::string_view name) {
        if (!sdai::appendEnumeration(next(), name)) _text += sdai::omittedValue;
        return *this;
    }
    /// Unset for 0.
    TemplateRecord& reference(std::uint64_t id) {
        if (!sdai::appendReference(next(), id)) _text += sdai::omittedValue;
        return *this;
    }
    /// Unset when there are none.
    TemplateRecord& references(const std::vector<std::uint64_t>& ids) {
        if (ids.empty()) return unset();
        return list(ids, [](std::string& text, std::uint64_t id) { return sdai::appendReference(text, id); });
    }
    TemplateRecord& labels(const std::vector<std::string_view>& values) {
        return list(values, [](std::string& text, std::string_view value) {
            sdai::appendString(text += "IFCLABEL(", value);
            text += ')';
            return true;
        });
    }
    std::string end() const { return _text + ')'; }

private:
    std::string& next() {
        if (_isBegun) _text += ',';
        _isBegun = true;
        return _text;
    }

    template <class Values, class Append>
    TemplateRecord& list(const Values& values, Append append) {
        next() += '(';
        for (const auto& value : values) {
            static_cast<void>(append(_text, value));
            _text += ',';
        }
        _text.back() = ')';
        return *this;
    }

    std::string _text;
    bool _isBegun = false;
};

} // namespace velkor
