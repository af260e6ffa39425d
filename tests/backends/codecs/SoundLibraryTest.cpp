#include "backends/codecs/SoundLibrary.h"

#include <gtest/gtest.h>

#include "backends/files/MemoryFileSystem.h"
#include "support/WaveFiles.h"

namespace quendle {
namespace {

using Lines = std::vector<std::string>;

int Reads(const MemoryFileSystem& files) {
  int reads = 0;
  for (const auto& operation : files.Operations()) reads += operation.name == "read";
  return reads;
}

class SoundLibraryTest : public ::testing::Test {
 protected:
  SoundLibraryTest() {
    files_.Put("\\a.wma", ToneFile(1));
    files_.Put("\\b.wma", ToneFile(1));
    files_.Put("\\bad.wma", "rubbish");
    files_.Record(true);
  }
  MemoryFileSystem files_;
};

TEST_F(SoundLibraryTest, ASoundIsDecodedOnceWhateverTheCaseOfItsPath) {
  SoundLibrary library(files_);
  const auto sound = library.Get("\\a.wma");
  ASSERT_NE(sound, nullptr);
  EXPECT_EQ(sound->Seconds(), 1.0);
  EXPECT_EQ(library.Get("\\A.WMA"), sound);
  EXPECT_EQ(Reads(files_), 1);
  EXPECT_TRUE(library.TakeProblems().empty());
}

TEST_F(SoundLibraryTest, TheSoundUsedLongestAgoIsGivenUpFirst) {
  files_.Put("\\c.wma", ToneFile(1));
  SoundLibrary library(files_, SoundDecoder(), 2 * 16000);  // two of these sounds
  library.Get("\\a.wma");
  library.Get("\\b.wma");
  library.Get("\\a.wma");
  library.Get("\\c.wma");
  EXPECT_EQ(Reads(files_), 3);
  library.Get("\\a.wma");
  EXPECT_EQ(Reads(files_), 3);
  library.Get("\\b.wma");
  EXPECT_EQ(Reads(files_), 4);
}

TEST_F(SoundLibraryTest, ASoundLargerThanWhatIsKeptIsGivenAllTheSame) {
  SoundLibrary library(files_, SoundDecoder(), 100);
  EXPECT_NE(library.Get("\\a.wma"), nullptr);
  EXPECT_NE(library.Get("\\a.wma"), nullptr);
  EXPECT_EQ(Reads(files_), 2);
}

TEST_F(SoundLibraryTest, AMissingOrDamagedFileIsAProblemToldOnce) {
  SoundLibrary library(files_);
  EXPECT_EQ(library.Get("\\none.wma"), nullptr);
  EXPECT_EQ(library.Get("\\bad.wma"), nullptr);
  EXPECT_EQ(library.TakeProblems(),
            (Lines{"Sound \\none.wma is silent: it is missing",
                   "Sound \\bad.wma is silent: it is neither Windows Media nor a wave"}));
  EXPECT_EQ(library.Get("\\NONE.wma"), nullptr);
  EXPECT_EQ(library.Get("\\bad.wma"), nullptr);
  EXPECT_TRUE(library.TakeProblems().empty());
}

}  // namespace
}  // namespace quendle
