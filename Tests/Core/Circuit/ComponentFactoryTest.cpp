#include "Core/Circuit/ComponentFactory.h"

#include <stdexcept>

#include "Core/Circuit/Circuit.h"
#include "Core/Circuit/ComponentRegistry.h"
#include "Core/Components/Gates.h"
#include "Core/Components/Sources.h"
#include "Core/Support/Text.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

using Names = std::vector<std::string>;

TEST(ComponentRegistry, HoldsThePartsThatThereAreInTheirFixedOrder) {
    Names names;
    for (const ComponentType& type : componentTypes()) names.emplace_back(type.typeName());
    EXPECT_EQ(names, (Names{"High",   "Low",     "Inv",        "And",         "Nand",          "Xor",       "Xnor",
                            "Or",     "Nor",     "Oscillator", "D_flip_flop", "ThreeStateBuf", "BusBuffer", "Demux1to4",
                            "Join",   "Split",   "Splice",     "Const",       "74LS00",        "74LS04",    "74LS08",
                            "74LS32", "74x74",   "74LS78A",    "74LS125",     "74LS137",       "74LS139",   "74LS154",
                            "74x174", "74LS191", "74LS244",    "74x273",      "74LS283",       "74LS374",   "74x574",
                            "74x688", "74AS867", "HM62256B",   "27C64",       "IDT7132LA",     "MOS6502",   "W65C02"}));
}

/// Enough for a type whose parameters declare its ports.
ParaMap completeParameters(const ComponentType& type) {
    ParaMap parameters = type.defaults();
    if (type.typeName() == "Join") parameters["out"] = "8";
    if (type.typeName() == "Split") parameters["in"] = "8";
    if (type.typeName() == "Splice") parameters["size"] = "8";
    return parameters;
}

TEST(ComponentRegistry, EachRowMakesItsPartUnderTheCutName) {
    for (const ComponentType& type : componentTypes()) {
        const std::string name(type.typeName());
        EXPECT_EQ(cutChipPrefix(name), name);
        const auto component = type.create("u", completeParameters(type));
        EXPECT_EQ(component->getType(), name);
        EXPECT_EQ(component->getName(), "u");
        EXPECT_EQ(findComponentType(name), &type);
    }
    EXPECT_EQ(findComponentType("Unheard"), nullptr);
}

TEST(ComponentFactory, KnowsItsTypesByTheirWholeNamesInTheirCase) {
    for (const std::string type : {"High", "Inv", "And", "Nor", "74LS00", "74x74", "74AS867", "D_flip_flop"}) {
        EXPECT_TRUE(ComponentFactory::isBuiltIn(type)) << type;
    }
    for (const std::string type :
         {"", "and", "AND", "An", "Andy", " And", "Circuit", "DM74LS00", "SN74x74", "74ls00", "Not", "And(delay=3)"}) {
        EXPECT_FALSE(ComponentFactory::isBuiltIn(type)) << type;
    }
}

TEST(ComponentFactory, GatesHaveADelayOf3ByDefaultAndSourcesNothing) {
    for (const std::string type : {"Inv", "And", "Nand", "Xor", "Xnor", "Or", "Nor"}) {
        EXPECT_EQ(ComponentFactory::getDefaults(type).toString(), "(delay=3)") << type;
        EXPECT_EQ(ComponentFactory::getDocumentation(type), "<b>delay</b> The gate delay in ns.") << type;
    }
    for (const std::string type : {"High", "Low", "Unheard", ""}) {
        EXPECT_EQ(ComponentFactory::getDefaults(type).size(), 0U) << type;
        EXPECT_EQ(ComponentFactory::getDocumentation(type), "") << type;
    }
}

