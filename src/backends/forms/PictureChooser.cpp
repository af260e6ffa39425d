#include "backends/forms/PictureChooser.h"

#include <algorithm>
#include <utility>

#include "backends/forms/BoxParts.h"
#include "backends/forms/PicturePainter.h"
#include "base/Text.h"

namespace quendle {
namespace {

constexpr int kColumns = 4;
constexpr int kRows = 3;
constexpr int kTiles = kColumns * kRows;
constexpr Size kForm{716, 590};
constexpr Size kTile{164, 138};
constexpr Size kThumbnail{148, 102};
// More than a tile needs: the rest is smoothed when it is stretched.
constexpr PictureLimit kThumbnailLimit{600, 600};
constexpr Point kSheet{20, 84};
constexpr int kNamePoints = 9;
constexpr int kFolderPoints = 12;
constexpr std::size_t kLongestName = 22;
constexpr std::size_t kLongestFolder = 70;

Rect TilePlace(int tile) {
  const int left = kSheet.x + tile % kColumns * kTile.width;
  const int top = kSheet.y + tile / kColumns * kTile.height;
  return {left, top, left + kTile.width, top + kTile.height};
}

Rect InMiddle(const Rect& room, Size size) {
  const int left = room.left + (room.Width() - size.width) / 2;
  const int top = room.top + (room.Height() - size.height) / 2;
  return {left, top, left + size.width, top + size.height};
}

// The beginning of a long name; of a long folder its end tells more.
std::string Shortened(const std::string& name, std::size_t longest, bool keep_end) {
  if (name.size() <= longest) return name;
  return keep_end ? "..." + name.substr(name.size() - longest) : name.substr(0, longest) + "...";
}

}  // namespace

PictureChooser::PictureChooser(std::string title, std::string patterns,
                               std::filesystem::path folder, PictureLoader& loader)
    : loader_(loader), patterns_(std::move(patterns)) {
  form_.name = "PictureChooser";
  form_.caption = std::move(title);
  form_.size = kForm;
  form_.visible = true;
  form_.enabled = true;
  Build();
  OpenFolder(folder);
}

void PictureChooser::Build() {
  AddControl(form_, ControlKind::kLabel, "folder", {24, 52, 692, 80}).font_size = kFolderPoints;
  AddControl(form_, ControlKind::kFrame, "mark", {}).visible = false;
  for (int tile = 0; tile < kTiles; ++tile) {
    AddControl(form_, ControlKind::kImage, "tile", {}).index = tile;
    Control& name = AddControl(form_, ControlKind::kLabel, "name", {});
    name.index = tile;
    name.font_size = kNamePoints;
  }
  Control& empty = AddControl(form_, ControlKind::kLabel, "empty", {210, 250, 692, 280});
  empty.text = "There are no pictures in this folder.";
  empty.font_size = kFolderPoints;
  AddControl(form_, ControlKind::kScroll, "VScroll1",
             {kForm.width - 36, kSheet.y, kForm.width - 16, kSheet.y + kRows * kTile.height});
  AddControl(form_, ControlKind::kPicture, "ok", {200, 516, 346, 572});
  AddControl(form_, ControlKind::kPicture, "cancel", {370, 516, 516, 572});
  Highlight("");
  AddBevel(form_);
}

void PictureChooser::OpenFolder(const std::filesystem::path& folder) {
  folder_ = folder;
  entries_ = ListFolder(folder_, patterns_);
  marked_.reset();
  form_.Find("folder")->text =
      Shortened(FromUtf8LeavingOut(folder_.string()), kLongestFolder, true);
  const int rows = (static_cast<int>(entries_.size()) + kColumns - 1) / kColumns;
  Control& bar = *form_.Find("VScroll1");
  bar.maximum = std::max(rows - kRows, 0);
  bar.visible = bar.maximum > 0;
  bar.value = 0;
  const bool empty = std::all_of(entries_.begin(), entries_.end(),
                                 [](const ListedFile& file) { return file.folder; });
  form_.Find("empty")->visible = empty && entries_.size() <= 1;
  ShowTiles();
}

bool PictureChooser::ReadNextPicture() {
  const auto first = static_cast<std::size_t>(FirstRow() * kColumns);
  for (std::size_t i = first; i < std::min(first + kTiles, entries_.size()); ++i) {
    const std::string path = entries_[i].path.string();
    if (entries_[i].folder || pictures_.contains(path)) continue;
    const LoadedPicture loaded = loader_.LoadPicture(path, kThumbnailLimit);
    SharedPicture& small = pictures_[path];
    if (loaded.picture != nullptr) {
      small = std::make_shared<const Picture>(
          Stretched(*loaded.picture, FittingSize(loaded.picture->size, kThumbnail)));
    }
    ShowTiles();
    return true;
  }
  return false;
}

void PictureChooser::ShowTiles() {
  const auto first = static_cast<std::size_t>(FirstRow() * kColumns);
  for (int tile = 0; tile < kTiles; ++tile) ShowTile(tile, first + static_cast<std::size_t>(tile));
  const bool seen = marked_ && *marked_ >= first && *marked_ < first + kTiles;
  Control& mark = *form_.Find("mark");
  mark.visible = seen;
  if (seen) mark.area = TilePlace(static_cast<int>(*marked_ - first));
}

void PictureChooser::ShowTile(int tile, std::size_t entry) {
  Control& image = *form_.Find("tile", tile);
  Control& name = *form_.Find("name", tile);
  image.visible = name.visible = entry < entries_.size();
  if (!image.visible) return;
  const ListedFile& file = entries_[entry];
  const Rect place = TilePlace(tile);
  const Rect room =
      InMiddle({place.left, place.top + 14, place.right, place.bottom - 20}, kThumbnail);
  const bool above = entry == 0 && file.folder && file.path == folder_.parent_path();
  const std::string text = FromUtf8LeavingOut(file.path.filename().string());
  name.text = above ? "(folder above)" : Shortened(text, kLongestName, false);
  name.area = {place.left + 10, place.bottom - 22, place.right - 4, place.bottom - 4};
  image.picture = file.folder ? "folder" : "";
  auto found = pictures_.find(file.path.string());
  image.image = found == pictures_.end() ? nullptr : found->second;
  image.area = image.image == nullptr ? room : InMiddle(room, image.image->size);
}

void PictureChooser::PointerOver(Control& control) {
  Highlight(control.kind == ControlKind::kPicture ? control.name : "");
}

void PictureChooser::Press(Control& control, Point) {
  if (control.kind == ControlKind::kPicture) {
    control.name == "ok" ? TakeMarked() : QueryClose();
  } else if (control.name == "tile") {
    const std::size_t entry = static_cast<std::size_t>(FirstRow() * kColumns + control.index);
    if (entries_[entry].folder || marked_ == entry) {
      Take(entry);
    } else {
      Mark(entry);
    }
  }
}

void PictureChooser::Set(Control& control, int value) {
  control.value = std::clamp(value, 0, control.maximum);
  ShowTiles();
}

void PictureChooser::Mark(std::size_t entry) {
  marked_ = entry;
  Control& bar = *form_.Find("VScroll1");
  const int row = static_cast<int>(entry) / kColumns;
  bar.value = std::clamp(bar.value, std::max(row - kRows + 1, 0), row);
  ShowTiles();
}

void PictureChooser::Take(std::size_t entry) {
  if (entries_[entry].folder) {
    OpenFolder(std::filesystem::path(entries_[entry].path));
  } else {
    answer_ = entries_[entry].path.string();
  }
}

void PictureChooser::TakeMarked() {
  if (marked_) Take(*marked_);
}

void PictureChooser::MoveMark(int step) {
  if (entries_.empty()) return;
  const int last = static_cast<int>(entries_.size()) - 1;
  const int now = marked_ ? static_cast<int>(*marked_) : -1;
  Mark(static_cast<std::size_t>(now < 0 ? 0 : std::clamp(now + step, 0, last)));
}

void PictureChooser::Key(FormKey key) {
  switch (key) {
    case FormKey::kEscape:
      QueryClose();
      break;
    case FormKey::kEnter:
    case FormKey::kSpace:
      TakeMarked();
      break;
    case FormKey::kUp:
      MoveMark(-kColumns);
      break;
    case FormKey::kDown:
      MoveMark(kColumns);
      break;
    case FormKey::kLeft:
    case FormKey::kBackTab:
      MoveMark(-1);
      break;
    default:
      MoveMark(1);
  }
}

void PictureChooser::Highlight(const std::string& button) {
  for (const char* name : {"ok", "cancel"}) {
    form_.Find(name)->picture = std::string(name) + (button == name ? "-highlight" : "");
  }
}

}  // namespace quendle
