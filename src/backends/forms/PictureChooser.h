#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "backends/forms/FileListing.h"
#include "platform/Form.h"
#include "platform/PictureLoader.h"

namespace quendle {

// Our own file chooser: a folder as a sheet of small pictures. A press marks a picture, OK or a
// second press takes it, a press on a folder opens it; a dropped file is taken at once.
class PictureChooser : public FormEvents {
 public:
  // Small pictures are read with `loader`, which outlives the chooser.
  PictureChooser(std::string title, std::string patterns, std::filesystem::path folder,
                 PictureLoader& loader);

  Form& Record() { return form_; }
  // The native path of the chosen file, empty when it was cancelled; nothing while it stands.
  const std::optional<std::string>& Answer() const { return answer_; }
  const std::filesystem::path& Folder() const { return folder_; }

  // Reads the next small picture that is in view; false when all are there.
  bool ReadNextPicture();

  void PointerOverForm() override { Highlight(""); }
  void PointerOver(Control& control) override;
  void Press(Control& control, Point at) override;
  void Set(Control& control, int value) override;
  bool TakesDrops() const override { return true; }
  void Drop(const std::string& native_path) override { answer_ = native_path; }
  void Key(FormKey key) override;
  void QueryClose() override { answer_ = ""; }

 private:
  void Build();
  void OpenFolder(const std::filesystem::path& folder);
  void ShowTiles();
  void ShowTile(int tile, std::size_t entry);
  void Mark(std::size_t entry);
  void Take(std::size_t entry);
  void TakeMarked();
  void MoveMark(int step);
  void Highlight(const std::string& button);
  int FirstRow() { return form_.Find("VScroll1")->value; }

  PictureLoader& loader_;
  std::string patterns_;
  std::filesystem::path folder_;
  std::vector<ListedFile> entries_;
  std::optional<std::size_t> marked_;
  // Small pictures read so far; one that can't be read is none.
  std::map<std::string, SharedPicture> pictures_;
  Form form_;
  std::optional<std::string> answer_;
};

}  // namespace quendle
