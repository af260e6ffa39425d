#pragma once

namespace quendle {

class ContentFiles;
class FormHost;
class SystemServices;
struct Settings;

// What every form of the game works with. The references outlive the forms.
struct FormServices {
  FormHost& host;
  SystemServices& system;
  ContentFiles& files;
  Settings& settings;
};

}  // namespace quendle
