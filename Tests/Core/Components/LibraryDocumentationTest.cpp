#include "Core/Circuit/ComponentFactory.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

std::string documentationOf(const std::string& type) {
    return ComponentFactory::getDocumentation(type);
}

TEST(LibraryDocumentation, IsOneLineOnTheDelayForMostParts) {
    for (const std::string type :
         {"Inv",           "And",     "Nand",    "Xor",     "Xnor",    "Or",      "Nor",     "D_flip_flop",
          "ThreeStateBuf", "74LS00",  "74LS04",  "74LS08",  "74LS32",  "74LS78A", "74LS125", "74LS137",
          "74LS139",       "74LS154", "74LS191", "74LS244", "74LS374", "74AS867"}) {
        EXPECT_EQ(documentationOf(type), "<b>delay</b> The gate delay in ns.") << type;
    }
}

TEST(LibraryDocumentation, OfTheProcessorsIsTheirTiming) {
    const std::string common =
        "<b>t_ads</b> The Address Setup Time, in ns. Time from negative clock flank until address, R/W, SYNC and _VP "
        "has "
        "stabilized. Default 30 ns.<p><b>t_ah</b> The Address Hold Time, in ns. The time the address, R/W, SYNC and "
        "_VP "
        "are stable after negative clock flank. Default 10 ns.<p><b>t_mds</b> The Write Delay Time, in ns. The time "
        "after positive clock flank that the (write) data becomes valid. Default 25 ns.<p><b>t_dhw</b> The Write Hold "
        "Time, in ns. The time after negative clock flank that the (write) data still is valid. Default 10 ns.<p>";
    EXPECT_EQ(documentationOf("MOS6502"), common);
    EXPECT_EQ(documentationOf("W65C02"),
              common +
                  "<b>t_bvd</b> The BE to Valida Data time, in ns. The time from positive BE flank until address, "
                  "R/W and data lines are valid. Default is 25 ns. The data sheet provides no value for the "
                  "negative flank until invalid data, but states that it probably is the same, and that is the "
                  "value used in this model.");
}

TEST(LibraryDocumentation, IsEmptyForTheLevelSources) {
    EXPECT_EQ(documentationOf("High"), "");
    EXPECT_EQ(documentationOf("Low"), "");
}

TEST(LibraryDocumentation, OfTheFamilyChipsIsTheSameForThree) {
    for (const std::string type : {"74x174", "74x74", "74x574"}) {
        EXPECT_EQ(documentationOf(type),
                  "<b>family</b> Which device family variant to be considered. Supported values are: LS, AS and ALS. "
                  "It affects the timing behaviour.<p><b>delay</b> The gate delay in ns.<p>If both parameters are "
                  "specified, the <b>delay</b> parameter overrides <b>family<b>")
            << type;
    }
    EXPECT_EQ(documentationOf("74x273"),
              "<b>family</b> Which device family variant to be considered. Supported values are only LS. "
              "It affects the timing behaviour.<p><b>delay</b> The gate delay in ns.<p>If both parameters are "
              "specified, the <b>delay</b> parameter overrides <b>family<b>");
    EXPECT_EQ(documentationOf("74x688"),
              "<b>family</b> Which device family variant to be considered. Supported values are: LS (25ns) and ALS "
              "(22 ns). It affects the timing behaviour.<p><b>delay</b> The gate delay in ns.<p>If both parameters are "
              "specified, the <b>delay</b> parameter overrides <b>family<b>");
}

TEST(LibraryDocumentation, OfPartsWithWordsOfTheirOwn) {
    EXPECT_EQ(documentationOf("74LS283"), "<b>delay</b> The gate delay in ns. Default is 24 ns.");
    EXPECT_EQ(documentationOf("BusBuffer"),
              "<b>delay</b> The buffer delay in ns. Default is 10 ns\n"
              "<b>size</b> The buffer bit width. Default is 8.");
    EXPECT_EQ(documentationOf("Const"),
              "<b>size</b> The bit width of the constant.<p><b>value</b> The value of the constant (will be truncated "
              "to fit within 2^size-1)");
    EXPECT_EQ(documentationOf("Demux1to4"),
              "<b>delay</b> The gate delay in ns.<p><b>bus_io</b> If set to 'true', 'yes' or '1', the IO will be "
              "bus-based instead of pin-based. I.e.there will be one 2-bit bus input and a 4-bit bus output,instead of "
              "two invidual input pins, and four individual output pins.");
    EXPECT_EQ(documentationOf("Oscillator"),
              "<b>frequency</b> The frequency of the oscillator, in Hz.<p><b>offset</b> The time (in ns) until the "
              "osciallator makes its first positive flank.");
}

