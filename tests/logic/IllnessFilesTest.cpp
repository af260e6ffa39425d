#include "logic/IllnessFiles.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "base/ContentFiles.h"
#include "base/Settings.h"

namespace quendle {
namespace {

constexpr const char* kFolder = "\\Info\\GlobalReferences\\scripts\\";

struct IllnessBench : testing::Test {
  IllnessBench() {
    for (std::int16_t edition : {1, 2}) {
      for (std::string_view name : IllnessNames(edition)) {
        const std::string stem = kFolder + std::string(name);
        files.Put(stem + "SafeMode.txt", "safe " + std::string(name));
        files.Put(stem + "NormalMode.txt", "normal " + std::string(name));
      }
    }
  }
  std::string Active(const std::string& name) {
    return files.Get(kFolder + name + ".txt").value_or("(none)");
  }
  std::vector<std::string> Written() const {
    std::vector<std::string> paths;
    for (const auto& operation : files.Operations()) {
      if (operation.name == "write") paths.push_back(operation.path);
    }
    return paths;
  }

  MemoryFileSystem files;
  Settings settings;
  ContentFiles content{files, settings};
};

using IllnessFilesTest = IllnessBench;

const std::vector<std::string> kSibling = {
    "antiseptantPatientIllnessState", "ColdPatientSecondToLastIllnessState",
    "bandaidPatientIllnessState",     "bandaidPatientSecondToLastIllnessState",
    "calaminePatientIllnessState",    "soapPatientIllnessState",
    "waterPatientIllnessState"};
const std::vector<std::string> kProduct = {"antiseptantPatientIllnessState",
                                           "fleapowderPatientIllnessState",
                                           "FootAndMouthVaccinePatientIllnessState",
                                           "GrapesPatientIllnessState",
                                           "FleaCollarPatientSecondToLastIllnessState",
                                           "CalciumShotPatientSecondToLastIllnessState",
                                           "RabiesVaccinePatientSecondToLastIllnessState",
                                           "AntibioticPatientSecondToLastIllnessState"};

TEST_F(IllnessFilesTest, EachEditionCopiesItsOwnNamesInTheirOrder) {
  for (const auto& [edition, names] :
       {std::pair{1, kSibling}, std::pair{2, kProduct}, std::pair{3, kProduct}}) {
    files.ForgetOperations();
    files.Record(true);
    SelectIllnessFiles(content, static_cast<std::int16_t>(edition), true);
    std::vector<std::string> expected;
    for (const std::string& name : names) expected.push_back(kFolder + name + ".txt");
    EXPECT_EQ(Written(), expected) << "edition " << edition;
  }
}

TEST_F(IllnessFilesTest, FullScriptsTakeTheNormalVariantAndOthersTheSafeOne) {
  for (const std::string& name : kProduct) {
    SelectIllnessFiles(content, 2, true);
    EXPECT_EQ(Active(name), "normal " + name);
    SelectIllnessFiles(content, 2, false);
    EXPECT_EQ(Active(name), "safe " + name);
  }
}

TEST_F(IllnessFilesTest, AMissingVariantIsFatalWithTheBoxOfAMissingFile) {
  files.Remove(std::string(kFolder) + "GrapesPatientIllnessStateSafeMode.txt");
  SelectIllnessFiles(content, 2, true);
  try {
    SelectIllnessFiles(content, 2, false);
    FAIL() << "no fault";
  } catch (const FatalError& error) {
    EXPECT_EQ(error.BoxText(),
              "File \\Info\\GlobalReferences\\scripts\\GrapesPatientIllnessStateSafeMode.txt not "
              "found");
  }
}

}  // namespace
}  // namespace quendle
