/// Texts of ISO 8601 for dates, times and durations.
#pragma once

#include <optional>
#include <string_view>

namespace velkor::exchange {

/// A date, a time, or both.
struct IsoTime {
    bool hasDate = false;
    bool hasTime = false;
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    double second = 0.;
    /// Minutes ahead of universal time; nothing when the text says none.
    std::optional<int> zone;

    /// Of the extended format: "2024-05-31", "2024-05-31T07:30:00+02:00", "07:30". Nothing for other texts, and for
    /// days and times that there are not.
    static std::optional<IsoTime> read(std::string_view text);
};

/// Seconds of "P3DT2H", "PT0.5S", "P2W"; nothing for other texts and for months and years, whose length is not certain.
std::optional<double> isoDuration(std::string_view text);

} // namespace velkor::exchange