TEST(LibraryDocumentation, OfJoin) {
    EXPECT_EQ(documentationOf("Join"),
              "The Join component requires an <b>out</b> parameter specifying the size of the output port. It also "
              "requires at least one parameter describing the input ports comprising the output. The name of the "
              "input parameter can be arbitrary (not 'out' of course), but the value must follow the following "
              "format: from[:to]?[,from[:to]?]*.<p><i>from</i> indicates the index of the first bit to be included, "
              "and <i>to</i> indicates the index of the last bit to be included.<p>It is legal to omit the colon and "
              "the <i>to</i> index.<p>There may be more than one such range specified, which then would be separated "
              "by semi-colons.<p>The bit index refers to where the input bits will be placed into the output port. "
              "There cannot be overlap between to destination bits, and bits not referred to in the output will be "
              "left uninitialized. The bit width of the input port will be deduced by the "
              "specification.<p><b>Examples:</b><p>3   - A single bit input that will be mapped to bit #3 in the "
              "output.<p>3:0 - A four bit input that will be mapped to bits 3, 2, 1 and 0 in the output.<p>0:3 - A "
              "four bit input mapped to 0, 1, 2, 3: i.e. in <b>bit reversed</b> order.<p>7;3:1 - Four bits mapped to "
              "bits 7, 3, 2 and 1<p>7;3,2 - Three bits mapped to bits 7, 3 and 2.");
}

TEST(LibraryDocumentation, OfSplit) {
    EXPECT_EQ(documentationOf("Split"),
              "The Split component requires an <b>in</b> parameter specifying the size of the input port. It also "
              "requires at least one parameter describing the output port. The name of the output port parameter can "
              "be arbitrary (not 'in' of course), but the value must follow the following format: "
              "from[:to]?[,from[:to]?]*.<p><i>from</i> indicates the index of the first bit to be included, and "
              "<i>to</i> indicates the index of the last bit to be included.<p>It is legal to omit the colon and the "
              "<i>to</i> index.<p>There may be more than one such range specified, which then would be separated by "
              "semi-colons.<p>The bit index refers to where the output bits taken from in the input port. There can "
              "be overlap between to source bits, i.e. copying a input bit to multiple destinations is allowed. The "
              "bit width of the output port will be deduced by the "
              "specification. <p><b>Examples:</b><p>3   - A single bit output that will be generated from bit #3 in "
              "the input.<p>3:0 - A four bit output that will "
              "be taken form bits 3, 2, 1 and 0 in the input.<p>0:3 - A four bit output generated from bits 0, 1, 2, "
              "3: i.e. in <b>bit reversed</b> order.<p>7;3:1 - Four bits mapped from bits 7, 3, 2 and 1<p>7;3,2 - "
              "Three bits mapped from bits 7, 3 and 2.");
}

TEST(LibraryDocumentation, OfTheMemories) {
    EXPECT_EQ(documentationOf("27C64"),
              "<b>delay</b> The access time in ns; the time from address, _OE and _CS stabilization to data "
              "stabilization.<p><b>cbmfile</b> A Commodore-style object file to be loaded into the memory, where the "
              "two first bytes are the load address, in LSB order.<p><b>rawfile</b> A raw binary file to be loaded "
              "into the memory.<p><b>rawaddress</b> The memory location the rawfile will be loaded into. Default is "
              "0x0000.");
    EXPECT_EQ(documentationOf("HM62256B"),
              "<b>delay</b> The access time in ns; the time from address, _OE and _CS stabilization to data "
              "stabilization.<p><b>cbmfile</b> A commodore-style object file to be loaded into the memory, where the "
              "two first bytes are the load address, in LSB order.<p><b>rawfile</b> A raw binary file to be loaded "
              "into the memory.<p><b>rawaddress</b> The memory location the rawfile will be loaded into. Default is "
              "0x0000.");
    EXPECT_EQ(documentationOf("IDT7132LA"),
              "<b>device</b> The version of the device. It determines the timing parameters. Valid values are: LA20, "
              "LA25, LA35, LA55 and LA100.<p><b>cbmfile</b> A commodore-style object file to be loaded into the "
              "memory, where the two first bytes are the load address, in LSB order.<p><b>rawfile</b> A raw binary "
              "file to be loaded into the memory.<p><b>rawaddress</b> The memory location the rawfile will be loaded "
              "into. Default is 0x0000.");
}

/// Whether all of `pieces` stand in `text`, one behind the other. Names the first that doesn't.
std::string firstOutOfOrder(const std::string& text, const std::vector<std::string>& pieces) {
    std::size_t position = 0;
    for (const std::string& piece : pieces) {
        position = text.find(piece, position);
        if (position == std::string::npos) return piece;
        position += piece.size();
    }
    return "";
}

