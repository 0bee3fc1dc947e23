#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Cli/Tarnfmt/Losses.h"

namespace tarnsim {

enum class FileKind { Circuit, Signals };

/// By the ending, `.nlx` or `.sig`.
std::optional<FileKind> fileKindOf(const std::string& path);

/// A file as the library writes it.
struct NormalForm {
    std::string text;
    std::vector<Loss> losses;    ///< by lines
    std::string readingFailure;  ///< why `text` can't be loaded; empty if it can
};

/// The normal form of a file at `path` with these contents, read again from its text and compared with them. Files that
/// a circuit names are read from the disk, images of memories aren't. Raises an Error, or what the library raises, if
/// the contents can't be loaded.
NormalForm normalFormOf(FileKind kind, const std::string& path, const std::string& contents);

}  // namespace tarnsim
