// What `quendle verify` says of whole trees, and how.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "toolbelt/TemporaryFolder.h"
#include "toolbelt/ToolBelt.h"
#include "toolbelt/VerifyClinic.h"

namespace quendle {
namespace {

constexpr uid_t kNobody = 65534;

using testing::HasSubstr;
using testing::StartsWith;

std::string Printed(const VerifyClinic& clinic, const std::string& side_list = "") {
  std::ostringstream out;
  PrintText(clinic.Verify(side_list), clinic.Listing(), out);
  return out.str();
}

TEST(Verify, ASmallClinicIsClean) { EXPECT_EQ(VerifyClinic().Found(), ""); }

TEST(Verify, FaultsInManyFilesAreFoundInOneRun) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\dogframes.txt", "stable\n0\n", "stable\nleft\n");
  clinic.Edit("\\Info\\doctor\\doctorstates.txt", "voice", "voise");
  clinic.Edit("\\Info\\soap\\offerscript.txt", "mtp tool", "mpt tool");
  clinic.Remove("\\Info\\screens.txt");
  const std::string found = clinic.Found();
  EXPECT_THAT(found, HasSubstr("Info\\doctor\\doctorstates.txt:8 V301"));
  EXPECT_THAT(found, HasSubstr("Info\\screens.txt:0 V101"));
  EXPECT_THAT(found, HasSubstr("there is no screen \"introscreen\""));
}

TEST(Verify, AFileThatCannotBeReadLeavesTheRestOfTheObjectChecked) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\dogframes.txt", "stable\n0\n", "stable\nleft\n");
  clinic.Edit("\\Info\\dog\\dogstates.txt", "treat", "treet");
  EXPECT_EQ(clinic.Found(),
            "Info\\dog\\dogframes.txt:5 V001 \"left\" is not a number (source x of frame "
            "\"sit\")\n"
            "Info\\dog\\dogstates.txt:4 V303 Could Not Verify Script State of \"default\": Could "
            "Not Find the Script Named \"treet\"; did you mean \"treat\"?\n")
      << "what can't be read makes no further noise";
}

TEST(Verify, FindingsAreGroupedByObjectAndNameTheNearest) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\dogstates.txt", "sit", "sitt");
  clinic.Edit("\\Info\\dog\\treatscript.txt", "change better1", "change beter1");
  clinic.Edit("\\Info\\dogdoor\\pressscript.txt", "dogroom", "dogrom");
  clinic.Put("\\Info\\spare.txt", "");
  EXPECT_EQ(Printed(clinic),
            "Info/spare.txt:1: warning V102: nothing names this file\n"
            "\n"
            "hall/dogdoor\n"
            "Info/dogdoor/pressscript.txt:3: error V705: \"cs_dogrom\": there is no screen "
            "\"dogrom\"; did you mean \"dogroom\"?\n"
            "\n"
            "dogroom\n"
            "Info/dogroom/dogroom.txt:2: warning V804: no message leads from \"introscreen\" to "
            "\"dogroom\"\n"
            "\n"
            "dogroom/dog\n"
            "Info/dog/dogstates.txt:3: error V302: Could Not Verify Animation State of "
            "\"default\": Did not find the Animation State \"sitt\"; did you mean \"sit\"?\n"
            "Info/dog/treatscript.txt:3: warning V610: Did not find a valid object state: there "
            "is no state \"beter1\"; did you mean \"better1\"?\n"
            "\n"
            "squarescreen\n"
            "Info/squarescreen/squarescreen.txt:2: warning V804: no message leads from "
            "\"introscreen\" to \"squarescreen\"\n"
            "\n"
            "2 errors, 4 warnings, 0 notes\n");
}

TEST(Verify, BothVariantsOfATreatmentAreChecked) {
  VerifyClinic clinic;
  const std::string stem = "\\Info\\GlobalReferences\\scripts\\soapPatientIllnessState";
  clinic.Edit("\\Info\\dog\\dogscripts.txt", "<CurrentDirectory>\\treatscript.txt",
              "<GlobalDirectory>\\scripts\\soapPatientIllnessState.txt");
  clinic.Remove("\\Info\\dog\\treatscript.txt");
  for (const char* variant : {"NormalMode.txt", "SafeMode.txt"}) {
    clinic.Put(stem + variant, std::string("begin\nchange ") + variant + "\nend\n");
  }
  const std::string found = clinic.Found();
  EXPECT_THAT(found, HasSubstr("soapPatientIllnessStateNormalMode.txt:2 V610"));
  EXPECT_THAT(found, HasSubstr("soapPatientIllnessStateSafeMode.txt:2 V610"));
}