TEST(LibraryDocumentation, OfSpliceBeginsWithWhatItsPortsAre) {
    const std::string begin =
        "The Splice component makes it possible to connect Nets with different sizes, by using Inout ports (which do "
        "not themselves drive any net, merely connects them).<p>This is achieved by specifying how the bits of these "
        "ports are mapped to each other. <p>The mapping is based on the premise that there is an special, internal "
        "net that connects all the specified ports. This internal net consists of a contiguous set of bits from 0 to "
        "N-1, where N is the <b>size</b> of the internal net. This size must be specified using the <b>size</b> "
        "property.<p>Each attached port specifies how the bits of the port is mapped to this internal net.<p>The "
        "ports are specfied with a name, and an expression for how to map the bits to the internal net.";
    EXPECT_EQ(documentationOf("Splice").substr(0, begin.size()), begin);
}

TEST(LibraryDocumentation, OfSpliceGoesOnWithTheFormOfItsExpressions) {
    EXPECT_EQ(firstOutOfOrder(documentationOf("Splice"),
                              {"from[:to]?[,from[:to]?]*.",
                               "<p><i>from</i> indicates the index of the first bit to be "
                               "included, and <i>to</i> indicates the index of the last bit to be included.",
                               "<p>It is legal to omit the colon and the <i>to</i> index.",
                               "<p>There may be more than one such range specified, which then would be separated by "
                               "semi-colons.",
                               "<p><b>Examples:</b>", "<p>3   - A single bit", "<p>3:0 - A four bit",
                               "<p>0:3 - A four bit", "in <b>bit reversed</b> order.", "<p>7;3:1 - Four bits mapped",
                               "7, 3, 2 and 1", "<p>7;3,2 - Three bits mapped", "7, 3 and 2."}),
              "");
}

TEST(LibraryDocumentation, OfSpliceEndsWithThreeTables) {
    EXPECT_EQ(firstOutOfOrder(documentationOf("Splice"),
                              {"<b>Port Examples</b>",                      //
                               "Map a 8-bit port to two four bits buses:",  //
                               "size",
                               ">8<",
                               "byte",
                               "7:0",
                               "hi",
                               "7:4",
                               "lo",
                               "3:0",  //
                               "8-bit port reversal",
                               "size",
                               ">8<",
                               "normal",
                               "7:0",
                               "reverse",
                               "0:7",  //
                               "Pick A15 from a 16-bit address bus",
                               "size",
                               ">16<",
                               "A",
                               "15:0",
                               "a15",
                               ">15<"}),
              "");
}

TEST(LibraryDocumentation, IsWhatAPartItselfTells) {
    ComponentFactory factory;
    EXPECT_EQ(factory.create("74LS283", "u")->getTypeDoc(), documentationOf("74LS283"));
    EXPECT_EQ(factory.create("High", "u")->getTypeDoc(), "");
    EXPECT_EQ(documentationOf("DM74LS283"), "");  // files don't know that name
}

/// What getDescription says for parts with a device family or a speed grade, and what it is silent about for all
/// others.
TEST(LibraryDescription, IsTheDelayForPartsOfAFamilyAndTheAccessTimeForTheDualPortRam) {
    const std::map<std::string, std::string> described = {
        {"74x174", "<br>Delay: <i>35</i>"}, {"74x273", "<br>Delay: <i>27</i>"},
        {"74x574", "<br>Delay: <i>28</i>"}, {"74x74", "<br>Delay: <i>35</i>"},
        {"74x688", "<br>Delay: <i>25</i>"}, {"IDT7132LA", "<br>Access time: <i>20 ns</i>"}};
    const std::map<std::string, std::string> needed = {
        {"Join", "(out=8)"}, {"Split", "(in=8)"}, {"Splice", "(size=8)"}};
    ComponentFactory factory;
    for (const ComponentType& row : componentTypes()) {
        const std::string type(row.typeName());
        const auto parameters = needed.find(type);
        const Component* part = factory.create(type, parameters == needed.end() ? "u" : "u" + parameters->second);
        const auto text = described.find(type);
        EXPECT_EQ(part->getDescription(), text == described.end() ? "" : text->second) << type;
    }
    EXPECT_EQ(factory.create("74x574", "u(delay=7)")->getDescription(), "<br>Delay: <i>7</i>");
}

TEST(LibraryDescription, IsTheAccessTimeOfEachSpeedGradeOfTheDualPortRam) {
    const std::map<std::string, std::string> grades = {
        {"LA20", "20"}, {"LA25", "25"}, {"LA35", "35"}, {"LA55", "55"}, {"LA100", "100"}};
    ComponentFactory factory;
    for (const auto& [device, accessTime] : grades) {
        Component* part = factory.create("IDT7132LA", "u(device=" + device + ")");
        EXPECT_EQ(part->getDescription(), "<br>Access time: <i>" + accessTime + " ns</i>");
        Component* later = factory.create("IDT7132LA", "u");
        later->setParameters(ParaMap("(device=" + device + ")"));
        EXPECT_EQ(later->getDescription(), "<br>Access time: <i>" + accessTime + " ns</i>");
    }
}

}  // namespace
}  // namespace tarnsim
