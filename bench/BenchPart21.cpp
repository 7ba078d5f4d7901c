// How fast an exchange structure is opened, for each set of instructions, beside a plain scan of
// the same text that only counts statements: what an index costs over reading alone.
//
// The structure is made at run time: a model's instances over and over with shifted ids, up to
// the size of an ordinary large building. VELKOR_BENCH_MODEL names the model; without it a
// small one is made up. VELKOR_BENCH_MEGABYTES sets the size.

#include "part21/BlockClassifier.h"
#include "sdai/Part21File.h"
#include "sdai/Part21Lexer.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <bit>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

using namespace velkor::sdai;

namespace {

constexpr const char* pathNames[] = {"Automatic", "Portable", "Sse2", "Avx2", "Avx512"};

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Instances of the kinds and lengths that fill a building model.
std::string madeUpModel() {
    std::string text =
        "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
        "FILE_NAME('','2020-01-01T00:00:00',(''),(''),'','','');\nFILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n";
    for (int i = 1; i < 40000; i += 5) {
        const auto name = [i](int step) { return "#" + std::to_string(i + step); };
        text += name(0) + "=IFCCARTESIANPOINT((" + std::to_string(i * 0.37) + ",-1250.5,0.));\n";
        text += name(1) + "=IFCAXIS2PLACEMENT3D(" + name(0) + ",$,$);\n";
        text += name(2) + "=IFCLOCALPLACEMENT($," + name(1) + ");\n";
        text +=
            name(3) + "=IFCPROPERTYSINGLEVALUE('Level; of detail',$,IFCLABEL('It''s " + std::to_string(i) + "'),$);\n";
        text += name(4) + "=IFCWALLSTANDARDCASE('2O2Fr$t4X7Zf8NOew3FLOH',#1,'Wall " + std::to_string(i) + "',$,$," +
                name(2) + ",$,'T/" + std::to_string(i) + "');\n";
    }
    return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

/// The structure on disk, gone with the process.
class LargeStructure {
public:
    LargeStructure() : _path(std::filesystem::temp_directory_path() / ("bench_part21." + std::to_string(getpid()))) {
        const char* megabytes = std::getenv("VELKOR_BENCH_MEGABYTES");
        write((megabytes ? std::strtoull(megabytes, nullptr, 10) : 110) * 1'000'000);
    }
    ~LargeStructure() { std::filesystem::remove(_path); }
    LargeStructure(const LargeStructure&) = delete;
    LargeStructure& operator=(const LargeStructure&) = delete;

    std::string path() const { return _path.string(); }
    const std::string& error() const { return _error; }

private:
    void write(std::uint64_t size) {
        const std::string madeUp = madeUpModel();
        const char* named = std::getenv("VELKOR_BENCH_MODEL");
        const auto model = named ? Part21File::open(named) : Part21File::fromText(madeUp, "made-up model");
        if (!model || (*model)->instanceCount() == 0) {
            _error = model ? "the model has no instances" : model.error();
            return;
        }
        const Part21File& file = **model;
        std::uint64_t largest = 0;
        for (std::uint32_t i = 0; i < file.instanceCount(); ++i) largest = std::max(largest, file.id(i));

        std::ofstream out(_path, std::ios::binary);
        out << file.text().substr(0, file.offset(0));
        const auto copies = std::max<std::uint64_t>(1, size / file.text().size());
        for (std::uint64_t copy = 0; copy < copies; ++copy) {
            for (std::uint32_t i = 0; i < file.instanceCount(); ++i) {
                out << '#' << file.id(i) + copy * largest << '=';
                writeShifted(out, file.instanceText(i), copy * largest);
                out << '\n';
            }
        }
        out << "ENDSEC;\nEND-ISO-10303-21;\n";
    }

    /// Copies an instance up to its ";" with all references shifted.
    static void writeShifted(std::ofstream& out, std::string_view text, std::uint64_t shift) {
        Part21Lexer lexer(text);
        const char* written = text.data();
        for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
            if (token.kind == TokenKind::InstanceName) {
                std::int64_t id = 0;
                decodeInteger(token.text.substr(1), id);
                out.write(written, token.text.data() - written);
                out << '#' << static_cast<std::uint64_t>(id) + shift;
                written = lexer.position();
            } else if (token.kind == TokenKind::Semicolon) {
                break;
            }
        }
        out.write(written, lexer.position() - written);
    }

    std::filesystem::path _path;
    std::string _error;
};

const LargeStructure& largeStructure() {
    static const LargeStructure structure;
    return structure;
}

/// Counts the ";" and "=" of a text with the classifier alone.
std::uint64_t countMarks(std::string_view text, part21::BlockClassifier classifier) {
    std::array<part21::BlockMasks, 256> masks;
    std::uint64_t count = 0;
    const std::size_t blocks = text.size() / part21::blockSize;
    for (std::size_t block = 0; block < blocks; block += masks.size()) {
        const std::size_t now = std::min(masks.size(), blocks - block);
        classifier(text.data() + block * part21::blockSize, now, masks.data());
        for (std::size_t i = 0; i < now; ++i) count += static_cast<unsigned>(std::popcount(masks[i].statement));
    }
    return count;
}

void plainScan(benchmark::State& state) {
    const auto path = static_cast<ScanPath>(state.range(0));
    state.SetLabel(pathNames[state.range(0)]);
    const auto classifier = part21::blockClassifier(path);
    const auto file = Part21File::open(largeStructure().path());
    if (classifier == nullptr || !file) {
        state.SkipWithError(file ? "not on this processor" : file.error().c_str());
        return;
    }
    for (auto _ : state) benchmark::DoNotOptimize(countMarks((*file)->text(), classifier));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * (*file)->text().size()));
}

void open(benchmark::State& state) {
    const auto path = static_cast<ScanPath>(state.range(0));
    state.SetLabel(pathNames[state.range(0)]);
    const LargeStructure& structure = largeStructure();
    if (!structure.error().empty()) {
        state.SkipWithError(structure.error().c_str());
        return;
    }
    const auto warm = Part21File::open(structure.path(), path);
    if (!warm) {
        state.SkipWithError(warm.error().c_str());
        return;
    }
    const std::string_view text = (*warm)->text();
    double scan = 1e9;
    for (int i = 0; i < 5; ++i) {
        const auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(countMarks(text, part21::blockClassifier(path)));
        scan = std::min(scan, secondsSince(start));
    }
    double opening = 1e9;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        const auto file = Part21File::open(structure.path(), path);
        const double seconds = secondsSince(start);
        if ((*file)->instanceCount() != (*warm)->instanceCount() || (*file)->problemCount() != 0) {
            state.SkipWithError("the structure was not read as written");
            return;
        }
        state.SetIterationTime(seconds);
        opening = std::min(opening, seconds);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
    state.counters["instances"] = (*warm)->instanceCount();
    state.counters["bestGBps"] = static_cast<double>(text.size()) / opening / 1e9;
    state.counters["timesPlainScan"] = opening / scan;
    state.counters["memoryPerByte"] = static_cast<double>((*warm)->memoryUse()) / static_cast<double>(text.size());
}

} // namespace

BENCHMARK(plainScan)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);
BENCHMARK(open)->DenseRange(0, 4)->UseManualTime()->Unit(benchmark::kMillisecond);
