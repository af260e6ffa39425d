#include "backends/files/Descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace quendle {

Descriptor::~Descriptor() {
  if (number_ < 0) return;
  const int error = errno;
  close(number_);
  errno = error;
}

bool MeansMissing(int error) { return error == ENOENT || error == ENOTDIR || error == ELOOP; }

std::string ReasonOf(int error) { return std::generic_category().message(error); }

Descriptor OpenBelow(const std::string& root, const std::string& relative, int flags) {
  const int always = O_CLOEXEC | O_NOCTTY;
  if (relative.empty()) return Descriptor(open(root.c_str(), flags | always));
  Descriptor folder(open(root.c_str(), O_PATH | O_DIRECTORY | always));
  std::size_t begin = 0;
  for (std::size_t end = relative.find('/'); folder && end != std::string::npos;
       end = relative.find('/', begin)) {
    const std::string name = relative.substr(begin, end - begin);
    folder = Descriptor(
        openat(folder.Number(), name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | always));
    begin = end + 1;
  }
  if (!folder) return Descriptor();
  return Descriptor(openat(folder.Number(), relative.c_str() + begin, flags | O_NOFOLLOW | always));
}

}  // namespace quendle
