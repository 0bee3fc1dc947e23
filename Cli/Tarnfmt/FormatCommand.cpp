#include "Cli/Tarnfmt/FormatCommand.h"

#include <unistd.h>

#include <cstdio>
#include <exception>
#include <new>

#include "Cli/Tarnfmt/FileReplacement.h"
#include "Core/Support/Error.h"
#include "Core/Support/Text.h"

namespace tarnsim {

namespace {

constexpr const char* kVersion = "Tarnfmt, version 2.6.52.\n";

constexpr const char* kUsage =
    "Usage: tarnfmt [--circuit|--signals] <file>\n"
    "       tarnfmt -i [--force] [--circuit|--signals] <file>...\n"
    "Writes a circuit file (.nlx) or a signal file (.sig) in its normal form.\n"
    "-i:               Replace each file, instead of printing one. A file from which\n"
    "                  something would get lost is left as it is.\n"
    "--force:          Replace it all the same.\n"
    "--circuit:        The files are circuits, whatever their endings.\n"
    "--signals:        The files are signal files, whatever their endings.\n"
    "-h, --help:       Print this text.\n"
    "--version:        Print the version.\n";

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

void takeKind(FormatOptions& options, FileKind kind) {
    if (options.kind && *options.kind != kind) {
        throw Error(std::string("--circuit and --signals exclude each other"));
    }
    options.kind = kind;
}

void takeOption(FormatOptions& options, const std::string& argument) {
    if (argument == "-i") {
        options.inPlace = true;
    } else if (argument == "--force") {
        options.force = true;
    } else if (argument == "--circuit") {
        takeKind(options, FileKind::Circuit);
    } else if (argument == "--signals") {
        takeKind(options, FileKind::Signals);
    } else if (argument == "-h" || argument == "--help") {
        options.help = true;
    } else if (argument == "--version") {
        options.version = true;
    } else {
        throw Error("unknown option '%s'", argument.c_str());
    }
}

void checkFiles(const FormatOptions& options) {
    if (options.files.empty()) throw Error(std::string("no file is named"));
    if (options.files.size() > 1 && !options.inPlace) throw Error(std::string("several files need -i"));
    for (const std::string& file : options.files) {
        if (options.kind || fileKindOf(file)) continue;
        throw Error("'%s' ends neither in .nlx nor in .sig: --circuit or --signals is needed", file.c_str());
    }
}

void report(const char* file, const char* message) {
    std::fprintf(stderr, "tarnfmt: %s: %s\n", file, message);
}

void reportLosses(const std::string& file, const std::vector<Loss>& losses) {
    for (const Loss& loss : losses) {
        const std::string place = loss.line == 0 ? file : format("%s:%d", file.c_str(), loss.line);
        std::fprintf(stderr, "%s: the normal form %s\n", place.c_str(), loss.text.c_str());
    }
}

/// Raises whatever stands in the way.
void formatFile(const std::string& path, const FormatOptions& options) {
    if (options.inPlace) refuseSpecialFile(path);
    const FileSnapshot file = readSnapshot(path);
    const FileKind kind = options.kind ? *options.kind : fileKindOf(path).value();
    const NormalForm normalForm = normalFormOf(kind, path, file.contents);
    if (options.inPlace && normalForm.text == file.contents) return;
    reportLosses(path, normalForm.losses);
    if (!normalForm.readingFailure.empty()) {
        throw Error("its normal form cannot be read again: " + normalForm.readingFailure);
    }
    if (!options.inPlace) {
        try {
            writeOutput(STDOUT_FILENO, normalForm.text);
        } catch (const Error& error) {
            throw Error("the standard output " + error.what());
        }
        return;
    }
    if (!normalForm.losses.empty() && !options.force) {
        throw Error(std::string("is left as it is, since something would get lost; --force replaces it all the same"));
    }
    replaceFile(file, normalForm.text);
}

bool tryToFormat(const std::string& path, const FormatOptions& options) {
    try {
        formatFile(path, options);
        return true;
    } catch (const Error& error) {
        report(path.c_str(), trimmed(error.what()).c_str());
    } catch (const std::bad_alloc&) {
        report(path.c_str(), "there is not enough memory");
    } catch (const std::exception& error) {
        report(path.c_str(), error.what());
    }
    return false;
}

int print(const std::string& text) {
    try {
        writeOutput(STDOUT_FILENO, text);
        return 0;
    } catch (const Error& error) {
        report("the standard output", error.what().c_str());
        return kFailed;
    }
}

}  // namespace

FormatOptions parseFormatOptions(const std::vector<std::string>& arguments) {
    FormatOptions options;
    bool areOptionsOver = false;
    for (const std::string& argument : arguments) {
        if (!areOptionsOver && argument == "--") {
            areOptionsOver = true;
        } else if (!areOptionsOver && argument.starts_with('-')) {
            takeOption(options, argument);
        } else {
            options.files.push_back(argument);
        }
    }
    if (!options.help && !options.version) checkFiles(options);
    return options;
}

int runTarnfmt(const std::vector<std::string>& arguments) {
    FormatOptions options;
    try {
        options = parseFormatOptions(arguments);
    } catch (const Error& error) {
        std::fprintf(stderr, "tarnfmt: %s\n%s%s", error.what().c_str(), kVersion, kUsage);
        return kWrongUsage;
    }
    if (options.help) return print(std::string(kVersion) + kUsage);
    if (options.version) return print(kVersion);
    bool isAllWritten = true;
    for (const std::string& file : options.files) isAllWritten = tryToFormat(file, options) && isAllWritten;
    return isAllWritten ? 0 : kFailed;
}

}  // namespace tarnsim
