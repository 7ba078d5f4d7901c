#include "Version.h"

#include "commandline/Program.h"
#include "output/Json.h"

#include <libxml/globals.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <utf8proc.h>
#include <xxhash.h>
#include <zip.h>
#include <zlib.h>

namespace velkor::host {

namespace {

// A number that has two digits each for what follows the major version, "20914-…" for 2.9.14.
std::string dotted(const std::string& digits) {
    const unsigned long number = std::stoul(digits);
    return std::to_string(number / 10000) + '.' + std::to_string(number / 100 % 100) + '.' +
           std::to_string(number % 100);
}

Json library(const char* name, const std::string& version, bool isShared) {
    return {{"name", name}, {"version", version}, {"linked", isShared ? "shared" : "compiled in"}};
}

// A shared one says itself which it is: it may be newer than what the program was built with.
Json libraries() {
    return Json::array({library("libxml2", dotted(xmlParserVersion), true),
                        library("utf8proc", utf8proc_version(), true), library("zlib", zlibVersion(), true),
                        library("libzip", zip_libzip_version(), true),
                        library("xxhash", dotted(std::to_string(XXH_VERSION_NUMBER)), false)});
}

Json compiler() {
#if defined(__clang__)
    return {{"name", "clang"}, {"version", __clang_version__}};
#elif defined(__GNUC__)
    return {{"name", "gcc"}, {"version", __VERSION__}};
#else
    return nullptr;
#endif
}

} // namespace

std::string versionText(const std::string& format) {
    const std::string version = programVersion;
    if (format != "json") return "velkor " + version;
    std::ostringstream text;
    writeJson(text, Json{{"program", "velkor"},
                         {"version", version},
                         {"libraries", libraries()},
                         {"compiler", compiler()},
                         {"build",
                          {{"type", VELKOR_BUILD_TYPE},
                           {"sanitizers", VELKOR_BUILD_SANITIZERS},
                           {"system", VELKOR_BUILD_SYSTEM}}}});
    std::string line = text.str();
    line.pop_back();
    return line;
}

} // namespace velkor::host
