#include "LargeStructure.h"

#include "velkor/sdai/Part21File.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <algorithm>
#include <fstream>
#include <string_view>
#include <unistd.h>

namespace velkor::bench {

using namespace velkor::sdai;

namespace {

/// Instances of the kinds and lengths that fill a building model.
std::string madeUpModel() {
    std::string text =
        "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\n"
        "FILE_NAME('','2020-01-01T00:00:00',(''),(''),'','','');\nFILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n";
    text +=
        "#1=IFCUNITASSIGNMENT((#2,#3,#4));\n#2=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
        "#3=IFCCONVERSIONBASEDUNIT(#6,.PLANEANGLEUNIT.,'DEGREE',#5);\n#4=IFCSIUNIT(*,.AREAUNIT.,$,.SQUARE_METRE.);\n"
        "#5=IFCMEASUREWITHUNIT(IFCPLANEANGLEMEASURE(0.017453292519943295),#7);\n"
        "#6=IFCDIMENSIONALEXPONENTS(0,0,0,0,0,0,0);\n#7=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);\n";
    for (int i = 11; i < 40000; i += 5) {
        const auto name = [i](int step) { return '#' + std::to_string(i + step); };
        text += name(0) + "=IFCCARTESIANPOINT((" + std::to_string(i * 0.37) + ",-1250.5,0.));\n";
        text += name(1) + "=IFCAXIS2PLACEMENT3D(" + name(0) + ",$,$);\n";
        text += name(2) + "=IFCLOCALPLACEMENT($," + name(1) + ");\n";
        text +=
            name(3) + "=IFCPROPERTYSINGLEVALUE('Level; of detail',$,IFCLABEL('It''s " + std::to_string(i) + "'),$);\n";
        text += name(4) + "=IFCWALLSTANDARDCASE('2O2Fr$t4X7Zf8NOew3FLOH',$,'Wall " + std::to_string(i) + "',$,$," +
                name(2) + ",$,'T/" + std::to_string(i) + "');\n";
    }
    return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

/// Copies an instance up to its ";" with all references shifted.
void writeShifted(std::ofstream& out, std::string_view text, std::uint64_t shift) {
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

} // namespace

const LargeStructure& LargeStructure::theOne() {
    static const LargeStructure structure;
    return structure;
}

LargeStructure::LargeStructure()
    : _path(std::filesystem::temp_directory_path() / ("velkor_bench." + std::to_string(getpid()) + ".ifc")) {
    short megabytes = 110;
    QORDXEnvironmentVariable::GetValue("VELKOR_BENCH_MEGABYTES", megabytes);
    write(static_cast<std::uint64_t>(std::max<short>(megabytes, 1)) * 1'000'000);
}

LargeStructure::~LargeStructure() {
    std::filesystem::remove(_path);
}

void LargeStructure::write(std::uint64_t size) {
    const std::string madeUp = madeUpModel();
    const QORUnicodeString named = QORGetEnv("VELKOR_BENCH_MODEL");
    const auto model =
        !named.IsEmpty() ? Part21File::open(named.ConvertToChar()) : Part21File::fromText(madeUp, "made-up model");
    if (!model || (*model)->instanceCount() == 0) {
        _error = model ? "the model has no instances" : model.error().message;
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

} // namespace velkor::bench
