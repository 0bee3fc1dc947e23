#include "Core/Components/MemoryImages.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "Tests/Core/Circuit/CircuitTestSupport.h"
#include "Tests/Core/Components/TestParts.h"

namespace tarnsim {
namespace {

/// What a loader does: "0010=41 ..." for the bytes that it stores, and what it writes to the two streams.
struct Load {
    std::string stored;
    std::string output;
    std::string error;
};

/// Loads the images of a unit `u` with these parameters. Addresses from `end` on are refused.
Load loadFor(const std::string& parameters, const Circuit& owner, std::uint32_t end = 0xffffffff) {
    const NotingPart unit("Memory", "u", ParaMap(parameters));
    Load load;
    const auto store = [&](std::uint32_t address, const Value& byte) {
        if (address >= end) return false;
        EXPECT_EQ(byte.width(), 8U);
        load.stored += format("%s%04x=%02x", load.stored.empty() ? "" : " ", address, byte.toNumber());
        return true;
    };
    const Streams streams =
        streamsOf([&] { EXPECT_NO_THROW(loadMemoryImages(unit, "ACME27", 0x10000, owner, store)); });
    load.output = streams.output;
    load.error = streams.error;
    return load;
}

/// The same with a circuit of the file path `file`, never read, as the owner.
Load loadBeside(const std::string& file, const std::string& parameters, std::uint32_t end = 0xffffffff) {
    Circuit owner("board", nullptr);
    owner.setFilePath(file);
    return loadFor(parameters, owner, end);
}

std::string missing(const std::string& path) {
    return "*** Error: Memory component ACME27 cannot find the specified file '" + path + "'.\n";
}

TEST(MemoryImages, OfAMemoryWithoutFilesAreNone) {
    for (const std::string parameters : {"", "(rawaddress=5)", "(cbmfile=)", "(cbmfile=,rawfile=)", "(file=a)"}) {
        const Load load = loadBeside("board.nlx", parameters);
        EXPECT_EQ(load.stored + load.output + load.error, "") << parameters;
    }
}

TEST(MemoryImages, AreStoredByteByByteFromTheirAddressOn) {
    const Workplace here;
    here.write("a", std::string("\x00\x7f\x80\xff", 4));
    here.write("c",
               "\x34\x12"
               "AB");
    Load load = loadBeside("board.nlx", "(rawfile=a,rawaddress=0x10)");
    EXPECT_EQ(load.stored, "0010=00 0011=7f 0012=80 0013=ff");
    EXPECT_EQ(load.output, "Loaded 4 bytes from file 'a' into address 0x0010 in 'u'.\n");
    load = loadBeside("board.nlx", "(cbmfile=c)");
    EXPECT_EQ(load.stored, "1234=41 1235=42");
    EXPECT_EQ(load.output, "Loaded 2 bytes from file 'c' into address 0x1234 in 'u'.\n");
    EXPECT_EQ(load.error, "");
}

TEST(MemoryImages, AreBytesAndNotText) {
    const Workplace here;
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    here.write("a", all);
    std::string stored;
    for (unsigned byte = 0; byte < 256; ++byte) stored += format("%s%04x=%02x", byte == 0 ? "" : " ", byte, byte);
    EXPECT_EQ(loadBeside("board.nlx", "(rawfile=a)").stored, stored);
}

TEST(MemoryImages, LoadTheCbmFileInFrontOfTheRawFile) {
    const Workplace here;
    here.write("z", "\x01" + std::string(1, '\0') + "ab");
    here.write("a", "xy");
    const Load load = loadBeside("board.nlx", "(rawfile=a,cbmfile=z)");
    EXPECT_EQ(load.stored, "0001=61 0002=62 0000=78 0001=79");
    EXPECT_EQ(load.output,
              "Loaded 2 bytes from file 'z' into address 0x0001 in 'u'.\n"
              "Loaded 2 bytes from file 'a' into address 0x0000 in 'u'.\n");
}

TEST(MemoryImages, MissingOnesAreReportedInTheSameOrderAndTheOtherOneLoads) {
    const Workplace here;
    here.write("there", "ab");
    Load load = loadBeside("board.nlx", "(rawfile=a,cbmfile=z)");
    EXPECT_EQ(load.error, missing("z") + missing("a"));
    EXPECT_EQ(load.output, "");
    load = loadBeside("board.nlx", "(rawfile=there,cbmfile=z)");
    EXPECT_EQ(load.stored, "0000=61 0001=62");
    EXPECT_EQ(load.error, missing("z"));
    load = loadBeside("board.nlx", "(rawfile=a,cbmfile=there)");
    EXPECT_EQ(load.output, "Loaded 0 bytes from file 'there' into address 0x6261 in 'u'.\n");
    EXPECT_EQ(load.error, missing("a"));
}

TEST(MemoryImages, AreRefusedFromTheFirstAddressThatTheMemoryHasNot) {
    const Workplace here;
    here.write("a", "abcd");
    here.write("dir/c", std::string("\x02\x00", 2) + "ab");
    const auto refused = [](const std::string& file, const std::string& address) {
        return "*** WARNING: file '" + file + "' runs past the end of memory 'u': it is refused from address " +
               address + " on.\n";
    };
    Load load = loadBeside("board.nlx", "(rawfile=a)", 3);
    EXPECT_EQ(load.stored, "0000=61 0001=62 0002=63");
    EXPECT_EQ(load.output, "Loaded 3 bytes from file 'a' into address 0x0000 in 'u'.\n");
    EXPECT_EQ(load.error, refused("a", "0x0003"));
    load = loadBeside("board.nlx", "(rawfile=a)", 4);
    EXPECT_EQ(load.error, "") << "it just fits";
    load = loadBeside("dir/board.nlx", "(cbmfile=c)", 2);
    EXPECT_EQ(load.stored, "");
    EXPECT_EQ(load.output, "Loaded 0 bytes from file 'dir/c' into address 0x0002 in 'u'.\n");
    EXPECT_EQ(load.error, refused("dir/c", "0x0002"));
}

TEST(MemoryImages, OnceRefusedAreNotTakenUpAgainWhereTheAddressesComeRound) {
    const Workplace here;
    here.write("a", "abc");
    const Load load = loadBeside("board.nlx", "(rawfile=a,rawaddress=0xffffffff)", 4);
    EXPECT_EQ(load.stored, "");
    EXPECT_EQ(load.output, "Loaded 0 bytes from file 'a' into address 0xffffffff in 'u'.\n");
}

TEST(MemoryImages, PassOnWhatTheMemoryRaises) {
    const Workplace here;
    here.write("a", "ab");
    const NotingPart unit("Memory", "u", ParaMap("(rawfile=a)"));
    Circuit owner("board", nullptr);
    const auto store = [](std::uint32_t, const Value&) -> bool { throw std::out_of_range("no such word"); };
    const std::string output = outputOf([&] {
        EXPECT_EQ(
            standardExceptionOf<std::out_of_range>([&] { loadMemoryImages(unit, "ACME27", 0x10000, owner, store); }),
            "no such word");
    });
    EXPECT_EQ(output, "") << "nothing was loaded";
}

TEST(MemoryImagePlace, IsTheDirectoryOfTheCircuitFileAsWritten) {
    const Workplace here;
    here.write("a", "0");
    here.write("dir/a", "1");
    here.write("dir/sub/a", "2");
    const std::map<std::string, std::string> paths = {{"board.nlx", "a"},
                                                      {"dir/board.nlx", "dir/a"},
                                                      {"./board.nlx", "./a"},
                                                      {"dir/../board.nlx", "dir/../a"},
                                                      {"dir/sub/board.nlx", "dir/sub/a"},
                                                      {"dir/", "dir/a"},
                                                      {"", "a"}};
    for (const auto& [file, path] : paths) {
        EXPECT_EQ(loadBeside(file, "(rawfile=a)").output,
                  "Loaded 1 bytes from file '" + path + "' into address 0x0000 in 'u'.\n")
            << file;
    }
}

TEST(MemoryImagePlace, OfAnAbsoluteNameIsTakenAsARelativeOneWhereTheCircuitFileHasADirectory) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "x");
    EXPECT_EQ(loadBeside("board.nlx", "(rawfile=" + path + ")").output,
              "Loaded 1 bytes from file '" + path + "' into address 0x0000 in 'u'.\n");
    const Workplace here;
    here.write("dir/board.nlx", "");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    EXPECT_EQ(loadFor("(rawfile=" + path + ")", *board).error, missing("dir/" + path));
    EXPECT_EQ(loadBeside(folder.path("board.nlx"), "(rawfile=a)").output,
              "Loaded 1 bytes from file '" + path + "' into address 0x0000 in 'u'.\n");
    EXPECT_EQ(loadBeside("/board.nlx", "(rawfile=" + path.substr(1) + ")").output,
              "Loaded 1 bytes from file '/" + path + "' into address 0x0000 in 'u'.\n");
}