TEST(Verify, WhatOneOfSeveralParentsTakesIsFine) {
  VerifyClinic clinic;
  // The door back stands in two rooms; only one of them has a dog.
  clinic.Edit("\\Info\\halldoor\\pressscript.txt", "mtp cs_hall",
              "mtp cs_hall\nmtp toobj_dog_useraction_hop");
  EXPECT_EQ(clinic.Found(), "");
}

TEST(Verify, StatesAreFollowedThroughAScript) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\treatscript.txt", "change <incrementstate>",
              "change <incrementstate>\nmtp toobj_doctor_runstate_<currentstate>");
  EXPECT_THAT(clinic.Found(), HasSubstr("global/doctor has no state \"better1\""));
  EXPECT_THAT(clinic.Found(), Not(HasSubstr("no state \"default\"")));
}

TEST(Verify, AFileThatIsThereAndCannotBeReadIsNotCalledMissing) {
  VerifyClinic clinic;
  MemoryFileSystem files;
  clinic.CopyTo(files);
  files.Remove("\\Info\\dog\\dogstates.txt");  // the listing still has it
  VerifiedTree tree{files, "", clinic.Listing()};
  std::ostringstream unseen;
  Progress progress(unseen, false);
  std::ostringstream out;
  PrintText(VerifyContent(tree, nullptr, progress), clinic.Listing(), out);
  EXPECT_THAT(out.str(), HasSubstr("Info/dog/dogstates.txt:1: error V001: the file is there and "
                                   "can't be read"));
  EXPECT_THAT(out.str(), Not(HasSubstr("not found")));
}

TEST(Verify, OnlyNamesOfGettingWellNeedATwin) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\dogstates.txt", "default\n", "sick\n");
  clinic.Edit("\\Info\\dog\\dogstates.txt", "default-owww", "sick-ow");
  clinic.Edit("\\Info\\dog\\treatscript.txt", "runstate default-owww", "runstate sick-owww");
  EXPECT_THAT(clinic.Found(), Not(HasSubstr("V90")));
}

TEST(Verify, TheDoctorIsAskedForHisToolsWhereverHeStands) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\dog.txt", "\ndog\n", "\ndoctor\n");
  EXPECT_THAT(clinic.Found(), HasSubstr("Info\\dog\\dogstates.txt:0 V902 "));
}

TEST(Findings, TheSameTextAtTheSamePlaceCountsOnce) {
  Findings findings;
  findings.Add(Check::kTab, "a", {"Info\\x.txt", 3}, "text");
  findings.Add(Check::kTab, "b", {"info\\X.txt", 3}, "text");
  EXPECT_EQ(findings.All().size(), 1u);
  findings.Add(Check::kTab, "a", {"Info\\x.txt", 4}, "text");
  findings.Add(Check::kTab, "a", {"Info\\y.txt", 3}, "text");
  findings.Add(Check::kTab, "a", {"Info\\x.txt", 3}, "other");
  findings.Add(Check::kUtf8, "a", {"Info\\x.txt", 3}, "text");
  EXPECT_EQ(findings.All().size(), 5u);
}

TEST(VerifyReport, WhatATerminalObeysIsNotPrinted) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\dogstates.txt", "sit", "s\x1B[2Jt");
  EXPECT_THAT(Printed(clinic), HasSubstr("Animation State \"s?[2Jt\""));
  EXPECT_THAT(Printed(clinic), Not(HasSubstr("\x1B")));
}

TEST(SideList, SilencesByCodeAndPathWithAReason) {
  VerifyClinic clinic;
  clinic.Put("\\Info\\spare.txt", "");
  clinic.Put("\\Info\\dog\\spare.txt", "");
  EXPECT_THAT(clinic.Found("V102 Info/* kept for next year\n"), "");
  EXPECT_THAT(Printed(clinic, "# a comment\n\nv102 info\\dog\\s?are.TXT kept for next year\n"),
              "Info/spare.txt:1: warning V102: nothing names this file\n\n"
              "0 errors, 1 warning, 0 notes; 1 silenced by the side list\n");
}

TEST(SideList, ALineWithoutAReasonOrWithAnUnknownCodeIsAFinding) {
  VerifyClinic clinic;
  clinic.Put("\\Info\\spare.txt", "");
  EXPECT_EQ(clinic.Found("V102 Info/spare.txt\nV192 Info/spare.txt because\n"),
            "Info\\spare.txt:0 V102 nothing names this file\n"
            "verify.txt:1 V002 a line reads CODE PATH REASON; this one has no reason\n"
            "verify.txt:2 V002 \"V192\" is no code; did you mean \"V102\"?\n");
}

