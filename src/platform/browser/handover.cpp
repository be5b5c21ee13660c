#include "platform/browser/handover.h"

#include <string>
#include <vector>

#include "platform/browser/memory_files.h"
#include "platform/browser/pack.h"

using platform::Handed;

/// Memory for bytes that the page is about to hand over.
VELLMORAN_EXPORT("room") char* room(int size) {
  return static_cast<char*>(std::malloc(static_cast<std::size_t>(size)));
}

VELLMORAN_EXPORT("addPack") int addPack(char* bytes, int size) {
  return platform::addPack(Handed(bytes, size)) ? 1 : 0;
}

VELLMORAN_EXPORT("putFile") void putFile(char* path, int pathLength, char* bytes, int size) {
  const Handed name(path, pathLength);
  const Handed content(bytes, size);
  platform::putFile(std::string(name.view()), content.view());
}

VELLMORAN_EXPORT("removeFile") void removeFile(char* path, int pathLength) {
  platform::removeFile(std::string(Handed(path, pathLength).view()));
}