TEST(MemoryImagePlace, OfACircuitThatWasNeverReadIsBesideItsFilePathAlone) {
    const Workplace here;
    here.write("a", "x");  // in the working directory
    EXPECT_EQ(loadBeside("dir/board.nlx", "(rawfile=a)").error, missing("dir/a"));
}

TEST(MemoryImagePlace, IsNoDirectory) {
    const Workplace here;
    here.makeDirectory("dir/a");
    for (const std::string name : {"a", "a/", ".", ".."}) {
        const Load load = loadBeside("dir/board.nlx", "(rawfile=" + name + ",cbmfile=" + name + ")");
        EXPECT_EQ(load.error, missing("dir/" + name) + missing("dir/" + name));
        EXPECT_EQ(load.output, "");
    }
}

TEST(MemoryImagePlace, IsNoFileThatTheSystemCannotReadOn) {
    EXPECT_EQ(loadBeside("board.nlx", "(rawfile=/proc/self/mem)").error, missing("/proc/self/mem"));
}

TEST(MemoryImagePlace, MustBeReadable) {
    const Workplace here;
    here.write("a", "x");
    std::filesystem::permissions("a", std::filesystem::perms::none);
    if (std::ifstream("a").is_open()) GTEST_SKIP() << "this user may read every file";
    EXPECT_EQ(loadBeside("board.nlx", "(rawfile=a)").error, missing("a"));
}

