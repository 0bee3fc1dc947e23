// Every input that ever broke something, and the seeds of the fuzzers, through the same targets.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "Core/Support/TextFile.h"
#include "Tests/Fuzz/FuzzSupport.h"
#include "Tests/Fuzz/FuzzTargets.h"

namespace tarnsim {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> inputsOf(const FuzzTarget& target) {
    std::vector<fs::path> inputs;
    for (const char* kind : {"Corpus", "Found"}) {
        const fs::path folder = fs::path(__FILE__).parent_path() / kind / target.name;
        if (!fs::exists(folder)) continue;
        for (const auto& entry : fs::directory_iterator(folder)) inputs.push_back(entry.path());
    }
    std::ranges::sort(inputs);
    return inputs;
}

class FuzzCorpus : public testing::TestWithParam<FuzzTarget> {};

TEST_P(FuzzCorpus, RunsWithoutAFinding) {
    const std::vector<fs::path> inputs = inputsOf(GetParam());
    EXPECT_FALSE(inputs.empty());
    for (const fs::path& input : inputs) {
        SCOPED_TRACE(input.string());
        try {
            GetParam().run(readBytes(input.string()).value());
        } catch (const Finding& finding) {
            ADD_FAILURE() << finding.what();
        } catch (const Error& error) {
            ADD_FAILURE() << error.what();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzCorpus, testing::ValuesIn(kFuzzTargets),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace

}  // namespace tarnsim