TEST(ComponentFactory, MakesAPartWithItsParametersOverTheDefaults) {
    const struct {
        std::string instance;
        std::string name;
        std::string parameters;
        std::uint32_t delay;
    } cases[] = {
        {"a(delay=5)", "a", "(delay=5)", 5},
        {"a", "a", "(delay=3)", 3},
        {"a()", "a", "(delay=3)", 3},
        {"a(x=1)", "a", "(delay=3,x=1)", 3},
        {"a(x=1,delay=0x10)", "a", "(delay=0x10,x=1)", 16},
        {"a(delay=$1F)", "a", "(delay=$1F)", 31},
        {"u_1[3](delay=0)", "u_1[3]", "(delay=0)", 0},
        {"7", "7", "(delay=3)", 3},
        {"[]", "[]", "(delay=3)", 3},
        {"a(f=+x-y.z/w#%:;)", "a", "(delay=3,f=+x-y.z/w#%:;)", 3},
    };
    for (const auto& each : cases) {
        ComponentFactory factory;
        const auto* gate = dynamic_cast<And*>(factory.create("And", each.instance));
        ASSERT_NE(gate, nullptr) << each.instance;
        EXPECT_EQ(gate->getName(), each.name) << each.instance;
        EXPECT_EQ(gate->getParameterText(), each.parameters) << each.instance;
        EXPECT_EQ(gate->getDelay(), each.delay) << each.instance;
    }
}

TEST(ComponentFactory, ATextOfAnotherFormGivesAnEmptyNameAndTheDefaults) {
    for (const std::string text :
         {"a-b", "", " a", "a ", "a.b", "a(", "a)", "a(delay=5", "(delay=5)", "a(delay=5)b", "a(delay=5)[3]",
          "a(delay =5)", "a(delay=5)(x=1)", "a((x=1))", "a(x=y*z)", "a(x<y)", "a<b", "a\n", "a(x=\"y\")"}) {
        ComponentFactory factory;
        Component* component = nullptr;
        const std::string errors = errorOutputOf([&] { component = factory.create("And", text); });
        ASSERT_NE(component, nullptr) << text;
        EXPECT_EQ(component->getName(), "") << text;
        EXPECT_EQ(component->getParameterText(), "(delay=3)") << text;
        EXPECT_EQ(errors, "") << text;
    }
}

TEST(ComponentFactory, EachTypeIsMadeAsItsOwnClass) {
    ComponentFactory factory;
    EXPECT_NE(dynamic_cast<High*>(factory.create("High", "u")), nullptr);
    EXPECT_NE(dynamic_cast<Low*>(factory.create("Low", "u")), nullptr);
    EXPECT_NE(dynamic_cast<Inv*>(factory.create("Inv", "u")), nullptr);
    EXPECT_NE(dynamic_cast<And*>(factory.create("And", "u")), nullptr);
    EXPECT_NE(dynamic_cast<Nand*>(factory.create("Nand", "u")), nullptr);
    EXPECT_NE(dynamic_cast<Xor*>(factory.create("Xor", "u")), nullptr);
    EXPECT_NE(dynamic_cast<Xnor*>(factory.create("Xnor", "u")), nullptr);
    EXPECT_NE(dynamic_cast<Or*>(factory.create("Or", "u")), nullptr);
    EXPECT_NE(dynamic_cast<Nor*>(factory.create("Nor", "u")), nullptr);
}

TEST(ComponentFactory, APartWithoutDefaultsTakesParametersAllTheSame) {
    ComponentFactory factory;
    EXPECT_EQ(factory.create("High", "u")->getParameterText(), "");
    EXPECT_EQ(factory.create("High", "u(x=1)")->getParameterText(), "(x=1)");
}

TEST(ComponentFactory, AnUnknownTypeGivesNullAndNoMessage) {
    ComponentFactory factory;
    Component* component = factory.create("And", "u");
    std::string printed;
    const std::string errors =
        errorOutputOf([&] { printed = outputOf([&] { component = factory.create("Unheard", "u"); }); });
    EXPECT_EQ(component, nullptr);
    EXPECT_EQ(printed, "");
    EXPECT_EQ(errors, "");
    EXPECT_EQ(factory.create("Circuit", "u"), nullptr);
}

