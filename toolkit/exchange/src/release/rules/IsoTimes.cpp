#include "release/rules/IsoTimes.h"

#include <charconv>
#include <chrono>
#include <cmath>
#include <string>

namespace velkor::exchange {

namespace {

/// Takes from the front of a text what it is asked for; takes nothing when that is not there.
class TimeReader {
public:
    explicit TimeReader(std::string_view text) : _text(text) {}

    bool isAtEnd() const { return _text.empty(); }
    bool take(char wanted) {
        if (_text.empty() || _text.front() != wanted) return false;
        _text.remove_prefix(1);
        return true;
    }
    /// So many digits.
    bool take(std::size_t digits, int& value) {
        if (_text.size() < digits) return false;
        for (const char digit : _text.substr(0, digits))
            if (digit < '0' || digit > '9') return false;
        std::from_chars(_text.data(), _text.data() + digits, value);
        _text.remove_prefix(digits);
        return true;
    }
    /// Digits, and with a point or comma a fraction.
    bool take(double& value) {
        std::size_t end = 0;
        while (end < _text.size() && _text[end] >= '0' && _text[end] <= '9') ++end;
        if (end == 0) return false;
        if (end + 1 < _text.size() && (_text[end] == '.' || _text[end] == ',')) {
            const std::size_t point = end++;
            while (end < _text.size() && _text[end] >= '0' && _text[end] <= '9') ++end;
            if (end == point + 1) return false;
        }
        std::string number(_text.substr(0, end));
        if (const std::size_t comma = number.find(','); comma != number.npos) number[comma] = '.';
        const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
        if (read.ec != std::errc()) return false;
        _text.remove_prefix(end);
        return true;
    }

private:
    std::string_view _text;
};

bool readDate(TimeReader& reader, IsoTime& time) {
    if (!reader.take(4, time.year) || !reader.take('-') || !reader.take(2, time.month) || !reader.take('-') ||
        !reader.take(2, time.day))
        return false;
    time.hasDate = true;
    return std::chrono::year_month_day(std::chrono::year(time.year),
                                       std::chrono::month(static_cast<unsigned>(time.month)),
                                       std::chrono::day(static_cast<unsigned>(time.day)))
        .ok();
}

bool readZone(TimeReader& reader, IsoTime& time) {
    if (reader.isAtEnd()) return true;
    if (reader.take('Z')) {
        time.zone = 0;
        return reader.isAtEnd();
    }
    const bool isBehind = reader.take('-');
    int hours = 0;
    int minutes = 0;
    if ((!isBehind && !reader.take('+')) || !reader.take(2, hours)) return false;
    if (!reader.isAtEnd() && (reader.take(':'), !reader.take(2, minutes))) return false;
    time.zone = (hours * 60 + minutes) * (isBehind ? -1 : 1);
    return reader.isAtEnd() && hours < 24 && minutes < 60;
}

bool readTime(TimeReader& reader, IsoTime& time) {
    time.hasTime = true;
    if (!reader.take(2, time.hour)) return false;
    if (reader.take(':') && !reader.take(2, time.minute)) return false;
    if (reader.take(':') && !reader.take(time.second)) return false;
    return time.hour < 24 && time.minute < 60 && time.second < 60. && readZone(reader, time);
}

} // namespace

std::optional<IsoTime> IsoTime::read(std::string_view text) {
    IsoTime time;
    TimeReader reader(text);
    const bool isTime = text.size() > 2 && text[2] == ':';
    if (!isTime && !reader.take('T')) {
        if (!readDate(reader, time)) return std::nullopt;
        if (reader.isAtEnd()) return time;
        if (!reader.take('T')) return std::nullopt;
    }
    return readTime(reader, time) ? std::optional(time) : std::nullopt;
}

std::optional<double> isoDuration(std::string_view text) {
    TimeReader reader(text);
    const bool isNegative = reader.take('-');
    if (!reader.take('P') || reader.isAtEnd()) return std::nullopt;
    constexpr struct {
        char letter;
        bool isTime;
        double seconds;
    } parts[] = {{'W', false, 604800.}, {'D', false, 86400.}, {'H', true, 3600.}, {'M', true, 60.}, {'S', true, 1.}};
    double sum = 0.;
    bool isTime = false;
    std::size_t next = 0;
    while (!reader.isAtEnd()) {
        if (!isTime && reader.take('T')) {
            isTime = true;
            if (reader.isAtEnd()) return std::nullopt;
        }
        double count = 0.;
        if (!reader.take(count)) return std::nullopt;
        while (next < std::size(parts) && (parts[next].isTime != isTime || !reader.take(parts[next].letter))) ++next;
        if (next == std::size(parts)) return std::nullopt;
        sum += count * parts[next++].seconds;
    }
    return std::isfinite(sum) ? std::optional(isNegative ? -sum : sum) : std::nullopt;
}

} // namespace velkor::exchange
