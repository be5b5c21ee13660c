#include "platform/desktop/system_error.h"

#include <cerrno>

namespace platform {

namespace {

struct Meaning {
  int number;
  const char* text;
};

constexpr Meaning kMeanings[] = {
    {ENOENT, "there is no such file or folder"},
    {EACCES, "permission is denied"},
    {EPERM, "permission is denied"},
    {EROFS, "the disk can only be read"},
    {ENOSPC, "the disk is full"},
    {EDQUOT, "the disk space allowed to you is used up"},
    {EFBIG, "the file would be too large"},
    {EIO, "the disk reports a fault"},
    {EISDIR, "is a folder"},
    {ENOTDIR, "a part of its path is not a folder"},
    {ENAMETOOLONG, "the name is too long"},
    {ELOOP, "links lead round in a circle"},
    {EEXIST, "there is a file of that name"},
    {EINVAL, "the disk does not take such a name"},
    {EILSEQ, "the disk does not take such a name"},
    {EBUSY, "it is in use"},
    {ETXTBSY, "it is in use"},
    {EMFILE, "too many files are open"},
    {ENFILE, "too many files are open"},
    {ENOMEM, "there is not enough memory"},
    {ENXIO, "is not an ordinary file"},
    {ENODEV, "is not an ordinary file"},
    {EXDEV, "it is on another disk"},
    {ESTALE, "it is gone from the network disk"},
};

}  // namespace

std::string systemError(int number) {
  for (const Meaning& meaning : kMeanings) {
    if (meaning.number == number) return meaning.text;
  }
  return "error number " + std::to_string(number);
}

}  // namespace platform
