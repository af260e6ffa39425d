#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "base/EventSink.h"
#include "base/KeyedList.h"
#include "object/GameObjectInterface.h"
#include "platform/FileSystem.h"

namespace quendle {

class ContentFiles;
struct Debomb_Window;
struct Watch;

// The game's one logger: a text file and a threshold for each category. Each line is on the disk
// before LogEvent returns.
class TestingObject : public EventSink {
 public:
  // `files` must outlive the log; `base_directory` is where the files are made. What is logged is
  // traced by `watch`, which must outlive the log too; null for none.
  TestingObject(FileSystem& files, std::string base_directory, Watch* watch = nullptr);

  // Creates the file of a category in place of any old one. `object` may be null and is only kept.
  // A category that is registered, or a file that can't be made, is fatal.
  void Initialize(const std::string& category, const std::string& file_name, ObjectRef object,
                  std::int16_t level);
  // The same without an object; false when the file can't be made. The category isn't registered
  // then.
  bool TryInitialize(const std::string& category, const std::string& file_name, std::int16_t level);
  // Registers a category whose messages reach no file.
  void InitializeWithoutFile(const std::string& category, std::int16_t level);
  // As Initialize without an object, with a first line.
  void RegisterNewEventFile(const std::string& category, const std::string& file_name,
                            std::int16_t level);
  // Logs if the category's threshold is at or above the level: lower levels are the more
  // important. A category that isn't registered is fatal; case is ignored.
  void LogEvent(std::string_view message, int level, std::string_view category) override;

  // Where messages go. The window takes them only while the file doesn't; null for none.
  // Nothing asks for the two: the log of a game is its file.
  void SetWriteToFile(bool on) { write_to_file_ = on; }
  void SetWriteToWindow(Debomb_Window* window) { window_ = window; }
  // A window that takes each accepted message beside the file, so that the file misses none; null
  // for none.
  void SetMirror(Debomb_Window* window) { mirror_ = window; }

 private:
  FileSystem& files_;
  std::string base_directory_;
  Watch* watch_;
  bool write_to_file_ = true;
  Debomb_Window* window_ = nullptr;
  Debomb_Window* mirror_ = nullptr;
  KeyedList<std::unique_ptr<LineWriter>> streams_{"log file"};
  KeyedList<std::int16_t> thresholds_{"log category"};
  ObjectList attached_{"logged object"};
};

}  // namespace quendle
