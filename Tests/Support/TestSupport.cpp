#include "Tests/Support/TestSupport.h"

#include <unistd.h>

#include <cstdio>
#include <fstream>

namespace tarnsim {

namespace {

std::string captured(std::FILE* stream, const std::function<void()>& action) {
    const bool isOutput = stream == stdout;
    isOutput ? testing::internal::CaptureStdout() : testing::internal::CaptureStderr();
    action();
    std::fflush(stream);
    return isOutput ? testing::internal::GetCapturedStdout() : testing::internal::GetCapturedStderr();
}

}  // namespace

std::string outputOf(const std::function<void()>& action) {
    return captured(stdout, action);
}

std::string errorOutputOf(const std::function<void()>& action) {
    return captured(stderr, action);
}

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tarnsim-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

std::string TemporaryFolder::write(const std::string& name, const std::string& text) const {
    const std::filesystem::path file = folder_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
    return file.string();
}

}  // namespace tarnsim
