#include "Core/TestVectors/PortAssignment.h"

#include "Core/Circuit/Circuit.h"
#include "Tests/Support/TestSupport.h"

namespace tarnsim {
namespace {

TEST(PortAssignment, NameAndValueAreTrimmed) {
    const PortAssignment assignment("x =  H  ", "why\n");
    EXPECT_EQ(assignment.name(), "x");
    EXPECT_EQ(assignment.value(), "H");
    EXPECT_EQ(assignment.objectId(), "");
    EXPECT_EQ(assignment.getCommentText(), "why\n");
}

TEST(PortAssignment, TheNameMayBeAPath) {
    const PortAssignment assignment("clk.en = H", "");
    EXPECT_EQ(assignment.name(), "clk.en");
    EXPECT_EQ(assignment.value(), "H");
}

TEST(PortAssignment, ThereIsOneEqualSign) {
    EXPECT_EQ(errorOf([] { PortAssignment("x=y=z", ""); }), "Too many equal signs in port assignment: 'x=y=z'");
    EXPECT_EQ(errorOf([] { PortAssignment("a == b", ""); }), "Too many equal signs in port assignment: 'a == b'");
    EXPECT_EQ(errorOf([] { PortAssignment("x", ""); }), "Too few equal signs in port assignment: 'x'");
    EXPECT_EQ(errorOf([] { PortAssignment("", ""); }), "Too few equal signs in port assignment: ''");
}

TEST(PortAssignment, FieldsAreSet) {
    PortAssignment assignment("x=1", "");
    assignment.setName("y");
    assignment.setValue("Z");
    assignment.setObjectId("id");
    EXPECT_EQ(assignment.name(), "y");
    EXPECT_EQ(assignment.value(), "Z");
    EXPECT_EQ(assignment.objectId(), "id");
}

TEST(PortAssignment, TheNameResolvesToAPort) {
    Circuit circuit("root", nullptr);
    const Component* gate = circuit.addComponent("And", "g");
    PortAssignment known("g.b=1", "");
    PortAssignment unknown("g.c=1", "");
    unknown.setObjectId("kept");
    known.resolve(circuit);
    unknown.resolve(circuit);
    EXPECT_EQ(known.objectId(), gate->findPort("b")->getId());
    EXPECT_EQ(unknown.objectId(), "kept");
}

}  // namespace
}  // namespace tarnsim