TEST(SideList, ALineThatSilencesNothingIsAFinding) {
  EXPECT_EQ(VerifyClinic().Found("V102 Info/spare.txt kept for next year\n"),
            "verify.txt:1 V003 the line silences nothing: there is no V102 at such a path\n");
}

TEST(SideList, StarsAndQuestionMarksStandForLetters) {
  EXPECT_TRUE(MatchesGlob("*", ""));
  EXPECT_TRUE(MatchesGlob("a*c*e", "abcde"));
  EXPECT_TRUE(MatchesGlob("a*bc", "abbc"));
  EXPECT_FALSE(MatchesGlob("a*bc", "abcd"));
  EXPECT_TRUE(MatchesGlob("a?c", "abc"));
  EXPECT_FALSE(MatchesGlob("a?c", "ac"));
  EXPECT_FALSE(MatchesGlob("abc", "ab"));
}

TEST(VerifyReport, JsonTellsEveryFinding) {
  VerifyClinic clinic;
  clinic.Edit("\\Info\\dog\\dogstates.txt", "sit", "s\xEAt");
  clinic.Put("\\Info\\spare.txt", "");
  const Json report = JsonReport(clinic.Verify("V102 * kept\n"), clinic.Listing());
  EXPECT_EQ(report["counts"],
            Json({{"errors", 1}, {"warnings", 0}, {"notes", 0}, {"silenced", 1}}));
  EXPECT_EQ(report["findings"][0]["silenced"], "kept");
  const Json& state = report["findings"][1];
  EXPECT_EQ(state["code"], "V302");
  EXPECT_EQ(state["severity"], "error");
  EXPECT_EQ(state["object"], "dogroom/dog");
  EXPECT_EQ(state["file"], "Info/dog/dogstates.txt");
  EXPECT_EQ(state["line"], 3);
  EXPECT_THAT(state["text"].get<std::string>(), HasSubstr("s\xC3\xAAt"));
}

TEST(VerifyReport, SarifHasItsRulesAndPlaces) {
  VerifyClinic clinic;
  clinic.Put("\\Info\\a spare.txt", "");
  clinic.Edit("\\Info\\dog\\dogstates.txt", "sit", "sitt");
  const Json log = SarifReport(clinic.Verify("V102 * kept\n"), clinic.Listing());
  EXPECT_EQ(log["version"], "2.1.0");
  const Json& run = log["runs"][0];
  EXPECT_EQ(run["tool"]["driver"]["rules"].size(), CheckTable().size());
  const Json& spare = run["results"][0];
  EXPECT_EQ(run["tool"]["driver"]["rules"][spare["ruleIndex"].get<std::size_t>()]["id"], "V102");
  EXPECT_EQ(spare["suppressions"][0]["justification"], "kept");
  EXPECT_EQ(spare["locations"][0]["physicalLocation"]["artifactLocation"]["uri"],
            "Info/a%20spare.txt");
  const Json& state = run["results"][1];
  EXPECT_FALSE(state.contains("suppressions"));
  EXPECT_EQ(state["level"], "error");
  EXPECT_EQ(state["locations"][0]["physicalLocation"]["region"]["startLine"], 3);
  EXPECT_EQ(state["locations"][0]["logicalLocations"][0]["fullyQualifiedName"], "dogroom/dog");
}

// The command on the disk.
class VerifyCommand : public testing::Test {
 protected:
  VerifyCommand() { MakeNewContent(tree_); }
  int Run(std::vector<std::string> words) {
    words.insert(words.begin(), "verify");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int code = RunToolBelt(words);
    out_ = testing::internal::GetCapturedStdout();
    err_ = testing::internal::GetCapturedStderr();
    return code;
  }
  void Write(const std::string& name, const std::string& text) {
    std::ofstream(tree_ + "/" + name) << text;
  }

  TemporaryFolder folder_;
  std::string tree_ = folder_.Path() + "/tree";
  std::string out_;
  std::string err_;
};

TEST_F(VerifyCommand, ANewTreeIsClean) {
  EXPECT_EQ(Run({tree_}), 0);
  EXPECT_EQ(out_, "0 errors, 0 warnings, 0 notes\n");
  EXPECT_EQ(err_, "") << "no progress in a pipe";
}

TEST_F(VerifyCommand, FindingsGiveOne) {
  Write("Info/hall/spare.txt", "x");
  EXPECT_EQ(Run({tree_}), 1);
  EXPECT_THAT(out_, StartsWith("Info/hall/spare.txt:1: warning V102: "));
  EXPECT_EQ(Run({tree_, "--json"}), 1);
  EXPECT_EQ(Json::parse(out_)["counts"]["warnings"], 1);
  EXPECT_EQ(Run({tree_, "--sarif"}), 1);
  EXPECT_EQ(Json::parse(out_)["runs"][0]["results"].size(), 1u);
}

