#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "Core/Circuit/ComponentFactory.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

/// A block of the page in one line, with a single blank between words.
using Block = std::string;

/// What of a block says which part it's of: everything in front of the ports.
struct BlockHead {
    std::string type;
    std::string parameters;  ///< behind "with"; may be empty
};

/// The blocks of library.txt.
std::vector<Block> blocksOfThePage() {
    std::ifstream page(std::filesystem::path(__FILE__).parent_path() / "library.txt");
    std::vector<Block> blocks;
    for (std::string line; std::getline(page, line);) {
        if (line.empty() || line[0] == '#') continue;
        if (line[0] != ' ') blocks.emplace_back();
        std::istringstream words(line);
        for (std::string word; words >> word;) blocks.back() += (blocks.back().empty() ? "" : " ") + word;
    }
    return blocks;
}

BlockHead headOf(const Block& block) {
    std::istringstream words(block);
    BlockHead head;
    words >> head.type;
    for (std::string word; words >> word;) {
        if (word == "with") words >> head.parameters;
    }
    return head;
}

std::string describe(const Port& port) {
    const std::map<Direction, std::string> directions = {
        {Direction::Input, "in"}, {Direction::Output, "out"}, {Direction::Inout, "inout"}};
    const std::string width = port.width() == 1 ? "" : "[" + std::to_string(port.width()) + "]";
    return " " + port.getName() + width + " " + directions.at(port.direction());
}

/// The block of what there is for the head of a block of the page.
Block describe(const BlockHead& head) {
    ComponentFactory factory;
    const Component* part = factory.create(head.type, "u" + head.parameters);
    if (part == nullptr) return head.type + " isn't in the library";
    const std::string defaults = ComponentFactory::getDefaults(head.type).toString();
    Block block = head.type;
    if (!head.parameters.empty()) {
        block += " with " + head.parameters;
    } else if (!defaults.empty()) {
        block += " " + defaults;
    }
    for (const Port* port : part->getPorts()) block += describe(*port);
    return block;
}

TEST(Library, IsAsItsPageSays) {
    for (const Block& block : blocksOfThePage()) EXPECT_EQ(describe(headOf(block)), block);
}

TEST(Library, HasAllItsPartsOnThePageInTheOrderOfTheRows) {
    std::vector<std::string> onPage;
    for (const Block& block : blocksOfThePage()) {
        const std::string type = headOf(block).type;
        if (onPage.empty() || onPage.back() != type) onPage.push_back(type);
    }
    std::vector<std::string> rows;
    for (const ComponentType& row : componentTypes()) rows.emplace_back(row.typeName());
    EXPECT_EQ(onPage, rows);
}

TEST(Library, HasEachTypeNameOnce) {
    std::set<std::string_view> names;
    for (const ComponentType& row : componentTypes()) EXPECT_TRUE(names.insert(row.typeName()).second);
}

TEST(Library, HasEachPortNameOnceInAPart) {
    ComponentFactory factory;
    for (const Block& block : blocksOfThePage()) {
        const BlockHead head = headOf(block);
        const Component* part = factory.create(head.type, "u" + head.parameters);
        ASSERT_NE(part, nullptr) << head.type;
        for (const Port* port : part->getPorts()) {
            EXPECT_EQ(part->countPorts(port->getName()), 1U) << head.type << " " << port->getName();
            EXPECT_EQ(part->findPort(port->getName()), port);
        }
    }
}

TEST(Library, PortsOfAPartAreOnNoNetsOutsideAndAreUndefinedUnlessItIsASource) {
    ComponentFactory factory;
    for (const Block& block : blocksOfThePage()) {
        const BlockHead head = headOf(block);
        const bool isLevelSource = head.type == "High" || head.type == "Low" || head.type == "Const";
        for (const Port* port : factory.create(head.type, "u" + head.parameters)->getPorts()) {
            EXPECT_EQ(port->getNet(kOutside), nullptr);
            EXPECT_EQ(port->recordCount(), isLevelSource ? 1U : 0U) << head.type << " " << port->getName();
        }
    }
}

}  // namespace
}  // namespace tarnsim
