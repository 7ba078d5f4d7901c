// The index by itself: several segments need more text than a test can have.

#include "StructureReader.h"

#include "ExchangeText.h"

#include <map>

namespace velkor::sdai::test {

namespace {

/// Ids for each way that an index has from id to number: following each other, mixed, far apart in order
/// and not, wider than 32 bits in order and not, repeated close together and far apart.
std::vector<std::vector<std::uint64_t>> layouts() {
    std::vector<std::vector<std::uint64_t>> result(8);
    for (std::uint64_t i = 0; i < 300; ++i) {
        const std::uint64_t mixed = i * 7919 % 300;
        result[0].push_back(100 + i);
        result[1].push_back(1 + mixed);
        result[2].push_back(5 + i * 1'000'003);
        result[3].push_back(5 + mixed * 1'000'003);
        result[4].push_back(i < 150 ? i * 2 : (1ULL << 32) + i * i);
        result[5].push_back(mixed < 150 ? mixed : 149 - mixed);
        result[6].push_back(mixed / 3);
        result[7].push_back(mixed / 3 * 1'000'003);
    }
    return result;
}

} // namespace

TEST(Index, FindsTheFirstInstanceOfEachIdHoweverIdsLie) {
    for (const std::vector<std::uint64_t>& wanted : layouts()) {
        for (const unsigned segmentBits : {32U, 9U, 6U}) {
            std::string text = "ISO-10303-21;HEADER;ENDSEC;DATA;";
            std::vector<std::uint64_t> offsets;
            for (std::size_t i = 0; i < wanted.size(); ++i) {
                // Comments longer than a segment leave segments without an instance.
                if (i % 50 == 20) text += "/*" + std::string(1400, '-') + "*/";
                offsets.push_back(text.size());
                text += '#' + std::to_string(wanted[i]) + "=A(" + std::string(i % 7, '*') + ");";
            }
            text += "ENDSEC;END-ISO-10303-21;";
            part21::Structure structure(text, segmentBits);
            part21::StructureReader(structure, part21::blockClassifier(ScanPath::Automatic)).read();

            EXPECT_LE(structure.index.memoryUse(), wanted.size() * 18 + 8192);
            std::map<std::uint64_t, std::uint32_t> first;
            std::size_t repetitions = 0;
            ASSERT_EQ(structure.index.count(), wanted.size());
            for (std::uint32_t i = 0; i < wanted.size(); ++i) {
                repetitions += first.emplace(wanted[i], i).second ? 0U : 1U;
                EXPECT_EQ(structure.index.offset(i), offsets[i]) << segmentBits;
                EXPECT_EQ(structure.index.id(i), wanted[i]);
            }
            for (const auto& [id, number] : first) {
                EXPECT_EQ(structure.index.find(id), number) << id;
                for (const std::uint64_t near : {id - 1, id + 1}) {
                    EXPECT_EQ(structure.index.find(near).has_value(), first.contains(near)) << near;
                }
            }
            EXPECT_EQ(structure.problems.total(), repetitions);
        }
    }
}

} // namespace velkor::sdai::test
