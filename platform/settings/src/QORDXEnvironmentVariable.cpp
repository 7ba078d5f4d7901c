#include "velkor/settings/QORDXEnvironmentVariable.h"
#include "velkor/objectmodeler/OutOfMemory.h"

#include <cerrno>
#include <cstdlib>
#include <limits>

bool QORDXEnvironmentVariable::HasBeenSet(const QORDXUnicodeString& name) {
    return std::getenv(name.text().ConvertToChar()) != nullptr;
}

bool QORDXEnvironmentVariable::GetValue(const QORDXUnicodeString& name, short& value) {
    int number = 0;
    if (!QORGetEnv(name.text()).ConvertToNum(number)) return false;
    if (number < std::numeric_limits<short>::min() || number > std::numeric_limits<short>::max()) return false;
    value = static_cast<short>(number);
    return true;
}

void QORDXEnvironmentVariable::SetValue(const QORDXUnicodeString& name, int value) {
    QORUnicodeString text;
    text.BuildFromNum(value);
    velkor::settings::setVariable(name.text(), text);
}

QORUnicodeString QORGetEnv(const QORUnicodeString& name) {
    return {std::getenv(name.ConvertToChar())};
}

namespace velkor::settings {

void setVariable(const QORUnicodeString& name, const QORUnicodeString& value) {
    if (setenv(name.ConvertToChar(), value.ConvertToChar(), 1) != 0 && errno == ENOMEM) objectmodeler::outOfMemory();
}

void removeVariable(const QORUnicodeString& name) {
    unsetenv(name.ConvertToChar());
}

} // namespace velkor::settings
