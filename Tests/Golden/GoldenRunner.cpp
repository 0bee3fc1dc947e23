// Runs the golden cases: each folder that holds a file `args` is a case. The program is started in the folder with
// these arguments (as the shell reads them), and what it does is compared with
//
//   expected.out   standard output; without the file nothing may be printed
//   expected.err   error stream, likewise; the single line `(any)` says that it isn't compared
//   exit           exit status as the shell gives it, 134 for an abort; without the file 0
//
// A file `directory` names another working directory, as seen from the folder. A file `program` names another program
// of the same build folder. It is started in a copy of the folder, and afterwards each file of the copy must be as it
// was, or as it stands in the folder `expected`; none may be missing or new.
//
// `--approve` writes what the program does into these files, for a person to review as a diff. `--filter=TEXT` runs the
// cases with TEXT in their path, `--skip=TEXT` leaves those out, `--shard=I/N` runs every Nth case from the Ith on
// (counted from 0), `--program=FILE` and `--cases=FOLDER` say what to run. `--under=COMMAND` starts the program by a
// command that gets it and its arguments. With `--and-under=COMMAND` too each case runs twice and must do the same
// under both, whatever its files say.

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr const char* kAnything = "(any)\n";

/// No case may get lost: the number is raised by hand with every new one.
constexpr std::size_t kCaseCount = 896;

/// Contents by names; what a link leads to stands for the link.
using Files = std::map<std::string, std::string>;

struct Outcome {
    std::string output;
    std::string errors;
    int status = 0;
    Files files;  ///< of a case with a program of its own
};

struct Options {
    fs::path program;
    fs::path cases;
    std::string filter;
    std::string skip;
    std::string under;
    std::string andUnder;
    std::size_t shard = 0;
    std::size_t shards = 1;
    bool approve = false;
};

