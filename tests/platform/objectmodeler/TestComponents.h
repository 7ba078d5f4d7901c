/// A small library of components: an extension, a TIE, and the table that registers them.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/objectmodeler/QOROMModule.h"

#include <span>

namespace velkor::objectmodeler::test {

/// Member of every class below, to see that each object goes and none goes early.
struct Alive {
    static inline std::atomic<int> count = 0;
    Alive() noexcept { ++count; }
    Alive(const Alive&) noexcept : Alive() {}
    Alive& operator=(const Alive&) = default;
    ~Alive() { --count; }
};

/// An object that knows none of the interfaces below.
class TestPlain : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS
    Alive _alive;
};

/// Extends every object.
class QORITestGreeting : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS
public:
    virtual int greet(int times) = 0;
};
class QORETestGreeting : public QORITestGreeting {
    VELKOR_DECLARE_CLASS
public:
    int greet(int times) override { return times * 2; }
    Alive alive;
};

/// Offered by a TIE on TestCounter.
class QORITestCounting : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS
public:
    virtual int add(int count) = 0;
};
class TestCounter : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS
public:
    int add(int count) { return sum += count; }
    int sum = 0;
    Alive alive;
};

inline constexpr IID GreetingId = {0x5A1F0C11, 0x9B0E, 0x4D51, {0x8A, 1, 2, 3, 4, 5, 6, 7}};
inline constexpr IID CountingId = {0x5A1F0C13, 0x9B0E, 0x4D51, {0x8A, 1, 2, 3, 4, 5, 6, 7}};

extern "C" IUnknown* CreateBOAQORITestGreetingQORETestGreeting(QORBaseUnknown* object, QORBaseUnknown* second);
extern "C" IUnknown* CreateTIEQORITestCountingTestCounter(QORBaseUnknown* object, QORBaseUnknown* second);

/// How often a function of the table ran.
inline int registrationCalls = 0;
/// A table with its null entries, of which one stands in its middle.
std::span<const QOROMRegistration> testTable();
/// The record of a library with a table.
inline QOROMModuleInfo library(std::span<const QOROMRegistration> table = testTable()) {
    return {&table.front(), &table.back()};
}

} // namespace velkor::objectmodeler::test
