/// Variables of the process environment. This area alone reads and writes them.
///
/// A variable's number is its whole text, blanks around it dropped: an optional sign and decimal
/// digits, from -32768 to 32767. Anything else counts as unreadable.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/text/QORDXUnicodeString.h"

class VELKOR_PLATFORM_API QORDXEnvironmentVariable {
public:
    /// True when the variable is there, even with an empty value.
    static bool HasBeenSet(const QORDXUnicodeString& name);
    /// True when the variable is there and holds a number; else `value` stays as it is.
    static bool GetValue(const QORDXUnicodeString& name, short& value);
    /// Sets the variable, for this process and those it starts, to the decimal text of a number.
    static void SetValue(const QORDXUnicodeString& name, int value);
};

/// The text of a variable; empty when it is not set.
VELKOR_PLATFORM_API QORUnicodeString QORGetEnv(const QORUnicodeString& name);

namespace velkor::settings {

/// Sets a variable to a text. Not to be called while another thread reads the environment.
VELKOR_PLATFORM_API void setVariable(const QORUnicodeString& name, const QORUnicodeString& value);
VELKOR_PLATFORM_API void removeVariable(const QORUnicodeString& name);

} // namespace velkor::settings
