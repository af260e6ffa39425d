#include "personalize/PersonFiles.h"

#include "base/ContentFiles.h"
#include "base/FatalError.h"
#include "personalize/PersonalizeServices.h"
#include "platform/Gdi.h"
#include "platform/PictureSaver.h"

namespace quendle {
namespace {

constexpr const char* kDefaultFaceFile = "face-default.bmp";
constexpr const char* kDefaultDoctorFile = "doctor-default.bmp";

// Empty for a file that is missing or no bitmap.
Picture PictureIn(const PersonalizeServices& services, const std::string& name) {
  Gdi& gdi = services.gdi;
  const BitmapHandle bitmap = gdi.LoadImageA(PersonFile(services, name));
  if (bitmap == 0) return {};
  Picture picture = gdi.ReadBitmap(bitmap);
  gdi.DeleteObject(bitmap);
  return picture;
}

bool AreTheSame(const PersonalizeServices& services, const char* name, const char* other) {
  return PictureIn(services, name) == PictureIn(services, other);
}

}  // namespace

std::string PersonFile(const PersonalizeServices& services, const std::string& name) {
  return services.forms.files.BaseDirectory() + "\\Info\\GlobalReferences\\images\\person\\" + name;
}

void SavePersonPicture(const PersonalizeServices& services, const std::string& name,
                       const Picture& picture) {
  const std::string path = PersonFile(services, name);
  if (services.saver.SavePicture(path, picture)) return;
  throw FatalError("the picture could not be written", {services.forms.files.DisplayName(path), 0});
}

bool PhotographCanBeRemoved(const PersonalizeServices& services) {
  const ContentFiles& files = services.forms.files;
  const bool defaults_exist = files.FileExistsAt(PersonFile(services, kDefaultFaceFile)) &&
                              files.FileExistsAt(PersonFile(services, kDefaultDoctorFile));
  return defaults_exist && !(AreTheSame(services, kFaceFile, kDefaultFaceFile) &&
                             AreTheSame(services, kDoctorFile, kDefaultDoctorFile));
}

void RestoreDefaultPerson(const PersonalizeServices& services) {
  const ContentFiles& files = services.forms.files;
  files.CopyFile(PersonFile(services, kDefaultFaceFile), PersonFile(services, kFaceFile));
  files.CopyFile(PersonFile(services, kDefaultDoctorFile), PersonFile(services, kDoctorFile));
}

}  // namespace quendle
