#pragma once

#include "dialogs/FormServices.h"

namespace quendle {

class Boxes;
class Gdi;
class PictureLoader;
class PictureSaver;
class StartUpForm;

// What the forms of the wizard work with. The references outlive the forms.
struct PersonalizeServices {
  FormServices forms;
  StartUpForm& prompt;
  Boxes& boxes;
  Gdi& gdi;
  PictureLoader& loader;
  PictureSaver& saver;
};

}  // namespace quendle
