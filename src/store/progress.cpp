#include "store/progress.h"

#include "core/number_text.h"
#include "platform/files.h"
#include "store/text_form.h"

namespace store {

namespace {

constexpr int kFirstHandOver = 2;
constexpr int kLastHandOver = 10;

std::string pathIn(const std::string& folder, const std::string& name) {
  return folder.empty() ? name : folder + "/" + name;
}

bool parseProgress(std::string_view text, Progress& into, std::string& error) {
  FieldReader in(text);
  const auto failed = [&] {
    error = in.error();
    return false;
  };
  core::Number reached, reserved;
  if (!in.next(reached)) return failed();
  if (!isWholeWithin(reached, 1, 11)) {
    in.refuse("no such mission", reached);
    return failed();
  }
  if (!in.next(reserved)) return failed();
  // Kept within 32 bits, so that every writer carries it unchanged.
  if (!isWholeWithin(reserved, -2147483648.0, 2147483647)) {
    in.refuse("no whole number of 32 bits", reserved);
    return failed();
  }
  core::Row<double, 1, 10> done;
  for (int level = 1; level <= 10; ++level) {
    core::Number flag;
    if (!in.next(flag)) return failed();
    done[level] = flag;
  }
  if (!in.finish()) return failed();
  into.reachedMission = reached;
  into.reservedNumber = reserved;
  into.puzzleDone = done;
  return true;
}

// Whether somebody has played in this folder: then a missing file is a loss, not a first start.
bool wasPlayedIn(const std::string& folder) {
  for (int mission = kFirstHandOver; mission <= kLastHandOver; ++mission) {
    if (platform::fileExists(pathIn(folder, handOverFile(mission)))) return true;
  }
  return !platform::listFiles(folder.empty() ? "." : folder, ".sav").empty();
}

}  // namespace

std::string handOverFile(int mission) {
  std::string name = "mission";
  name += core::NumberText(mission).view();
  return name + ".dat";
}

bool readProgress(const std::string& folder, Progress& into, std::string& error) {
  const std::string path = pathIn(folder, kProgressFile);
  std::string text;
  if (!platform::readFile(path, text, error)) {
    error = withPlainName(path, error);
    return false;
  }
  if (parseProgress(text, into, error)) return true;
  error = plainName(path) + ": " + error;
  return false;
}

bool writeProgress(const std::string& folder, const Progress& progress, std::string& error) {
  std::string text;
  FieldWriter out(text);
  out.put(progress.reachedMission);
  out.put(progress.reservedNumber);
  for (int level = 1; level <= 10; ++level) out.put(progress.puzzleDone[level]);
  out.endLine();
  const std::string path = pathIn(folder, kProgressFile);
  if (platform::writeFile(path, text, error)) return true;
  error = withPlainName(path, error);
  return false;
}

bool prepareProgress(const std::string& folder, std::string& notice) {
  notice.clear();
  Progress progress;
  std::string found;
  if (readProgress(folder, progress, found)) return true;

  const std::string path = pathIn(folder, kProgressFile);
  const bool missing = !platform::fileExists(path);
  const Progress fresh;
  if (missing && writeProgress(folder, fresh, notice)) {
    if (wasPlayedIn(folder)) {
      notice = found + ".\nA new one was made: the campaign and the puzzle levels start afresh.";
    }
    return true;
  }
  // Something is in the way: a damaged file, or a folder of this name.
  std::string kept = std::string(kProgressFile) + ".damaged";
  std::string error;
  if (!platform::setAside(path, kept, error)) {
    if (!missing) notice = withPlainName(path, error);
    return false;
  }
  if (!writeProgress(folder, fresh, notice)) return false;
  notice = found + ".\nIt is kept as " + kept +
           ", and a new one was made: the campaign and the puzzle levels start afresh.";
  return true;
}

}  // namespace store
