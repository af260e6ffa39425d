// The pictures of the child in the game, below the global reference directory.
#pragma once

#include <string>

namespace quendle {

struct PersonalizeServices;
struct Picture;

inline constexpr const char* kFaceFile = "face.bmp";
inline constexpr const char* kSuitFile = "doctorsuit.bmp";
inline constexpr const char* kDoctorFile = "doctor.bmp";

// Full path of one of the pictures.
std::string PersonFile(const PersonalizeServices& services, const std::string& name);

// Writes one of the pictures over the one before; a failed write is fatal.
void SavePersonPicture(const PersonalizeServices& services, const std::string& name,
                       const Picture& picture);

// True if the content brings the drawn child's face and doctor ("face-default.bmp",
// "doctor-default.bmp") and the game shows others.
bool PhotographCanBeRemoved(const PersonalizeServices& services);

// Puts the drawn child in the place of the photograph; a failed write is fatal.
void RestoreDefaultPerson(const PersonalizeServices& services);

}  // namespace quendle
