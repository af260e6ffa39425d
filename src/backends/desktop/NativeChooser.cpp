#include "backends/desktop/NativeChooser.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/Text.h"

extern char** environ;

namespace quendle {
namespace {

constexpr int kCancelled = 1;  // the exit code of both helpers

bool IsInstalled(const std::string& program) {
  const char* path = std::getenv("PATH");
  const std::vector<std::string> folders = SplitTokens(path == nullptr ? "" : path, ':');
  return std::any_of(folders.begin(), folders.end(), [&](const std::string& folder) {
    return access((folder + "/" + program).c_str(), X_OK) == 0;
  });
}

// The helper of the desktop in use first.
std::string FindHelper() {
  const char* desktop = std::getenv("XDG_CURRENT_DESKTOP");
  const bool kde = desktop != nullptr && ContainsNoCase(desktop, "kde");
  for (const char* helper : {kde ? "kdialog" : "zenity", kde ? "zenity" : "kdialog"}) {
    if (IsInstalled(helper)) return helper;
  }
  return "";
}

std::string BlankParted(const std::string& patterns) {
  std::string text = patterns;
  std::replace(text.begin(), text.end(), ';', ' ');
  return text;
}

// Patterns that hold for both cases of each letter, for a chooser that tells them apart: a camera
// writes IMG_0001.JPG.
std::string InEitherCase(const std::string& patterns) {
  std::string either;
  for (char c : patterns) {
    const bool small = c >= 'a' && c <= 'z';
    const bool large = c >= 'A' && c <= 'Z';
    if (!small && !large) {
      either += c;
      continue;
    }
    const char other = static_cast<char>(c ^ ' ');
    either += {'[', small ? c : other, small ? other : c, ']'};
  }
  return either;
}

// What a filter is called before the brackets that list its patterns.
std::string NameOf(const FileFilter& filter) {
  return std::string(TrimBlanks(filter.name.substr(0, filter.name.find('('))));
}

// It knows no case by itself, takes one filter a line, and reads the patterns from the brackets.
std::string KdialogFilters(const std::vector<FileFilter>& filters) {
  std::string lines;
  for (const FileFilter& filter : filters) {
    if (!lines.empty()) lines += '\n';
    lines += NameOf(filter) + " (" + BlankParted(filter.pattern) + ")";
  }
  return lines;
}

}  // namespace

std::vector<std::string> ChooserCommand(const std::string& helper, const std::string& title,
                                        const std::vector<FileFilter>& filters,
                                        const std::string& folder) {
  if (helper == "kdialog") {
    return {helper, "--title", title, "--getopenfilename", folder, KdialogFilters(filters)};
  }
  std::vector<std::string> command = {helper, "--file-selection", "--title=" + title,
                                      "--filename=" + folder + "/"};
  for (const FileFilter& filter : filters) {
    command.push_back("--file-filter=" + filter.name + " | " +
                      InEitherCase(BlankParted(filter.pattern)));
  }
  return command;
}

NativeChooser::NativeChooser(const std::string& title, const std::vector<FileFilter>& filters,
                             const std::string& folder) {
  const std::string helper = FindHelper();
  if (!helper.empty()) Start(ChooserCommand(helper, ToUtf8(title), filters, folder));
}

NativeChooser::~NativeChooser() {
  if (child_ > 0) {
    kill(child_, SIGTERM);
    waitpid(child_, nullptr, 0);
  }
  if (output_ >= 0) close(output_);
}

void NativeChooser::Start(const std::vector<std::string>& command) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) return;
  std::vector<std::string> words = command;
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  if (posix_spawnp(&child_, arguments[0], &actions, nullptr, arguments.data(), environ) != 0) {
    child_ = -1;
  }
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  output_ = ends[0];
  fcntl(output_, F_SETFL, O_NONBLOCK);
}

bool NativeChooser::IsRunning() {
  if (child_ < 0) return false;
  ReadOutput();
  int status = 0;
  if (waitpid(child_, &status, WNOHANG) == 0) return true;
  child_ = -1;
  Finish(status);
  return false;
}

void NativeChooser::ReadOutput() {
  std::array<char, 4096> piece;
  for (ssize_t size = 0; (size = read(output_, piece.data(), piece.size())) > 0;) {
    told_.append(piece.data(), static_cast<std::size_t>(size));
  }
}

void NativeChooser::Finish(int status) {
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  ReadOutput();
  served_ = code == 0 || code == kCancelled;
  if (code == 0) answer_ = told_.substr(0, told_.find('\n'));
}

}  // namespace quendle