TEST_F(VerifyCommand, TheSideListOfTheTreeIsRead) {
  Write("Info/hall/spare.txt", "x");
  Write("verify.txt", "V102 Info/hall/* kept\n");
  EXPECT_EQ(Run({tree_}), 0);
  Write("other.txt", "V102 Info/*/spare.txt kept\nV101 * nothing\n");
  EXPECT_EQ(Run({tree_, "--side-list", tree_ + "/other.txt"}), 1);
  EXPECT_THAT(out_, HasSubstr("/other.txt:2: warning V003"));
}

TEST_F(VerifyCommand, WrongUseGivesTwo) {
  EXPECT_EQ(Run({}), 2);
  EXPECT_EQ(Run({tree_ + "/nosuch"}), 2);
  EXPECT_EQ(Run({tree_, "--json", "--sarif"}), 2);
  EXPECT_EQ(Run({tree_, "--side-list", tree_ + "/nosuch"}), 2);
}

TEST_F(VerifyCommand, AFolderWithoutContentIsToldAsThat) {
  EXPECT_EQ(Run({folder_.Path()}), 1);
  EXPECT_EQ(out_,
            "Info:1: error V101: there is no content: a tree has a folder \"Info\" with files in "
            "it\n\n1 error, 0 warnings, 0 notes\n");
}

TEST_F(VerifyCommand, LinksThatGoRoundInCirclesStopNothing) {
  std::filesystem::create_symlink("loop", tree_ + "/Info/loop");
  std::filesystem::create_directory_symlink(".", tree_ + "/Info/self");
  EXPECT_EQ(Run({tree_}), 0);
  EXPECT_EQ(err_, "");
}

TEST_F(VerifyCommand, AFolderThatCannotBeReadIsToldByItsName) {
  const std::filesystem::path hall = tree_ + "/Info/hall";
  std::filesystem::permissions(folder_.Path(), std::filesystem::perms(0755));
  std::filesystem::permissions(hall, std::filesystem::perms::none);
  const uid_t self = geteuid();
  if (self == 0) {
    ASSERT_EQ(seteuid(kNobody), 0) << "root may read everything";
  }
  const int code = Run({tree_});
  if (self == 0) {
    ASSERT_EQ(seteuid(self), 0);
  }
  std::filesystem::permissions(hall, std::filesystem::perms::owner_all);
  EXPECT_EQ(code, 1);
  EXPECT_THAT(out_, HasSubstr("Info/hall:1: error V001: the folder can't be read"));
}

TEST_F(VerifyCommand, NothingIsWritten) {
  const auto snapshot = [&] {
    std::map<std::string, std::filesystem::file_time_type> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(tree_)) {
      files[entry.path().string()] = entry.last_write_time();
    }
    return files;
  };
  const auto before = snapshot();
  Run({tree_});
  EXPECT_EQ(snapshot(), before);
}

TEST_F(VerifyCommand, TheCodesAreListed) {
  EXPECT_EQ(Run({"--codes"}), 0);
  EXPECT_THAT(out_, HasSubstr("V101 error: a file is missing\n"));
  EXPECT_EQ(Run({"--codes", "markdown"}), 0);
  EXPECT_EQ(out_, CodesAsMarkdown());
}

// The page of the checks holds their table as it is.
TEST(VerifyPage, HoldsTheTableOfAllChecks) {
  std::filesystem::path root = std::filesystem::current_path();
  while (!std::filesystem::exists(root / "docs/verify.md") && root.has_relative_path()) {
    root = root.parent_path();
  }
  std::ifstream file(root / "docs/verify.md");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  EXPECT_NE(page.find("\n" + CodesAsMarkdown() + "\n"), std::string::npos)
      << "print it anew: quendle verify --codes markdown";
}

TEST(Progress, RewritesOneLineOnATerminal) {
  std::ostringstream out;
  {
    Progress progress(out, true);
    progress.Step("reading", 5, 9);
    progress.Step("reading", 6, 9);  // too soon to be written
  }
  EXPECT_EQ(out.str(), "\rreading 5 of 9\r              \r");
}

TEST(Progress, WritesNothingIntoAPipe) {
  std::ostringstream out;
  {
    Progress progress(out, false);
    progress.Step("reading", 5);
  }
  EXPECT_EQ(out.str(), "");
}

}  // namespace
}  // namespace quendle
