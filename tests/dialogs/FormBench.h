// What the tests of forms stand on: a system that records, files in memory, a scripted host.
#pragma once

#include <string>
#include <vector>

#include "backends/files/MemoryFileSystem.h"
#include "backends/headless/HeadlessFormHost.h"
#include "base/ContentFiles.h"
#include "base/ProcessEnds.h"
#include "base/Settings.h"
#include "dialogs/FormServices.h"
#include "dialogs/StartUpForm.h"
#include "platform/Faults.h"
#include "platform/SystemServices.h"

namespace quendle {

class RecordingSystem : public SystemServices {
 public:
  bool PreviousInstanceRuns() override {
    ++instance_questions;
    return other_instance;
  }
  int MajorVersion() override { return version; }
  void OpenInShell(const std::string& address) override { opened.push_back(address); }
  void Beep() override { ++beeps; }

  bool other_instance = false;
  int version = 10;
  int instance_questions = 0;
  int beeps = 0;
  std::vector<std::string> opened;
};

// Stands for the start-up form above the dialogs.
class RecordingPrompt : public StartUpForm {
 public:
  void Show() override { calls.push_back("Show"); }
  void btnNormal_Click() override { calls.push_back("btnNormal_Click"); }
  [[noreturn]] void Unload() override {
    calls.push_back("Unload");
    throw ProcessEnds{false};
  }
  void SaveOptions() override { calls.push_back("SaveOptions"); }

  std::vector<std::string> calls;
};

struct FormBench {
  FormBench() { settings.BaseDirectory = "/clinic"; }

  FormServices Services() { return {host, system, content, settings}; }

  // The text of a file in the application's folder, "(none)" without it.
  std::string File(const std::string& name) { return files.Get("\\" + name).value_or("(none)"); }
  void Put(const std::string& name, const std::string& text) { files.Put("\\" + name, text); }
  // Names of the files written so far, in order.
  std::vector<std::string> Written() const {
    std::vector<std::string> names;
    for (const auto& operation : files.Operations()) {
      if (operation.name == "write") names.push_back(operation.path);
    }
    return names;
  }

  Faults faults;
  Settings settings;
  MemoryFileSystem files{"/clinic", &faults};
  ContentFiles content{files, settings};
  RecordingSystem system;
  HeadlessFormHost host;
};

// The names of the pictures that are seen, joined by blanks.
inline std::string SeenPictures(const Form& form) {
  std::string seen;
  for (const Control& control : form.controls) {
    if (control.kind == ControlKind::kPicture && control.visible) {
      seen += (seen.empty() ? "" : " ") + control.picture;
    }
  }
  return seen;
}

// Name (and element) of the control with the focus.
inline std::string FocusName(const Form& form) {
  if (form.focus < 0) return "(none)";
  const Control& control = form.controls[form.focus];
  return control.kind == ControlKind::kPicture ? control.picture : control.name;
}

inline int ValueOf(Form& form, const std::string& name) { return form.Find(name)->value; }
inline std::string TextOf(Form& form, const std::string& name) { return form.Find(name)->text; }

}  // namespace quendle
