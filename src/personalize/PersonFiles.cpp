#include "personalize/PersonFiles.h"

#include "base/ContentFiles.h"
#include "base/FatalError.h"
#include "personalize/PersonalizeServices.h"
#include "platform/PictureSaver.h"

namespace quendle {
namespace {

constexpr const char* kDefaultFaceFile = "face-default.bmp";
constexpr const char* kDefaultDoctorFile = "doctor-default.bmp";

}  // namespace

std::string PersonFile(const PersonalizeServices& services, const std::string& name) {
  return services.forms.files.BaseDirectory() + "\\Info\\GlobalReferences\\images\\person\\" + name;
}

void SavePersonPicture(const PersonalizeServices& services, const std::string& name,
                       const Picture& picture) {
  const std::string path = PersonFile(services, name);
  if (services.saver.SavePicture(path, picture)) return;
  throw FatalError("the picture " + services.forms.files.DisplayName(path) +
                   " could not be written");
}

bool DefaultPersonExists(const PersonalizeServices& services) {
  const ContentFiles& files = services.forms.files;
  return files.FileExistsAt(PersonFile(services, kDefaultFaceFile)) &&
         files.FileExistsAt(PersonFile(services, kDefaultDoctorFile));
}

void RestoreDefaultPerson(const PersonalizeServices& services) {
  const ContentFiles& files = services.forms.files;
  files.CopyFile(PersonFile(services, kDefaultFaceFile), PersonFile(services, kFaceFile));
  files.CopyFile(PersonFile(services, kDefaultDoctorFile), PersonFile(services, kDoctorFile));
}

}  // namespace quendle
