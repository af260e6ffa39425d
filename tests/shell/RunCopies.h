// Runs of the small clinic that follow each other on one disk, and what a family finds in them.
#pragma once

#include <optional>
#include <string>

#include "shell/GameBench.h"

namespace quendle {

// The process was stopped: no exception of the engine, so nothing in it takes notice.
struct Stopped {};

// A saved game in which the dog of the room is in that state.
inline std::string SavedDog(const std::string& state) {
  return "begin\r\nbegin\r\ndogroom\r\ndefault\r\n0\r\n0\r\nTrue\r\nbegin\r\ndog\r\n" + state +
         "\r\n300\r\n300\r\nTrue\r\nend\r\nend\r\nend\r\n";
}

// A process of its own on the disk that another has left. Faults of the other are not its own.
struct NextRun : GameBench {
  explicit NextRun(const MemoryFileSystem& disk, bool forgiving = false) {
    for (const std::string& path : disk.Paths()) files.Put(path, *disk.Get(path));
    files.Put("\\GameMode.txt", "Safe\r\n");  // no question on the way
    application.SetForgiving(forgiving);
  }
  // The state of the dog that this run has loaded; how the run ended when it doesn't play.
  std::string Dog() {
    if (application.GetStatus() != Application::Status::kRunning) {
      return "no game: " + application.Fault().box_text;
    }
    Send("cs_dogroom");
    return Child(Logic()->CurrentScreen(), "dog")->CurrentState();
  }
};

// What a start on that disk remembers of the dog.
inline std::string DogRemembered(const MemoryFileSystem& disk, bool forgiving = false) {
  NextRun next(disk, forgiving);
  next.Play();
  return next.Dog();
}

}  // namespace quendle
