// Whatever stands in the files of a tree, the check comes to its end.
#include <gtest/gtest.h>

#include "base/SeededRandom.h"
#include "toolbelt/VerifyClinic.h"

namespace quendle {
namespace {

constexpr int kTrees = 60;
constexpr int kFaultsInEach = 8;

class WildAuthor {
 public:
  explicit WildAuthor(std::uint64_t seed) : random_(seed) {}

  void Harm(VerifyClinic& clinic) {
    const std::vector<std::string> paths = clinic.Listing().All();
    const std::string path = paths[Pick(paths.size())];
    if (!path.ends_with(".txt")) return;
    Lines lines = clinic.LinesOf(path);
    if (lines.empty()) return;
    const std::size_t at = Pick(lines.size());
    switch (Pick(5)) {
      case 0:
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
        break;
      case 1:
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), lines[at]);
        break;
      case 2:
        lines[at] = kTexts[Pick(std::size(kTexts))];
        break;
      case 3:
        lines[at] += kTexts[Pick(std::size(kTexts))];
        break;
      default:
        std::swap(lines[at], lines[Pick(lines.size())]);
    }
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    clinic.Put(path, text);
  }

 private:
  using Lines = std::vector<std::string>;
  static constexpr const char* kTexts[] = {
      "",
      "nothing",
      "99999999999",
      "-1",
      "stable+0",
      "_",
      "begin",
      "end",
      "if action = *",
      "mtp toobj_doctor_addglobalobj_doctor",
      "mtp toobj_subgame_toobj_won_lost",
      "change <incrementstate>",
      "GlobalObject_doctor",
      "<CurrentDirectory>\\<ObjectName>.txt",
      "subscript subscript",
      "better99999999999",
      "spline",
      "\xFF\xC3\xA9",
  };
  std::size_t Pick(std::size_t count) {
    return static_cast<std::size_t>(random_.Rnd() * static_cast<double>(count));
  }
  SeededRandom random_;
};

TEST(Verify, NoContentStopsIt) {
  const VerifyClinic clean;
  for (int tree = 0; tree < kTrees; ++tree) {
    WildAuthor author(static_cast<std::uint64_t>(tree));
    VerifyClinic clinic = clean;
    for (int fault = 0; fault < kFaultsInEach; ++fault) author.Harm(clinic);
    EXPECT_NO_THROW(clinic.Found()) << "seed " << tree;
  }
}

TEST(Verify, ObjectsThatAreAddedToEachOtherDontGoRound) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\wellscript.txt", "mtp ",
              "mtp toobj_doctor_addglobalobj_soapcursor\nmtp "
              "toobj_doctor_toobj_soapcursor_addglobalobj_doctor\nmtp ");
  EXPECT_EQ(clinic.Found(), "");
}

}  // namespace
}  // namespace quendle
