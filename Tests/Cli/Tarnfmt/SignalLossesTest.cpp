#include "Cli/Tarnfmt/SignalLosses.h"

#include "Core/Support/Text.h"
#include "Tests/Core/TestVectors/SequenceSupport.h"

namespace tarnsim {
namespace {

std::vector<std::string> lossesFrom(const std::string& before, const std::string& after) {
    std::vector<std::string> texts;
    for (const Loss& loss : lossesOf(*sequenceFrom(before), *sequenceFrom(after), SignalSource(before))) {
        texts.push_back(format("%d: %s", loss.line, loss.text.c_str()));
    }
    return texts;
}

TEST(SignalLosses, NamesColumns) {
    EXPECT_EQ(
        lossesFrom("# two\ntime a b => q\n", "# two\ntime b c => ~q\n"),
        (std::vector<std::string>{"2: loses column 'a'", "2: changes the position of column 'b' from \"2\" to \"1\"",
                                  "2: gives column 'q' the reversal \"~\"", "0: adds column 'c'"}));
}

TEST(SignalLosses, NamesTheArrow) {
    EXPECT_EQ(lossesFrom("time a ==(dT)=> q\n", "time a => q\n"),
              std::vector<std::string>{"1: changes the separator of the header from \"==(dT)=>\" to \"=>\""});
}

}  // namespace
}  // namespace tarnsim
