#include "backends/desktop/DesktopSystem.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "base/Text.h"

namespace quendle {
namespace {

// The desktop's own opener, as a process of its own that nobody waits for. No shell reads the
// address, and this program opens no connection.
void StartOpener(const char* address) {
  pid_t helper = fork();
  if (helper < 0) return;
  if (helper == 0) {
    setsid();
    if (fork() == 0) {
      int nowhere = open("/dev/null", O_RDWR);
      for (int stream = 0; stream <= 2; ++stream) dup2(nowhere, stream);
      execlp("xdg-open", "xdg-open", address, static_cast<char*>(nullptr));
    }
    _exit(0);
  }
  int status = 0;
  waitpid(helper, &status, 0);
}

}  // namespace

std::string ShellAddress(const std::string& address) {
  bool plain = std::all_of(address.begin(), address.end(),
                           [](unsigned char c) { return c > ' ' && c < 127; });
  if (!plain) return "";
  std::string folded = FoldCase(address);
  if (folded.starts_with("http://") || folded.starts_with("https://") ||
      folded.starts_with("mailto:")) {
    return address;
  }
  bool mail = address.find('@') != std::string::npos && address.find(':') == std::string::npos &&
              address.find('/') == std::string::npos && address.front() != '-';
  return mail ? "mailto:" + address : "";
}

void DesktopSystem::OpenInShell(const std::string& address) {
  std::string known = ShellAddress(address);
  if (!known.empty()) StartOpener(known.c_str());
}

}  // namespace quendle
