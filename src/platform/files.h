// Files, read and written whole.
//
// A file is written under a temporary name, synced, and moved over the old one in one step: whatever
// happens in between, either the old file or the new one is there, complete. A link is followed: what it
// points to is read, or replaced.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Reads the file at `path` whole. False, with the file's name and what is wrong in `error` (missing,
/// a folder, larger than `limit` bytes, cannot be read).
bool readFile(const std::string& path, std::string& into, std::string& error,
              std::size_t limit = 16u << 20);

/// Replaces the file at `path` with `bytes`, or leaves it as it was. False, with the file's name and
/// what is wrong in `error`.
bool writeFile(const std::string& path, std::string_view bytes, std::string& error);

/// Moves a file to another name in its folder, replacing nothing: where `to` exists a number is put
/// behind it. The name it got in the end is put into `to`.
bool setAside(const std::string& path, std::string& to, std::string& error);

/// Names (without folder) of the files in `folder` that end with `ending`, in alphabetical order of
/// their bytes; names that begin with a dot included. An unreadable folder gives none.
std::vector<std::string> listFiles(const std::string& folder, std::string_view ending);

bool fileExists(const std::string& path);
/// Whether files can be made in `folder`.
bool folderWritable(const std::string& folder);
/// Makes a folder and those above it where they are missing.
bool makeFolders(const std::string& folder, std::string& error);

/// Called before every step of `writeFile` (each partial write, the flush, the rename) when set; a
/// step for which it returns false fails. For tests that interrupt the writer.
using WriteStep = bool (*)(const char* step);
void setWriteStep(WriteStep step);

}  // namespace platform