std::string readAll(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void writeAll(const fs::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

std::string quoted(const fs::path& path) {
    std::string text = "'";
    return text.append(path.string()).append("'");
}

std::string trimmedLine(std::string text) {
    while (!text.empty() && text.back() == '\n') text.pop_back();
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

bool hasOwnProgram(const fs::path& folder) {
    return fs::exists(folder / "program");
}

/// All below `folder`, but for the folder `expected`.
Files filesOf(const fs::path& folder) {
    Files files;
    for (auto entry = fs::recursive_directory_iterator(folder); entry != fs::recursive_directory_iterator(); ++entry) {
        const std::string name = fs::relative(entry->path(), folder).string();
        if (name == "expected") {
            entry.disable_recursion_pending();
        } else if (!entry->is_directory()) {
            files[name] = readAll(entry->path());
        }
    }
    return files;
}

Outcome startProgram(const fs::path& folder, const fs::path& program, const std::string& under,
                     const fs::path& scratch) {
    const fs::path output = scratch / "out";
    const fs::path errors = scratch / "err";
    // The shell's own word about an aborted program goes nowhere.
    const fs::path directory = folder / trimmedLine(readAll(folder / "directory"));
    const std::string command = "cd " + quoted(directory) + " && exec 2>/dev/null; " + under + " " + quoted(program) +
                                " " + trimmedLine(readAll(folder / "args")) + " </dev/null >" + quoted(output) + " 2>" +
                                quoted(errors);
    const int status = std::system(command.c_str());
    return {readAll(output), readAll(errors), WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), {}};
}

Outcome runCase(const fs::path& folder, const fs::path& program, const std::string& under, const fs::path& scratch) {
    if (!hasOwnProgram(folder)) return startProgram(folder, program, under, scratch);
    const fs::path copy = scratch / "case";
    fs::copy(folder, copy, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    Outcome outcome =
        startProgram(copy, program.parent_path() / trimmedLine(readAll(folder / "program")), under, scratch);
    outcome.files = filesOf(copy);
    fs::remove_all(copy);
    return outcome;
}

Outcome expectedOf(const fs::path& folder) {
    const std::string status = readAll(folder / "exit");
    Outcome expected = {
        readAll(folder / "expected.out"), readAll(folder / "expected.err"), status.empty() ? 0 : std::stoi(status), {}};
    if (!hasOwnProgram(folder)) return expected;
    expected.files = filesOf(folder);
    if (!fs::exists(folder / "expected")) return expected;
    for (const auto& [name, text] : filesOf(folder / "expected")) expected.files[name] = text;
    return expected;
}

void showText(const char* title, const std::string& expected, const std::string& actual) {
    if (expected == actual) return;
    std::cout << "  --- " << title << " expected ---\n"
              << expected << "\n  --- " << title << " was ---\n"
              << actual << "\n";
}

void showFiles(const Files& expected, const Files& actual) {
    Files all = expected;
    all.insert(actual.begin(), actual.end());
    for (const auto& [name, text] : all) {
        if (!actual.contains(name)) std::cout << "  " << name << " is missing\n";
        if (!expected.contains(name)) std::cout << "  " << name << " should not be there\n";
        if (actual.contains(name) && expected.contains(name)) {
            showText(name.c_str(), expected.at(name), actual.at(name));
        }
    }
}

bool check(const fs::path& folder, Outcome expected, const Outcome& actual) {
    if (expected.errors == kAnything) expected.errors = actual.errors;
    if (expected.output == actual.output && expected.errors == actual.errors && expected.status == actual.status &&
        expected.files == actual.files)
        return true;
    std::cout << "FAILED " << folder.string() << "\n";
    showText("standard output", expected.output, actual.output);
    showText("error stream", expected.errors, actual.errors);
    showFiles(expected.files, actual.files);
    if (expected.status != actual.status) {
        std::cout << "  exit status expected " << expected.status << ", was " << actual.status << "\n";
    }
    return false;
}

/// An empty text stands in no file.
void approveFile(const fs::path& file, const std::string& text) {
    if (text.empty()) {
        fs::remove(file);
    } else {
        writeAll(file, text);
    }
}

/// Those that were changed or made stand in `expected`.
void approveFiles(const fs::path& folder, const Files& actual) {
    fs::remove_all(folder / "expected");
    const Files before = filesOf(folder);
    for (const auto& [name, text] : actual) {
        const auto former = before.find(name);
        if (former != before.end() && former->second == text) continue;
        fs::create_directories((folder / "expected" / name).parent_path());
        writeAll(folder / "expected" / name, text);
    }
}

void approve(const fs::path& folder, const Outcome& actual) {
    approveFile(folder / "expected.out", actual.output);
    if (expectedOf(folder).errors != kAnything) approveFile(folder / "expected.err", actual.errors);
    if (hasOwnProgram(folder)) approveFiles(folder, actual.files);
    approveFile(folder / "exit", actual.status == 0 ? "" : std::to_string(actual.status) + "\n");
}

bool takeValue(const std::string& argument, const std::string& name, std::string& value) {
    if (!argument.starts_with(name)) return false;
    value = argument.substr(name.size());
    return true;
}

Options readOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        std::string value;
        if (takeValue(argument, "--program=", value)) {
            options.program = fs::absolute(value);
        } else if (takeValue(argument, "--cases=", value)) {
            options.cases = fs::absolute(value);
        } else if (takeValue(argument, "--shard=", value)) {
            options.shard = std::stoul(value);
            options.shards = std::stoul(value.substr(value.find('/') + 1));
        } else if (argument == "--approve") {
            options.approve = true;
        } else if (!takeValue(argument, "--filter=", options.filter) && !takeValue(argument, "--skip=", options.skip) &&
                   !takeValue(argument, "--under=", options.under) &&
                   !takeValue(argument, "--and-under=", options.andUnder)) {
            std::cerr << "Unknown argument: " << argument << "\n";
            std::exit(2);
        }
    }
    return options;
}

std::vector<fs::path> findCases(const fs::path& root) {
    std::vector<fs::path> folders;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (entry.path().filename() == "args") folders.push_back(entry.path().parent_path());
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = readOptions(argc, argv);
    std::string pattern = (fs::temp_directory_path() / "tarnsim-golden-XXXXXX").string();
    const fs::path scratch = mkdtemp(pattern.data());

    const std::vector<fs::path> folders = findCases(options.cases);
    std::size_t failed = 0;
    std::size_t passed = 0;
    for (std::size_t i = options.shard; i < folders.size(); i += options.shards) {
        const fs::path& folder = folders[i];
        if (folder.string().find(options.filter) == std::string::npos) continue;
        if (!options.skip.empty() && folder.string().find(options.skip) != std::string::npos) continue;
        const Outcome actual = runCase(folder, options.program, options.under, scratch);
        if (options.approve) approve(folder, actual);
        const Outcome expected =
            options.andUnder.empty() ? expectedOf(folder) : runCase(folder, options.program, options.andUnder, scratch);
        check(folder, expected, actual) ? ++passed : ++failed;
    }
    fs::remove_all(scratch);
    if (folders.size() != kCaseCount) {
        std::cout << "FAILED: found " << folders.size() << " cases, but there should be " << kCaseCount << "\n";
        ++failed;
    }
    std::cout << passed << " passed, " << failed << " failed\n";
    return failed == 0 ? 0 : 1;
}
