#include "Core/Components/PartParameters.h"

#include <array>
#include <stdexcept>

#include "Core/Components/Connectors.h"
#include "Core/Components/Primitives.h"
#include "Core/Components/Sources.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(CheckedSize, IsTheSizeItselfFrom1To255) {
    const High unit("u");
    for (std::uint32_t size = 1; size <= 255; ++size) EXPECT_EQ(checkedSize(unit, "size", size), size);
}

TEST(CheckedSize, RefusesAllOthersAndNamesUnitAndParameter) {
    const High unit("u7");
    for (const std::uint32_t size : {0U, 256U, 257U, 511U, 512U, 65536U, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(errorOf([&] { checkedSize(unit, "width", size); }),
                  "Error: High 'u7': 'width' is " + std::to_string(size) + ", but must be from 1 to 255.");
    }
}

/// What a type does with its size.
struct SizedPart {
    std::string type;
    std::string key;
    std::function<void(const ParaMap&)> make;
};

const std::vector<SizedPart>& sizedParts() {
    static const std::vector<SizedPart> parts = {
        {"BusBuffer", "size", [](const ParaMap& parameters) { BusBuffer("u", parameters); }},
        {"Const", "size", [](const ParaMap& parameters) { Const("u", parameters); }},
        {"Join", "out", [](const ParaMap& parameters) { Join("u", parameters); }},
        {"Split", "in", [](const ParaMap& parameters) { Split("u", parameters); }},
        {"Splice", "size", [](const ParaMap& parameters) { Splice("u", parameters); }},
    };
    return parts;
}

ParaMap sized(const SizedPart& part, const std::string& size) {
    ParaMap parameters("(" + part.key + "=" + size + ")");
    if (part.type == "Const") parameters["value"] = "0";
    return parameters;
}

TEST(PartParameters, AllPartsWithASizeRefuseOneThatNoBusCanHave) {
    for (const SizedPart& part : sizedParts()) {
        for (const std::string size : {"0", "256", "$1FF", "4294967295"}) {
            EXPECT_EQ(errorOf([&] { part.make(sized(part, size)); }), "Error: " + part.type + " 'u': '" + part.key +
                                                                          "' is " + (size == "$1FF" ? "511" : size) +
                                                                          ", but must be from 1 to 255.");
        }
        for (const std::string size : {"1", "254", "0xC8"}) {
            EXPECT_EQ(errorOf([&] { part.make(sized(part, size)); }), "(no Error)") << part.type << " " << size;
        }
    }
}

TEST(PartParameters, ASizeThatIsNoNumberIsReportedAndCountsAs0) {
    for (const SizedPart& part : sizedParts()) {
        std::string error;
        EXPECT_EQ(errorOutputOf([&] { error = errorOf([&] { part.make(sized(part, "wide")); }); }),
                  "***ERROR : can't parse 'wide' as a number\n");
        EXPECT_EQ(error, "Error: " + part.type + " 'u': '" + part.key + "' is 0, but must be from 1 to 255.");
    }
}

TEST(PartParameters, ASizeBeyond32BitsIsAStandardException) {
    for (const SizedPart& part : sizedParts()) {
        EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { part.make(sized(part, "4294967296")); }), "stoul")
            << part.type;
    }
}

constexpr std::array kTestFamilies = {FamilyDelay{"F", 11}, FamilyDelay{"LS", 35}};

TEST(FamilyDelays, AreFoundByTheExactNameOfTheFamily) {
    EXPECT_EQ(familyDelay(ParaMap("(family=F)"), kTestFamilies, "%s"), 11U);
    EXPECT_EQ(familyDelay(ParaMap("(delay=3,family=LS)"), kTestFamilies, "%s"), 35U);
    EXPECT_EQ(familyDelay(ParaMap("(delay=3)"), kTestFamilies, "%s"), std::nullopt);
    EXPECT_EQ(familyDelay(ParaMap(), kTestFamilies, "%s"), std::nullopt);
}

TEST(FamilyDelays, OfAFamilyThatIsNotMadeAreAnErrorWithTheGivenWords) {
    for (const std::string family : {"ALS", "f", "", "L", "LSF", "100%d"}) {
        EXPECT_EQ(errorOf([&] { familyDelay(ParaMap("(family=" + family + ")"), kTestFamilies, "No '%s' here."); }),
                  "No '" + family + "' here.");
    }
}

TEST(PartParameters, BusIoIsOnForTheWordsOfYesAndOffForAllElse) {
    for (const std::string word : {"true", "yes", "1", "TRUE", "Yes"}) {
        EXPECT_EQ(Demux1to4("d", ParaMap("(bus_io=" + word + ")")).getPorts().size(), 3U) << word;
    }
    for (const std::string word : {"false", "no", "0", "NO", "on", "2", ""}) {
        EXPECT_EQ(Demux1to4("d", ParaMap("(bus_io=" + word + ")")).getPorts().size(), 7U) << word;
    }
    EXPECT_EQ(Demux1to4("d", ParaMap()).getPorts().size(), 7U);
}

}  // namespace
}  // namespace tarnsim