TEST(MemoryImagePlace, MayBeBesideTheFileThatACircuitInBracesStandsIn) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X {\n}\n");
    here.write("dir/a", "beside the file");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    const Circuit& inner = *board->getDeclarations()[0];
    EXPECT_EQ(loadFor("(rawfile=a)", inner).output, "Loaded 15 bytes from file 'dir/a' into address 0x0000 in 'u'.\n");
    here.makeDirectory("a");
    EXPECT_EQ(loadFor("(rawfile=a)", inner).output, "Loaded 15 bytes from file 'dir/a' into address 0x0000 in 'u'.\n")
        << "a directory at the first place stands in nobody's way";
    here.write("b", "first");
    here.write("dir/b", "beside the file");
    EXPECT_EQ(loadFor("(rawfile=b)", inner).output, "Loaded 5 bytes from file 'b' into address 0x0000 in 'u'.\n");
    EXPECT_EQ(loadFor("(rawfile=c)", inner).error, missing("c"));
    EXPECT_EQ(loadFor("(rawfile=b)", *board).output, "Loaded 15 bytes from file 'dir/b' into address 0x0000 in 'u'.\n");
    std::filesystem::remove("dir/b");
    EXPECT_EQ(loadFor("(rawfile=b)", *board).error, missing("dir/b")) << "the top circuit looks beside its file alone";
}

TEST(MemoryImagePlace, OfACircuitWithAFileIsFoundBesideThatFileOrTheOneAround) {
    const Workplace here;
    here.write("dir/board.nlx", "Circuit X \"lib/x.nlx\"\n");
    here.write("dir/lib/x.nlx", "");
    const auto board = CircuitFileReader().load("dir/board.nlx");
    const Circuit& inner = *board->getDeclarations()[0];
    const auto expectLoadedFrom = [&](const std::string& path) {
        EXPECT_EQ(loadFor("(rawfile=a)", inner).output,
                  "Loaded 1 bytes from file '" + path + "' into address 0x0000 in 'u'.\n");
    };
    EXPECT_EQ(loadFor("(rawfile=a)", inner).error, missing("lib/a"));
    here.write("a", "x");
    EXPECT_EQ(loadFor("(rawfile=a)", inner).error, missing("lib/a"));
    here.write("dir/a", "x");
    expectLoadedFrom("dir/a");
    here.write("dir/lib/a", "x");
    expectLoadedFrom("dir/lib/a");
    here.write("lib/a", "x");
    expectLoadedFrom("lib/a");
}

TEST(MemoryImagePlace, IsNoPipeSinceThatWouldWaitForEver) {
    const TemporaryFolder folder;
    const std::string pipe = folder.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(readBytes(pipe), std::nullopt);
}

TEST(MemoryImagePlace, MayBeADeviceOfWhichNoMoreIsReadThanWanted) {
    EXPECT_EQ(readBytes("/dev/zero", 70000), std::string(70000, '\0'));
    EXPECT_EQ(readBytes("/dev/zero", 0), "");
    EXPECT_EQ(readBytes("/dev/null"), "");
}

}  // namespace
}  // namespace tarnsim
