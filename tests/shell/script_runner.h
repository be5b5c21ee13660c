// Plays driver scripts as tests. A script is what the driver itself takes, one command a line; each
// must be answered with ok. Added to that:
//
//   get gold => 600                          the answer must be 600, or begin with this word
//   control bilgi => shown=true left=200     the object must have these fields
//   box => ~is not a number                  the answer must contain this text
//   #file NAME TEXT                          a file in the program's folder must begin like this
//   #write NAME TEXT                         puts a file into the folder before the program starts
//
//   @x,y                                     the screen pixel in the middle of cell (x, y), wherever
//                                            the map has been slid to; press takes several of them
//   open-play, puzzle ROW, save NAME, load NAME    the clicks that lead there
//
// The recorded plays of docs/solutions are plain driver scripts; there a comment "#= ok 600" states the
// answer to the command above it.
#pragma once

#include <memory>
#include <string>

#include "driver/session.h"

namespace script {

/// A program in an empty folder of its own, which goes when this goes.
class Play {
 public:
  Play();
  ~Play();
  Play(const Play&) = delete;
  Play& operator=(const Play&) = delete;

  driver::Session& session() { return *session_; }
  const std::string& folder() const { return folder_; }
  /// Runs one command and gives its answer.
  std::string operator()(const std::string& command);
  /// Runs commands, one a line; each must be answered with ok.
  void run(const std::string& commands);
  /// Restarts the program in the same folder.
  void restart();
  /// The text of a file in the folder; empty when it is missing.
  std::string file(const std::string& name) const;
  void write(const std::string& name, const std::string& text) const;

 private:
  std::string folder_;
  std::string before_;
  std::unique_ptr<driver::Session> session_;
};

/// Plays a script file; every answer that differs is a failure of the running test.
void playFile(const std::string& path);

}  // namespace script
