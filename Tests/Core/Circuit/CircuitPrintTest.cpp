#include "Core/Simulation/Net.h"
#include "Tests/Core/Circuit/CircuitTestSupport.h"

namespace tarnsim {
namespace {

std::string addressOf(const void* object) {
    return format("%p", object);
}

std::string printed(const Circuit& circuit, bool deep) {
    return outputOf([&] { circuit.print(deep); });
}

TEST(CircuitPrint, OfAnEmptyCircuitIsItsHeadings) {
    const Circuit circuit("Adder", "u", nullptr);
    EXPECT_EQ(printed(circuit, true), "Circuit: 'u' / 'Adder' (0x" + addressOf(&circuit) +
                                          ") file: ''\n"
                                          "Components [0]:\n"
                                          "Declarations [0]:\n"
                                          "Ports [0]:\n"
                                          "Nets [0]:\n");
}

TEST(CircuitPrint, ListsWhatIsInTheCircuitOneStepDeeper) {
    const auto circuit = circuitFrom("Circuit D {\n}\nPin Input p\nUnit Inv g\nUnit D u\nNet n p g.in\n");
    circuit->setString("key", "value");
    const Net* net = circuit->getNets()[0];
    EXPECT_EQ(printed(*circuit, false),
              "Circuit: 'board.nlx' / 'Circuit' (0x" + addressOf(circuit.get()) + ") file: 'board.nlx'\n" +
                  "Components [2]:\n" +                                                          //
                  "   [0]: 'Inv' : 'g'  (0x" + addressOf(circuit->getComponents()[0]) + ")\n" +  //
                  "   [1]: 'D' : 'u'  (0x" + addressOf(circuit->getComponents()[1]) + ")\n" +    //
                  "Declarations [1]:\n" +                                                        //
                  "   [0]: 'D' 'D'  (0x" + addressOf(circuit->getDeclarations()[0]) + ")\n" +    //
                  "Ports [1]:\n" +                                                               //
                  "   'p' (0x" + addressOf(circuit->getPorts()[0]) + ") (net 'n' 0x" + addressOf(net) + ")\n" +
                  "Nets [1]:\n" +                                 //
                  "   Net 'n' " + addressOf(net) + ":  p in\n" +  //
                  "   key: 'value'\n");
}

TEST(CircuitPrint, GoesDeepIntoUnitsAndDeclarationsIfAsked) {
    const auto circuit = circuitFrom("Circuit D {\nUnit Inv i\n}\nUnit D u\n");
    const auto inner = [](const Circuit& each) {
        return "      Circuit: '" + each.getName() + "' / 'D' (0x" + addressOf(&each) + ") file: ''\n" +
               "      Components [1]:\n" +                                                      //
               "         [0]: 'Inv' : 'i'  (0x" + addressOf(each.getComponents()[0]) + ")\n" +  //
               "      Declarations [0]:\n" +                                                    //
               "      Ports [0]:\n" +                                                           //
               "      Nets [0]:\n";
    };
    const Circuit& unit = *circuit->findCircuit("u");
    const Circuit& declaration = *circuit->getDeclarations()[0];
    EXPECT_EQ(printed(*circuit, true),
              "Circuit: 'board.nlx' / 'Circuit' (0x" + addressOf(circuit.get()) + ") file: 'board.nlx'\n" +
                  "Components [1]:\n" +                                                            //
                  "   [0]: 'D' : 'u'  (0x" + addressOf(&unit) + ")\n" + inner(unit) +              //
                  "Declarations [1]:\n" +                                                          //
                  "   [0]: 'D' 'D'  (0x" + addressOf(&declaration) + ")\n" + inner(declaration) +  //
                  "Ports [0]:\n" +                                                                 //
                  "Nets [0]:\n");
}

}  // namespace
}  // namespace tarnsim
