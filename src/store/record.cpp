#include "store/record.h"

#include "platform/files.h"
#include "store/record_fields.h"
#include "store/text_form.h"

namespace store {

namespace {

struct ConstView {
  const core::GameState& game;
  const core::ProgramValues& values;
};
struct View {
  core::GameState& game;
  core::ProgramValues& values;
};

struct Composer {
  ConstView from;
  FieldWriter out;

  template <class Place>
  bool operator()(Place place, const Rule*) {
    out.put(place(from));
    return true;
  }
  void endLine() { out.endLine(); }
};

void give(core::Number& into, const core::Number& value) {
  into = value;
}
void give(int& into, const core::Number& value) {
  into = value.whole();
}
template <class T>
void give(core::Whole<T>& into, const core::Number& value) {
  if (value.isSet()) {
    into = value.whole();
  } else {
    into.unset();
  }
}

struct Parser {
  View into;
  FieldReader in;

  template <class Place>
  bool operator()(Place place, const Rule* rule) {
    core::Number value;
    if (!in.next(value)) return false;
    if (rule != nullptr && !rule->allows(value)) return in.refuse(rule->what, value);
    give(place(into), value);
    return true;
  }
  void endLine() {}  // only the number and the order of the fields count
};

struct Copier {
  ConstView from;
  View to;

  template <class Place>
  bool operator()(Place place, const Rule*) {
    place(to) = place(from);
    return true;
  }
  void endLine() {}
};

}  // namespace

void composeRecord(const core::GameState& game, const core::ProgramValues& values,
                   std::string& into) {
  into.clear();
  Composer composer{{game, values}, FieldWriter(into)};
  walkRecord(composer);
}

bool parseRecord(std::string_view text, Record& into, std::string& error) {
  Parser parser{{into.game, into.values}, FieldReader(text)};
  if (walkRecord(parser) && parser.in.finish()) return true;
  error = parser.in.error();
  return false;
}

bool saveGame(const std::string& path, const core::GameState& game,
              const core::ProgramValues& values, std::string& error) {
  std::string text;
  composeRecord(game, values, text);
  if (platform::writeFile(path, text, error)) return true;
  error = withPlainName(path, error);
  return false;
}

std::unique_ptr<Record> readGame(const std::string& path, std::string& error) {
  std::string text;
  if (!platform::readFile(path, text, error)) {
    error = withPlainName(path, error);
    return nullptr;
  }
  auto record = std::make_unique<Record>();
  if (parseRecord(text, *record, error)) return record;
  error = plainName(path) + ": " + error;
  return nullptr;
}

void applyRecord(const Record& record, core::GameState& game, core::ProgramValues& values) {
  Copier copier{{record.game, record.values}, {game, values}};
  walkRecord(copier);
}

}  // namespace store
