// Plays scripts as tests. A script is made of the driver's commands, one a line or several with "; "
// between them; each must be answered with ok. These words are short for several commands or for a check:
//
//   click gmmenu, savegame                   several clicks; key and hover as well
//   press @15,15 @16,15                      presses in the middle of these cells, wherever the map
//                                            has been slid to; pointer takes a cell, too
//   residence @13,15 @13,17                  picks the tool in the palette and presses; just picks it
//                                            when no cell follows
//   set gold=500 walkerX(3)=15               several values
//   gold=600 tileCode(15,16)=7 Timer8=off    values and timers that must be so
//   Label4: text="INFO MODE" left=200        fields that the control must have
//   shown Frame14 Command1(3)                controls that must be seen; hidden: that must not
//   box => ~is not a number                  the answer must contain this text; without ~ it is, or
//                                            begins with, the text, or has its fields
//   #file NAME TEXT                          a file in the program's folder must begin like this
//   #write NAME TEXT                         puts a file into the folder and starts the program again
//   let NAME = STEPS                         makes NAME a word for these steps, in which $ is what
//                                            follows the word
//
// and the scenes open-play, puzzle ROW, mission ROW, menu, save NAME, load NAME, load-from-menu NAME,
// next-month and saved-town, which script_runner.cpp lists.
//
// The recorded plays of docs/solutions are plain driver scripts; there a comment "#= ok 600" states the
// answer to the command above it.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "driver/session.h"
#include "play/game_controls.h"

namespace script {

namespace ui = play::game_control;

/// A program in an empty folder of its own, which goes when this goes.
class Play {
 public:
  /// Runs the script as its beginning, drawn at a scale.
  explicit Play(const std::string& script = "", int scale = 1);
  ~Play();
  Play(const Play&) = delete;
  Play& operator=(const Play&) = delete;

  driver::Session& session() { return *session_; }
  shell::Program& program() { return session_->program(); }
  platform::Form& form() { return program().screen()->form(); }
  const platform::Control& control(const char* name, int index = platform::kSingle) {
    return form()[form().find(name, index)];
  }
  std::string text(int control) { return std::string(form()[control].text.view()); }
  core::GameState& state() { return *program().screen()->game(); }
  const platform::Surface& map() { return program().screen()->canvas()->surface(); }
  const std::string& folder() const { return folder_; }
  /// Runs one command of the driver and returns its answer.
  std::string operator()(const std::string& command);
  /// Runs a script; each answer that differs fails the running test.
  void run(const std::string& script);
  /// Restarts the program in the same folder.
  void restart();
  /// The text of a file in the folder; empty when it is missing.
  std::string file(const std::string& name) const;
  void write(const std::string& name, const std::string& text) const;

 private:
  void runLine(const std::string& line);
  void take(const std::string& step);
  void command(const std::string& command);
  void expect(const std::string& command, const std::string& expected);

  std::map<std::string, std::string> scenes_;
  std::string answer_;
  int scale_;
  std::string folder_;
  std::string before_;
  std::unique_ptr<driver::Session> session_;
};

/// Plays a script file.
void playFile(const std::string& path);

}  // namespace script