TEST(ComponentFactory, AnEmptyParameterFieldIsRefusedWithTheWholeListForUnknownTypesToo) {
    ComponentFactory factory;
    for (const std::string type : {"And", "Unheard"}) {
        EXPECT_EQ(errorOf([&] { factory.create(type, "u(a=1,,b=2)"); }), "Parameters malformed: '(a=1,,b=2)'");
        EXPECT_EQ(errorOf([&] { factory.create(type, "u(,)"); }), "Parameters malformed: '(,)'");
    }
}

TEST(ComponentFactory, ADelayThatIsNoNumberIsReportedTwiceAndCountsAsZero) {
    ComponentFactory factory;
    Component* component = nullptr;
    const std::string errors = errorOutputOf([&] { component = factory.create("Nor", "u(delay=fast)"); });
    EXPECT_EQ(errors,
              "***ERROR : can't parse 'fast' as a number\n"
              "***ERROR : can't parse 'fast' as a number\n");
    EXPECT_EQ(dynamic_cast<Nor*>(component)->getDelay(), 0U);
}

TEST(ComponentFactory, ADelayBeyond32BitsIsAStandardException) {
    ComponentFactory factory;
    EXPECT_EQ(standardExceptionOf<std::out_of_range>([&] { factory.create("Inv", "u(delay=4294967296)"); }), "stoul");
}

TEST(ComponentFactory, AVeryLongInstanceTextIsRead) {
    ComponentFactory factory;
    const std::string name(200000, 'n');
    const std::string value(200000, '7');
    const Component* component = factory.create("High", name + "(x=" + value + ")");
    EXPECT_EQ(component->getName(), name);
    EXPECT_EQ(component->getParameters().at("x"), value);
}

TEST(ComponentFactory, CopiesACircuitDeeplyAndOwnsTheCopy) {
    Circuit source("Adder", "declared", nullptr);
    source.createPin(Direction::Input, "x");
    source.addComponent("And", "g");
    ComponentFactory factory;
    const Circuit* copy = factory.copy(source);
    ASSERT_NE(copy, &source);
    EXPECT_EQ(copy->getName(), "declared");
    EXPECT_EQ(copy->getType(), "Adder");
    EXPECT_NE(copy->findPort("x"), nullptr);
    EXPECT_NE(copy->findPort("x"), source.findPort("x"));
    EXPECT_NE(copy->findComponent("g"), nullptr);
    EXPECT_NE(copy->findComponent("g"), source.findComponent("g"));
}

/// Says when it dies.
class Mortal : public Component {
public:
    Mortal(const std::string& name, Names& dead) : Component("Mortal", name, nullptr), dead_(dead) {}
    ~Mortal() override { dead_.push_back(getName()); }
    void evaluate(Time) override {}
    void applyParameters() override {}

private:
    Names& dead_;
};

TEST(ComponentFactory, DeletesWhatItOwnsInOrder) {
    Names dead;
    {
        ComponentFactory factory;
        factory.adopt(std::make_unique<Mortal>("first", dead));
        factory.adopt(std::make_unique<Mortal>("second", dead));
        EXPECT_EQ(dead, Names());
    }
    EXPECT_EQ(dead, (Names{"first", "second"}));
}

TEST(ComponentFactory, HandsOverWhatItOwnsAndNothingElse) {
    Names dead;
    Mortal stranger("stranger", dead);
    ComponentFactory factory;
    Component* owned = factory.adopt(std::make_unique<Mortal>("owned", dead));
    EXPECT_EQ(factory.release(&stranger), nullptr);
    EXPECT_EQ(factory.release(owned).get(), owned);  // and it dies at once
    EXPECT_EQ(dead, Names{"owned"});
}

TEST(ComponentNotFound, IsAnErrorWithAMessageAndNothingMore) {
    EXPECT_EQ(errorOf([] { throw ComponentNotFound(std::string("no such part")); }), "no such part");
}

}  // namespace
}  // namespace tarnsim
